#include "explain/standard/codes.h"

#include "decode/letter_table.h"
#include "framework/text/text.h"

#include <array>
#include <bit>
#include <cstdlib>

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

constexpr unsigned withParityBit(unsigned byte) {
    return byte | (std::popcount(byte) % 2 == 0 ? 0x80U : 0U);
}

/// The character of a text byte. The letter table has them as the standard does, but for two.
std::string_view characterOf(unsigned byte) {
    constexpr unsigned kSolidBlock = 0x7F;
    return byte == '#'           ? "#"
           : byte == kSolidBlock ? "█"
                                 : letterOf(static_cast<unsigned char>(withParityBit(byte)));
}

/// A meaning while its texts are made.
struct Draft {
    CodeMeaning meaning{};
    std::string name{};
    std::string shown{};
};

std::string preambleName(std::uint16_t code) {
    std::string name = "PAC row " + std::to_string(rowOfPreamble(code));
    if (isIndent(code))
        name += " indent " + std::to_string(indentOf(code));
    else
        name.append(" ").append(kMidRowStyles.at(code >> 1U & 7U));
    return name + (code % 2 == 1 ? " underlined" : "");
}

void nameCharacter(Draft &draft, CodeKind kind, std::string_view character) {
    draft.meaning.kind = kind;
    draft.shown = character;
    draft.name = kind == CodeKind::extended ? "extended “" : "special “";
    draft.name += draft.shown + "”";
}

/// A control code: the first byte is 10 to 17 and the second 20 to 7F.
void nameControl(Draft &draft) {
    CodeMeaning &meaning = draft.meaning;
    const unsigned first = meaning.code >> 8U;
    const unsigned second = meaning.code & 0x7FU;
    const unsigned low = second & 15U;
    if (second >= 0x40) {
        if (rowOfPreamble(meaning.code) == 0)
            return;
        meaning.kind = CodeKind::preamble;
        draft.name = preambleName(meaning.code);
    } else if (first == 0x14 && second < 0x30) {
        meaning.kind = CodeKind::control;
        draft.name = kControls.at(low);
    } else if (first == 0x11 && second < 0x30) {
        meaning.kind = CodeKind::midRow;
        draft.name.append("mid-row ").append(kMidRowStyles.at(low / 2));
        draft.name += low % 2 == 1 ? " underlined" : "";
    } else if (first == 0x10 && second < 0x30) {
        meaning.kind = CodeKind::background;
        draft.name.append("background ").append(kBackgrounds.at(low / 2));
        draft.name += low % 2 == 1 ? " semi-transparent" : "";
    } else if (first == 0x17 && second < 0x30 && !kExtras.at(low).empty()) {
        meaning.kind = low <= 3    ? CodeKind::tabOffset
                       : low <= 10 ? CodeKind::characterSet
                                   : CodeKind::background;
        draft.name = kExtras.at(low);
    } else if (first == 0x11 && second < 0x40) {
        nameCharacter(draft, CodeKind::special, kSpecial.at(low));
        if (draft.shown == " ")
            draft.name = "transparent space";
    } else if ((first == 0x12 || first == 0x13) && second < 0x40) {
        nameCharacter(draft, CodeKind::extended,
                      kExtended.at((first - 0x12) * 0x20 + second - 0x20));
    }
}

Draft draftOf(unsigned first, unsigned second) {
    Draft draft;
    CodeMeaning &meaning = draft.meaning;
    meaning.code = static_cast<std::uint16_t>(first << 8U | second);
    meaning.withParity =
        static_cast<std::uint16_t>(withParityBit(first) << 8U | withParityBit(second));
    if (meaning.code == 0) {
        meaning.kind = CodeKind::filler;
        draft.name = "filler";
    } else if (first >= 0x10 && first < 0x20 && second >= 0x20) {
        meaning.secondChannel = (first & 8U) != 0;
        unsigned plain = first & ~8U;
        meaning.secondField = plain == 0x15 && second < 0x30;
        if (meaning.secondField)
            plain = 0x14;
        meaning.code = static_cast<std::uint16_t>(plain << 8U | second);
        nameControl(draft);
    } else if (first > 0 && first < 0x10) {
        meaning.kind = CodeKind::otherData;
        meaning.secondField = true;
        draft.name = "XDS, extended data services";
    } else if ((first == 0 || first >= 0x20) && (second == 0 || second >= 0x20)) {
        meaning.kind = CodeKind::text;
        for (const unsigned byte : {first, second}) {
            if (byte != 0)
                draft.shown += characterOf(byte);
        }
        draft.name = "“" + draft.shown + "”";
    }
    if (meaning.kind == CodeKind::none)
        draft.name = "not a CEA-608 code";
    return draft;
}

/// All meanings by their codes without parity bits, seven of each byte.
class Meanings {
  public:
    Meanings() {
        texts_.reserve(kRoom);
        for (unsigned first = 0; first < kBytes; ++first) {
            for (unsigned second = 0; second < kBytes; ++second) {
                const Draft draft = draftOf(first, second);
                CodeMeaning &meaning = list_.at(first * kBytes + second);
                meaning = draft.meaning;
                meaning.textSize = static_cast<std::uint16_t>(Len(draft.shown));
                meaning.nameSize = static_cast<std::uint16_t>(Len(draft.name));
                meaning.name = keep(draft.name);
                meaning.shown = draft.shown.empty() ? std::string_view() : keep(draft.shown);
            }
        }
    }
    const CodeMeaning &of(std::uint16_t code) const {
        return list_[(code >> 1U & 0x3F80U) | (code & 0x7FU)];
    }

  private:
    static constexpr unsigned kBytes = 0x80;
    static constexpr std::size_t kRoom = std::size_t{1} << 19U; // bytes; the views must stay

    std::string_view keep(std::string_view text) {
        if (text == last_)
            return last_;
        if (texts_.size() + text.size() > kRoom)
            std::abort();
        const std::size_t start = texts_.size();
        texts_ += text;
        return last_ = std::string_view(texts_).substr(start);
    }

    std::string texts_;
    std::string_view last_;
    std::array<CodeMeaning, std::size_t{kBytes} * kBytes> list_{};
};

} // namespace

int rowOfPreamble(std::uint16_t code) {
    return kRows.at((code >> 8U) - 0x10).at(((code & 0x7FU) - 0x40) / 0x20);
}

const CodeMeaning &meaningOf(std::uint16_t code) {
    static const Meanings meanings;
    return meanings.of(code);
}

std::string wordOf(std::uint16_t code) {
    std::string word;
    for (const unsigned shift : {12U, 8U, 4U, 0U})
        word += kHexDigits[code >> shift & 15U];
    return word;
}

} // namespace norvane
