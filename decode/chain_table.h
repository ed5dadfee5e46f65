#pragma once

#include "decode/table_row.h"

#include <array>
#include <cstddef>
#include <string_view>

/// The replacement chain: what a decode does to a line's hex text, row after row on the whole text,
/// in this order. The keys are CEA-608 codes with their odd parity bits. Rows that repeat a key act
/// on what earlier rows left, so none is redundant and none may move.
namespace norvane {

/// Rows `first` to `last`, numbered from 1, that all insert `with`. The keys are separated by
/// blanks; the key of a group of one row is the whole text.
struct ChainGroup {
    std::size_t first;
    std::size_t last;
    std::string_view with;
    std::string_view keys;
};

// clang-format off
inline constexpr ChainGroup kChainGroups[] = {
    {1, 1, ":", ";"}, // the timecode, by the driver
    {2, 2, "{ ", "1329"},
    {3, 3, "} ", "132a"},
    {4, 4, "å ", "13b9"},
    {5, 5, " Ø", "13ba"},
    {6, 6, " ø", "133b"},
    {7, 9, "--", "136e 0100 91ce"},
    {10, 10, "****", "92ce"},
    {11, 11, "", "91ae"},
    {12, 14, "****", "916e 946e 94ce"},
    {15, 17, "", "9425 9229 94ad"},
    {18, 18, "****", "9140"},
    {19, 19, "", "94a7"},
    {20, 20, "****", "9440"},
    {21, 22, "", "94a1 94a4"},
    {23, 38, "--", "9120 91a1 91a2 9123 91a4 9125 9126 91a7 91a8 9129 912a 91ab 912c 91ad 912f 94a8"},
    {39, 40, "****", "1340 1040"}, // white
    {41, 55, "****", "91d0 9170 92d0 9270 15d0 1570 16d0 1670 97d0 9770 10d0 13d0 1370 94d0 9470"}, // indent 0
    {56, 56, "****", "9151"}, // indent 0 underlined
    {57, 57, "****", "91c1"}, // white underlined
    {58, 71, "****", "91f1 9251 92f1 1551 15f1 1651 16f1 9751 97f1 1051 1351 13f1 9451 94f1"}, // indent 0 underlined
    {72, 86, "****", "91c2 9162 92c2 9262 15c2 1562 16c2 1662 97c2 9762 10c2 13c2 1362 94c2 9462"}, // green
    {87, 101, "****", "9143 91e3 9243 92e3 1543 15e3 1643 16e3 9743 97e3 1043 1343 13e3 9443 94e3"}, // green underlined
    {102, 116, "****", "91c4 9164 92c4 9264 15c4 1564 16c4 1664 97c4 9764 10c4 13c4 1364 94c4 9464"}, // blue
    {117, 131, "****", "9145 91e5 9245 92e5 1545 15e5 1645 16e5 9745 97e5 1045 1345 13e5 9445 94e5"}, // blue underlined
    {132, 146, "****", "9146 91e6 9246 92e6 1546 15e6 1646 16e6 9746 97e6 1046 1346 13e6 9446 94e6"}, // cyan
    {147, 161, "****", "91c7 9167 92c7 9267 15c7 1567 16c7 1667 97c7 9767 10c7 13c7 1367 94c7 9467"}, // cyan underlined
    {162, 176, "****", "91c8 9168 92c8 9268 15c8 1568 16c8 1668 97c8 9768 10c8 13c8 1368 94c8 9468"}, // red
    {177, 191, "****", "9149 91e9 9249 92e9 1549 15e9 1649 16e9 9749 97e9 1049 1349 13e9 9449 94e9"}, // red underlined
    {192, 206, "****", "914a 91ea 924a 92ea 154a 15ea 164a 16ea 974a 97ea 104a 134a 13ea 944a 94ea"}, // yellow
    {207, 221, "****", "91cb 916b 92cb 926b 15cb 156b 16cb 166b 97cb 976b 10cb 13cb 136b 94cb 946b"}, // yellow underlined
    {222, 236, "****", "914c 91ec 924c 92ec 154c 15ec 164c 16ec 974c 97ec 104c 134c 13ec 944c 94ec"}, // magenta
    {237, 251, "****", "91cd 916d 92cd 926d 15cd 156d 16cd 166d 97cd 976d 10cd 13cd 136d 94cd 946d"}, // magenta underlined
    {252, 252, "", "942c"},
    {253, 267, "****", "9152 91f2 9252 92f2 1552 15f2 1652 16f2 9752 97f2 1052 1352 13f2 9452 94f2"}, // indent 4
    {268, 282, "****", "91d3 9173 92d3 9273 15d3 1573 16d3 1673 97d3 9773 10d3 13d3 1373 94d3 9473"}, // indent 4 underlined
    {283, 297, "****", "9154 91f4 9254 92f4 1554 15f4 1654 16f4 9754 97f4 1054 1354 13f4 9454 94f4"}, // indent 8
    {298, 312, "****", "91d5 9175 92d5 9275 15d5 1575 16d5 1675 97d5 9775 10d5 13d5 1375 94d5 9475"}, // indent 8 underlined
    {313, 327, "****", "91d6 9176 92d6 9276 15d6 1576 16d6 1676 97d6 9776 10d6 13d6 1376 94d6 9476"}, // indent 12
    {328, 342, "****", "9157 91f7 9257 92f7 1557 15f7 1657 16f7 9757 97f7 1057 1357 13f7 9457 94f7"}, // indent 12 underlined
    {343, 357, "****", "9158 91f8 9258 92f8 1558 15f8 1658 16f8 9758 97f8 1058 1358 13f8 9458 94f8"}, // indent 16
    {358, 372, "****", "91d9 9179 92d9 9279 15d9 1579 16d9 1679 97d9 9779 10d9 13d9 1379 94d9 9479"}, // indent 16 underlined
    {373, 387, "****", "91da 917a 92da 927a 15da 157a 16da 167a 97da 977a 10da 13da 137a 94da 947a"}, // indent 20
    {388, 402, "****", "915b 91fb 925b 92fb 155b 15fb 165b 16fb 975b 97fb 105b 135b 13fb 945b 94fb"}, // indent 20 underlined
    {403, 417, "****", "91dc 917c 92dc 927c 15dc 157c 16dc 167c 97dc 977c 10dc 13dc 137c 94dc 947c"}, // indent 24
    {418, 432, "****", "915d 91fd 925d 92fd 155d 15fd 165d 16fd 975d 97fd 105d 135d 13fd 945d 94fd"}, // indent 24 underlined
    {433, 447, "****", "915e 91fe 925e 92fe 155e 15fe 165e 16fe 975e 97fe 105e 135e 13fe 945e 94fe"}, // indent 28
    {448, 462, "****", "91df 917f 92df 927f 15df 157f 16df 167f 97df 977f 10df 13df 137f 94df 947f"}, // indent 28 underlined
    {463, 468, "****", "92d0 9440 942c 942f 94e0 13e0"},
    {469, 474, "", "94f8 9458 94d6 97a1 97a2 9723"},
    {475, 475, "****", "94f4"},
    {476, 476, "", "94f8"},
    {477, 477, "****", "94f2"},
    {478, 479, "", "94d0 9452"},
    {480, 480, "", " "}, // the blanks between the words
    {481, 481, "|", "| |"}, // bars
    {482, 483, "|", "|| ||"},
    {484, 484, "****", "9426"},
    {485, 489, "", "94d6 94ad 9420 94ae 942f"},
    {490, 494, "****", "9252 9254 91f2 91b9 91f4"},
    {495, 495, "", "80"},
    {496, 496, "| ", "9476"},
    {497, 501, "", "9454 942c 13f2 13f4 9154"},
    {502, 502, "****", "9152"},
    {503, 507, "", "9723 9753 97A1 97A2 97A3"},
    {508, 509, "♪ ", "9137 1937"},
    {510, 510, "® ", "91b0"}, // special characters
    {511, 511, "° ", "9131"},
    {512, 512, "½ ", "9132"},
    {513, 513, "¿ ", "91b3"},
    {514, 514, "™ ", "9134"},
    {515, 515, "¢ ", "91b5"},
    {516, 516, "£ ", "91b6"},
    {517, 517, "à ", "9138"},
    {518, 518, "è ", "91ba"},
    {519, 519, "â ", "913b"},
    {520, 520, "ê ", "91bc"},
    {521, 521, "î ", "913d"},
    {522, 522, "ô ", "913e"},
    {523, 523, "û ", "91bf"},
    {524, 524, "Á ", "9220"}, // extended characters, first byte 92
    {525, 525, "É ", "92a1"},
    {526, 526, "Ó ", "92a2"},
    {527, 527, "Ú ", "9223"},
    {528, 528, "Ü ", "92a4"},
    {529, 529, "ü ", "9225"},
    {530, 530, "‘ ", "9226"},
    {531, 531, "¡ ", "92a7"},
    {532, 532, "* ", "92a8"},
    {533, 533, "’ ", "9229"},
    {534, 534, "— ", "922a"},
    {535, 535, "© ", "92ab"},
    {536, 536, "℠ ", "922c"},
    {537, 537, "• ", "92ad"},
    {538, 538, "“ ", "92ae"},
    {539, 539, "” ", "922f"},
    {540, 540, "À ", "92b0"},
    {541, 541, "Â ", "9231"},
    {542, 542, "Ç ", "9232"},
    {543, 543, "È ", "92b3"},
    {544, 544, "Ê ", "9234"},
    {545, 545, "Ë ", "92b5"},
    {546, 546, "ë ", "92b6"},
    {547, 547, "Î ", "9237"},
    {548, 548, "Ï ", "9238"},
    {549, 549, "ï ", "92b9"},
    {550, 550, "Ô ", "92ba"},
    {551, 551, "Ù ", "923b"},
    {552, 552, "ù ", "92bc"},
    {553, 553, "Û ", "923d"},
    {554, 554, "« ", "923e"},
    {555, 555, "» ", "92bf"},
    {556, 556, "Ã ", "1320"}, // extended characters, first byte 13
    {557, 557, "ã ", "13a1"},
    {558, 558, "Í ", "13a2"},
    {559, 559, "Ì ", "1323"},
    {560, 560, "ì ", "13a4"},
    {561, 561, "Ò ", "1325"},
    {562, 562, "ò ", "1326"},
    {563, 563, "Õ ", "13a7"},
    {564, 564, "õ ", "13a8"},
    {565, 565, "\\ ", "13ab"},
    {566, 566, "^ ", "132c"},
    {567, 567, "_ ", "13ad"},
    {568, 568, "¦ ", "13ae"},
    {569, 569, "~ ", "132f"},
    {570, 570, "Ä ", "13b0"},
    {571, 571, "ä ", "1331"},
    {572, 572, "Ö ", "1332"},
    {573, 573, "ö ", "13b3"},
    {574, 574, "ß ", "1334"},
    {575, 575, "¥ ", "13b5"},
    {576, 576, "¤ ", "13b6"},
    {577, 577, "Å ", "1338"},
    {578, 578, "|", "| |"}, // bars
    {579, 581, "| ", "|| || ||"},
    {582, 582, " ", "****"}, // the joined caption, by the driver
};
// clang-format on

inline constexpr std::size_t kChainRows = 582;

// Rows with a part of their own; the driver applies the first and the last, and the walk the rest.
inline constexpr std::size_t kFirstWalkedRow = 2;
inline constexpr std::size_t kBlanksRow = 480;
inline constexpr std::size_t kFillerRow = 495;
inline constexpr std::size_t kLastWalkedRow = 581;
inline constexpr std::size_t kMarksRow = 582;

/// The rows one by one; row r stands at index r - 1.
inline constexpr std::array<TableRow, kChainRows> replacementChain = [] {
    std::array<TableRow, kChainRows> rows{};
    std::size_t row = 0;
    for (const ChainGroup &group : kChainGroups) {
        if (group.first != row + 1)
            throw "a group does not begin where the one before it ends";
        std::string_view keys = group.keys;
        while (!keys.empty()) {
            const std::size_t blank = group.first == group.last ? keys.size() : keys.find(' ');
            rows.at(row++) = {keys.substr(0, blank), group.with};
            keys.remove_prefix(blank < keys.size() ? blank + 1 : keys.size());
        }
        if (group.last != row)
            throw "a group has another number of keys than of rows";
    }
    if (row != kChainRows)
        throw "the chain has another number of rows";
    return rows;
}();

static_assert(replacementChain[kBlanksRow - 1].key == " ");
inline constexpr unsigned kFillerByte = 0x80;
inline constexpr std::string_view kFillerKey = "80";
static_assert(replacementChain[kFillerRow - 1].key == kFillerKey);
static_assert(replacementChain[kMarksRow - 1].key == "****");

} // namespace norvane
