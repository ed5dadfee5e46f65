#include "decode/timecode.h"
#include "framework/text/text.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace norvane {
namespace {

TEST(Timecode, ToSeconds) {
    EXPECT_EQ(timecodeToSecondsSCC("01:02:03:15"), "3723.5");
    EXPECT_EQ(timecodeToSecondsSCC("00:00:59:29"), "59.96667");
    EXPECT_EQ(timecodeToSecondsSCC("10:00:00:01"),
              "36000.03"); // seven digits lose part of the frame
    EXPECT_EQ(timecodeToSecondsSCC("xx:00:05;10:15:99"), "5.5");
    EXPECT_THROW(timecodeToSecondsSCC("01:00:00"), OutOfBoundsException);
    EXPECT_EQ(timeCodeToSeconds("01:02:03.50"), "3723.5");
    EXPECT_EQ(timeCodeToSeconds("01:02:03:15"), "3723");
    EXPECT_THROW(timeCodeToSeconds("01:00"), OutOfBoundsException);
}

TEST(Timecode, OfSeconds) {
    // The minute of 59.996 stays; a quotient that rounds up is a minute, with no rest; of an
    // exponent form, the first digit counts.
    // clang-format off
    const std::pair<double, const char *> rows[] = {
        {0, "00:00:00.00"}, {1 + 49 / 150.0, "00:00:01.33"}, {3723.5, "01:02:03.50"},
        {60, "00:01:00.00"}, {600, "00:10:00.00"}, {3600, "01:00:00.00"}, {36000, "10:00:00.00"},
        {360000, "100:00:00.00"}, {59.996, "00:00:60.00"}, {3599.9999, "01:00:00.00"},
        {86399.99, "24:00:00.00"}, {-1, "00:00:00.00"}, {-0.001, "00:00:00.00"},
        {0.00001, "00:00:00.00"}, {6.1e8, "00:01:609999900.00"}};
    // clang-format on
    for (const auto &[seconds, timecode] : rows)
        EXPECT_EQ(returnTimecode(seconds), timecode) << seconds;
}

// The steps on texts for each frame of a day, with as many hex texts of up to 300 words as
// NORVANE_LENGTHS says (all: 300); those just below, at and just above a minute among them.
TEST(Timecode, UnbufferedIsThatOfTheStepsOnTexts) {
    const char *more = std::getenv("NORVANE_LENGTHS");
    const std::size_t lengths = more == nullptr ? 1 : std::stoul(more);
    const std::string hexText(1500, '0');
    std::minstd_rand random(6);
    for (unsigned frame = 0; frame < 24 * 60 * 60 * 30; frame += more == nullptr ? 7 : 1) {
        char timecode[16];
        std::snprintf(timecode, sizeof timecode, "%02u:%02u:%02u%c%02u", frame / 108000,
                      frame / 1800 % 60, frame / 30 % 60, frame % 2 == 0 ? ':' : ';', frame % 30);
        timecode[8] = ':';
        const double seconds = Val(timecodeToSecondsSCC(timecode));
        timecode[8] = frame % 2 == 0 ? ':' : ';';
        const auto first = static_cast<unsigned>(random() % 300);
        for (unsigned length = 0; length < lengths; ++length) {
            const unsigned words = (first + length) % 300 + 1;
            const auto characters = static_cast<unsigned>(5 * words - 1 + random() % 2);
            ASSERT_EQ(unbufferedTimecode(timecode, {hexText.data(), characters}),
                      returnTimecode(seconds + characters / 5.0 / 30.0))
                << timecode << " " << characters;
        }
    }
}

TEST(Timecode, Unbuffered) {
    EXPECT_EQ(unbufferedTimecode("01:00:00;15", "9420 9420 94ae 94ae 9470"), "01:00:00.66");
    EXPECT_EQ(unbufferedTimecode("28:00:01:01", "9420 9420 94ae 94ae 9470"), "28:00:01.16");
    EXPECT_EQ(unbufferedTimecode("00:0::00:00", ""), "00:00:00.00");      // a colon is no digit
    EXPECT_EQ(unbufferedTimecode("00:00:01:00", "♪♪♪♪♪"), "00:00:01.03"); // characters, not bytes
    for (const char *text : {"01:00;00", "01x00:00:00", "01:00x00:00", "01:00:00x00"})
        EXPECT_THROW(unbufferedTimecode(text, ""), OutOfBoundsException) << text;
}

} // namespace
} // namespace norvane
