#include "window/form1.h"

#include "controls/quillet.h"
#include "engine/number_text.h"

// While the right button is held on a pot the faces show where its beads would fall.
// Only the faces and their Tags change; the release repaints them from Beads.
void Form1::Pots_MouseDown(int16_t Index, int16_t Button, int16_t, float, float)
{
    if (Button != 2 || !IsSlot(Index))
        return;
    // A sowing shown in the middle of a computer's move or a hint would never be taken
    // back: the release is turned away there too.
    if (game_.Busy() || game_.GameFinished)
        return;
    game_.PreviewActive = true;
    game_.PreviewBeads = game_.Beads;
    const int n = game_.PreviewBeads[Index];
    QString emptied = QStringLiteral("0");
    DrawPot(Index, emptied);
    for (int k = 1; k <= n; ++k) {
        int16_t j = static_cast<int16_t>((Index + k) % SlotCount);
        const double shown = NumericRead(Pots[j]->Tag().toStdString());
        QString sum = QString::number(static_cast<long long>(shown) + 1);
        DrawPot(j, sum);
    }
}
