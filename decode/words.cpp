#include "decode/words.h"

#include "decode/chain_table.h"
#include "decode/crossing_keys.h"
#include "decode/letters.h"
#include "decode/rows_of_code.h"
#include "framework/text.h"

#include <cstring>

namespace norvane {

namespace {

using State = CrossingKeys::State;

/// A few bytes of a caption.
struct Piece {
    std::array<char, 4> text{};
    unsigned char size = 0;
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

const std::array<Piece, 256> kLetterPieces = [] {
    std::array<Piece, 256> pieces{};
    for (std::size_t byte = 0; byte < pieces.size(); ++byte)
        pieces.at(byte) = pieceOf(letterOf(static_cast<unsigned char>(byte)));
    return pieces;
}();

/// Each character's value as a hex digit, or -1.
constexpr std::array<int, 256> kDigitValue = [] {
    std::array<int, 256> values{};
    for (std::size_t c = 0; c < values.size(); ++c)
        values.at(c) = hexDigitValue(static_cast<char>(c));
    return values;
}();

/// The value of four hex digits; negative when one is none.
int wordAt(const char *digits) {
    const auto value = [&](int i) { return kDigitValue[static_cast<unsigned char>(digits[i])]; };
    return value(0) * 0x1000 | value(1) * 0x100 | value(2) * 0x10 | value(3);
}

char *put(char *out, const Piece &piece) {
    std::memcpy(out, piece.text.data(), piece.text.size());
    return out + piece.size;
}

/// The letter of a byte, or the two digits that it was written with.
char *putLetter(char *out, unsigned byte, const char *digits) {
    const Piece &letter = kLetterPieces[byte];
    if (letter.size != 0)
        return put(out, letter);
    std::memcpy(out, digits, 2);
    return out + 2;
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
        if (*next == ' ') {
            ++next;
            continue;
        }
        const char *const digits = next;
        if (end - digits < 4 || (end - digits > 4 && digits[4] != ' '))
            return nullptr;
        next += 4;
        const int code = wordAt(digits);
        if (code < 0)
            return nullptr;
        const unsigned high = static_cast<unsigned>(code) >> 8U;
        const unsigned low = static_cast<unsigned>(code) & 0xFFU;

        if (const std::size_t row = kRowsOfCode.first[static_cast<unsigned>(code)]; row != 0) {
            const WordEffect &effect = kEffects[row];
            if (!effect.alone ||
                (effect.late && matches(keys.digit[keys.byte[state][high]][low >> 4U])))
                return nullptr;
            // A word that will be gone joins its neighbours. One that is replaced parts them, but
            // until then its own digits stand beside the next ones.
            state = effect.piece.size == 0 ? state : effect.behind;
            out = put(out, effect.piece);
        } else if (low != kFiller) {
            if (matches(keys.byte[keys.byte[state][high]][low]))
                return nullptr;
            // No beginning of a key is as long as a word, so what stood before it does not count.
            state = keys.byte[keys.byte[CrossingKeys::kNothing][high]][low];
            out = putLetter(out, high, digits);
            out = putLetter(out, low, digits + 2);
        } else {
            if (high != kFiller) {
                state = keys.byte[state][high];
                out = putLetter(out, high, digits);
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
    if (end == out) // all deleted
        end = put(out, pieceOf("  "));
    captions.resize(end == nullptr ? start : static_cast<std::size_t>(end - captions.data()));
    return end != nullptr;
}

} // namespace norvane
