#pragma once

#include <string_view>

namespace norvane {

/// The viewer of resources/page, and what a content security policy calls it (CSP 3, hash-source).
extern const std::string_view kPageStyle;
extern const std::string_view kPageScript;
extern const std::string_view kPageStyleHash;
extern const std::string_view kPageScriptHash;

} // namespace norvane
