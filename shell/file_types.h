#pragma once

#include "framework/windows/file_type.h"

#include <string_view>
#include <vector>

namespace norvane {

/// The name of the file type that the open dialog is given.
inline constexpr const char *kSccFileType = "text/scc";

// Kept: two modules with a type of the same name each. Dialogs go by the name.

namespace FileTypes1 {
extern FileType TextScc;
extern std::vector<FileType *> pAllFileTypes;
void _Initialize(); // NOLINT: the name is the start-up's
} // namespace FileTypes1

namespace scctypes {
extern FileType TextScc;
extern std::vector<FileType *> pAllFileTypes;
void _Initialize(); // NOLINT
} // namespace scctypes

/// Fills both modules; nothing happens the second time.
void _InitFileTypes(); // NOLINT

} // namespace norvane
