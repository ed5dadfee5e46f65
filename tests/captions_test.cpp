#include "decode/caption.h"
#include "decode/letters.h"
#include "decode/replacement_chain.h"
#include "framework/text/text.h"
#include "tests/support/generated.h"
#include "tests/support/plain_walk.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

std::string caption(std::string_view hexText) {
    std::string text;
    appendCaption(text, hexText);
    return text;
}

struct Row {
    std::string hexText;
    std::string result;
};

TEST(Captions, OfKnownHexTexts) {
    const Row rows[] = {
        {"9420 9420 94ae 94ae 9470 9470 c8e9 a180 942f 942f", "  Hi!  "},
        {"9420 9420 94ae 94ae 9470 9470 c845 4c4c 4f20 574f 524c c480 942c 942c 942f 942f",
         "  HELLO WORLD  "},
        {"94ae 94ae 9420 9420 9470 9470 c1c2 942f 942f", "  AB  "},
        {"9137 9137 c1c2", "♪ ♪ AB"},
        {"9137 1937", "♪ ♪ "},
        {"9470 c1e5 9120 574f", " Ae--WO"},
        {"0100", "--"},
        // No row: background channel, field 2, "#" of correct parity.
        {"9470 5454 9429 9429 c1c2", " TT94)94)AB"},
        {"c180 1c20 1c20 c2c2", "A1c 1c BB"},
        {"9470 2380 c1c2", " 23AB"},
        {"9470 a380 c1c2", " #AB"},
        {"c44f cea7 9229 5480", "DON'T"}, // the fallback of the deleted quote stays
        {"c180 9220 c2c2", "AÁ BB"},
        {"13ae 92a8 91b9", "¦ *  "},
        {"7fc1 28a8 2a20", "|A((á "},
        // Nothing is left: two blanks.
        {"", "  "},
        {"94ae", "  "},
        {"9420 9420", "  "},
        {"97a3 9753", "  "},
        {"8080 8080", "  "},
        {"9425 94a7 942c", "  "},
        {"9426 9426", "  "},
        {"91b9 91b9", "  "},
        {"942f", " "},
        // Rows that match across characters, on ordinary words.
        {"9470 4649 454c c480", " FLD"},
        {"9470 d945 4c4c 4f57", " éLOW"},
        {"9470 d049 4543 4580", " PCE"},
        {"9470 43c8 4945 4680", " CHF"},
        {"9470 4ce9 7a20", " Lú"},
        {"9470 3132 f468", " 3~ 4h"},
        {"9470 3132 616d", " 3ò 1m"},
        {"9470 52ef ef6d 2031 3238", " Room 3Ì 8"},
        {"9470 b9b9 2520", " 9b 0"},
        {"9470 4980 1323", " 4½ 3"},
        // Characters whose blank is deleted put the pairs out of step until a second one comes.
        {"1329 c8e9 ef20", "{c8e9er"},
        {"13b9 c1c2 43c4", "åc1c243c"},
        {"13b9 13b9 c1c2 43c4", "ååABCD"},
        {"13b9 13b9 ad80", "åå-"},
        // Any text is taken.
        {"c8e9a", "Hi"},
        {"C1C2 94AE 94ae", "AB"},
        {"1C20", "1C "},
        {"9470c1c2", " AB"},
        {"xyz", "xy"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(caption(row.hexText), row.result) << row.hexText;
    }
}

TEST(Captions, ASingleCharacterIsNoPair) {
    for (const char *hexText : {"13ba", "9420 c", "x", "é"}) {
        EXPECT_THROW(caption(hexText), OutOfBoundsException) << hexText;
        EXPECT_THROW(plain::caption(hexText), OutOfBoundsException) << hexText;
    }
}

TEST(Captions, ChainLeavesMarksCharactersAndDigits) {
    const Row rows[] = {
        {"9420 9420 94ae 94ae 9470 9470 c845 4c4c 4f20 574f 524c c480 942c 942c 942f 942f",
         "********c8454c4c4f20574f524cc4********"},
        {"9470 5454 9429 9429 c1c2", "****545494299429c1c2"},
        {"13b9 c1c2 43c4", "åc1c243c4"},
        {"9137 c1c2", "♪ c1c2"},
        {"| |", "|"},
        {"|||", "|"},
        {"94ae", ""},
    };
    for (const Row &row : rows)
        EXPECT_EQ(replaceCodeWords(row.hexText), row.result) << row.hexText;
}

// The one test of speed's price: nothing may tell the product from the plain walk.
TEST(Captions, AreThoseOfThePlainWalkOnGeneratedText) {
    const char *more = std::getenv("NORVANE_GENERATED_LINES");
    const int lines = more == nullptr ? 20'000 : std::stoi(more);
    GeneratedHexText generated(1);
    for (int line = 0; line < lines; ++line) {
        const std::string hexText = generated.next();
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
}

// Words of all values beside neighbours that some keys reach across to.
TEST(Captions, AreThoseOfThePlainWalkOnWordsOfAllValues) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const char *neighbours[][2] = {
        {"", ""}, {"c1e9 ", " 4580"}, {"91b9 ", " 3280"}, {"c8b9 ", " 2520"}};
    for (unsigned word = 0; word < 0x10000; word += 7) { // 7 is prime to all digits' weights
        std::string hex;
        for (unsigned shift = 16; shift > 0; shift -= 4)
            hex += kDigits[(word >> (shift - 4)) & 15U];
        const auto &around = neighbours[word % 4];
        const std::string hexText = around[0] + hex + around[1];
        if (hex == "13ba" || hex == "133b" || hex == "13b9" || hex == "1329" || hex == "132a")
            continue;
        ASSERT_EQ(caption(hexText), plain::caption(hexText)) << hexText;
    }
}

TEST(Captions, ALongLineIsDecodedWhole) {
    std::string hexText;
    std::string expected;
    for (int i = 0; i < 200'000; ++i) {
        hexText += "c8e9 4649 454c c480 9420 ";
        expected += "HiFLD";
    }
    EXPECT_EQ(caption(hexText), expected);
}

TEST(Letters, OfPiecesAndOfLongerText) {
    const Row rows[] = {{"c1", "A"},    {"C1", "A"},     {"28", "("},   {"a8", "("},
                        {"23", "23"},   {"a3", "#"},     {"7f", "|"},   {"2a", "á"},
                        {"**", "**"},   {"♪ ", "♪ "},    {"20", " "},   {"80", "80"},
                        {"94", "94"},   {"", ""},        {"c1c2", "+"}, // "AB" is a key
                        {"dcfe", "éñ"}, {"a7a2", "az2"}, {"|", "|"},    {"2c2", "2B"}};
    for (const Row &row : rows)
        EXPECT_EQ(convertSCC2Letters(row.hexText), row.result) << row.hexText;
    // A byte's letter is what the rows make of its two digits.
    int known = 0;
    for (int byte = 0; byte < 256; ++byte) {
        const std::string digits = {"0123456789abcdef"[byte / 16], "0123456789abcdef"[byte % 16]};
        const std::string_view letter = letterOf(static_cast<unsigned char>(byte));
        EXPECT_EQ(letter.empty() ? digits : letter, convertSCC2Letters(digits));
        known += letter.empty() ? 0 : 1;
    }
    EXPECT_EQ(known, 97);
}

TEST(Letters, DoTheRestLeavesNoBlankButBehindTheDegree) {
    const Row rows[] = {{"9131c1", "° c1"},
                        {"92b0", "À"},
                        {"8020206d", " m"},
                        {"13AB 9229", "\\ ’"},
                        {"9137 13b9", "9137 13b9"}};
    for (const Row &row : rows)
        EXPECT_EQ(DoTheRest(row.hexText), row.result) << row.hexText;
}

} // namespace
} // namespace norvane
