#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// Appends the caption of a hex text that is what nearly all are: words of four hex digits
/// separated by blanks, none of which the chain makes match with its neighbours, so that each gives
/// its piece of the caption by itself. Of any other text it appends nothing and gives false.
bool appendCaptionByWords(std::string &captions, std::string_view hexText);

/// The same; `ends` then has for each word how long the captions are up to the end of its piece.
bool appendCaptionByWords(std::string &captions, std::string_view hexText,
                          std::vector<std::size_t> &ends);

} // namespace norvane
