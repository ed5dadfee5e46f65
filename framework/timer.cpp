#include "framework/timer.h"

#include "framework/desktop.h"
#include "framework/guard.h"

#include <algorithm>
#include <limits>

namespace norvane {

Timer::Timer() {
    Mode.changed = [this] { Mode == 0 || !Enabled ? stop() : start(); };
    Enabled.changed = Mode.changed;
    Period.changed = [this] {
        if (running_ && !due_)
            start();
    };
    Desktop::current().add(*this);
    start();
}

Timer::~Timer() {
    if (Desktop::exists())
        Desktop::current().remove(*this);
}

void Timer::Reset() {
    if (Enabled)
        start();
}

void Timer::tick() {
    start();
    guarded(Action);
}

void Timer::start() {
    running_ = true;
    due_.reset();
    if (Period > 0) {
        const TimePoint now = Desktop::current().now();
        due_ = now + std::min(Period.get(), std::numeric_limits<TimePoint>::max() - now);
    }
    Desktop::current().timersChanged();
}

void Timer::stop() {
    running_ = false;
    due_.reset();
    Desktop::current().timersChanged();
}

} // namespace norvane
