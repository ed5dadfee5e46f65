#include "explain/walk/line_walk.h"

#include "decode/chain_table.h"
#include "explain/walk/plain_walk.h"

#include <algorithm>

namespace norvane {

LineWalk::LineWalk(const SccLine &line)
    : line_(line), bytesOf_(line.words.size()), swallowedOf_(line.words.size()) {
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
        for (const std::size_t source : bytes_.back().sources)
            bytesOf_[line_.wordAt(source)].push_back(i);
    }
}

void LineWalk::findCrossings(const TracedText &text) {
    for (const TracedText::Change &change : text.changes()) {
        if (change.row == kBlanksRow)
            continue;
        Crossing crossing{change.row, {}, {}};
        std::vector<std::size_t> places;
        bool inStep = true;
        for (const TracedText::Place place : change.taken) {
            if (place >= text.sourceSize())
                continue;
            const std::size_t word = line_.wordAt(place);
            const char digit = line_.data.hexText[place];
            if (crossing.parts.empty()) {
                crossing.first = place;
                inStep =
                    line_.words[word].isCode && (place - line_.placeOf(line_.words[word])) % 2 == 0;
            }
            if (crossing.parts.empty() || crossing.parts.back().word != word)
                crossing.parts.push_back({word, ""});
            crossing.parts.back().digits += digit;
            crossing.key += digit;
            places.push_back(place);
            crossing.last = place;
        }
        const bool inCode = !crossing.parts.empty() && line_.words[crossing.parts[0].word].isCode;
        if (crossing.parts.size() <= 1 && (!inCode || inStep))
            continue;
        crossings_.push_back(crossing);
        for (const std::size_t place : places)
            swallowedOf_[line_.wordAt(place)].insert(place);
    }
}

std::vector<std::size_t> LineWalk::bytesOf(std::size_t first, std::size_t count) const {
    std::vector<std::size_t> bytes;
    for (std::size_t word = first; word < first + count; ++word)
        bytes.insert(bytes.end(), bytesOf_[word].begin(), bytesOf_[word].end());
    std::sort(bytes.begin(), bytes.end());
    bytes.erase(std::unique(bytes.begin(), bytes.end()), bytes.end());
    return bytes;
}

WordFate LineWalk::fateOf(std::size_t first, std::size_t count) const {
    WordFate fate;
    const std::vector<std::size_t> bytes = bytesOf(first, count);
    fate.isShared = !bytes.empty();
    fate.isBlank = fate.isShared;
    for (const std::size_t i : bytes) {
        const Byte &byte = bytes_[i];
        fate.isBlank = fate.isBlank && byte.text == ' ';
        if (byte.sources.front() >= line_.placeOf(line_.words[first]))
            fate.text += byte.text;
        if (byte.untouched)
            fate.kept += byte.text;
    }
    for (std::size_t word = first; word < first + count; ++word) {
        for (const std::size_t place : swallowedOf_[word])
            fate.swallowed += line_.data.hexText[place];
    }
    return fate;
}

std::string LineWalk::entryOf(std::size_t start, std::size_t end) const {
    const std::size_t first = line_.wordAt(start);
    std::string text;
    for (const std::size_t i : bytesOf(first, line_.wordAt(end - 1) - first + 1)) {
        const std::vector<std::size_t> &sources = bytes_[i].sources;
        const auto in = std::lower_bound(sources.begin(), sources.end(), start);
        if (in != sources.end() && *in < end)
            text += bytes_[i].text;
    }
    return text;
}

} // namespace norvane
