#pragma once

#include "explain/standard/short_list.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// What can be wrong with a file, or with what the transcript makes of it.
enum class FindingKind {
    header,
    tab,
    timecode,
    timecodeForm,
    frame,
    droppedFrame,
    separator,
    order,
    overlap,
    word,
    parity,
    single,
    channel,
    field,
    textMode,
    columns,
    code,
    digits,
    altered,
};

/// The names of the kinds, by which a user switches them off.
inline constexpr auto kFindingNames = std::to_array<std::string_view>(
    {"header", "tab", "timecode", "timecode-form", "frame", "dropped-frame", "separator", "order",
     "overlap", "word", "parity", "single", "channel", "field", "text-mode", "columns", "code",
     "digits", "altered"});

using FindingKinds = std::bitset<kFindingNames.size()>;

struct Finding {
    std::size_t line; // of the file, from 1
    FindingKind kind;
    std::string text; // for the user: what is wrong, and what to do
};

/// Collects the findings that are wanted.
class Findings {
  public:
    explicit Findings(const FindingKinds &wanted) : wanted_(wanted) {}

    bool wants(FindingKind kind) const { return wanted_.test(static_cast<std::size_t>(kind)); }
    void add(std::size_t line, FindingKind kind, std::string text) {
        if (wants(kind))
            list_.push_back({line, kind, std::move(text)});
    }

    /// In the order in which they were added.
    const std::vector<Finding> &list() const { return list_; }

  private:
    FindingKinds wanted_;
    std::vector<Finding> list_;
};

} // namespace norvane
