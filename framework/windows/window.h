#pragma once

#include "framework/windows/controls.h"
#include "framework/windows/menu.h"
#include "framework/windows/property.h"

#include <functional>
#include <string>
#include <vector>

namespace norvane {

/// A window as the program sees it: settings, and controls in their tab order.
class Window {
  public:
    Window() = default;
    virtual ~Window();
    Window(const Window &) = delete;
    Window &operator=(const Window &) = delete;

    std::string Title;
    Property<int> Width{300};
    Property<int> Height{300};
    int MinWidth = 64;
    int MinHeight = 64;
    int MaxWidth = 32000;
    int MaxHeight = 32000;
    bool CloseButton = true;
    bool MinimizeButton = true;
    bool MaximizeButton = false;
    bool FullScreenButton = false;
    bool Resizeable = false;
    bool LiveResize = true;
    bool MenuBarVisible = true;
    const struct MenuBar *MenuBar = nullptr; // shared, not owned

    const std::vector<RectControl *> &controls() const { return controls_; }

    /// Event_Open under the guard. Once, when all controls are there and before the window is
    /// shown.
    void open();

    /// Puts the window on screen, or in front when it is there.
    void Show();

    /// Event_Close under the guard, then the end of the window: its owner deletes it, so that
    /// `this` is gone when Close returns.
    void Close();

    /// Set by the owner: called at the end of Close.
    std::function<void()> closed;

  protected:
    virtual void Event_Open() {}
    virtual void Event_Close() {}

    /// Puts a control, a member of the window, after the others in the tab order.
    void add(RectControl &control, const char *name, int left, int top, int width, int height);

  private:
    void joinRadioButtons(RadioButton &button);

    std::vector<RectControl *> controls_;
};

} // namespace norvane
