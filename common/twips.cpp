#include "common/twips.h"

#include "common/numbers.h"

#include <QGuiApplication>
#include <QScreen>

namespace Twips {

namespace {
// A common 96 DPI desktop.
constexpr float CommonTwipsPerPixel = 15.0f;
} // namespace

float perPixel()
{
    if (!qGuiApp)
        return CommonTwipsPerPixel;
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen || screen->logicalDotsPerInch() <= 0)
        return CommonTwipsPerPixel;
    return static_cast<float>(TwipsPerInch / screen->logicalDotsPerInch());
}

int toPixels(float twips)
{
    return twipsToPixels(twips, perPixel());
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
