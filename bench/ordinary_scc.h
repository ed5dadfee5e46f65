#pragma once

#include <cstddef>
#include <string>

namespace norvane {

/// An SCC file of at least `bytes` bytes of ordinary pop-on captions: lines of about 150 bytes with
/// an empty line between, timecodes that rise, doubled control codes, two rows of English to a
/// caption.
std::string ordinaryScc(std::size_t bytes);

/// The hex text of the caption number `caption` of that file.
std::string ordinaryHexText(std::size_t caption);

} // namespace norvane
