#pragma once

#include <string>

namespace norvane {

/// The address of the help article: the one set at build time, or else, as a file: address, the
/// page beside the program or where it is installed with it.
std::string helpArticleAddress();

/// The file: address of an absolute path; what an address cannot contain is written as %XX.
std::string fileAddress(const std::string &path);

} // namespace norvane
