#include "tests/support/scenario.h"

namespace norvane {
namespace {

constexpr const char *kHi = "9420 9420 94ae 94ae 9470 9470 c8e9 a180 942f 942f";
constexpr const char *kNoTab = "This SCC file does not appear to be formatted correctly. It needs "
                               "to have a tab between the timecode "
                               "and the hexidecimal caption code.";

std::string line(const std::string &timecode, const std::string &hexText = kHi) {
    return timecode + "\t" + hexText;
}

class OneFile : public Scenario {};

TEST_F(OneFile, ThreeFormsAndTwoClocks) {
    folder.write("show.scc", sccFile({line("00:00:01:00"), line("00:00:03;15")}));
    decode("show.scc", "a.txt");
    EXPECT_EQ(folder.read("a.txt"),
              "Transcripts of show\n\n[00:00:01.33]\t Hi! \n\n[00:00:03.83]\t Hi! \n\n\n");
    desktop.click(window().RadioButton2);
    decode("show.scc", "b.txt");
    EXPECT_EQ(folder.read("b.txt"),
              "Transcripts of show\n\n[00:00:01:00]\t Hi! \n\n[00:00:03;15]\t Hi! \n\n\n");
    desktop.click(window().TimecodeBox);
    decode("show.scc", "c.txt");
    EXPECT_EQ(folder.read("c.txt"), "Transcripts of show\n\n Hi! \n Hi! \n\n");
    desktop.click(window().ParagraphBox);
    decode("show.scc", "d.txt");
    EXPECT_EQ(folder.read("d.txt"), "Transcripts of show\n\n Hi! Hi! \n");
}

TEST_F(OneFile, WhatTheUserSees) {
    folder.write("show.part2.scc",
                 sccFile({line("00:00:01:00"), line("00:00:02:00"), line("00:00:03:00")}));
    folder.write("bad.scc", sccFile({line("00:00:01:00"), "bad"}));
    folder.write("notes.txt", "");
    folder.write("none.scc", "header");
    window();
    desktop.takeLog();
    desktop.whenSeen = [](const std::string &line) {
        if (line.starts_with("save dialog")) // during which a watch decodes another file
            window().fileName = "other.scc";
    };
    decode("show.part2.scc", "show.txt");
    desktop.whenSeen = nullptr;
    EXPECT_TRUE(folder.read("show.txt").starts_with("Transcripts of show\n"));
    EXPECT_EQ(window().captionArray2.size() + window().timeCodeArray.size(), 0U);
    decode("none.scc", "");
    for (const char *name : {"bad.scc", "notes.txt"}) {
        desktop.answerFile(folder.item(name));
        desktop.click(window().BevelButton1);
    }
    EXPECT_EQ(seen(), scene("one_file"));
}

TEST_F(OneFile, LinesOfEveryKindOfEnding) {
    folder.write("a.scc", "header\r\r\n\n" + line("00:00:01:00") + "\r\n\r\n" +
                              line("00:00:02:00") + "\r" + line("00:00:03:00", "") + "\n" +
                              line("00:00:04:00") + "\textra field");
    decode("a.scc", "a.txt");
    EXPECT_EQ(folder.read("a.txt"),
              "Transcripts of a\n\n[00:00:01.33]\t Hi! \n\n[00:00:02.33]\t Hi! \n\n"
              "[00:00:03.00]\t \n\n[00:00:04.33]\t Hi! \n\n\n");
    // No line, and a header only: an empty transcript and no message.
    for (const char *text : {"", "\n\r\n", "header"}) {
        folder.write("a.scc", text);
        decode("a.scc", "a.txt");
        EXPECT_EQ(folder.read("a.txt"), "Transcripts of a\n\n\n");
    }
    // Names without a point, and with nothing before it.
    folder.write("xscc", "header");
    decode("xscc", "a.txt");
    EXPECT_EQ(folder.read("a.txt"), "Transcripts of xscc\n\n\n");
    folder.write(".scc", "header");
    decode(".scc", "a.txt");
    EXPECT_EQ(folder.read("a.txt"), "Transcripts of \n\n\n");
    EXPECT_EQ(messages(), Lines{});
}

TEST_F(OneFile, BadLinesStopWithTheirMessageAndNoTranscript) {
    const std::pair<std::string, std::string> rows[] = {
        {sccFile({line("00:00:01:00"), "   "}), kNoTimecode},
        {sccFile({line("0:0:01:00"), "no colon\t9420"}), kNoTimecode},
        {sccFile({"00:00:01:00 9420 9420"}), kNoTab},
        {sccFile({line("00:00:05")}), "This could not be finished: data line 1 of “bad.scc”: the "
                                      "timecode “00:00:05” has fewer than four fields."},
        {sccFile({line("00:00:01:00", "13ba")}),
         "This could not be finished: data line 1 of “bad.scc”: the codes “13ba” leave no pair of "
         "characters."}};
    for (const auto &[text, message] : rows) {
        folder.write("bad.scc", text);
        desktop.answerFile(folder.item("bad.scc"));
        desktop.click(window().BevelButton1);
        EXPECT_EQ(messages(), Lines{message});
    }
    EXPECT_EQ(window().timeCodeArray.size(), 3U) << "a timecode comes before its caption";
    EXPECT_EQ(folder.tree(), Lines{"bad.scc"});
}

TEST_F(OneFile, NothingIsSaidOfAFileThatCannotBeOpened) {
    folder.write("x.scc/inside", "");
    const Ref<FolderItem> asFolder = folder.item("x.scc");
    const Ref<FolderItem> vanished = folder.item("gone.scc");
    for (const Ref<FolderItem> &item : {asFolder, vanished, HeadlessDesktop::cancel()}) {
        desktop.answerFile(item);
        desktop.click(window().BevelButton1);
    }
    EXPECT_EQ(messages(), Lines{});
    EXPECT_EQ(window().fileName, "");
}

} // namespace
} // namespace norvane
