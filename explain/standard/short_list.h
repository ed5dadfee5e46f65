#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// A list for the user that may be long: the first four words, and how many more there are.
class ShortList {
  public:
    void add(std::string word);
    void clear() { *this = ShortList(); }
    bool empty() const { return count_ == 0; }
    std::size_t count() const { return count_; }

    /// Separated by commas.
    std::string text() const;

  private:
    static constexpr std::size_t kMost = 4;
    std::vector<std::string> first_;
    std::size_t count_ = 0;
};

/// "1 word", "2 words".
std::string counted(long number, std::string_view noun);

} // namespace norvane
