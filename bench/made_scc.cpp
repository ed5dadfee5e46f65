#include "bench/made_scc.h"

#include "decode/letter_table.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace norvane::made {

namespace {

constexpr auto kVocabulary = std::to_array<std::string_view>({
    "the",    "you",    "to",      "and",    "a",       "it",      "I'm",     "of",
    "that",   "in",     "is",      "what",   "me",      "this",    "he",      "for",
    "my",     "on",     "don't",   "have",   "your",    "we",      "was",     "not",
    "do",     "know",   "be",      "are",    "with",    "no",      "all",     "get",
    "just",   "like",   "there",   "they",   "can",     "now",     "right",   "out",
    "him",    "here",   "about",   "got",    "she",     "want",    "think",   "how",
    "going",  "would",  "where",   "never",  "could",   "back",    "from",    "something",
    "people", "time",   "night",   "look",   "house",   "door",    "let's",   "before",
    "mother", "friend", "please",  "always", "believe", "Anna",    "John,",   "Mr.",
    "Doctor", "London", "12",      "1959",   "wait!",   "yes,",    "why?",    "- Who?",
    "(door)", "\"Come", "home.\"", "sky",    "water",   "strange", "morning", "everything",
});

constexpr std::array<std::string_view, 8> kPreambles = {"9470 9470", "94d0 94d0", "1370 1370",
                                                        "94f4 94f4", "9476 9476", "94f2 94f2",
                                                        "9452 9452", "13f4 13f4"};

/// A small generator of pseudo-random numbers.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed * 0xD6E8FEB86659FD93ULL) {}
    std::size_t below(std::size_t limit) {
        state_ += 0x9E3779B97F4A7C15ULL;
        std::uint64_t mixed = (state_ ^ (state_ >> 30U)) * 0xBF58476D1CE4E5B9ULL;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBULL;
        return static_cast<std::size_t>((mixed >> 32U) % limit);
    }

  private:
    std::uint64_t state_;
};

/// Seven bits and the bit that makes the number of ones odd, as CEA-608 has it.
unsigned withOddParity(unsigned character) {
    return std::popcount(character) % 2 == 0 ? character | 0x80U : character;
}

void appendWord(std::string &line, unsigned first, unsigned second) {
    std::array<char, 8> word{};
    std::snprintf(word.data(), word.size(), "%s%02x%02x", line.empty() ? "" : " ", first, second);
    line += word.data();
}

void appendRow(std::string &line, Random &random) {
    const std::size_t length = 18 + random.below(16);
    std::string row;
    while (row.size() < length)
        row.append(row.empty() ? "" : " ").append(kVocabulary.at(random.below(kVocabulary.size())));
    line.append(line.empty() ? "" : " ").append(kPreambles.at(random.below(kPreambles.size())));
    constexpr std::array<std::string_view, 8> kBeforeText = {
        "", "", "", " 97a1 97a1", " 9723", " 91b9", " 91b9 91b9", " 91ae 91ae"};
    line += kBeforeText.at(random.below(kBeforeText.size()));
    if (random.below(50) == 0)
        line += " 9137 9137";
    for (std::size_t i = 0; i < row.size(); i += 2) {
        const auto at = [&](std::size_t index) {
            return index < row.size() ? withOddParity(static_cast<unsigned char>(row[index]))
                                      : 0x80U;
        };
        appendWord(line, at(i), at(i + 1));
    }
}

} // namespace

std::string hexText(Kind kind, std::size_t line) {
    Random random(line + 1);
    std::string text;
    if (kind == Kind::randomWords) {
        const auto captionByte = [&random] {
            for (;;) {
                const auto byte = static_cast<unsigned char>(random.below(256));
                if (!letterOf(byte).empty())
                    return byte;
            }
        };
        for (int word = 0; word < 30; ++word) {
            const unsigned first = captionByte();
            appendWord(text, first, captionByte());
        }
        return text;
    }
    const std::size_t what = random.below(16);
    if (what >= 7)
        return what < 10 ? "942c 942c" : "942f 942f";
    text = random.below(3) == 0 ? "942c 942c 9420 9420 94ae 94ae" : "9420 9420 94ae 94ae";
    for (std::size_t rows = 1 + random.below(3); rows > 0; --rows)
        appendRow(text, random);
    return text;
}

std::string scc(Kind kind, std::size_t bytes) {
    std::string text = "Scenarist_SCC V1.0\r\n\r\n";
    text.reserve(bytes + 1024);
    for (std::size_t line = 0; text.size() < bytes; ++line) {
        const std::size_t seconds = 10 + line * 3 / 2;
        std::array<char, 32> timecode{};
        std::snprintf(timecode.data(), timecode.size(), "%02zu:%02zu:%02zu;%02zu\t",
                      seconds / 3600 % 24, seconds / 60 % 60, seconds % 60, line * 7 % 30);
        text.append(timecode.data()).append(hexText(kind, line)).append("\r\n\r\n");
    }
    return text;
}

} // namespace norvane::made
