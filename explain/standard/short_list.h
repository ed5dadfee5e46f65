#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// Words for the user, of which there may be many: the first four, and how many more there are.
class ShortList {
  public:
    void add(std::string word);
    void dropLast();
    void clear() { *this = ShortList(); }
    bool empty() const { return count_ == 0; }
    std::size_t count() const { return count_; }

    /// Parted by commas.
    std::string text() const;

  private:
    static constexpr std::size_t kMost = 4;
    std::vector<std::string> first_;
    std::size_t count_ = 0;
};

/// "1 word", "2 words".
std::string counted(long number, std::string_view noun);

} // namespace norvane
