#pragma once

#include <QByteArray>

// The stored property block of the game's MovesList: its extent (10028 x 503
// hundredths of a millimetre) and the font the form recorded with it. The window
// loads the log with UserControl1::FromBlock(MovesListBlock(), this).
QByteArray MovesListBlock();
