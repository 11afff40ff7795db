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

TEST_F(Spoken, ButtonsSayWhatTheyDo)
{
    EXPECT_EQ(spokenName(named("GiveHint")), QStringLiteral("Give hint"));
    QTest::mouseClick(qobject_cast<QWidget*>(named("Pausex")), Qt::LeftButton);
    EXPECT_EQ(spokenName(named("Pausex")), QStringLiteral("Pause at moves"));
}

TEST_F(Spoken, TheKeyboardSelectionIsHeardThoughNothingShows)
{
    // Keys go where the focus is, as the window system sends them.
    QWidget* focus = QApplication::focusWidget() ? QApplication::focusWidget() : &form;
    auto description = [&](const char* pot) {
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(named(pot));
        return face->text(QAccessible::Description);
    };
    QTest::keyClick(focus, Qt::Key_A);
    EXPECT_FALSE(description("Pots0").isEmpty());
    QTest::keyClick(focus, Qt::Key_A);
    EXPECT_TRUE(description("Pots0").isEmpty());
    EXPECT_FALSE(description("Pots1").isEmpty());
    EXPECT_EQ(spokenName(named("Pots1")), QStringLiteral("Pot B, yours, 3 beads"));
}
