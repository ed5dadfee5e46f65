#pragma once

#include "explain/standard/scc_line.h"

#include <string>

namespace norvane {

/// A piece of what a line's words say by CEA-608, and its place in the hex text.
struct SaidText {
    std::string text{};
    std::size_t start = 0;
    std::size_t end = 0;
};

/// All of what they say.
class SaidLine {
  public:
    explicit SaidLine(const SccLine &line);

    /// The word of the language, or whatever is between blanks and codes, to which the characters
    /// between two places of the hex text, both included, belong; empty when there are none.
    SaidText around(std::size_t first, std::size_t last) const;

    /// All of it, with a blank for what has no character.
    std::string text() const;

  private:
    struct Character {
        std::string_view text; // empty for a code without any
        std::size_t start;
        std::size_t end;

        std::string_view shown() const { return text.empty() ? std::string_view(" ") : text; }
        bool isGap() const { return text.empty() || text == " "; }
    };
    std::vector<Character> characters_;
};

} // namespace norvane
