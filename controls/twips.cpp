#include "controls/twips.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace Twips {

namespace {
constexpr float TwipsPerInch = 1440.0f;
constexpr float CommonTwipsPerPixel = 15.0f;
} // namespace

float perPixel()
{
    if (!qGuiApp)
        return CommonTwipsPerPixel;
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen || screen->logicalDotsPerInch() <= 0)
        return CommonTwipsPerPixel;
    return TwipsPerInch / static_cast<float>(screen->logicalDotsPerInch());
}

int toPixels(float twips)
{
    // nearbyint keeps the default rounding mode: halves go to the even neighbour.
    return static_cast<int>(std::nearbyint(twips / perPixel()));
}

float fromPixels(float pixels)
{
    return pixels * perPixel();
}

QRect toPixels(float Left, float Top, float Width, float Height)
{
    return QRect(toPixels(Left), toPixels(Top), toPixels(Width), toPixels(Height));
}

QRect toPixels(const QRect& place)
{
    return toPixels(static_cast<float>(place.x()), static_cast<float>(place.y()),
                    static_cast<float>(place.width()), static_cast<float>(place.height()));
}

} // namespace Twips
