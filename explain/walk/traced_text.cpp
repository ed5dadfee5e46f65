#include "explain/walk/traced_text.h"

#include "framework/text/text.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace norvane {

TracedText::TracedText(std::string_view source)
    : text_(source), places_(source.size()), sourceSize_(source.size()), nextPlace_(source.size()) {
    std::iota(places_.begin(), places_.end(), Place{0});
}

void TracedText::replace(const std::vector<Piece> &pieces, std::size_t row) {
    if (pieces.empty())
        return;
    std::string text;
    std::vector<Place> places;
    const auto placesFrom = [this](std::size_t start) {
        return places_.begin() + static_cast<std::ptrdiff_t>(start);
    };
    std::size_t done = 0;
    const auto keepUpTo = [&](std::size_t end) {
        text.append(text_, done, end - done);
        places.insert(places.end(), placesFrom(done), placesFrom(end));
    };
    for (const auto &[start, size, with] : pieces) {
        keepUpTo(start);
        changes_.push_back(
            {row, {placesFrom(start), placesFrom(start + size)}, nextPlace_, with.size()});
        done = start + size;
        text += with;
        for (std::size_t i = 0; i < with.size(); ++i)
            places.push_back(nextPlace_++);
    }
    keepUpTo(text_.size());
    text_ = std::move(text);
    places_ = std::move(places);
}

void TracedText::replaceAll(std::string_view find, std::string_view with, std::size_t row) {
    std::vector<Piece> pieces;
    for (std::size_t at = findIgnoringCase(text_, find); at != std::string::npos;
         at = findIgnoringCase(text_, find, at + find.size()))
        pieces.push_back({at, find.size(), with});
    replace(pieces, row);
}

void TracedText::replaceAllB(std::string_view find, std::string_view with) {
    std::vector<Piece> pieces;
    for (std::size_t at = text_.find(find); at != std::string::npos;
         at = text_.find(find, at + find.size()))
        pieces.push_back({at, find.size(), with});
    replace(pieces);
}

void TracedText::replaceFirst(std::string_view find, std::string_view with) {
    const std::size_t at = findIgnoringCase(text_, find);
    if (at != std::string::npos)
        replace({{at, find.size(), with}});
}

std::vector<TracedText::Place> TracedText::sourcesOf(Place place) const {
    if (place < sourceSize_)
        return {place};
    const auto change = std::upper_bound(
        changes_.begin(), changes_.end(), place,
        [](Place wanted, const Change &made) { return wanted < made.put + made.size; });
    std::set<Place> sources;
    for (const Place taken : change->taken) {
        const std::vector<Place> further = sourcesOf(taken);
        sources.insert(further.begin(), further.end());
    }
    return {sources.begin(), sources.end()};
}

} // namespace norvane
