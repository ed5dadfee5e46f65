#include "transcript/clean_up.h"

#include "decode/accent_pairs.h"

namespace norvane {

namespace {

constexpr std::string_view kBar = "|";

/// What the second pass looks for: kept as these five characters, which are no pattern there.
constexpr std::string_view kLiteralPattern = "[^ *]";

bool holdsOtherThan(std::string_view entry, std::string_view characters) {
    return entry.find_first_not_of(characters) != std::string_view::npos;
}

void removeFirst(std::string &entry, std::string_view find, std::string_view unlessOnly) {
    if (holdsOtherThan(entry, unlessOnly))
        entry = Replace(entry, find, "");
    if (entry == " ")
        entry.clear();
}

} // namespace

void cleanEntries(TextArray &captions) {
    for (std::size_t i = 0; i < captions.size(); ++i) {
        std::string entry(captions[i]);
        removeFirst(entry, kBar, kBar);
        removeFirst(entry, kLiteralPattern, " *");
        removeFirst(entry, kBar, " *");
        captions.set(i, entry);
    }
}

std::string cleanTranscript(std::string transcriptText) {
    // Kept: a backslash and the letter t, and no tab, so the blank behind a real tab stays.
    transcriptText = ReplaceAll(transcriptText, "]\\t ", "]\\t");
    for (const TableRow &pair : kAccentPairs)
        transcriptText = ReplaceAllB(transcriptText, pair.key, pair.with);
    transcriptText = ReplaceAll(transcriptText, kBar, " ");
    for (int halving = 0; halving < 3; ++halving)
        transcriptText = ReplaceAll(transcriptText, "  ", " ");
    return transcriptText;
}

} // namespace norvane
