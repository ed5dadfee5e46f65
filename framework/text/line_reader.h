#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace norvane {

/// The lines of a text, one after another. A line ends at LF, CR or CRLF, in any mixture; what
/// stands behind the last ending is a line as well.
class LineReader {
  public:
    /// The text must outlive the lines.
    explicit LineReader(std::string_view text) : text_(text) {}

    /// True when no line is left.
    bool atEnd() const { return position_ == text_.size(); }

    /// The next line without its ending; the empty text at the end.
    std::string_view next() {
        if (nextLineFeed_ < position_ || position_ == 0)
            nextLineFeed_ = std::min(text_.find('\n', position_), text_.size());
        const std::string_view upToLineFeed = text_.substr(position_, nextLineFeed_ - position_);
        const std::string_view line = upToLineFeed.substr(0, upToLineFeed.find('\r'));
        position_ += line.size();
        const std::string_view ending = text_.substr(position_, 2);
        position_ += ending == "\r\n" ? 2 : ending.empty() ? 0 : 1;
        return line;
    }

  private:
    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t nextLineFeed_ = 0; // or the end of the text: looked for once, not for each CR
};

} // namespace norvane
