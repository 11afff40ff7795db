#include "face_fixture.h"

#include <QTest>

#include <stdexcept>

namespace {

std::vector<QString> eventsOf(const std::vector<Raised>& raised)
{
    std::vector<QString> events;
    for (const Raised& one : raised)
        events.push_back(one.event);
    return events;
}

std::vector<QString> without(const std::vector<QString>& events, const QString& left_out)
{
    std::vector<QString> kept;
    for (const QString& event : events)
        if (event != left_out)
            kept.push_back(event);
    return kept;
}

const std::vector<QString> PressReleaseClick{"MouseDown", "MouseUp", "Click"};

// The last event of a kind; moves come with the mouse on its way to a press.
const Raised& last(const std::vector<Raised>& raised, const QString& event)
{
    static const Raised none{"none"};
    for (auto one = raised.rbegin(); one != raised.rend(); ++one)
        if (one->event == event)
            return *one;
    return none;
}

} // namespace

using QuilletMouse = FaceFixture;

TEST_F(QuilletMouse, LeftPressAndReleaseGiveDownUpThenClick)
{
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(10, 5));
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(12, 7));

    ASSERT_EQ(without(eventsOf(leftRaised), "MouseMove"), PressReleaseClick);
    const Raised& down = last(leftRaised, "MouseDown");
    EXPECT_EQ(down.Button, 1);
    EXPECT_EQ(down.Shift, 0);
    EXPECT_FLOAT_EQ(down.X, twips(10));
    EXPECT_FLOAT_EQ(down.Y, twips(5));
    const Raised& up = last(leftRaised, "MouseUp");
    EXPECT_EQ(up.Button, 1);
    EXPECT_FLOAT_EQ(up.X, twips(12));
    EXPECT_FLOAT_EQ(up.Y, twips(7));
    EXPECT_TRUE(rightRaised.empty());
}

TEST_F(QuilletMouse, RightAndMiddleButtonsHaveTheirNumbersAndNoClick)
{
    QTest::mousePress(left, Qt::RightButton);
    QTest::mouseRelease(left, Qt::RightButton);
    QTest::mousePress(left, Qt::MiddleButton);
    QTest::mouseRelease(left, Qt::MiddleButton);

    const std::vector<QString> expected{"MouseDown", "MouseUp", "MouseDown", "MouseUp"};
    const std::vector<QString> events = without(eventsOf(leftRaised), "MouseMove");
    ASSERT_EQ(events, expected);
    std::vector<int16_t> buttons;
    for (const Raised& one : leftRaised)
        if (one.event != "MouseMove")
            buttons.push_back(one.Button);
    EXPECT_EQ(buttons, (std::vector<int16_t>{2, 2, 4, 4}));
}

TEST_F(QuilletMouse, ShiftCtrlAndAltAddUpInShift)
{
    QTest::mousePress(left, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    QTest::mouseRelease(left, Qt::LeftButton, Qt::AltModifier);

    ASSERT_EQ(without(eventsOf(leftRaised), "MouseMove"), PressReleaseClick);
    EXPECT_EQ(last(leftRaised, "MouseDown").Shift, 3);
    EXPECT_EQ(last(leftRaised, "MouseUp").Shift, 4);
}

TEST_F(QuilletMouse, MoveWithoutAButtonIsReportedInTwips)
{
    QTest::mouseMove(left, QPoint(20, 11));

    ASSERT_FALSE(leftRaised.empty());
    const Raised& move = leftRaised.back();
    EXPECT_EQ(move.event, "MouseMove");
    EXPECT_EQ(move.Button, 0);
    EXPECT_FLOAT_EQ(move.X, twips(20));
    EXPECT_FLOAT_EQ(move.Y, twips(11));
}

TEST_F(QuilletMouse, MoveWithTheLeftButtonHeldCarriesButtonOne)
{
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(left, QPoint(6, 9));

    const Raised& move = leftRaised.back();
    EXPECT_EQ(move.event, "MouseMove");
    EXPECT_EQ(move.Button, 1);
    EXPECT_FLOAT_EQ(move.Y, twips(9));
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(6, 9));
}

TEST_F(QuilletMouse, ReleaseGoesToTheFaceThatTookThePress)
{
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(right, QPoint(5, 5));
    QTest::mouseRelease(right, Qt::LeftButton, {}, QPoint(5, 5));

    EXPECT_TRUE(rightRaised.empty());
    const std::vector<QString> expected{"MouseDown", "MouseUp"};
    ASSERT_EQ(without(eventsOf(leftRaised), "MouseMove"), expected);
    // Told where the mouse is from the face that took the press: far to its right.
    const float offset = twips(right->x() - left->x() + 5);
    EXPECT_FLOAT_EQ(last(leftRaised, "MouseUp").X, offset);
}

TEST_F(QuilletMouse, PressLeftOnTheFaceThenBackBeforeReleaseStillClicks)
{
    QTest::mousePress(left, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(right, QPoint(5, 5));
    QTest::mouseMove(left, QPoint(8, 8));
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(8, 8));

    EXPECT_EQ(without(eventsOf(leftRaised), "MouseMove"), PressReleaseClick);
    EXPECT_TRUE(rightRaised.empty());
}

TEST_F(QuilletMouse, ReleaseWithoutItsPressOnTheFaceIsNoClick)
{
    QTest::mousePress(surface, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseMove(left, QPoint(5, 5));
    QTest::mouseRelease(left, Qt::LeftButton, {}, QPoint(5, 5));

    EXPECT_EQ(without(eventsOf(leftRaised), "MouseMove"), std::vector<QString>{});
}

TEST_F(QuilletMouse, DisabledFaceRaisesNothing)
{
    left->enabled(false);
    QTest::mouseMove(left, QPoint(4, 4));
    QTest::mousePress(left, Qt::LeftButton);
    QTest::mouseRelease(left, Qt::LeftButton);
    QTest::mousePress(left, Qt::RightButton);
    QTest::mouseRelease(left, Qt::RightButton);

    EXPECT_TRUE(leftRaised.empty());
    EXPECT_FALSE(left->enabled());
}

TEST_F(QuilletMouse, FaceInADisabledFrameRaisesNothingYetKeepsItsOwnSetting)
{
    auto* frame = new QWidget(surface);
    frame->setGeometry(0, 60, 100, 40);
    auto* inner = new Quillet(frame);
    inner->Move(150, 150, 555, 300);
    std::vector<Raised> innerRaised;
    record(inner, innerRaised);
    frame->show();
    frame->setEnabled(false);

    QTest::mousePress(inner, Qt::LeftButton);
    QTest::mouseRelease(inner, Qt::LeftButton);

    EXPECT_TRUE(innerRaised.empty());
    EXPECT_TRUE(inner->enabled());
    frame->setEnabled(true);
    QTest::mousePress(inner, Qt::LeftButton);
    QTest::mouseRelease(inner, Qt::LeftButton);
    EXPECT_EQ(without(eventsOf(innerRaised), "MouseMove"), PressReleaseClick);
}

TEST_F(QuilletMouse, MovesOverADisabledFaceReachTheSurfaceBelow)
{
    left->enabled(false);
    surface->moves.clear();
    QTest::mouseMove(left, QPoint(7, 9));

    ASSERT_FALSE(surface->moves.empty());
    EXPECT_EQ(surface->moves.back(), left->pos() + QPoint(7, 9));
}

TEST_F(QuilletMouse, MovesOverAnEnabledFaceStayWithTheFace)
{
    QTest::mouseMove(surface, QPoint(1, 1));
    surface->moves.clear();
    QTest::mouseMove(left, QPoint(7, 9));

    EXPECT_TRUE(surface->moves.empty());
    EXPECT_FALSE(leftRaised.empty());
}

TEST_F(QuilletMouse, NoClickOnceTheReleaseHandlerTurnedTheFaceOff)
{
    QObject::connect(left, &Quillet::MouseUp, left, [this] { left->enabled(false); });
    QTest::mousePress(left, Qt::LeftButton);
    QTest::mouseRelease(left, Qt::LeftButton);

    const std::vector<QString> expected{"MouseDown", "MouseUp"};
    EXPECT_EQ(without(eventsOf(leftRaised), "MouseMove"), expected);
}

TEST_F(QuilletMouse, AFailingHandlerDoesNotEscapeTheEvent)
{
    QObject::connect(left, &Quillet::MouseDown, left,
                     [] { throw std::runtime_error("no such pot"); });
    QObject::connect(left, &Quillet::MouseUp, left, [] { throw 42; });
    QTest::mousePress(left, Qt::LeftButton);
    QTest::mouseRelease(left, Qt::LeftButton);

    // The recorder was connected first, so it saw every event before the failures.
    EXPECT_EQ(without(eventsOf(leftRaised), "MouseMove"), PressReleaseClick);
}
