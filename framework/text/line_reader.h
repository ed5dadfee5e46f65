#pragma once

#include "framework/text/find_any.h"

#include <cstddef>
#include <string_view>

namespace norvane {

/// The lines of a text, one after another. A line ends at LF, CR or CRLF, in any mixture; what
/// follows the last ending is a line as well.
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
        const std::size_t start = position_;
        position_ = findAny<'\n', '\r'>(text_, start);
        const std::string_view line(text_.data() + start, position_ - start);
        passEnding();
        return line;
    }

    /// The next line that is not empty; the empty text at the end.
    std::string_view nextNotEmpty() {
        while (!atEnd() && (text_[position_] == '\n' || text_[position_] == '\r'))
            passEnding();
        return atEnd() ? std::string_view() : next();
    }

  private:
    void passEnding() {
        ++number_;
        if (!atEnd() && text_[position_++] == '\r' && !atEnd() && text_[position_] == '\n')
            ++position_;
    }

    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t number_ = 0;
};

} // namespace norvane
