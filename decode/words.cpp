#include "decode/words.h"

#include "decode/chain_table.h"
#include "decode/crossing_keys.h"
#include "decode/letter_table.h"
#include "decode/rows_of_code.h"
#include "framework/text/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

// How a line is decoded word by word, in place of 580 replacements on the whole of it, a charArray
// cut into a pairArray, and convertSCC2Letters on each pair; and why that gives the same.
//
// As long as the blanks stand between the words, a key of four digits can match nothing but a whole
// word, so up to the row that deletes the blanks each word meets the first row that has it as its
// key, whatever its neighbours are. From there on the digits of the words stand side by side, and a
// key is found wherever its digits are. The automaton of crossing_keys.h reads the digits in their
// order: while it completes no key, no row after the blanks matches but where a word as a whole is
// its key, and that word again becomes what its row says. As soon as a key is completed in any
// other place, or the line is not made of words, the line is left to replaceCodeWords.
//
// What is deleted joins its neighbours, what is replaced separates them. A row after the blanks
// does so only after others have looked at the digits, so both must be harmless: its word among its
// neighbours, and the neighbours without it. Three kinds of words are left to the rows:
// - with a character whose blank is deleted, since every pair after it is cut elsewhere;
// - with a deleted late key whose end begins another key, since the neighbours would have to be
//   read twice;
// - with a late bar, which others would fold.
//
// The same holds for the filler byte, wherever a word has it. The rest is letters: every
// replacement is of even length, which leaves the pairs of digits cut at the bytes, and holds no
// digits, so that it comes through the letters as it is.

namespace norvane {

namespace {

using State = CrossingKeys::State;

constexpr bool isBars(std::string_view text) {
    return text.find('|') != std::string_view::npos;
}
constexpr auto characters(std::string_view text) {
    return std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; });
}

template <class Property>
constexpr bool holdsForWalkedRows(Property property) {
    for (std::size_t row = kFirstWalkedRow; row <= kLastWalkedRow; ++row) {
        if (!property(row, replacementChain[row - 1].key, replacementChain[row - 1].with))
            return false;
    }
    return true;
}

static_assert(holdsForWalkedRows([](std::size_t row, std::string_view key, std::string_view) {
                  if (row == kBlanksRow || row == kFillerRow)
                      return true; // whose keys chain_table.h holds to a blank and to 80
                  return isCodeWord(key) || (row > kBlanksRow && isBars(key));
              }),
              "a key is a code word, the blank, the filler, or bars that only later rows put in");
static_assert(holdsForWalkedRows([](std::size_t row, std::string_view key, std::string_view with) {
                  return !isCodeWord(key) || !isBars(with) || kRowsOfCode.first[codeOf(key)] < row;
              }),
              "a word by itself leaves no bar");
static_assert(holdsForWalkedRows([](std::size_t, std::string_view, std::string_view with) {
                  return std::none_of(with.begin(), with.end(), isHexDigit);
              }),
              "what is put in completes no key and makes no letter");
static_assert(holdsForWalkedRows([](std::size_t, std::string_view key, std::string_view with) {
                  return !isCodeWord(key) || characters(with) % 2 == 0;
              }),
              "what is put in keeps the pairs in step while its blank stands");
static_assert(holdsForWalkedRows([](std::size_t row, std::string_view key, std::string_view) {
                  return row <= kFillerRow || !isCodeWord(key) ||
                         (key[0] != '8' && key[0] != '0' && key.find("80") == key.npos);
              }),
              "the digits of the filler stand in no other late key but at its end");

/// A few bytes of a caption.
struct Piece {
    std::array<char, 4> text{};
    std::uint32_t size = 0;
};

/// Pieces are written whole and then counted, so the last may reach this far beyond.
constexpr std::size_t kRoomBeyond = sizeof(Piece::text);
static_assert(holdsForWalkedRows([](std::size_t, std::string_view, std::string_view with) {
                  return with.size() <= kRoomBeyond;
              }),
              "a piece holds any replacement");

constexpr Piece pieceOf(std::string_view text) {
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
    bool late = false;  // the row follows the deletion of the blanks
    State behind = CrossingKeys::kNothing; // what the next digits find before them until it goes
};

WordEffect effectOf(std::size_t row) {
    const auto &[key, with] = replacementChain.at(row - 1);
    const TableRow &marks = replacementChain.at(kMarksRow - 1);
    WordEffect effect;
    effect.late = row > kBlanksRow;
    if (!effect.late) {
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
        if (isCodeWord(replacementChain.at(row - 1).key))
            effects.at(row) = effectOf(row);
    }
    return effects;
}();

/// The bytes by their values.
constexpr std::array<Piece, 256> kLetterOf = [] {
    std::array<Piece, 256> letters{};
    for (unsigned byte = 0; byte < letters.size(); ++byte)
        letters.at(byte) = pieceOf(letterOf(static_cast<unsigned char>(byte)));
    return letters;
}();

constexpr unsigned kIsByte = 0x100;       // beside a byte's value: there is one
constexpr unsigned kIsOnlyLetter = 0x200; // it has a letter, and no code word begins with it

/// Bytes with their marks.
constexpr std::array<std::uint16_t, 256> kMarkedBytes = [] {
    std::array<std::uint16_t, 256> bytes{};
    for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
        const auto *codes = &kRowsOfCode.first.at(byte * 0x100);
        const bool beginsCode =
            std::any_of(codes, codes + 0x100, [](auto row) { return row != 0; });
        const bool onlyLetter = kLetterOf.at(byte).size != 0 && !beginsCode;
        bytes.at(byte) =
            static_cast<std::uint16_t>(byte | kIsByte | (onlyLetter ? kIsOnlyLetter : 0));
    }
    return bytes;
}();

constexpr std::size_t numberOf(const char *digits) { // one load of two bytes
    return std::size_t{static_cast<unsigned char>(digits[0])} |
           std::size_t{static_cast<unsigned char>(digits[1])} << 8U;
}

/// The marked byte of two hex digits, by their number; 0 for other characters. Few pages of it are
/// ever read.
constexpr std::array<std::uint16_t, 0x10000> kBytesOfDigits = [] {
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
    std::array<std::uint16_t, 0x10000> bytes{};
    for (const char first : kDigits) {
        for (const char second : kDigits) {
            const std::array<char, 2> digits = {first, second};
            bytes.at(numberOf(digits.data())) = kMarkedBytes.at(codeOf({digits.data(), 2}));
        }
    }
    return bytes;
}();

unsigned byteAt(const char *digits) {
    return kBytesOfDigits[numberOf(digits)];
}

/// Reads words and writes what becomes of them.
class WordWriter {
  public:
    explicit WordWriter(char *out) : out_(out) {}
    char *end() const { return out_; }

    /// False when the word cannot be taken alone.
    bool take(const char *digits) {
        const unsigned first = byteAt(digits);
        const unsigned second = byteAt(digits + 2);
        const unsigned both = first & second;
        if ((both & kIsOnlyLetter) == 0)
            return (both & kIsByte) != 0 && takeOther(digits, first & 0xFFU, second & 0xFFU);
        if (!takeDigits(first & 0xFFU, second & 0xFFU))
            return false;
        put(kLetterOf[first & 0xFFU]);
        put(kLetterOf[second & 0xFFU]);
        return true;
    }

  private:
    bool takeDigits(unsigned high, unsigned low) {
        if (matches(keys_.byte[keys_.byte[state_][high]][low]))
            return false;
        // No beginning of a key is as long as a word, so what stood before it does not count.
        state_ = keys_.byte[keys_.byte[CrossingKeys::kNothing][high]][low];
        return true;
    }

    bool takeOther(const char *digits, unsigned high, unsigned low) {
        if (const std::size_t row = kRowsOfCode.first[high * 0x100 + low]; row != 0)
            return takeCode(kEffects[row], high, low);
        if (low != kFillerByte) {
            if (!takeDigits(high, low))
                return false;
            putByte(high, digits);
            putByte(low, digits + 2);
            return true;
        }
        if (high != kFillerByte) {
            state_ = keys_.byte[state_][high];
            putByte(high, digits);
        }
        return !matches(keys_.digit[state_][kFillerByte >> 4U]);
    }

    bool takeCode(const WordEffect &effect, unsigned high, unsigned low) {
        if (!effect.alone ||
            (effect.late && matches(keys_.digit[keys_.byte[state_][high]][low >> 4U])))
            return false;
        if (effect.piece.size != 0) // one that will be gone joins its neighbours
            state_ = effect.behind;
        put(effect.piece);
        return true;
    }

    void put(const Piece &piece) {
        std::memcpy(out_, piece.text.data(), piece.text.size());
        out_ += piece.size;
    }

    /// A letter, or the digits of a byte without one.
    void putByte(unsigned byte, const char *digits) {
        put(kLetterOf[byte].size != 0 ? kLetterOf[byte] : pieceOf({digits, 2}));
    }

    const CrossingKeys &keys_ = kCrossingKeys;
    State state_ = CrossingKeys::kNothing; // after the digits that remain, so far
    char *out_;
};

/// Writes the caption of `hexText` at `out`, which has room for as many bytes; gives its end, or
/// nullptr when the words cannot be taken one by one. `see` gets the end of each word's piece.
template <class See>
char *putWords(char *out, std::string_view hexText, See see) {
    constexpr std::size_t kWordAndBlank = 5;
    WordWriter writer(out);
    const char *next = hexText.data();
    const char *const last = next + hexText.size() - hexText.size() % kWordAndBlank;
    for (; next != last; next += kWordAndBlank) {
        if (next[kWordAndBlank - 1] != ' ' || !writer.take(next))
            return nullptr;
        see(writer.end());
    }
    const std::size_t rest = hexText.size() % kWordAndBlank;
    if (rest != 0 && (rest != kWordAndBlank - 1 || !writer.take(next)))
        return nullptr;
    if (rest != 0)
        see(writer.end());
    return writer.end();
}

template <class See>
bool appendWords(std::string &captions, std::string_view hexText, See see) {
    const std::size_t start = captions.size();
    captions.resize(start + hexText.size() + kRoomBeyond);
    char *const out = captions.data() + start;
    char *end = putWords(out, hexText, see);
    if (end == out) // all deleted
        end = std::fill_n(out, 2, ' ');
    captions.resize(end == nullptr ? start : static_cast<std::size_t>(end - captions.data()));
    return end != nullptr;
}

} // namespace

bool appendCaptionByWords(std::string &captions, std::string_view hexText) {
    return appendWords(captions, hexText, [](const char *) {});
}

bool appendCaptionByWords(std::string &captions, std::string_view hexText,
                          std::vector<std::size_t> &ends) {
    ends.clear();
    return appendWords(captions, hexText, [&](const char *end) {
        ends.push_back(static_cast<std::size_t>(end - captions.data()));
    });
}

} // namespace norvane
