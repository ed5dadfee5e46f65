#include "decode/letters.h"

#include "decode/table_row.h"
#include "framework/text/text.h"

#include <array>

namespace norvane {

namespace {

// clang-format off

/// Each caption byte, parity bit included, and its character. The order stands, since each row works
/// on what the rows before it left. Kept: the "#" has the key of wrong parity, so that the correct 23
/// stays as digits; 7f, the solid block, is a bar; both 28 and a8 are "(".
constexpr auto kLetters = std::to_array<TableRow>({
    // Capitals
    {"c1", "A"},
    {"c2", "B"},
    {"43", "C"},
    {"c4", "D"},
    {"45", "E"},
    {"46", "F"},
    {"c7", "G"},
    {"c8", "H"},
    {"49", "I"},
    {"4a", "J"},
    {"cb", "K"},
    {"4c", "L"},
    {"cd", "M"},
    {"ce", "N"},
    {"4f", "O"},
    {"d0", "P"},
    {"51", "Q"},
    {"52", "R"},
    {"d3", "S"},
    {"54", "T"},
    {"d5", "U"},
    {"d6", "V"},
    {"57", "W"},
    {"58", "X"},
    {"d9", "Y"},
    {"da", "Z"},
    // Small letters
    {"61", "a"},
    {"62", "b"},
    {"e3", "c"},
    {"64", "d"},
    {"e5", "e"},
    {"e6", "f"},
    {"67", "g"},
    {"68", "h"},
    {"e9", "i"},
    {"ea", "j"},
    {"6b", "k"},
    {"ec", "l"},
    {"6d", "m"},
    {"6e", "n"},
    {"ef", "o"},
    {"70", "p"},
    {"f1", "q"},
    {"f2", "r"},
    {"73", "s"},
    {"f4", "t"},
    {"75", "u"},
    {"76", "v"},
    {"f7", "w"},
    {"f8", "x"},
    {"79", "y"},
    {"7a", "z"},
    // Line-21 letters and brackets
    {"fe", "ñ"},
    {"5b", "["},
    {"dc", "é"},
    {"5d", "]"},
    {"5e", "í"},
    {"df", "ó"},
    {"e0", "ú"},
    {"fb", "ç"},
    {"7c", "÷"},
    {"fd", "Ñ"},
    {"7f", "|"},
    // Punctuation
    {"a1", "!"},
    {"a2", "\""},
    {"a3", "#"},
    {"a4", "$"},
    {"25", "%"},
    {"26", "&"},
    {"a7", "'"},
    {"28", "("},
    {"29", ")"},
    {"2a", "á"},
    {"ab", "+"},
    {"2c", ","},
    {"ad", "-"},
    {"ae", "."},
    {"2f", "/"},
    // Digits
    {"b0", "0"},
    {"31", "1"},
    {"32", "2"},
    {"b3", "3"},
    {"34", "4"},
    {"b5", "5"},
    {"b6", "6"},
    {"37", "7"},
    {"38", "8"},
    {"b9", "9"},
    // Colon to commercial at
    {"ba", ":"},
    {"3b", ";"},
    {"bc", "<"},
    {"3d", "="},
    {"3e", ">"},
    {"bf", "?"},
    {"40", "@"},
    // The parenthesis with correct parity, and the blank
    {"a8", "("},
    {"20", " "},
});
static_assert(kLetters.size() == 97);

/// Special and extended characters without the blank behind them. Kept: 9131 has its blank.
constexpr auto kSpecialCharacters = std::to_array<TableRow>({
    {"92b0", "À"},
    {"9231", "Â"},
    {"9232", "Ç"},
    {"92b3", "È"},
    {"9234", "Ê"},
    {"92b5", "Ë"},
    {"92b6", "ë"},
    {"9237", "Î"},
    {"9238", "Ï"},
    {"92b9", "ï"},
    {"92ba", "Ô"},
    {"923b", "Ù"},
    {"92bc", "ù"},
    {"923d", "Û"},
    {"13ab", "\\"},
    {"132c", "^"},
    {"13ad", "_"},
    {"13ae", "¦"},
    {"132f", "~"},
    {"13b0", "Ä"},
    {"1331", "ä"},
    {"1332", "Ö"},
    {"13b3", "ö"},
    {"1334", "ß"},
    {"13b5", "¥"},
    {"13b6", "¤"},
    {"1338", "Å"},
    {"8020", " "},
    {"91b0", "®"},
    {"9131", "° "},
    {"9132", "½"},
    {"91b3", "¿"},
    {"9134", "™"},
    {"91b5", "¢"},
    {"91b6", "£"},
    {"9138", "à"},
    {"91ba", "è"},
    {"913b", "â"},
    {"91bc", "ê"},
    {"913d", "î"},
    {"913e", "ô"},
    {"91bf", "û"},
    {"9220", "Á"},
    {"92a1", "É"},
    {"92a2", "Ó"},
    {"9223", "Ú"},
    {"92a4", "Ü"},
    {"9225", "ü"},
    {"9226", "‘"},
    {"92a7", "¡"},
    {"92a8", "*"},
    {"9229", "’"},
    {"922a", "—"},
    {"92ab", "©"},
    {"922c", "℠"},
    {"92ad", "•"},
    {"92ae", "“"},
    {"922f", "”"},
    {"923e", "«"},
    {"92bf", "»"},
    {"1320", "Ã"},
    {"13a1", "ã"},
    {"13a2", "Í"},
    {"1323", "Ì"},
    {"13a4", "ì"},
    {"1325", "Ò"},
    {"1326", "ò"},
    {"13a7", "Õ"},
    {"13a8", "õ"},
    {"206d", "m"},
});
static_assert(kSpecialCharacters.size() == 70);

// clang-format on

/// The row of kLetters for each byte, counted from 1; 0 for a byte without one.
constexpr std::array<unsigned char, 256> kRowOfByte = [] {
    std::array<unsigned char, 256> rows{};
    for (std::size_t row = kLetters.size(); row > 0; --row) {
        const std::string_view key = kLetters.at(row - 1).key;
        const int byte = hexDigitValue(key[0]) * 16 + hexDigitValue(key[1]);
        rows.at(static_cast<std::size_t>(byte)) = static_cast<unsigned char>(row);
    }
    return rows;
}();

template <std::size_t rows>
std::string replaceByRows(std::string_view text, const std::array<TableRow, rows> &table) {
    std::string result(text);
    for (const TableRow &row : table)
        result = ReplaceAll(result, row.key, row.with);
    return result;
}

} // namespace

std::string convertSCC2Letters(std::string_view text) {
    return replaceByRows(text, kLetters);
}

std::string_view letterOf(unsigned char byte) {
    const std::size_t row = kRowOfByte.at(byte);
    return row == 0 ? std::string_view() : kLetters.at(row - 1).with;
}

std::string DoTheRest(std::string_view text) {
    return replaceByRows(text, kSpecialCharacters);
}

} // namespace norvane
