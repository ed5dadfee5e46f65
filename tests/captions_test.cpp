#include "decode/caption.h"
#include "decode/crossing_keys.h"
#include "decode/letter_table.h"
#include "decode/letters.h"
#include "decode/replacement_chain.h"
#include "decode/rows_of_code.h"
#include "decode/words.h"
#include "framework/text/text.h"
#include "tests/support/generated.h"
#include "tests/support/plain_road.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

namespace norvane {
namespace {

std::string caption(std::string_view hexText) {
    std::string text;
    appendCaption(text, hexText);
    return text;
}

struct HexRow {
    std::string hexText;
    std::string result;
};

TEST(Captions, OfKnownHexTexts) {
    // Codes without a row; the fallback of the deleted quote; nothing left; rows that match across
    // characters; characters whose blank is deleted; any text.
    // clang-format off
    const HexRow rows[] = {
        {"9420 9420 94ae 94ae 9470 9470 c8e9 a180 942f 942f", "  Hi!  "},
        {"9420 9420 94ae 94ae 9470 9470 c845 4c4c 4f20 574f 524c c480 942c 942c 942f 942f", "  HELLO WORLD  "},
        {"9470 c1e5 9120 574f", " Ae--WO"}, {"9470 5454 9429 9429 c1c2", " TT94)94)AB"},
        {"9470 2380 c1c2", " 23AB"}, {"c44f cea7 9229 5480", "DON'T"}, {"13ae 92a8 91b9", "¦ *  "},
        {"7fc1 28a8 2a20", "|A((á "}, {"", "  "}, {"9470 4649 454c c480", " FLD"},
        {"9470 d945 4c4c 4f57", " éLOW"}, {"9470 4ce9 7a20", " Lú"}, {"9470 3132 f468", " 3~ 4h"},
        {"9470 b9b9 2520", " 9b 0"}, {"1329 c8e9 ef20", "{c8e9er"}, {"13b9 13b9 ad80", "åå-"},
        {"c8e9a", "Hi"}, {"9470c1c2", " AB"}, {"xyz", "xy"}};
    // clang-format on
    for (const HexRow &row : rows) {
        EXPECT_EQ(caption(row.hexText), row.result) << row.hexText;
    }
}

TEST(Captions, ASingleCharacterIsNoPair) {
    for (const char *hexText : {"13ba", "9420 c", "x", "é"}) {
        EXPECT_THROW(caption(hexText), OutOfBoundsException) << hexText;
        EXPECT_THROW(plain::caption(hexText), OutOfBoundsException) << hexText;
    }
}

// Nothing may tell the product from the plain walk, whichever of its two roads a line takes.
TEST(Captions, AreThoseOfThePlainWalkOnGeneratedText) {
    const char *more = std::getenv("NORVANE_GENERATED_LINES");
    const int lines = more == nullptr ? 20'000 : std::stoi(more);
    GeneratedHexText generated(1);
    int wordByWord = 0;
    for (int line = 0; line < lines; ++line) {
        const std::string hexText = generated.next();
        std::string ignored;
        wordByWord += appendCaptionByWords(ignored, hexText) ? 1 : 0;
        ASSERT_EQ(replaceCodeWords(hexText), plain::replaceCodeWords(hexText)) << hexText;
        std::string expected;
        try {
            expected = plain::caption(hexText);
        } catch (const OutOfBoundsException &) {
            ASSERT_THROW(caption(hexText), OutOfBoundsException) << hexText;
            continue;
        }
        ASSERT_EQ(caption(hexText), expected) << hexText;
    }
    if (more == nullptr) {
        EXPECT_EQ(wordByWord, 11473); // all that can be
    }
}

// Behind each beginning of a key, each word: what is taken word by word is what the rows give, to
// which a second blank leaves a line.
TEST(Captions, OfWordsAreThoseOfTheRowsBehindEachBeginningOfAKey) {
    const auto hex = [](unsigned word) {
        char digits[5];
        std::snprintf(digits, sizeof digits, "%04x", word & 0xFFFFU);
        return std::string(digits);
    };
    std::map<unsigned, std::string> beginnings; // by state, a word that ends in one
    for (unsigned word = 0; word < 0x10000; ++word) {
        const auto high = kCrossingKeys.byte[CrossingKeys::kNothing][word >> 8U];
        if (kRowsOfCode.first[word] == 0)
            beginnings.try_emplace(kCrossingKeys.byte[high][word & 0xFFU], hex(word));
    }
    beginnings.erase(CrossingKeys::kMatch);
    EXPECT_EQ(beginnings.size(), 33U);
    int taken = 0;
    for (const auto &[state, beginning] : beginnings) {
        for (unsigned word = 0; word < 0x10000; ++word) {
            const char *behind[] = {"", " 4580", " 3280", " 2520", " 2080"};
            const std::string hexText = beginning + " " + hex(word) + behind[(word + state) % 5];
            std::string captions;
            if (!appendCaptionByWords(captions, hexText))
                continue;
            ++taken;
            ASSERT_EQ(captions, caption(" " + hexText)) << hexText;
        }
    }
    EXPECT_EQ(taken, 1'699'679);
}

TEST(Letters, OfPiecesAndOfLongerText) {
    const HexRow rows[] = {{"c1", "A"},    {"C1", "A"},     {"28", "("},   {"a8", "("},
                           {"23", "23"},   {"a3", "#"},     {"7f", "|"},   {"2a", "á"},
                           {"**", "**"},   {"♪ ", "♪ "},    {"20", " "},   {"80", "80"},
                           {"94", "94"},   {"", ""},        {"c1c2", "+"}, // "AB" is a key
                           {"dcfe", "éñ"}, {"a7a2", "az2"}, {"|", "|"},    {"2c2", "2B"}};
    for (const HexRow &row : rows)
        EXPECT_EQ(convertSCC2Letters(row.hexText), row.result) << row.hexText;
    // A byte's letter is what the rows make of its two digits.
    int known = 0;
    for (int byte = 0; byte < 256; ++byte) {
        const std::string digits = {kHexDigits[byte / 16], kHexDigits[byte % 16]};
        const std::string_view letter = letterOf(static_cast<unsigned char>(byte));
        EXPECT_EQ(letter.empty() ? digits : letter, convertSCC2Letters(digits));
        known += letter.empty() ? 0 : 1;
    }
    EXPECT_EQ(known, 97);
}

TEST(Letters, DoTheRestTakesAnyText) {
    EXPECT_EQ(DoTheRest("8020206d 13AB 9137 13b9"), " m \\ 9137 13b9");
}

} // namespace
} // namespace norvane
