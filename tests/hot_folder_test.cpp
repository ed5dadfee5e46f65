#include "framework/files/handle.h"
#include "shell/app.h"
#include "tests/support/faults.h"
#include "tests/support/scenario.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace norvane {
namespace {

constexpr std::int64_t kMinute = 60000;
constexpr std::int64_t kInterval = 15 * kMinute;
constexpr const char *kNoWatchFolder =
    "Could not locate the Watch folder. Please use the Browse button and reselect it.";
constexpr const char *kBothFolders =
    "You must choose both a watch folder and a destination folder to activate the timer.";

std::string failed(const std::string &what) {
    return "This could not be finished: " + what;
}

class HotFolder : public Scenario {
  protected:
    HotFolder() {
        std::filesystem::create_directory(folder.path("watch"));
        std::filesystem::create_directory(folder.path("dest"));
    }

    void choose(const std::string &watch, const std::string &dest) {
        desktop.answerFolder(folder.item(watch));
        desktop.click(window().BevelButton6);
        desktop.answerFolder(folder.item(dest));
        desktop.click(window().BevelButton7);
    }

    /// Switches the watch on, which runs a cycle; gives that cycle's messages.
    Lines watch() {
        choose("watch", "dest");
        desktop.click(window().CheckBox1);
        return messages();
    }

    /// Switches a watch that is on off and on again; gives the messages of the cycle.
    Lines cycle() {
        desktop.click(window().CheckBox1);
        desktop.click(window().CheckBox1);
        return messages();
    }

    /// Lets an interval go by; gives the messages of it.
    Lines wait() {
        desktop.advance(kInterval);
        return messages();
    }

    void input(const std::string &name, const Lines &lines) {
        folder.write("watch/" + name, sccFile(lines));
    }
};

TEST_F(HotFolder, ACycleTakesSccNamesAndCopiesAll) {
    EXPECT_EQ(watch(), Lines{});
    EXPECT_EQ(wait(), Lines{}); // nothing there: no copy folder either, but for the first cycle's
    input("show.scc", {hiLine("00:00:01:00"), hiLine("00:00:02:00")});
    input("part.part1.scc", {hiLine("00:00:03:00")});
    input("part.part2.scc", {hiLine("00:00:04:00")});
    input("mysccnotes.txt", {hiLine("00:00:05:00")});
    folder.write("watch/notes.txt", "notes");
    folder.write("watch/.hidden", "hidden");
    folder.write("watch/sub/inner.scc", "not entered");
    folder.write("dest/show.txt", "older");
    folder.write("dest/show_1.txt", "older");
    EXPECT_EQ(wait(), Lines{});
    EXPECT_EQ(folder.read("dest/show.txt"), "older");
    EXPECT_EQ(folder.read("dest/show_1.txt"),
              hiTranscript("show.scc", {"00:00:01.33", "00:00:02.33"}));
    EXPECT_EQ(folder.read("dest/part.txt"), hiTranscript("part.part1.scc", {"00:00:03.33"}));
    EXPECT_EQ(folder.read("dest/part_1.txt"), hiTranscript("part.part2.scc", {"00:00:04.33"}));
    EXPECT_EQ(folder.read("dest/mysccnotes.txt"), hiTranscript("mysccnotes.txt", {"00:00:05.33"}));
    const Lines tree = folder.tree();
    EXPECT_EQ(tree,
              (Lines{"dest/", "dest/mysccnotes.txt", "dest/part.txt", "dest/part_1.txt",
                     "dest/scc files/", "dest/scc files/.hidden", "dest/scc files/mysccnotes.txt",
                     "dest/scc files/notes.txt", "dest/scc files/part.part1.scc",
                     "dest/scc files/part.part2.scc", "dest/scc files/show.scc", "dest/show.txt",
                     "dest/show_1.txt", "watch/", "watch/.hidden", "watch/notes.txt", "watch/sub/",
                     "watch/sub/inner.scc"}));
    // What stays is copied anew each time, and the bar stays in view over it.
    folder.write("watch/notes.txt", "more notes");
    EXPECT_EQ(wait(), Lines{});
    EXPECT_EQ(folder.read("dest/scc files/notes.txt"), "more notes");
    EXPECT_EQ(folder.tree(), tree);
    EXPECT_TRUE(window().ProgressBar1.Visible);
}

TEST_F(HotFolder, ABadFileHoldsUpThoseBehindItAndItsTimecodesPileUp) {
    input("a.scc", {hiLine("00:00:01:00")});
    input("b.scc", {hiLine("00:00:02:00"), "00:00:03:00 no tab"});
    input("c.scc", {hiLine("03:00:00:00"), hiLine("04:00:00:00"), hiLine("05:00:00:00"),
                    hiLine("06:00:00:00")});
    const Lines told{"This SCC file does not appear to be formatted correctly. It needs to have a "
                     "tab between the timecode and the hexidecimal caption code."};
    EXPECT_EQ(watch(), told);
    EXPECT_FALSE(folder.has("watch/a.scc"));
    EXPECT_EQ(wait(), told);
    EXPECT_EQ(wait(), told);
    EXPECT_EQ(window().timeCodeArray.size(), 3U);
    EXPECT_TRUE(folder.has("watch/b.scc") && folder.has("watch/c.scc"));

    std::filesystem::remove(folder.path("watch/b.scc"));
    desktop.advance(kInterval);
    EXPECT_EQ(seen(), scene("cycle"));
    EXPECT_EQ(folder.read("dest/c.txt"),
              hiTranscript("c.scc", {"00:00:02.33", "00:00:02.33", "00:00:02.33", "03:00:00.33"}));
}

TEST_F(HotFolder, TheWatchFolderMayBeTheDestination) {
    choose("watch", "watch");
    input("show.scc", {hiLine("00:00:01:00")});
    desktop.click(window().RadioButton2);
    desktop.click(window().CheckBox1);
    EXPECT_EQ(folder.tree(), (Lines{"dest/", "watch/", "watch/scc files/",
                                    "watch/scc files/show.scc", "watch/show.txt"}));
    EXPECT_EQ(wait(), Lines{});
    EXPECT_TRUE(folder.has("watch/scc files/show.txt"));
}

TEST_F(HotFolder, WhatIsNoReadableFileEndsTheCycleAndTheTicks) {
    const std::string path = folder.path("watch/a.scc");
    const std::pair<std::function<void()>, std::string> rows[] = {
        {[&] { std::filesystem::create_directory(path); }, "” is a folder."},
        {[&] { std::filesystem::create_symlink("/", path); }, "” is a folder."},
        {[&] { mkfifo(path.c_str(), 0600); }, "” is not a regular file."},
        {[&] { std::filesystem::create_symlink("/dev/zero", path); }, "” is not a regular file."},
        {[&] { std::filesystem::create_symlink("none", path); },
         "” cannot be opened: No such file or directory."}};
    EXPECT_EQ(watch(), Lines{});
    for (const auto &[make, problem] : rows) {
        make();
        input("b.scc", {hiLine("00:00:01:00")});
        EXPECT_EQ(wait(), Lines{failed(std::string("“").append(path).append(problem))});
        EXPECT_EQ(wait(), Lines{}) << "a failed cycle leaves the timer stopped";
        EXPECT_TRUE(std::filesystem::is_symlink(path) || std::filesystem::exists(path));
        EXPECT_TRUE(folder.has("watch/b.scc"));
        EXPECT_EQ(folder.read("dest/a.txt"), hiTranscript("a.scc", {}));
        std::filesystem::remove(path);
        std::filesystem::remove_all(folder.path("dest"));
        std::filesystem::create_directory(folder.path("dest"));
        EXPECT_EQ(cycle(), Lines{});
        EXPECT_FALSE(folder.has("watch/b.scc"));
    }
    // Of a link to a file, the link alone is an input.
    folder.write("kept.scc", sccFile({hiLine("00:00:02:00")}));
    std::filesystem::create_symlink("../kept.scc", path);
    EXPECT_EQ(wait(), Lines{});
    EXPECT_EQ(folder.read("dest/a.txt"), hiTranscript("a.scc", {"00:00:02.33"}));
    EXPECT_FALSE(std::filesystem::is_symlink(path));
    EXPECT_TRUE(folder.has("kept.scc"));
    EXPECT_FALSE(std::filesystem::is_symlink(folder.path("dest/scc files/a.scc")));
}

TEST_F(HotFolder, LinksThatOthersPlanted) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make links of other users";
    const auto plant = [this](const std::string &target, const std::string &name) {
        std::filesystem::create_symlink(folder.path(target), folder.path(name));
        EXPECT_EQ(lchown(folder.path(name).c_str(), 1, 1), 0);
    };
    for (const char *name : {"keys", "diary", "x.txt"})
        folder.write(std::string("home/") + name, "the user's own");
    input("show.scc", {hiLine("00:00:01:00")});
    plant("home", "dest/scc files");
    EXPECT_EQ(watch(), Lines{"Could not locate the Destination folder. Please use the Browse "
                             "button and reselect it."});
    std::filesystem::remove(folder.path("dest/scc files"));
    std::filesystem::create_directory(folder.path("dest/scc files"));
    plant("home/keys", "dest/scc files/keys");
    folder.write("watch/keys", "a stranger's");
    plant("home/diary", "watch/loot");
    folder.write("dest/show.txt", "older");
    plant("home/x.txt", "dest/show_1.txt");
    EXPECT_EQ(cycle(), Lines{});
    plant("home/diary", "watch/b.scc");
    EXPECT_EQ(wait(), Lines{failed("“" + folder.path("watch/b.scc") +
                                   "” is a link that belongs to another user.")});
    EXPECT_EQ(folder.tree(), (Lines{"dest/", "dest/b.txt", "dest/scc files/", "dest/scc files/keys",
                                    "dest/scc files/show.scc", "dest/show.txt", "dest/show_1.txt",
                                    "home/", "home/diary", "home/keys", "home/x.txt", "watch/",
                                    "watch/b.scc", "watch/keys", "watch/loot"}));
    for (const char *name : {"keys", "diary", "x.txt"})
        EXPECT_EQ(folder.read(std::string("home/") + name), "the user's own");
    EXPECT_EQ(folder.read("dest/scc files/keys"), "a stranger's");
    EXPECT_EQ(folder.read("dest/show_1.txt"), hiTranscript("show.scc", {"00:00:01.33"}));

    // What a person picks is followed, but no link in the place of a folder of the watch is.
    plant("watch", "picked");
    folder.write("home/diary", sccFile({hiLine("00:00:01:00")}));
    const auto picked = GetFolderItem(folder.path("picked"), 0, Links::all);
    desktop.answerFolder(picked);
    desktop.answerSave(folder.item("b.txt"));
    desktop.click(window().BevelButton4);
    EXPECT_EQ(messages(), Lines{"All SCC files have been decoded."});
    EXPECT_EQ(folder.read("b.txt"), hiTranscript("b.scc", {"00:00:01.33"}));
    desktop.answerFolder(picked);
    desktop.click(window().BevelButton6);
    for (; window().hotFolder.ends_with("/"); window().hotFolder.pop_back())
        EXPECT_EQ(cycle(), Lines{kNoWatchFolder});
    EXPECT_EQ(cycle(), Lines{kNoWatchFolder});
}

TEST_F(HotFolder, AnotherProgramsCycleIsLeftAlone) {
    EXPECT_EQ(watch(), Lines{});
    input("show.scc", {hiLine("00:00:01:00")});
    disk::systemCalls.flock = {[](int, int) { return errno = EWOULDBLOCK, -1; }};
    EXPECT_EQ(wait(), Lines{});
    EXPECT_EQ(folder.tree(), (Lines{"dest/", "dest/scc files/", "watch/", "watch/show.scc"}));
    disk::systemCalls = {};
    // What others can hold, as the folder itself, keeps nobody out.
    const Handle held(open(folder.path("watch").c_str(), O_RDONLY));
    EXPECT_EQ(flock(held.get(), LOCK_EX), 0);
    EXPECT_EQ(wait(), Lines{});
    EXPECT_TRUE(folder.has("dest/show.txt"));
}

TEST_F(HotFolder, FoldersThatAreMissingOrNone) {
    EXPECT_EQ(watch(), Lines{});
    input("show.scc", {hiLine("00:00:01:00")});

    // The watch folder goes and comes back: no tick says a word, and the watch goes on.
    std::filesystem::rename(folder.path("watch"), folder.path("away"));
    EXPECT_EQ(wait(), Lines{});
    window().ProgressBar1.Visible = false;
    window().captionArray2.Append("of an earlier run");
    EXPECT_EQ(cycle(), Lines{kNoWatchFolder});
    EXPECT_TRUE(window().ProgressBar1.Visible && window().captionArray2.empty());
    folder.write("watch", "a file");
    EXPECT_EQ(wait(), Lines{});
    window().hotFolder = folder.path("none/at all/");
    EXPECT_EQ(wait(), Lines{});
    window().hotFolder = folder.path("watch/");
    std::filesystem::remove(folder.path("watch"));
    std::filesystem::rename(folder.path("away"), folder.path("watch"));
    disk::systemCalls.fstat = {[](int, struct stat *) { return errno = EIO, -1; }};
    EXPECT_EQ(wait(), Lines{failed("“" + folder.path("watch") +
                                   "” cannot be reached: Input/output error.")});
    disk::systemCalls = {};

    const Lines noDestination{"Could not locate the Destination folder. Please use the Browse "
                              "button and reselect it."};
    std::filesystem::remove_all(folder.path("dest"));
    EXPECT_EQ(wait(), noDestination);
    folder.write("dest", "a file");
    EXPECT_EQ(wait(), noDestination) << "a cycle that ends with a message is followed by others";
    EXPECT_TRUE(folder.has("watch/show.scc"));

    // Where the folder of the copies is a file, the copy stands beside it.
    std::filesystem::remove(folder.path("dest"));
    folder.write("dest/scc files", "a file");
    EXPECT_EQ(wait(), Lines{});
    EXPECT_EQ(folder.tree(), (Lines{"dest/", "dest/scc files", "dest/scc filesshow.scc",
                                    "dest/show.txt", "watch/"}));

    desktop.answerFolder(folder.item("none/at all"));
    desktop.click(window().BevelButton7);
    EXPECT_EQ(messages(), Lines{"No folder selected."});
    window().destFolder = folder.path("none/at all/");
    input("show.scc", {hiLine("00:00:01:00")});
    EXPECT_EQ(wait(), Lines{failed("“" + folder.path("none/at all/") +
                                   "” is in a folder that does not exist.")});
    EXPECT_TRUE(folder.has("watch/show.scc"));
}

TEST_F(HotFolder, TheSwitchAndItsTimer) {
    desktop.click(window().CheckBox1);
    EXPECT_EQ(messages(), Lines{kBothFolders});
    EXPECT_FALSE(window().CheckBox1.Value || window().myWatchFolder || window().Timer1.Enabled);
    EXPECT_EQ(window().Timer1.Mode, 0);

    folder.write("watch/bad.scc", "header\nbad");
    desktop.whenSeen = [this](const std::string &line) {
        if (line.starts_with("message "))
            desktop.advance(kInterval);
    };
    EXPECT_EQ(watch(), (Lines{kNoTimecode, kNoTimecode})) << "a tick enters the first cycle again";
    // The pause begins where a cycle ends, and no tick comes while one waits for its
    // user, in whichever cycle it is.
    desktop.whenSeen = [this](const std::string &line) {
        if (line.starts_with("message "))
            desktop.advance(100 * kInterval);
    };
    for (int cycle = 0; cycle < 3; ++cycle) {
        desktop.advance(kInterval - 1);
        EXPECT_EQ(messages(), Lines{});
        desktop.advance(1);
        EXPECT_EQ(messages(), Lines{kNoTimecode}) << cycle;
    }
    desktop.whenSeen = nullptr;

    // The wait in progress keeps its length.
    desktop.type(window().timerText, "0.5");
    EXPECT_EQ(wait(), Lines{kNoTimecode});
    desktop.advance(kMinute);
    EXPECT_EQ(messages(), (Lines{kNoTimecode, kNoTimecode}));
    // Switched off while a cycle waits: the end of its tick starts the timer again.
    desktop.whenSeen = [this](const std::string &line) {
        if (line.starts_with("message ") && window().CheckBox1.Value)
            desktop.click(window().CheckBox1);
    };
    EXPECT_EQ(wait().size(), 30U);
    EXPECT_FALSE(window().CheckBox1.Value || window().myWatchFolder);
    desktop.whenSeen = nullptr;
    desktop.click(window().CheckBox1);
    desktop.click(window().CheckBox1);
    EXPECT_EQ(messages(), Lines{kNoTimecode});
    EXPECT_EQ(wait(), Lines{});

    const std::pair<const char *, std::int64_t> intervals[] = {
        {"15", 900000}, {"1", 60000},   {"0.5", 30000},  {"", 0},
        {"abc", 0},     {" 1", 0},      {"-3", -180000}, {"1e9", 60000000000000},
        {"1e999", 0},   {"0.00001", 0}, {"2 x", 120000}};
    for (const auto &[text, period] : intervals) {
        desktop.type(window().timerText, text);
        EXPECT_EQ(window().Timer1.Period, period) << text;
    }
}

TEST_F(HotFolder, TheCommandThatSwitchesTheWatch) {
    const auto command = [] { App::the().menuCommand("FileEnableHotFolder"); };
    window();
    desktop.takeLog();
    desktop.answerFolder(folder.item("watch"));
    desktop.answerFolder(folder.item("dest"));
    command();
    EXPECT_EQ(seen(), scene("command"));
    EXPECT_EQ(window().destFolder, folder.path("dest/"));
    EXPECT_FALSE(window().CheckBox1.Value || window().myWatchFolder);

    folder.write("watch/bad.scc", "header\nbad");
    EXPECT_EQ(wait(), Lines{});
    command();
    EXPECT_TRUE(window().CheckBox1.Value && window().myWatchFolder);
    desktop.advance(kInterval);
    EXPECT_EQ(messages(), (Lines{kNoTimecode, kNoTimecode}));
    command();
    EXPECT_FALSE(window().CheckBox1.Value || window().myWatchFolder);
    EXPECT_EQ(wait(), Lines{});

    window().hotFolder.clear();
    desktop.answerFolder(HeadlessDesktop::cancel());
    command();
    EXPECT_EQ(messages(), (Lines{kBothFolders, "Please select a folder to watch.",
                                 failed("the dialog was cancelled.")}));
}

TEST_F(HotFolder, ACycleAsksForFoldersThatItLacks) {
    window().hotFolder = folder.path("watch/");
    input("show.scc", {hiLine("00:00:01:00")});
    window().Timer1.Enabled = true;
    desktop.answerFolder(folder.item("dest"));
    EXPECT_EQ(wait(), Lines{"Please select a destination folder for decoded files."});
    EXPECT_TRUE(folder.has("dest/show.txt"));
    EXPECT_EQ(window().TextField2.Text.get(), folder.path("dest/"));

    // The watch folder is looked for before the destination is asked for.
    window().hotFolder = folder.path("late/watch/");
    window().destFolder.clear();
    desktop.answerFolder(folder.item("dest"));
    desktop.whenSeen = [this](const std::string &line) {
        if (line.starts_with("message "))
            folder.write("late/watch/a", "");
    };
    window().importSCCFolder();
    EXPECT_EQ(messages(),
              (Lines{"Please select a destination folder for decoded files.", kNoWatchFolder}));

    window().hotFolder.clear();
    desktop.answerFolder(folder.item("watch"));
    window().importSCCFolder();
    EXPECT_EQ(messages(), Lines{"Please select a folder to watch."});
    EXPECT_EQ(window().TextField1.Text.get(), folder.path("watch/"));
}

} // namespace
} // namespace norvane
