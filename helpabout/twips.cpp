#include "helpabout/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <cmath>

namespace {

constexpr double TwipsPerInch = 1440.0;
constexpr double ClassicTwipsPerPixel = 15.0; // 96 DPI

} // namespace

double TwipsPerPixel(const QWidget* widget)
{
    const QScreen* screen = widget ? widget->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return ClassicTwipsPerPixel;
    const double dpi = screen->logicalDotsPerInch();
    return dpi > 0 ? TwipsPerInch / dpi : ClassicTwipsPerPixel;
}

int ToPixels(double twips, double twipsPerPixel)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

QRect ToPixels(const TwipRect& place, double twipsPerPixel)
{
    return QRect(ToPixels(place.Left, twipsPerPixel), ToPixels(place.Top, twipsPerPixel),
                 ToPixels(place.Width, twipsPerPixel), ToPixels(place.Height, twipsPerPixel));
}
