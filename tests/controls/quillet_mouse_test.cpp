#include "common/twips.h"
#include "controls/quillet.h"

#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace {

// One event a face raised, as its handler was given it.
struct Raised {
    QString event;
    int16_t Button = 0, Shift = 0;
    float X = 0, Y = 0;
};

// The window's surface under the pots: it keeps the moves that reach it.
struct Surface : QWidget {
    std::vector<QPoint> moves;
    void mouseMoveEvent(QMouseEvent* event) override
    {
        moves.push_back(event->position().toPoint());
    }
};

const std::vector<QString> DownUpClick{"MouseDown", "MouseUp", "Click"};
const std::vector<QString> DownUp{"MouseDown", "MouseUp"};

float twips(int pixels)
{
    return static_cast<float>(pixels) * Twips::perPixel();
}

// Two pots side by side on a shown surface, each event they raise recorded in order.
class QuilletMouse : public ::testing::Test {
protected:
    void SetUp() override
    {
        surface.setMouseTracking(true);
        surface.resize(200, 100);
        left->place(300, 300, 555, 555);
        right->place(1200, 300, 555, 555);
        record(left, leftRaised);
        record(right, rightRaised);
        surface.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));
    }

    static void record(Quillet* face, std::vector<Raised>& into)
    {
        const auto keep = [&into](const char* event) {
            return [&into, event](int16_t Button, int16_t Shift, float X, float Y) {
                into.push_back({event, Button, Shift, X, Y});
            };
        };
        QObject::connect(face, &Quillet::MouseDown, face, keep("MouseDown"));
        QObject::connect(face, &Quillet::MouseUp, face, keep("MouseUp"));
        QObject::connect(face, &Quillet::MouseMove, face, keep("MouseMove"));
        QObject::connect(face, &Quillet::Click, face, [&into] { into.push_back({"Click"}); });
    }

    // All but the moves, which come with the mouse on its way to a press.
    static std::vector<QString> pressesOf(const std::vector<Raised>& raised)
    {
        std::vector<QString> events;
        for (const Raised& one : raised)
            if (one.event != "MouseMove")
                events.push_back(one.event);
        return events;
    }

    static Raised last(const std::vector<Raised>& raised, const QString& event)
    {
        for (auto one = raised.rbegin(); one != raised.rend(); ++one)
            if (one->event == event)
                return *one;
        return {"none"};
    }

    Surface surface;
    Quillet* left = new Quillet(&surface);
    Quillet* right = new Quillet(&surface);
    std::vector<Raised> leftRaised, rightRaised;
};

} // namespace

// Only the left button clicks; the right and middle buttons are 2 and 4.
TEST_F(QuilletMouse, ButtonsShiftsAndPlacesArriveInTheGamesNumbers)
{
    QTest::mousePress(left, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, QPoint(10, 5));
    QTest::mouseRelease(left, Qt::LeftButton, Qt::AltModifier, QPoint(12, 7));
    ASSERT_EQ(pressesOf(leftRaised), DownUpClick);
    const Raised down = last(leftRaised, "MouseDown"), up = last(leftRaised, "MouseUp");
    EXPECT_EQ(down.Button, 1);
    EXPECT_EQ(down.Shift, 3);
    EXPECT_EQ(up.Shift, 4);
    EXPECT_FLOAT_EQ(down.X, twips(10));
    EXPECT_FLOAT_EQ(down.Y, twips(5));
    EXPECT_FLOAT_EQ(up.X, twips(12));

    QTest::mouseClick(left, Qt::RightButton);
    EXPECT_EQ(last(leftRaised, "MouseDown").Button, 2);
    EXPECT_EQ(last(leftRaised, "MouseUp").Button, 2);
    QTest::mouseClick(left, Qt::MiddleButton);
    EXPECT_EQ(last(leftRaised, "MouseUp").Button, 4);
    EXPECT_EQ(pressesOf(leftRaised).size(), 7u);
    EXPECT_TRUE(rightRaised.empty());

    // Moves tell the buttons held.
    QTest::mouseMove(left, QPoint(20, 11));
    const Raised free = last(leftRaised, "MouseMove");
    EXPECT_EQ(free.Button, 0);
    EXPECT_FLOAT_EQ(free.X, twips(20));
    EXPECT_FLOAT_EQ(free.Y, twips(11));
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(left, QPoint(6, 9));
    EXPECT_EQ(last(leftRaised, "MouseMove").Button, 1);
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(6, 9));
}

// Released off the face: no click, and the place told from where the face stands.
// Back over the face before the release, it clicks after all.
TEST_F(QuilletMouse, ReleaseGoesToTheFaceThatTookThePress)
{
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(right, QPoint(5, 5));
    QTest::mouseRelease(right, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(rightRaised.empty());
    ASSERT_EQ(pressesOf(leftRaised), DownUp);
    EXPECT_FLOAT_EQ(last(leftRaised, "MouseUp").X, twips(right->x() - left->x() + 5));

    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(right, QPoint(5, 5));
    QTest::mouseMove(left, QPoint(8, 8));
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(last(leftRaised, "Click").event, "Click");
}

// A face turned off, or inside a frame turned off, raises nothing; its moves reach the
// surface under it. The frame leaves the face's own setting as it was.
TEST_F(QuilletMouse, AFaceThatIsOffRaisesNothing)
{
    left->enabled(false);
    surface.moves.clear();
    QTest::mouseMove(left, QPoint(7, 9));
    QTest::mouseClick(left, Qt::LeftButton);
    QTest::mouseClick(left, Qt::RightButton);
    EXPECT_TRUE(leftRaised.empty());
    ASSERT_FALSE(surface.moves.empty());
    EXPECT_EQ(surface.moves.front(), left->pos() + QPoint(7, 9));
    left->enabled(true);
    surface.moves.clear();
    QTest::mouseMove(left, QPoint(8, 9));
    EXPECT_TRUE(surface.moves.empty());
    EXPECT_FALSE(leftRaised.empty());

    auto* frame = new QWidget(&surface);
    frame->setGeometry(0, 60, 100, 40);
    auto* inner = new Quillet(frame);
    inner->place(150, 150, 555, 300);
    std::vector<Raised> innerRaised;
    record(inner, innerRaised);
    frame->show();
    frame->setEnabled(false);
    QTest::mouseClick(inner, Qt::LeftButton);
    EXPECT_TRUE(innerRaised.empty());
    EXPECT_TRUE(inner->enabled());
    frame->setEnabled(true);
    QTest::mouseClick(inner, Qt::LeftButton);
    EXPECT_EQ(pressesOf(innerRaised), DownUpClick);
}

TEST_F(QuilletMouse, AHandlerThatFailsOrTurnsTheFaceOffDoesNotBreakTheEvent)
{
    QObject::connect(left, &Quillet::MouseDown, left,
                     [] { throw std::runtime_error("no such pot"); });
    QObject::connect(left, &Quillet::MouseUp, left, [] { throw 42; });
    QTest::mouseClick(left, Qt::LeftButton);
    // The recorder, connected first, saw each event before the failures.
    EXPECT_EQ(pressesOf(leftRaised), DownUpClick);

    QObject::connect(right, &Quillet::MouseUp, right, [this] { right->enabled(false); });
    QTest::mouseClick(right, Qt::LeftButton);
    EXPECT_EQ(pressesOf(rightRaised), DownUp);
}
