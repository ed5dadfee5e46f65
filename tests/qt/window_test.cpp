#include "shell/about_win.h"
#include "tests/qt/desk.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>
#include <QProxyStyle>
#include <QScreen>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QStyleOption>

#include <cmath>

namespace norvane {
namespace {

std::string captionOf(const QWidget *widget) {
    return widget->property("text").toString().toStdString();
}

class MainWindow : public Desk {
  protected:
    /// Each widget stands where its control does, shows and can be used where that is in view, and
    /// has a name to be read out.
    void expectWidgets(int height) {
        const QRect view(0, 0, 586, height);
        EXPECT_EQ(at("Canvas1")->parentWidget()->size(), view.size());
        for (const RectControl *control : window().controls()) {
            SCOPED_TRACE(control->Name);
            const auto *widget = at(control->Name.c_str());
            ASSERT_NE(widget, nullptr);
            const QRect place(control->Left, control->Top, control->Width, control->Height);
            EXPECT_EQ(widget->geometry(), place);
            EXPECT_EQ(widget->isVisible(), control->Visible && view.contains(place));
            EXPECT_EQ(widget->isEnabled(), control->Enabled && widget->isVisible());
            EXPECT_FALSE(widget->acceptDrops());
            const bool named = !captionOf(widget).empty() && captionOf(widget) != "?";
            EXPECT_TRUE(named || !widget->accessibleName().isEmpty() || !widget->isVisible() ||
                        control->Name == "Separator1");
        }
    }

    void expectLabelsFit() {
        for (const QLabel *label : peer()->findChildren<QLabel *>()) {
            const QSize text = label->fontMetrics().size(0, label->text());
            EXPECT_LE(text.width(), label->width()) << captionOf(label);
            EXPECT_LE(text.height(), label->height()) << captionOf(label);
        }
    }

    /// Which of the boxes for lines, timecodes and paragraphs are checked.
    std::string boxes() {
        std::string state;
        for (const char *box : {"LineBox", "TimecodeBox", "ParagraphBox"})
            state += at(box)->property("checked").toBool() ? '1' : '0';
        return state;
    }

    void expectRadioButtons(bool first, bool second) {
        EXPECT_EQ(window().RadioButton1.Value, first);
        EXPECT_EQ(window().RadioButton2.Value, second);
        EXPECT_EQ(at("RadioButton1")->property("checked").toBool(), first);
        EXPECT_EQ(at("RadioButton2")->property("checked").toBool(), second);
    }

    QAccessibleInterface *toldOf(const char *name) {
        return QAccessible::queryAccessibleInterface(at(name));
    }

    /// Has a screen reader ask for all that it could.
    void act(const char *name) {
        auto *actions = toldOf(name)->actionInterface();
        for (const QString &action : actions->actionNames())
            actions->doAction(action);
    }

    /// The controls that Tab leads through, beginning at the first.
    Lines tabRound() {
        at("BevelButton1")->setFocus();
        Lines round;
        do {
            round.push_back(focus());
            key(Qt::Key_Tab);
        } while (focus() != "BevelButton1" && round.size() < 40);
        return round;
    }
};

TEST_F(MainWindow, ControlsStandInTheirPlacesAndCaptionsFit) {
    expectWidgets(281);
    click("PopupArrow1");
    expectWidgets(395);
    for (const char *help : {"BevelButton2", "BevelButton3", "BevelButton8"})
        EXPECT_EQ(captionOf(at(help)), "?");
    for (const char *browse : {"BevelButton6", "BevelButton7"})
        EXPECT_EQ(captionOf(at(browse)), "Browse...");
    EXPECT_EQ(peer()->minimumSize(), peer()->maximumSize());
    EXPECT_EQ(peer()->windowTitle(), "Norvane");
    expectLabelsFit();
    EXPECT_EQ(at("StaticText1")->palette().color(QPalette::WindowText), QColor(128, 128, 128));
    EXPECT_EQ(at("Label6")->font().pixelSize(), 10);
    EXPECT_EQ(at("LineBox")->font().pixelSize(), 13);
}

struct LargeFont {
    LargeFont() {
        QFont large = before;
        large.setPixelSize(21);
        QApplication::setFont(large);
    }
    ~LargeFont() { QApplication::setFont(before); }
    const QFont before = QApplication::font();
};
class LargeMainWindow : private LargeFont, public MainWindow {};

TEST_F(LargeMainWindow, GrowsWithTheDesktopsFontAsFarAsTheScreenGoes) {
    ASSERT_EQ(QGuiApplication::primaryScreen()->availableSize(), QSize(800, 800));
    EXPECT_EQ(at("Canvas1")->parentWidget()->size(), QSize(733, 351));
    EXPECT_EQ(at("BevelButton1")->geometry(), QRect(549, 128, 159, 27));
    EXPECT_EQ(at("LineBox")->font().pixelSize(), 16);
    EXPECT_EQ(at("Label6")->font().pixelSize(), 13);
    EXPECT_EQ(at("LineBox")->style()->pixelMetric(QStyle::PM_IndicatorWidth),
              qRound(1.25 * QApplication::style()->pixelMetric(QStyle::PM_IndicatorWidth)));
    click("PopupArrow1");
    expectLabelsFit();
    aboutWin::the().Show();
    QWidget *about = desktop.peerOf(aboutWin::the());
    EXPECT_EQ(aboutWin::the().Width, 561);
    about->resize(706, 400);
    EXPECT_EQ(about->width(), 706);
    EXPECT_EQ(aboutWin::the().Width, 565);
    for (const auto &[font, eighths] : {std::pair(9, 8), {13, 8}, {14, 9}, {16, 10}, {27, 17}})
        EXPECT_EQ(Scale(font, {2000, 2000}).pixels(8), eighths);
    for (const auto &[room, eighths] : {std::pair(QSize(2000, 493), 9),
                                        {QSize(2000, 494), 10},
                                        {QSize(733, 2000), 10},
                                        {QSize(732, 2000), 9},
                                        {QSize(300, 200), 8}})
        EXPECT_EQ(Scale(27, room).pixels(8), eighths);
}

TEST_F(MainWindow, TabPassesOverWhatIsOutOfSight) {
    const Lines top = {"BevelButton1", "TimecodeBox",  "LineBox",      "ParagraphBox",
                       "RadioButton1", "BevelButton3", "BevelButton2", "BevelButton4"};
    Lines folded = top;
    folded.insert(folded.end(), {"PopupArrow1", "BevelButton8", "PushButton1"});
    Lines unfolded = top;
    unfolded.insert(unfolded.end(), {"CheckBox1", "BevelButton6", "BevelButton7", "PopupArrow1",
                                     "timerText", "BevelButton8", "PushButton1"});
    EXPECT_EQ(tabRound(), folded);
    at("PopupArrow1")->setFocus();
    key(Qt::Key_Space);
    EXPECT_EQ(window().PopupArrow1.Facing, PopupArrow::kDown);
    EXPECT_EQ(tabRound(), unfolded);
    at("timerText")->setFocus();
    QTest::mousePress(at("PopupArrow1"), Qt::LeftButton);
    EXPECT_EQ(window().Height, 281);
    EXPECT_NE(focus(), "timerText");
    QTest::mouseRelease(at("PopupArrow1"), Qt::LeftButton);
    EXPECT_EQ(window().Height, 281);
    EXPECT_EQ(tabRound(), folded);
}

TEST_F(MainWindow, RadioButtonsMayBothBeOff) {
    click("RadioButton2");
    expectRadioButtons(false, true);
    click("RadioButton2");
    expectRadioButtons(false, true);
    window().RadioButton2.Value = false;
    expectRadioButtons(false, false);
    click("RadioButton1");
    expectRadioButtons(true, false);
    window().RadioButton1.Value = false;
    expectRadioButtons(false, false);
    window().RadioButton2.Value = true;
    expectRadioButtons(false, true);
    at("RadioButton2")->setFocus();
    key(Qt::Key_Up);
    expectRadioButtons(true, false);
}

TEST_F(MainWindow, ScreenReadersAreToldAndAct) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(peer())->role(), QAccessible::Window);
    EXPECT_EQ(toldOf("Canvas1")->role(), QAccessible::Graphic);
    EXPECT_EQ(toldOf("Separator1")->role(), QAccessible::Separator);
    for (const char *switched : {"ParagraphBox", "RadioButton2"})
        act(switched);
    EXPECT_EQ(boxes(), "110"); // until the event loop comes to it
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes(), "001");
    EXPECT_FALSE(window().LineBox.Value);
    expectRadioButtons(false, true);
    auto *arrow = toldOf("PopupArrow1");
    EXPECT_EQ(arrow->role(), QAccessible::Button);
    EXPECT_TRUE(arrow->state().expandable && arrow->state().collapsed && !arrow->state().expanded);
    act("PopupArrow1");
    QCoreApplication::processEvents();
    EXPECT_TRUE(!arrow->state().collapsed && arrow->state().expanded);
    EXPECT_EQ(window().Height, 395);
    EXPECT_EQ(focus(), "PopupArrow1");
}

TEST_F(MainWindow, ReturnAndTheFirstFocusServeTheKeyboard) {
    EXPECT_EQ(focus(), "BevelButton1");
    const QImage withFocus = at("BevelButton1")->grab().toImage();
    at("LineBox")->setFocus();
    EXPECT_NE(at("BevelButton1")->grab().toImage(), withFocus);
    key(Qt::Key_Return);
    EXPECT_EQ(boxes(), "110");
    key(Qt::Key_Space);
    EXPECT_EQ(boxes(), "001");
    at("PopupArrow1")->setFocus();
    for (const auto &[code, height] : {std::pair(Qt::Key_Return, 395), {Qt::Key_Enter, 281}}) {
        key(code);
        EXPECT_EQ(window().Height, height);
    }
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "", true);
    QApplication::sendEvent(at("PopupArrow1"), &held);
    EXPECT_EQ(window().Height, 281);
}

TEST_F(MainWindow, TheArrowTakesPressesAroundIt) {
    QWidget *area = at("Canvas1")->parentWidget();
    const std::pair<QPoint, bool> kPoints[] = {{{9, 246}, true},   {{26, 263}, true},
                                               {{8, 250}, false},  {{15, 245}, false},
                                               {{27, 250}, false}, {{15, 264}, false}};
    for (const auto &[point, hits] : kPoints) {
        const int height = window().Height;
        at("LineBox")->setFocus();
        QTest::mouseClick(area, Qt::RightButton, {}, point);
        EXPECT_EQ(window().Height, height);
        QTest::mouseClick(area, Qt::LeftButton, {}, point);
        EXPECT_EQ(window().Height != height, hits) << point.x() << ' ' << point.y();
        EXPECT_EQ(focus(), hits ? "PopupArrow1" : "LineBox");
    }
}

TEST_F(MainWindow, NoWindowManagerMakesItLarger) {
    const QSize size = peer()->size();
    for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        peer()->setWindowState(state);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !(peer()->windowState() & state); }));
    }
    EXPECT_EQ(peer()->size(), size);
}

/// How many rows of pixels of a widget its text takes.
int rowsOfText(QWidget *widget) {
    const auto picture = [widget](const QString &text) {
        const QSignalBlocker untold(widget);
        widget->setProperty("text", text);
        return widget->grab().toImage();
    };
    const QVariant before = widget->property("text");
    const QImage full = picture(QStringLiteral("|gjpqy"));
    const QImage empty = picture(QStringLiteral(" "));
    widget->setProperty("text", before);
    int rows = 0;
    for (int y = 0; y < full.height(); ++y)
        rows += full.copy(0, y, full.width(), 1) == empty.copy(0, y, full.width(), 1) ? 0 : 1;
    return rows;
}

TEST_F(MainWindow, NoStyleCutsTextsOff) {
    click("PopupArrow1");
    for (const QString &key : QStyleFactory::keys()) {
        ControlStyle style(QStyleFactory::create(key), desktop.scale);
        for (const char *name : {"PushButton1", "BevelButton7", "LineBox", "RadioButton2", "Label2",
                                 "TextField1", "timerText"}) {
            auto *widget = at(name);
            widget->setStyle(&style);
            const int rows = rowsOfText(widget);
            EXPECT_GT(rows, 8);
            widget->resize(widget->size() + QSize(0, 20));
            EXPECT_GE(rows, rowsOfText(widget)) << key.toStdString() << ' ' << name;
            widget->setStyle(nullptr);
        }
    }
}

/// A style that finds a field too low for a border.
struct Borderless : QProxyStyle {
    QRect subElementRect(SubElement /*element*/, const QStyleOption *option,
                         const QWidget * /*widget*/) const override {
        return option->rect;
    }
};

TEST_F(MainWindow, MarksGrowWhereTheirCaptionsMakeRoom) {
    const auto markOf = [](QStyle *style, int fontPixels) {
        return ControlStyle(style, Scale(fontPixels, {2000, 2000}))
            .pixelMetric(QStyle::PM_IndicatorWidth, nullptr, nullptr);
    };
    const int mark = markOf(new QProxyStyle, 13);
    EXPECT_EQ(markOf(new QProxyStyle, 26), 2 * mark);
    EXPECT_EQ(markOf(new Borderless, 26), mark);
}

double luminance(const QColor &colour) {
    const auto linear = [](float part) { return std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

TEST_F(MainWindow, OutlinesAreSeen) {
    click("PopupArrow1");
    const auto expectOutline = [&](const char *name) {
        const QColor back = peer()->palette().color(QPalette::Window);
        const QImage picture = at(name)->grab().toImage();
        double best = 1; // contrast at the left edge of the control, in its middle
        for (int x = 0; x < 4; ++x) {
            const double lights[] = {luminance(picture.pixelColor(x, picture.height() / 2)) + 0.05,
                                     luminance(back) + 0.05};
            best = std::max({best, lights[0] / lights[1], lights[1] / lights[0]});
        }
        EXPECT_GE(best, 3) << name;
    };
    ControlStyle borderless(new Borderless, desktop.scale);
    at("TextField1")->setStyle(&borderless);
    expectOutline("TextField1");
    at("TextField1")->setStyle(nullptr);
    const QColor light(239, 240, 241);
    for (const QColor &ground : {light, QColor(42, 46, 50)}) {
        QPalette palette(ground, ground);
        palette.setColor(QPalette::Disabled, QPalette::Window,
                         Qt::red); // as KDE has it, but for red
        peer()->setPalette(palette);
        for (const char *name : {"ParagraphBox", "RadioButton2", "timerText", "TextField2"})
            expectOutline(name);
        EXPECT_EQ(at("TextField2")->grab().toImage().pixelColor(20, 10), ground);
    }
}

TEST_F(MainWindow, PicturesArrowAndBarAreDrawn) {
    const auto pixel = [&](const char *name, int x, int y) {
        return at(name)->grab().toImage().pixelColor(x, y);
    };
    const QImage drawn = QIcon(QStringLiteral(":/NORVANE_1281.png")).pixmap(128).toImage();
    for (const int place : {40, 64, 90})
        EXPECT_EQ(pixel("Canvas1", place, place), drawn.pixelColor(place, place));
    const QColor ink = peer()->palette().color(QPalette::WindowText);
    EXPECT_EQ(pixel("PopupArrow1", 6, 5), ink);
    EXPECT_NE(pixel("PopupArrow1", 5, 7), ink);
    window().PopupArrow1.Facing = PopupArrow::kDown;
    EXPECT_EQ(pixel("PopupArrow1", 5, 6), ink);
    EXPECT_NE(pixel("PopupArrow1", 7, 5), ink);
    at("PopupArrow1")->setFocus();
    EXPECT_NE(pixel("PopupArrow1", 5, 5), ink);
    window().ProgressBar1.Value = 50;
    EXPECT_TRUE(QTest::qWaitFor([&] { return at("ProgressBar1")->property("value") == 50; }));
    const QColor empty = pixel("ProgressBar1", 280, 10);
    EXPECT_NE(pixel("ProgressBar1", 266, 10), empty);
    EXPECT_EQ(pixel("ProgressBar1", 540, 10), empty);
    EXPECT_EQ(pixel("ProgressBar1", 266, 4), pixel("ProgressBar1", 280, 4)); // above the slim bar
    EXPECT_EQ(at<QLabel>("ProgressText")->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    EXPECT_EQ(at<QLabel>("Label6")->alignment(), Qt::AlignLeft | Qt::AlignTop);
    EXPECT_EQ(at<QLineEdit>("timerText")->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

TEST_F(MainWindow, LabelsAreSetCloserBeforeTheirLinesBreak) {
    struct : Window {
        Label label;
        CheckBox box;
        void fill(int width, int height, int boxWidth) {
            add(label, "Close", 0, 0, width, height);
            add(box, "Box", 0, 100, boxWidth, 20);
        }
    } narrow;
    const QFontMetrics metrics = at("Label2")->fontMetrics();
    narrow.label.Text = "a line of its own\rand another line\r";
    narrow.label.multiline = true;
    const int width =
        metrics.size(0, QStringLiteral("a line of its own\nand another line")).width();
    const int twoLines = 2 * metrics.lineSpacing() + 4; // as laid out, lines are a little higher
    const QCheckBox wide(QStringLiteral("a line of its own"));
    narrow.box.Caption = "a line of its own";
    narrow.fill(width * 98 / 100, twoLines, wide.sizeHint().width() * 96 / 100);
    narrow.Show();
    const auto *label = desktop.peerOf(narrow)->findChild<QLabel *>();
    EXPECT_LE(label->heightForWidth(label->width()), twoLines + metrics.lineSpacing());
    EXPECT_GT(label->font().letterSpacing(), 90);
    const auto *box = desktop.peerOf(narrow)->findChild<QCheckBox *>();
    EXPECT_LT(box->fontMetrics().horizontalAdvance(box->text()),
              at("LineBox")->fontMetrics().horizontalAdvance(box->text()));
}

TEST_F(MainWindow, FieldsAndModelsStayInStep) {
    click("PopupArrow1");
    auto *field = at<QLineEdit>("timerText");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "0.5");
    EXPECT_EQ(window().timerText.Text.get(), "0.5");
    EXPECT_EQ(window().Timer1.Period, 30000);
    for (const char *never : {"0,5", "abc", "", "0"}) {
        window().timerText.Text = never;
        const QString hint =
            QStringLiteral("The folder will not be checked: this is not a number of "
                           "minutes above 0, such as 15 or 0.5.");
        EXPECT_EQ(field->accessibleDescription(), hint);
        EXPECT_NE(field->toolTip(), "");
        window().timerText.Text = "2";
        EXPECT_EQ(field->toolTip() + field->accessibleDescription(), "");
    }
    EXPECT_EQ(field->text(), "2");
    at<QLineEdit>("TextField1")->setText("/by a screen reader/");
    EXPECT_EQ(window().TextField1.Text.get(), "");
    window().TextField1.Text = "/no utf-8 \xff/";
    EXPECT_EQ(at("TextField1")->accessibleDescription(), at<QLineEdit>("TextField1")->text());
    EXPECT_TRUE(at("TextField1")->toolTip().contains("utf-8"));
    EXPECT_EQ(window().TextField1.Text.get(), "/no utf-8 \xff/");
    window().BevelButton4.Enabled = false;
    EXPECT_FALSE(at("BevelButton4")->isEnabled());
    const QSignalSpy changes(field, &QLineEdit::textChanged);
    window().timerText.Text = "2";
    EXPECT_EQ(changes.count(), 0);
}

class PaintCounter : public QObject {
  public:
    int paints = 0;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

TEST_F(MainWindow, ProgressIsPaintedAtOnceAndSeldom) {
    PaintCounter bar;
    PaintCounter rest;
    at("Canvas1")->installEventFilter(&rest);
    at("ProgressBar1")->installEventFilter(&bar);
    window().ProgressBar1.Visible = true;
    window().ProgressText.Visible = true;
    window().ProgressBar1.Maximum = 1000000;
    window().ProgressBar1.Refresh(true);
    EXPECT_GE(bar.paints, 1);
    QTest::qWait(100);
    bar.paints = 0;
    for (int value = 0; value < 900; ++value) { // less than a pixel in all
        window().ProgressBar1.Value = value;
        window().ProgressBar1.Refresh(true);
    }
    EXPECT_EQ(bar.paints, 0);
    rest.paints = 0;
    window().ProgressBar1.Value = 500000;
    window().ProgressBar1.Refresh(true);
    EXPECT_GE(bar.paints, 1);
    EXPECT_GE(rest.paints, 1);
    EXPECT_EQ(at<QProgressBar>("ProgressBar1")->value(), 500000);
    bar.paints = 0;
    for (int value = 1; value <= 20; ++value) { // many pixels, in hardly any time
        window().ProgressBar1.Value = 500000 + value * 10000;
        window().ProgressBar1.Refresh(true);
    }
    EXPECT_LT(bar.paints, 20);
}

} // namespace
} // namespace norvane
