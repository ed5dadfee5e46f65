#include "framework/headless/description.h"

#include "framework/text/text.h"

#include <initializer_list>
#include <utility>

namespace norvane {

namespace {

std::string withQuotes(const std::string &text) {
    return " \"" + ReplaceAllB(text, "\r", "\\r") + "\"";
}

std::string numbers(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values)
        text += " " + std::to_string(value);
    return text;
}

/// The words whose condition holds.
std::string traits(std::initializer_list<std::pair<bool, const char *>> words) {
    std::string text;
    for (const auto &[holds, word] : words)
        text += holds ? std::string(" ") + word : "";
    return text;
}

/// The kind of a control and what of it does not change.
std::string designOf(RectControl &control) {
    const auto isCentred = [](const auto *text) {
        return std::pair(text->alignment == Alignment::centred, "centred");
    };
    return std::visit(
        Visitor{
            [](BevelButton *button) {
                return "BevelButton" + numbers({button->Bevel}) + withQuotes(button->Caption);
            },
            [](PushButton *button) { return "PushButton" + withQuotes(button->Caption); },
            [](CheckBox *box) { return "CheckBox" + withQuotes(box->Caption); },
            [](RadioButton *button) { return "RadioButton" + withQuotes(button->Caption); },
            [&](TextField *field) { return "TextField" + traits({isCentred(field)}); },
            [&](Label *label) {
                return "Label" + numbers({label->TextSize}) +
                       traits({{label->grey, "grey"},
                               {label->multiline, "multiline"},
                               isCentred(label)});
            },
            [](ProgressBar *) { return std::string("ProgressBar"); },
            [](Canvas *canvas) { return "Canvas " + canvas->Backdrop; },
            [](Separator *) { return std::string("Separator"); },
            [](PopupArrow *) { return std::string("PopupArrow"); },
            [](Listbox *) { return std::string("Listbox"); },
        },
        control.kind());
}

} // namespace

std::string stateOf(RectControl &control) {
    const std::string state = std::visit(
        Visitor{
            [](CheckBox *box) { return std::string(box->Value ? " on" : " off"); },
            [](RadioButton *button) { return std::string(button->Value ? " on" : " off"); },
            [](TextField *field) { return withQuotes(field->Text); },
            [](Label *label) { return withQuotes(label->Text); },
            [](PopupArrow *arrow) { return " facing" + numbers({arrow->Facing}); },
            [](ProgressBar *bar) {
                return numbers({bar->Value}) + " of" + numbers({bar->Maximum});
            },
            [](RectControl *) { return std::string(); },
        },
        control.kind());
    return state + traits({{!control.Visible, "hidden"}, {!control.Enabled, "disabled"}});
}

std::string describe(const Window &window) {
    std::string text = window.Title +
                       numbers({window.Width, window.Height, window.MinWidth, window.MinHeight,
                                window.MaxWidth, window.MaxHeight}) +
                       traits({{window.CloseButton, "close"},
                               {window.MinimizeButton, "minimize"},
                               {window.MaximizeButton, "maximize"},
                               {window.FullScreenButton, "full screen"},
                               {window.Resizeable, "resizeable"},
                               {window.LiveResize, "live"},
                               {window.MenuBarVisible && window.MenuBar != nullptr, "menu bar"}}) +
                       "\n";
    for (RectControl *control : window.controls()) {
        const std::string &name = control->accessibleName;
        text += control->Name + ": " + designOf(*control) +
                numbers({control->Left, control->Top, control->Width, control->Height}) +
                stateOf(*control) + (name.empty() ? "" : ", read as" + withQuotes(name)) + "\n";
    }
    return text;
}

} // namespace norvane
