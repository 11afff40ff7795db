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
        text = about.findChild<QTextEdit*>();
        ASSERT_NE(text, nullptr);
    }

    QLabel* version() const
    {
        for (QLabel* label : about.findChildren<QLabel*>())
            if (label->text() == QStringLiteral("Version 1.0"))
                return label;
        return nullptr;
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
    QTextEdit* text = nullptr;
};

} // namespace

TEST_F(AboutWindow, NamesTheGameItsMakerAndItsVersion)
{
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About TAVOK"));
    const QStringList lines = text->toPlainText().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines.mid(0, 3), QStringList({QString(), QString(), QString()}));
    EXPECT_EQ(lines[3], QStringLiteral("TAVOK by Dravo"));
    EXPECT_TRUE(lines[4].startsWith(QStringLiteral("email "))) << lines[4].toStdString();
    ASSERT_NE(version(), nullptr);
}

TEST_F(AboutWindow, HasAFixedSize)
{
    EXPECT_EQ(about.minimumSize(), about.maximumSize());
}

TEST_F(AboutWindow, OkClosesIt)
{
    QTest::mouseClick(about.findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, APressOnItsSurfaceClosesIt)
{
    const QPoint point = surface();
    ASSERT_NE(point, QPoint(-1, -1));
    QTest::mousePress(&about, Qt::RightButton, {}, point);
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, AReleaseOverTheTextClosesItThePressDoesNot)
{
    QWidget* viewport = text->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, viewport->rect().center());
    EXPECT_TRUE(about.isVisible());
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, viewport->rect().center());
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, AReleaseAfterDraggingOffTheTextLeavesItOpen)
{
    QWidget* viewport = text->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, viewport->rect().center());
    QTest::mouseRelease(viewport, Qt::LeftButton, {},
                        viewport->rect().bottomRight() + QPoint(20, 20));
    EXPECT_TRUE(about.isVisible());
}

TEST_F(AboutWindow, ClosingFromTheFrameClosesIt)
{
    EXPECT_TRUE(about.close());
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutWindow, ThePictureAndTheVersionDoNotReact)
{
    QTest::mousePress(version(), Qt::LeftButton);
    QTest::mouseRelease(version(), Qt::LeftButton);
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
        if (QWidget* stuck = QApplication::activeModalWidget()) {
            forcedClosed = true;
            stuck->close();
        }
    });
    rescue.start(3000);
    AboutForm::showModal(&board);
    EXPECT_TRUE(seenModal);
    EXPECT_FALSE(forcedClosed);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(board.findChildren<AboutForm*>().isEmpty()) << "each showing is a new window";
}
