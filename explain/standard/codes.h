#pragma once

#include "decode/code_word.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The codes of CEA-608: what a line-21 decoder makes of a pair of bytes, independent of the
/// transcript.
namespace norvane {

enum class CodeKind : std::uint8_t {
    filler,       // two null bytes
    text,         // one or two characters
    special,      // a character that takes a pair of its own
    extended,     // the same, in the place of the character before it
    preamble,     // a preamble address code: a row, and an indent or a colour
    midRow,       // a style from here on; takes a column
    background,   // or a foreground in black
    tabOffset,    // one to three columns to the right
    control,      // of captions as a whole, such as RCL
    characterSet, // another one
    otherData,    // field 2: extended data services
    none,         // undefined in CEA-608
};

/// The control codes, without parity bits and as of the first channel of field 1.
namespace code {
inline constexpr std::uint16_t kRcl = 0x1420; // resume caption loading: pop-on
inline constexpr std::uint16_t kBs = 0x1421;  // backspace
inline constexpr std::uint16_t kAof = 0x1422; // alarm off, unused
inline constexpr std::uint16_t kAon = 0x1423; // alarm on, unused
inline constexpr std::uint16_t kDer = 0x1424; // delete to end of row
inline constexpr std::uint16_t kRu2 = 0x1425; // roll up 2 rows
inline constexpr std::uint16_t kRu3 = 0x1426;
inline constexpr std::uint16_t kRu4 = 0x1427;
inline constexpr std::uint16_t kFon = 0x1428; // flash on; takes a column like a mid-row code
inline constexpr std::uint16_t kRdc = 0x1429; // resume direct captioning: paint-on
inline constexpr std::uint16_t kTr = 0x142A;  // text restart
inline constexpr std::uint16_t kRtd = 0x142B; // resume text display
inline constexpr std::uint16_t kEdm = 0x142C; // erase displayed memory
inline constexpr std::uint16_t kCr = 0x142D;  // carriage return
inline constexpr std::uint16_t kEnm = 0x142E; // erase non-displayed memory
inline constexpr std::uint16_t kEoc = 0x142F; // end of caption: shows what was loaded
} // namespace code

/// The screen (CEA-608): rows and columns count from 1.
inline constexpr int kScreenRows = 15;
inline constexpr int kScreenColumns = 32;

/// A pair of bytes by the standard. The parity bits do not count.
struct CodeMeaning {
    CodeKind kind = CodeKind::none;
    bool secondChannel = false;   // of its field: CC2, CC4
    bool secondField = false;     // it says so itself: CC3, CC4
    std::uint16_t code = 0;       // without parity bits and as of the first channel and field
    std::uint16_t withParity = 0; // as sent, with the bits that make the ones of a byte odd
    std::uint16_t textSize = 0;   // of `shown`, in characters
    std::uint16_t nameSize = 0;   // of `name`
    std::string_view name{};      // for the user
    std::string_view shown{};     // the characters that a viewer would see
};

inline constexpr CodeMeaning kNoMeaning{};

/// The meaning of a code, 0 to FFFF, the byte that is sent first being the upper one. It stays for
/// good: all are made at the first call, so that a word costs one look.
const CodeMeaning &meaningOf(std::uint16_t code);

/// The row, 1 to 15, of a preamble address code as `CodeMeaning::code` has it.
int rowOfPreamble(std::uint16_t code);

/// Whether such a code indents; then its column, 0, 4, ... 28 blanks from the left. Otherwise it
/// sets a colour or italics, by the same three bits.
constexpr bool isIndent(std::uint16_t code) {
    return (code & 0x10U) != 0;
}
constexpr int indentOf(std::uint16_t code) {
    return (code >> 1 & 7) * 4;
}

/// The value of a word: four hex digits of either case; -1 for any other text.
constexpr int codeOfWord(std::string_view word) {
    return isCodeWord(word) ? static_cast<int>(codeOf(word)) : -1;
}

/// The four hex digits of a code, in small letters.
std::string wordOf(std::uint16_t code);

/// Whether a pair is one of those that CEA-608 has sent twice. Characters are not counted among
/// them here: files repeat or do not repeat them at will.
constexpr bool isSentTwice(const CodeMeaning &meaning) {
    return meaning.kind >= CodeKind::preamble && meaning.kind <= CodeKind::characterSet;
}

/// Whether the pair stands for one or two characters.
constexpr bool isCharacters(const CodeMeaning &meaning) {
    return meaning.kind >= CodeKind::text && meaning.kind <= CodeKind::extended;
}

/// Whether the first byte is one of those of control codes, 10 to 1F.
constexpr bool isControlCode(const CodeMeaning &meaning) {
    return meaning.code >> 12U == 1;
}

} // namespace norvane
