#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// Appends the caption of a hex text that is what nearly all are: words of four hex digits parted
/// by blanks, none of which the chain makes match with its neighbours, so that each gives its piece
/// of the caption by itself. Of any other text it appends nothing and gives false.
bool appendCaptionByWords(std::string &captions, std::string_view hexText);

} // namespace norvane
