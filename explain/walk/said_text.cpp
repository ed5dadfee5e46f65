#include "explain/walk/said_text.h"

#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

namespace {

bool isGap(const SaidText &character) {
    return character.text.empty() || character.text == " ";
}

} // namespace

SaidLine::SaidLine(const SccLine &line) {
    std::vector<SaidText> &characters = characters_;
    for (const SccWord &word : line.words) {
        const std::size_t start = line.placeOf(word);
        const std::size_t end = start + word.digits.size();
        if (word.meaning->kind == CodeKind::extended && !characters.empty() &&
            !isGap(characters.back()))
            characters.pop_back(); // it takes its place
        if (word.meaning->kind == CodeKind::text) {
            // One character for each byte that is not a filler.
            std::string_view shown = word.meaning->shown;
            for (std::size_t at = start; !shown.empty(); at += 2) {
                if (at == start && (word.meaning->code >> 8U) == 0)
                    continue;
                const std::size_t size = characterSize(shown);
                characters.push_back({std::string(shown.substr(0, size)), at, at + 2});
                shown.remove_prefix(size);
            }
        } else if (word.meaning->kind != CodeKind::filler) {
            characters.push_back({std::string(word.meaning->shown), start, end});
        }
    }
}

SaidText SaidLine::around(std::size_t first, std::size_t last) const {
    const std::vector<SaidText> &characters = characters_;
    auto from = static_cast<std::size_t>(
        std::partition_point(characters.begin(), characters.end(),
                             [first](const SaidText &one) { return one.end <= first; }) -
        characters.begin());
    std::size_t to = from;
    while (to < characters.size() && characters[to].start <= last)
        ++to;
    // Gaps at the ends are not part of it, letters beyond them are.
    while (from < to && isGap(characters[from]))
        ++from;
    while (from < to && isGap(characters[to - 1]))
        --to;
    if (from == to)
        return {};
    while (from > 0 && !isGap(characters[from - 1]))
        --from;
    while (to < characters.size() && !isGap(characters[to]))
        ++to;
    SaidText said{"", characters[from].start, characters[to - 1].end};
    for (std::size_t i = from; i < to; ++i)
        said.text += characters[i].text;
    return said;
}

} // namespace norvane
