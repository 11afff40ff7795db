#include "common/twips.h"
#include "help_fixture.h"
#include "helpabout/helpform.h"
#include "helpabout/webbrowser.h"

#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace {

class HelpWindow : public ::testing::Test {
protected:
    void SetUp() override
    {
        help->Tag(page.path());
        help->show();
        help->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(help));
        browser = help->findChild<WebBrowser*>();
        view = viewOf(browser);
    }

    void TearDown() override { delete help.data(); }

    void click(const QString& text)
    {
        for (QPushButton* button : help->findChildren<QPushButton*>())
            if (button->text() == text)
                return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << "no button " << text.toStdString();
    }

    QString at(const char* place) const { return page.address() + QLatin1String(place); }

    TestPage page;
    QPointer<HelpForm> help = new HelpForm;
    WebBrowser* browser = nullptr;
    QTextBrowser* view = nullptr;
};

void runDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

// The window's Back and Forward walk the jumps inside the page; at the plain page Back
// does nothing, also with a history behind it.
TEST_F(HelpWindow, HistoryButtonsWaitForAJump)
{
    EXPECT_EQ(help->windowTitle(), QStringLiteral("Tavok Help"));
    EXPECT_TRUE(pageShows(view, QStringLiteral("first version")));
    clickLink(view, QStringLiteral("#first"));
    clickLink(view, QStringLiteral("#second"));
    click(QStringLiteral("Back"));
    EXPECT_EQ(browser->LocationURL(), at("#first"));
    click(QStringLiteral("Forward"));
    EXPECT_EQ(browser->LocationURL(), at("#second"));
    click(QStringLiteral("Back"));
    click(QStringLiteral("Back"));
    ASSERT_EQ(browser->LocationURL(), page.address());
    click(QStringLiteral("Forward"));
    EXPECT_EQ(browser->LocationURL(), page.address()) << "the plain page has a place forward";

    help->Form_Activate();
    click(QStringLiteral("Back"));
    EXPECT_EQ(browser->LocationURL(), page.address());
    EXPECT_EQ(scrollOf(view), 0);
}

TEST_F(HelpWindow, ComingBackFromAnotherWindowReloadsThePageFromItsTop)
{
    clickLink(view, QStringLiteral("#second"));
    page.rewrite(QStringLiteral("second version"));
    QWidget board;
    board.show();
    board.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&board));
    EXPECT_TRUE(pageShows(view, QStringLiteral("first version")));

    help->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(help));
    EXPECT_EQ(browser->LocationURL(), page.address());
    EXPECT_EQ(scrollOf(view), 0);
    EXPECT_TRUE(pageShows(view, QStringLiteral("second version")));
}

TEST_F(HelpWindow, TheBrowserFollowsTheFrame)
{
    const QSize before = browser->size();
    help->resize(help->width() + 300, help->height() + 120);
    EXPECT_EQ(browser->size(), before + QSize(300, 120));
}

TEST_F(HelpWindow, AWindowTooSmallLeavesTheBrowserAsItWas)
{
    const double perPixel = Twips::perPixel();
    const QSize before = browser->size();
    help->resize(300, 50);
    EXPECT_EQ(browser->height(), before.height()) << "50 pixels leave no room below the buttons";
    const int width =
        Twips::toPixels(static_cast<float>(help->frameGeometry().width() * perPixel - 120));
    EXPECT_EQ(browser->width(), width) << "the width still follows";

    help->resize(1, 50);
    ASSERT_LT(help->frameGeometry().width() * perPixel, 120);
    EXPECT_EQ(browser->size(), QSize(width, before.height()));
}

TEST_F(HelpWindow, ExitHidesWhereClosingDestroys)
{
    clickLink(view, QStringLiteral("#first"));
    click(QStringLiteral("Exit"));
    runDeferredDeletes();
    ASSERT_FALSE(help.isNull());
    EXPECT_FALSE(help->isVisible());
    help->show();
    EXPECT_EQ(browser->LocationURL(), page.address());

    click(QStringLiteral("Exit"));
    help->close();
    runDeferredDeletes();
    EXPECT_TRUE(help.isNull());
}

// A game installed without its page still opens the help window, which says where the
// page was looked for, and every button keeps working on it.
TEST_F(HelpWindow, AMissingPageIsSaidInTheWindowThatStillAnswers)
{
    help->hide();
    const QString missing = page.path() + QStringLiteral(".gone");
    help->Tag(missing);
    help->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(help));
    EXPECT_TRUE(view->toPlainText().contains(missing));
    for (QPushButton* button : help->findChildren<QPushButton*>())
        QTest::mouseClick(button, Qt::LeftButton);
    runDeferredDeletes();
    ASSERT_FALSE(help.isNull());
    EXPECT_TRUE(view->toPlainText().contains(missing));
}
