#include "framework/files/text_streams.h"

#include "framework/text/text.h"

namespace norvane {

void TextInputStream::Close() {
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
