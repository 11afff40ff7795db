#pragma once

#include <QRect>

// Every length on the board is in twips, 1440 to the inch. The screen decides how many
// twips make one pixel: 15 on a common 96 DPI desktop.
namespace Twips {

// Twips per logical pixel of the primary screen; 15 while no screen is known.
float perPixel();

// Rounded to the nearest pixel, a half going to the even neighbour.
int toPixels(float twips);
float fromPixels(float pixels);

QRect toPixels(float Left, float Top, float Width, float Height);
// A place given in twips, as the windows' layout tables hold them.
QRect toPixels(const QRect& place);

} // namespace Twips
