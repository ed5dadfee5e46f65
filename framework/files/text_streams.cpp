#include "framework/files/text_streams.h"

#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

std::string_view TextInputStream::ReadLine() {
    if (EndOfFile())
        return {};
    const std::string_view text = text_.view();
    if (nextLineFeed_ < position_ || position_ == 0)
        nextLineFeed_ = std::min(text.find('\n', position_), text.size());
    const std::string_view upToLineFeed = text.substr(position_, nextLineFeed_ - position_);
    const std::string_view line = upToLineFeed.substr(0, upToLineFeed.find('\r'));
    position_ += line.size();
    const std::string_view ending = text.substr(position_, 2);
    position_ += ending == "\r\n" ? 2 : ending.empty() ? 0 : 1;
    return line;
}

void TextInputStream::Close() {
    text_ = Bytes();
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
