#pragma once

#include "explain/checks/finding_kinds.h"
#include "explain/standard/scc_line.h"
#include "explain/standard/short_list.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace norvane {

struct Finding {
    std::size_t line = 0; // of the file, from 1
    FindingKind kind{};
    std::optional<Severity> severity{}; // where it is not that of the kind
    std::string text{};                 // for the user: what is wrong, and what to do
    std::string timecode{};             // of the line; empty when it has none
    std::optional<std::size_t> frame{}; // in the line, of the first word that it concerns
    std::vector<std::string> words{};   // that it concerns, the first few
    std::size_t count = 1;              // how often, where findings with one cause are merged
    std::vector<std::size_t> lines{};   // the first of these lines, beginning with `line`
};

inline Severity severityOf(const Finding &finding) {
    return finding.severity.value_or(infoOf(finding.kind).severity);
}

/// Collects the findings that are wanted: each, or one for each cause with how often it was found.
/// Then the memory does not grow with what is found.
class Findings {
  public:
    enum class Told { each, byCause };

    explicit Findings(const FindingKinds &wanted, Told told = Told::each)
        : wanted_(wanted), told_(told) {}

    bool wants(FindingKind kind) const { return wanted_.test(static_cast<std::size_t>(kind)); }

    /// Adds a finding on a line. Findings of a kind with the same `cause` are merged if told by
    /// cause. `make` gives a finding that is not merged, without line and kind.
    template <class Make>
    void add(std::size_t line, FindingKind kind, std::uint32_t cause, const Make &make) {
        if (!wants(kind) || countedAlready(line, kind, cause))
            return;
        Finding finding = make();
        finding.line = line;
        finding.kind = kind;
        finding.lines = {line};
        list_.push_back(std::move(finding));
    }
    template <class Make>
    void add(std::size_t line, FindingKind kind, const Make &make) {
        add(line, kind, 0, make);
    }

    /// Removes all of a kind. Afterwards, only kinds that were never added may be added.
    void takeBack(FindingKind kind);

    /// Leaves one of a kind, with another text. Afterwards, the same holds as for takeBack.
    void tellOnce(FindingKind kind, const std::string &text);

    /// In the order of their lines; those on one line as they were added. To be called once.
    std::vector<Finding> take();

    /// How many were added of each kind.
    const std::array<std::size_t, kFindingKinds.size()> &counts() const { return counts_; }

  private:
    bool countedAlready(std::size_t line, FindingKind kind, std::uint32_t cause);

    FindingKinds wanted_;
    Told told_;
    std::vector<Finding> list_{};
    std::array<std::size_t, kFindingKinds.size()> counts_{};
    std::unordered_map<std::uint64_t, std::size_t> byCause_{}; // places in the list
};

/// A finding on words of a line: `first` is the place of the first of them in the line.
Finding findingOn(const SccLine &line, std::string text, std::size_t first,
                  std::vector<std::string> words);

/// A finding on a line as a whole.
Finding findingOn(const SccLine &line, std::string text);

} // namespace norvane
