#pragma once

#include "framework/files/bytes.h"

#include <memory>
#include <string>
#include <string_view>

namespace norvane {

/// A text file's content, read line by line. The whole file is in memory.
class TextInputStream {
  public:
    explicit TextInputStream(Bytes text) : text_(std::move(text)) {}

    /// The next line without its ending (LF, CR or CRLF, in any mixture); what stands behind the
    /// last ending is a line as well. At the end of the file, the empty text. The view holds until
    /// Close or the end of the stream.
    std::string_view ReadLine();

    /// True when nothing is left to read. (C's own macro bars the shorter name.)
    bool EndOfFile() const { return position_ == text_.size(); }

    /// The size of the whole text in bytes.
    std::size_t size() const { return text_.size(); }

    void Close();

  private:
    Bytes text_;
    std::size_t position_ = 0;
    std::size_t nextLineFeed_ = 0; // or the end of the text
};

/// Where a stream's text goes: it counts as written when commit returns. Both throw IOException.
class TextSink {
  public:
    virtual ~TextSink() = default;
    virtual void write(std::string_view bytes) = 0;
    virtual void commit() = 0;
};

/// A text being written. Unless Close is reached, nothing of it remains.
class TextOutputStream {
  public:
    explicit TextOutputStream(std::unique_ptr<TextSink> sink) : sink_(std::move(sink)) {}

    /// Writes `text` and one end of line. Throws IOException.
    void WriteLine(std::string_view text);

    /// Puts the file in its place. Throws IOException; the file that stood there then still stands.
    void Close();

  private:
    std::unique_ptr<TextSink> sink_;
};

} // namespace norvane
