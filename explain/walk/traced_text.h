#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// A text that is changed step by step and whose bytes know where they come from. A byte's place is
/// a number that it keeps: the bytes of the source have 0, 1, 2, ..., and those that a change puts
/// in follow in the order of the changes.
class TracedText {
  public:
    using Place = std::size_t;

    /// A piece of the text that gave way to another.
    struct Change {
        std::size_t row;          // of the replacement chain, from 1; 0 for any other step
        std::vector<Place> taken; // the places of what stood there
        Place put;                // of the first byte put in
        std::size_t size;         // of what was put in, in bytes
    };

    /// What shall be put in the place of `size` bytes from `start` on.
    struct Piece {
        std::size_t start;
        std::size_t size;
        std::string_view with;
    };

    explicit TracedText(std::string_view source);

    std::string_view text() const { return text_; }
    std::size_t sourceSize() const { return sourceSize_; }

    /// The place of each byte of the text.
    const std::vector<Place> &places() const { return places_; }

    /// In the order in which they were made.
    const std::vector<Change> &changes() const { return changes_; }

    /// The same as ReplaceAll, ReplaceAllB and Replace; each occurrence is a change by `row`.
    void replaceAll(std::string_view find, std::string_view with, std::size_t row = 0);
    void replaceAllB(std::string_view find, std::string_view with);
    void replaceFirst(std::string_view find, std::string_view with);

    /// Replaces pieces, in order and without overlap.
    void replace(const std::vector<Piece> &pieces, std::size_t row = 0);

    /// The places of the source that the byte at `place` came from, each once and in order; none
    /// for what came from nothing.
    std::vector<Place> sourcesOf(Place place) const;

  private:
    std::string text_;
    std::vector<Place> places_;
    std::size_t sourceSize_;
    std::size_t nextPlace_;
    std::vector<Change> changes_;
};

} // namespace norvane
