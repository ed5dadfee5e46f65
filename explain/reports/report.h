#pragma once

#include "explain/reports/caption_report.h"
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

/// With the captions that the line loads or shows; `screen` asks for pictures of their rows.
void add(TextReport &report, std::string_view file, const Explanation &explanation,
         const FilmCaptions &captions, bool screen);
void add(JsonWriter &json, std::string_view file, const Explanation &explanation,
         const FilmCaptions &captions, bool screen);

} // namespace norvane
