#include "explain/checks/check_captions.h"

#include "framework/text/text.h"

#include <algorithm>
#include <cmath>

namespace norvane {

/// Tells findings on one caption.
class CaptionTeller {
  public:
    CaptionTeller(const Caption &caption, bool dropFrame, Findings &findings)
        : caption_(caption), dropFrame_(dropFrame), findings_(findings) {}

    /// On the word that shows it.
    template <class TextOf>
    void onShowing(FindingKind kind, std::uint32_t cause, const TextOf &text) const {
        tell(*caption_.shownBy, kind, cause, {}, text);
    }
    /// On a word that loaded it.
    template <class TextOf>
    void onWord(const Moment &word, FindingKind kind, std::uint32_t cause,
                std::optional<Severity> severity, const TextOf &text) const {
        tell(word, kind, cause, severity, text);
    }

  private:
    template <class TextOf>
    void tell(const Moment &moment, FindingKind kind, std::uint32_t cause,
              std::optional<Severity> severity, const TextOf &text) const {
        findings_.add(moment.line, kind, cause, [&] {
            Finding finding;
            finding.text = text();
            finding.severity = severity;
            finding.timecode =
                frameTimecode(moment.frame - static_cast<long>(moment.word), dropFrame_);
            finding.frame = moment.word;
            return finding;
        });
    }

    const Caption &caption_;
    bool dropFrame_;
    Findings &findings_;
};

namespace {

constexpr long kSeenByNobody = 2; // frames: less than a tenth of a second

std::string startOf(const Caption &caption) {
    std::string text;
    for (const CaptionRow &row : caption.rows)
        text.append(text.empty() ? "" : " ").append(textOf(row));
    return startInQuotes(text);
}

bool isUpper(const CaptionRow &row) {
    return row.row >= 5 && row.row <= 11;
}

std::string frames(long count) {
    return counted(count, "frame");
}

std::string number(double value) {
    return Str(std::round(value * 10) / 10);
}

void lookAtLost(const Caption &caption, const CaptionTeller &teller) {
    const bool isErased = caption.removedBy.has_value();
    teller.onWord(sendingOf(caption).first, FindingKind::neverShown, isErased ? 0 : 1, {}, [&] {
        return startOf(caption) +
               (isErased
                    ? " is loaded but erased in line " + std::to_string(caption.removedBy->line) +
                          " before it is shown: send EOC (942f 942f) before that."
                    : " is loaded but never shown: send EOC (942f 942f) after it.");
    });
}

} // namespace

std::optional<double> readingRateOf(const Caption &caption) {
    constexpr double kFramesASecond = 30'000.0 / 1'001;
    const auto seen = framesOf(caption);
    if (!seen || *seen <= 0)
        return {};
    return static_cast<double>(charactersOf(caption)) * kFramesASecond / static_cast<double>(*seen);
}

void CaptionCheck::look(const Caption &caption, bool dropFrame, Findings &findings) {
    summary_.dropFrame = dropFrame;
    lookAtRows(caption, findings);
    if (!caption.shownBy) {
        lookAtLost(caption, CaptionTeller(caption, dropFrame, findings));
        return;
    }
    sum(caption);
    lookAtTimes(caption, findings);
    if (caption.mode != CaptionMode::rollUp)
        lookAtGap(caption, findings);
}

void CaptionCheck::sum(const Caption &caption) {
    ++summary_.captions;
    const long start = caption.shownBy->frame;
    const long end = caption.removedBy ? caption.removedBy->frame : start;
    summary_.firstFrame = std::min(summary_.firstFrame.value_or(start), start);
    summary_.lastFrame = std::max(summary_.lastFrame.value_or(end), end);
    if (const auto rate = readingRateOf(caption))
        summary_.fastest = std::max(summary_.fastest.value_or(0), *rate);
    for (const CaptionRow &row : caption.rows)
        summary_.longestRow = std::max(summary_.longestRow, row.cells.size());
    summary_.mostRows = std::max(summary_.mostRows, caption.rowsOnScreen);
    summary_.services.set(static_cast<std::size_t>(caption.service));
    summary_.modes.set(static_cast<std::size_t>(caption.mode));
}

void CaptionCheck::lookAtTimes(const Caption &caption, Findings &findings) {
    const CaptionTeller teller(caption, summary_.dropFrame, findings);
    const auto seen = framesOf(caption);
    if (!seen) {
        if (stays_.test(static_cast<std::size_t>(caption.service)))
            return; // rows of one screen are one finding
        stays_.set(static_cast<std::size_t>(caption.service));
        teller.onShowing(FindingKind::neverErased, 0, [&] {
            return startOf(caption) +
                   " is never erased: add a line with EDM (942c 942c) at the end.";
        });
        return;
    }
    const auto isSeenFor = [&] { return startOf(caption) + " is on screen for " + frames(*seen); };
    if (*seen < 0)
        return; // the lines are out of order
    if (caption.mode == CaptionMode::popOn && *seen <= kSeenByNobody) {
        teller.onShowing(FindingKind::neverShown, 2, [&] {
            return isSeenFor() + ", too briefly to be seen: delay its removal in line " +
                   std::to_string(caption.removedBy->line) + ".";
        });
    }
    const auto length = static_cast<double>(*seen);
    if (limits_.shortest && length < *limits_.shortest) {
        teller.onShowing(FindingKind::shortest, 0, [&] {
            return isSeenFor() + "; the minimum is " + number(*limits_.shortest) +
                   ": show it longer.";
        });
    }
    if (limits_.longest && length > *limits_.longest) {
        teller.onShowing(FindingKind::longest, 0, [&] {
            return isSeenFor() + "; the limit is " + number(*limits_.longest) +
                   ": remove it earlier.";
        });
    }
    const auto rate = readingRateOf(caption);
    if (limits_.readingRate && rate && *rate > *limits_.readingRate) {
        teller.onShowing(FindingKind::readingRate, 0, [&] {
            return startOf(caption) + " has " + counted(charactersOf(caption), "character") +
                   " in " + frames(*seen) + ", " + number(*rate) + " per second; the limit is " +
                   number(*limits_.readingRate) + ": show it longer.";
        });
    }
}

void CaptionCheck::lookAtGap(const Caption &caption, Findings &findings) {
    auto &end = ends_[static_cast<std::size_t>(caption.service)];
    const long gap = end ? caption.shownBy->frame - *end : 0;
    if (limits_.gap && end && gap >= 0 && static_cast<double>(gap) < *limits_.gap) {
        CaptionTeller(caption, summary_.dropFrame, findings).onShowing(FindingKind::gap, 0, [&] {
            return startOf(caption) + " follows the previous caption after " + frames(gap) +
                   "; the minimum is " + number(*limits_.gap) + ": remove that one earlier.";
        });
    }
    if (caption.removedBy)
        end = caption.removedBy->frame;
}

void CaptionCheck::lookAtRows(const Caption &caption, Findings &findings) {
    constexpr int kMostRows = 4;
    const CaptionTeller teller(caption, summary_.dropFrame, findings);
    const auto onScreen = [&] {
        return "With " + startOf(caption) + ", the screen has " +
               counted(caption.rowsOnScreen, "row") + " of text";
    };
    if (caption.rowsOnScreen > kMostRows) {
        teller.onWord(sendingOf(caption).first, FindingKind::rows, 0, {}, [&] {
            return onScreen() + "; decoders show four, and many erase the rest: split the caption.";
        });
    } else if (limits_.rows && caption.rowsOnScreen > *limits_.rows) {
        teller.onWord(sendingOf(caption).first, FindingKind::rows, 2, Severity::warning, [&] {
            return onScreen() + "; the limit is " + number(*limits_.rows) + ": split the caption.";
        });
    }
    int upperRows = 0;
    for (const CaptionRow &row : caption.rows) {
        lookAtLength(row, teller);
        upperRows += isUpper(row) ? 1 : 0;
    }
    if (limits_.upperRows && upperRows > *limits_.upperRows) {
        const CaptionRow &row = *std::find_if(caption.rows.begin(), caption.rows.end(), isUpper);
        teller.onWord(row.cells.front().sent, FindingKind::upperRows, 0, {}, [&] {
            return startOf(caption) + ", in row " + std::to_string(row.row) + ", uses " +
                   std::to_string(upperRows) + " of rows 5 to 11; the limit is " +
                   number(*limits_.upperRows) + ": move it up or down.";
        });
    }
}

void CaptionCheck::lookAtLength(const CaptionRow &row, const CaptionTeller &teller) const {
    if (row.beyond > 0) {
        teller.onWord(row.cells.back().sent, FindingKind::columns, 0, {}, [&] {
            return "A row ends in column " + std::to_string(kScreenColumns + row.beyond) +
                   "; the screen has 32: break the row.";
        });
    }
    const auto length = static_cast<long>(row.cells.size());
    if (limits_.rowLength && static_cast<double>(length) > *limits_.rowLength) {
        teller.onWord(row.cells.front().sent, FindingKind::rowLength, 0, {}, [&] {
            return startInQuotes(textOf(row)) + " has " + counted(length, "character") +
                   "; the limit is " + number(*limits_.rowLength) + ": break the row.";
        });
    }
}

} // namespace norvane
