#pragma once

#include "decode/table_row.h"
#include "framework/text/text.h"

#include <array>

namespace norvane {

// clang-format off

/// Each caption byte, parity bit included, and its character. The order stands, since each row works
/// on what the rows before it left. Kept: the "#" has the key of wrong parity, so that the correct 23
/// stays as digits; 7f, the solid block, is a bar; both 28 and a8 are "(".
inline constexpr auto kLetters = rowsOf<97>({
    {"c1 c2 43 c4 45 46 c7 c8 49 4a cb 4c cd ce 4f d0 51 52 d3 54 d5 d6 57 58 d9 da", // Capitals
     "A  B  C  D  E  F  G  H  I  J  K  L  M  N  O  P  Q  R  S  T  U  V  W  X  Y  Z"},
    {"61 62 e3 64 e5 e6 67 68 e9 ea 6b ec 6d 6e ef 70 f1 f2 73 f4 75 76 f7 f8 79 7a", // Small letters
     "a  b  c  d  e  f  g  h  i  j  k  l  m  n  o  p  q  r  s  t  u  v  w  x  y  z"},
    {"fe 5b dc 5d 5e df e0 fb 7c fd 7f", // Line-21 letters and brackets
     "ñ  [  é  ]  í  ó  ú  ç  ÷  Ñ  |"},
    {"a1 a2 a3 a4 25 26 a7 28 29 2a ab 2c ad ae 2f", // Punctuation
     "!  \" #  $  %  &  '  (  )  á  +  ,  -  .  /"},
    {"b0 31 32 b3 34 b5 b6 37 38 b9", // Digits
     "0  1  2  3  4  5  6  7  8  9"},
    {"ba 3b bc 3d 3e bf 40", // Colon to commercial at
     ":  ;  <  =  >  ?  @"},
    {"a8", "("},
    {"20", " "},
});

// clang-format on

/// The row of kLetters for each byte, counted from 1; 0 for a byte without one.
inline constexpr std::array<unsigned char, 256> kRowOfByte = [] {
    std::array<unsigned char, 256> rows{};
    for (std::size_t row = kLetters.size(); row > 0; --row) {
        const std::string_view key = kLetters.at(row - 1).key;
        const int byte = hexDigitValue(key[0]) * 16 + hexDigitValue(key[1]);
        rows.at(static_cast<std::size_t>(byte)) = static_cast<unsigned char>(row);
    }
    return rows;
}();

/// The character of a caption byte; empty when no row knows it.
constexpr std::string_view letterOf(unsigned char byte) {
    const std::size_t row = kRowOfByte.at(byte);
    return row == 0 ? std::string_view() : kLetters.at(row - 1).with;
}

/// The letter of the two hex digits that a text begins with; empty when it begins with others, or
/// no row knows them.
constexpr std::string_view letterOfPair(std::string_view text) {
    if (text.size() < 2)
        return {};
    const int byte = hexDigitValue(text[0]) * 16 | hexDigitValue(text[1]);
    return byte < 0 ? std::string_view() : letterOf(static_cast<unsigned char>(byte));
}

} // namespace norvane
