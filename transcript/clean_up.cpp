#include "transcript/clean_up.h"

#include "decode/accent_pairs.h"
#include "framework/text/find_any.h"
#include "framework/text/reg_ex.h"
#include "framework/text/text.h"

#include <algorithm>
#include <cstring>

namespace norvane {

namespace {

constexpr std::string_view kBar = "|";

/// What the first text pass looks for; it takes the blank.
constexpr std::string_view kTabPass = "]\\t ";

/// An entry pass: what matches loses the first `find`.
void pass(std::string &entry, const RegEx &captionRegEx, std::string_view find) {
    if (captionRegEx.Search(entry))
        entry = Replace(entry, find, "");
    if (entry == " ")
        entry.clear();
}

/// Takes pieces out of a text, in order, in one go through it.
class Cutter {
  public:
    Cutter(std::string &text, std::size_t start) : text_(text), kept_(start), read_(start) {}
    /// `start` is not before the end of the cut before.
    void cut(std::size_t start, std::size_t size) {
        keepUpTo(start);
        read_ = start + size;
    }

    void finish() {
        keepUpTo(text_.size());
        text_.resize(kept_);
    }

  private:
    void keepUpTo(std::size_t end) {
        if (kept_ != read_)
            std::memmove(text_.data() + kept_, text_.data() + read_, end - read_);
        kept_ += end - read_;
        read_ = end;
    }

    std::string &text_;
    std::size_t kept_; // how much of the result is in its place
    std::size_t read_; // how much of the text is done
};

/// How many rows of the accent pairs remove a hyphen after the character that `text` ends in.
std::size_t hyphensTaken(std::string_view text) {
    if (text.empty() || isAscii(text.substr(text.size() - 1)))
        return 0;
    const auto isOfRow = [&](const TableRow &row) { return text.ends_with(row.with); };
    return static_cast<std::size_t>(
        std::count_if(kAccentPairs.begin(), kAccentPairs.end(), isOfRow));
}

/// The first place from `start` on where a pass may do something; the end of the text when nowhere.
std::size_t nextChange(std::string_view text, std::size_t start) {
    return findMarked(text, start, [](auto c, auto behind) {
        return ((c == ' ') & (behind == ' ')) | (c == '|') | (c == '-') | (c == '\\');
    });
}

} // namespace

void cleanEntry(std::string &caption) {
    if (caption != " " && findAny<'|', '['>(caption) == caption.size())
        return; // no pass would change it
    RegEx captionRegEx{"[^|]"};
    pass(caption, captionRegEx, kBar);
    captionRegEx.SearchPattern = "[^ *]";
    pass(caption, captionRegEx, captionRegEx.SearchPattern); // kept: its five characters, as text
    pass(caption, captionRegEx, kBar);
}

void cleanEntries(TextArray &captions) {
    std::string caption;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        caption = captions[i];
        cleanEntry(caption);
        if (caption.size() != captions[i].size())
            captions.set(i, caption);
    }
}

// The four passes of replacements in one go. They do not disturb each other: a hyphen goes because
// of the character before it, which stays; bars count as blanks before blanks are folded; and the
// first pass, which comes before all that, takes a blank of its own. None reaches across an end of
// line.
void cleanTranscript(std::string &transcriptText, std::size_t start) {
    constexpr std::size_t kEighth = 8; // what three halvings, each rounded up, leave of a run
    const std::string_view text = transcriptText; // a cut moves only what was read
    Cutter cutter(transcriptText, start);
    std::size_t done = start;
    for (std::size_t at = nextChange(text, done); at < text.size(); at = nextChange(text, done)) {
        if (text[at] == '-') {
            done = std::min(text.find_first_not_of('-', at), text.size());
            cutter.cut(at, std::min(hyphensTaken(text.substr(0, at)), done - at));
        } else if (text[at] == '\\') {
            // Kept: a backslash and the letter t, and no tab, so the blank after a real tab stays.
            done = at + 1;
            if (at > 0 && equal(text.substr(at - 1, kTabPass.size()), kTabPass)) {
                transcriptText[at + 1] = kTabPass[2]; // it looks for both cases and puts in one
                cutter.cut(at + 2, 1);
                done = at + 3;
            }
        } else {
            const std::size_t run = at > done && text[at - 1] == ' ' ? at - 1 : at;
            done = at + 1;
            while (done < text.size() && (text[done] == ' ' || text[done] == '|'))
                ++done;
            const std::size_t left = (done - run + kEighth - 1) / kEighth;
            for (std::size_t blank = run; blank < run + left; ++blank)
                transcriptText[blank] = ' ';
            cutter.cut(run + left, done - run - left);
        }
    }
    cutter.finish();
}

} // namespace norvane
