#pragma once

#include "framework/headless/headless_desktop.h"
#include "shell/window1.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace norvane {

using Lines = std::vector<std::string>;

/// What a decode says of a file without a timecode.
constexpr const char *kNoTimecode = "There does not appear to be any timecode in this file.";

/// A folder of its own for a test, gone with it; in the folder `where`, or the system's for such.
class TemporaryFolder {
  public:
    explicit TemporaryFolder(const std::string &where = "");
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// The path of a name in it; with "" the folder itself, ending in the separator.
    std::string path(const std::string &name = "") const { return path_ + name; }
    Ref<FolderItem> item(const std::string &name) const { return GetFolderItem(path(name)); }

    /// Makes the file, and the folders that it needs.
    void write(const std::string &name, const std::string &text) const;
    /// The text of a file; fails the test and gives "" when there is none.
    std::string read(const std::string &name) const;
    bool has(const std::string &name) const { return std::filesystem::exists(path(name)); }
    /// All that is in it, sub-folders entered, sorted, folders with "/" at their end.
    Lines tree() const;

  private:
    std::string path_;
};

/// A day at the program without a screen: preferences and files are in a temporary folder. What the
/// script of answers left over, or did not foresee, fails the test.
class Scenario : public testing::Test {
  protected:
    Scenario();
    ~Scenario() override;

    /// The window, opened at first use as at the program's start.
    static Window1 &window() { return Window1::the(); }
    /// Closes the window, as Quit does.
    static void closeWindow() { window().Close(); }

    /// Presses "Select SCC File" and chooses `name`, then saves as `saveAs`, or cancels when it is
    /// "".
    void decode(const std::string &name, const std::string &saveAs);

    /// The log since the last call, a line each, with "~/" for the folder.
    std::string seen();

    /// The messages of the log, cleared by the call; what else was seen is dropped.
    Lines messages();

    TemporaryFolder folder;
    TemporaryFolder preferences; // the user's folder for them
    HeadlessDesktop desktop;
};

/// What was seen in a scene, as tests/scenes/NAME.txt has it.
std::string scene(const std::string &name);

/// A data line whose caption is "Hi!" and comes a third of a second behind its timecode.
std::string hiLine(const std::string &timecode);

/// The timecode form of a file of such lines, from a folder mode; `timecodes` as they are printed.
std::string hiTranscript(const std::string &fileName, const Lines &timecodes);

/// An SCC file: a header and, parted by empty lines, the data lines "TIMECODE\tHEX".
std::string sccFile(const Lines &dataLines);

} // namespace norvane
