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
[[gnu::noinline]] void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    return std::malloc(size); // what has a way without it, as std::stable_sort has
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
constexpr const char *kPreferences = "prefs/com.bellwick.norvane.prefs";

/// A day on which one thing fails. Its dialogs choose the same files whenever they come up. No
/// power fails, so nothing is flushed; and thousands of days are quicker in memory.
class Day : public HeadlessDesktop {
  public:
    Day() {
        disk::systemCalls.fsync = {[](int) { return 0; }};
        for (const char *name : {"watch/a.scc", "watch/b.scc"})
            folder.write(name, kInput);
        folder.write("watch/notes.txt", kNotes);
        folder.write("dest/a.txt", kOld);
        folder.write(kPreferences, settings("2"));
        setenv("XDG_CONFIG_HOME", folder.path("prefs").c_str(), 1);
        _EarlyStartup();
        takeLog();
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

    std::string settings(const std::string &minutes) const {
        return kOptions + minutes + "\n" + folder.path("watch/\n") + folder.path("dest/\nfalse\n");
    }
    bool holds(const std::string &name, const std::string &text) const {
        return folder.has(name) && folder.read(name) == text;
    }
    bool isDecoded(const std::string &name) const {
        const std::string text = hiTranscript(name + ".scc", {kTimecode});
        return holds("dest/" + name + ".txt", text) || holds("dest/" + name + "_1.txt", text);
    }

    /// True when a failure was told since the last call.
    bool told() {
        const Lines log = takeLog();
        return std::any_of(log.begin(), log.end(), [](const std::string &line) {
            return line.starts_with("message This could not be finished: ");
        });
    }
    /// Every file must be whole, as it was, or, where that may have been the fault, what is made of
    /// a file that was not for the user to read; and each input is there, or its transcript is.
    void expectNothingHalfOrLost(bool denied) const {
        Lines whole{kInput, kNotes, kOld, settings("2"), settings("3")};
        for (const char *heading : {"a", "a.scc", "b.scc"})
            whole.push_back(hiTranscript(heading, {kTimecode}));
        if (denied)
            whole.insert(whole.end(), {kDesigned, hiTranscript("a", {}), hiTranscript("a.scc", {}),
                                       hiTranscript("b.scc", {})});
        for (const std::string &name : folder.tree()) {
            EXPECT_TRUE(name.ends_with('/') || name.ends_with(".lock") ||
                        (name.find(".part") == std::string::npos &&
                         std::count(whole.begin(), whole.end(), folder.read(name)) == 1))
                << name;
        }
        EXPECT_TRUE(folder.has("watch/a.scc") || isDecoded("a"));
        EXPECT_TRUE(folder.has("watch/b.scc") || isDecoded("b"));
    }

    const TemporaryFolder folder{std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : ""};
    const std::string kTimecode = "00:00:01.33";
    const std::string kInput = sccFile({hiLine("00:00:01:00")});
    const std::string kOptions = "true\ntrue\nfalse\ntrue\nfalse\n";
    const std::string kDesigned = kOptions + "15\n\n\nfalse\n";
};

struct Mode {
    std::string name;
    void (*act)(Day &);
    bool (*isDone)(const Day &);
    bool (*isUnbegun)(const Day &); // and nobody has to be told
};
void PrintTo(const Mode &mode, std::ostream *out) {
    *out << mode.name;
}

const Mode kModes[] = {
    {"OneFile", [](Day &day) { day.click(Window1::the().BevelButton1); },
     [](const Day &day) { return day.holds("dest/a.txt", hiTranscript("a", {day.kTimecode})); },
     [](const Day &day) { return day.holds("dest/a.txt", kOld); }},
    {"Batch", [](Day &day) { day.click(Window1::the().BevelButton4); },
     [](const Day &day) { return day.isDecoded("a") && day.isDecoded("b"); },
     [](const Day &day) { return day.holds("dest/a.txt", kOld) && !day.folder.has("dest/b.txt"); }},
    {"Cycle",
     [](Day &day) {
         Window1::the().CheckBox1.Value = false;
         day.click(Window1::the().CheckBox1);
     },
     [](const Day &day) {
         return day.isDecoded("a") && day.isDecoded("b") && day.holds("dest/a.txt", kOld);
     },
     [](const Day &day) { return !day.folder.has("dest/a_1.txt"); }},
    {"Preferences",
     [](Day &day) {
         day.type(Window1::the().timerText, "3");
         Window1::the().Close();
         Window1::the().Close();
     },
     [](const Day &day) { return day.holds(kPreferences, day.settings("3")); },
     [](const Day &day) { return day.holds(kPreferences, day.kDesigned); }}}; // where denied

class Faults : public testing::TestWithParam<Mode> {
  protected:
    /// Lets one thing fail in the mode; `fail` gives false when there was no such thing. Then the
    /// same again in peace.
    static bool survives(int error, const std::function<bool(Day &)> &fail) {
        const Mode &mode = GetParam();
        const bool mustBeDone = error == EINTR || error == FailingCall::kShort;
        Day day;
        Window1::the();
        const bool failed = fail(day);
        const bool told = day.told();
        EXPECT_TRUE(mustBeDone ? mode.isDone(day) && !told
                               : mode.isDone(day) || told || mode.isUnbegun(day));
        EXPECT_TRUE(mode.name != "Cycle" || day.holds("dest/a.txt", kOld));
        day.expectNothingHalfOrLost(error == EACCES);
        Window1::the().Close();
        day.folder.write(kPreferences, day.settings("2"));
        mode.act(day);
        EXPECT_TRUE(mode.isDone(day) && !day.told());
        day.expectNothingHalfOrLost(error == EACCES);
        return failed;
    }
};

TEST_P(Faults, AnyCallToTheSystemMayFail) {
    const std::pair<int, const char *> kinds[] = {{EIO, "input/output error"},
                                                  {ENOSPC, "no space"},
                                                  {EACCES, "no permission"},
                                                  {EINTR, "interrupted"},
                                                  {FailingCall::kShort, "short"}};
    for (const auto &[error, kind] : kinds) {
        int calls = 0;
        while (survives(error, [&calls, kError = error](Day &day) {
            const FailingCall fault(calls, kError);
            GetParam().act(day);
            return FailingCall::struck();
        })) {
            ASSERT_FALSE(HasFailure()) << kind << ", call " << calls;
            ++calls;
        }
        std::printf("%s: %d calls failed\n", kind, calls);
    }
}

TEST_P(Faults, AnyAllocationMayFail) {
    int allocations = 0;
    while (survives(ENOMEM, [&](Day &day) {
        allocationsLeft = allocations;
        guarded([&] { GetParam().act(day); });
        return std::exchange(allocationsLeft, -1) < 0;
    })) {
        ASSERT_FALSE(HasFailure()) << "allocation " << allocations;
        ++allocations;
    }
    std::printf("%d allocations failed\n", allocations);
}

INSTANTIATE_TEST_SUITE_P(Over, Faults, testing::ValuesIn(kModes),
                         [](const auto &mode) { return mode.param.name; });

} // namespace
} // namespace norvane
