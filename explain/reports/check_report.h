#pragma once

#include "explain/checks/check.h"
#include "explain/reports/json.h"
#include "explain/reports/text_report.h"

namespace norvane {

// `file` is what the user called the file.

/// A finding as a line "FILE:LINE: KIND: text", which editors understand, or as an object.
void add(TextReport &report, std::string_view file, const Finding &finding);
void add(JsonWriter &json, std::string_view file, const Finding &finding);

/// The names of the columns of summaries, with tabs between them.
void addSummaryHead(TextReport &report);

/// A film in a line of its own, in these columns or as an object.
void addSummary(TextReport &report, std::string_view file, const CheckResult &result);
void addSummary(JsonWriter &json, std::string_view file, const CheckResult &result);

} // namespace norvane
