#include "framework/files/folder_item.h"
#include "shell/app.h"
#include "shell/window1.h"

#include <array>

namespace norvane {

namespace {

constexpr const char *kFile = "com.bellwick.norvane.prefs";
} // namespace

void App::SavePrefs() {
    const Window1 &window = Window1::the();
    if (prefsUnread_) // what the window shows then are not the user's settings
        return;
    // Kept: without a folder, this fails with a message.
    const Ref<FolderItem> file = SpecialFolder::Preferences()->Child(kFile);
    if (!file)
        return;
    const Ref<TextOutputStream> stream = file->CreatePrivateTextFile();
    if (stream) {
        const auto writeSwitch = [&](bool on) { stream->WriteLine(on ? "true" : "false"); };
        writeSwitch(window.LineBox.Value);
        writeSwitch(window.TimecodeBox.Value);
        writeSwitch(window.ParagraphBox.Value);
        writeSwitch(window.RadioButton1.Value);
        writeSwitch(window.RadioButton2.Value);
        stream->WriteLine(window.timerText.Text.get());
        stream->WriteLine(window.TextField1.Text.get());
        stream->WriteLine(window.TextField2.Text.get());
        writeSwitch(window.CheckBox1.Value);
    }
    stream->Close(); // kept outside the test: a file that cannot be created is reported to the user
}

void App::GetPrefs() {
    Window1 &window = Window1::the();
    prefsUnread_ = true;
    const Ref<FolderItem> folder = SpecialFolder::Preferences();
    const auto file = folder ? folder->Child(kFile) : folder;
    const bool exists = file && file->Exists();
    const auto stream = exists ? file->OpenAsTextFile() : Ref<TextInputStream>::nil("");
    if (!stream) {
        prefsUnread_ = false;
        return;
    }
    const auto readSwitch = [&] { return equal(stream->ReadLine(), "true"); };
    std::array<bool, 5> options{};
    for (bool &option : options)
        option = readSwitch();
    window.timerText.Text = std::string(stream->ReadLine());
    window.TextField1.Text = std::string(stream->ReadLine());
    window.hotFolder = window.TextField1.Text;
    window.TextField2.Text = std::string(stream->ReadLine());
    window.destFolder = window.TextField2.Text;
    // Kept: a watch that was on runs its first cycle here, with the options as designed.
    window.CheckBox1.Value = readSwitch();
    // Each of the three boxes may change the others, so their order counts.
    window.LineBox.Value = options[0];
    window.TimecodeBox.Value = options[1];
    window.ParagraphBox.Value = options[2];
    window.RadioButton1.Value = options[3];
    window.RadioButton2.Value = options[4];
    prefsUnread_ = false;
}

} // namespace norvane
