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

void Window::add(Control &control, const char *name, int left, int top, int width, int height) {
    control.Name = name;
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    controls_.push_back(&control);
    if (auto *button = dynamic_cast<RadioButton *>(&control))
        joinRadioButtons(*button);
}

void Window::joinRadioButtons(RadioButton &button) {
    button.Value.tied = [this, &button] {
        if (!button.Value)
            return;
        for (Control *control : controls_) {
            auto *other = dynamic_cast<RadioButton *>(control);
            if (other != nullptr && other != &button)
                other->Value = false;
        }
    };
}

} // namespace norvane
