#include "explain/code_meaning.h"

#include "decode/letters.h"
#include "framework/text/text.h"

#include <array>
#include <bit>

namespace norvane {

namespace {

constexpr std::array<std::string_view, 16> kControls = {
    "RCL, resume caption loading (pop-on)",
    "BS, backspace",
    "AOF, alarm off (unused)",
    "AON, alarm on (unused)",
    "DER, delete to end of row",
    "RU2, roll up 2 rows",
    "RU3, roll up 3 rows",
    "RU4, roll up 4 rows",
    "FON, flash on",
    "RDC, resume direct captioning (paint-on)",
    "TR, text restart",
    "RTD, resume text display",
    "EDM, erase displayed memory",
    "CR, carriage return",
    "ENM, erase non-displayed memory",
    "EOC, end of caption (shows it)",
};

constexpr std::array<std::string_view, 8> kMidRowStyles = {"white", "green",  "blue",    "cyan",
                                                           "red",   "yellow", "magenta", "italics"};

constexpr std::array<std::string_view, 8> kBackgrounds = {"white", "green",  "blue",    "cyan",
                                                          "red",   "yellow", "magenta", "black"};

/// First byte 17, from 20 on.
constexpr std::array<std::string_view, 16> kExtras = {
    "",
    "tab offset 1",
    "tab offset 2",
    "tab offset 3",
    "standard character set",
    "double-size character set",
    "first private character set",
    "second private character set",
    "character set of China",
    "character set of Korea",
    "registered character set",
    "",
    "",
    "background transparent",
    "foreground black",
    "foreground black underlined",
};

/// By the first byte less 10, for second bytes from 40 on and from 60 on.
constexpr std::array<std::array<int, 2>, 8> kRows = {
    {{11, 0}, {1, 2}, {3, 4}, {12, 13}, {14, 15}, {5, 6}, {7, 8}, {9, 10}}};

/// First byte 11, from 30 on; the tenth is the transparent space.
constexpr std::array<std::string_view, 16> kSpecial = {"®", "°", "½", "¿", "™", "¢", "£", "♪",
                                                       "à", " ", "è", "â", "ê", "î", "ô", "û"};

/// First bytes 12 and 13, from 20 on.
constexpr std::array<std::string_view, 64> kExtended = {
    "Á", "É", "Ó", "Ú", "Ü", "ü", "‘", "¡", "*", "’", "—", "©",  "℠", "•", "“", "”", //
    "À", "Â", "Ç", "È", "Ê", "Ë", "ë", "Î", "Ï", "ï", "Ô", "Ù",  "ù", "Û", "«", "»", //
    "Ã", "ã", "Í", "Ì", "ì", "Ò", "ò", "Õ", "õ", "{", "}", "\\", "^", "_", "|", "~", //
    "Ä", "ä", "Ö", "ö", "ß", "¥", "¤", "¦", "Å", "å", "Ø", "ø",  "┌", "┐", "└", "┘"};

unsigned withParityBit(unsigned byte) {
    return byte | (std::popcount(byte) % 2 == 0 ? 0x80U : 0U);
}

/// The character of a text byte. The letter table has them as the standard does, but for two.
std::string characterOf(unsigned byte) {
    constexpr unsigned kSolidBlock = 0x7F;
    return byte == '#' ? "#"
           : byte == kSolidBlock
               ? "█"
               : std::string(letterOf(static_cast<unsigned char>(withParityBit(byte))));
}

std::string preambleName(int row, unsigned second) {
    constexpr unsigned kItalics = 7; // behind the seven colours
    std::string name = "PAC row " + std::to_string(row);
    const unsigned attribute = second >> 1U & 15U;
    if (attribute > kItalics)
        name += " indent " + std::to_string(4 * (attribute - kItalics - 1));
    else
        name.append(" ").append(kMidRowStyles.at(attribute));
    return name + (second % 2 == 1 ? " underlined" : "");
}

void nameCharacter(CodeMeaning &meaning, CodeKind kind, std::string_view character) {
    meaning.kind = kind;
    meaning.shown = character;
    meaning.name = kind == CodeKind::extended ? "extended “" : "special “";
    meaning.name += meaning.shown + "”";
}

/// A control code: `first` is 10 to 17 and `second` 20 to 7F.
void nameControl(CodeMeaning &meaning, unsigned first, unsigned second) {
    const unsigned low = second & 15U;
    const int row = second >= 0x40 ? kRows.at(first - 0x10).at((second - 0x40) / 0x20) : 0;
    if (row != 0) {
        meaning.kind = CodeKind::preamble;
        meaning.name = preambleName(row, second);
    } else if (first == 0x14 && second < 0x30) {
        meaning.kind = CodeKind::control;
        meaning.name = kControls.at(low);
    } else if (first == 0x11 && second < 0x30) {
        meaning.kind = CodeKind::midRow;
        meaning.name.append("mid-row ").append(kMidRowStyles.at(low / 2));
        meaning.name += low % 2 == 1 ? " underlined" : "";
    } else if (first == 0x10 && second < 0x30) {
        meaning.kind = CodeKind::background;
        meaning.name.append("background ").append(kBackgrounds.at(low / 2));
        meaning.name += low % 2 == 1 ? " semi-transparent" : "";
    } else if (first == 0x17 && second < 0x30 && !kExtras.at(low).empty()) {
        meaning.kind = low <= 3    ? CodeKind::tabOffset
                       : low <= 10 ? CodeKind::characterSet
                                   : CodeKind::background;
        meaning.name = kExtras.at(low);
    } else if (first == 0x11 && second < 0x40) {
        nameCharacter(meaning, CodeKind::special, kSpecial.at(low));
        if (meaning.shown == " ")
            meaning.name = "transparent space";
    } else if ((first == 0x12 || first == 0x13) && second < 0x40) {
        nameCharacter(meaning, CodeKind::extended,
                      kExtended.at((first - 0x12) * 0x20 + second - 0x20));
    }
}

} // namespace

CodeMeaning meaningOf(unsigned code) {
    const unsigned first = code >> 8U & 0x7FU;
    const unsigned second = code & 0x7FU;
    CodeMeaning meaning;
    meaning.code = first << 8U | second;
    if (meaning.code == 0) {
        meaning.kind = CodeKind::filler;
        meaning.name = "filler";
    } else if (first >= 0x10 && first < 0x20 && second >= 0x20) {
        meaning.secondChannel = (first & 8U) != 0;
        unsigned plain = first & ~8U;
        meaning.secondField = plain == 0x15 && second < 0x30;
        if (meaning.secondField)
            plain = 0x14;
        meaning.code = plain << 8U | second;
        nameControl(meaning, plain, second);
    } else if (first > 0 && first < 0x10) {
        meaning.kind = CodeKind::otherData;
        meaning.secondField = true;
        meaning.name = "XDS, data beside the captions";
    } else if ((first == 0 || first >= 0x20) && (second == 0 || second >= 0x20)) {
        meaning.kind = CodeKind::text;
        for (const unsigned byte : {first, second})
            meaning.shown += byte == 0 ? "" : characterOf(byte);
        meaning.name = "“" + meaning.shown + "”";
    }
    if (meaning.kind == CodeKind::none)
        meaning.name = "no code of CEA-608";
    return meaning;
}

int codeOfWord(std::string_view word) {
    if (word.size() != 4)
        return -1;
    int code = 0;
    for (const char digit : word) {
        if (hexDigitValue(digit) < 0)
            return -1;
        code = code * 16 + hexDigitValue(digit);
    }
    return code;
}

unsigned withParity(unsigned code) {
    return withParityBit(code >> 8U & 0x7FU) << 8U | withParityBit(code & 0x7FU);
}

std::string wordOf(unsigned code) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string word;
    for (const unsigned shift : {12U, 8U, 4U, 0U})
        word += kDigits[code >> shift & 15U];
    return word;
}

bool isSentTwice(const CodeMeaning &meaning) {
    switch (meaning.kind) {
    case CodeKind::preamble:
    case CodeKind::midRow:
    case CodeKind::background:
    case CodeKind::tabOffset:
    case CodeKind::control:
    case CodeKind::characterSet:
        return true;
    default:
        return false;
    }
}

bool isCharacters(const CodeMeaning &meaning) {
    return meaning.kind == CodeKind::text || meaning.kind == CodeKind::special ||
           meaning.kind == CodeKind::extended;
}

} // namespace norvane
