#include "framework/files/folder_item.h"
#include "framework/files/handle.h"
#include "tests/support/faults.h"
#include "tests/support/scenario.h"

#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>

namespace norvane {
namespace {

class Files : public testing::Test {
  protected:
    ~Files() override { disk::systemCalls = {}; }

    void write(const std::string &name, const std::string &text, mode_t mode) const {
        folder.write(name, text);
        chmod(folder.path(name).c_str(), mode);
    }
    struct stat statusOf(const std::string &name) const {
        struct stat status {};
        EXPECT_EQ(lstat(folder.path(name).c_str(), &status), 0) << name;
        return status;
    }
    mode_t modeOf(const std::string &name) const { return statusOf(name).st_mode & 07777U; }
    /// Makes a link that belongs to `user`.
    void link(const std::string &target, const std::string &name, uid_t user) const {
        std::filesystem::create_symlink(target, folder.path(name));
        EXPECT_EQ(lchown(folder.path(name).c_str(), user, user), 0);
    }

    TemporaryFolder folder;
};

TEST_F(Files, PathsThatLeadSomewhere) {
    folder.write("file", "");
    const std::string nul("/tmp/a\0b", 8);
    for (const std::string &path : {std::string(), std::string("file"), std::string("./file"), nul,
                                    folder.path("none/file"), folder.path("file/under")})
        EXPECT_FALSE(GetFolderItem(path)) << path;
    EXPECT_FALSE(GetFolderItem(folder.path("none"))->Exists());
    EXPECT_EQ(GetFolderItem("/")->AbsolutePath(), "/");
    EXPECT_EQ(GetFolderItem("/tmp")->AbsolutePath(), "/tmp/");
    EXPECT_EQ(GetFolderItem("/tmp//")->Name(), "tmp");
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
    folder.write("source", "");
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

TEST_F(Files, WhatCameSinceTheLookStays) {
    // What systems and file systems lack: links, files without a name, a rename that replaces
    // nothing.
    disk::SystemCalls calls[5];
    for (const int row : {1, 2, 3})
        calls[row].linkat = {[](int, auto, int, auto, int) { return errno = EPERM, -1; }};
    for (const int row : {2, 3, 4}) {
        calls[row].faccessat = {[](int in, auto name, int how, int flags) {
            return how == X_OK ? -1 : faccessat(in, name, how, flags);
        }};
    }
    for (const int row : {3, 4})
        calls[row].renameToNew = {[](int, auto, int, auto) { return errno = EINVAL, -1; }};
    std::string name = "a";
    for (const disk::SystemCalls &some : calls) {
        disk::systemCalls = some;
        for (const bool comes : {false, true}) {
            ++name.back();
            const auto item = folder.item(name);
            const auto stream = item->CreateTextFile(Existing::stays);
            stream->WriteLine("mine");
            if (comes)
                folder.write(name, "theirs");
            if (comes)
                EXPECT_THROW(stream->Close(), IOException);
            else
                stream->Close();
            EXPECT_EQ(folder.read(name), comes ? "theirs" : "mine\n");
            EXPECT_EQ(modeOf(name), modeOf("b"));
        }
        folder.item("b")->CreateTextFile()->Close(); // which replaces what is there
        EXPECT_EQ(folder.read("b"), "");
        folder.write("b", "mine");
    }
    EXPECT_EQ(folder.tree().size(), 10U);
    for (const bool replaced : {false, true}) {
        folder.write("input", "old");
        const auto item = folder.item("input");
        const auto stream = item->OpenAsTextFile();
        stream->Close();
        folder.write(replaced ? "other" : "input", "longer"); // written to, it is still the same
        if (replaced)
            std::filesystem::rename(folder.path("other"), folder.path("input"));
        item->Delete(*stream);
        EXPECT_EQ(folder.has("input"), replaced);
    }
}

TEST_F(Files, WhatAKilledWriterLeftIsRemovedAndNoOthers) {
    folder.write(".norvane-1.part", "half");
    folder.write(".norvane-2.part", "at work");
    folder.write(".norvane-notes", "not ours");
    const int atWork = open(folder.path(".norvane-2.part").c_str(), O_RDONLY);
    ASSERT_EQ(flock(atWork, LOCK_EX), 0);
    disk::systemCalls.linkat = {[](int, auto, int, auto, int) { return errno = EPERM, -1; }};
    disk::systemCalls.faccessat = {[](int, auto, int, int) { return -1; }};
    const auto named = folder.item("b.txt")->CreateTextFile();
    folder.item("/a.txt")->CreateTextFile()->Close(); // swept anew, as by another program
    named->Close();
    close(atWork);
    EXPECT_EQ(folder.tree(), (Lines{".norvane-2.part", ".norvane-notes", "a.txt", "b.txt"}));
}

TEST_F(Files, WhatCannotBeLookedAtIsNotMissing) {
    std::filesystem::create_symlink("loop", folder.path("loop"));
    const auto loop = folder.item("loop");
    const auto reach = [&](auto look) {
        try {
            look();
        } catch (const IOException &failure) {
            return std::string(failure.what());
        }
        return std::string("no failure");
    };
    const std::string problem =
        "“" + folder.path("loop") + "” cannot be reached: Too many levels of symbolic links.";
    EXPECT_EQ(reach([&] { loop->Exists(); }), problem);
    EXPECT_EQ(reach([&] { loop->AbsolutePath(); }), problem);
    EXPECT_EQ(reach([&] { loop->Child("x"); }), problem);
    EXPECT_EQ(reach([&] { loop->Count(); }), problem);
    EXPECT_EQ(reach([&] { loop->Directory(); }), problem);
    EXPECT_TRUE(folder.item("loop/x")) << "may well be there";
    // As many links on a way as the system itself follows.
    for (int i = 0; i < 41; ++i)
        std::filesystem::create_symlink("link" + std::to_string(i + 1),
                                        folder.path("link" + std::to_string(i)));
    folder.write("link41", "");
    EXPECT_TRUE(folder.item("link1")->OpenAsTextFile());
    EXPECT_FALSE(folder.item("link0")->OpenAsTextFile());
}

TEST_F(Files, PermissionBits) {
    const mode_t before = umask(027);
    folder.item("new")->CreateTextFile()->Close();
    folder.item("private")->CreatePrivateTextFile()->Close();
    write("shared", "", 0664);
    folder.item("shared")->CreatePrivateTextFile()->Close();
    write("set", "", 06775);
    folder.item("set")->CreateTextFile()->Close();
    chmod(folder.path().c_str(), 0777);
    {
        const OrdinaryUser user;
        for (const char *text :
             {"first", "second"}) { // the copy is for reading only, and gives way
            write("source", text, 0);
            chmod(folder.path("source").c_str(), 04444);
            folder.item("source")->CopyFileTo(*folder.item("copy"), CopyOf::whatGoes);
            EXPECT_EQ(folder.read("copy"), text);
            chmod(folder.path("source").c_str(), 0666);
        }
        EXPECT_FALSE(folder.item("copy")->CreateTextFile());
        folder.item("source")->CopyFileTo(*folder.item("open"), CopyOf::whatStays);
    }
    umask(before);
    EXPECT_EQ(modeOf("new"), 0640U);
    EXPECT_EQ(modeOf("private"), 0600U);
    EXPECT_EQ(modeOf("shared"), 0664U);
    EXPECT_EQ(modeOf("set"), 0775U);
    EXPECT_EQ(modeOf("copy"), 0444U);
    EXPECT_EQ(modeOf("open"), 0666U);
}

TEST_F(Files, ACopyThatIsThereIsLeftAloneAndOnlyWhatMustLastIsFlushed) {
    static int flushes;
    disk::systemCalls.fsync = {[](int) { return ++flushes, 0; }};
    const auto copy = [&](CopyOf use) { // tells how many flushes it took, and whether it was new
        const ino_t before = folder.has("copy") ? statusOf("copy").st_ino : 0;
        const Handle keepsItsNumber(open(folder.path("copy").c_str(), O_RDONLY));
        flushes = 0;
        folder.item("source")->CopyFileTo(*folder.item("copy"), use);
        EXPECT_EQ(folder.read("copy"), folder.read("source"));
        EXPECT_EQ(modeOf("copy"), modeOf("source"));
        return std::pair(flushes, statusOf("copy").st_ino != before);
    };
    std::string text(100000, 'x'); // more than is compared at once
    write("source", text, 0644);
    EXPECT_EQ(copy(CopyOf::whatStays), std::pair(0, true));
    EXPECT_EQ(copy(CopyOf::whatStays), std::pair(0, false));
    EXPECT_EQ(copy(CopyOf::whatGoes), std::pair(2, false));
    text.back() = 'y';
    write("source", text, 0644);
    EXPECT_EQ(copy(CopyOf::whatGoes), std::pair(2, true));
    write("source", text, 0600);
    EXPECT_EQ(copy(CopyOf::whatStays), std::pair(0, true));
    write("source", text + "z", 0600);
    EXPECT_EQ(copy(CopyOf::whatStays), std::pair(0, true));
    flushes = 0;
    folder.item("text")->CreateTextFile()->Close();
    EXPECT_EQ(flushes, 2);
    disk::systemCalls.fsync = {[](int) { return -1; }};
    EXPECT_THROW(folder.item("text")->CreateTextFile()->Close(), IOException);
}

TEST_F(Files, AFileThatGrowsEndsWhereItEnded) {
    static std::string path;
    path = folder.path("busy");
    folder.write("busy", std::string(100000, 'x'));
    disk::systemCalls.read = {[](int file, void *bytes, std::size_t size) {
        std::ofstream(path, std::ios::app) << "more";
        return ::read(file, bytes, size);
    }};
    folder.item("busy")->CopyFileTo(*folder.item("copy"), CopyOf::whatStays);
    EXPECT_EQ(folder.read("copy").size(), 100000U);
    const std::size_t before = folder.read("busy").size();
    EXPECT_GT(before, 100000U);
    EXPECT_EQ(folder.item("busy")->OpenAsTextFile()->ReadLine().size(), before);
    std::filesystem::resize_file(path, 3);
    disk::systemCalls.read = {[](int file, void *bytes, std::size_t size) {
        std::filesystem::resize_file(path, 1);
        return ::read(file, bytes, size);
    }};
    EXPECT_EQ(folder.item("busy")->OpenAsTextFile()->ReadLine(), "x");
}

TEST_F(Files, AFolderIsLockedByOneOfTheUsersProgramsAtATime) {
    setenv("XDG_CONFIG_HOME", folder.path("new").c_str(), 1);
    std::filesystem::create_directory(folder.path("watch"));
    folder.write("file", "");
    {
        const auto lock = folder.item("watch")->Lock();
        EXPECT_TRUE(*lock && *folder.item("watch")->Lock() == *lock) << "and again by itself";
        ASSERT_EQ(folder.tree().size(), 4U);
        EXPECT_EQ(modeOf(folder.tree()[2]), 0600U);
    }
    EXPECT_EQ(folder.tree(), (Lines{"file", "new/", "watch/"}));
    EXPECT_FALSE(*folder.item("file")->Lock());
    static Handle others; // whose lock ends, and its file with it, when this one has opened it
    disk::systemCalls.flock = {[](int file, int how) {
        if (!others.isOpen()) {
            others = Handle(dup(file));
            std::filesystem::remove(
                std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file)));
        }
        return ::flock(file, how);
    }};
    EXPECT_TRUE(*folder.item("watch")->Lock());
    disk::systemCalls.flock = {[](int, int) { return errno = EWOULDBLOCK, -1; }};
    EXPECT_FALSE(folder.item("watch")->Lock());
    disk::systemCalls.flock = {[](int, int) { return errno = ENOLCK, -1; }};
    EXPECT_FALSE(*folder.item("watch")->Lock());
}

TEST_F(Files, OnlyLinksOfTheUserAndOfRootAreFollowed) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make links of other users";
    constexpr uid_t kStranger = 1;
    folder.write("home/keys", "keys");
    for (const uid_t user : {0U, 65534U, kStranger}) {
        link("home", "folder" + std::to_string(user), user);
        link("home/keys", "keys" + std::to_string(user), user);
    }
    const auto isFollowed = [&](const std::string &suffix) {
        const auto keys = folder.item("keys" + suffix);
        EXPECT_TRUE(keys->Exists());
        const bool followed = bool(keys->OpenAsTextFile());
        keys->CopyFileTo(*folder.item("copy" + suffix), CopyOf::whatStays);
        EXPECT_EQ(folder.has("copy" + suffix), followed);
        EXPECT_EQ(bool(folder.item("")->Child("keys" + suffix)), followed);
        EXPECT_EQ(folder.item("folder" + suffix)->Directory(), followed);
        EXPECT_EQ(folder.item("folder" + suffix + "/")->Exists(), followed);
        EXPECT_EQ(folder.item("folder" + suffix)->Count(), followed ? 1U : 0U);
        EXPECT_EQ(bool(folder.item("folder" + suffix + "/keys")), followed);
        return followed;
    };
    chmod(folder.path().c_str(), 0777);
    EXPECT_TRUE(isFollowed("0") && !isFollowed("65534") && !isFollowed("1"));
    {
        const OrdinaryUser user;
        EXPECT_TRUE(isFollowed("0") && isFollowed("65534") && !isFollowed("1"));
        // A copy or a text takes the place of a stranger's link.
        folder.item("copy0")->CopyFileTo(*folder.item("keys1"), CopyOf::whatStays);
        folder.item("folder1")->CreateTextFile()->Close();
    }
    EXPECT_TRUE(S_ISREG(statusOf("keys1").st_mode) && S_ISREG(statusOf("folder1").st_mode));
    EXPECT_EQ(folder.read("keys1"), "keys");
    // Deleting a link leaves what it leads to.
    folder.item("keys0")->Delete(*folder.item("keys0")->OpenAsTextFile());
    EXPECT_EQ(folder.read("home/keys"), "keys");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.path("keys0")));
}

} // namespace
} // namespace norvane
