#pragma once

#include "framework/windows/controls.h"
#include "framework/windows/desktop.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace norvane {

/// The desktop without a screen: dialogs take scripted answers, in order; what a user would have
/// seen goes into a log; time moves on request.
class HeadlessDesktop : public Desktop {
  public:
    HeadlessDesktop() { setCurrent(*this); }

    // The answers of the dialogs to come, in the order in which they come up. A path that cannot be
    // resolved counts as Cancel.
    void answerFile(Ref<FolderItem> item) { answers_.push_back({kFileDialog, std::move(item)}); }
    void answerSave(Ref<FolderItem> item) { answers_.push_back({kSaveDialog, std::move(item)}); }
    void answerFolder(Ref<FolderItem> item) {
        answers_.push_back({kFolderDialog, std::move(item)});
    }
    static Ref<FolderItem> cancel() { return Ref<FolderItem>::nil("the dialog was cancelled."); }

    /// What the user saw since the last call, in order: a line "message TEXT", "open dialog TYPE",
    /// "save dialog TYPE NAME", "folder dialog", "launch PATH", "launch PATH in front", "url
    /// ADDRESS" or "show TITLE" each; and of opened windows "TITLE HEIGHT", "CONTROL repainted" (at
    /// once) and "CONTROL STATE" after a change of what is in view, with the words of
    /// description.h.
    std::vector<std::string> takeLog();

    /// Dialogs that no answer stood ready for, answers that no dialog took, and clicks on what
    /// cannot be clicked.
    std::vector<std::string> problems() const;

    // The user's hand, under the guard.
    void click(const Button &button);
    void click(CheckBox &box);
    void click(RadioButton &button);
    void click(const PopupArrow &arrow);
    void type(TextField &field, const std::string &text);

    /// Moves time on, with the ticks that fall due, in their order.
    void advance(std::int64_t milliseconds);

    /// Run when a line of the log is seen, while a dialog or a message box is up.
    std::function<void(const std::string &line)> whenSeen;

    void message(const std::string &text) override;
    Ref<FolderItem> chooseFile(const std::string &fileType) override;
    Ref<FolderItem> chooseSaveFile(const std::string &fileType,
                                   const std::string &defaultName) override;
    Ref<FolderItem> chooseFolder() override;
    void launch(const std::string &path, bool activate) override;
    void showURL(const std::string &address) override;
    void add(Window &window) override;
    void show(Window &window) override;
    void remove(Window &window) override;
    TimePoint now() const override { return now_; }
    void add(Timer &timer) override { timers_.push_back(&timer); }
    void remove(Timer &timer) override { std::erase(timers_, &timer); }
    void timersChanged() override {}

  private:
    static constexpr const char *kFileDialog = "open dialog";
    static constexpr const char *kSaveDialog = "save dialog";
    static constexpr const char *kFolderDialog = "folder dialog";
    struct Answer {
        std::string dialog;
        Ref<FolderItem> item;
    };
    void note(const std::string &line);
    Ref<FolderItem> answerTo(const std::string &dialog);
    bool canUse(const RectControl &control);

    std::deque<Answer> answers_;
    std::vector<std::string> log_;
    std::vector<std::string> problems_;
    std::vector<Timer *> timers_;
    TimePoint now_ = 0;
};

} // namespace norvane
