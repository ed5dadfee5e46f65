#include "framework/qt/accessibility.h"

#include "framework/windows/guard.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>

namespace norvane {

namespace {

constexpr const char *kRole = "accessibleRole";
constexpr const char *kExpanded = "accessibleExpanded";

/// The toolkit's own would press some buttons at once: whoever asks would wait, mute, until the
/// message that the press brings up is closed.
class ButtonInterface : public QAccessibleWidget {
  public:
    ButtonInterface(QAbstractButton &button, QAccessible::Role role)
        : QAccessibleWidget(&button, role), button_(button) {}

    QString text(QAccessible::Text which) const override {
        const QString text = QAccessibleWidget::text(which);
        return which == QAccessible::Name && text.isEmpty() ? button_.text() : text;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button_.isCheckable();
        state.checked = button_.isChecked();
        state.pressed = button_.isDown();
        const QVariant expanded = button_.property(kExpanded);
        state.expandable = expanded.isValid();
        state.expanded = expanded.toBool();
        state.collapsed = expanded.isValid() && !expanded.toBool();
        return state;
    }

    QStringList actionNames() const override {
        return QStringList(button_.isCheckable() ? toggleAction() : pressAction()) +
               QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override {
        if (name != actionNames().constFirst()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        const auto press = [button = &button_] {
            if (!actionAtWork() && QApplication::activeModalWidget() == nullptr)
                button->click(); // which does nothing while it is disabled
        };
        QMetaObject::invokeMethod(&button_, press, Qt::QueuedConnection);
    }

  private:
    QAbstractButton &button_;
};

QAccessibleInterface *interfaceByRole(const QString & /*className*/, QObject *object) {
    const QVariant told = object->property(kRole);
    if (!told.isValid())
        return nullptr;
    const auto role = static_cast<QAccessible::Role>(told.toInt());
    if (auto *button = qobject_cast<QAbstractButton *>(object))
        return new ButtonInterface(*button, role);
    return new QAccessibleWidget(qobject_cast<QWidget *>(object), role);
}

} // namespace

void tellRole(QWidget *widget, QAccessible::Role role) {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(interfaceByRole);
        return true;
    }();
    widget->setProperty(kRole, role);
}

void tellExpanded(QWidget *button, bool expanded) {
    button->setProperty(kExpanded, expanded);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace norvane
