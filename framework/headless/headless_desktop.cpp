#include "framework/headless/headless_desktop.h"

#include "framework/windows/guard.h"
#include "framework/windows/window.h"

#include <algorithm>
#include <utility>

namespace norvane {

std::vector<std::string> HeadlessDesktop::takeLog() {
    return std::exchange(log_, {});
}

std::vector<std::string> HeadlessDesktop::problems() const {
    std::vector<std::string> all = problems_;
    for (const Answer &answer : answers_)
        all.push_back("no " + answer.dialog + " took the answer for it");
    return all;
}

Ref<FolderItem> HeadlessDesktop::answerTo(const std::string &dialog) {
    if (answers_.empty() || answers_.front().dialog != dialog) {
        problems_.push_back("unexpected " + dialog);
        return cancel();
    }
    Ref<FolderItem> item = std::move(answers_.front().item);
    answers_.pop_front();
    return item;
}

bool HeadlessDesktop::canUse(const Control &control) {
    if (!control.Visible || !control.Enabled)
        problems_.push_back(control.Name + " cannot be used");
    return control.Visible && control.Enabled;
}

void HeadlessDesktop::click(const Button &button) {
    if (canUse(button))
        guarded(button.Action);
}

void HeadlessDesktop::click(CheckBox &box) {
    if (canUse(box))
        box.Value = !box.Value;
}

void HeadlessDesktop::click(RadioButton &button) {
    if (canUse(button))
        button.Value = true;
}

void HeadlessDesktop::type(TextField &field, const std::string &text) {
    if (canUse(field))
        field.Text = text;
}

void HeadlessDesktop::advance(std::int64_t milliseconds) {
    const TimePoint end = now_ + milliseconds;
    const auto nextDue = [this, end] {
        Timer *next = nullptr;
        for (Timer *timer : timers_) {
            if (timer->due() && *timer->due() <= end &&
                (next == nullptr || *timer->due() < *next->due()))
                next = timer;
        }
        return next;
    };
    for (Timer *timer = nextDue(); timer != nullptr; timer = nextDue()) {
        now_ = *timer->due();
        timer->tick();
    }
    now_ = std::max(now_, end); // a message on the way may have taken longer
}

void HeadlessDesktop::message(const std::string &text) {
    log_.push_back("message " + text);
    if (whileMessage)
        whileMessage(text);
}

Ref<FolderItem> HeadlessDesktop::chooseFile(const std::string &fileType) {
    log_.push_back(std::string(kFileDialog) + " " + fileType);
    return answerTo(kFileDialog);
}

Ref<FolderItem> HeadlessDesktop::chooseSaveFile(const std::string &fileType,
                                                const std::string &defaultName) {
    log_.push_back(std::string(kSaveDialog) + " " + fileType + " " + defaultName);
    return answerTo(kSaveDialog);
}

Ref<FolderItem> HeadlessDesktop::chooseFolder() {
    log_.emplace_back(kFolderDialog);
    return answerTo(kFolderDialog);
}

void HeadlessDesktop::launch(const std::string &path, bool /*activate*/) {
    log_.push_back("launch " + path);
}

void HeadlessDesktop::showURL(const std::string &address) {
    log_.push_back("url " + address);
}

void HeadlessDesktop::add(Window &window) {
    for (Control *control : window.controls()) {
        control->Visible.shown = [this, control] {
            log_.push_back(control->Name + (control->Visible ? " shown" : " hidden"));
        };
    }
}

void HeadlessDesktop::show(Window &window) {
    log_.push_back("show " + window.Title);
}

void HeadlessDesktop::remove(Window & /*window*/) {}

} // namespace norvane
