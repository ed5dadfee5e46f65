#pragma once

#include <string>

namespace norvane {

/// The address of the help article: the one set at build time, or else the page that came with the
/// program, as a file: address.
std::string helpArticleAddress();

} // namespace norvane
