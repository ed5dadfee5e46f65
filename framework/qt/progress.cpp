#include "framework/qt/widgets.h"

#include <QProgressBar>
#include <QStyleOptionProgressBar>
#include <QStylePainter>

#include <cmath>

namespace norvane {

namespace {

/// A slim bar in the middle of its area, so that the text above it stays readable.
class ProgressWidget : public QProgressBar {
  public:
    using QProgressBar::QProgressBar;

    /// Marks the bar for painting only when another number of the screen's pixels is filled.
    void showPart(int value, int maximum) {
        const double part = maximum > 0 ? static_cast<double>(value) / maximum : 0;
        const int filled = static_cast<int>(std::lround(part * width() * devicePixelRatioF()));
        if (filled == filled_)
            return;
        filled_ = filled;
        setRange(0, maximum);
        setValue(value);
    }

  protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        constexpr int kMargin = 5;
        QStyleOptionProgressBar option;
        initStyleOption(&option);
        option.rect.adjust(0, kMargin, 0, -kMargin);
        QStylePainter(this).drawControl(QStyle::CE_ProgressBar, option);
    }

  private:
    int filled_ = -1;
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
