#include "explain/checks/check.h"
#include "explain/reports/check_report.h"
#include "explain/reports/report.h"
#include "explain/standard/timecode_frames.h"
#include "explain/walk/said_text.h"
#include "framework/text/text.h"
#include "tests/support/film.h"
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
        ASSERT_EQ(Explainer(Clock::scc, {}).explain(*read).entry, entry) << text;
    }
}

std::string folded(std::string text) {
    for (std::size_t before = 0; before != text.size();) {
        before = text.size();
        text = ReplaceAllB(text, "  ", " ");
    }
    if (text.starts_with(' '))
        text.erase(0, 1);
    if (text.ends_with(' '))
        text.pop_back();
    return text;
}

// Where nothing is remarked on, a viewer reads what the transcript says.
TEST(Explain, RemarksOnEachDifferenceFromTheScreen) {
    GeneratedHexText generated(3);
    int silent = 0;
    for (int line = 0; line < 20'000; ++line) {
        const std::string text = "header\n00:00:01:00\t" + generated.next();
        SccReader reader(text);
        const SccLine &read = *reader.next();
        const bool isOfOne =
            std::all_of(read.words.begin(), read.words.end(), [](const SccWord &word) {
                return word.isCode && word.parity && word.meaning->kind != CodeKind::none &&
                       (word.service == Service::cc1 || word.meaning->kind == CodeKind::filler);
            });
        LineWalk walk;
        walk.walk(read);
        std::vector<EntryRemark> remarks;
        remarkOn(read, walk, true, remarks);
        if (!isOfOne || !remarks.empty() || !walk.entry())
            continue;
        ++silent;
        ASSERT_EQ(folded(std::string(*walk.entry())), folded(SaidLine(read).text())) << text;
    }
    EXPECT_GT(silent, 100);
}

/// All that can be told of a file.
template <class Report>
std::string_view told(Report &report, std::string_view file, const std::string &text) {
    const std::vector<Finding> findings = check(text, FindingKinds().set());
    for (const Finding &finding : findings)
        add(report, file, finding);
    Explainer explainer(Clock::unbuffered, findings);
    SccReader reader(text);
    addHeader(report, file, reader.headerNumber(), reader.header(),
              explainer.adviceOnHeader(reader.headerNumber()));
    const FilmCaptions captions = captionsOf(text);
    while (const SccLine *line = reader.next())
        add(report, file, explainer.explain(*line), captions, true);
    return report.bytes();
}

// What a terminal or a page would obey goes through every field of every report.
TEST(Explain, TellsHostileTextHarmlessly) {
    std::vector<std::string> hostile = {"\u0085", "\u009B", "\u061C", "\u200E", "\u200F", "\u2028",
                                        "\u2029", "\u202A", "\u202E", "\u2066", "\u2069"};
    for (int byte = 0; byte < 0xA0; byte = byte == 0x1F ? 0x7F : byte + 1)
        hostile.emplace_back(1, static_cast<char>(byte));
    for (const std::string &bad : hostile) {
        std::string text = "H\n1:00\nno tab\n";
        for (const char *line :
             {"00:01!:00\tc1c2", "00:00:01:00\t!", "00:00:01:00\t!c1c2\tx!", "!1:00",
              "00:00:01:00\tc1c2 9120 !9429 !! 1320!", "00:00:01:00\tx!"})
            text.append(ReplaceAll(line, "!", bad)).append("\n");
        for (const std::string &film : {ReplaceAll("H!\n", "!", bad) + text, bad + text}) {
            TextReport report;
            JsonWriter json;
            const std::string file = "a" + bad;
            for (std::string_view lines : {told(report, file, film), told(json, file, film)}) {
                EXPECT_GT(lines.size(), film.size());
                for (; !lines.empty(); lines.remove_prefix(characterSize(lines))) {
                    const std::string_view character = lines.substr(0, characterSize(lines));
                    ASSERT_TRUE(character == "\n" || character == "\t" || character != bad)
                        << lines;
                }
            }
        }
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
