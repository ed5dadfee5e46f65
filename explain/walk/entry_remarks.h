#pragma once

#include "explain/walk/line_walk.h"

namespace norvane {

/// Something to know about an entry although the line's words are in order. Advice has only a text.
struct EntryRemark {
    enum class Kind {
        altered, // the chain turned words into something else
        digits,  // words without a row in the chain, which stay as digits
        advice,  // whatever else a viewer sees differently
    };
    Kind kind = Kind::advice;
    std::uint32_t cause = 0; // the same for remarks of a kind that come about in the same way
    std::size_t word = 0;    // the first of those that it concerns, of the line
    std::size_t count = 0;   // how many
    std::string text{};      // for the user: what it is and what to do
};

/// Adds the remarks on a line's entry, kind by kind and each once; advice only if wanted.
void remarkOn(const SccLine &line, const LineWalk &walk, bool wantsAdvice,
              std::vector<EntryRemark> &remarks);

} // namespace norvane
