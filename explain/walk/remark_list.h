#pragma once

#include "explain/walk/entry_remarks.h"
#include "explain/walk/said_text.h"

#include <string>
#include <unordered_set>
#include <utility>

namespace norvane {

/// The remarks on one line while they are made, each of them once.
class RemarkList {
  public:
    RemarkList(const SccLine &line, const LineWalk &walk, bool wantsAdvice,
               std::vector<EntryRemark> &remarks)
        : line_(line), walk_(walk), wantsAdvice_(wantsAdvice), remarks_(remarks) {}

    const SccLine &line() const { return line_; }
    const LineWalk &walk() const { return walk_; }
    const SaidLine &said() {
        if (!said_)
            said_.emplace(line_);
        return *said_;
    }

    void add(EntryRemark::Kind kind, std::uint32_t cause, std::size_t word, std::size_t count,
             std::string text) {
        if (isNew(text))
            remarks_.push_back({kind, cause, word, count, std::move(text)});
    }
    void advise(std::string text) {
        if (isNew(text) && wantsAdvice_)
            remarks_.push_back({.text = std::move(text)});
    }
    /// Whether a text, or anything else that stands for a remark, comes up for the first time.
    bool isNew(const std::string &text) { return known_.insert(text).second; }
    bool empty() const { return known_.empty(); } // of unwanted advice as well

  private:
    const SccLine &line_;
    const LineWalk &walk_;
    bool wantsAdvice_;
    std::vector<EntryRemark> &remarks_;
    std::unordered_set<std::string> known_;
    std::optional<SaidLine> said_;
};

/// Whether the chain deletes the blank of a word's character, so that the pairs after it are cut in
/// the wrong places until another such word comes.
bool isNarrow(const SccWord &word);

/// The three causes that lie in the rows of the chain (chain_remarks.cpp).
void remarkOnCrossings(RemarkList &list);
void remarkOnDigits(RemarkList &list);

/// What a viewer sees and the transcript does not have, or has otherwise (screen_remarks.cpp). For
/// a line with an entry, after the remarks on the rows.
void remarkOnScreen(RemarkList &list);

} // namespace norvane
