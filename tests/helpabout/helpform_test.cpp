#include "help_fixture.h"
#include "helpabout/helpform.h"
#include "helpabout/twips.h"
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
        help = new HelpForm;
        help->Tag(page.path());
        help->show();
        help->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(help));
        browser = help->findChild<WebBrowser*>();
        ASSERT_NE(browser, nullptr);
        view = ViewOf(browser);
    }

    void TearDown() override
    {
        delete help.data();
        delete other.data();
    }

    QPushButton* button(const QString& text) const
    {
        for (QPushButton* candidate : help->findChildren<QPushButton*>())
            if (candidate->text() == text)
                return candidate;
        ADD_FAILURE() << "no button " << text.toStdString();
        return nullptr;
    }

    void click(const QString& text) { QTest::mouseClick(button(text), Qt::LeftButton); }

    QString at(const char* place) const { return page.address() + QString::fromLatin1(place); }

    static void runDeferredDeletes()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    TestPage page;
    QPointer<HelpForm> help;
    QPointer<QWidget> other;
    WebBrowser* browser = nullptr;
    QTextBrowser* view = nullptr;
};

} // namespace

TEST_F(HelpWindow, ThePageIsShownAtTheFirstShowing)
{
    EXPECT_EQ(help->windowTitle(), QStringLiteral("Tavok Help"));
    EXPECT_EQ(browser->LocationURL(), page.address());
    EXPECT_TRUE(PageShows(view, QStringLiteral("first version")));
}

TEST_F(HelpWindow, BackAndForwardActOnlyAfterAJumpInsideThePage)
{
    ClickLink(view, QStringLiteral("#first"));
    ClickLink(view, QStringLiteral("#second"));
    click(QStringLiteral("Back"));
    EXPECT_EQ(browser->LocationURL(), at("#first"));
    click(QStringLiteral("Forward"));
    EXPECT_EQ(browser->LocationURL(), at("#second"));
    click(QStringLiteral("Back"));
    click(QStringLiteral("Back"));
    EXPECT_EQ(browser->LocationURL(), page.address());

    // The plain page now has a place forward of it, but the buttons stay still there.
    click(QStringLiteral("Forward"));
    EXPECT_EQ(browser->LocationURL(), page.address());
}

TEST_F(HelpWindow, AtThePlainPageBackDoesNothingEvenWithAHistory)
{
    ClickLink(view, QStringLiteral("#first"));
    help->Form_Activate();
    ASSERT_EQ(browser->LocationURL(), page.address());
    click(QStringLiteral("Back"));
    EXPECT_EQ(browser->LocationURL(), page.address());
    EXPECT_EQ(ScrollOf(view), 0);
}

TEST_F(HelpWindow, ComingBackFromAnotherWindowReloadsThePageFromItsTop)
{
    ClickLink(view, QStringLiteral("#second"));
    ASSERT_GT(ScrollOf(view), 0);
    page.rewrite(QStringLiteral("second version"));

    other = new QWidget;
    other->show();
    other->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(other));
    EXPECT_TRUE(PageShows(view, QStringLiteral("first version")));

    help->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(help));
    EXPECT_EQ(browser->LocationURL(), page.address());
    EXPECT_EQ(ScrollOf(view), 0);
    EXPECT_TRUE(PageShows(view, QStringLiteral("second version")));
}

TEST_F(HelpWindow, TheBrowserFollowsTheFrame)
{
    const QSize before = browser->size();
    help->resize(help->width() + 300, help->height() + 120);
    EXPECT_EQ(browser->size(), before + QSize(300, 120));
}

TEST_F(HelpWindow, TheBrowserFillsTheWindowBelowTheButtons)
{
    const double perPixel = TwipsPerPixel(help);
    const QSize outer = help->frameGeometry().size();
    EXPECT_EQ(browser->width(), ToPixels(outer.width() * perPixel - 120, perPixel));
    EXPECT_EQ(browser->geometry().bottom() + 1,
              ToPixels(outer.height() * perPixel - 480, perPixel));
    EXPECT_GT(browser->y(), button(QStringLiteral("Back"))->geometry().bottom());
}

TEST_F(HelpWindow, AWindowTooSmallLeavesTheBrowserAsItWas)
{
    const double perPixel = TwipsPerPixel(help);
    const QSize before = browser->size();
    help->resize(300, 50);
    EXPECT_EQ(browser->height(), before.height()) << "50 pixels leave no room below the buttons";
    const int width = ToPixels(help->frameGeometry().width() * perPixel - 120, perPixel);
    EXPECT_EQ(browser->width(), width) << "the width still follows";

    help->resize(1, 50);
    ASSERT_LT(help->frameGeometry().width() * perPixel, 120);
    EXPECT_EQ(browser->size(), QSize(width, before.height()));
}

TEST_F(HelpWindow, ExitHidesTheWindowAndKeepsIt)
{
    ClickLink(view, QStringLiteral("#first"));
    click(QStringLiteral("Exit"));
    runDeferredDeletes();
    ASSERT_FALSE(help.isNull());
    EXPECT_FALSE(help->isVisible());

    help->show();
    EXPECT_EQ(browser->LocationURL(), page.address());
}

TEST_F(HelpWindow, ClosingFromTheFrameDestroysIt)
{
    help->close();
    runDeferredDeletes();
    EXPECT_TRUE(help.isNull());
}

TEST_F(HelpWindow, ClosingAHiddenWindowDestroysItToo)
{
    click(QStringLiteral("Exit"));
    help->close();
    runDeferredDeletes();
    EXPECT_TRUE(help.isNull());
}

TEST_F(HelpWindow, TheBrowserComesFirstThenBackForwardExit)
{
    QWidget* step = browser->focusProxy();
    ASSERT_NE(step, nullptr);
    for (const char* text : {"Back", "Forward", "Exit"}) {
        step = step->nextInFocusChain();
        while (step->focusPolicy() == Qt::NoFocus)
            step = step->nextInFocusChain();
        EXPECT_EQ(step, button(QString::fromLatin1(text)));
    }
}

TEST_F(HelpWindow, AMissingPageIsNoFailure)
{
    help->Tag(page.path() + QStringLiteral(".gone"));
    help->Form_Activate();
    click(QStringLiteral("Back"));
    click(QStringLiteral("Forward"));
    EXPECT_EQ(browser->LocationURL(), QUrl::fromLocalFile(help->Tag()).toString());
}
