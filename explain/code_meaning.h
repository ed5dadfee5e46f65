#pragma once

#include <string>
#include <string_view>

/// The names of CEA-608: what a line-21 decoder makes of a pair of bytes, whatever the transcript
/// makes of it.
namespace norvane {

enum class CodeKind {
    filler,       // nothing, twice
    text,         // one or two characters
    special,      // a character that takes a pair of its own
    extended,     // the same, in the place of the character before it
    preamble,     // a preamble address code: a row, and an indent or a colour
    midRow,       // a style from here on; takes a column
    background,   // or a foreground in black
    tabOffset,    // one to three columns to the right
    control,      // of captions as a whole, such as RCL
    characterSet, // another one
    otherData,    // field 2: data beside the captions
    none,         // CEA-608 knows no such pair
};

/// A pair of bytes by the standard. The parity bits do not count.
struct CodeMeaning {
    CodeKind kind = CodeKind::none;
    bool secondChannel = false; // of its field: CC2, CC4
    bool secondField = false;   // it says so itself: CC3, CC4
    unsigned code = 0;          // without parity bits and as of the first channel and field
    std::string name;           // for the user
    std::string shown{};        // the characters that a viewer would see
};

/// The meaning of a code, 0 to FFFF, the byte that is sent first being the upper one.
CodeMeaning meaningOf(unsigned code);

/// The value of a word: four hex digits of either case; -1 for any other text.
int codeOfWord(std::string_view word);

/// A code with the parity bits that CEA-608 asks for, which make the number of ones in each byte
/// odd.
unsigned withParity(unsigned code);

/// The four hex digits of a code, in small letters.
std::string wordOf(unsigned code);

/// Whether a pair is one of those that CEA-608 has sent twice. Characters are not counted among
/// them here: files repeat or do not repeat them at will.
bool isSentTwice(const CodeMeaning &meaning);

/// Whether the pair stands for one or two characters.
bool isCharacters(const CodeMeaning &meaning);

} // namespace norvane
