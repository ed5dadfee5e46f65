#pragma once

#include "explain/checks/findings.h"
#include "explain/walk/entry_remarks.h"

namespace norvane {

/// A line, what became of it, and what to do about it.
struct Explanation {
    /// A word of the line, or several that are sent as one: a code and its repetition, or fillers.
    struct Words {
        std::size_t first = 0; // of the line's words
        std::size_t times = 1;
    };

    const SccLine *line = nullptr;
    std::string start{};                     // as the transcript has it
    std::optional<std::string_view> entry{}; // none when the transcript cannot have it
    const LineWalk *walk = nullptr;          // what became of words; null for a refused line
    std::vector<Words> words{};
    std::vector<std::string> advice{}; // for the user, a paragraph each
};

/// Explains the lines of a film.
class Explainer {
  public:
    /// `findings` are those on the file, in the order of its lines, and must outlive the explainer.
    Explainer(Clock clock, const std::vector<Finding> &findings);

    /// Explains a data line, which must outlive the result; that holds until the next call.
    const Explanation &explain(const SccLine &line);

    /// What to do about the header, at line `number`.
    std::vector<std::string> adviceOnHeader(std::size_t number) const { return textsOf(number); }

  private:
    std::vector<std::string> textsOf(std::size_t line) const;
    void readEntry();
    void adviseOnParity();

    Clock clock_;
    const std::vector<Finding> &findings_;
    const Finding *parity_ = nullptr; // the first on it
    LineWalk walk_;
    Explanation explanation_;
    std::vector<EntryRemark> remarks_;
};

} // namespace norvane
