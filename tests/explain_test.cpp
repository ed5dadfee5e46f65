#include "explain/reports/explanation.h"
#include "explain/standard/timecode_frames.h"
#include "framework/text/text.h"
#include "tests/support/generated.h"
#include "transcript/layout.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

// What a transcript has for a line and what the explanation says it has.
TEST(Explain, HasTheEntryOfTheTranscriptOnGeneratedText) {
    const char *more = std::getenv("NORVANE_GENERATED_LINES");
    const int lines = more == nullptr ? 4'000 : std::stoi(more);
    GeneratedHexText generated(2);
    for (int line = 0; line < lines; ++line) {
        const std::string text = "header\n00:00:01:00\t" + generated.next();
        SccReader reader(text);
        const SccLine *const read = reader.next();
        ASSERT_NE(read, nullptr);
        TextArray timecodes;
        TextArray captions;
        std::optional<std::string> entry;
        try {
            appendEntry(read->data, Clock::scc, timecodes, captions);
            const std::string body = composeTranscript(Form::line, captions, timecodes);
            entry = body.substr(0, body.size() - EndOfLine.size());
        } catch (const OutOfBoundsException &) {
        }
        ASSERT_EQ(explain(*read, Clock::scc, {}).entry, entry) << text;
    }
}

TEST(Explain, CountsFramesAsDropFrameDoes) {
    for (const bool dropFrame : {false, true}) {
        for (long count = 0; count < 40'000; ++count) {
            const auto timecode = readFrameTimecode(frameTimecode(count, dropFrame));
            ASSERT_TRUE(timecode && timecode->count() == count && !timecode->isDropped()) << count;
        }
    }
    EXPECT_EQ(frameTimecode(1800, true), "00:01:00;02");
    EXPECT_EQ(frameTimecode(17982, true), "00:10:00;00");
    EXPECT_EQ(frameTimecode(107892, true), "01:00:00;00");
}

} // namespace
} // namespace norvane
