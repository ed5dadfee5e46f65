#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace norvane {

/// What can be wrong with a file, its captions or its transcript.
enum class FindingKind : std::uint8_t {
    header,
    bom,
    tab,
    timecode,
    timecodeForm,
    hours,
    frame,
    droppedFrame,
    separator,
    order,
    overlap,
    twice,
    word,
    parity,
    single,
    channel,
    field,
    textMode,
    code,
    empty,
    neverShown,
    neverErased,
    columns,
    rows,
    readingRate,
    shortest,
    longest,
    gap,
    rowLength,
    upperRows,
    digits,
    altered,
};

enum class Severity : std::uint8_t {
    error,   // the file breaks the standard, or loses a caption
    warning, // a risky habit, or a limit that the user set
    note,    // concerns the transcript only
};
inline constexpr auto kSeverityNames =
    std::to_array<std::string_view>({"error", "warning", "note"});

struct FindingKindInfo {
    std::string_view name; // by which a user switches it off
    Severity severity;
    std::string_view title; // what findings of the kind have in common
};

inline constexpr auto kFindingKinds = std::to_array<FindingKindInfo>({
    {"header", Severity::error, "no SCC header"},
    {"bom", Severity::warning, "byte order mark"},
    {"tab", Severity::error, "missing or extra tabs"},
    {"timecode", Severity::error, "lines without a timecode"},
    {"timecode-form", Severity::error, "malformed timecodes"},
    {"hours", Severity::error, "hours above 23"},
    {"frame", Severity::error, "frames above 29"},
    {"dropped-frame", Severity::error, "frames that drop-frame skips"},
    {"separator", Severity::error, "mixed drop-frame and non-drop"},
    {"order", Severity::error, "lines out of order"},
    {"overlap", Severity::error, "overlapping lines"},
    {"twice", Severity::warning, "duplicate lines"},
    {"word", Severity::error, "malformed words"},
    {"parity", Severity::error, "wrong parity"},
    {"single", Severity::warning, "codes sent only once"},
    {"channel", Severity::warning, "words of a second channel"},
    {"field", Severity::error, "field 2 codes"},
    {"text-mode", Severity::warning, "text mode words"},
    {"code", Severity::error, "codes not in CEA-608"},
    {"empty", Severity::error, "no captions"},
    {"never-shown", Severity::error, "captions never shown"},
    {"never-erased", Severity::warning, "captions never erased"},
    {"columns", Severity::error, "rows too long for the screen"},
    {"rows", Severity::error, "too many rows"},
    {"reading-rate", Severity::warning, "captions too fast to read"},
    {"shortest", Severity::warning, "captions on screen too briefly"},
    {"longest", Severity::warning, "captions on screen too long"},
    {"gap", Severity::warning, "captions too close together"},
    {"row-length", Severity::warning, "rows over the length limit"},
    {"upper-rows", Severity::warning, "text in rows 5 to 11"},
    {"digits", Severity::note, "words left as digits"},
    {"altered", Severity::note, "words altered in the transcript"},
});

using FindingKinds = std::bitset<kFindingKinds.size()>;

constexpr const FindingKindInfo &infoOf(FindingKind kind) {
    return kFindingKinds[static_cast<std::size_t>(kind)];
}
constexpr std::string_view nameOf(Severity severity) {
    return kSeverityNames[static_cast<std::size_t>(severity)];
}

/// The names of the kinds, in their order.
inline constexpr auto kFindingNames = [] {
    std::array<std::string_view, kFindingKinds.size()> names{};
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = kFindingKinds[i].name;
    return names;
}();

} // namespace norvane
