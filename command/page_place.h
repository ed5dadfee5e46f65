#pragma once

#include <string>

namespace norvane {

/// A text, such as a path, as a part of an address (RFC 3986): "/" and what never means anything
/// else stays, all other bytes are escaped.
std::string asAddress(const std::string &text);

/// The user's own folder for pages that are opened at once, made when it is missing and without the
/// pages of more than a week ago. Nobody else may look into it. Where there is no such folder, a
/// new one for temporary files. Throws Problem when that fails too.
std::string privatePageFolder();

/// What the page of the film at `path` is called in that folder: as the film, and by its path.
std::string privatePageName(const std::string &path);

/// Has the desktop open a file; the browser may outlive the program. Throws Problem when there is
/// nothing to open it with.
void openByDesktop(const std::string &path);

} // namespace norvane
