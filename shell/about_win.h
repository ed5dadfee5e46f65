#pragma once

#include "framework/windows/controls.h"
#include "framework/windows/window.h"

namespace norvane {

/// The About window: the picture, the version and a few lines.
class aboutWin : public Window {
  public:
    /// The one window; created, and not yet shown, if there is none.
    static aboutWin &the();

    aboutWin();

    Canvas Canvas1;
    Label Label1;
};

} // namespace norvane
