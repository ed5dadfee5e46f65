#include "explain/line_walk.h"

#include "decode/chain_table.h"
#include "explain/plain_walk.h"

#include <algorithm>

namespace norvane {

LineWalk::LineWalk(const SccLine &line) : line_(line) {
    TracedText text(line.data.hexText);
    plain::replaceCodeWords(text);
    findCrossings(text);
    if (!plain::readLetters(text))
        return;
    plain::cleanEntry(text);
    plain::cleanTranscript(text);
    entry_ = text.text();
    for (std::size_t i = 0; i < entry_->size(); ++i) {
        const TracedText::Place place = text.places()[i];
        bytes_.push_back({(*entry_)[i], place < text.sourceSize(), text.sourcesOf(place)});
    }
}

std::size_t LineWalk::wordAt(std::size_t place) const {
    const auto behind =
        std::upper_bound(line_.words.begin(), line_.words.end(), place,
                         [](std::size_t at, const SccWord &word) { return at < word.at; });
    return static_cast<std::size_t>(behind - line_.words.begin()) - 1;
}

void LineWalk::findCrossings(const TracedText &text) {
    for (const TracedText::Change &change : text.changes()) {
        if (change.row == kBlanksRow)
            continue;
        Crossing crossing{change.row, {}, {}};
        bool inStep = true;
        for (const TracedText::Place place : change.taken) {
            if (place >= text.sourceSize())
                continue;
            const std::size_t word = wordAt(place);
            const char digit = line_.data.hexText[place];
            if (crossing.parts.empty()) {
                crossing.first = place;
                inStep = line_.words[word].isCode && (place - line_.words[word].at) % 2 == 0;
            }
            if (crossing.parts.empty() || crossing.parts.back().word != word)
                crossing.parts.push_back({word, ""});
            crossing.parts.back().digits += digit;
            crossing.key += digit;
            crossing.last = place;
        }
        const bool inCode = !crossing.parts.empty() && line_.words[crossing.parts[0].word].isCode;
        if (crossing.parts.size() > 1 || (inCode && !inStep))
            crossings_.push_back(crossing);
    }
}

WordFate LineWalk::fateOf(std::size_t first, std::size_t count) const {
    const std::size_t start = line_.words[first].at;
    const SccWord &last = line_.words[first + count - 1];
    const std::size_t end = last.at + last.digits.size();
    WordFate fate;
    fate.isBlank = true;
    for (const Byte &byte : bytes_) {
        const auto in = std::lower_bound(byte.sources.begin(), byte.sources.end(), start);
        if (in == byte.sources.end() || *in >= end)
            continue;
        fate.isShared = true;
        fate.isBlank = fate.isBlank && byte.text == ' ';
        if (byte.sources.front() >= start)
            fate.text += byte.text;
        if (byte.untouched)
            fate.kept += byte.text;
    }
    fate.isBlank = fate.isBlank && fate.isShared;
    for (const Crossing &crossing : crossings_) {
        for (const Crossing::Part &part : crossing.parts) {
            if (part.word >= first && part.word < first + count)
                fate.swallowed += part.digits;
        }
    }
    return fate;
}

std::string LineWalk::entryOf(std::size_t start, std::size_t end) const {
    std::string text;
    for (const Byte &byte : bytes_) {
        const auto in = std::lower_bound(byte.sources.begin(), byte.sources.end(), start);
        if (in != byte.sources.end() && *in < end)
            text += byte.text;
    }
    return text;
}

} // namespace norvane
