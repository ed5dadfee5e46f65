#pragma once

#include "framework/text/find_any.h"

#include <cstddef>
#include <string_view>

namespace norvane {

/// The lines of a text, one after another. A line ends at LF, CR or CRLF, in any mixture; what
/// stands behind the last ending is a line as well.
class LineReader {
  public:
    /// The text must outlive the lines.
    explicit LineReader(std::string_view text) : LineReader(text, 0) {}

    /// Goes on in a text before which `number` lines stood.
    LineReader(std::string_view text, std::size_t number) : text_(text), number_(number) {}

    /// True when no line is left.
    bool atEnd() const { return position_ == text_.size(); }

    /// Which line the last one was: from 1, empty ones counted.
    std::size_t number() const { return number_; }

    /// What has not been read.
    std::string_view rest() const { return text_.substr(position_); }

    /// The next line without its ending; the empty text at the end.
    std::string_view next() {
        const std::size_t end = findAny<'\n', '\r'>(text_, position_);
        const std::string_view line = text_.substr(position_, end - position_);
        position_ = end;
        ++number_;
        const std::string_view ending = text_.substr(position_, 2);
        position_ += ending == "\r\n" ? 2 : ending.empty() ? 0 : 1;
        return line;
    }

    /// The next line that is not empty; the empty text at the end.
    std::string_view nextNotEmpty() {
        std::string_view line;
        while (line.empty() && !atEnd())
            line = next();
        return line;
    }

  private:
    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t number_ = 0;
};

} // namespace norvane
