#pragma once

namespace norvane {

/// Which symbolic links on a path are followed. `trusted` are those of the user who runs the
/// program and of root, since others with access to a shared folder could otherwise lead the
/// program to files of its user; any other link is neither a folder nor a file. `all` is for what a
/// person picked or named.
enum class Links { trusted, all };

} // namespace norvane
