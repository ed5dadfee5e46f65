#include "framework/text_streams.h"

#include "framework/text.h"

#include <algorithm>

namespace norvane {

std::size_t TextInputStream::nextOf(char ending, std::size_t &known) const {
    if (known < position_ || (known == position_ && text_[known] != ending))
        known = std::min(text_.find(ending, position_), text_.size());
    return known;
}

std::string_view TextInputStream::ReadLine() {
    if (EndOfFile())
        return {};
    const std::size_t start = position_;
    const std::size_t end = std::min(nextOf('\n', nextLineFeed_), nextOf('\r', nextReturn_));
    const std::string_view ending = std::string_view(text_).substr(end, 2);
    position_ = end + (ending == "\r\n" ? 2 : ending.empty() ? 0 : 1);
    return std::string_view(text_).substr(start, end - start);
}

void TextInputStream::Close() {
    text_ = std::string();
    position_ = 0;
}

void TextOutputStream::WriteLine(std::string_view text) {
    sink_->write(text);
    sink_->write(EndOfLine);
}

void TextOutputStream::Close() {
    sink_->commit();
}

} // namespace norvane
