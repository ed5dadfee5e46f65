#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace norvane {

/// What can be wrong with a file, with its captions, or with what the transcript makes of it.
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
    warning, // a habit that can go wrong, or a limit that the user set
    note,    // the transcript alone is concerned
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
    {"bom", Severity::warning, "a byte order mark"},
    {"tab", Severity::error, "tabs amiss"},
    {"timecode", Severity::error, "lines without a timecode"},
    {"timecode-form", Severity::error, "timecodes of another form"},
    {"hours", Severity::error, "hours that no clock has"},
    {"frame", Severity::error, "frames that no second has"},
    {"dropped-frame", Severity::error, "frames that drop-frame leaves out"},
    {"separator", Severity::error, "drop-frame and non-drop mixed"},
    {"order", Severity::error, "lines out of order"},
    {"overlap", Severity::error, "lines too close to the one before"},
    {"twice", Severity::warning, "lines that come twice"},
    {"word", Severity::error, "words that are none"},
    {"parity", Severity::error, "wrong parity"},
    {"single", Severity::warning, "codes sent once"},
    {"channel", Severity::warning, "words of a second channel"},
    {"field", Severity::error, "codes of field 2"},
    {"text-mode", Severity::warning, "words of text mode"},
    {"code", Severity::error, "codes that CEA-608 does not have"},
    {"empty", Severity::error, "no caption at all"},
    {"never-shown", Severity::error, "captions that nobody sees"},
    {"never-erased", Severity::warning, "captions that nothing takes away"},
    {"columns", Severity::error, "rows too long for a screen"},
    {"rows", Severity::error, "more rows than a screen has room for"},
    {"reading-rate", Severity::warning, "captions too fast to read"},
    {"shortest", Severity::warning, "captions seen too briefly"},
    {"longest", Severity::warning, "captions seen too long"},
    {"gap", Severity::warning, "captions too close to each other"},
    {"row-length", Severity::warning, "rows longer than is wanted"},
    {"upper-rows", Severity::warning, "text on rows 5 to 11"},
    {"digits", Severity::note, "words that the transcript keeps as digits"},
    {"altered", Severity::note, "words that the transcript alters"},
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
