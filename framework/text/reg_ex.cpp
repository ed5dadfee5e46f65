#include "framework/text/reg_ex.h"

#include "framework/text/text.h"

namespace norvane {

namespace {

std::string_view takeCharacter(std::string_view &text) {
    const std::string_view character = text.substr(0, characterSize(text));
    text.remove_prefix(character.size());
    return character;
}

/// Whether a character is what a pattern begins with, which is taken off it.
bool matchesNext(std::string_view character, std::string_view &pattern) {
    std::string_view next = takeCharacter(pattern);
    if (next == ".")
        return true;
    if (next == "[") {
        const std::string_view others = pattern.substr(1, pattern.find(']') - 1);
        pattern.remove_prefix(others.size() + 2);
        return findIgnoringCase(others, character) == std::string_view::npos;
    }
    if (next == "\\") {
        next = takeCharacter(pattern);
        if (next == "d")
            return isDigit(character[0]);
    }
    return equal(next, character);
}

bool matchesStart(std::string_view text, std::string_view pattern) {
    while (!pattern.empty()) {
        if (text.empty() || !matchesNext(takeCharacter(text), pattern))
            return false;
    }
    return true;
}

} // namespace

bool RegEx::Search(std::string_view text) const {
    while (!matchesStart(text, SearchPattern)) {
        if (text.empty())
            return false;
        takeCharacter(text);
    }
    return true;
}

} // namespace norvane
