#include "framework/files/text_streams.h"

#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <utility>

namespace norvane {

std::string_view TextInputStream::text() {
    if (std::exchange(isUnread_, false)) {
        bytes_ = file_->readAll();
        lines_ = LineReader(bytes_.view());
    }
    return bytes_.view();
}

std::string_view TextInputStream::ReadLine() {
    text();
    return lines_.next();
}

bool TextInputStream::EndOfFile() {
    text();
    return lines_.atEnd();
}

void TextInputStream::Close() {
    isUnread_ = false;
    bytes_ = Bytes();
    lines_ = LineReader(std::string_view());
}

void TextOutputStream::WriteLine(std::string_view text) {
    sink_->write(text);
    sink_->write(EndOfLine);
}

void TextOutputStream::Close() {
    sink_->commit();
}

} // namespace norvane
