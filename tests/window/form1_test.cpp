#include "controls/quillet.h"
#include "helpabout/helpform.h"
#include "window/form1.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class MainWindow : public ::testing::Test {
protected:
    void SetUp() override
    {
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
        QApplication::setActiveWindow(&form);
    }

    template <typename T> T* child(const QString& name)
    {
        T* child = form.findChild<T*>(name);
        EXPECT_NE(child, nullptr) << name.toStdString();
        return child;
    }
    Quillet* Pot(int slot) { return child<Quillet>(QStringLiteral("Pots%1").arg(slot)); }

    Form1 form;
};

} // namespace

// Exit closes the help window first, whether it is on the screen or hidden by its own
// Exit, and then the main window.
class QuitWithHelp : public ::testing::TestWithParam<bool> {};

TEST_P(QuitWithHelp, ClosesTheHelpWindowToo)
{
    const bool hidden = GetParam();
    Form1 form;
    form.show();
    QTest::mouseClick(form.findChild<Quillet*>(QStringLiteral("Helpx")), Qt::LeftButton);
    QPointer<HelpForm> help;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* h = qobject_cast<HelpForm*>(w))
            help = h;
    ASSERT_TRUE(help);
    ASSERT_TRUE(help->isVisible());
    // No page lies beside this test: the window names where an installed game keeps it.
    EXPECT_TRUE(help->Tag().endsWith(QStringLiteral("/share/games/tavok/tavok.htm")))
        << help->Tag().toStdString();
    if (hidden)
        help->hide();
    // Any other window of the program goes too.
    QWidget other;
    other.show();
    QTest::mouseClick(form.findChild<Quillet*>(QStringLiteral("Quitx")), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(help.isNull());
    EXPECT_FALSE(other.isVisible());
    EXPECT_FALSE(form.isVisible());
}

INSTANTIATE_TEST_SUITE_P(OpenOrHidden, QuitWithHelp, ::testing::Bool());

#include <QProcess>

// Closing the window, by its frame or by Exit, ends the program at once, also while a
// computer's move waits for a click.
TEST(EndingInAPause, TheProgramEndsAtOnce)
{
    for (const char* how : {"close", "quit"}) {
        QProcess child;
        child.start(QStringLiteral(QUIT_DURING_PAUSE), {QString::fromLatin1(how)});
        ASSERT_TRUE(child.waitForFinished(10000)) << how;
        EXPECT_EQ(child.exitStatus(), QProcess::NormalExit) << how;
        EXPECT_EQ(child.exitCode(), 0)
            << how << ": " << child.readAllStandardOutput().toStdString();
    }
}

#include "moveslist/usercontrol1.h"

// A player who undoes and replays again and again fills the log to the list's 32,768
// items and past them: the list refuses every further line, and each move and each
// undo still counts.
TEST_F(MainWindow, AFullLogDoesNotStopTheGame)
{
    auto* log = child<UserControl1>(QStringLiteral("MovesList"));
    // The first part of a long evening, in a hurry.
    for (int i = log->state().ItemCount; i < 32740; ++i) {
        QString line = QStringLiteral("#000>Move   3 from A");
        log->Additem(line);
    }
    const Board start = form.game().state().Beads;
    for (int round = 0; round < 20; ++round) {
        const int pot = round % 2 == 0 ? 0 : 5;
        QTest::mouseClick(Pot(pot), Qt::LeftButton);
        ASSERT_NE(form.game().state().Beads, start) << "round " << round << ": the move was played";
        ASSERT_EQ(form.game().state().WaitingForClick, 0);
        QTest::mouseClick(child<Quillet>(QStringLiteral("Undox")), Qt::LeftButton);
        ASSERT_EQ(form.game().state().Beads, start) << "round " << round << ": the undo was made";
    }
    EXPECT_GE(log->state().ItemCount, 32768);
    QTest::mouseClick(Pot(2), Qt::LeftButton);
    EXPECT_NE(form.game().state().Beads, start);
}

TEST_F(MainWindow, ALongTotalStaysWholeInItsBox)
{
    auto* total = child<QLabel>(QStringLiteral("TotalB2"));
    form.setTotalBCaption(2, "32767");
    EXPECT_LE(QFontMetrics(total->font()).horizontalAdvance(total->text()),
              total->contentsRect().width());
    form.setTotalBCaption(2, "7");
    EXPECT_GT(total->font().pointSizeF(), 14.0) << "a short total keeps the full size";
}

#include <QSlider>

#include <numeric>

namespace {

// What one opening leaves behind: the board and the log, oldest line first.
struct Outcome {
    Board beads;
    int sliderValue;
    QStringList log;
    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& o, std::ostream* out)
{
    *out << o.log.join(QLatin1String(" / ")).toStdString();
}

void postClick(QWidget* widget)
{
    const QPoint at = widget->rect().center();
    const QPoint global = widget->mapToGlobal(at);
    QCoreApplication::postEvent(widget,
                                new QMouseEvent(QEvent::MouseButtonPress, at, global,
                                                Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    QCoreApplication::postEvent(widget,
                                new QMouseEvent(QEvent::MouseButtonRelease, at, global,
                                                Qt::LeftButton, Qt::NoButton, Qt::NoModifier));
}

// An opening played with "Pause at moves" on. At the first pause the user clicks the
// bar and, at once, does something else: both land in the queue and the same pass of
// the event loop delivers them, the second while the computer's move still runs.
enum class Behind { Nothing, PotClick, Enter, SliderDrag };

Outcome playPausedOpening(Behind behind, bool forcedTurn)
{
    Form1 form;
    form.show();
    QApplication::setActiveWindow(&form);
    auto child = [&](const char* name) { return form.findChild<QWidget*>(QLatin1String(name)); };
    QTest::mouseClick(child("Pausex"), Qt::LeftButton);
    bool first = true;
    form.setPauseHook([&] {
        if (!first) {
            QTest::mouseClick(child("Mess"), Qt::LeftButton);
            return;
        }
        first = false;
        postClick(child("Mess"));
        if (behind == Behind::PotClick)
            postClick(child("Pots2"));
        if (behind == Behind::Enter) {
            QWidget* focused = QApplication::focusWidget();
            QCoreApplication::postEvent(
                focused ? focused : &form,
                new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
        }
        if (behind == Behind::SliderDrag) {
            auto* slider = form.findChild<QSlider*>(QStringLiteral("StartBeads"));
            QMetaObject::invokeMethod(
                slider, [slider] { slider->setValue(50); }, Qt::QueuedConnection);
        }
        QCoreApplication::processEvents();
    });
    // The first key selects pot A, which keeps its beads for Enter to play. A forced
    // turn leaves the slider free.
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus ? focus : &form, Qt::Key_A);
    if (forcedTurn)
        QTest::mouseClick(child("TakeComp"), Qt::LeftButton);
    else
        QTest::mouseClick(child("Pots1"), Qt::LeftButton);

    Outcome outcome{form.game().state().Beads,
                    form.findChild<QSlider*>(QStringLiteral("StartBeads"))->value(),
                    {}};
    auto* list = form.findChild<UserControl1*>(QStringLiteral("MovesList"));
    for (int it = list->state().ItemCount - 1; it >= 0; --it)
        outcome.log << list->List(it).toText();
    return outcome;
}

class EventsBehindTheRelease : public ::testing::TestWithParam<Behind> {};

} // namespace

TEST_P(EventsBehindTheRelease, StartNoMoveInsideTheComputers)
{
    const bool forcedTurn = GetParam() == Behind::SliderDrag;
    const Outcome undisturbed = playPausedOpening(Behind::Nothing, forcedTurn);
    const Outcome outcome = playPausedOpening(GetParam(), forcedTurn);
    EXPECT_EQ(std::accumulate(outcome.beads.begin(), outcome.beads.end(), 0), 12 * 3);
    EXPECT_EQ(outcome, undisturbed);
}

INSTANTIATE_TEST_SUITE_P(OnePass, EventsBehindTheRelease,
                         ::testing::Values(Behind::PotClick, Behind::Enter, Behind::SliderDrag));
