#pragma once

#include "framework/windows/property.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

namespace norvane {

/// A point in time of the desktop's steady clock, in milliseconds.
using TimePoint = std::int64_t;

/// A repeating timer. It runs while Enabled is true and Mode is not 0. Reset is also the way back
/// from a Mode of 0. The desktop calls tick when the wait is over.
class Timer {
  public:
    Timer();
    ~Timer();
    Timer(const Timer &) = delete;
    Timer &operator=(const Timer &) = delete;

    Property<int> Mode{2}; // 0 off, 2 repeating
    /// Milliseconds. A change applies from the next wait. At 0 or less the timer never ticks;
    /// a positive Period then starts a whole wait.
    Property<std::int64_t> Period{60000};
    Property<bool> Enabled{true};

    /// Sets Mode to 2 and, where Enabled is true, starts a whole wait.
    void Reset();

    std::function<void()> Action;

    /// When the current wait ends; none when there is no wait.
    std::optional<TimePoint> due() const { return due_; }

    /// Begins the next wait and raises Action under the guard. The desktop calls it once it is due.
    void tick();

  private:
    bool runs() const { return Enabled && Mode != 0; }
    void restart();

    std::optional<TimePoint> due_;
};

} // namespace norvane
