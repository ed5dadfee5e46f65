#include "framework/qt/widgets.h"

#include <QElapsedTimer>
#include <QProgressBar>
#include <QStyleOptionProgressBar>
#include <QStylePainter>
#include <QTimer>

#include <cmath>

namespace norvane {

namespace {

/// A slim bar in the middle of its area, so that the text above it stays readable. It is painted at
/// once, but only when another number of the screen's pixels is filled, and no more often than an
/// eye can see; what that skips comes with the next paint or when the program is idle.
class ProgressWidget : public QProgressBar {
  public:
    explicit ProgressWidget(QWidget *parent) : QProgressBar(parent) {
        late_.setSingleShot(true);
        connect(&late_, &QTimer::timeout, this, [this] { paintPart(); });
    }

    void showPart(int value, int maximum) {
        value_ = value;
        maximum_ = maximum;
        if (filled() == filled_)
            return;
        if (!sincePaint_.isValid() || sincePaint_.hasExpired(kMillisecondsPerPicture))
            paintPart();
        else if (!late_.isActive())
            late_.start(kMillisecondsPerPicture);
    }

  protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        const int margin = height() / 4;
        QStyleOptionProgressBar option;
        initStyleOption(&option);
        option.rect.adjust(0, margin, 0, -margin);
        QStylePainter(this).drawControl(QStyle::CE_ProgressBar, option);
    }

  private:
    static constexpr int kMillisecondsPerPicture = 50;

    int filled() const {
        const double part = maximum_ > 0 ? static_cast<double>(value_) / maximum_ : 0;
        return static_cast<int>(std::lround(part * width() * devicePixelRatioF()));
    }

    void paintPart() {
        filled_ = filled();
        setRange(0, maximum_);
        setValue(value_);
        // All of it: a dialog that has just closed left its traces, and whoever shows progress
        // keeps the event loop from mending them.
        window()->repaint();
        sincePaint_.start();
    }

    int value_ = 0;
    int maximum_ = 0;
    int filled_ = -1; // as painted last
    QElapsedTimer sincePaint_;
    QTimer late_;
};

} // namespace

QWidget *makeProgressBar(ProgressBar &bar, QWidget *parent) {
    auto *widget = new ProgressWidget(parent);
    widget->setTextVisible(false);
    const auto show = [&bar, widget] { widget->showPart(bar.Value, bar.Maximum); };
    follow(bar.Value, widget, show);
    follow(bar.Maximum, widget, show);
    return widget;
}

} // namespace norvane
