#include "framework/windows/window.h"

#include "framework/windows/desktop.h"
#include "framework/windows/guard.h"

namespace norvane {

Window::~Window() {
    if (Desktop::exists())
        Desktop::current().remove(*this);
}

void Window::open() {
    Desktop::current().add(*this);
    guarded([this] { Event_Open(); });
}

void Window::Show() {
    Desktop::current().show(*this);
}

void Window::Close() {
    guarded([this] { Event_Close(); });
    Desktop::current().remove(*this);
    if (const auto letGo = std::move(closed))
        letGo();
}

void Window::add(RectControl &control, const char *name, int left, int top, int width, int height) {
    control.Name = name;
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    controls_.push_back(&control);
    const AnyControl kind = control.kind();
    if (const auto *button = std::get_if<RadioButton *>(&kind))
        joinRadioButtons(**button);
}

void Window::joinRadioButtons(RadioButton &button) {
    button.Value.tied = [this, &button] {
        if (!button.Value)
            return;
        for (RectControl *control : controls_) {
            const AnyControl kind = control->kind();
            const auto *other = std::get_if<RadioButton *>(&kind);
            if (other != nullptr && *other != &button)
                (*other)->Value = false;
        }
    };
}

} // namespace norvane
