#pragma once

#include "decode/table_row.h"

#include <array>

namespace norvane {

// clang-format off

/// A hyphen behind a special character, to the character alone: byte by byte, so that case counts, in
/// this order, on the composed transcript. Kept: "à-" stands twice, so that two hyphens go behind "à".
inline constexpr auto kAccentPairs = std::to_array<TableRow>({
    {"å-", "å"}, // U+00E5
    {"’-", "’"}, // U+2019
    {"ò-", "ò"}, // U+00F2
    {"Ì-", "Ì"}, // U+00CC
    {"Å-", "Å"}, // U+00C5
    {"õ-", "õ"}, // U+00F5
    {"ã-", "ã"}, // U+00E3
    {"Õ-", "Õ"}, // U+00D5
    {"ì-", "ì"}, // U+00EC
    {"Ã-", "Ã"}, // U+00C3
    {"Ù-", "Ù"}, // U+00D9
    {"Â-", "Â"}, // U+00C2
    {"Ë-", "Ë"}, // U+00CB
    {"Ò-", "Ò"}, // U+00D2
    {"Ï-", "Ï"}, // U+00CF
    {"Û-", "Û"}, // U+00DB
    {"Ô-", "Ô"}, // U+00D4
    {"ù-", "ù"}, // U+00F9
    {"Î-", "Î"}, // U+00CE
    {"Í-", "Í"}, // U+00CD
    {"Ê-", "Ê"}, // U+00CA
    {"È-", "È"}, // U+00C8
    {"À-", "À"}, // U+00C0
    {"Ú-", "Ú"}, // U+00DA
    {"Ç-", "Ç"}, // U+00C7
    {"Ó-", "Ó"}, // U+00D3
    {"ß-", "ß"}, // U+00DF
    {"Á-", "Á"}, // U+00C1
    {"É-", "É"}, // U+00C9
    {"î-", "î"}, // U+00EE
    {"ô-", "ô"}, // U+00F4
    {"û-", "û"}, // U+00FB
    {"ê-", "ê"}, // U+00EA
    {"â-", "â"}, // U+00E2
    {"à-", "à"}, // U+00E0
    {"à-", "à"}, // U+00E0
    {"è-", "è"}, // U+00E8
    {"ï-", "ï"}, // U+00EF
    {"Ü-", "Ü"}, // U+00DC
    {"ü-", "ü"}, // U+00FC
    {"Ä-", "Ä"}, // U+00C4
    {"ä-", "ä"}, // U+00E4
    {"Ö-", "Ö"}, // U+00D6
    {"ö-", "ö"}, // U+00F6
    {"ë-", "ë"}, // U+00EB
});
static_assert(kAccentPairs.size() == 45);

// clang-format on

} // namespace norvane
