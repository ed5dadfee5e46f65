#pragma once

#include "framework/windows/menu.h"

namespace norvane {

/// The program's menu bar.
class MenuBar1 : public MenuBar {
  public:
    /// The one instance, made at first use.
    static MenuBar1 &the();

  private:
    MenuBar1();
    void Untitled0(); // File
    void Untitled1(); // Edit
};

} // namespace norvane
