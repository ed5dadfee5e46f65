#include "explain/standard/scc_line.h"

#include <algorithm>

namespace norvane {

namespace {

/// What a control code turns captions into; unknown when they stay as they are.
Mode modeBehind(std::uint16_t code) {
    switch (code) {
    case code::kRcl:
    case code::kEoc:
        return Mode::popOn;
    case code::kRu2:
        return Mode::rollUp2;
    case code::kRu3:
        return Mode::rollUp3;
    case code::kRu4:
        return Mode::rollUp4;
    case code::kRdc:
        return Mode::paintOn;
    case code::kTr:
    case code::kRtd:
        return Mode::text;
    default:
        return Mode::unknown;
    }
}

/// Codes on what is shown or loaded concern captions, also while text is sent.
bool isOfCaptions(std::uint16_t code) {
    return code == code::kEdm || code == code::kEnm;
}

Service serviceOf(std::size_t channel, bool isText) {
    return static_cast<Service>(static_cast<std::size_t>(isText ? Service::t1 : Service::cc1) +
                                channel);
}

} // namespace

std::size_t SccLine::wordAt(std::size_t place) const {
    const auto behind = std::upper_bound(
        words.begin(), words.end(), data.hexText.data() + place,
        [](const char *at, const SccWord &word) { return at < word.digits.data(); });
    return static_cast<std::size_t>(behind - words.begin()) - 1;
}

const SccLine &LineTaker::take(std::string_view text, std::size_t number) {
    line_.text = text;
    line_.number = number;
    ++line_.entry;
    line_.words.clear();
    line_.mode = Mode::unknown;
    line_.refusal.reset();
    line_.timecode.reset();
    line_.data = {};
    const auto parts = takeApart(text);
    if (const Refusal *refusal = std::get_if<Refusal>(&parts)) {
        line_.refusal = *refusal;
        return line_;
    }
    line_.data = std::get<DataLine>(parts);
    line_.timecode = readFrameTimecode(line_.data.timecode);
    readWords();
    return line_;
}

void LineTaker::readWords() {
    const std::string_view text = line_.data.hexText;
    const long start = line_.timecode ? line_.timecode->count() : -1;
    if (start != nextFrame_)
        lastCode_ = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ') {
            ++at;
            continue;
        }
        SccWord word;
        word.digits = text.substr(at, text.find(' ', at) - at);
        at += word.digits.size();
        const int code = codeOfWord(word.digits);
        word.isCode = code >= 0;
        if (word.isCode) {
            word.code = static_cast<std::uint16_t>(code);
            readCode(word);
        } else {
            lastCode_ = 0;
        }
        line_.words.push_back(word);
    }
    line_.mode = channels_[channel_].mode;
    nextFrame_ = line_.timecode ? start + static_cast<long>(line_.words.size()) : -1;
}

/// Kept apart by kind: characters go where the last code went, and other words go nowhere.
void LineTaker::readCode(SccWord &word) {
    constexpr unsigned kEndOfData = 0x0F; // the first byte of the pair that ends extended data
    const CodeMeaning &meaning = meaningOf(word.code);
    word.meaning = &meaning;
    word.parity = meaning.withParity == word.code;
    if (!isControlCode(meaning)) {
        lastCode_ = 0;
        if (meaning.kind == CodeKind::otherData)
            isOtherData_ = channel_ >= 2 && meaning.code >> 8U != kEndOfData;
        if (meaning.kind != CodeKind::text || isOtherData_)
            return;
        word.mode = channels_[channel_].mode;
        word.service = serviceOf(channel_, channels_[channel_].isText);
        return;
    }
    isOtherData_ = false;
    word.repeats = meaning.withParity == lastCode_;
    lastCode_ = word.repeats ? std::uint16_t{0} : meaning.withParity;
    const bool secondField =
        meaning.kind == CodeKind::control ? meaning.secondField : channel_ >= 2;
    channel_ = (secondField ? 2U : 0U) + (meaning.secondChannel ? 1U : 0U);
    Channel &channel = channels_[channel_];
    const Mode mode = meaning.kind == CodeKind::control ? modeBehind(meaning.code) : Mode::unknown;
    if (mode != Mode::unknown)
        channel = {mode == Mode::text, mode};
    word.mode = channel.mode;
    word.service = serviceOf(channel_, channel.isText && !isOfCaptions(meaning.code));
}

SccReader::SccReader(std::string_view text) : lines_(text) {
    header_ = lines_.nextNotEmpty();
    headerNumber_ = std::max<std::size_t>(lines_.number(), 1);
}

const SccLine *SccReader::next() {
    const std::string_view text = lines_.nextNotEmpty();
    return text.empty() ? nullptr : &taker_.take(text, lines_.number());
}

} // namespace norvane
