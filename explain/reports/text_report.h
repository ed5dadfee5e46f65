#pragma once

#include "explain/reports/report_bytes.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

/// Lines for people, for a terminal. Whatever is added comes out harmless
/// (isHarmful in text.h), since this is the only way in, for the words of a film, a file's name and
/// the program's own texts alike.
class TextReport {
  public:
    TextReport &add(std::string_view text);
    TextReport &add(std::size_t number) { return add(std::string_view(std::to_string(number))); }

    /// Blanks up to `width`, for what was added with `characters` characters.
    TextReport &pad(std::size_t width, std::size_t characters) {
        bytes_.text().append(width > characters ? width - characters : 0, ' ');
        return *this;
    }
    void endColumn() { bytes_.text() += '\t'; }
    void endLine() {
        bytes_.text() += '\n';
        bytes_.flushMuch();
    }

    std::string_view bytes() const { return bytes_.view(); }
    void clear() { bytes_.text().clear(); }

    void setSink(ReportBytes::Sink sink) { bytes_.setSink(std::move(sink)); }
    void flush() { bytes_.flush(); }

  private:
    ReportBytes bytes_;
};

} // namespace norvane
