#include "decode/letters.h"

#include "decode/letter_table.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

// clang-format off

/// Special and extended characters without the blank after them. Kept: 9131 has its blank.
constexpr auto kSpecialCharacters = rowsOf<70>({
    {"92b0 9231 9232 92b3 9234 92b5 92b6 9237 9238 92b9 92ba 923b 92bc 923d 13ab 132c",
     "À    Â    Ç    È    Ê    Ë    ë    Î    Ï    ï    Ô    Ù    ù    Û    \\   ^"},
    {"13ad 13ae 132f 13b0 1331 1332 13b3 1334 13b5 13b6 1338",
     "_    ¦    ~    Ä    ä    Ö    ö    ß    ¥    ¤    Å"},
    {"8020", " "},
    {"91b0", "®"},
    {"9131", "° "},
    {"9132 91b3 9134 91b5 91b6 9138 91ba 913b 91bc 913d 913e 91bf 9220 92a1 92a2 9223",
     "½    ¿    ™    ¢    £    à    è    â    ê    î    ô    û    Á    É    Ó    Ú"},
    {"92a4 9225 9226 92a7 92a8 9229 922a 92ab 922c 92ad 92ae 922f 923e 92bf 1320 13a1",
     "Ü    ü    ‘    ¡    *    ’    —    ©    ℠    •    “    ”    «    »    Ã    ã"},
    {"13a2 1323 13a4 1325 1326 13a7 13a8 206d",
     "Í    Ì    ì    Ò    ò    Õ    õ    m"},
});

// clang-format on

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

std::string DoTheRest(std::string_view text) {
    return replaceByRows(text, kSpecialCharacters);
}

} // namespace norvane
