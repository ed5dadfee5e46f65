#include "framework/qt/widgets.h"

#include "framework/qt/accessibility.h"
#include "framework/qt/qt_text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QListWidget>
#include <QPainter>
#include <QTextDocument>

#include <algorithm>

namespace norvane {

namespace {

/// A picture, as large as fits the area and in its top left corner.
class PictureWidget : public QWidget {
  public:
    PictureWidget(const QIcon &picture, QWidget *parent) : QWidget(parent), picture_(picture) {}

  protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        const int side = std::min(width(), height());
        QPainter painter(this);
        picture_.paint(&painter, 0, 0, side, side);
    }

  private:
    QIcon picture_;
};

QWidget *makePicture(const QIcon &picture, QWidget *parent) {
    auto *widget = new PictureWidget(picture, parent);
    tellRole(widget, QAccessible::Graphic);
    return widget;
}

QWidget *makeSeparator(QWidget *parent) {
    auto *line = new QFrame(parent);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    tellRole(line, QAccessible::Separator);
    return line;
}

QWidget *widgetOfKind(RectControl &control, QWidget *parent, const Look &look) {
    return std::visit(Visitor{
                          [&](BevelButton *button) { return makeButton(*button, parent); },
                          [&](PushButton *button) { return makeButton(*button, parent); },
                          [&](CheckBox *box) { return makeCheckBox(*box, parent); },
                          [&](RadioButton *button) { return makeRadioButton(*button, parent); },
                          [&](TextField *field) { return makeTextField(*field, parent); },
                          [&](Label *label) { return makeLabel(*label, parent, look.scale); },
                          [&](ProgressBar *bar) { return makeProgressBar(*bar, parent); },
                          [&](Canvas *canvas) {
                              return makePicture(look.pictures.find(canvas->Backdrop), parent);
                          },
                          [&](Separator *) { return makeSeparator(parent); },
                          [&](PopupArrow *arrow) { return makeArrow(*arrow, parent); },
                          [&](Listbox *) -> QWidget * { return new QListWidget(parent); },
                      },
                      control.kind());
}

/// A tool tip is taken for rich text where it looks like that, and breaks its lines at blanks
/// alone: paths shall do neither.
QString toolTipOf(const QString &hint) {
    constexpr QChar kMayBreak(0x200B);
    return hint.isEmpty() ? hint
                          : Qt::convertFromPlainText(
                                QString(hint).replace(u'/', QStringLiteral("/") + kMayBreak));
}

/// Paints at once what is marked as changed in the widget's window: nothing, when nothing is.
void paintNow(QWidget *widget) {
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(widget->window(), &request);
}

} // namespace

QWidget *makeWidget(RectControl &control, QWidget *parent, const Look &look) {
    QWidget *widget = widgetOfKind(control, parent, look);
    widget->setStyle(&look.style);
    widget->setAcceptDrops(false); // which text fields do otherwise
    widget->setObjectName(toQt(control.Name));
    widget->setGeometry(
        look.scale.pixels(QRect(control.Left, control.Top, control.Width, control.Height)));
    if (!control.accessibleName.empty())
        widget->setAccessibleName(toQt(control.accessibleName));
    follow(control.hint, widget, [&control, widget] {
        widget->setToolTip(toolTipOf(toQt(control.hint)));
        widget->setAccessibleDescription(toQt(control.hint));
    });
    control.repaint = [alive = QPointer<QWidget>(widget)](bool immediately) {
        if (alive && immediately)
            paintNow(alive);
    };
    return widget;
}

} // namespace norvane
