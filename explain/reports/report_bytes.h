#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace norvane {

/// The bytes of a report as it grows. With a sink they leave in large blocks, even in mid-line:
/// the report on one line may be many times its size.
class ReportBytes {
  public:
    using Sink = std::function<void(std::string_view)>;

    void setSink(Sink sink) { sink_ = std::move(sink); }

    std::string &text() { return text_; }
    std::string_view view() const { return text_; }

    void flushMuch() {
        constexpr std::size_t kMuch = std::size_t{1} << 16U;
        if (text_.size() >= kMuch)
            flush();
    }
    void flush() {
        if (sink_) {
            sink_(text_);
            text_.clear();
        }
    }

  private:
    std::string text_;
    Sink sink_;
};

} // namespace norvane
