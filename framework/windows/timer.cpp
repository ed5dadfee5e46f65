#include "framework/windows/timer.h"

#include "framework/windows/desktop.h"
#include "framework/windows/guard.h"

#include <algorithm>
#include <limits>

namespace norvane {

Timer::Timer() {
    Mode.tied = [this] { restart(); };
    Enabled.tied = Mode.tied;
    Period.tied = [this] {
        if (!due_)
            restart();
    };
    Desktop::current().add(*this);
    restart();
}

Timer::~Timer() {
    if (Desktop::exists())
        Desktop::current().remove(*this);
}

void Timer::Reset() {
    Mode = 2; // so that the next 0 is a change, and stops the timer again
    restart();
}

void Timer::tick() {
    restart();
    guarded(Action);
}

void Timer::restart() {
    due_.reset();
    if (runs() && Period > 0) {
        const TimePoint now = Desktop::current().now();
        due_ = now + std::min(Period.get(), std::numeric_limits<TimePoint>::max() - now);
    }
    Desktop::current().timersChanged();
}

} // namespace norvane
