#include "command/suggestion.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace norvane {

namespace {

/// The fewest letters to insert, delete or replace to turn one word into the other (Levenshtein).
std::size_t distance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : from) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = diagonal + (letter == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

} // namespace

std::string suggestion(std::string_view word, std::span<const std::string_view> words,
                       std::string_view prefix) {
    constexpr std::size_t kNear = 2;
    std::string_view best;
    std::size_t bestDistance = kNear + 1;
    for (const std::string_view candidate : words) {
        const std::size_t candidateDistance = distance(word, candidate);
        if (candidateDistance < bestDistance) {
            best = candidate;
            bestDistance = candidateDistance;
        }
    }
    return best.empty() ? "" : std::string("; did you mean '").append(prefix).append(best) + "'?";
}

} // namespace norvane
