#include "framework/windows/desktop.h"
#include "shell/app.h"
#include "shell/window1.h"

#include <cmath>
#include <cstdint>

namespace norvane {

namespace {

/// A double's whole part as a number of milliseconds, within what the number holds; 0 for an
/// infinite one.
std::int64_t wholeMilliseconds(double value) {
    constexpr double kLimit = 9e18;
    if (!std::isfinite(value))
        return 0;
    return static_cast<std::int64_t>(std::fmin(std::fmax(value, -kLimit), kLimit));
}

} // namespace

void Window1::readInterval() {
    constexpr double kMillisecondsPerMinute = 60000;
    Timer1.Period = wholeMilliseconds(Val(timerText.Text.get()) * kMillisecondsPerMinute);
    timerText.hint = Timer1.Period > 0 ? ""
                                       : "The folder will not be checked: this is not a number of "
                                         "minutes above 0, such as 15 or 0.5.";
}

void Window1::timerText_TextChange() {
    readInterval();
}

void Window1::chooseFolder(std::string &folder, TextField &field) {
    const Ref<FolderItem> item = SelectFolder();
    if (!item) {
        MsgBox("No folder selected.");
        return;
    }
    folder = item->AbsolutePath();
    field.Text = folder;
}

// Kept: unlike the Browse buttons, these fail when their dialog is cancelled.

void Window1::promptForWatchFolder() {
    if (!hotFolder.empty())
        return;
    MsgBox("Please select a folder to watch.");
    hotFolder = SelectFolder()->AbsolutePath();
    TextField1.Text = hotFolder;
}

void Window1::promptForDestination() {
    if (!destFolder.empty())
        return;
    MsgBox("Please select a destination folder for decoded files.");
    destFolder = SelectFolder()->AbsolutePath();
    TextField2.Text = destFolder;
}

void Window1::BevelButton6_Action() {
    chooseFolder(hotFolder, TextField1);
}

void Window1::BevelButton7_Action() {
    chooseFolder(destFolder, TextField2);
}

void Window1::CheckBox1_Action() {
    if (!CheckBox1.Value) {
        Timer1.Mode = 0;
        Timer1.Enabled = false;
        myWatchFolder = false;
        return;
    }
    if (hotFolder.empty() || destFolder.empty()) {
        MsgBox(
            "You must choose both a watch folder and a destination folder to activate the timer.");
        CheckBox1.Value = false;
        return;
    }
    Timer1.Enabled = true;
    Timer1.Reset();
    myWatchFolder = true;
    importSCCFolder();
}

void Window1::Timer1_Action() {
    const Ref<FolderItem> folder = GetFolderItem(hotFolder);
    if (!folder || !folder->Directory())
        return;
    Timer1.Mode = 0; // no tick while the cycle lasts; a cycle that fails leaves it so
    if (folder->Count() > 0)
        importSCCFolder();
    Timer1.Enabled = true;
    Timer1.Reset();
}

bool App::_FileEnableHotFolder_Action() {
    Window1 &window = Window1::the();
    if (window.myWatchFolder) {
        window.myWatchFolder = false;
        window.Timer1.Mode = 0;
        window.CheckBox1.Value = false;
    } else {
        window.Timer1.Enabled = true;
        window.Timer1.Reset();
        window.myWatchFolder = true;
        window.CheckBox1.Value = true;
    }
    if (!window.hotFolder.empty() && !window.destFolder.empty()) {
        window.Timer1.Reset();
        return false;
    }
    window.promptForWatchFolder();
    window.promptForDestination();
    return false;
}

} // namespace norvane
