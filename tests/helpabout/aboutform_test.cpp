#include "helpabout/aboutform.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class AboutWindow : public ::testing::Test {
protected:
    void SetUp() override
    {
        about.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
    }

    // A point of the window's own surface, clear of every control.
    QPoint surface() const
    {
        for (int y = about.height() - 1; y >= 0; --y)
            for (int x = 0; x < about.width(); ++x)
                if (!about.childAt(x, y))
                    return {x, y};
        return {-1, -1};
    }

    AboutForm about;
    QTextEdit* text = about.findChild<QTextEdit*>();
};

} // namespace

TEST_F(AboutWindow, NamesTheGameItsMakerAndItsVersion)
{
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About TAVOK"));
    const QStringList lines = text->toPlainText().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines.mid(0, 3).join(QString()), QString());
    EXPECT_EQ(lines[3], QStringLiteral("TAVOK by Dravo"));
    EXPECT_TRUE(lines[4].startsWith(QStringLiteral("email "))) << lines[4].toStdString();
}

TEST_F(AboutWindow, OkClosesIt)
{
    QTest::mouseClick(about.findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, APressOnItsSurfaceClosesIt)
{
    QTest::mousePress(&about, Qt::RightButton, {}, surface());
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, ClosingFromTheFrameClosesIt)
{
    EXPECT_TRUE(about.close());
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, AReleaseOverTheTextClosesItThePressAndAReleaseElsewhereDoNot)
{
    QWidget* viewport = text->viewport();
    const QPoint inside = viewport->rect().center();
    QTest::mousePress(viewport, Qt::LeftButton, {}, inside);
    QTest::mouseRelease(viewport, Qt::LeftButton, {},
                        viewport->rect().bottomRight() + QPoint(9, 9));
    EXPECT_TRUE(about.isVisible());
    QTest::mousePress(viewport, Qt::LeftButton, {}, inside);
    EXPECT_TRUE(about.isVisible());
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, inside);
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, ThePictureAndTheVersionDoNotReact)
{
    for (QLabel* label : about.findChildren<QLabel*>())
        QTest::mouseClick(label, Qt::LeftButton);
    EXPECT_TRUE(about.isVisible());
}

TEST(AboutModal, ShowModalReturnsOnceTheWindowIsClosed)
{
    QWidget board;
    board.show();
    bool seenModal = false;
    QTimer::singleShot(0, [&] {
        auto* about = qobject_cast<AboutForm*>(QApplication::activeModalWidget());
        seenModal = about != nullptr;
        if (about)
            QTest::mouseClick(about->findChild<QPushButton*>(), Qt::LeftButton);
    });
    // Should the window not close, this ends the wait and the test fails below.
    bool forcedClosed = false;
    QTimer rescue;
    rescue.setSingleShot(true);
    QObject::connect(&rescue, &QTimer::timeout, [&] {
        forcedClosed = true;
        if (QWidget* stuck = QApplication::activeModalWidget())
            stuck->close();
    });
    rescue.start(3000);
    AboutForm::showModal(&board);
    EXPECT_TRUE(seenModal);
    EXPECT_FALSE(forcedClosed);
    EXPECT_TRUE(board.findChildren<AboutForm*>().isEmpty()) << "each showing is a new window";
}
