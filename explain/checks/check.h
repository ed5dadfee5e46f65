#pragma once

#include "explain/captions/film_decoder.h"
#include "explain/checks/check_captions.h"
#include "explain/checks/check_codes.h"
#include "explain/checks/check_timecodes.h"
#include "explain/walk/entry_remarks.h"

namespace norvane {

/// What is looked for.
struct CheckRules {
    FindingKinds wanted = FindingKinds().set();
    Findings::Told told = Findings::Told::byCause;
    Limits limits{};
};

struct CheckResult {
    std::vector<Finding> findings{};                        // in the order of their lines
    std::array<std::size_t, kFindingKinds.size()> counts{}; // by kind, before merging
    FilmSummary summary{};
};

/// Checks a film as it is read. Memory grows only with what is reported. Of its own, beside the
/// checks below it: the header, tabs and the byte order mark, by the convention of SCC files, which
/// have no public standard; a film without any caption; and where the transcript differs from
/// correct words, which concerns the transcript only.
class Check {
  public:
    /// `also` receives the captions as well, in the order of FilmDecoder.
    explicit Check(const CheckRules &rules, CaptionSink also = {});
    Check(const Check &) = delete;
    Check &operator=(const Check &) = delete;

    /// Takes the beginning of the text, at least its first two lines, and its first line that is
    /// not empty. False when the file is in another format, so that nothing else needs a check.
    bool begin(std::string_view beginning, std::string_view header, std::size_t headerNumber);

    void take(const SccLine &line);

    CheckResult finish();

  private:
    void lookAtEntry(const SccLine &line);
    void lookAtRemarks(const SccLine &line);

    Findings findings_;
    TimecodeCheck timecodes_{};
    CodeCheck codes_{};
    CaptionCheck captions_;
    FilmDecoder decoder_;
    LineWalk walk_{};
    std::vector<EntryRemark> remarks_{};
    std::size_t headerNumber_ = 1;
    std::size_t lines_ = 0;
    std::optional<bool> dropFrame_{};
    bool needsCaptions_ = true; // no finding explains yet why there are none
};

/// Checks a whole file. Any text is taken. For `also` see Check.
CheckResult check(std::string_view text, const CheckRules &rules, CaptionSink also = {});

/// Each finding on a whole file. Any text is taken.
std::vector<Finding> check(std::string_view text, const FindingKinds &wanted);

} // namespace norvane
