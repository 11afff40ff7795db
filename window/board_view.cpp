#include "window/form1.h"

#include "controls/mouse_numbers.h"
#include "controls/quillet.h"
#include "controls/twips.h"
#include "engine/number_text.h"

#include <QLabel>
#include <QMouseEvent>

namespace {

// A text that does not begin with a number reads as 0, like every Tag.
double Count(const QString& text)
{
    return NumericRead(text.toStdString());
}

} // namespace

// A pot with beads stands out as a raised disc; an empty one is a hollow like a bank.
void Form1::DrawPot(int16_t& Pot, QString& Text)
{
    const double n = Count(Text);
    if (!IsSlot(Pot))
        return;
    Quillet* pot = Pots[Pot];
    if (IsBank(Pot)) {
        pot->caption(Text);
        pot->Tag(Text);
        DescribePot(Pot);
        return;
    }
    if (Pot < 7) {
        if (n != 0)
            pot->picture(Image4->pixmap());
        else
            pot->picture(Pots[HumanBank]->picture());
    } else {
        if (n != 0)
            pot->picture(Image3->pixmap());
        else
            pot->picture(Pots[ComputerBank]->picture());
    }
    if (n == 0)
        Text.clear();
    pot->caption(Text);
    pot->Tag(Text);
    DescribePot(Pot);
}

void Form1::DrawPotHot(int16_t& Pot, QString& Text)
{
    if (Pot > 5 || Pot < 0 || Count(Text) == 0)
        return;
    Pots[Pot]->picture(Pots[HumanBank]->picture());
    Pots[Pot]->caption(Text);
    Pots[Pot]->Tag(Text);
    DescribePot(Pot);
    game_.HoverPot = Pot;
}

void Form1::RefreshPot(int16_t Slot)
{
    if (!IsSlot(Slot))
        return;
    QString digits = QString::number(game_.Beads[Slot]);
    DrawPot(Slot, digits);
    // The computer's pots and the banks keep their enabled state.
    if (!IsHumanPot(Slot))
        return;
    Pots[Slot]->enabled(true);
    if (game_.Beads[Slot] == 0 && !game_.HintActive)
        Pots[Slot]->enabled(false);
}

void Form1::Pots_MouseMove(int16_t Index, int16_t, int16_t, float, float)
{
    if (Index == game_.HoverPot || Index > 5)
        return;
    if (game_.HoverPot != -1) {
        int16_t hover = game_.HoverPot;
        QString tag = Pots[hover]->Tag();
        DrawPot(hover, tag);
    }
    QString tag = Pots[Index]->Tag();
    DrawPotHot(Index, tag);
    game_.HoverPot = Index;
}

void Form1::Form_MouseMove(int16_t, int16_t, float, float)
{
    // The first move after a hint forgets the keyboard's selection.
    if (game_.HintPotShown > -1) {
        game_.HintPotShown = -1;
        game_.KeyboardPot = -1;
    }
    if (game_.HoverPot != -1) {
        int16_t hover = game_.HoverPot;
        QString tag = Pots[hover]->Tag();
        DrawPot(hover, tag);
        game_.HoverPot = -1;
    }
}

void Form1::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF at = event->position();
    Form_MouseMove(ButtonNumber(event->buttons()), ShiftNumber(event->modifiers()),
                   Twips::fromPixels(static_cast<float>(at.x())),
                   Twips::fromPixels(static_cast<float>(at.y())));
}
