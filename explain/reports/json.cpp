#include "explain/reports/json.h"

#include "framework/text/text.h"

namespace norvane {

std::string jsonText(std::string_view text) {
    std::string result = "\"";
    while (!text.empty()) {
        const std::size_t size = characterSize(text);
        const auto first = static_cast<unsigned char>(text[0]);
        if (size == 1 && first >= 0x80)
            result += "\uFFFD";
        else if (first < 0x20)
            result.append("\\u00").append({kHexDigits[first / 16], kHexDigits[first % 16]});
        else
            result.append(first == '"' || first == '\\' ? "\\" : "").append(text.substr(0, size));
        text.remove_prefix(size);
    }
    return result + "\"";
}

void JsonObject::addValue(std::string_view name, std::string_view value) {
    if (!members_.empty())
        members_ += ",";
    members_.append(jsonText(name)).append(":").append(value);
}

} // namespace norvane
