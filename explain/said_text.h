#pragma once

#include "explain/scc_line.h"

namespace norvane {

/// What a line's words say by CEA-608, and where in the hex text that stands.
struct SaidText {
    std::string text;
    std::size_t start = 0;
    std::size_t end = 0;
};

/// The word of the language, or what else stands between blanks and codes, that the characters
/// between two places of the hex text, both included, belong to; empty when there are none.
SaidText saidAround(const SccLine &line, std::size_t first, std::size_t last);

} // namespace norvane
