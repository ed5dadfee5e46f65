#pragma once

#include <random>
#include <string>

namespace norvane {

/// Inputs of many kinds: mostly ordinary ones, and a good part of everything that can go wrong with
/// them. The same seed gives the same texts.
class GeneratedHexText {
  public:
    explicit GeneratedHexText(unsigned seed) : random_(seed) {}
    /// The hex text of a line.
    std::string next();
    /// An SCC file of a few lines.
    std::string file();
    /// A number less than `limit`.
    unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

  private:
    static std::string hex(unsigned value, unsigned digits);
    std::string letter();
    std::string word(bool ordinary);

    std::mt19937 random_;
};

} // namespace norvane
