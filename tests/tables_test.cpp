#include "decode/accent_pairs.h"
#include "decode/caption.h"
#include "decode/chain_table.h"
#include "decode/letter_table.h"
#include "decode/letters.h"
#include "framework/text/text.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <set>

// The tables held against the rules of the standard (CEA-608) that they follow, and the places
// where they do not.
namespace norvane {
namespace {

unsigned withOddParity(unsigned sevenBits) {
    return std::popcount(sevenBits) % 2 == 0 ? sevenBits | 0x80U : sevenBits;
}

std::string hex(unsigned byte) {
    return {kHexDigits[byte / 16], kHexDigits[byte % 16]};
}

/// The word of two seven-bit codes.
std::string word(unsigned first, unsigned second) {
    return hex(withOddParity(first)) + hex(withOddParity(second));
}

std::string caption(const std::string &hexText) {
    std::string text;
    appendCaption(text, hexText);
    return text;
}

TEST(Tables, LettersAreLine21WithOddParity) {
    const std::map<unsigned, std::string> notAscii = {
        {0x2A, "á"}, {0x5C, "é"}, {0x5E, "í"}, {0x5F, "ó"}, {0x60, "ú"}, {0x7B, "ç"},
        {0x7C, "÷"}, {0x7D, "Ñ"}, {0x7E, "ñ"}, {0x7F, "|"}, {0x23, ""}};
    std::map<unsigned, std::string> letters = {{0x28, "("}, {0xA3, "#"}}; // of wrong parity
    for (unsigned code = 0x20; code < 0x80; ++code) {
        const auto exception = notAscii.find(code);
        letters[withOddParity(code)] = exception == notAscii.end()
                                           ? std::string(1, static_cast<char>(code))
                                           : exception->second;
    }
    for (unsigned byte = 0; byte < 256; ++byte)
        EXPECT_EQ(letterOf(static_cast<unsigned char>(byte)), letters[byte]) << hex(byte);
}

/// The first codes of channel 1's preamble address codes; 10 has only one row of the screen.
constexpr unsigned kRowCodes[] = {0x11, 0x12, 0x15, 0x16, 0x17, 0x10, 0x13, 0x14};

TEST(Tables, PreambleAddressCodesButWhiteOnesAreBlanks) {
    const std::set<std::string> white = {"9140", "9440", "94e0", "1340", "13e0", "1040",
                                         "92ce", "916e", "946e", "94ce", "91c1"};
    for (const unsigned first : kRowCodes) {
        for (unsigned second = 0x40; second < (first == 0x10 ? 0x60U : 0x80U); ++second) {
            const std::string code = word(first, second);
            const unsigned attribute = second & 0x1FU;
            const bool isWhite = attribute < 0x02 || attribute == 0x0E || attribute == 0x0F;
            const std::string digits = caption(hex(withOddParity(first)) + "80");
            if (code == "91ce" || code == "136e") {
                EXPECT_EQ(caption(code), "--");
            } else if (!isWhite || white.contains(code)) {
                EXPECT_EQ(caption(code), " ") << code;
            } else {
                EXPECT_EQ(caption(code), digits + caption(hex(withOddParity(second)) + "80"))
                    << code;
            }
        }
    }
}

TEST(Tables, SpecialAndExtendedCharactersAreThoseOfTheStandard) {
    const std::pair<unsigned, const char *> sets[] = {{0x1130, "®°½¿™¢£♪à èâêîôû"},
                                                      {0x1220, "ÁÉÓÚÜü‘¡*’—©℠•“”ÀÂÇÈÊËëÎÏïÔÙùÛ«»"},
                                                      {0x1320, "ÃãÍÌìÒòÕõ{}\\^_¦~ÄäÖöß¥¤|Åå"}};
    // What the chain makes of some: they are deleted, or lose their blank and so their pair, or
    // have no row.
    const std::set<std::string> own = {"91b9", "9229", "1329", "132a", "1337", "13b9"};
    for (const auto &[start, characters] : sets) {
        const TextArray all = Split(characters, "");
        for (unsigned i = 0; i < all.size(); ++i) {
            const std::string code = word(start >> 8U, (start & 0x7FU) + i);
            const std::string character(all[i]);
            if (!own.contains(code)) {
                EXPECT_EQ(caption(code), character + " ") << code;
            }
            const bool rests = (!own.contains(code) || code == "9229") && character != "♪";
            EXPECT_EQ(DoTheRest(code), !rests ? code : character + (code == "9131" ? " " : ""))
                << code;
        }
    }
    for (const auto &[code, doubled] :
         {std::pair("1329", "{{"), {"132a", "}}"}, {"13b9", "åå"}, {"13ba", "ØØ"}, {"133b", "øø"}})
        EXPECT_EQ(caption(std::string(code) + code), doubled);
}

// Each row in its place: no result tells all of them apart.
TEST(Tables, ChainIsThatOfItsFingerprint) {
    std::uint64_t print = 0xCBF29CE484222325U; // FNV-1a
    const auto add = [&print](std::string_view text) {
        for (const char c : text)
            print = (print ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
        print = (print ^ 0xFFU) * 0x100000001B3U;
    };
    for (const TableRow &row : replacementChain) {
        add(row.key);
        add(row.with);
    }
    EXPECT_EQ(print, 8605344383981472088U);
}

TEST(Tables, AccentPairs) {
    std::string characters;
    for (const TableRow &row : kAccentPairs) {
        EXPECT_EQ(row.key, std::string(row.with) + "-");
        characters += row.with;
    }
    EXPECT_EQ(characters, "å’òÌÅõãÕìÃÙÂËÒÏÛÔùÎÍÊÈÀÚÇÓßÁÉîôûêâààèïÜüÄäÖöë");
}

} // namespace
} // namespace norvane
