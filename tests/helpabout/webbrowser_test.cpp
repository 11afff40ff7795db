#include "common/twips.h"
#include "help_fixture.h"
#include "helpabout/webbrowser.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QImage>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace {

class Browser : public ::testing::Test {
protected:
    void SetUp() override
    {
        browser.resize(400, 300);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        browser.Navigate(page.path());
        view = viewOf(&browser);
    }

    QString at(const char* place) const { return page.address() + QLatin1String(place); }

    TestPage page;
    QWidget window;
    WebBrowser browser{&window};
    QTextBrowser* view = nullptr;
};

// Counts every address the desktop would have been asked to open.
class OpenedUrls : public QObject {
    Q_OBJECT

public:
    int count = 0;

public slots:
    void open(const QUrl&) { ++count; }
};

} // namespace

TEST_F(Browser, JumpsAreStepsOfTheHistory)
{
    EXPECT_EQ(browser.LocationURL(), page.address());
    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), page.address()) << "nothing to go back to";
    browser.Navigate(page.path()); // the page it shows is no new step

    clickLink(view, QStringLiteral("#first"));
    const int first = scrollOf(view);
    clickLink(view, QStringLiteral("tavok.htm#second"));
    const int second = scrollOf(view);
    EXPECT_EQ(browser.LocationURL(), at("#second"));
    ASSERT_GT(second, first);
    ASSERT_GT(first, 0);

    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), at("#first"));
    EXPECT_EQ(scrollOf(view), first);
    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), page.address());
    EXPECT_EQ(scrollOf(view), 0);
    browser.GoBack();
    browser.GoForward();
    EXPECT_EQ(browser.LocationURL(), at("#first"));
    browser.GoForward();
    browser.GoForward();
    EXPECT_EQ(browser.LocationURL(), at("#second"));
    EXPECT_EQ(scrollOf(view), second);
}

TEST_F(Browser, AJumpCutsOffWhatLayForward)
{
    clickLink(view, QStringLiteral("#first"));
    browser.GoBack();
    clickLink(view, QStringLiteral("#second"));
    browser.GoForward();
    EXPECT_EQ(browser.LocationURL(), at("#second"));
    browser.GoBack();
    EXPECT_EQ(browser.LocationURL(), page.address());
}

TEST_F(Browser, LinksOutOfThePageOpenNothing)
{
    OpenedUrls opened;
    const QStringList schemes{"http", "https", "mailto", "file"};
    for (const QString& scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, &opened, "open");
    for (const char* href :
         {"http://tavok.example/", "mailto:dravo@tavok.example", "other.htm#first"}) {
        ASSERT_NE(linkPoint(view, QLatin1String(href)), QPoint(-1, -1)) << href;
        clickLink(view, QLatin1String(href));
        EXPECT_EQ(browser.LocationURL(), page.address()) << href;
    }
    for (const QString& scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
    EXPECT_EQ(opened.count, 0);
    EXPECT_TRUE(pageShows(view, QStringLiteral("first version")));
}

TEST_F(Browser, NavigateReadsTheFileAfresh)
{
    page.rewrite(QStringLiteral("second version"));
    browser.Navigate(page.path());
    EXPECT_TRUE(pageShows(view, QStringLiteral("second version")));
}

// The picture beside the page, from its @2x file on a screen of ratio 2 (this case runs
// again on one, see CMakeLists.txt), at the same size.
TEST_F(Browser, PicturesComeFromBesideThePageAtTheScreensRatio)
{
    const QVariant resource = view->document()->resource(
        QTextDocument::ImageResource,
        QUrl::fromLocalFile(QFileInfo(page.path()).path() + QStringLiteral("/help/dot.png")));
    const QImage picture = resource.typeId() == QMetaType::QPixmap
                               ? resource.value<QPixmap>().toImage()
                               : resource.value<QImage>();
    const qreal ratio = view->devicePixelRatio();
    EXPECT_EQ(picture.size(), QSize(12, 12) * ratio);
    EXPECT_EQ(picture.pixelColor(0, 0), ratio > 1 ? QColor(Qt::red) : QColor(Qt::green));
}

TEST_F(Browser, AMissingPageIsSaid)
{
    browser.Navigate(page.path());
    ASSERT_FALSE(view->toPlainText().isEmpty());
    const QString missing = page.path() + QStringLiteral(".gone");
    browser.Navigate(missing);
    EXPECT_EQ(browser.LocationURL(), QUrl::fromLocalFile(missing).toString());
    EXPECT_TRUE(view->toPlainText().startsWith(QStringLiteral("The help page cannot be read.")));
    EXPECT_TRUE(view->toPlainText().contains(missing));
}

TEST_F(Browser, PlaceAndSizeAreInTwips)
{
    const double perPixel = Twips::perPixel();
    browser.Width(perPixel * 123);
    browser.Height(perPixel * 45);
    EXPECT_EQ(browser.size(), QSize(123, 45));
    EXPECT_EQ(view->size(), QSize(123, 45));
    browser.move(10, 28);
    EXPECT_DOUBLE_EQ(browser.Top(), 28 * perPixel);
}

#include "webbrowser_test.moc"
