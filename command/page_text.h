#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// What a page shows: a film, or a list of films with links to their pages.
enum class PageKind { film, films };

/// A whole page, which loads nothing and runs nothing but the viewer. `data` is JSON
/// in UTF-8 (RFC 8259), `title` any text; nothing in them can end the element that it stands in.
std::string pageText(PageKind kind, std::string_view title, std::string_view data);

} // namespace norvane
