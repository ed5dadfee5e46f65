#include "framework/headless/look.h"

#include "framework/text/text.h"

#include <initializer_list>
#include <utility>

namespace norvane {

namespace {

std::string inQuotes(const std::string &text) {
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
std::string kindOf(const Control &control) {
    if (const auto *button = dynamic_cast<const BevelButton *>(&control))
        return "BevelButton" + numbers({button->Bevel}) + inQuotes(button->Caption);
    if (const auto *button = dynamic_cast<const Button *>(&control))
        return "PushButton" + inQuotes(button->Caption);
    if (const auto *box = dynamic_cast<const CheckBox *>(&control))
        return "CheckBox" + inQuotes(box->Caption);
    if (const auto *button = dynamic_cast<const RadioButton *>(&control))
        return "RadioButton" + inQuotes(button->Caption);
    if (const auto *field = dynamic_cast<const TextField *>(&control))
        return "TextField" + traits({{field->alignment == Alignment::centred, "centred"}});
    if (const auto *label = dynamic_cast<const Label *>(&control)) {
        return "Label" + numbers({label->TextSize}) +
               traits({{label->grey, "grey"},
                       {label->multiline, "multiline"},
                       {label->alignment == Alignment::centred, "centred"}});
    }
    if (const auto *canvas = dynamic_cast<const Canvas *>(&control))
        return "Canvas " + canvas->Backdrop;
    return dynamic_cast<const ProgressBar *>(&control)  ? "ProgressBar"
           : dynamic_cast<const PopupArrow *>(&control) ? "PopupArrow"
           : dynamic_cast<const Separator *>(&control)  ? "Separator"
                                                        : "Listbox";
}

} // namespace

std::string stateOf(const Control &control) {
    std::string state;
    if (const auto *box = dynamic_cast<const CheckBox *>(&control))
        state = box->Value ? " on" : " off";
    if (const auto *button = dynamic_cast<const RadioButton *>(&control))
        state = button->Value ? " on" : " off";
    if (const auto *field = dynamic_cast<const TextField *>(&control))
        state = inQuotes(field->Text);
    if (const auto *label = dynamic_cast<const Label *>(&control))
        state = inQuotes(label->Text);
    if (const auto *arrow = dynamic_cast<const PopupArrow *>(&control))
        state = " facing" + numbers({arrow->Facing});
    if (const auto *bar = dynamic_cast<const ProgressBar *>(&control))
        state = numbers({bar->Value}) + " of" + numbers({bar->Maximum});
    return state + traits({{!control.Visible, "hidden"}, {!control.Enabled, "disabled"}});
}

std::string look(const Window &window) {
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
    for (const Control *control : window.controls()) {
        const std::string &name = control->accessibleName;
        text += control->Name + ": " + kindOf(*control) +
                numbers({control->Left, control->Top, control->Width, control->Height}) +
                stateOf(*control) + (name.empty() ? "" : ", read as" + inQuotes(name)) + "\n";
    }
    return text;
}

} // namespace norvane
