#include "window/form1.h"
#include "window/formaccessible.h"

#include "common/numbers.h"
#include "controls/quillet.h"
#include "moveslist/usercontrol1.h"

#include <QAccessible>
#include <QLabel>

// What a screen reader says of the board. Nothing on the screen changes for it.

void Form1::describePot(int16_t Slot)
{
    if (!isSlot(Slot))
        return;
    Quillet* pot = Pots[Slot];
    const int count = static_cast<int>(numericRead(pot->Tag().toStdString()));
    const QString beads =
        count == 1 ? QStringLiteral("1 bead") : QStringLiteral("%1 beads").arg(count);
    QString name;
    if (Slot == HumanBank)
        name = QStringLiteral("Your bank, %1").arg(beads);
    else if (Slot == ComputerBank)
        name = QStringLiteral("Computer's bank, %1").arg(beads);
    else
        name = QStringLiteral("Pot %1, %2, %3")
                   .arg(QChar(potLetter(Slot, false)))
                   .arg(isHumanPot(Slot) ? QStringLiteral("yours") : QStringLiteral("computer's"))
                   .arg(beads);
    if (pot->accessibleName() == name)
        return;
    pot->setAccessibleName(name);
    QAccessibleEvent changed(pot, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void Form1::describeTotal(int16_t Index)
{
    const QString whose =
        Index == 1 ? QStringLiteral("Computer's total") : QStringLiteral("Your total");
    TotalB[Index]->setAccessibleName(QStringLiteral("%1, %2").arg(whose, TotalB[Index]->text()));
}

void Form1::describeButton(Quillet* button)
{
    button->setAccessibleName(button->caption());
    button->setAccessibleDescription(button->toolTip());
}

// The keyboard's selection shows nowhere on the screen. A screen reader hears it as the
// focus moving to that pot, and finds it in the pot's description while Enter would
// play it: a pot emptied under the selection is no longer said to be selected.
void Form1::describeSelection(bool announce)
{
    const GameState& state = m_game.state();
    const int16_t selected = state.KeyboardPot;
    for (int16_t s = FirstHumanPot; s <= LastHumanPot; ++s) {
        const bool playable = s == selected && state.Beads[s] > 0 && !state.GameFinished;
        const QString description =
            playable ? QStringLiteral("Selected: Enter plays it") : QString();
        if (Pots[s]->accessibleDescription() != description)
            Pots[s]->setAccessibleDescription(description);
    }
    if (!announce || !isHumanPot(selected))
        return;
    QAccessibleEvent focus(Pots[selected], QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

// The log's colours say whose move a row is; a screen reader says it in words.
void Form1::voiceMovesList()
{
    MovesList->setAccessibleName(QStringLiteral("Moves"));
    MovesList->setRowVoice([](const QString& text, int32_t colour) {
        if (colour == HumanGreen)
            return QStringLiteral("%1, yours").arg(text);
        if (colour == ComputerRed)
            return QStringLiteral("%1, computer's").arg(text);
        return text;
    });
}

// The window as a screen reader sees it: a frame titled by its caption, holding only
// what is on the screen. The hidden text box that carries a pick to the game, the
// stored pictures and the hand or score board while hidden are not there.
FormAccessible::FormAccessible(Form1* form) : QAccessibleWidget(form, QAccessible::Window) {}

QList<QAccessibleInterface*> FormAccessible::shown() const
{
    QList<QAccessibleInterface*> children;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
        QAccessibleInterface* child = QAccessibleWidget::child(i);
        const auto* w = child ? qobject_cast<const QWidget*>(child->object()) : nullptr;
        if (child && (!w || !w->isHidden()))
            children << child;
    }
    return children;
}

int FormAccessible::childCount() const
{
    return int(shown().size());
}

QAccessibleInterface* FormAccessible::child(int index) const
{
    return shown().value(index);
}

int FormAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const QList<QAccessibleInterface*> children = shown();
    for (int i = 0; i < children.size(); ++i)
        if (children[i] == child)
            return i;
    return -1;
}

QAccessibleInterface* FormAccessible::create(const QString& className, QObject* object)
{
    if (className != QLatin1String("Form1"))
        return nullptr;
    auto* form = qobject_cast<Form1*>(object);
    return form != nullptr ? new FormAccessible(form) : nullptr;
}
