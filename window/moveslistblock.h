#pragma once

#include <QByteArray>

// The stored property block of the game's MovesList: its extent (10028 x 503
// hundredths of a millimetre) and the font the form recorded with it. The window
// loads the log with UserControl1::fromBlock(movesListBlock(), this).
QByteArray movesListBlock();

class UserControl1;

// What the game sets on its log at the start: the drop-down's height, plain-list mode,
// no border, grid lines and the hover tip.
void setUpMovesLog(UserControl1& list);
