#include "framework/files/folder_item.h"
#include "tests/support/faults.h"
#include "tests/support/scenario.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace norvane {
namespace {

class Files : public testing::Test {
  protected:
    TemporaryFolder folder;
};

TEST_F(Files, PathsThatLeadSomewhere) {
    folder.write("file", "");
    const std::string nul("/tmp/a\0b", 8);
    for (const std::string &path : {std::string(), std::string("file"), std::string("./file"), nul,
                                    folder.path("none/file"), folder.path("file/under")})
        EXPECT_FALSE(GetFolderItem(path, 0)) << path;
    EXPECT_FALSE(GetFolderItem(folder.path("none"), 0)->Exists());
    EXPECT_EQ(GetFolderItem("/", 0)->AbsolutePath(), "/");
    EXPECT_EQ(GetFolderItem("/tmp", 0)->AbsolutePath(), "/tmp/");
    EXPECT_EQ(GetFolderItem("/tmp//", 0)->Name(), "tmp");
    EXPECT_EQ(folder.item("file")->AbsolutePath(), folder.path("file"));

    const auto top = folder.item("");
    EXPECT_FALSE(top->Child("none")->Exists());
    using namespace std::string_view_literals;
    for (const std::string_view name : {""sv, "."sv, ".."sv, "a/b"sv, "a\0b"sv})
        EXPECT_FALSE(top->Child(name)) << name;
    EXPECT_FALSE(folder.item("file")->Child("x"));
    EXPECT_FALSE(folder.item("none")->Child("x"));
}

TEST_F(Files, AListingIsTakenOnceAndSortedByBytes) {
    for (const char *name : {"b", "B", ".hidden", "é", "\xff", "a\nb"})
        folder.write(name, "");
    const auto top = folder.item("");
    Lines names;
    for (std::size_t i = 1; i <= top->Count(); ++i) {
        names.push_back(top->Item(i)->Name());
        folder.write("0" + std::to_string(i), "");
    }
    EXPECT_EQ(names, (Lines{".hidden", "B", "a\nb", "b", "é", "\xff"}));
    EXPECT_FALSE(top->Item(0));
    EXPECT_FALSE(top->Item(7));
    EXPECT_EQ(folder.item("")->Count(), 12U);
    EXPECT_EQ(folder.item("b")->Count(), 0U);
}

TEST_F(Files, AFileIsWrittenWholeOrNotAtAll) {
    folder.write("old.txt", "old");
    const auto item = folder.item("old.txt");
    item->CreateTextFile()->WriteLine("never closed");
    folder.item("new.txt")->CreateTextFile()->WriteLine("never closed");
    {
        const FullDisk full(3000);
        const auto stream = item->CreateTextFile();
        EXPECT_THROW(stream->WriteLine(std::string(4000, 'x')), IOException);
    }
    folder.write("source", std::string(4000, 'x'));
    {
        const FullDisk full(3000);
        folder.item("source")->CopyFileTo(*item, CopyOf::whatStays);
        folder.item("source")->CopyFileTo(*folder.item("copy"), CopyOf::whatGoes);
    }
    EXPECT_EQ(folder.read("old.txt"), "old");
    EXPECT_EQ(folder.tree(), (Lines{"old.txt", "source"}));

    // A replacement goes where a link leads, and leaves the link.
    std::filesystem::create_symlink("old.txt", folder.path("link"));
    const auto stream = folder.item("link")->CreateTextFile();
    stream->WriteLine("new");
    EXPECT_EQ(folder.read("old.txt"), "old");
    stream->Close();
    EXPECT_EQ(folder.read("old.txt"), "new\n");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
    EXPECT_EQ(folder.tree(), (Lines{"link", "old.txt", "source"}));

    // What is no file stays, and nobody waits for it.
    ASSERT_EQ(mkfifo(folder.path("fifo").c_str(), 0600), 0);
    EXPECT_FALSE(folder.item("fifo")->CreateTextFile());
    EXPECT_FALSE(folder.item("")->CreateTextFile());
    EXPECT_FALSE(FolderItem(folder.path("none/a.txt")).CreateTextFile());
}

TEST_F(Files, WhatAKilledWriterLeftIsRemovedAndNoOthers) {
    folder.write(".norvane-1.part", "half");
    folder.write(".norvane-2.part", "at work");
    folder.write(".norvane-notes", "not ours");
    const int atWork = open(folder.path(".norvane-2.part").c_str(), O_RDONLY);
    ASSERT_EQ(flock(atWork, LOCK_EX), 0);
    folder.item("a.txt")->CreateTextFile()->Close();
    close(atWork);
    EXPECT_EQ(folder.tree(), (Lines{".norvane-2.part", ".norvane-notes", "a.txt"}));
}

} // namespace
} // namespace norvane
