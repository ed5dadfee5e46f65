#include "transcript/clean_up.h"

#include "decode/accent_pairs.h"

#include <algorithm>
#include <cstring>

namespace norvane {

namespace {

constexpr std::string_view kBar = "|";

/// What the second pass looks for: kept as these five characters, which are no pattern there.
constexpr std::string_view kLiteralPattern = "[^ *]";

void removeFirst(std::string &entry, std::string_view find, std::string_view unlessOnly) {
    if (entry.find_first_not_of(unlessOnly) != std::string::npos)
        entry = Replace(entry, find, "");
    if (entry == " ")
        entry.clear();
}

/// Takes pieces out of a text, in order, in one go through it.
class Cutter {
  public:
    explicit Cutter(std::string &text) : text_(text) {}
    Cutter(const Cutter &) = delete;
    Cutter &operator=(const Cutter &) = delete;
    ~Cutter() {
        keepUpTo(text_.size());
        text_.resize(kept_);
    }

    /// `start` is not before the end of the cut before.
    void cut(std::size_t start, std::size_t size) {
        keepUpTo(start);
        read_ = start + size;
    }

  private:
    void keepUpTo(std::size_t end) {
        if (kept_ != read_)
            std::memmove(text_.data() + kept_, text_.data() + read_, end - read_);
        kept_ += end - read_;
        read_ = end;
    }

    std::string &text_;
    std::size_t kept_ = 0; // how much of the result is in its place
    std::size_t read_ = 0; // how much of the text is done
};

/// How many rows of the accent pairs take a hyphen from behind the character that `text` ends in.
std::size_t hyphensTaken(std::string_view text) {
    if (text.empty() || isAscii(text.substr(text.size() - 1)))
        return 0;
    const auto isOfRow = [&](const TableRow &row) { return text.ends_with(row.with); };
    return static_cast<std::size_t>(
        std::count_if(kAccentPairs.begin(), kAccentPairs.end(), isOfRow));
}

/// All rows of the accent pairs at once: each takes a hyphen behind its own character and has
/// nothing to do with what the others take.
void removeAccentHyphens(std::string &text) {
    const std::string_view before = text; // a cut moves only what has been read
    Cutter cutter(text);
    std::size_t end = 0;
    for (std::size_t hyphen = text.find('-'); hyphen != std::string::npos;
         hyphen = text.find('-', end)) {
        end = std::min(text.find_first_not_of('-', hyphen), text.size());
        // The cutter may have moved what stands before this, but not the four bytes just in front.
        const std::size_t taken = hyphensTaken(before.substr(0, hyphen));
        if (taken > 0)
            cutter.cut(hyphen, std::min(taken, end - hyphen));
    }
}

/// Where two blanks stand side by side, from `start` on; the end of the text when nowhere.
std::size_t findTwoBlanks(std::string_view text, std::size_t start) {
    // Of any two, one stands at an odd place.
    for (std::size_t odd = start | 1U; odd < text.size(); odd += 2) {
        if (text[odd] != ' ')
            continue;
        if (odd > start && text[odd - 1] == ' ')
            return odd - 1;
        if (odd + 1 < text.size() && text[odd + 1] == ' ')
            return odd;
    }
    return text.size();
}

/// Three halvings of each run of blanks, a half counting as a whole each time.
void foldBlanks(std::string &text) {
    constexpr std::size_t kEighth = 8;
    Cutter cutter(text);
    std::size_t end = 0;
    for (std::size_t run = findTwoBlanks(text, 0); run != text.size();
         run = findTwoBlanks(text, end)) {
        end = std::min(text.find_first_not_of(' ', run), text.size());
        const std::size_t left = (end - run + kEighth - 1) / kEighth;
        cutter.cut(run + left, end - run - left);
    }
}

} // namespace

void cleanEntries(TextArray &captions) {
    const bool marks = captions.holds(kBar[0]) || captions.holds(kLiteralPattern[0]);
    for (std::size_t i = 0; i < captions.size(); ++i) {
        if (!marks && captions[i] != " ")
            continue; // no pass would change it
        std::string entry(captions[i]);
        removeFirst(entry, kBar, kBar);
        removeFirst(entry, kLiteralPattern, " *");
        removeFirst(entry, kBar, " *");
        captions.set(i, entry);
    }
}

void cleanTranscript(std::string &transcriptText) {
    // Kept: a backslash and the letter t, and no tab, so the blank behind a real tab stays.
    if (transcriptText.find('\\') != std::string::npos)
        transcriptText = ReplaceAll(transcriptText, "]\\t ", "]\\t");
    removeAccentHyphens(transcriptText);
    std::replace(transcriptText.begin(), transcriptText.end(), '|', ' ');
    foldBlanks(transcriptText);
}

} // namespace norvane
