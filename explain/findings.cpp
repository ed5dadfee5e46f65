#include "explain/findings.h"

#include <algorithm>

namespace norvane {

void addOnce(std::vector<std::string> &list, std::string text) {
    if (std::find(list.begin(), list.end(), text) == list.end())
        list.push_back(std::move(text));
}

std::string shortList(const std::vector<std::string> &words) {
    constexpr std::size_t kMost = 4;
    std::string list;
    for (std::size_t i = 0; i < words.size() && i < kMost; ++i)
        list.append(i == 0 ? "" : ", ").append(words[i]);
    return words.size() > kMost ? list + " and " + std::to_string(words.size() - kMost) + " more"
                                : list;
}

std::string counted(long number, std::string_view noun) {
    return std::to_string(number).append(" ").append(noun).append(number == 1 ? "" : "s");
}

} // namespace norvane
