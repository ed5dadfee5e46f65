#include "explain/walk/plain_words.h"

#include "decode/words.h"
#include "framework/text/find_any.h"

// The clean-up of an entry folds blanks: of eight that stand together it leaves one, which comes
// from them all. What else it does, to bars, hyphens after accents and two literal texts, is left
// to the walk, since its marks are rare.

namespace norvane {

namespace {

bool isLeftToTheWalk(std::string_view caption) {
    const std::size_t mark = findMarked(caption, 0, [](auto c, auto behind) {
        return (c == '|') | (c == '\\') | ((c == '[') & (behind == '^')) |
               ((c < 0) & (behind == '-'));
    });
    return mark != caption.size();
}

} // namespace

bool PlainWords::read(std::string_view hexText) {
    caption_.clear();
    if (!appendCaptionByWords(caption_, hexText, captionEnds_) || isLeftToTheWalk(caption_))
        return false;
    foldBlanks();
    return true;
}

void PlainWords::foldBlanks() {
    constexpr std::size_t kFolded = 8; // three halvings
    entry_.resize(caption_.size());
    entryEnds_.resize(captionEnds_.size());
    if (caption_ == " ") { // emptied
        caption_.clear();
        entry_.clear();
        captionEnds_.assign(captionEnds_.size(), 0);
        entryEnds_.assign(captionEnds_.size(), 0);
        return;
    }
    char *out = entry_.data();
    std::size_t blanks = 0;
    std::size_t at = 0;
    const auto foldUpTo = [&](std::size_t end) {
        for (; at < end; ++at) {
            const char c = caption_[at];
            blanks = c == ' ' ? blanks + 1 : 0;
            *out = c;
            out += blanks == 0 || blanks % kFolded == 1 ? 1 : 0;
        }
    };
    for (std::size_t word = 0; word < captionEnds_.size(); ++word) {
        foldUpTo(captionEnds_[word]);
        entryEnds_[word] = static_cast<std::size_t>(out - entry_.data());
    }
    foldUpTo(caption_.size()); // the blanks of nothing
    entry_.resize(static_cast<std::size_t>(out - entry_.data()));
}

std::string_view PlainWords::textOf(std::size_t first, std::size_t count) const {
    const std::size_t start = first == 0 ? 0 : entryEnds_[first - 1];
    return std::string_view(entry_).substr(start, entryEnds_[first + count - 1] - start);
}

std::string_view PlainWords::captionOf(std::size_t first, std::size_t count) const {
    const std::size_t start = first == 0 ? 0 : captionEnds_[first - 1];
    return std::string_view(caption_).substr(start, captionEnds_[first + count - 1] - start);
}

bool PlainWords::isShared(std::size_t first, std::size_t count) const {
    return !captionOf(first, count).empty();
}

bool PlainWords::isBlank(std::size_t first, std::size_t count) const {
    const std::string_view caption = captionOf(first, count);
    return !caption.empty() && caption.find_first_not_of(' ') == std::string_view::npos;
}

} // namespace norvane
