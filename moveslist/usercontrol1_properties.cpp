#include "moveslist/usercontrol1.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/olecolor.h"
#include "moveslist/picturebox.h"

#include <QLineEdit>
#include <QScrollBar>

#include <cmath>
#include <limits>

using moveslist::to16;
using moveslist::to32;

namespace {

// Booleans are kept as the platform keeps them: -1 for True.
int16_t flag(bool on)
{
    return on ? -1 : 0;
}

int16_t read16(const PropertyBag& bag, const char* key, int16_t defaultValue)
{
    return to16(bag.readProperty(QLatin1String(key), defaultValue).toNumberStrict());
}

int32_t read32(const PropertyBag& bag, const char* key, int32_t defaultValue)
{
    return to32(bag.readProperty(QLatin1String(key), defaultValue).toNumberStrict());
}

bool readFlag(const PropertyBag& bag, const char* key)
{
    return bag.readProperty(QLatin1String(key), 0).toNumberStrict() != 0;
}

AnyValue readAny(const PropertyBag& bag, const char* key)
{
    return bag.readProperty(QLatin1String(key), 0);
}

// An "any value" is stored in the narrowest form that holds it: a whole number in 16
// or 32 bits, any other number as a single.
PropertyType typeOf(const AnyValue& value)
{
    if (value.isText())
        return PropertyType::Text;
    const double number = value.toNumber();
    if (number == std::trunc(number) && number >= std::numeric_limits<int16_t>::min() &&
        number <= std::numeric_limits<int16_t>::max())
        return PropertyType::Integer;
    if (number == std::trunc(number) && number >= std::numeric_limits<int32_t>::min() &&
        number <= std::numeric_limits<int32_t>::max())
        return PropertyType::Long;
    return PropertyType::Single;
}

void write(PropertyBag& bag, const char* key, PropertyType type, const AnyValue& value,
           const AnyValue& defaultValue)
{
    bag.writeProperty(QLatin1String(key), type, value, defaultValue);
}

// A store that never received a value is left out: the block has no empty type.
void writeAny(PropertyBag& bag, const char* key, const AnyValue& value)
{
    if (!value.isEmpty())
        bag.writeProperty(QLatin1String(key), typeOf(value), value, 0);
}

} // namespace

void UserControl1::UserControl_InitProperties()
{
    m_state.EnabledValue = false;
    m_state.ListCountStore = 0;
    m_state.GridLinesValue = 0;
    m_state.DropDownHeightValue = 0;
    m_state.ModeValue = 0;
    m_state.RowHeightValue = 0;
    m_state.ListStore = 0;
    m_state.TextStore = 0;
    m_state.ListIndexStore = 0;
    m_state.DrawStyleValue = 0;
    m_state.GridColorValue = 0;
    m_state.ToolTipOn = false;
}

// Most keys only fill a store: Mode, DropDownHeight and RowHeight act once the host
// assigns them, and the list stays hidden until Mode is assigned.
void UserControl1::UserControl_ReadProperties(const PropertyBag& PropBag)
{
    m_state.EnabledValue = readFlag(PropBag, "Enabled");
    const QByteArray pictures = PropBag.readObject(QStringLiteral("PictureList"));
    m_state.PictureListRef =
        pictures.isEmpty() ? nullptr : std::make_shared<ImageList>(ImageList::load(pictures));
    m_state.ListCountStore = readAny(PropBag, "ListCount");
    m_state.GridLinesValue = flag(readFlag(PropBag, "GridLines"));
    // What a setter would refuse is refused on load, with the setter's code.
    const int16_t border = read16(PropBag, "BorderStyle", 1);
    if (border != 0 && border != 1)
        throw ListError(ListErrorCode::InvalidPropertyValue);
    applySurfaceBorder(border);
    m_state.ModeValue = read16(PropBag, "Mode", 0);
    m_state.SelectedRow = -1;
    m_state.NextRowTop = 0;
    Picture1->hide();
    VScroll1->hide();
    Picture1->foreColor(read32(PropBag, "ForeColor", olecolor::WindowText));
    m_state.GridLinesOn = m_state.GridLinesValue != 0 ? 1 : 0;
    m_state.DropDownHeightValue = read16(PropBag, "DropDownHeight", 0);
    m_state.RowHeightValue = readAny(PropBag, "RowHeight");
    if (PropBag.find(QStringLiteral("RowHeight")) &&
        !(m_state.RowHeightValue.toNumberStrict() >= 1))
        throw ListError(ListErrorCode::InvalidPropertyValue);
    m_state.ListStore = readAny(PropBag, "List");
    m_state.TextStore = readAny(PropBag, "Text");
    m_state.ListIndexStore = readAny(PropBag, "ListIndex");
    m_state.DrawStyleValue = read16(PropBag, "DrawStyle", 0);
    applySurfaceBackColor(read32(PropBag, "BackColor", olecolor::ButtonFace));
    m_state.GridColorValue = read32(PropBag, "GridColor", 0);
    m_state.ToolTipOn = readFlag(PropBag, "ToolTip");
}

// Fontname and FontSize are written and never read back; List, Text and ListIndex
// are read and never written.
void UserControl1::UserControl_WriteProperties(PropertyBag& PropBag) const
{
    write(PropBag, "Enabled", PropertyType::Integer, flag(m_state.EnabledValue), 0);
    PropBag.writeObject(QStringLiteral("PictureList"),
                        m_state.PictureListRef ? m_state.PictureListRef->save() : QByteArray());
    writeAny(PropBag, "ListCount", m_state.ListCountStore);
    write(PropBag, "Fontname", PropertyType::Text, Fontname(), "0");
    write(PropBag, "FontSize", PropertyType::Single, FontSize(), 0);
    write(PropBag, "ForeColor", PropertyType::Long, forecolor(), olecolor::WindowText);
    write(PropBag, "GridLines", PropertyType::Integer, m_state.GridLinesValue, 0);
    write(PropBag, "BorderStyle", PropertyType::Integer, m_surfaceBorderStyle, 1);
    write(PropBag, "DropDownHeight", PropertyType::Integer, m_state.DropDownHeightValue, 0);
    write(PropBag, "Mode", PropertyType::Integer, m_state.ModeValue, 0);
    writeAny(PropBag, "RowHeight", m_state.RowHeightValue);
    write(PropBag, "DrawStyle", PropertyType::Integer, m_state.DrawStyleValue, 0);
    write(PropBag, "BackColor", PropertyType::Long, m_surfaceBackColor, olecolor::ButtonFace);
    write(PropBag, "GridColor", PropertyType::Long, m_state.GridColorValue, 0);
    write(PropBag, "ToolTip", PropertyType::Integer, flag(m_state.ToolTipOn), 0);
}

bool UserControl1::Enabled() const
{
    return m_state.EnabledValue;
}

// Kept and reported only: nothing in the list looks at it.
void UserControl1::Enabled(bool New_Enabled)
{
    settleSize();
    m_state.EnabledValue = New_Enabled;
    emit propertyChanged(QStringLiteral("Enabled"));
}

std::shared_ptr<ImageList> UserControl1::PictureList() const
{
    return m_state.PictureListRef;
}

void UserControl1::PictureList(std::shared_ptr<ImageList> New_PictureList)
{
    settleSize();
    m_state.PictureListRef = std::move(New_PictureList);
    emit propertyChanged(QStringLiteral("PictureList"));
}

// Picture1's font serves measuring only: rows take their font name from their record.
QString UserControl1::Fontname() const
{
    return Picture1->fontName();
}

void UserControl1::Fontname(const QString& New_Fontname)
{
    settleSize();
    Picture1->fontName(New_Fontname);
    emit propertyChanged(QStringLiteral("Fontname"));
}

// The rows take this size over at the first item.
float UserControl1::FontSize() const
{
    return Picture1->FontSize();
}

void UserControl1::FontSize(float New_FontSize)
{
    settleSize();
    Picture1->FontSize(New_FontSize);
    emit propertyChanged(QStringLiteral("FontSize"));
}

int32_t UserControl1::forecolor() const
{
    return Picture1->foreColor();
}

void UserControl1::forecolor(int32_t New_forecolor)
{
    settleSize();
    Picture1->foreColor(New_forecolor);
    emit propertyChanged(QStringLiteral("ForeColor"));
}

bool UserControl1::GridLines() const
{
    return m_state.GridLinesValue != 0;
}

void UserControl1::GridLines(bool New_GridLines)
{
    settleSize();
    m_state.GridLinesValue = flag(New_GridLines);
    m_state.GridLinesOn = New_GridLines ? 1 : 0;
    emit propertyChanged(QStringLiteral("GridLines"));
}

int16_t UserControl1::BorderStyle() const
{
    return m_surfaceBorderStyle;
}

// Applies from the next layout pass on: nothing moves now.
void UserControl1::BorderStyle(int16_t New_BorderStyle)
{
    settleSize();
    if (New_BorderStyle != 0 && New_BorderStyle != 1)
        throw ListError(ListErrorCode::InvalidPropertyValue);
    applySurfaceBorder(New_BorderStyle);
    emit propertyChanged(QStringLiteral("BorderStyle"));
}

int16_t UserControl1::DrawStyle() const
{
    return m_state.DrawStyleValue;
}

void UserControl1::DrawStyle(int16_t New_DrawStyle)
{
    settleSize();
    m_state.DrawStyleValue = New_DrawStyle;
    emit propertyChanged(QStringLiteral("DrawStyle"));
}

int32_t UserControl1::BackColor() const
{
    return m_surfaceBackColor;
}

// The canvas is wiped by its new colour and counts as unpainted; nothing is redrawn.
void UserControl1::BackColor(int32_t New_BackColor)
{
    settleSize();
    applySurfaceBackColor(New_BackColor);
    Picture1->BackColor(New_BackColor);
    Picture3->BackColor(New_BackColor);
    QPalette box = Text1->palette();
    box.setColor(QPalette::Base, olecolor::toQColor(New_BackColor));
    Text1->setPalette(box);
    m_state.TopRow = -1;
    emit propertyChanged(QStringLiteral("BackColor"));
}

int32_t UserControl1::GridColor() const
{
    return m_state.GridColorValue;
}

void UserControl1::GridColor(int32_t New_GridColor)
{
    settleSize();
    m_state.GridColorValue = New_GridColor;
    emit propertyChanged(QStringLiteral("GridColor"));
}

bool UserControl1::ToolTip() const
{
    return m_state.ToolTipOn;
}

void UserControl1::ToolTip(bool New_ToolTip)
{
    settleSize();
    m_state.ToolTipOn = New_ToolTip;
    emit propertyChanged(QStringLiteral("ToolTip"));
}

int UserControl1::designRowHeight() const
{
    const double twips = m_state.RowHeightValue.toNumber();
    return std::isfinite(twips) && std::abs(twips) < 1e9 ? static_cast<int>(R(twips)) : 0;
}

void UserControl1::designRowHeight(int twips)
{
    if (twips >= 1)
        RowHeight(twips);
}

void UserControl1::designBorderStyle(int style)
{
    if (style == 0 || style == 1)
        BorderStyle(static_cast<int16_t>(style));
}
