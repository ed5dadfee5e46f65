#include "decode/timecode.h"
#include "explain/checks/check.h"
#include "explain/reports/check_report.h"
#include "explain/reports/film_report.h"
#include "explain/reports/page_data.h"
#include "explain/reports/report.h"
#include "framework/text/text.h"
#include "transcript/layout.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <vector>

namespace norvane {

// What web/functions.cpp exports, and the page's part of it.
extern "C" {
struct Text;
Text *newText(std::size_t size);
void deleteText(Text *text);
char *bytesOf(Text *text);
std::size_t sizeOf(const Text *text);
bool isProblem(const Text *text);
bool isSccNameText(const Text *name);
Text *transcript(const Text *name, const Text *film, Form form, Clock clock);
Text *page(const Text *name, const Text *film, Clock clock);
Text *explain(const Text *name, const Text *film, Clock clock);
Text *checkText(const Text *name, const Text *film, Clock clock);

static std::vector<double> progressTold;
void progress(double done) {
    progressTold.push_back(done);
}
}

namespace {

struct Freed {
    void operator()(Text *text) const { deleteText(text); }
};
using Owned = std::unique_ptr<Text, Freed>;

Owned textOf(std::string_view bytes) {
    Owned text(newText(bytes.size()));
    std::copy(bytes.begin(), bytes.end(), bytesOf(text.get()));
    return text;
}

/// The bytes of an answer, behind "refused " where it is a problem.
template <class... Choices>
std::string answerOf(Text *(*task)(const Text *, const Text *, Choices...), std::string_view name,
                     std::string_view film, Choices... choices) {
    const Owned answer(task(textOf(name).get(), textOf(film).get(), choices...));
    return (isProblem(answer.get()) ? "refused " : "") +
           std::string(bytesOf(answer.get()), sizeOf(answer.get()));
}

constexpr std::string_view kHeader = "Scenarist_SCC V1.0\n\n";
constexpr std::string_view kLine = "00:00:01:00\t9420 9470 c8e9 a180 942f\n";

TEST(PageFunctions, GiveWhatTheCompanionGives) {
    const std::string film = std::string(kHeader) + std::string(kLine);
    EXPECT_TRUE(isSccNameText(textOf("a.scc").get()));
    EXPECT_FALSE(isSccNameText(textOf("a.txt").get()));
    EXPECT_EQ(answerOf(transcript, "a.b.scc", film, Form::timecode, Clock::unbuffered),
              "Transcripts of a\n\n[00:00:01.16]\t Hi! \n\n\n");
    EXPECT_EQ(answerOf(transcript, "a.scc", film, Form::line, Clock::scc),
              "Transcripts of a\n\n Hi! \n\n");
    JsonWriter json;
    explainFilm(film, "a.scc", {Clock::scc}, json);
    EXPECT_EQ(answerOf(explain, "a.scc", film, Clock::scc), json.bytes());
    std::string shown = answerOf(page, "a.scc", film, Clock::scc);
    EXPECT_EQ(shown, pageData(film, "a.scc", "Norvane " NORVANE_VERSION, Clock::scc).film);
    JsonWriter findings;
    for (const Finding &finding : check(film, CheckRules()).findings)
        add(findings, "a.scc", finding);
    EXPECT_EQ(answerOf(checkText, "a.scc", film, Clock::scc), findings.bytes());
}

TEST(PageFunctions, RefuseOneWay) {
    const std::string refusal =
        R"(refused {"text":"This file does not have the .scc extension.","help":"If it is an SCC file, rename it to end in .scc, or paste its text.","line":0})";
    EXPECT_EQ(answerOf(transcript, "a.txt", kHeader, Form::line, Clock::scc), refusal);
    for (auto *task : {page, explain, checkText})
        EXPECT_EQ(answerOf(task, "a.txt", kHeader, Clock::scc), refusal);
    EXPECT_EQ(
        answerOf(transcript, "a.scc", "H\n\nx\n", Form::line, Clock::scc),
        R"(refused {"text":"There does not appear to be any timecode in this file.","help":"After the header, each line must be a timecode, a tab and words of four hex digits: correct it.","line":3})");
}

TEST(PageFunctions, TellHowFarTheyAreAndWhatIsTooMuch) {
    std::string film(kHeader);
    while (film.size() <= std::size_t{4} << 20U)
        film += kLine;
    progressTold.clear();
    EXPECT_FALSE(answerOf(transcript, "a.scc", film, Form::line, Clock::scc).empty());
    ASSERT_EQ(progressTold.size(), 4U);
    for (std::size_t i = 0; i < progressTold.size(); ++i)
        EXPECT_NEAR(progressTold[i], 0.25 * static_cast<double>(i + 1), 0.001);
    EXPECT_EQ(answerOf(page, "a.scc", film, Clock::scc), R"({"isTooLarge":true})");
    EXPECT_EQ(newText(std::numeric_limits<std::size_t>::max() / 2), nullptr);
}

} // namespace
} // namespace norvane
