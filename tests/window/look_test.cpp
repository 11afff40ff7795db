#include "controls/quillet.h"
#include "moveslist/usercontrol1.h"
#include "window/form1.h"

#include "common/twips.h"

#include <QAccessible>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Whether every line of a text stands inside the control, as its own font draws it.
bool fits(const QWidget* control, const QString& text)
{
    const QFontMetrics metrics(control->font());
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines)
        if (metrics.horizontalAdvance(line) > control->width())
            return false;
    return int(lines.size()) * metrics.height() <= control->height() + metrics.descent();
}

void expectEveryCaptionFits(const Form1& form)
{
    // A failing line names the control and the text that overflows it.
    const auto check = [](const QWidget* control, const QString& text) {
        if (!control->isVisible() || text.isEmpty())
            return;
        EXPECT_TRUE(fits(control, text))
            << control->objectName().toStdString() << ": " << text.toStdString();
    };
    for (const Quillet* control : form.findChildren<Quillet*>())
        check(control, control->caption());
    for (const QLabel* label : form.findChildren<QLabel*>())
        check(label, label->text());
}

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

// The window's own table of controls, in a data file: where each stands, its font,
// its colours, whether it shows at the start, its tooltip.
TEST_F(Look, EveryControlStandsAndLooksAsItsTableSays)
{
    QFile table(QStringLiteral(TAVOK_CONTROLS_TABLE));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly | QIODevice::Text));
    const QPalette desktop = form.palette();
    const auto colour = [&](const QString& name) {
        if (name == QLatin1String("window-text"))
            return desktop.color(QPalette::WindowText);
        if (name == QLatin1String("button-face"))
            return desktop.color(QPalette::Button);
        return QColor(name);
    };
    int rows = 0;
    while (!table.atEnd()) {
        const QString line = QString::fromUtf8(table.readLine()).chopped(1);
        if (line.startsWith(QLatin1Char('#')) || line.isEmpty())
            continue;
        const QStringList c = line.split(QLatin1Char('\t'));
        ASSERT_EQ(c.size(), 12) << line.toStdString();
        SCOPED_TRACE(c[0].toStdString());
        ++rows;
        auto* w = form.findChild<QWidget*>(c[0]);
        ASSERT_NE(w, nullptr);
        const auto twips = [&](int i, int pixels) {
            if (c[i] != QLatin1String("-")) {
                EXPECT_EQ(pixels, Twips::toPixels(c[i].toFloat())) << c[i].toStdString();
            }
        };
        twips(1, w->x());
        twips(2, w->y());
        twips(3, w->width());
        twips(4, w->height());
        if (c[5] != QLatin1String("-")) {
            EXPECT_EQ(w->font().family(), c[5]);
            EXPECT_DOUBLE_EQ(w->font().pointSizeF(), c[6].toDouble());
            EXPECT_EQ(w->font().bold(), c[7] == QLatin1String("1"));
        }
        auto* face = qobject_cast<Quillet*>(w);
        if (c[8] != QLatin1String("-")) {
            EXPECT_EQ(face ? face->forecolor() : w->palette().color(QPalette::WindowText),
                      colour(c[8]));
        }
        if (c[9] != QLatin1String("-")) {
            EXPECT_EQ(face ? face->backcolor() : w->palette().color(QPalette::Window),
                      colour(c[9]));
            EXPECT_TRUE(face || w->autoFillBackground());
        }
        EXPECT_EQ(w->isVisible(), c[10] == QLatin1String("1"));
        if (c[11] != QLatin1String("-")) {
            EXPECT_EQ(w->toolTip(), c[11]);
        }
    }
    EXPECT_EQ(rows, 45);
}

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

// Captions change all through a game: the messages, the totals, the result.
TEST_F(Look, EveryCaptionFitsThroughAWholeGame)
{
    expectEveryCaptionFits(form);
    for (int turn = 0; turn < 300 && !form.game().state().GameFinished; ++turn) {
        clickOn(form, "TakeComp");
        expectEveryCaptionFits(form);
    }
    ASSERT_TRUE(form.game().state().GameFinished);
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
        EXPECT_EQ(log->childAt(where.center().x(), where.center().y()), row);
        EXPECT_EQ(where.top(), bottom < 0 ? where.top() : bottom + 1) << "row " << i;
        bottom = where.bottom();
    }

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
