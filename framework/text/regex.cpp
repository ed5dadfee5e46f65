#include "framework/text/regex.h"

namespace norvane {

namespace {

std::size_t byteOf(char c) {
    return static_cast<unsigned char>(c);
}

void addBothCases(std::bitset<256> &bytes, char c) {
    bytes.set(byteOf(c));
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
        bytes.set(byteOf(c) ^ 0x20U);
}

char takeCharacter(std::string_view &pattern) {
    const char c = pattern.front();
    pattern.remove_prefix(1);
    return c;
}

} // namespace

RegEx::ByteSet RegEx::takeItem(std::string_view &pattern) {
    ByteSet bytes;
    const char first = takeCharacter(pattern);
    if (first == '.') {
        bytes.set();
    } else if (first == '[') {
        const bool negated = pattern.starts_with('^');
        if (negated)
            takeCharacter(pattern);
        while (!pattern.empty()) {
            const char c = takeCharacter(pattern);
            if (c == ']')
                break;
            addBothCases(bytes, c);
        }
        if (negated)
            bytes.flip();
    } else if (first == '\\' && !pattern.empty()) {
        const char escaped = takeCharacter(pattern);
        if (escaped == 'd') {
            for (char digit = '0'; digit <= '9'; ++digit)
                bytes.set(byteOf(digit));
        } else {
            addBothCases(bytes, escaped);
        }
    } else {
        addBothCases(bytes, first);
    }
    return bytes;
}

RegEx::RegEx(std::string_view SearchPattern) {
    std::string_view pattern = SearchPattern;
    while (!pattern.empty())
        items_.push_back(takeItem(pattern));
    if (SearchPattern.size() == 1 && items_[0].count() == 1)
        onlyByte_ = SearchPattern[0];
}

std::optional<RegExMatch> RegEx::Search(std::string_view text) const {
    if (onlyByte_) {
        const std::size_t at = text.find(*onlyByte_);
        return at == std::string_view::npos ? std::nullopt : std::optional(RegExMatch{at, 1});
    }
    for (std::size_t start = 0; start + items_.size() <= text.size(); ++start) {
        std::size_t matched = 0;
        while (matched < items_.size() && items_[matched].test(byteOf(text[start + matched])))
            ++matched;
        if (matched == items_.size())
            return RegExMatch{start, matched};
    }
    return {};
}

} // namespace norvane
