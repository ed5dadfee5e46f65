#pragma once

#include "framework/windows/property.h"

#include <functional>
#include <string>
#include <variant>

/// The controls as the program sees them: plain models, which work without a screen. The desktop
/// gives each a widget and keeps both in step. Positions and sizes are in points, a pixel at 100 %.
namespace norvane {

class BevelButton;
class PushButton;
class CheckBox;
class RadioButton;
class TextField;
class Label;
class ProgressBar;
class Canvas;
class Separator;
class PopupArrow;
class Listbox;

/// A control by its kind, for std::visit.
using AnyControl =
    std::variant<BevelButton *, PushButton *, CheckBox *, RadioButton *, TextField *, Label *,
                 ProgressBar *, Canvas *, Separator *, PopupArrow *, Listbox *>;

/// A visitor of some kinds, a function each; one for RectControl * takes all others.
template <class... Functions>
struct Visitor : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Visitor(Functions...) -> Visitor<Functions...>; // clang 14 does not find it by itself

class RectControl {
  public:
    RectControl() = default;
    virtual ~RectControl() = default;
    RectControl(const RectControl &) = delete;
    RectControl &operator=(const RectControl &) = delete;

    virtual AnyControl kind() = 0;

    std::string Name;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    Property<bool> Visible{true};
    Property<bool> Enabled{true};

    /// What a screen reader says where the caption is missing or says too little.
    std::string accessibleName;

    /// A description of the control's present state; empty when none is needed.
    Property<std::string> hint;

    /// Repaints the control: at once, without going back to the event loop, when `immediately`.
    /// Costs next to nothing where no pixel would change.
    void Refresh(bool immediately) const {
        if (repaint)
            repaint(immediately);
    }

    /// The desktop's way to repaint; empty where there is no screen.
    std::function<void(bool immediately)> repaint;
};

/// A button that does something when it is pressed.
class Button : public RectControl {
  public:
    std::string Caption;
    std::function<void()> Action;
};

class BevelButton : public Button {
  public:
    AnyControl kind() override { return this; }

    static constexpr int kSmallSquare = 0;
    static constexpr int kRounded = 3;
    int Bevel = kRounded;
};

class PushButton : public Button {
  public:
    AnyControl kind() override { return this; }
};

class CheckBox : public RectControl {
  public:
    AnyControl kind() override { return this; }

    std::string Caption;
    Property<bool> Value; // its changed is the Action
};

/// One of its window's radio buttons: turning one on turns the others off. All may be off.
class RadioButton : public RectControl {
  public:
    AnyControl kind() override { return this; }

    std::string Caption;
    Property<bool> Value;
};

enum class Alignment { left = 0, centred = 2 };

class TextField : public RectControl {
  public:
    AnyControl kind() override { return this; }

    Property<std::string> Text; // its changed is the TextChange
    Alignment alignment = Alignment::left;
};

class Label : public RectControl {
  public:
    AnyControl kind() override { return this; }

    Property<std::string> Text; // lines end in "\r"
    int TextSize = 0;           // pixels at 100 %; 0 is the system font's size
    bool grey = false;          // red, green and blue all 128
    bool multiline = false;
    Alignment alignment = Alignment::left;
};

class ProgressBar : public RectControl {
  public:
    AnyControl kind() override { return this; }

    Property<int> Value{0};
    Property<int> Maximum{100};
};

/// One of the application's pictures, by name, drawn in the area of the control.
class Canvas : public RectControl {
  public:
    AnyControl kind() override { return this; }

    std::string Backdrop;
};

class Separator : public RectControl {
  public:
    AnyControl kind() override { return this; }
};

/// A disclosure arrow.
class PopupArrow : public RectControl {
  public:
    AnyControl kind() override { return this; }

    static constexpr int kRight = 0; // folded
    static constexpr int kDown = 3;  // unfolded
    Property<int> Facing{kRight};
    /// True claims the press, and with it the MouseUp, which no control here has.
    std::function<bool()> MouseDown;
};

class Listbox : public RectControl {
  public:
    AnyControl kind() override { return this; }
};

} // namespace norvane
