#pragma once

#include "explain/walk/line_walk.h"

namespace norvane {

/// Something to know of an entry though the line's words are in order. Advice has its text
/// alone.
struct EntryRemark {
    enum class Kind {
        altered, // the chain made something else of words
        digits,  // words that the chain does not know, so that their digits stay
        advice,  // all else that a viewer sees in another way
    };
    Kind kind = Kind::advice;
    std::uint32_t cause = 0; // the same for remarks of a kind that come about in the same way
    std::size_t word = 0;    // the first of those that it concerns, of the line
    std::size_t count = 0;   // how many
    std::string text{};      // for the user: what it is, and what to do
};

/// Adds what there is to say of a line's entry, the remarks of one kind after those of another, and
/// a remark that says the same as another only once. Advice only where it is wanted.
void remarkOn(const SccLine &line, const LineWalk &walk, bool wantsAdvice,
              std::vector<EntryRemark> &remarks);

} // namespace norvane
