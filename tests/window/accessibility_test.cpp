#include "controls/quillet.h"
#include "window/form1.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QString spokenName(QObject* object)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(object);
    return face ? face->text(QAccessible::Name) : QStringLiteral("<none>");
}

class Spoken : public ::testing::Test {
protected:
    void SetUp() override
    {
        QAccessible::setActive(true);
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    }
    QObject* named(const QString& name) { return form.findChild<QObject*>(name); }

    Form1 form;
};

} // namespace

TEST_F(Spoken, PotsSayTheirLetterSideAndCount)
{
    EXPECT_EQ(spokenName(named("Pots2")), QStringLiteral("Pot C, yours, 3 beads"));
    EXPECT_EQ(spokenName(named("Pots9")), QStringLiteral("Pot D, computer's, 3 beads"));
    EXPECT_EQ(spokenName(named("Pots6")), QStringLiteral("Your bank, 0 beads"));
    QTest::mouseClick(qobject_cast<QWidget*>(named("Pots0")), Qt::LeftButton);
    EXPECT_EQ(spokenName(named("Pots0")), QStringLiteral("Pot A, yours, 0 beads"));
    EXPECT_EQ(spokenName(named("Pots13")), QStringLiteral("Computer's bank, 6 beads"));
    EXPECT_EQ(spokenName(named("TotalB1")), QStringLiteral("Computer's total, 6"));
    EXPECT_EQ(spokenName(named("TotalB2")), QStringLiteral("Your total, 0"));
    EXPECT_EQ(spokenName(named("Mess")), QStringLiteral("YOUR MOVE NOW"));
}

// The whole game through a screen reader's own means is played by tests/a11y; here,
// what it cannot reach: the focus that leaves the locked slider lands on the log under
// the log's own name.
TEST_F(Spoken, AfterTheFirstMoveTheFocusIsOnTheLogByName)
{
    QApplication::setActiveWindow(&form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QTest::mouseClick(qobject_cast<QWidget*>(named("Pots2")), Qt::LeftButton);
    QAccessibleInterface* focus =
        QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    ASSERT_NE(focus, nullptr);
    EXPECT_EQ(focus->role(), QAccessible::List);
    EXPECT_EQ(focus->text(QAccessible::Name), QStringLiteral("Moves"));
}
