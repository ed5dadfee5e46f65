#pragma once

#include "framework/windows/guard.h"

#include <functional>
#include <utility>

namespace norvane {

/// A value that can be watched. An assignment that changes it first updates the screen, then what
/// the framework ties to it, and then raises the action, under a guard of its own: a failure in it
/// is reported and ends it there, and the caller goes on. An
/// assignment that changes nothing does nothing.
template <class T>
class Property {
  public:
    Property() = default;
    explicit Property(T initial) : value_(std::move(initial)) {}
    Property(const Property &) = delete;

    Property &operator=(T value) {
        if (value == value_)
            return *this;
        value_ = std::move(value);
        if (shown)
            shown();
        if (tied)
            tied();
        guarded(changed);
        return *this;
    }
    Property &operator=(const Property &) = delete;

    operator const T &() const { return value_; } // NOLINT: a property reads as its value
    const T &get() const { return value_; }

    /// The desktop's observer.
    std::function<void()> shown;
    /// The framework's own observer: a radio button's group, a timer's wait.
    std::function<void()> tied;
    /// The program's observer: the control's action.
    std::function<void()> changed;

  private:
    T value_{};
};

} // namespace norvane
