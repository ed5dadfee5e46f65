#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// A text as a JSON string (RFC 8259), quotation marks included. Each byte that is no valid UTF-8
/// becomes U+FFFD.
std::string jsonText(std::string_view text);

/// A JSON object as it grows.
class JsonObject {
  public:
    void add(std::string_view name, std::string_view text) { addValue(name, jsonText(text)); }
    void add(std::string_view name, const char *text) { add(name, std::string_view(text)); }
    void add(std::string_view name, std::size_t number) { addValue(name, std::to_string(number)); }
    void add(std::string_view name, bool value) { addValue(name, value ? "true" : "false"); }

    /// `value` is JSON already.
    void addValue(std::string_view name, std::string_view value);

    std::string text() const { return "{" + members_ + "}"; }

  private:
    std::string members_;
};

} // namespace norvane
