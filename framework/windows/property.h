#pragma once

#include <functional>
#include <utility>

namespace norvane {

/// A value that can be watched. An assignment that changes it first brings what is on screen in
/// step and then raises the action; one that does not change it does nothing.
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
        if (changed)
            changed();
        return *this;
    }
    Property &operator=(const Property &) = delete;

    operator const T &() const { return value_; } // NOLINT: a property reads as its value
    const T &get() const { return value_; }

    /// The desktop's observer.
    std::function<void()> shown;
    /// The program's observer: the control's action.
    std::function<void()> changed;

  private:
    T value_{};
};

} // namespace norvane
