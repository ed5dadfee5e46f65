#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace norvane {

/// House rules for captions beyond the standard: only what is set is checked.
struct Limits {
    std::optional<double> readingRate{}; // at most, characters a second
    std::optional<double> shortest{};    // at least, frames on the screen
    std::optional<double> longest{};     // at most
    std::optional<double> gap{};         // at least, frames from the end of one to the next
    std::optional<double> rowLength{};   // at most, characters
    std::optional<double> rows{};        // at most at once
    std::optional<double> upperRows{};   // at most, of rows 5 to 11, in a caption

    bool isAny() const { return *this != Limits(); }
    bool operator==(const Limits &) const = default;
};

struct LimitName {
    std::string_view name;
    std::optional<double> Limits::*limit;
};
inline constexpr auto kLimitNames = std::to_array<LimitName>({
    {"reading-rate", &Limits::readingRate},
    {"shortest", &Limits::shortest},
    {"longest", &Limits::longest},
    {"gap", &Limits::gap},
    {"row-length", &Limits::rowLength},
    {"rows", &Limits::rows},
    {"upper-rows", &Limits::upperRows},
});

} // namespace norvane
