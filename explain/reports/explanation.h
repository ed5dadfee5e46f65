#pragma once

#include "explain/checks/findings.h"
#include "explain/walk/line_walk.h"

namespace norvane {

/// A word of a line, or several that are sent as one: a code and its repetition, or fillers.
struct ExplainedWord {
    std::size_t frame = 0; // from the line's timecode on
    std::string_view digits{};
    std::size_t times = 1;
    Service service = Service::none;
    std::string_view name{}; // by CEA-608
    bool wrongParity = false;
    WordFate fate{};
};

/// A line, what became of it, and what to do about it.
struct Explanation {
    SccLine line{};
    bool isHeader = false;                // then the rest but the advice is empty
    std::string start{};                  // as the transcript has it
    std::optional<std::string> entry{};   // none when the transcript cannot have it
    std::optional<std::size_t> shownAt{}; // the frame from which it is seen
    std::vector<ExplainedWord> words{};
    std::vector<std::string> advice{}; // for the user, a paragraph each
};

/// Explains a data line. `findings` are those on the file; the line's own go into the advice.
Explanation explain(const SccLine &line, Clock clock, const std::vector<Finding> &findings);

/// Explains a header, at line `number`.
Explanation explainHeader(std::string_view header, std::size_t number,
                          const std::vector<Finding> &findings);

/// What became of words, for the user: “Th”, deleted, blank, ...
std::string became(const WordFate &fate);

} // namespace norvane
