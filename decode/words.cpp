#include "decode/words.h"

#include "decode/chain_table.h"
#include "decode/crossing_keys.h"
#include "decode/letters.h"
#include "decode/rows_of_code.h"
#include "framework/text/text.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace norvane {

namespace {

using State = CrossingKeys::State;

/// A few bytes of a caption.
struct Piece {
    std::array<char, 4> text{};
    std::uint32_t size = 0;
};

/// Pieces are written whole and then counted, so the last may reach this far beyond.
constexpr std::size_t kRoomBeyond = sizeof(Piece::text);

Piece pieceOf(std::string_view text) {
    Piece piece;
    for (const char c : text)
        piece.text.at(piece.size++) = c;
    return piece;
}

bool matches(State state) {
    return state == CrossingKeys::kMatch;
}

/// What becomes of a word that is the key of a row.
struct WordEffect {
    Piece piece{};
    bool alone = false; // the piece is all that becomes of it, whatever its neighbours are
    bool late = false;  // the row comes behind the deletion of the blanks
    State behind = CrossingKeys::kNothing; // what a late row's digits end in while they stand
};

WordEffect effectOf(std::size_t row) {
    const auto &[key, with] = kReplacementChain.at(row - 1);
    const TableRow &marks = kReplacementChain.at(kMarksRow - 1);
    WordEffect effect;
    effect.late = row > kBlanksRow;
    if (!effect.late) {
        // A replacement whose blank is deleted puts the pairs behind it out of step.
        effect.alone = with.find(' ') == std::string_view::npos;
    } else {
        // Without its first digit, since the whole of it is a match.
        const std::size_t code = codeOf(key);
        const State second = kCrossingKeys.digit.at(CrossingKeys::kNothing).at(code >> 8U & 15U);
        effect.behind = kCrossingKeys.byte.at(second).at(code & 0xFFU);
        effect.alone =
            !matches(effect.behind) && (!with.empty() || effect.behind == CrossingKeys::kNothing);
    }
    if (effect.alone)
        effect.piece = pieceOf(with == marks.key ? marks.with : with);
    return effect;
}

/// By row, from 1.
const std::array<WordEffect, kLastWalkedRow + 1> kEffects = [] {
    std::array<WordEffect, kLastWalkedRow + 1> effects{};
    for (std::size_t row = kFirstWalkedRow; row <= kLastWalkedRow; ++row) {
        if (isCodeWord(kReplacementChain.at(row - 1).key))
            effects.at(row) = effectOf(row);
    }
    return effects;
}();

/// What two characters are when they are the hex digits of a byte.
struct ByteText {
    std::array<char, 4> letter{}; // or the two as they are, of a byte without one
    unsigned char size = 0;
    unsigned char byte = 0;
    State behind = CrossingKeys::kNothing; // what the digits end in by themselves
    bool isByte = false;
};

/// By the two characters, in their place in memory read as a number. All but a few stay the zeros
/// that the system gives when it is first asked for a page, so that a start does not pay for the
/// whole table.
constinit std::array<ByteText, 0x10000> byteTexts{};

const bool kByteTextsFilled = [] {
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
    for (const char first : kDigits) {
        for (const char second : kDigits) {
            const std::array<char, 2> digits = {first, second};
            const auto byte =
                static_cast<unsigned char>(hexDigitValue(first) * 16 + hexDigitValue(second));
            const std::string_view letter = letterOf(byte);
            const Piece piece =
                pieceOf(letter.empty() ? std::string_view(digits.data(), 2) : letter);
            byteTexts.at(std::bit_cast<std::uint16_t>(digits)) = {
                piece.text, static_cast<unsigned char>(piece.size), byte,
                kCrossingKeys.byte.at(CrossingKeys::kNothing).at(byte), true};
        }
    }
    return true;
}();

const ByteText &byteTextAt(const char *digits) {
    std::uint16_t place = 0;
    std::memcpy(&place, digits, sizeof place);
    return byteTexts[place];
}

char *put(char *out, const std::array<char, 4> &text, std::size_t size) {
    std::memcpy(out, text.data(), text.size());
    return out + size;
}

/// Writes the caption of `hexText` at `out`, which has room for as many bytes; gives its end, or
/// nullptr when the words cannot be taken one by one.
char *putWords(char *out, std::string_view hexText) {
    constexpr unsigned kFiller = 0x80;
    const CrossingKeys &keys = kCrossingKeys;
    State state = CrossingKeys::kNothing; // behind the digits that stay, so far
    const char *next = hexText.data();
    const char *const end = next + hexText.size();
    while (next != end) {
        const char *const digits = next;
        if (*digits == ' ') {
            ++next;
            continue;
        }
        if (end - digits > 4 && digits[4] == ' ')
            next += 5;
        else if (end - digits == 4)
            next = end;
        else
            return nullptr;
        const ByteText &high = byteTextAt(digits);
        const ByteText &low = byteTextAt(digits + 2);
        if (!high.isByte || !low.isByte)
            return nullptr;

        if (const std::size_t row = kRowsOfCode.first[high.byte * 0x100U + low.byte]; row != 0) {
            const WordEffect &effect = kEffects[row];
            if (!effect.alone ||
                (effect.late && matches(keys.digit[keys.byte[state][high.byte]][low.byte >> 4U])))
                return nullptr;
            // A word that will be gone joins its neighbours. One that is replaced parts them, but
            // until then its own digits stand beside the next ones.
            state = effect.piece.size == 0 ? state : effect.behind;
            out = put(out, effect.piece.text, effect.piece.size);
        } else if (low.byte != kFiller) {
            if (matches(keys.byte[keys.byte[state][high.byte]][low.byte]))
                return nullptr;
            // No beginning of a key is as long as a word, so what stood before it does not count.
            state = keys.byte[high.behind][low.byte];
            out = put(out, high.letter, high.size);
            out = put(out, low.letter, low.size);
        } else {
            if (high.byte != kFiller) {
                state = keys.byte[state][high.byte];
                out = put(out, high.letter, high.size);
            }
            if (matches(keys.digit[state][kFiller >> 4U]))
                return nullptr;
        }
    }
    return out;
}

} // namespace

bool appendCaptionByWords(std::string &captions, std::string_view hexText) {
    const std::size_t start = captions.size();
    captions.resize(start + hexText.size() + kRoomBeyond);
    char *const out = captions.data() + start;
    char *end = putWords(out, hexText);
    if (end == out) { // all deleted
        *end++ = ' ';
        *end++ = ' ';
    }
    captions.resize(end == nullptr ? start : static_cast<std::size_t>(end - captions.data()));
    return end != nullptr;
}

} // namespace norvane
