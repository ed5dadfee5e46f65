#include "tests/support/scenario.h"

namespace norvane {
namespace {

class Batch : public Scenario {
  protected:
    /// Presses "Select Folder" and chooses `name`; the saves go to the names in `saves`, ""
    /// cancels.
    void run(const std::string &name, const Lines &saves) {
        desktop.answerFolder(folder.item(name));
        for (const std::string &save : saves)
            desktop.answerSave(save.empty() ? HeadlessDesktop::cancel() : folder.item(save));
        desktop.click(window().BevelButton4);
    }
};

TEST_F(Batch, TakesEachSccNameInOrderAndKeepsTheInputs) {
    folder.write("in/b.part2.scc", sccFile({hiLine("00:00:02:00")}));
    folder.write("in/a.SCC.bak", sccFile({hiLine("00:00:01:00")}));
    folder.write("in/scc", "not taken");
    folder.write("in/notes.txt", "not taken");
    folder.write("in/sub/inner.scc", "not taken");
    window();
    desktop.takeLog();
    run("in", {"a.txt", "b.txt"});
    EXPECT_EQ(seen(), scene("batch"));
    EXPECT_EQ(folder.read("a.txt"), hiTranscript("a.SCC.bak", {"00:00:01.33"}));
    EXPECT_EQ(folder.read("b.txt"), hiTranscript("b.part2.scc", {"00:00:02.33"}));
    run("in", {"", ""});
    EXPECT_EQ(messages(), Lines{"All SCC files have been decoded."});
    EXPECT_EQ(folder.tree(), (Lines{"a.txt", "b.txt", "in/", "in/a.SCC.bak", "in/b.part2.scc",
                                    "in/notes.txt", "in/scc", "in/sub/", "in/sub/inner.scc"}));
}

TEST_F(Batch, NothingToDecodeLeavesTheBarInView) {
    folder.write("in/notes.txt", "");
    folder.write("file.scc", "");
    const std::pair<Ref<FolderItem>, Lines> rows[] = {
        {HeadlessDesktop::cancel(), {"No folder selected."}},
        {folder.item("in"), {}},
        {folder.item("file.scc"), {}},
        {folder.item("gone"), {}}};
    for (const auto &[chosen, told] : rows) {
        window().ProgressBar1.Visible = false;
        window().captionArray2.Append("of an earlier run");
        desktop.answerFolder(chosen);
        desktop.click(window().BevelButton4);
        EXPECT_EQ(messages(), told);
        EXPECT_TRUE(window().ProgressBar1.Visible && window().captionArray2.empty());
    }
}

TEST_F(Batch, AFileThatCannotBeOpenedIsOfferedEmptyAndEndsTheRun) {
    folder.write("in/a.scc/inside", "");
    folder.write("in/b.scc", sccFile({hiLine("00:00:02:00")}));
    run("in", {"a.txt"});
    EXPECT_EQ(messages(),
              Lines{"This could not be finished: “" + folder.path("in/a.scc") + "” is a folder."});
    EXPECT_EQ(folder.read("a.txt"), hiTranscript("a.scc", {}));

    // A folder that goes away in mid-run: the first file's name and stream serve once more.
    std::filesystem::remove_all(folder.path("in/a.scc"));
    folder.write("in/c.scc", "");
    desktop.whenSeen = [&](const std::string &line) {
        if (line == "ProgressText \"Reading SCC File...\"")
            std::filesystem::remove_all(folder.path("in"));
    };
    run("in", {"b.txt", "c.txt"});
    EXPECT_EQ(messages(), Lines{"All SCC files have been decoded."});
    EXPECT_EQ(folder.read("c.txt"), hiTranscript("b.scc", {}));
}

} // namespace
} // namespace norvane
