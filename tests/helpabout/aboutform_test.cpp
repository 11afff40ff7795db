#include "helpabout/aboutform.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <functional>
#include <tuple>

#include <gtest/gtest.h>

namespace {

QWidget* textOf(AboutForm& about)
{
    return about.findChild<QTextEdit*>()->viewport();
}

// A point of the window's own surface, clear of every control.
QPoint Surface(const AboutForm& about)
{
    for (int y = about.height() - 1; y >= 0; --y)
        for (int x = 0; x < about.width(); ++x)
            if (!about.childAt(x, y))
                return {x, y};
    return {-1, -1};
}

using Gesture = std::function<void(AboutForm&)>;

bool staysOpenAfter(const Gesture& gesture)
{
    AboutForm about;
    about.show();
    if (!QTest::qWaitForWindowExposed(&about))
        return false;
    gesture(about);
    return about.isVisible();
}

} // namespace

TEST(AboutWindow, NamesTheGame)
{
    AboutForm about;
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About TAVOK"));
    const QStringList lines = about.findChild<QTextEdit*>()->toPlainText().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines.mid(0, 3).join(QString()), QString());
    EXPECT_EQ(lines[3], QStringLiteral("TAVOK by Dravo"));
    EXPECT_TRUE(lines[4].startsWith(QStringLiteral("email "))) << lines[4].toStdString();
    // The version stands white on a black band.
    QLabel* version = nullptr;
    for (QLabel* label : about.findChildren<QLabel*>())
        if (label->text() == QStringLiteral("Version 1.0"))
            version = label;
    ASSERT_NE(version, nullptr);
    const QImage window = about.grab().toImage();
    EXPECT_EQ(window.pixelColor(version->geometry().topLeft() + QPoint(1, 1)), QColor(Qt::black));
}

// OK, a press on the surface, a click on the text and the frame close it; the picture,
// the version, a press on the text or a release off it do not.
TEST(AboutWindow, ClosesFourWaysOnly)
{
    const std::vector<std::tuple<const char*, Gesture, bool>> ways{
        {"OK", [](AboutForm& a) { QTest::mouseClick(a.findChild<QPushButton*>(), Qt::LeftButton); },
         false},
        {"a press on its surface",
         [](AboutForm& a) { QTest::mousePress(&a, Qt::RightButton, {}, Surface(a)); }, false},
        {"a click on the text", [](AboutForm& a) { QTest::mouseClick(textOf(a), Qt::LeftButton); },
         false},
        {"the frame", [](AboutForm& a) { a.close(); }, false},
        {"the picture and the version",
         [](AboutForm& a) {
             for (QLabel* label : a.findChildren<QLabel*>())
                 QTest::mouseClick(label, Qt::LeftButton);
         },
         true},
        {"a release off the text",
         [](AboutForm& a) {
             QWidget* text = textOf(a);
             QTest::mousePress(text, Qt::LeftButton, {}, text->rect().center());
             QTest::mouseRelease(text, Qt::LeftButton, {},
                                 text->rect().bottomRight() + QPoint(9, 9));
         },
         true},
        {"a press on the text", [](AboutForm& a) { QTest::mousePress(textOf(a), Qt::LeftButton); },
         true},
    };
    for (const auto& [way, gesture, open] : ways)
        EXPECT_EQ(staysOpenAfter(gesture), open) << way;
}

TEST(AboutWindow, ShowModalReturnsOnceTheWindowIsClosed)
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
