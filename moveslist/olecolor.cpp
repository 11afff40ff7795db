#include "moveslist/olecolor.h"

#include <QGuiApplication>
#include <QPalette>

namespace olecolor {

namespace {

QColor systemColour(uint32_t index)
{
    const QPalette palette = QGuiApplication::palette();
    switch (index) {
    case 0x05:
        return palette.color(QPalette::Base);
    case 0x08:
        return palette.color(QPalette::Text);
    case 0x0D:
        return palette.color(QPalette::Highlight);
    case 0x0E:
        return palette.color(QPalette::HighlightedText);
    case 0x0F:
        return palette.color(QPalette::Button);
    case 0x11:
        return palette.color(QPalette::Disabled, QPalette::Text);
    case 0x12:
        return palette.color(QPalette::ButtonText);
    case 0x17:
        return palette.color(QPalette::ToolTipText);
    case 0x18:
        return palette.color(QPalette::ToolTipBase);
    default:
        return palette.color(QPalette::WindowText);
    }
}

} // namespace

QColor toQColor(int32_t colour)
{
    const auto bits = static_cast<uint32_t>(colour);
    if (bits & 0x80000000u)
        return systemColour(bits & 0xFFu);
    return QColor(int(bits & 0xFF), int((bits >> 8) & 0xFF), int((bits >> 16) & 0xFF));
}

} // namespace olecolor
