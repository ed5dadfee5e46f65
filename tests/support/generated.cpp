#include "tests/support/generated.h"

#include "decode/chain_table.h"
#include "decode/letters.h"

#include <array>
#include <cctype>

namespace norvane {

namespace {

constexpr std::string_view kDigits = "0123456789abcdef";

std::string hex(unsigned value, unsigned digits) {
    std::string text;
    for (unsigned place = digits; place-- > 0;)
        text += kDigits[(value >> (4 * place)) & 15U];
    return text;
}

} // namespace

/// A word as files have it: a pair of caption bytes or a code of the chain; now and then any word.
std::string GeneratedHexText::word() {
    const auto captionByte = [this] {
        unsigned byte = below(256);
        while (letterOf(static_cast<unsigned char>(byte)).empty())
            byte = below(256);
        return hex(byte, 2);
    };
    switch (below(12)) {
    case 0:
    case 1: {
        const std::string_view key = kReplacementChain.at(1 + below(580)).key;
        return key.size() == 4 ? std::string(key) : "9420";
    }
    case 2:
        return captionByte() + "80";
    case 3:
        return below(4) == 0 ? hex(below(0x10000), 4) : "8080";
    default:
        return captionByte() + captionByte();
    }
}

std::string GeneratedHexText::ordinaryLine() {
    std::string line = "9420 9420 9470 9470";
    for (unsigned words = below(24); words > 0; --words)
        line += " " + word();
    return line;
}

/// Keys cut in two with something deletable between, so that they come to exist on the way.
std::string GeneratedHexText::keysInPieces() {
    constexpr std::array<std::string_view, 8> kWedges = {"80",   " ", "9420", "94ae",
                                                         "942c", "|", "97a3", "8"};
    std::string text;
    for (unsigned keys = 1 + below(6); keys > 0; --keys) {
        const std::string_view key = kReplacementChain.at(1 + below(581)).key;
        const std::size_t cut = below(static_cast<unsigned>(key.size()) + 1);
        text.append(key.substr(0, cut)).append(kWedges.at(below(8)));
        if (below(3) == 0)
            text.append(kWedges.at(below(8)));
        text.append(key.substr(cut));
    }
    return text;
}

void GeneratedHexText::disturb(std::string &text) {
    constexpr std::array<std::string_view, 12> kOddities = {
        "|", "| |", "||", "é", "♪", "\xFF", "\xC3", "\0", "*", "xyz", "  ", "****"};
    for (unsigned times = 1 + below(3); times > 0; --times) {
        const std::size_t at = below(static_cast<unsigned>(text.size()) + 1);
        switch (below(4)) {
        case 0:
            text.erase(at, 1 + below(4));
            break;
        case 1:
            text.insert(at, kOddities.at(below(12)));
            break;
        case 2:
            text.insert(at, hex(below(256), 1 + below(2)));
            break;
        default:
            if (at < text.size())
                text[at] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[at])));
        }
    }
}

std::string GeneratedHexText::next() {
    std::string text;
    switch (below(8)) {
    case 0:
        text = keysInPieces();
        break;
    case 1:
        for (unsigned digits = below(40); digits > 0; --digits)
            text += "0123456789abcdefABCDEF |"[below(24)];
        break;
    default:
        text = ordinaryLine();
    }
    if (below(3) == 0)
        disturb(text);
    if (below(10) == 0) {
        for (char &c : text)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return text;
}

} // namespace norvane
