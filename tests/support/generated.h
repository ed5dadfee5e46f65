#pragma once

#include <random>
#include <string>

namespace norvane {

/// Hex text of many kinds: mostly ordinary lines, and a good part of everything that can go wrong
/// with one. The same seed gives the same texts.
class GeneratedHexText {
  public:
    explicit GeneratedHexText(unsigned seed) : random_(seed) {}
    std::string next();

  private:
    unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }
    std::string word();
    std::string ordinaryLine();
    std::string keysInPieces();
    void disturb(std::string &text);

    std::mt19937 random_;
};

} // namespace norvane
