#pragma once

#include "explain/captions/caption.h"

#include <string_view>

namespace norvane {

/// The captions of a film, by the lines that load, show and remove them.
class FilmCaptions {
  public:
    /// From the captions that a FilmDecoder passed on.
    FilmCaptions(std::vector<Caption> list, bool dropFrame);

    /// Those that were shown, in the order of their starts: caption n stands at n - 1. After them
    /// those never shown, with the number 0.
    const std::vector<Caption> &list() const { return list_; }

    /// How the film's timecodes count.
    bool isDropFrame() const { return dropFrame_; }

    /// A place of the list, by a line.
    struct Link {
        std::uint32_t line;
        std::uint32_t caption;
    };
    using Links = std::vector<Link>;
    struct Range {
        Links::const_iterator first, last;
        Links::const_iterator begin() const { return first; }
        Links::const_iterator end() const { return last; }
        bool empty() const { return first == last; }
    };

    /// The captions that a line loads, shows and removes.
    Range loadedBy(std::size_t line) const { return of(loaded_, line); }
    Range shownBy(std::size_t line) const { return of(shown_, line); }
    Range removedBy(std::size_t line) const { return of(removed_, line); }

    /// Begins anew at midnight.
    std::string timecodeOf(long frame) const;

  private:
    void link();
    static Range of(const Links &links, std::size_t line);

    std::vector<Caption> list_;
    Links loaded_, shown_, removed_;
    bool dropFrame_ = false;
};

} // namespace norvane
