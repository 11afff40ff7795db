#include "controls/quillet.h"
#include "helpabout/helpform.h"
#include "moveslist/usercontrol1.h"
#include "window/form1.h"

#include <QApplication>
#include <QSlider>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class Keys : public ::testing::Test {
protected:
    void SetUp() override
    {
        form.show();
        QApplication::setActiveWindow(&form);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    Quillet* face(const char* name) { return form.findChild<Quillet*>(QLatin1String(name)); }
    QWidget* focus() const { return QApplication::focusWidget(); }
    void key(Qt::Key k, Qt::KeyboardModifiers mods = {}) { QTest::keyClick(focus(), k, mods); }

    // The control the focus is on, by the name of the window's control.
    QString focused()
    {
        auto* log = form.findChild<UserControl1*>(QStringLiteral("MovesList"));
        return log->isAncestorOf(focus()) ? QStringLiteral("MovesList") : focus()->objectName();
    }

    Form1 form;
};

} // namespace

// The bar takes no clicks at the start, nor does Undo: Tab passes them by.
TEST_F(Keys, TabGoesRoundTheControlsInTheOrderTheyStand)
{
    QStringList order{focused()};
    for (int i = 0; i < 9; ++i) {
        key(Qt::Key_Tab);
        order << focused();
    }
    EXPECT_EQ(order, QStringList({"StartBeads", "MovesList", "Pausex", "TakeComp", "GiveHint",
                                  "Scorex", "Helpx", "Aboutx", "Quitx", "StartBeads"}));
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "Quitx");
}

// Space presses the focused button, a hint shows while it is held; the walk of the
// pots has counted every key on the way, and F1 opens the help.
TEST_F(Keys, SpacePressesTheFocusedButtonAndF1OpensTheHelp)
{
    for (int i = 0; i < 4; ++i)
        key(Qt::Key_Tab);
    ASSERT_EQ(focused(), "GiveHint");
    EXPECT_EQ(form.game().state().KeyboardPot, 3) << "A selected, then three steps";
    QTest::keyPress(focus(), Qt::Key_Space);
    EXPECT_TRUE(face("Hand")->isVisible());
    QTest::keyRelease(focus(), Qt::Key_Space);
    EXPECT_FALSE(face("Hand")->isVisible());

    key(Qt::Key_Tab, Qt::ShiftModifier);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(focused(), "Pausex");
    key(Qt::Key_Space);
    EXPECT_EQ(face("Pausex")->caption(), "Pause at moves");

    key(Qt::Key_F1);
    auto* help = form.findChild<HelpForm*>();
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());
}

// A forced turn pressed by the keys pauses: the focus waits on the bar, where Space
// goes on, and comes back to the button after the move.
TEST_F(Keys, APauseTakesTheFocusToTheBarAndGivesItBack)
{
    face("Pausex")->press();
    QStringList pauses;
    form.setPauseHook([&] {
        pauses << focused();
        key(Qt::Key_Space);
    });
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    ASSERT_EQ(focused(), "TakeComp");
    key(Qt::Key_Space);
    ASSERT_FALSE(pauses.isEmpty());
    EXPECT_EQ(pauses, QStringList(pauses.size(), QStringLiteral("Mess")));
    EXPECT_EQ(form.game().state().WaitingForClick, 0);
    EXPECT_EQ(focused(), "TakeComp");
}

// The prompt stays readable on the bar that takes no clicks, at 4.5 to 1 or more; the
// locked slider is clearly not the free one.
TEST_F(Keys, TheBarStaysReadableAndTheLockedSliderLooksLocked)
{
    auto luminance = [](QColor c) {
        auto channel = [](double v) {
            v /= 255;
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * channel(c.red()) + 0.7152 * channel(c.green()) + 0.0722 * channel(c.blue());
    };
    Quillet* bar = face("Mess");
    ASSERT_FALSE(bar->isEnabled());
    const QImage shown = bar->grab().toImage();
    double darkest = 1;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            darkest = std::min(darkest, luminance(shown.pixelColor(x, y)));
    const double face = luminance(bar->backcolor());
    EXPECT_GE((face + 0.05) / (darkest + 0.05), 4.5);

    auto* slider = form.findChild<QSlider*>(QStringLiteral("StartBeads"));
    const QImage free = slider->grab().toImage();
    slider->setEnabled(false);
    const QImage locked = slider->grab().toImage();
    int changed = 0;
    for (int y = 0; y < free.height(); ++y)
        for (int x = 0; x < free.width(); ++x)
            changed += free.pixel(x, y) != locked.pixel(x, y);
    EXPECT_GT(changed, free.width() * free.height() / 5);
}
