#include "controls/marlet.h"

#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <array>

namespace {

// The score board set up as the window does it, hidden over a moves list.
class ScoreBoard : public ::testing::Test {
protected:
    void SetUp() override
    {
        window.resize(530, 464);
        Score1 = new Marlets::Marlet(&window);
        Score1->setGeometry(232, 248, 241, 121);
        Score1->Visible(false);
        movesList = new QWidget(&window);
        movesList->setGeometry(143, 212, 379, 250);
        Score1->ScoreTitle("Tavok");
        Score1->ScoreOptionB(true);
        Score1->ScoreOptionA(true);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    // What Scorex does on a mouse up.
    void open()
    {
        Score1->ScoreShow(true);
        Score1->Visible(true);
        Score1->zOrder(0);
    }

    QString shown(const char* name) const
    {
        const auto* label = Score1->findChild<QLabel*>(name);
        return label && label->isVisibleTo(Score1) ? label->text() : "(not shown)";
    }

    QWidget window;
    Marlets::Marlet* Score1 = nullptr;
    QWidget* movesList = nullptr;
};

// Won, lost and drawn.
std::array<int, 3> record(const Marlets::Marlet& board)
{
    return {board.wins(), board.losses(), board.draws()};
}

} // namespace

// Games that end while the board is open show at once.
TEST_F(ScoreBoard, EachGameWrittenShowsOnTheOpenBoard)
{
    open();
    EXPECT_EQ(shown("title"), "Tavok");
    EXPECT_EQ(shown("share"), "-");
    Score1->ScoreWin(true);
    Score1->ScoreDraw(false);
    EXPECT_EQ(shown("share"), "100%");
    Score1->ScoreWin(false);
    Score1->ScoreWin(true);
    Score1->ScoreDraw(true);
    EXPECT_EQ(shown("won"), "2");
    EXPECT_EQ(shown("lost"), "1");
    EXPECT_EQ(shown("drawn"), "1");
    EXPECT_EQ(shown("share"), "50%");
    EXPECT_EQ(record(*Score1), (std::array{2, 1, 1}));
}

TEST_F(ScoreBoard, TheOptionChoosesTheLastColumn)
{
    Score1->ScoreOptionA(false);
    open();
    EXPECT_EQ(shown("share"), "(not shown)");
    EXPECT_EQ(shown("drawn"), "0");
    Score1->ScoreOptionB(false);
    EXPECT_EQ(shown("drawn"), "(not shown)");
}

TEST_F(ScoreBoard, AClosedBoardComesBackInFront)
{
    open();
    const QPoint middle = Score1->geometry().center();
    auto* close = Score1->findChild<QToolButton*>("close");
    ASSERT_NE(close, nullptr);
    // The close button lies flat on the black band until the mouse comes.
    EXPECT_EQ(close->grab().toImage().pixelColor(2, close->height() / 2), QColor(Qt::black));
    // The band's title starts 6 pixels in; the button keeps a pixel of black round it.
    const QWidget* band = close->parentWidget();
    EXPECT_EQ(band->findChild<QLabel*>("title")->x(), 6);
    EXPECT_EQ(Score1->grab().toImage().pixelColor(band->mapTo(Score1, QPoint(1, 1))),
              QColor(Qt::black));
    EXPECT_EQ(close->y(), 1);
    EXPECT_EQ(band->width() - 1 - close->geometry().right(), 1);
    EXPECT_EQ(band->height() - 1 - close->geometry().bottom(), 1);
    QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_FALSE(Score1->isVisible());
    EXPECT_EQ(window.childAt(middle), movesList);

    movesList->raise();
    open();
    EXPECT_TRUE(Score1->isVisible());
    EXPECT_NE(window.childAt(middle), movesList);
}

// A board that keeps its record finds it again in the next run, under its title only.
TEST(MarletRecord, OutlivesTheBoardOnlyWhenKept)
{
    QTemporaryDir home;
    ASSERT_TRUE(home.isValid());
    const QByteArray oldConfig = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    Marlets::Marlet::keepRecords(true);
    {
        Marlets::Marlet first;
        first.ScoreTitle(QStringLiteral("Tavok"));
        first.ScoreWin(true);
        first.ScoreWin(false);
        first.ScoreDraw(true);
    }
    Marlets::Marlet again, other;
    again.ScoreTitle(QStringLiteral("Tavok"));
    EXPECT_EQ(record(again), (std::array{1, 1, 1}));
    // A count below nothing is no count: the record starts afresh.
    QSettings(QStringLiteral("Tavok"), QStringLiteral("Tavok"))
        .setValue(QStringLiteral("Score/Damaged/lost"), -3);
    Marlets::Marlet damaged;
    damaged.ScoreTitle(QStringLiteral("Damaged"));
    EXPECT_EQ(record(damaged), (std::array{0, 0, 0}));
    other.ScoreTitle(QStringLiteral("Another game"));
    EXPECT_EQ(record(other), (std::array{0, 0, 0}));

    Marlets::Marlet::keepRecords(false);
    Marlets::Marlet unkept;
    unkept.ScoreTitle(QStringLiteral("Tavok"));
    EXPECT_EQ(record(unkept), (std::array{0, 0, 0}))
        << "tests and tools start with an empty record";
    qputenv("XDG_CONFIG_HOME", oldConfig);
}
