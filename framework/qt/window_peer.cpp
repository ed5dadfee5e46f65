#include "framework/qt/window_peer.h"

#include "framework/qt/accessibility.h"
#include "framework/qt/qt_text.h"
#include "framework/qt/widgets.h"
#include "framework/windows/guard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include <algorithm>

namespace norvane {

namespace {

Qt::WindowFlags flagsOf(const Window &window) {
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    flags.setFlag(Qt::WindowSystemMenuHint);
    flags.setFlag(Qt::WindowCloseButtonHint, window.CloseButton);
    flags.setFlag(Qt::WindowMinimizeButtonHint, window.MinimizeButton);
    flags.setFlag(Qt::WindowMaximizeButtonHint, window.MaximizeButton);
    flags.setFlag(Qt::WindowFullscreenButtonHint, window.FullScreenButton);
    return flags;
}

bool fits(const QLabel &label, int room) {
    if (!label.wordWrap())
        return label.fontMetrics().horizontalAdvance(label.text()) <= room;
    const int emptyEnd = label.text().endsWith(u'\n') ? label.fontMetrics().lineSpacing() : 0;
    return label.heightForWidth(room) - emptyEnd <= label.height();
}

/// Whether the caption of a button has the room for it.
bool fitsItself(const QAbstractButton &button) {
    constexpr int kBorder = 2; // of a button that is pushed
    if (!button.isCheckable())
        return button.fontMetrics().horizontalAdvance(button.text()) <=
               button.width() - 2 * kBorder;
    QStyleOptionButton option;
    option.initFrom(&button);
    const auto contents = qobject_cast<const QCheckBox *>(&button) != nullptr
                              ? QStyle::SE_CheckBoxContents
                              : QStyle::SE_RadioButtonContents;
    return button.fontMetrics().horizontalAdvance(button.text()) <=
           button.style()->subElementRect(contents, &option, &button).width();
}

/// Sets the text of a widget closer, within reason, and then smaller, until it fits.
template <class Fits>
void tighten(QWidget &widget, Fits fits) {
    constexpr int kTightest = 90; // percent
    constexpr int kSmallest = 8;  // pixels
    QFont font = widget.font();
    for (int percent = 99; percent >= kTightest && !fits(); --percent) {
        font.setLetterSpacing(QFont::PercentageSpacing, percent);
        widget.setFont(font);
    }
    for (int pixels = font.pixelSize() - 1; pixels >= kSmallest && !fits(); --pixels) {
        font.setPixelSize(pixels);
        widget.setFont(font);
    }
}

} // namespace

WindowPeer::WindowPeer(Window &window, Application &application, const Look &look,
                       std::function<void()> quit)
    : QWidget(nullptr, flagsOf(window)), window_(window), look_(look) {
    tellRole(this, QAccessible::Window);
    setWindowTitle(toQt(window.Title));
    closing_.setSingleShot(true);
    connect(&closing_, &QTimer::timeout, this, [this] { closeWhenIdle(); });
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    if (window.MenuBar != nullptr && window.MenuBarVisible) {
        menus_ = new Menus(*window.MenuBar, application, std::move(quit), this);
        column->setMenuBar(menus_);
    }
    area_ = new QWidget(this);
    column->addWidget(area_);
    if (window.Resizeable) {
        area_->setMinimumSize(look.scale.pixels(window.MinWidth),
                              look.scale.pixels(window.MinHeight));
        area_->setMaximumSize(look.scale.pixels(window.MaxWidth),
                              look.scale.pixels(window.MaxHeight));
    } else {
        column->setSizeConstraint(QLayout::SetFixedSize);
    }
    addControls();
    keepLabelsClear();
    follow(window.Width, this, [this] { takeSize(); });
    follow(window.Height, this, [this] { takeSize(); });
    // A focus that came with the window is seen as one that came by a key.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *old, QWidget *now) {
        if (old == nullptr && now != nullptr && now->window() == this)
            setAttribute(Qt::WA_KeyboardFocusChange);
    });
}

void WindowPeer::addControls() {
    QFont font = area_->font();
    font.setPixelSize(look_.scale.pixels(Scale::kDesignFont));
    area_->setFont(font);
    for (RectControl *control : window_.controls()) {
        QWidget *widget = makeWidget(*control, area_, look_);
        placed_.push_back({control, widget});
        for (Property<bool> *state : {&control->Visible, &control->Enabled})
            follow(*state, widget, [this] { showWhatIsInView(); });
    }
}

// The places of some labels reach below the control beside them, which wide fonts would run into.
void WindowPeer::keepLabelsClear() {
    constexpr int kGap = 3;
    for (const Placed &placed : placed_) {
        auto *button = qobject_cast<QAbstractButton *>(placed.widget);
        if (button != nullptr)
            tighten(*button, [button] { return fitsItself(*button); });
        auto *label = qobject_cast<QLabel *>(placed.widget);
        if (label == nullptr)
            continue;
        int room = label->width();
        const QPoint start(label->x(), label->geometry().center().y());
        for (const Placed &other : placed_) {
            const QRect place = other.widget->geometry();
            if (place.left() > start.x() && place.contains(place.left(), start.y()))
                room = std::min(room, place.left() - start.x() - kGap);
        }
        tighten(*label, [label, room] { return fits(*label, room); });
    }
}

void WindowPeer::takeSize() {
    if (!window_.Resizeable) {
        area_->setFixedSize(sizeInPixels());
        layout()->activate();
    } else if (!resizing_) {
        resize(sizeInPixels().grownBy({0, 0, 0, menuBarHeight()}));
    }
    showWhatIsInView();
}

void WindowPeer::showWhatIsInView() {
    const QRect area(QPoint(0, 0), sizeInPixels());
    for (const auto &[control, widget] : placed_) {
        const bool wasVisible = widget->isVisible();
        const bool isInView = control->Visible && area.intersects(widget->geometry());
        widget->setEnabled(isInView && control->Enabled);
        widget->setVisible(isInView);
        if (!wasVisible)
            widget->update(); // which a Refresh paints; showing alone waits for the event loop
    }
}

int WindowPeer::menuBarHeight() const {
    return menus_ != nullptr ? menus_->heightForWidth(sizeInPixels().width()) : 0;
}

QSize WindowPeer::sizeInPixels() const {
    return {look_.scale.pixels(window_.Width), look_.scale.pixels(window_.Height)};
}

void WindowPeer::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (!window_.Resizeable)
        return;
    resizing_ = true; // for a point may be more than a pixel, and a hand move by less than a point
    window_.Width = look_.scale.points(area_->width());
    window_.Height = look_.scale.points(area_->height());
    resizing_ = false;
}

/// Takes back what a window manager granted though the window offers it not.
void WindowPeer::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !isVisible()) // hidden: window_ may be gone
        return;
    Qt::WindowStates offered = Qt::WindowMinimized | Qt::WindowActive;
    offered.setFlag(Qt::WindowMaximized, window_.MaximizeButton);
    offered.setFlag(Qt::WindowFullScreen, window_.FullScreenButton);
    if (windowState() & ~offered)
        setWindowState(windowState() & offered);
}

/// Return presses the button that has the focus, as the space bar does.
void WindowPeer::keyPressEvent(QKeyEvent *event) {
    auto *button = qobject_cast<QAbstractButton *>(focusWidget());
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !event->isAutoRepeat() && button != nullptr && !button->isCheckable())
        button->click();
    else
        QWidget::keyPressEvent(event);
}

/// A press close by an arrow, on nothing else, is a press on the arrow, which is small.
void WindowPeer::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return;
    const int around = look_.scale.pixels(4);
    const QPoint point = area_->mapFrom(this, event->position().toPoint());
    for (const auto &[control, widget] : placed_) {
        if (std::holds_alternative<PopupArrow *>(control->kind()) && widget->isVisible() &&
            widget->geometry().marginsAdded({around, around, around, around}).contains(point)) {
            widget->setFocus(Qt::MouseFocusReason);
            qobject_cast<QAbstractButton *>(widget)->click();
        }
    }
}

void WindowPeer::closeEvent(QCloseEvent *event) {
    event->ignore();
    closeWhenIdle();
}

/// An action at work, in whose message or dialog this may be asked, still needs the window.
void WindowPeer::closeWhenIdle() {
    if (actionAtWork())
        closing_.start(kAskAgain);
    else if (isVisible()) // hidden: window_ may be gone
        window_.Close();
}

} // namespace norvane
