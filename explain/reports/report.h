#pragma once

#include "explain/reports/explanation.h"

namespace norvane {

/// What a shell prints, one text for people and one line of JSON for programs (RFC 8259), each with
/// its end of line. `file` is what the user called the file.
std::string reportOf(const Explanation &explanation, std::string_view file);
std::string jsonOf(const Explanation &explanation, std::string_view file);
std::string reportOf(const Finding &finding, std::string_view file);
std::string jsonOf(const Finding &finding, std::string_view file);

} // namespace norvane
