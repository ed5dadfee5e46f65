#include "explain/walk/traced_text.h"

#include <algorithm>
#include <cstring>

// An edit copies within the text: it can, since nothing that is inserted is longer than what it
// replaces. What is inserted comes from all that it replaces; only what is deleted without a
// replacement is marked as gone, so that it does not count between the places of its neighbours.

namespace norvane {

TracedText::TracedText(std::string_view source)
    : text_(source), origins_(source.size()), gone_(source.size()) {
    if (source.size() >= kUntouched)
        throw OutOfBoundsException("the line is too long to be explained.");
    for (Place place = 0; place < source.size(); ++place)
        origins_[place] = {place, place | kUntouched};
}

std::pair<std::size_t, std::size_t> TracedText::bytesBetween(std::size_t start,
                                                             std::size_t end) const {
    const auto first = std::partition_point(origins_.begin(), origins_.end(),
                                            [=](const Origin &at) { return at.last() < start; });
    const auto behind = std::partition_point(first, origins_.end(),
                                             [=](const Origin &at) { return at.first < end; });
    return {static_cast<std::size_t>(first - origins_.begin()),
            static_cast<std::size_t>(behind - origins_.begin())};
}

bool TracedText::comesFrom(std::size_t byte, std::size_t start, std::size_t end) const {
    const Origin &origin = origins_[byte];
    std::size_t place = std::max<std::size_t>(origin.first, start);
    const std::size_t behind = std::min<std::size_t>(origin.last() + std::size_t{1}, end);
    while (place < behind && gone_[place])
        ++place;
    return place < behind;
}

void TracedText::replaceAllB(std::string_view find, std::string_view with) {
    Edit edit(*this);
    for (std::size_t at = text_.find(find); at != std::string::npos;
         at = text_.find(find, at + find.size()))
        edit.replace(at, find.size(), with);
}

void TracedText::replaceFirst(std::string_view find, std::string_view with) {
    const std::size_t at = findIgnoringCase(text_, find);
    if (at != std::string::npos)
        Edit(*this).replace(at, find.size(), with);
}

void TracedText::fill(std::string_view with) {
    text_ = with;
    origins_.assign(with.size(), Origin());
}

void TracedText::Edit::replace(std::size_t start, std::size_t size, std::string_view with) {
    if (with.size() > size)
        throw OutOfBoundsException("a replacement is longer than what it replaces.");
    keepUpTo(start);
    std::vector<Origin> &origins = text_.origins_;
    const Origin origin{origins[start].first, origins[start + size - 1].last()};
    for (std::size_t byte = start; with.empty() && byte < start + size; ++byte) {
        if (origins[byte].isUntouched())
            text_.gone_[origins[byte].first] = true;
    }
    std::copy(with.begin(), with.end(), text_.text_.begin() + static_cast<std::ptrdiff_t>(kept_));
    std::fill_n(origins.begin() + static_cast<std::ptrdiff_t>(kept_), with.size(), origin);
    kept_ += with.size();
    read_ = start + size;
}

void TracedText::Edit::keepUpTo(std::size_t end) {
    if (kept_ != read_) {
        std::memmove(text_.text_.data() + kept_, text_.text_.data() + read_, end - read_);
        std::memmove(text_.origins_.data() + kept_, text_.origins_.data() + read_,
                     (end - read_) * sizeof(Origin));
    }
    kept_ += end - read_;
    read_ = end;
}

TracedText::Edit::~Edit() {
    keepUpTo(text_.text_.size());
    text_.text_.resize(kept_);
    text_.origins_.resize(kept_);
}

} // namespace norvane
