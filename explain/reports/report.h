#pragma once

#include "explain/reports/explanation.h"
#include "explain/reports/json.h"
#include "explain/reports/text_report.h"

namespace norvane {

// What a shell prints, as texts for people and as lines of JSON for programs. `file` is what the
// user called the file.

void addHeader(TextReport &report, std::string_view file, std::size_t line, std::string_view header,
               const std::vector<std::string> &advice);
void addHeader(JsonWriter &json, std::string_view file, std::size_t line, std::string_view header,
               const std::vector<std::string> &advice);

void add(TextReport &report, std::string_view file, const Explanation &explanation);
void add(JsonWriter &json, std::string_view file, const Explanation &explanation);

void add(TextReport &report, std::string_view file, const Finding &finding);
void add(JsonWriter &json, std::string_view file, const Finding &finding);

} // namespace norvane
