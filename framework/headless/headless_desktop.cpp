#include "framework/headless/headless_desktop.h"

#include "framework/headless/description.h"
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

bool HeadlessDesktop::canUse(const RectControl &control) {
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

void HeadlessDesktop::click(const PopupArrow &arrow) {
    if (canUse(arrow))
        guarded([&] { arrow.MouseDown(); });
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

void HeadlessDesktop::note(const std::string &line) {
    log_.push_back(line);
    if (whenSeen)
        whenSeen(line);
}

void HeadlessDesktop::message(const std::string &text) {
    note("message " + text);
}

Ref<FolderItem> HeadlessDesktop::chooseFile(const std::string &fileType) {
    note(std::string(kFileDialog) + " " + fileType);
    return answerTo(kFileDialog);
}

Ref<FolderItem> HeadlessDesktop::chooseSaveFile(const std::string &fileType,
                                                const std::string &defaultName) {
    note(std::string(kSaveDialog) + " " + fileType + " " + defaultName);
    return answerTo(kSaveDialog);
}

Ref<FolderItem> HeadlessDesktop::chooseFolder() {
    note(kFolderDialog);
    return answerTo(kFolderDialog);
}

void HeadlessDesktop::launch(const std::string &path, bool activate) {
    note("launch " + path + (activate ? " in front" : ""));
}

void HeadlessDesktop::showURL(const std::string &address) {
    note("url " + address);
}

void HeadlessDesktop::add(Window &window) {
    for (RectControl *control : window.controls()) {
        const auto seen = [this, control] { note(control->Name + stateOf(*control)); };
        const auto changed = [seen, control] {
            if (control->Visible)
                seen();
        };
        control->Visible.shown = seen;
        control->repaint = [this, control](bool immediately) {
            if (control->Visible && immediately)
                note(control->Name + " repainted");
        };
        const auto whenValue = [&](auto *box) { box->Value.shown = changed; };
        const auto whenText = [&](auto *field) { field->Text.shown = changed; };
        std::visit(Visitor{
                       [&](CheckBox *box) { whenValue(box); },
                       [&](RadioButton *button) { whenValue(button); },
                       [&](TextField *field) { whenText(field); },
                       [&](Label *label) { whenText(label); },
                       [&](PopupArrow *arrow) { arrow->Facing.shown = changed; },
                       [&](ProgressBar *bar) {
                           whenValue(bar);
                           bar->Maximum.shown = changed;
                       },
                       [](RectControl *) {},
                   },
                   control->kind());
    }
    window.Height.shown = [this, &window] {
        note(window.Title + " " + std::to_string(window.Height));
    };
}

void HeadlessDesktop::show(Window &window) {
    note("show " + window.Title);
}

void HeadlessDesktop::remove(Window & /*window*/) {}

} // namespace norvane
