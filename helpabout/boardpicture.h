#pragma once

#include <QPixmap>

// The miniature board: icon of the small windows and the picture of the about window.
// A null pixmap while the game's pictures are not built in.
QPixmap miniatureBoard();
