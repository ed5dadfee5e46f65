#pragma once

#include "decode/table_row.h"

#include <array>

namespace norvane {

// clang-format off

/// A hyphen behind a special character, to the character alone: byte by byte, so that case counts, in
/// this order, on the composed transcript. Each character is one precomposed code point. Kept: "à-"
/// stands twice, so that two hyphens go behind "à".
inline constexpr auto kAccentPairs = std::to_array<TableRow>({
    {"å-", "å"},
    {"’-", "’"},
    {"ò-", "ò"},
    {"Ì-", "Ì"},
    {"Å-", "Å"},
    {"õ-", "õ"},
    {"ã-", "ã"},
    {"Õ-", "Õ"},
    {"ì-", "ì"},
    {"Ã-", "Ã"},
    {"Ù-", "Ù"},
    {"Â-", "Â"},
    {"Ë-", "Ë"},
    {"Ò-", "Ò"},
    {"Ï-", "Ï"},
    {"Û-", "Û"},
    {"Ô-", "Ô"},
    {"ù-", "ù"},
    {"Î-", "Î"},
    {"Í-", "Í"},
    {"Ê-", "Ê"},
    {"È-", "È"},
    {"À-", "À"},
    {"Ú-", "Ú"},
    {"Ç-", "Ç"},
    {"Ó-", "Ó"},
    {"ß-", "ß"},
    {"Á-", "Á"},
    {"É-", "É"},
    {"î-", "î"},
    {"ô-", "ô"},
    {"û-", "û"},
    {"ê-", "ê"},
    {"â-", "â"},
    {"à-", "à"},
    {"à-", "à"},
    {"è-", "è"},
    {"ï-", "ï"},
    {"Ü-", "Ü"},
    {"ü-", "ü"},
    {"Ä-", "Ä"},
    {"ä-", "ä"},
    {"Ö-", "Ö"},
    {"ö-", "ö"},
    {"ë-", "ë"},
});
static_assert(kAccentPairs.size() == 45);

// clang-format on

} // namespace norvane
