#include "moveslist/usercontrol1.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/olecolor.h"
#include "moveslist/picturebox.h"

#include <QLineEdit>
#include <QScrollBar>

#include <cmath>
#include <limits>

using moveslist::To16;
using moveslist::To32;

namespace {

// Booleans are kept as the platform keeps them: -1 for True.
int16_t Flag(bool on)
{
    return on ? -1 : 0;
}

int16_t Read16(const PropertyBag& bag, const char* key, int16_t defaultValue)
{
    return To16(bag.ReadProperty(QLatin1String(key), defaultValue).toNumberStrict());
}

int32_t Read32(const PropertyBag& bag, const char* key, int32_t defaultValue)
{
    return To32(bag.ReadProperty(QLatin1String(key), defaultValue).toNumberStrict());
}

bool ReadFlag(const PropertyBag& bag, const char* key)
{
    return bag.ReadProperty(QLatin1String(key), 0).toNumberStrict() != 0;
}

AnyValue ReadAny(const PropertyBag& bag, const char* key)
{
    return bag.ReadProperty(QLatin1String(key), 0);
}

// An "any value" is stored in the narrowest form that holds it.
PropertyType TypeOf(const AnyValue& value)
{
    if (value.isEmpty())
        return PropertyType::Empty;
    if (value.isText())
        return PropertyType::Text;
    const double number = value.toNumber();
    if (number != std::trunc(number))
        return PropertyType::Double;
    if (number >= std::numeric_limits<int16_t>::min() &&
        number <= std::numeric_limits<int16_t>::max())
        return PropertyType::Integer;
    if (number >= std::numeric_limits<int32_t>::min() &&
        number <= std::numeric_limits<int32_t>::max())
        return PropertyType::Long;
    return PropertyType::Double;
}

void Write(PropertyBag& bag, const char* key, PropertyType type, const AnyValue& value,
           const AnyValue& defaultValue)
{
    bag.WriteProperty(QLatin1String(key), type, value, defaultValue);
}

void WriteAny(PropertyBag& bag, const char* key, const AnyValue& value)
{
    bag.WriteProperty(QLatin1String(key), TypeOf(value), value, 0);
}

} // namespace

void UserControl1::UserControl_InitProperties()
{
    st.EnabledValue = false;
    st.ListCountStore = 0;
    st.GridLinesValue = 0;
    st.DropDownHeightValue = 0;
    st.ModeValue = 0;
    st.RowHeightValue = 0;
    st.ListStore = 0;
    st.TextStore = 0;
    st.ListIndexStore = 0;
    st.DrawStyleValue = 0;
    st.GridColorValue = 0;
    st.ToolTipOn = false;
}

// Most keys only fill a store: Mode, DropDownHeight and RowHeight act once the host
// assigns them, and the list stays hidden until Mode is assigned.
void UserControl1::UserControl_ReadProperties(const PropertyBag& PropBag)
{
    st.EnabledValue = ReadFlag(PropBag, "Enabled");
    const QByteArray pictures = PropBag.ReadObject(QStringLiteral("PictureList"));
    st.PictureListRef =
        pictures.isEmpty() ? nullptr : std::make_shared<ImageList>(ImageList::Load(pictures));
    st.ListCountStore = ReadAny(PropBag, "ListCount");
    st.GridLinesValue = Flag(ReadFlag(PropBag, "GridLines"));
    applySurfaceBorder(Read16(PropBag, "BorderStyle", 1));
    st.ModeValue = Read16(PropBag, "Mode", 0);
    st.SelectedRow = -1;
    st.NextRowTop = 0;
    Picture1->hide();
    VScroll1->hide();
    Picture1->ForeColor(Read32(PropBag, "ForeColor", olecolor::WindowText));
    st.GridLinesOn = st.GridLinesValue != 0 ? 1 : 0;
    st.DropDownHeightValue = Read16(PropBag, "DropDownHeight", 0);
    st.RowHeightValue = ReadAny(PropBag, "RowHeight");
    st.ListStore = ReadAny(PropBag, "List");
    st.TextStore = ReadAny(PropBag, "Text");
    st.ListIndexStore = ReadAny(PropBag, "ListIndex");
    st.DrawStyleValue = Read16(PropBag, "DrawStyle", 0);
    applySurfaceBackColor(Read32(PropBag, "BackColor", olecolor::ButtonFace));
    st.GridColorValue = Read32(PropBag, "GridColor", 0);
    st.ToolTipOn = ReadFlag(PropBag, "ToolTip");
}

// Fontname and FontSize are written and never read back; List, Text and ListIndex
// are read and never written.
void UserControl1::UserControl_WriteProperties(PropertyBag& PropBag) const
{
    Write(PropBag, "Enabled", PropertyType::Integer, Flag(st.EnabledValue), 0);
    PropBag.WriteObject(QStringLiteral("PictureList"),
                        st.PictureListRef ? st.PictureListRef->Save() : QByteArray());
    WriteAny(PropBag, "ListCount", st.ListCountStore);
    Write(PropBag, "Fontname", PropertyType::Text, Fontname(), "0");
    Write(PropBag, "FontSize", PropertyType::Single, FontSize(), 0);
    Write(PropBag, "ForeColor", PropertyType::Long, forecolor(), olecolor::WindowText);
    Write(PropBag, "GridLines", PropertyType::Integer, st.GridLinesValue, 0);
    Write(PropBag, "BorderStyle", PropertyType::Integer, surfaceBorderStyle, 1);
    Write(PropBag, "DropDownHeight", PropertyType::Integer, st.DropDownHeightValue, 0);
    Write(PropBag, "Mode", PropertyType::Integer, st.ModeValue, 0);
    WriteAny(PropBag, "RowHeight", st.RowHeightValue);
    Write(PropBag, "DrawStyle", PropertyType::Integer, st.DrawStyleValue, 0);
    Write(PropBag, "BackColor", PropertyType::Long, surfaceBackColor, olecolor::ButtonFace);
    Write(PropBag, "GridColor", PropertyType::Long, st.GridColorValue, 0);
    Write(PropBag, "ToolTip", PropertyType::Integer, Flag(st.ToolTipOn), 0);
}

bool UserControl1::Enabled() const
{
    return st.EnabledValue;
}

// Kept and reported only: nothing in the list looks at it.
void UserControl1::Enabled(bool New_Enabled)
{
    st.EnabledValue = New_Enabled;
    emit PropertyChanged(QStringLiteral("Enabled"));
}

std::shared_ptr<ImageList> UserControl1::PictureList() const
{
    return st.PictureListRef;
}

void UserControl1::PictureList(std::shared_ptr<ImageList> New_PictureList)
{
    st.PictureListRef = std::move(New_PictureList);
    emit PropertyChanged(QStringLiteral("PictureList"));
}

// Picture1's font serves measuring only: rows take their font name from their record.
QString UserControl1::Fontname() const
{
    return Picture1->FontName();
}

void UserControl1::Fontname(const QString& New_Fontname)
{
    Picture1->FontName(New_Fontname);
    emit PropertyChanged(QStringLiteral("Fontname"));
}

// The rows take this size over at the first item.
float UserControl1::FontSize() const
{
    return Picture1->FontSize();
}

void UserControl1::FontSize(float New_FontSize)
{
    Picture1->FontSize(New_FontSize);
    emit PropertyChanged(QStringLiteral("FontSize"));
}

int32_t UserControl1::forecolor() const
{
    return Picture1->ForeColor();
}

void UserControl1::forecolor(int32_t New_forecolor)
{
    Picture1->ForeColor(New_forecolor);
    emit PropertyChanged(QStringLiteral("ForeColor"));
}

bool UserControl1::GridLines() const
{
    return st.GridLinesValue != 0;
}

void UserControl1::GridLines(bool New_GridLines)
{
    st.GridLinesValue = Flag(New_GridLines);
    st.GridLinesOn = New_GridLines ? 1 : 0;
    emit PropertyChanged(QStringLiteral("GridLines"));
}

int16_t UserControl1::BorderStyle() const
{
    return surfaceBorderStyle;
}

// Applies from the next layout pass on: nothing moves now.
void UserControl1::BorderStyle(int16_t New_BorderStyle)
{
    if (New_BorderStyle != 0 && New_BorderStyle != 1)
        throw ListError(ListErrorCode::InvalidPropertyValue,
                        QStringLiteral("Invalid property value: BorderStyle is 0 or 1"));
    applySurfaceBorder(New_BorderStyle);
    emit PropertyChanged(QStringLiteral("BorderStyle"));
}

int16_t UserControl1::DrawStyle() const
{
    return st.DrawStyleValue;
}

void UserControl1::DrawStyle(int16_t New_DrawStyle)
{
    st.DrawStyleValue = New_DrawStyle;
    emit PropertyChanged(QStringLiteral("DrawStyle"));
}

int32_t UserControl1::BackColor() const
{
    return surfaceBackColor;
}

// The canvas is wiped by its new colour and counts as unpainted; nothing is redrawn.
void UserControl1::BackColor(int32_t New_BackColor)
{
    applySurfaceBackColor(New_BackColor);
    Picture1->BackColor(New_BackColor);
    Picture3->BackColor(New_BackColor);
    QPalette box = Text1->palette();
    box.setColor(QPalette::Base, olecolor::ToQColor(New_BackColor));
    Text1->setPalette(box);
    st.TopRow = -1;
    emit PropertyChanged(QStringLiteral("BackColor"));
}

int32_t UserControl1::GridColor() const
{
    return st.GridColorValue;
}

void UserControl1::GridColor(int32_t New_GridColor)
{
    st.GridColorValue = New_GridColor;
    emit PropertyChanged(QStringLiteral("GridColor"));
}

bool UserControl1::ToolTip() const
{
    return st.ToolTipOn;
}

void UserControl1::ToolTip(bool New_ToolTip)
{
    st.ToolTipOn = New_ToolTip;
    emit PropertyChanged(QStringLiteral("ToolTip"));
}
