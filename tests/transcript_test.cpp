#include "framework/text/failures.h"
#include "tests/support/plain_road.h"
#include "transcript/clean_up.h"
#include "transcript/layout.h"

#include <gtest/gtest.h>
#include <random>

namespace norvane {
namespace {

std::string cleaned(std::string text) {
    cleanTranscript(text);
    return text;
}

TextArray arrayOf(const std::vector<std::string> &texts) {
    TextArray array;
    for (const std::string &text : texts)
        array.Append(text);
    return array;
}

TEST(CleanUp, OfEntries) {
    // Only the last pass takes a bar alone; at most two go; two blanks stay; "[^ *]" goes once, as
    // text.
    // clang-format off
    const std::pair<std::string, const char *> rows[] = {
        {"|", ""}, {"||", "|"}, {"|| ", ""}, {"| ", ""}, {"*|", "*"}, {" ", ""}, {"  ", "  "},
        {"a|b|c|d", "abc|d"}, {"x[^ *]y[^ *]", "xy[^ *]"}, {"[^ *]", ""}, {"* |", "* "}, {"", ""},
        {"  Hi|!  ", "  Hi!  "}};
    // clang-format on
    for (auto [entry, clean] : rows) {
        cleanEntry(entry);
        EXPECT_EQ(entry, clean);
    }
}

TEST(CleanUp, OfTheTranscript) {
    // The row of "à-" stands twice; parts of characters are none.
    // clang-format off
    const std::pair<std::string, const char *> rows[] = {
        {"å-", "å"}, {"å--", "å-"}, {"à--", "à"}, {"à---", "à-"}, {"Å-å-é-’-", "Ååé-’"},
        {"--", "--"}, {"a|||b", "a b"}, {"a" + std::string(8, ' ') + "b", "a b"},
        {"a" + std::string(9, ' ') + "b", "a  b"}, {"a" + std::string(17, ' ') + "b", "a   b"},
        {"]\t b", "]\t b"}, {"]\\t b]\\T b", "]\\tb]\\tb"}, {"]\\t  |b", "]\\t b"},
        {"\xC3-\xA5-\x80\x99-", "\xC3-\xA5-\x80\x99-"}};
    // clang-format on
    for (const auto &row : rows) {
        EXPECT_EQ(cleaned(row.first), row.second) << row.first;
        EXPECT_EQ(plain::cleanTranscript(row.first), row.second) << row.first;
    }
}

TEST(CleanUp, IsThatOfThePlainWalkOnGeneratedText) {
    const std::vector<std::string> pieces = {
        "å", "à",  "-", "--",    "’", "É",  "|",  " ",    "  ",       "         ",
        "]", "\\", "t", "]\\t ", "a", "\n", "\t", "\xC3", "\xE2\x80", "ß-"};
    std::mt19937 random(3);
    for (int i = 0; i < 50'000; ++i) {
        std::string text;
        for (auto parts = random() % 12; parts > 0; --parts)
            text += pieces[random() % pieces.size()];
        ASSERT_EQ(cleaned(text), plain::cleanTranscript(text)) << text;
    }
}

TEST(Layout, InEachForm) {
    TextArray captions = arrayOf({"|one  two", " "});
    TextArray timecodes = arrayOf({"1,5,7", "2", "stale"});
    EXPECT_EQ(composeTranscript(Form::timecode, captions, timecodes),
              "[1.5,7]\tone two\n\n[2]\t\n\n");
    EXPECT_EQ(composeTranscript(Form::line, captions, timecodes), "one two\n\n");
    EXPECT_EQ(composeTranscript(Form::paragraph, captions, timecodes), " one two ");
    EXPECT_EQ(captions[0], "one  two"); // entry passes change the entry, text passes do not
    TextArray none;
    EXPECT_EQ(composeTranscript(Form::timecode, none, timecodes), "");
    TextArray tooFew = arrayOf({"1,5"});
    EXPECT_THROW(composeTranscript(Form::line, captions, tooFew), OutOfBoundsException);
    EXPECT_EQ(tooFew[0], "1.5"); // what was done before the failure stands, in every form
}

TEST(Layout, CleansALongBodyAsAWhole) {
    const std::string bars(9, '|'); // in paragraph form one run through all entries
    for (const auto &[form, entry] :
         {std::pair(Form::line, bars + "\n"), {Form::paragraph, " " + bars}}) {
        TranscriptBody body(form, "");
        std::string whole;
        for (int i = 0; i < 5'000; ++i) {
            body.add("1", bars);
            whole += entry;
        }
        EXPECT_EQ(body.take(), cleaned(whole));
    }
}

} // namespace
} // namespace norvane
