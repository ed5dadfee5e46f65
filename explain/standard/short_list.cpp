#include "explain/standard/short_list.h"

namespace norvane {

void ShortList::add(std::string word) {
    if (count_++ < kMost)
        first_.push_back(std::move(word));
}

std::string ShortList::text() const {
    std::string list;
    for (const std::string &word : first_)
        list.append(list.empty() ? "" : ", ").append(word);
    return count_ > kMost ? list + " and " + std::to_string(count_ - kMost) + " more" : list;
}

std::string counted(long number, std::string_view noun) {
    return std::to_string(number).append(" ").append(noun).append(number == 1 ? "" : "s");
}

} // namespace norvane
