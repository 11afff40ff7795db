#include "controls/quillet.h"
#include "moveslist/usercontrol1.h"
#include "window/form1.h"

#include "common/twips.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QSlider>
#include <QTest>

#include <cmath>

#include <gtest/gtest.h>

namespace {

void clickOn(Form1& form, const char* name)
{
    QTest::mouseClick(form.findChild<QWidget*>(QLatin1String(name)), Qt::LeftButton);
}

class Look : public ::testing::Test {
protected:
    void SetUp() override
    {
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    }
    Form1 form;
};

} // namespace

// The strokes between the pot columns are three whole pixels of black, no grey beside.
TEST_F(Look, TheStrokesBetweenThePotColumnsAreCrisp)
{
    const QImage window = form.grab().toImage();
    const QColor ground = form.palette().color(QPalette::Window);
    const int y = Twips::toPixels(1300);
    for (int stroke : {2190, 3075, 3960, 4845, 5730}) {
        const int x = Twips::toPixels(float(stroke));
        int black = 0, other = 0;
        for (int dx = -4; dx <= 4; ++dx) {
            const QColor c = window.pixelColor(x + dx, y);
            black += c == Qt::black;
            other += c != Qt::black && c != ground;
        }
        EXPECT_EQ(black, 3) << stroke;
        EXPECT_EQ(other, 0) << stroke;
    }
}

TEST_F(Look, TheLogSaysWhoseEachRowIs)
{
    QAccessible::setActive(true);
    clickOn(form, "Pots0");
    auto* list = form.findChild<UserControl1*>(QStringLiteral("MovesList"));
    QAccessibleInterface* log = QAccessible::queryAccessibleInterface(list);
    ASSERT_EQ(log->role(), QAccessible::List);
    ASSERT_EQ(log->childCount(), list->state().ItemCount);

    // The player's only move is the one from A, and the green opening line is the player's
    // too; the rest is the computer's, by the colour of each line. Every
    // row stands where it is drawn, under the one before it, and is found there: the
    // rows' fractions of a pixel do not add up.
    const QWidget* canvas = list->findChild<QWidget*>(QStringLiteral("Picture1"));
    int bottom = -1;
    for (int i = 0; i < log->childCount(); ++i) {
        QAccessibleInterface* row = log->child(i);
        ASSERT_EQ(log->indexOfChild(row), i);
        EXPECT_EQ(row->parent(), log);
        EXPECT_TRUE(row->state().selectable);
        const QString text = list->List(i).toText();
        const bool yours = text.contains(QLatin1String("from A")) || text.startsWith(u'H');
        const QString whose = yours ? QStringLiteral(", yours") : QStringLiteral(", computer's");
        EXPECT_EQ(row->text(QAccessible::Name).chopped(whose.size()), text);
        const QRect where = row->rect();
        ASSERT_FALSE(where.isEmpty()) << "row " << i;
        EXPECT_EQ(where.left(), canvas->mapToGlobal(QPoint(0, 0)).x()) << "row " << i;
        EXPECT_EQ(log->childAt(where.center().x(), where.center().y()), row);
        EXPECT_EQ(where.top(), bottom < 0 ? where.top() : bottom + 1) << "row " << i;
        bottom = where.bottom();
    }
    // The list's own parts, the head and the bar, are no rows of it.
    for (QWidget* part : list->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        EXPECT_EQ(log->indexOfChild(QAccessible::queryAccessibleInterface(part)), -1);

    // A row a reader holds follows its item as new lines come on top, out of view when
    // the view is full, and is gone with the clearing of the log.
    const QAccessible::Id newest = QAccessible::uniqueId(log->child(0));
    const QString newestName = log->child(0)->text(QAccessible::Name);
    for (int i = 0; i < list->state().RowsInView; ++i) {
        QString line = QStringLiteral("#099>Move   3 from A");
        list->Additem(line, -1);
    }
    QAccessibleInterface* held = QAccessible::accessibleInterface(newest);
    EXPECT_EQ(held->text(QAccessible::Name), newestName);
    EXPECT_EQ(log->indexOfChild(held), list->state().RowsInView);
    EXPECT_TRUE(held->rect().isEmpty());
    EXPECT_TRUE(held->state().offscreen);
    list->Clear();
    EXPECT_EQ(log->childCount(), 0);
    EXPECT_EQ(QAccessible::accessibleInterface(newest), nullptr);
}

// The log is ruled: a grid line of one colour runs across the canvas under each row.
TEST_F(Look, TheLogIsRuledBetweenItsRows)
{
    const QImage canvas = form.findChild<UserControl1*>(QStringLiteral("MovesList"))
                              ->canvas()
                              .convertToFormat(QImage::Format_RGB32);
    const QRgb paper = canvas.pixel(canvas.width() - 1, 0);
    int ruled = 0;
    for (int y = 0; y < canvas.height(); ++y) {
        const QRgb first = canvas.pixel(0, y);
        bool across = first != paper;
        for (int x = 1; across && x < canvas.width(); ++x)
            across = canvas.pixel(x, y) == first;
        ruled += across;
    }
    EXPECT_GE(ruled, 2) << "one line under each opening line";
}

// The prompt stays readable on the bar that takes no clicks, at 4.5 to 1 or more.
TEST_F(Look, TheIdleBarStaysReadable)
{
    auto luminance = [](QColor c) {
        auto channel = [](double v) {
            v /= 255;
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * channel(c.red()) + 0.7152 * channel(c.green()) + 0.0722 * channel(c.blue());
    };
    Quillet* bar = form.findChild<Quillet*>(QStringLiteral("Mess"));
    ASSERT_FALSE(bar->isEnabled());
    const QImage shown = bar->grab().toImage();
    double darkest = 1;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            darkest = std::min(darkest, luminance(shown.pixelColor(x, y)));
    const double face = luminance(bar->backcolor());
    EXPECT_GE((face + 0.05) / (darkest + 0.05), 4.5);
}

// The locked slider is clearly not the free one.
TEST_F(Look, TheLockedSliderLooksLocked)
{
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

// These run again on a screen of ratio 2 (see CMakeLists.txt).
class WindowAtRatioTwo : public Look {
protected:
    void SetUp() override
    {
        if (qGuiApp->devicePixelRatio() != 2.0)
            GTEST_SKIP() << "the screen is not at ratio 2";
        Look::SetUp();
    }
};

// Text drawn at the screen's density has edges that fall inside a 2 by 2 block of
// pixels; a canvas drawn at ratio 1 and scaled up has none.
TEST_F(WindowAtRatioTwo, TheLogIsDrawnSharp)
{
    clickOn(form, "Pots0");
    const auto* list = form.findChild<UserControl1*>(QStringLiteral("MovesList"));
    const QImage canvas = list->canvas();
    ASSERT_EQ(canvas.devicePixelRatio(), 2.0);
    int splitBlocks = 0;
    for (int y = 0; y + 1 < canvas.height(); y += 2)
        for (int x = 0; x + 1 < canvas.width(); x += 2) {
            const QRgb corner = canvas.pixel(x, y);
            splitBlocks += canvas.pixel(x + 1, y) != corner || canvas.pixel(x, y + 1) != corner ||
                           canvas.pixel(x + 1, y + 1) != corner;
        }
    EXPECT_GT(splitBlocks, 50);
}

TEST_F(WindowAtRatioTwo, TheWindowIsTwiceItsSizeInPixels)
{
    const QImage shot = form.grab().toImage();
    EXPECT_EQ(shot.size(), form.size() * 2);
}
