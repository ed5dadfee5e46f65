#pragma once

#include "framework/qt/qt_desktop.h"

namespace norvane {

/// Makes `desktop` this program's, with its name, pictures, file types and handlers, and opens the
/// main window. A QApplication must exist.
void start(QtDesktop &desktop);

} // namespace norvane
