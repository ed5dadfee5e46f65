#pragma once

#include "explain/standard/scc_line.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What a viewer sees of a film, and when: a plain model of a line-21 decoder after CEA-608-E and
/// 47 CFR 79.101. It is independent of the transcript: reports show where the two differ.
namespace norvane {

enum class CaptionMode : std::uint8_t { popOn, rollUp, paintOn };

/// In the order of mid-row codes; black is a foreground of its own code.
enum class Colour : std::uint8_t {
    white,
    green,
    blue,
    cyan,
    red,
    yellow,
    magenta,
    black,
    transparent, // of backgrounds alone
};

/// How a character looks; the default is a white one on black.
struct Style {
    Colour colour = Colour::white;
    Colour background = Colour::black;
    bool semiTransparent = false; // of the background
    bool italics = false;
    bool underlined = false;
    bool flashes = false;

    bool operator==(const Style &) const = default;
};

/// A word as sent: the frame of the line's timecode and the word's place in the line. For a code
/// that is sent twice, the first.
struct Moment {
    std::int32_t frame; // since 00:00:00:00
    std::uint32_t line; // of the file, from 1
    std::uint32_t word; // of the line, from 0
};

/// A column of a row.
struct Cell {
    Moment sent{};          // what wrote it
    std::uint16_t code = 0; // of its character alone; 0 where nothing was written
    Style style{};
};

/// A row from its first printing character to its last.
struct CaptionRow {
    int row;        // 1 to 15
    int column;     // 1 to 32, of the first character
    int beyond = 0; // characters sent beyond column 32, each in the place of the one before it
    std::vector<Cell> cells{};
};

/// A caption. Each row that can be read belongs to one at any time:
/// - pop-on: one for each EOC that puts something readable on the screen, until an event erases or
///   changes one of its rows;
/// - roll-up: one a row, from its first printing character until it is gone; rolling on and moving
///   the base row leave it as it is, and its row is that in which it began;
/// - paint-on: one a painting, from its first character after RDC or on an empty screen until its
///   last row is gone. A row that another painting goes on with becomes that one's; a painting
///   that changes a pop-on caption takes over all of its rows. Each row is kept as it was when it
///   was removed.
struct Caption {
    std::size_t number = 0; // in the order of their starts, from 1; 0: never shown
    Service service = Service::cc1;
    CaptionMode mode = CaptionMode::popOn;
    std::optional<Moment> shownBy{};   // nothing: erased, or the film over, before it was shown
    std::optional<Moment> removedBy{}; // its frame is the first without the caption; nothing: none
    int rowsOnScreen = 0;              // most rows that could be read at once meanwhile
    std::vector<CaptionRow> rows{};    // from the top; at least one
};

/// Whether the character prints: all do but blanks.
constexpr bool isPrinting(std::uint16_t code) {
    constexpr std::uint16_t kBlank = 0x2000;
    return code != 0 && code != kBlank;
}

/// UTF-8; a blank for each column without a character.
std::string textOf(const CaptionRow &row);

/// A run of characters of one style.
struct StyledColumns {
    int from; // columns, 1 to 32, both included
    int to;
    Style style;
};

/// Where the characters are not white on black and plain. Blanks end no run.
std::vector<StyledColumns> stylesOf(const CaptionRow &row);

/// What a viewer has to read: characters, and the blanks between them, several in a row as one.
long charactersOf(const Caption &caption);

/// Frames on the screen; nothing when it was never shown or never removed.
std::optional<long> framesOf(const Caption &caption);

/// The lines that its characters were sent in, each once, rising.
std::vector<std::uint32_t> linesOf(const Caption &caption);

/// The first and the last word that its characters were sent in.
struct Sending {
    Moment first;
    Moment last;
};
Sending sendingOf(const Caption &caption);

} // namespace norvane
