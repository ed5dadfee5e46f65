#include "explain/scc_line.h"

#include <algorithm>

namespace norvane {

namespace {

/// What a control code (14 20 to 14 2F) turns captions into; empty when they stay as they are.
std::string_view modeBehind(unsigned code) {
    switch (code) {
    case 0x1420: // RCL
    case 0x142F: // EOC
        return "pop-on";
    case 0x1425:
        return "roll-up of 2 rows";
    case 0x1426:
        return "roll-up of 3 rows";
    case 0x1427:
        return "roll-up of 4 rows";
    case 0x1429: // RDC
        return "paint-on";
    case 0x142A: // TR
    case 0x142B: // RTD
        return "text";
    default:
        return "";
    }
}

/// Codes on what is shown or loaded concern captions, also while text is sent.
bool isOfCaptions(unsigned code) {
    return code == 0x142C || code == 0x142E; // EDM, ENM
}

bool isControlCode(const CodeMeaning &meaning) {
    return meaning.code >> 12U == 1;
}

} // namespace

SccReader::SccReader(std::string_view text) : lines_(text) {
    header_ = lines_.nextNotEmpty();
    headerNumber_ = std::max<std::size_t>(lines_.number(), 1);
}

std::optional<SccLine> SccReader::next() {
    SccLine line;
    line.text = lines_.nextNotEmpty();
    if (line.text.empty())
        return {};
    line.number = lines_.number();
    line.entry = ++entries_;
    const auto parts = takeApart(line.text);
    if (const Refusal *refusal = std::get_if<Refusal>(&parts)) {
        line.refusal = *refusal;
        return line;
    }
    line.data = std::get<DataLine>(parts);
    line.timecode = readFrameTimecode(line.data.timecode);
    readWords(line);
    return line;
}

void SccReader::readWords(SccLine &line) {
    const std::string_view text = line.data.hexText;
    const long start = line.timecode ? line.timecode->count() : -1;
    if (start != nextFrame_)
        lastCode_ = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ') {
            ++at;
            continue;
        }
        SccWord word{text.substr(at, text.find(' ', at) - at), at};
        at += word.digits.size();
        const int code = codeOfWord(word.digits);
        word.isCode = code >= 0;
        if (word.isCode) {
            word.meaning = meaningOf(static_cast<unsigned>(code));
            word.parity = withParity(static_cast<unsigned>(code)) == static_cast<unsigned>(code);
            const auto value = withParity(static_cast<unsigned>(code));
            word.repeats = value == lastCode_;
            lastCode_ = isControlCode(word.meaning) && !word.repeats ? value : 0;
            assignService(word);
        } else {
            lastCode_ = 0;
        }
        line.words.push_back(word);
    }
    line.mode = services_.at(service_).mode;
    nextFrame_ = line.timecode ? start + static_cast<long>(line.words.size()) : -1;
}

void SccReader::assignService(SccWord &word) {
    const CodeMeaning &meaning = word.meaning;
    if (isControlCode(meaning)) {
        const bool secondField =
            meaning.kind == CodeKind::control ? meaning.secondField : service_ >= 2;
        service_ = (secondField ? 2U : 0U) + (meaning.secondChannel ? 1U : 0U);
    } else if (meaning.kind != CodeKind::text) {
        return;
    }
    Service &service = services_.at(service_);
    const std::string_view mode =
        meaning.kind == CodeKind::control ? modeBehind(meaning.code) : std::string_view();
    if (!mode.empty())
        service = {mode == "text", mode};
    const bool isText = service.isText && !isOfCaptions(meaning.code);
    word.mode = service.mode;
    word.service = (isText ? "T" : "CC") + std::to_string(service_ + 1);
}

} // namespace norvane
