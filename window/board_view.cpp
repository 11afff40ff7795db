#include "window/form1.h"

#include "common/mouse_numbers.h"
#include "common/numbers.h"
#include "common/twips.h"
#include "controls/quillet.h"

#include <QLabel>
#include <QMouseEvent>

// A pot with beads stands out as a raised disc; an empty one is a hollow like a bank.
// The face's text is also its Tag, the screen's own copy of the count.
void Form1::DrawPot(int16_t Pot, const std::string& Text)
{
    if (!isSlot(Pot))
        return;
    // A text that does not begin with a number reads as 0, like every Tag.
    const double n = numericRead(Text);
    QString face = QString::fromStdString(Text);
    Quillet* pot = Pots[Pot];
    if (!isBank(Pot)) {
        const bool human = Pot < HumanBank;
        if (n != 0)
            pot->picture((human ? Image4 : Image3)->pixmap());
        else
            pot->picture(Pots[human ? HumanBank : ComputerBank]->picture());
        if (n == 0)
            face.clear();
    }
    pot->caption(face);
    pot->Tag(face);
    describePot(Pot);
    describeSelection(false);
}

// The hover look: a human pot with beads shows its count in the hollow of the bank.
void Form1::DrawPotHot(int16_t Pot, const std::string& Text)
{
    if (!isHumanPot(Pot) || numericRead(Text) == 0)
        return;
    const QString face = QString::fromStdString(Text);
    Pots[Pot]->picture(Pots[HumanBank]->picture());
    Pots[Pot]->caption(face);
    Pots[Pot]->Tag(face);
    describePot(Pot);
}

void Form1::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    m_game.Form_MouseMove(buttonNumber(event->buttons()), shiftNumber(event->modifiers()),
                          Twips::fromPixels(static_cast<float>(at.x())),
                          Twips::fromPixels(static_cast<float>(at.y())));
    describeSelection(false);
}
