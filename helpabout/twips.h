#pragma once

#include <QRect>

class QWidget;

// The windows are laid out in twips, 1440 to the inch, as the game has always been
// measured; the screen decides how many twips a pixel is.
struct TwipRect {
    int Left;
    int Top;
    int Width;
    int Height;
};

double TwipsPerPixel(const QWidget* widget);
int ToPixels(double twips, double twipsPerPixel);
QRect ToPixels(const TwipRect& place, double twipsPerPixel);
