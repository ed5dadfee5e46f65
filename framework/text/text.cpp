#include "framework/text/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace norvane {

namespace {

constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

template <class Finder>
std::string replaceEvery(std::string_view text, std::string_view find, std::string_view with,
                         Finder findFrom) {
    std::string result;
    std::size_t done = 0;
    if (!find.empty()) {
        result.reserve(text.size());
        for (std::size_t at = findFrom(done); at != std::string_view::npos; at = findFrom(done)) {
            result.append(text, done, at - done).append(with);
            done = at + find.size();
        }
    }
    return result.append(text, done);
}

} // namespace

TextArray Split(std::string_view text, std::string_view delimiter) {
    TextArray pieces;
    if (delimiter.empty()) {
        pieces.reserve(text.size(), text.size());
        while (!text.empty()) {
            pieces.Append(text.substr(0, characterSize(text)));
            text.remove_prefix(characterSize(text));
        }
        return pieces;
    }
    pieces.reserve(4, text.size());
    std::size_t at = text.find(delimiter);
    for (; at != std::string_view::npos; at = text.find(delimiter)) {
        pieces.Append(text.substr(0, at));
        text.remove_prefix(at + delimiter.size());
    }
    pieces.Append(text);
    return pieces;
}

std::string Replace(std::string_view text, std::string_view find, std::string_view with) {
    std::string result(text);
    const std::size_t at = find.empty() ? std::string_view::npos : findIgnoringCase(text, find);
    if (at != std::string_view::npos)
        result.replace(at, find.size(), with);
    return result;
}

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view with) {
    return replaceEvery(text, find, with,
                        [=](std::size_t from) { return findIgnoringCase(text, find, from); });
}

std::string ReplaceAllB(std::string_view text, std::string_view find, std::string_view with) {
    return replaceEvery(text, find, with, [=](std::size_t from) { return text.find(find, from); });
}

std::size_t findIgnoringCase(std::string_view text, std::string_view find, std::size_t from) {
    if (find.empty())
        return from <= text.size() ? from : std::string_view::npos;
    const char small = lower(find[0]);
    const char capital = upper(find[0]);
    for (; from + find.size() <= text.size(); ++from) {
        if (small == capital) {
            const void *hit =
                std::memchr(text.data() + from, small, text.size() - find.size() + 1 - from);
            if (hit == nullptr)
                break;
            from = static_cast<std::size_t>(static_cast<const char *>(hit) - text.data());
        } else if (text[from] != small && text[from] != capital) {
            continue;
        }
        if (equal(text.substr(from, find.size()), find))
            return from;
    }
    return std::string_view::npos;
}

bool equal(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

std::size_t Len(std::string_view text) {
    if (isAscii(text))
        return text.size();
    std::size_t characters = 0;
    for (; !text.empty(); ++characters)
        text.remove_prefix(characterSize(text));
    return characters;
}

std::size_t characterSize(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0xC2 || first > 0xF4)
        return 1;
    const std::size_t size = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (text.size() < size ||
        !std::all_of(text.begin() + 1, text.begin() + static_cast<long>(size), isContinuation))
        return 1;
    // The second byte's range keeps out overlong forms, surrogates and what lies above U+10FFFF.
    const auto second = static_cast<unsigned char>(text[1]);
    const bool outOfRange = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                            (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return outOfRange ? 1 : size;
}

bool isAscii(std::string_view text) {
    std::uint64_t all = 0;
    const auto look = [&all](const char *place) {
        std::uint64_t block = 0;
        std::memcpy(&block, place, sizeof block);
        all |= block;
    };
    if (text.size() < sizeof all) {
        for (const char c : text)
            all |= static_cast<unsigned char>(c);
    } else { // the last look overlaps
        look(text.data() + text.size() - sizeof all);
        for (; text.size() > sizeof all; text.remove_prefix(sizeof all))
            look(text.data());
    }
    return (all & 0x8080808080808080U) == 0;
}

bool isHarmful(std::string_view character) {
    const auto last = static_cast<unsigned char>(character.back());
    if (character.size() == 1)
        return last < ' ' || (last >= 0x7F && last < 0xA0);
    if (character.size() == 2)
        return (character[0] == '\xC2' && last < 0xA0) || character == "\u061C";
    const auto second = static_cast<unsigned char>(character[1]);
    if (character.size() != 3 || character[0] != '\xE2')
        return false;
    return second == 0x80   ? last == 0x8E || last == 0x8F || (last >= 0xA8 && last <= 0xAE)
           : second == 0x81 ? last >= 0xA6 && last <= 0xA9
                            : false;
}

void appendPrintable(std::string &result, std::string_view text) {
    std::size_t done = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] >= ' ' && text[at] < 0x7F) {
            ++at;
            continue;
        }
        const std::string_view character = text.substr(at, characterSize(text.substr(at)));
        if (isHarmful(character) && character != "\t") {
            result.append(text, done, at - done).append("?");
            done = at + character.size();
        }
        at += character.size();
    }
    result.append(text, done);
}

std::string printable(std::string_view text) {
    std::string result;
    appendPrintable(result, text);
    return result;
}

std::string inQuotes(std::string_view text) {
    return "“" + printable(text) + "”";
}

std::string startInQuotes(std::string_view text) {
    constexpr std::size_t kMostCharacters = 40;
    std::size_t end = 0;
    for (std::size_t characters = 0; end < text.size() && characters < kMostCharacters;
         ++characters)
        end += characterSize(text.substr(end));
    std::string result = inQuotes(text.substr(0, end));
    if (end < text.size())
        result.insert(result.size() - std::string_view("”").size(), "…");
    return result;
}

std::string Chr(int code) {
    return {static_cast<char>(code)};
}

double Floor(double value) {
    return std::floor(value);
}

} // namespace norvane
