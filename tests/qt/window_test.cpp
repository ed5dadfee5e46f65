#include "tests/qt/desk.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSignalSpy>

#include <sstream>

namespace norvane {
namespace {

/// A control as it must stand: on (T), off (F), greyed out (X) or none of these (-); always in view
/// (A), with the unfolded window only (U), or never (N).
struct Row {
    const char *name;
    const char *kind;
    int left, top, width, height;
    const char *caption;
    char state;
    char view;
};

constexpr Row kRows[] = {
    {"BevelButton1", "QPushButton", 439, 102, 127, 22, "Select SCC File", '-', 'A'},
    {"TimecodeBox", "QCheckBox", 184, 110, 146, 20, "Include Timecode", 'T', 'A'},
    {"LineBox", "QCheckBox", 184, 47, 132, 20, "Line by line form", 'T', 'A'},
    {"ParagraphBox", "QCheckBox", 184, 78, 127, 20, "Paragraph form", 'F', 'A'},
    {"StaticText1", "QLabel", 183, 14, 141, 20, "Output text file settings:", '-', 'A'},
    {"ProgressBar1", "QProgressBar", 20, 220, 546, 20, "0%", '-', 'N'},
    {"RadioButton1", "QRadioButton", 184, 148, 161, 20, "Unbuffered timecode", 'T', 'A'},
    {"RadioButton2", "QRadioButton", 184, 180, 153, 20, "Keep SCC timecode", 'F', 'A'},
    {"BevelButton3", "QToolButton", 349, 180, 18, 16, "?", '-', 'A'},
    {"BevelButton2", "QToolButton", 349, 148, 17, 16, "?", '-', 'A'},
    {"Canvas1", "QWidget", 20, 24, 128, 128, "", '-', 'A'},
    {"BevelButton4", "QPushButton", 439, 63, 127, 22, "Select Folder", '-', 'A'},
    {"BevelButton5", "QPushButton", -224, -16, 60, 22, "Untitled", '-', 'N'},
    {"CheckBox1", "QCheckBox", 20, 289, 231, 20, "Decode Watch Folder Files", 'F', 'U'},
    {"TextField1", "QLineEdit", 143, 321, 344, 22, "", 'X', 'U'},
    {"Label1", "QLabel", 54, 321, 100, 20, "Watch Folder:", '-', 'U'},
    {"TextField2", "QLineEdit", 143, 353, 344, 22, "", 'X', 'U'},
    {"Label2", "QLabel", 21, 353, 126, 20, "Destination Folder:", '-', 'U'},
    {"BevelButton6", "QPushButton", 499, 320, 67, 22, "Browse...", '-', 'U'},
    {"BevelButton7", "QPushButton", 499, 351, 67, 22, "Browse...", '-', 'U'},
    {"ProgressText", "QLabel", 20, 208, 546, 20, "Reading SCC File...", '-', 'N'},
    {"Separator1", "QFrame", 140, 251, 426, 10, "", '-', 'A'},
    {"Label3", "QLabel", 28, 245, 100, 20, "Watch Folder", '-', 'A'},
    {"PopupArrow1", "QAbstractButton", 13, 250, 10, 10, "", '-', 'A'},
    {"Label4", "QLabel", 323, 290, 135, 20, "Check for files every", '-', 'U'},
    {"timerText", "QLineEdit", 457, 289, 40, 22, "15", '-', 'U'},
    {"Label5", "QLabel", 507, 290, 59, 20, "minutes.", '-', 'U'},
    {"Label6", "QLabel", 443, 32, 118, 28,
     "Select either a folder of\nfiles or a file to decode:", '-', 'A'},
    {"BevelButton8", "QToolButton", 115, 247, 17, 16, "?", '-', 'A'},
    {"PushButton1", "QPushButton", 439, 179, 122, 22, "Troubleshooting", '-', 'A'},
    {"Listbox1", "QListWidget", -314, 20, 300, 200, "", '-', 'N'},
};

std::string captionOf(const QWidget *widget) {
    return widget->property("text").toString().toStdString();
}

class MainWindow : public Desk {
  protected:
    void expectRows(bool unfolded) {
        for (const Row &row : kRows) {
            SCOPED_TRACE(row.name);
            auto *widget = at(row.name);
            ASSERT_NE(widget, nullptr);
            EXPECT_STREQ(widget->metaObject()->className(), row.kind);
            EXPECT_EQ(widget->geometry(), QRect(row.left, row.top, row.width, row.height));
            EXPECT_EQ(captionOf(widget), row.caption);
            EXPECT_EQ(widget->isVisible(), row.view == 'A' || (row.view == 'U' && unfolded));
            EXPECT_EQ(widget->isEnabled(), row.state != 'X');
            EXPECT_EQ(widget->property("checked").toBool(), row.state == 'T');
            if (captionOf(widget).empty() || row.caption == std::string("?")) {
                EXPECT_TRUE(!widget->accessibleName().isEmpty() || row.view == 'N' ||
                            row.kind == std::string("QFrame"));
            }
        }
        EXPECT_EQ(at("Canvas1")->parentWidget()->size(), QSize(586, unfolded ? 395 : 281));
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
    expectRows(false);
    click("PopupArrow1");
    expectRows(true);
    EXPECT_EQ(peer()->minimumSize(), peer()->maximumSize());
    EXPECT_EQ(peer()->windowTitle(), "Norvane");
    for (const QLabel *label : peer()->findChildren<QLabel *>()) {
        const QSize text = label->fontMetrics().size(0, label->text());
        EXPECT_LE(text.width(), label->width()) << captionOf(label);
        EXPECT_LE(text.height(), label->height()) << captionOf(label);
    }
    EXPECT_EQ(at("StaticText1")->palette().color(QPalette::WindowText), QColor(128, 128, 128));
    EXPECT_EQ(at("Label6")->font().pixelSize(), 10);
    EXPECT_EQ(at("LineBox")->font().pixelSize(), 13);
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

TEST_F(MainWindow, BoxesSetEachOtherOffFromEveryState) {
    // Line, timecode, paragraph; then what each box's click makes of the state, in that order.
    const char *kStates[][4] = {
        {"110", "001", "100", "001"}, {"100", "001", "110", "001"}, {"001", "110", "110", "110"}};
    const char *kBoxes[] = {"LineBox", "TimecodeBox", "ParagraphBox"};
    const auto shown = [&] {
        std::string state;
        for (const char *box : kBoxes)
            state += at(box)->property("checked").toBool() ? '1' : '0';
        return state;
    };
    const auto reach = [&](const std::string &state) {
        if (shown() == "001")
            click("LineBox"); // which leads to the state at the start
        if (state == "001" || (state == "110") != (shown() == "110"))
            click(state == "001" ? "ParagraphBox" : "TimecodeBox");
        ASSERT_EQ(shown(), state);
    };
    for (const auto &states : kStates) {
        for (std::size_t i = 0; i < 3; ++i) {
            reach(states[0]);
            at(kBoxes[i])->setFocus();
            key(Qt::Key_Space);
            EXPECT_EQ(shown(), states[i + 1]) << states[0] << ' ' << kBoxes[i];
            EXPECT_EQ(window().LineBox.Value, shown()[0] == '1');
            EXPECT_EQ(window().TimecodeBox.Value, shown()[1] == '1');
            EXPECT_EQ(window().ParagraphBox.Value, shown()[2] == '1');
        }
    }
}

TEST_F(MainWindow, RadioButtonsMayBothBeOff) {
    const auto expect = [&](bool first, bool second) {
        EXPECT_EQ(window().RadioButton1.Value, first);
        EXPECT_EQ(window().RadioButton2.Value, second);
        EXPECT_EQ(at("RadioButton1")->property("checked").toBool(), first);
        EXPECT_EQ(at("RadioButton2")->property("checked").toBool(), second);
    };
    click("RadioButton2");
    expect(false, true);
    click("RadioButton2");
    expect(false, true);
    window().RadioButton2.Value = false;
    expect(false, false);
    click("RadioButton1");
    expect(true, false);
    window().RadioButton1.Value = false;
    expect(false, false);
    window().RadioButton2.Value = true;
    expect(false, true);
    at("RadioButton2")->setFocus();
    key(Qt::Key_Up);
    expect(true, false);
}

TEST_F(MainWindow, FieldsAndModelsStayInStep) {
    click("PopupArrow1");
    auto *field = at<QLineEdit>("timerText");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "0.5");
    EXPECT_EQ(window().timerText.Text.get(), "0.5");
    EXPECT_EQ(window().Timer1.Period, 30000);
    window().timerText.Text = "2";
    EXPECT_EQ(field->text(), "2");
    window().TextField1.Text = "/no utf-8 \xff/";
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
    PaintCounter text;
    at("ProgressBar1")->installEventFilter(&bar);
    at("ProgressText")->installEventFilter(&text);
    window().ProgressBar1.Visible = true;
    window().ProgressText.Visible = true;
    window().ProgressBar1.Maximum = 1000000;
    window().ProgressBar1.Refresh(true);
    EXPECT_GE(bar.paints, 1);
    EXPECT_GE(text.paints, 1);
    QTest::qWait(100);
    bar.paints = 0;
    for (int value = 0; value < 900; ++value) { // less than a pixel in all
        window().ProgressBar1.Value = value;
        window().ProgressBar1.Refresh(true);
    }
    EXPECT_EQ(bar.paints, 0);
    window().ProgressBar1.Value = 500000;
    window().ProgressBar1.Refresh(true);
    EXPECT_GE(bar.paints, 1);
    for (int value = 500000; value <= 1000000; value += 10) {
        window().ProgressBar1.Value = value;
        window().ProgressBar1.Refresh(true);
    }
    EXPECT_LT(bar.paints, 400);
    EXPECT_TRUE(QTest::qWaitFor([&] { return at("ProgressBar1")->property("value") == 1000000; }));
}

} // namespace
} // namespace norvane
