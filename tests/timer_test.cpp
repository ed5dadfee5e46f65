#include "framework/headless/headless_desktop.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

constexpr std::int64_t kHour = 3600000;

class TimerTest : public testing::Test {
  protected:
    TimerTest() {
        timer.Action = [this] { ++ticks; };
        timer.Period = 1000;
        timer.Reset();
    }
    /// How many ticks come in some time.
    int ticksIn(std::int64_t milliseconds) {
        ticks = 0;
        desktop.advance(milliseconds);
        return ticks;
    }

    HeadlessDesktop desktop;
    Timer timer;
    int ticks = 0;
};

TEST_F(TimerTest, StopsAndStartsAsOftenAsAsked) {
    EXPECT_EQ(ticksIn(3999), 3);
    timer.Reset();
    EXPECT_EQ(ticksIn(999), 0);
    EXPECT_EQ(ticksIn(1), 1);
    // A watch writes 0 to Mode and never 2, so each 0 has to stop what Reset has started.
    for (int round = 0; round < 3; ++round) {
        timer.Mode = 0;
        EXPECT_EQ(ticksIn(kHour), 0);
        timer.Enabled = true;
        timer.Reset();
        EXPECT_EQ(ticksIn(2000), 2);
    }
    timer.Enabled = false;
    timer.Reset();
    EXPECT_EQ(ticksIn(kHour), 0);
    timer.Mode = 0;
    timer.Enabled = true;
    timer.Reset();
    EXPECT_EQ(ticksIn(2000), 2);
}

TEST_F(TimerTest, PeriodsApplyFromTheNextWait) {
    desktop.advance(500);
    timer.Period = 10000;
    EXPECT_EQ(ticksIn(500), 1);
    EXPECT_EQ(ticksIn(9999), 0);
    timer.Period = -3; // the wait in progress ends, and no other begins
    EXPECT_EQ(ticksIn(kHour), 1);
    timer.Period = 0;
    EXPECT_EQ(ticksIn(kHour), 0);
    timer.Period = 1000;
    EXPECT_EQ(ticksIn(1000), 1);
}

} // namespace
} // namespace norvane
