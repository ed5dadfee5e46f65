#include "tests/support/generated.h"

#include "decode/chain_table.h"
#include "decode/letter_table.h"
#include "framework/text/text.h"

#include <algorithm>
#include <cctype>

namespace norvane {

namespace {

char upper(char c) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

} // namespace

std::string GeneratedHexText::hex(unsigned value, unsigned digits) {
    std::string text;
    for (unsigned place = digits; place-- > 0;)
        text += kHexDigits[(value >> (4 * place)) & 15U];
    return text;
}

std::string GeneratedHexText::letter() {
    const unsigned byte = below(256);
    return letterOf(static_cast<unsigned char>(byte)).empty() ? letter() : hex(byte, 2);
}

/// Two letters or a code of the chain; in a text that is not `ordinary`, all that can go wrong too.
std::string GeneratedHexText::word(bool ordinary) {
    using namespace std::string_view_literals;
    constexpr std::string_view kOddities[] = {"|",    "||",   "| |",  "é",    "♪",   "\xFF", "\xC3",
                                              "\0"sv, "*",    "xyz",  "  ",   "80",  "8",    "",
                                              "9420", "94ae", "97a3", "****", "942c"};
    std::string key(replacementChain.at(1 + below(580)).key);
    std::string oddity(kOddities[below(std::size(kOddities))]);
    const unsigned cut = below(static_cast<unsigned>(key.size()));
    switch (below(ordinary ? 12 : 18)) {
    case 0:
    case 1:
        return key;
    case 2:
        return letter() + "80";
    case 3:
        return below(4) == 0 ? hex(below(0x10000), 4) : "8080";
    case 12: // comes to exist on the way, when what stands between is deleted
    case 13:
        return key.substr(0, cut) + oddity + key.substr(cut);
    case 14:
        return oddity;
    case 15:
        return hex(below(0x100), 1 + below(2));
    default:
        return letter() + letter();
    }
}

std::string GeneratedHexText::next() {
    const bool ordinary = below(3) > 0;
    std::string text = below(8) == 0 ? "" : "9420 9420 9470 9470";
    for (unsigned words = below(24); words > 0; --words)
        text += (ordinary || below(3) > 0 ? " " : "") + word(ordinary);
    if (below(10) == 0)
        std::transform(text.begin(), text.end(), text.begin(), upper);
    if (!ordinary && !text.empty()) {
        char &c = text[below(static_cast<unsigned>(text.size()))];
        c = upper(c);
    }
    return text;
}

std::string GeneratedHexText::file() {
    constexpr const char *kEnds[] = {"\n", "\n\n", "\r\n", "\r"};
    constexpr const char *kTimecodes[] = {"00:00:01:00", "01:59:59;29", "9:00:59:15", "00:00,01:00",
                                          "12:34:56:78", "100:00:00:0", "00:01",      "",
                                          "x,y,00:z:0:"};
    std::string text = "Scenarist_SCC V1.0\n";
    for (unsigned lines = below(8); lines > 0; --lines) {
        const bool odd = below(12) == 0;
        text += kTimecodes[below(odd ? 9 : 6)];
        text += odd && below(3) == 0 ? " " : "\t";
        text += next() + (below(9) == 0 ? "\tmore" : "") + kEnds[below(4)];
    }
    return text;
}

} // namespace norvane
