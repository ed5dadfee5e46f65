#include "framework/qt/menus.h"

#include "framework/qt/qt_text.h"
#include "framework/windows/guard.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>

namespace norvane {

namespace {

/// What every program's Edit items do, by their names.
struct EditCommand {
    const char *itemName;
    bool (*applies)(const QLineEdit &field);
    void (*run)(QLineEdit &field);
};

bool hasSelection(const QLineEdit &field) {
    return field.hasSelectedText();
}

bool canPaste(const QLineEdit & /*field*/) {
    return !QGuiApplication::clipboard()->text().isEmpty();
}

const EditCommand kEditCommands[] = {
    {"EditUndo", [](const QLineEdit &field) { return field.isUndoAvailable(); },
     [](QLineEdit &field) { field.undo(); }},
    {"EditCut", hasSelection, [](QLineEdit &field) { field.cut(); }},
    {"EditCopy", hasSelection, [](QLineEdit &field) { field.copy(); }},
    {"EditPaste", canPaste, [](QLineEdit &field) { field.paste(); }},
    {"EditClear", hasSelection, [](QLineEdit &field) { field.del(); }},
    {"EditSelectAll", [](const QLineEdit &field) { return !field.text().isEmpty(); },
     [](QLineEdit &field) { field.selectAll(); }},
};

const EditCommand *editCommand(const MenuItem &item) {
    for (const EditCommand &command : kEditCommands) {
        if (item.Name == command.itemName)
            return &command;
    }
    return nullptr;
}

QAction::MenuRole roleOf(MenuKind kind) {
    switch (kind) {
    case MenuKind::QuitMenuItem:
        return QAction::QuitRole;
    case MenuKind::PrefsMenuItem:
        return QAction::PreferencesRole;
    default:
        return QAction::NoRole;
    }
}

QKeySequence shortcutOf(const MenuItem &item) {
    return QKeySequence(toQt(item.Shortcut).replace(QStringLiteral("Cmd"), QStringLiteral("Ctrl")));
}

} // namespace

Menus::Menus(const MenuBar &bar, Application &application, std::function<void()> quit,
             QWidget *parent)
    : QMenuBar(parent), application_(application), quit_(std::move(quit)) {
    for (const MenuItem &top : bar.menus) {
        QMenu *menu = addMenu(toQt(top.Text));
        connect(menu, &QMenu::aboutToShow, this, [this] { enableItems(); });
        for (const MenuItem &item : top.items)
            addItem(*menu, item);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget * /*old*/, QWidget *now) {
        if (now != nullptr && now != this && now->window() == window())
            field_ = qobject_cast<QLineEdit *>(now);
    });
    enableItems();
}

void Menus::addItem(QMenu &menu, const MenuItem &item) {
    if (item.kind == MenuKind::separator) {
        menu.addSeparator();
        return;
    }
    QAction *action = menu.addAction(toQt(item.Text));
    action->setObjectName(toQt(item.Name));
    action->setMenuRole(roleOf(item.kind));
    action->setShortcut(shortcutOf(item));
    action->setVisible(item.Visible);
    connect(action, &QAction::triggered, this, [this, &item] { run(item); });
    items_.push_back({item, action});
}

void Menus::enableItems() {
    guarded([this] { application_.Event_EnableMenuItems(); });
    for (const Item &item : items_)
        item.action->setEnabled(canRun(item.model));
}

bool Menus::canRun(const MenuItem &item) const {
    const EditCommand *command = editCommand(item);
    if (!item.Enabled || command == nullptr)
        return item.Enabled;
    return field_ && field_->isEnabled() && command->applies(*field_);
}

void Menus::run(const MenuItem &item) {
    if (item.kind == MenuKind::QuitMenuItem)
        quit_();
    else if (const EditCommand *command = editCommand(item); command == nullptr)
        application_.menuCommand(item.Name);
    else if (field_)
        command->run(*field_);
}

} // namespace norvane
