#include "help_fixture.h"
#include "helpabout/twips.h"
#include "helpabout/webbrowser.h"

#include <QDesktopServices>
#include <QImage>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace {

class BrowserTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        browser.resize(400, 300);
        browser.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&browser));
        browser.Navigate(page.path());
        view = ViewOf(&browser);
        ASSERT_NE(view, nullptr);
    }

    TestPage page;
    WebBrowser browser;
    QTextBrowser* view = nullptr;
};

// Counts every URL the desktop would have been asked to open.
class OpenedUrls : public QObject {
    Q_OBJECT

public:
    int count = 0;

public slots:
    void open(const QUrl&) { ++count; }
};

} // namespace

TEST_F(BrowserTest, NavigateShowsThePlainPageFromItsTop)
{
    EXPECT_EQ(browser.LocationURL(), page.address());
    EXPECT_TRUE(PageShows(view, QStringLiteral("first version")));
    EXPECT_EQ(ScrollOf(view), 0);
}

TEST_F(BrowserTest, AJumpInsideThePageAddsThePlaceToTheAddressAndScrolls)
{
    ClickLink(view, QStringLiteral("#second"));
    EXPECT_EQ(browser.LocationURL(), page.address() + QStringLiteral("#second"));
    EXPECT_GT(ScrollOf(view), 0);
}

TEST_F(BrowserTest, ALinkToThisPageByNameIsAJumpInsideIt)
{
    ClickLink(view, QStringLiteral("tavok.htm#second"));
    EXPECT_EQ(browser.LocationURL(), page.address() + QStringLiteral("#second"));
}

TEST_F(BrowserTest, BackAndForwardWalkTheJumps)
{
    ClickLink(view, QStringLiteral("#first"));
    const int first = ScrollOf(view);
    browser.GoBack();
    ClickLink(view, QStringLiteral("#second"));
    const int second = ScrollOf(view);
    ASSERT_GT(second, first);

    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), page.address());
    EXPECT_EQ(ScrollOf(view), 0);
    browser.GoForward();
    EXPECT_EQ(browser.LocationURL(), page.address() + QStringLiteral("#second"));
    EXPECT_EQ(ScrollOf(view), second);
}

TEST_F(BrowserTest, AJumpCutsOffWhatLayForward)
{
    ClickLink(view, QStringLiteral("#first"));
    ClickLink(view, QStringLiteral("#second"));
    browser.GoBack();
    browser.GoBack();
    ClickLink(view, QStringLiteral("#second"));
    browser.GoForward();
    EXPECT_EQ(browser.LocationURL(), page.address() + QStringLiteral("#second"));
    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), page.address());
}

TEST_F(BrowserTest, StepsPastEitherEndOfTheHistoryDoNothing)
{
    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), page.address());
    ClickLink(view, QStringLiteral("#first"));
    browser.GoForward();
    EXPECT_EQ(browser.LocationURL(), page.address() + QStringLiteral("#first"));

    WebBrowser blank;
    blank.GoBack();
    blank.GoForward();
    EXPECT_TRUE(blank.LocationURL().isEmpty());
}

TEST_F(BrowserTest, LinksOutOfThePageOpenNothing)
{
    OpenedUrls opened;
    const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"),
                              QStringLiteral("mailto"), QStringLiteral("file")};
    for (const QString& scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, &opened, "open");

    for (const char* href : {"http://tavok.example/", "mailto:dravo@tavok.example", "other.htm"}) {
        ASSERT_NE(LinkPoint(view, QString::fromLatin1(href)), QPoint(-1, -1)) << href;
        ClickLink(view, QString::fromLatin1(href));
        EXPECT_EQ(browser.LocationURL(), page.address()) << href;
    }
    EXPECT_TRUE(PageShows(view, QStringLiteral("first version")));
    EXPECT_EQ(opened.count, 0);

    for (const QString& scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

TEST_F(BrowserTest, NavigateReadsTheFileAfreshEachTime)
{
    page.rewrite(QStringLiteral("second version"));
    browser.Navigate(page.path());
    EXPECT_TRUE(PageShows(view, QStringLiteral("second version")));
}

TEST_F(BrowserTest, GoingBackAcrossAReloadKeepsThePageShown)
{
    ClickLink(view, QStringLiteral("#first"));
    page.rewrite(QStringLiteral("second version"));
    browser.Navigate(page.path());
    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), page.address() + QStringLiteral("#first"));
    EXPECT_TRUE(PageShows(view, QStringLiteral("second version")));
}

TEST_F(BrowserTest, PicturesAreFoundBesideThePage)
{
    const QVariant picture = view->document()->resource(QTextDocument::ImageResource,
                                                        QUrl(QStringLiteral("help/dot.png")));
    EXPECT_EQ(picture.value<QImage>().size(), QSize(12, 12));
}

TEST_F(BrowserTest, AMissingPageShowsAWordAndKeepsItsAddress)
{
    const QString missing = page.path() + QStringLiteral(".gone");
    browser.Navigate(missing);
    EXPECT_EQ(browser.LocationURL(), QUrl::fromLocalFile(missing).toString());
    EXPECT_TRUE(PageShows(view, QStringLiteral("cannot be shown")));
}

TEST_F(BrowserTest, PlaceAndSizeAreInTwips)
{
    const double perPixel = TwipsPerPixel(&browser);
    browser.Width(perPixel * 123);
    browser.Height(perPixel * 45);
    EXPECT_EQ(browser.size(), QSize(123, 45));
    browser.move(10, 28);
    EXPECT_DOUBLE_EQ(browser.Top(), 28 * perPixel);
}

#include "webbrowser_test.moc"
