#pragma once

#include "decode/table_row.h"

#include <array>

namespace norvane {

// clang-format off

/// A hyphen after a special character, to the character alone: byte by byte, so that case counts, in
/// this order, on the composed transcript. Each character is one precomposed code point. Kept: "à-"
/// stands twice, so that two hyphens after "à" go.
inline constexpr auto kAccentPairs = rowsOf<45>({
    {"å- ’- ò- Ì- Å- õ- ã- Õ- ì- Ã- Ù- Â- Ë- Ò- Ï- Û- Ô- ù- Î- Í- Ê- È- À-",
     "å  ’  ò  Ì  Å  õ  ã  Õ  ì  Ã  Ù  Â  Ë  Ò  Ï  Û  Ô  ù  Î  Í  Ê  È  À"},
    {"Ú- Ç- Ó- ß- Á- É- î- ô- û- ê- â- à- à- è- ï- Ü- ü- Ä- ä- Ö- ö- ë-",
     "Ú  Ç  Ó  ß  Á  É  î  ô  û  ê  â  à  à  è  ï  Ü  ü  Ä  ä  Ö  ö  ë"},
});

// clang-format on

} // namespace norvane
