#pragma once

#include "explain/checks/findings.h"
#include "explain/reports/json.h"
#include "explain/reports/text_report.h"

namespace norvane {

/// A finding as a line "FILE:LINE: KIND: text", which editors understand, or as an object. `file`
/// is what the user called the file.
void add(TextReport &report, std::string_view file, const Finding &finding);
void add(JsonWriter &json, std::string_view file, const Finding &finding);

} // namespace norvane
