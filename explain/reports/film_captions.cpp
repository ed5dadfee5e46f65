#include "explain/reports/film_captions.h"

#include <algorithm>

namespace norvane {

FilmCaptions::FilmCaptions(std::vector<Caption> list, bool dropFrame)
    : list_(std::move(list)), dropFrame_(dropFrame) {
    link();
}

void FilmCaptions::link() {
    std::stable_sort(list_.begin(), list_.end(), [](const Caption &a, const Caption &b) {
        return a.number - 1 < b.number - 1; // 0, which is never shown, comes last
    });
    for (std::uint32_t i = 0; i < list_.size(); ++i) {
        for (const std::uint32_t line : linesOf(list_[i]))
            loaded_.push_back({line, i});
        if (list_[i].shownBy)
            shown_.push_back({list_[i].shownBy->line, i});
        if (list_[i].removedBy)
            removed_.push_back({list_[i].removedBy->line, i});
    }
    for (Links *links : {&loaded_, &shown_, &removed_})
        std::stable_sort(links->begin(), links->end(),
                         [](const Link &a, const Link &b) { return a.line < b.line; });
}

FilmCaptions::Range FilmCaptions::of(const Links &links, std::size_t line) {
    const auto first = std::partition_point(links.begin(), links.end(),
                                            [line](const Link &at) { return at.line < line; });
    const auto last = std::partition_point(first, links.end(),
                                           [line](const Link &at) { return at.line == line; });
    return {first, last};
}

std::string FilmCaptions::timecodeOf(long frame) const {
    const long day = FrameTimecode{24, 0, 0, 0, dropFrame_}.count();
    return frameTimecode(frame % day, dropFrame_);
}

} // namespace norvane
