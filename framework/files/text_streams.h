#pragma once

#include "framework/files/bytes.h"
#include "framework/text/line_reader.h"

#include <memory>
#include <string>
#include <string_view>

namespace norvane {

namespace disk {
class InputFile;
} // namespace disk

/// A text file's content, given line by line. The whole file is in memory from the first call on:
/// it is read then, so that the user can be shown a message first.
class TextInputStream {
  public:
    explicit TextInputStream(Bytes bytes) : bytes_(std::move(bytes)), lines_(bytes_.view()) {}

    /// Reading fails, with what InputFile throws, at the first call.
    explicit TextInputStream(std::shared_ptr<disk::InputFile> file)
        : file_(std::move(file)), isUnread_(true) {}

    /// The file that was opened, for as long as this lives; null if there is none.
    const disk::InputFile *file() const { return file_.get(); }

    /// The next line without its ending (LF, CR or CRLF, in any mixture); what follows the
    /// last ending is a line as well. After the last line, an empty text. The view holds until
    /// Close or the end of the stream.
    std::string_view ReadLine();

    /// True when nothing is left to read. EOF is a macro of C.
    bool EndOfFile();

    /// The whole text, whatever has been read of it; the view holds as long as those of lines.
    std::string_view text();

    void Close();

  private:
    std::shared_ptr<disk::InputFile> file_;
    bool isUnread_ = false;
    Bytes bytes_;
    LineReader lines_{std::string_view()};
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
