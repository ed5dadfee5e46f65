#include "bench/ordinary_scc.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace norvane {

namespace {

constexpr std::array<std::string_view, 16> kRows = {
    "I never said that.",          "Where were you last night?", "He left it on the table,",
    "and nobody asked him why.",   "MAN: Keep your voice down!", "It's 12 miles from here.",
    "You'd better come inside.",   "The train leaves at 5:40.",  "Who told you about Anna?",
    "We have all the time",        "in the world, don't we?",    "- Yes. - No.",
    "All right, have it your way", "Nothing ever happens here.", "Look at the sky, Peter.",
    "There's a light out there."};

/// Seven bits and the bit that makes the number of ones odd, as CEA-608 has it.
unsigned withOddParity(unsigned character) {
    return std::popcount(character) % 2 == 0 ? character | 0x80U : character;
}

void appendWord(std::string &line, unsigned first, unsigned second) {
    std::array<char, 8> word{};
    std::snprintf(word.data(), word.size(), "%s%02x%02x", line.empty() ? "" : " ", first, second);
    line += word.data();
}

void appendRow(std::string &line, std::string_view row) {
    for (std::size_t i = 0; i < row.size(); i += 2) {
        const auto at = [&](std::size_t index) {
            return index < row.size() ? withOddParity(static_cast<unsigned char>(row[index]))
                                      : 0x80U;
        };
        appendWord(line, at(i), at(i + 1));
    }
}

} // namespace

std::string ordinaryHexText(std::size_t caption) {
    // A small generator of pseudo-random numbers, so that the text repeats only after a long time.
    const std::uint64_t mixed = (caption + 1) * 0x9E3779B97F4A7C15ULL;
    std::string line = "94ae 94ae 9420 9420 9470 9470";
    appendRow(line, kRows.at((mixed >> 40U) % kRows.size()));
    if ((mixed >> 50U) % 2 == 0) {
        line += " 9476 9476 97a1 97a1";
        appendRow(line, kRows.at((mixed >> 56U) % kRows.size()));
    }
    return line + " 942c 942c 942f 942f";
}

std::string ordinaryScc(std::size_t bytes) {
    std::string text = "Scenarist_SCC V1.0\n\n";
    text.reserve(bytes + 256);
    for (std::size_t caption = 0; text.size() < bytes; ++caption) {
        const std::size_t seconds = 10 + caption * 5 / 2;
        std::array<char, 32> timecode{};
        std::snprintf(timecode.data(), timecode.size(), "%02zu:%02zu:%02zu;%02zu\t",
                      seconds / 3600 % 24, seconds / 60 % 60, seconds % 60, caption * 7 % 30);
        text.append(timecode.data()).append(ordinaryHexText(caption)).append("\n\n");
    }
    return text;
}

} // namespace norvane
