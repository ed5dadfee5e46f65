#include "framework/windows/guard.h"
#include "shell/app.h"
#include "shell/window1.h"
#include "tests/support/faults.h"
#include "tests/support/scenario.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {
int allocationsLeft = -1; // until one fails; none does while it is negative
}

[[gnu::noinline]] void *operator new(std::size_t size) {
    void *const memory =
        allocationsLeft >= 0 && allocationsLeft-- == 0 ? nullptr : std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}
[[gnu::noinline]] void operator delete(void *memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void *memory, std::size_t) noexcept {
    std::free(memory);
}

namespace norvane {
namespace {

constexpr const char *kOld = "old";
constexpr const char *kNotes = "notes";
constexpr const char *kTimecode = "00:00:01.33";
constexpr const char *kDesigned = "true\ntrue\nfalse\ntrue\nfalse\n15\n\n\nfalse\n";
constexpr const char *kSettings = "false\nfalse\ntrue\nfalse\ntrue\n2\n/w/\n/d/\nfalse\n";
constexpr const char *kPreferences = "prefs/com.bellwick.norvane.prefs";

/// A day on which one thing fails. Its dialogs choose the same files whenever they come up.
/// No power fails, so nothing is flushed to the disk.
class Day : public HeadlessDesktop {
  public:
    Day() {
        disk::systemCalls.fsync = {[](int) { return 0; }};
        std::filesystem::create_directories(folder.path("prefs"));
        setenv("XDG_CONFIG_HOME", folder.path("prefs").c_str(), 1);
        _EarlyStartup();
        for (const char *name : {"a.scc", "b.scc"})
            folder.write(std::string("watch/") + name, kInput);
        folder.write("watch/notes.txt", kNotes);
        folder.write("dest/a.txt", kOld);
    }
    ~Day() override {
        Window1::the().Close();
        disk::systemCalls = {};
    }

    Ref<FolderItem> chooseFile(const std::string &) override { return folder.item("watch/a.scc"); }
    Ref<FolderItem> chooseSaveFile(const std::string &, const std::string &name) override {
        return folder.item("dest/" + name);
    }
    Ref<FolderItem> chooseFolder() override { return folder.item("watch"); }

    /// True when a message was shown since the last call.
    bool told() {
        const Lines log = takeLog();
        return std::any_of(log.begin(), log.end(), [](const std::string &line) {
            return line.starts_with("message This could not be finished: ");
        });
    }
    bool holds(const std::string &name, const std::string &text) const {
        return folder.has(name) && folder.read(name) == text;
    }
    bool isTranscript(const std::string &name, const std::string &heading) const {
        return holds(name, hiTranscript(heading, {kTimecode}));
    }

    TemporaryFolder folder;
    const std::string kInput = sccFile({hiLine("00:00:01:00")});
};

struct Mode {
    const char *name;
    void (*prepare)(Day &);
    void (*act)(Day &);
    bool (*isDone)(const Day &);
    bool (*isUnbegun)(const Day &); // and nobody has to be told
    bool keepsOld = false;          // a transcript that was there before
};

bool isDecoded(const Day &day, const std::string &name) {
    return day.isTranscript("dest/" + name + ".txt", name + ".scc") ||
           day.isTranscript("dest/" + name + "_1.txt", name + ".scc");
}

const Mode kModes[] = {
    {"one file", [](Day &) { Window1::the(); },
     [](Day &day) { day.click(Window1::the().BevelButton1); },
     [](const Day &day) { return day.isTranscript("dest/a.txt", "a"); },
     [](const Day &day) { return day.holds("dest/a.txt", kOld); }},
    {"batch", [](Day &) { Window1::the(); },
     [](Day &day) { day.click(Window1::the().BevelButton4); },
     [](const Day &day) { return isDecoded(day, "a") && isDecoded(day, "b"); },
     [](const Day &day) { return day.holds("dest/a.txt", kOld) && !day.folder.has("dest/b.txt"); }},
    {"cycle",
     [](Day &day) {
         Window1::the().hotFolder = day.folder.path("watch/");
         Window1::the().destFolder = day.folder.path("dest/");
     },
     [](Day &day) {
         if (Window1::the().CheckBox1.Value)
             day.click(Window1::the().CheckBox1);
         day.click(Window1::the().CheckBox1);
     },
     [](const Day &day) { return isDecoded(day, "a") && isDecoded(day, "b"); },
     [](const Day &day) { return !day.folder.has("dest/a_1.txt"); }, true},
    {"saving preferences",
     [](Day &day) {
         day.folder.write(kPreferences, kSettings);
         Window1::the();
     },
     [](Day &day) {
         day.type(Window1::the().timerText, "3");
         Window1::the().Close();
     },
     [](const Day &day) { return day.holds(kPreferences, ReplaceAll(kSettings, "2", "3")); },
     [](const Day &) { return false; }},
    {"reading preferences", [](Day &day) { day.folder.write(kPreferences, kSettings); },
     [](Day &) { Window1::the().Close(); },
     [](const Day &day) { return day.holds(kPreferences, kSettings); },
     [](const Day &day) { return day.holds(kPreferences, kDesigned); }},
};

/// Every file must be whole, as it was, or the transcript of a file that could not be opened; and
/// each input is there, or its transcript is.
void expectNothingHalfOrLost(const Day &day) {
    Lines whole{day.kInput, kNotes, kOld, kSettings, ReplaceAll(kSettings, "2", "3"), kDesigned};
    for (const char *heading : {"a", "a.scc", "b.scc"}) {
        whole.push_back(hiTranscript(heading, {kTimecode}));
        whole.push_back(hiTranscript(heading, {}));
    }
    for (const std::string &name : day.folder.tree()) {
        EXPECT_EQ(name.find(".part"), std::string::npos) << name;
        EXPECT_TRUE(name.ends_with('/') ||
                    std::count(whole.begin(), whole.end(), day.folder.read(name)) == 1)
            << name;
    }
    for (const char *name : {"a", "b"})
        EXPECT_TRUE(day.folder.has(std::string("watch/") + name + ".scc") || isDecoded(day, name));
}

/// Lets one thing fail in the mode; `fail` gives false when there was no such thing. Then the same
/// again in peace.
bool survives(const Mode &mode, bool mustBeDone, const std::function<bool(Day &)> &fail) {
    Day day;
    mode.prepare(day);
    day.takeLog();
    const bool failed = fail(day);
    const bool told = day.told();
    EXPECT_TRUE(mode.isDone(day) || (!mustBeDone && (told || mode.isUnbegun(day))));
    EXPECT_FALSE(mustBeDone && told);
    expectNothingHalfOrLost(day);

    mode.prepare(day);
    mode.act(day);
    EXPECT_TRUE(mode.isDone(day));
    EXPECT_FALSE(day.told());
    expectNothingHalfOrLost(day);
    EXPECT_TRUE(!mode.keepsOld || day.holds("dest/a.txt", kOld));
    return failed;
}

class Faults : public testing::Test {
  protected:
    Faults() { // thousands of days are quicker in memory
        if (std::filesystem::is_directory("/dev/shm"))
            setenv("TMPDIR", "/dev/shm", 1);
    }
    ~Faults() override { unsetenv("TMPDIR"); }
};

TEST_F(Faults, AnyCallToTheSystemMayFail) {
    const std::pair<int, const char *> kinds[] = {{EIO, "input/output error"},
                                                  {ENOSPC, "no space"},
                                                  {EACCES, "no permission"},
                                                  {EINTR, "interrupted"},
                                                  {FailingCall::kShort, "short"}};
    for (const Mode &mode : kModes) {
        for (const auto &[error, kind] : kinds) {
            const bool harmless = error == EINTR || error == FailingCall::kShort;
            int calls = 0;
            while (survives(mode, harmless, [&, kError = error](Day &day) {
                const FailingCall fault(calls, kError);
                mode.act(day);
                return FailingCall::struck();
            })) {
                ASSERT_FALSE(testing::Test::HasFailure())
                    << mode.name << ", " << kind << ", call " << calls;
                ++calls;
            }
            std::printf("%s, %s: %d calls failed\n", mode.name, kind, calls);
        }
    }
}

TEST_F(Faults, AnyAllocationMayFail) {
    for (const Mode &mode : {kModes[0], kModes[1], kModes[2], kModes[3]}) {
        int allocations = 0;
        while (survives(mode, false, [&](Day &day) {
            allocationsLeft = allocations;
            guarded([&] { mode.act(day); });
            return std::exchange(allocationsLeft, -1) < 0;
        })) {
            ASSERT_FALSE(testing::Test::HasFailure())
                << mode.name << ", allocation " << allocations;
            ++allocations;
        }
        std::printf("%s: %d allocations failed\n", mode.name, allocations);
    }
}

} // namespace
} // namespace norvane
