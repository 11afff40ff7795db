#include "controls/quillet.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// The window's surface under the faces: it keeps the moves that reach it.
struct Surface : QWidget {
    QList<QPoint> moves;
    void mouseMoveEvent(QMouseEvent* event) override { moves << event->position().toPoint(); }
};

// Two faces side by side on a shown surface; what each raises is kept as the game
// would hear it, "MouseUp 1 4 180 105" (button, shift, place in twips), moves apart.
class QuilletMouse : public ::testing::Test {
protected:
    void SetUp() override
    {
        surface.setMouseTracking(true);
        surface.resize(200, 100);
        left->place(300, 300, 555, 555);
        right->place(1200, 300, 555, 555);
        record(left, leftHeard, leftMoves);
        record(right, rightHeard, rightMoves);
        surface.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));
    }

    static void record(Quillet* face, QStringList& heard, QStringList& moves)
    {
        const auto keep = [](QStringList& into, const char* event) {
            return [&into, event](int16_t Button, int16_t Shift, float X, float Y) {
                into << QStringLiteral("%1 %2 %3 %4 %5")
                            .arg(QLatin1String(event))
                            .arg(Button)
                            .arg(Shift)
                            .arg(double(X))
                            .arg(double(Y));
            };
        };
        QObject::connect(face, &Quillet::MouseDown, face, keep(heard, "MouseDown"));
        QObject::connect(face, &Quillet::MouseUp, face, keep(heard, "MouseUp"));
        QObject::connect(face, &Quillet::MouseMove, face, keep(moves, "MouseMove"));
        QObject::connect(face, &Quillet::Click, face,
                         [&heard] { heard << QStringLiteral("Click"); });
    }

    Surface surface;
    Quillet* left = new Quillet(&surface);
    Quillet* right = new Quillet(&surface);
    QStringList leftHeard, rightHeard, leftMoves, rightMoves;
};

} // namespace

// Only the left button clicks; the right and middle buttons are 2 and 4, shift 1, ctrl
// 2, alt 4, and moves tell the buttons held. 15 twips to the pixel.
TEST_F(QuilletMouse, MouseEventsArriveInTheGamesNumbers)
{
    QTest::mousePress(left, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, QPoint(10, 5));
    QTest::mouseRelease(left, Qt::LeftButton, Qt::AltModifier, QPoint(12, 7));
    QTest::mouseClick(left, Qt::RightButton, {}, QPoint(1, 2));
    QTest::mouseClick(left, Qt::MiddleButton, {}, QPoint(1, 2));
    EXPECT_EQ(leftHeard, QStringList({"MouseDown 1 3 150 75", "MouseUp 1 4 180 105", "Click",
                                      "MouseDown 2 0 15 30", "MouseUp 2 0 15 30",
                                      "MouseDown 4 0 15 30", "MouseUp 4 0 15 30"}));
    QTest::mouseMove(left, QPoint(20, 11));
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(left, QPoint(6, 9));
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(6, 9));
    EXPECT_TRUE(leftMoves.contains(QStringLiteral("MouseMove 0 0 300 165")));
    EXPECT_EQ(leftMoves.last(), QStringLiteral("MouseMove 1 0 90 135"));
    EXPECT_TRUE(rightHeard.isEmpty());
}

// Released off the face: no click, and the place told from where the face stands.
// Back over the face before the release, it clicks after all.
TEST_F(QuilletMouse, ReleaseGoesToTheFaceThatTookThePress)
{
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(right, QPoint(5, 5));
    QTest::mouseRelease(right, Qt::LeftButton, {}, QPoint(5, 5));
    const int x = (right->x() - left->x() + 5) * 15;
    EXPECT_EQ(leftHeard,
              QStringList({"MouseDown 1 0 75 75", QStringLiteral("MouseUp 1 0 %1 75").arg(x)}));
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(right, QPoint(5, 5));
    QTest::mouseMove(left, QPoint(8, 8));
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(leftHeard.last(), QStringLiteral("Click"));
    EXPECT_TRUE(rightHeard.isEmpty());
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
    EXPECT_TRUE(leftHeard.isEmpty() && leftMoves.isEmpty());
    ASSERT_FALSE(surface.moves.isEmpty());
    EXPECT_EQ(surface.moves.front(), left->pos() + QPoint(7, 9));
    left->enabled(true);
    surface.moves.clear();
    QTest::mouseMove(left, QPoint(8, 9));
    EXPECT_TRUE(surface.moves.isEmpty());

    auto* frame = new QWidget(&surface);
    frame->setGeometry(0, 60, 100, 40);
    auto* inner = new Quillet(frame);
    inner->place(150, 150, 555, 300);
    QStringList innerHeard, innerMoves;
    record(inner, innerHeard, innerMoves);
    frame->show();
    frame->setEnabled(false);
    QTest::mouseClick(inner, Qt::LeftButton);
    EXPECT_TRUE(innerHeard.isEmpty());
    EXPECT_TRUE(inner->enabled());
    frame->setEnabled(true);
    QTest::mouseClick(inner, Qt::LeftButton);
    EXPECT_EQ(innerHeard.size(), 3);
}

TEST_F(QuilletMouse, AHandlerThatFailsOrTurnsTheFaceOffDoesNotBreakTheEvent)
{
    QObject::connect(left, &Quillet::MouseDown, left, [] { throw std::runtime_error("no pot"); });
    QObject::connect(left, &Quillet::MouseUp, left, [] { throw 42; });
    QTest::mouseClick(left, Qt::LeftButton, {}, QPoint(1, 1));
    // The recorder, connected first, heard each event before the failures.
    EXPECT_EQ(leftHeard, QStringList({"MouseDown 1 0 15 15", "MouseUp 1 0 15 15", "Click"}));

    QObject::connect(right, &Quillet::MouseUp, right, [this] { right->enabled(false); });
    QTest::mouseClick(right, Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(rightHeard, QStringList({"MouseDown 1 0 15 15", "MouseUp 1 0 15 15"}));
}

// Space works the face from its middle; the focus gone with Space still down lets the
// press go without a click, as a release off the face would.
TEST_F(QuilletMouse, SpaceHeldAsTheFocusLeavesReleasesWithoutAClick)
{
    QApplication::setActiveWindow(&surface);
    left->setFocusPolicy(Qt::TabFocus);
    right->setFocusPolicy(Qt::TabFocus);
    left->setFocus();
    // A release whose press went elsewhere is nobody's.
    QTest::keyRelease(left, Qt::Key_Space);
    QTest::keyClick(left, Qt::Key_Space);
    QTest::keyPress(left, Qt::Key_Space);
    // Held, the key repeats: it goes up and down again without letting go.
    QKeyEvent repeatUp(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(left, &repeatUp);
    right->setFocus();
    const QString middle = QStringLiteral(" 1 0 277.5 277.5");
    EXPECT_EQ(leftHeard, QStringList({"MouseDown" + middle, "MouseUp" + middle, "Click",
                                      "MouseDown" + middle, "MouseUp" + middle}));
}
