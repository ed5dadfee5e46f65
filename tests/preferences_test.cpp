#include "tests/support/scenario.h"

#include <array>

namespace norvane {
namespace {

constexpr const char *kFile = "com.bellwick.norvane.prefs";
constexpr std::int64_t kDay = 86400000;

class Preferences : public Scenario {
  protected:
    /// Opens the window on a preference file of this text and gives its state.
    std::string openOn(const std::string &text) {
        closeWindow();
        preferences.write(kFile, text);
        return state();
    }

    /// The settings as a short text: the boxes and buttons that are on, the interval, the folders.
    static std::string state() {
        const Window1 &w = window();
        std::string on;
        on += w.LineBox.Value ? "L" : "";
        on += w.TimecodeBox.Value ? "T" : "";
        on += w.ParagraphBox.Value ? "P" : "";
        on += w.RadioButton1.Value ? "1" : "";
        on += w.RadioButton2.Value ? "2" : "";
        on += w.CheckBox1.Value ? "W" : "";
        EXPECT_EQ(w.hotFolder, w.TextField1.Text.get());
        EXPECT_EQ(w.destFolder, w.TextField2.Text.get());
        return on + " " + w.timerText.Text.get() + " " + w.hotFolder + " " + w.destFolder;
    }

    /// The lines of a file with the watch on, over folders that exist.
    std::string withWatch(const std::string &options) const {
        return options + "0.5\n" + folder.path("watch/\n") + folder.path("dest/\ntrue\n");
    }
};

TEST_F(Preferences, EveryFileGivesADefinedState) {
    EXPECT_EQ(state(), "LT1 15  ") << "as designed, without a file";
    EXPECT_EQ(window().Timer1.Period, 900000);
    const std::pair<const char *, const char *> rows[] = {
        {"", "LT   "}, // three times false still ends in lines with timecodes
        {"true\nfalse\nfalse\nfalse\ntrue\n", "L2   "},
        {"false\nfalse\ntrue\ntrue\nfalse\n2\n/w/\n/d/\nfalse\n", "P1 2 /w/ /d/"},
        {"false\r\nfalse\r\nTRUE\r\nTrue\r\nfalse\r\n2\r\n/w/\r\n/d/\r\nfalse\r\n", "P1 2 /w/ /d/"},
        {"true\ntrue\nfalse\ntrue\ntrue\n1\n/é🎬/\n/\xff/\nfalse\nten\ntrue\nx",
         "LT2 1 /é🎬/ /\xff/"},
        {"true\ntrue\ntrue\nyes\n true\nabc\n\n\n1", "P abc  "},
        {"false\ntrue\nfalse\ntrue", "LT1   "}};
    for (const auto &[text, expected] : rows) {
        EXPECT_EQ(openOn(text), expected) << text;
        EXPECT_FALSE(window().Timer1.due());
    }
    EXPECT_EQ(messages(), Lines{});
}

TEST_F(Preferences, WhatIsSavedComesBack) {
    window().hotFolder = "/é\xff/";
    window().TextField1.Text = "/é\xff/";
    desktop.click(window().ParagraphBox);
    desktop.click(window().RadioButton2);
    desktop.type(window().timerText, " 1.5 min");
    closeWindow();
    const std::string saved = "false\nfalse\ntrue\nfalse\ntrue\n 1.5 min\n/é\xff/\n\nfalse\n";
    EXPECT_EQ(preferences.read(kFile), saved);
    EXPECT_EQ(state(), "P2  1.5 min /é\xff/ ");
    desktop.click(window().TimecodeBox);
    desktop.click(window().TimecodeBox);
    closeWindow();
    EXPECT_EQ(state(), "L2  1.5 min /é\xff/ ");
    EXPECT_EQ(preferences.tree(), Lines{kFile});
}

TEST_F(Preferences, AWatchThatWasOnRunsOneCycleAsDesigned) {
    folder.write("watch/show.scc", sccFile({hiLine("00:00:01:00")}));
    folder.write("dest/x", "");
    EXPECT_EQ(openOn(withWatch("false\nfalse\ntrue\nfalse\ntrue\n")),
              "P2W 0.5 " + folder.path("watch/ ") + folder.path("dest/"));
    EXPECT_EQ(seen(), scene("start"));
    EXPECT_EQ(folder.read("dest/show.txt"), hiTranscript("show.scc", {"00:00:01.33"}));
    // Checked and stopped, until the box is switched off and on.
    EXPECT_TRUE(window().myWatchFolder);
    folder.write("watch/b.scc", "header");
    desktop.advance(kDay);
    EXPECT_TRUE(folder.has("watch/b.scc"));
    desktop.click(window().CheckBox1);
    desktop.click(window().CheckBox1);
    EXPECT_FALSE(folder.has("watch/b.scc"));
    folder.write("watch/c.scc", "header");
    desktop.advance(30000);
    EXPECT_EQ(folder.read("dest/c.txt"), "Transcripts of c.scc\n\n\n");
    closeWindow();
    EXPECT_TRUE(preferences.read(kFile).ends_with("/dest/\ntrue\n"));
    EXPECT_EQ(state().substr(0, 3), "P2W");

    // A message in that cycle, and one of a folder that is missing, come up and go.
    folder.write("watch/a.scc", "header\nbad");
    EXPECT_EQ(openOn(withWatch("true\ntrue\nfalse\ntrue\nfalse\n")).substr(0, 4), "LT1W");
    EXPECT_EQ(messages(), Lines{"There does not appear to be any timecode in this file."});
    EXPECT_FALSE(window().Timer1.due());
    EXPECT_EQ(openOn("true\ntrue\nfalse\ntrue\nfalse\n1\n\n/d/\ntrue\n"), "LT1 1  /d/");
    EXPECT_EQ(messages(), Lines{"You must choose both a watch folder and a destination folder to "
                                "activate the timer."});

    // A cycle that fails ends there: all options are applied and the timer is off.
    folder.write("watch/a.scc", "header\n00:00:01:00\t13ba");
    EXPECT_EQ(openOn(withWatch("false\nfalse\ntrue\nfalse\ntrue\n")).substr(0, 4), "P2W ");
    EXPECT_FALSE(window().Timer1.due());
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_TRUE(folder.has("watch/a.scc"));
}

TEST_F(Preferences, AFileThatCannotBeWrittenIsToldOfAndStays) {
    window();
    preferences.write(std::string(kFile) + "/inside", "");
    EXPECT_EQ(state(), "LT1 15  ");
    closeWindow();
    EXPECT_EQ(messages(),
              Lines{"This could not be finished: “" + preferences.path(kFile) + "” is a folder."});

    // Where there can be no folder for preferences, nothing is kept and nothing made.
    folder.write("file", "a file");
    const std::string noHome =
        "there is no folder for preferences, since HOME is not the full path of one.";
    const std::array<std::string, 3> rows[] = {
        {"XDG_CONFIG_HOME", folder.path("file"),
         "“" + folder.path("file") + "” is not a folder and cannot be made one."},
        {"HOME", folder.path("file"), noHome},
        {"HOME", folder.path("none"), noHome},
        {"HOME", "x/y", noHome}};
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    for (const auto &[variable, value, problem] : rows) {
        setenv("XDG_CONFIG_HOME", "relative", 1);
        setenv(variable.c_str(), value.c_str(), 1);
        EXPECT_EQ(state(), "LT1 15  ");
        EXPECT_EQ(messages(), Lines{});
        closeWindow();
        EXPECT_EQ(messages(), Lines{"This could not be finished: " + problem});
    }
    EXPECT_EQ(folder.tree(), Lines{"file"});
    std::filesystem::current_path(before);
    setenv("HOME", folder.path().c_str(), 1);
    closeWindow();
    EXPECT_EQ(folder.tree(), (Lines{".config/", ".config/com.bellwick.norvane.prefs", "file"}));
    setenv("XDG_CONFIG_HOME", folder.path("made/for it").c_str(), 1);
    closeWindow();
    EXPECT_TRUE(folder.has("made/for it/com.bellwick.norvane.prefs"));
    EXPECT_EQ(messages(), Lines{});
}

} // namespace
} // namespace norvane
