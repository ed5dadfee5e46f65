#include "framework/qt/qt_text.h"
#include "framework/qt/widgets.h"

#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace norvane {

namespace {

Qt::Alignment horizontal(Alignment alignment) {
    return alignment == Alignment::centred ? Qt::AlignHCenter : Qt::AlignLeft;
}

/// Its selection outlasts the time that the menu bar has the focus: the Edit items are about it.
class FieldWidget : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

  protected:
    void focusOutEvent(QFocusEvent *event) override {
        QFocusEvent kept(QEvent::FocusOut, Qt::PopupFocusReason);
        QLineEdit::focusOutEvent(event->reason() == Qt::MenuBarFocusReason ? &kept : event);
    }
};

} // namespace

QWidget *makeTextField(TextField &field, QWidget *parent) {
    auto *widget = new FieldWidget(parent);
    // A field that cannot be edited still tells something, which many themes make too pale to read.
    constexpr float kOpacity = 0.65F;
    QColor colour = widget->palette().color(QPalette::Active, QPalette::Text);
    colour.setAlphaF(kOpacity);
    QPalette palette;
    palette.setColor(QPalette::Disabled, QPalette::Text, colour);
    widget->setPalette(palette);
    widget->setAlignment(horizontal(field.alignment) | Qt::AlignVCenter);
    widget->setReadOnly(!field.Enabled); // as it is told to screen readers
    follow(field.Text, widget, [&field, widget] {
        if (!field.Enabled)
            field.hint = field.Text.get(); // where it is readable whole, however long
        const QString text = toQt(field.Text);
        if (widget->text() == text)
            return;
        // The model may hold bytes that Qt's text cannot: what is shown must not be written back.
        const QSignalBlocker noEcho(widget);
        widget->setText(text);
    });
    QObject::connect(widget, &QLineEdit::textChanged, [&field, widget](const QString &text) {
        if (widget->isEnabled())
            field.Text = text.toStdString();
        else // by a screen reader, which nothing else keeps from it
            field.Text.shown();
    });
    return widget;
}

QWidget *makeLabel(Label &label, QWidget *parent, const Scale &scale) {
    auto *widget = new QLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(label.multiline);
    widget->setAlignment(horizontal(label.alignment) |
                         (label.multiline ? Qt::AlignTop : Qt::AlignVCenter));
    widget->setAttribute(Qt::WA_TransparentForMouseEvents); // labels overlap what is beside them
    if (label.TextSize > 0) {
        QFont font = widget->font();
        font.setPixelSize(scale.pixels(label.TextSize));
        widget->setFont(font);
    }
    if (label.grey) {
        constexpr QColor kGrey(128, 128, 128);
        QPalette palette = widget->palette();
        palette.setColor(QPalette::WindowText, kGrey);
        widget->setPalette(palette);
    }
    follow(label.Text, widget,
           [&label, widget] { widget->setText(toQt(label.Text).replace(u'\r', u'\n')); });
    return widget;
}

} // namespace norvane
