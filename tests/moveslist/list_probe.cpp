#include "list_probe.h"

#include "moveslist/itemrecord.h"
#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/moveslistblock.h"
#include "moveslist/picturebox.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>

#include <cmath>

bool ListProbe::canvasHidden() const
{
    return list.Picture1->isHidden();
}

bool ListProbe::scrollBarHidden() const
{
    return list.VScroll1->isHidden();
}

int ListProbe::canvasHeight() const
{
    return list.Picture1->height();
}

int ListProbe::canvasWidth() const
{
    return list.Picture1->width();
}

int ListProbe::scrollValue() const
{
    return list.VScroll1->value();
}

int ListProbe::scrollMaximum() const
{
    return list.VScroll1->maximum();
}

void ListProbe::setScrollValue(int value)
{
    list.VScroll1->setValue(value);
}

void ListProbe::DrawRows(int16_t first, int16_t last)
{
    list.DrawRows(first, last);
}

void ListProbe::DrawOneRow(int16_t row)
{
    list.DrawOneRow(row);
}

void ListProbe::InvertRowStrip(int16_t row)
{
    list.InvertRowStrip(row);
}

void ListProbe::hideCanvas()
{
    list.Picture1->hide();
}

QString ListProbe::LastAddedIndex() const
{
    return list.LastAddedIndex();
}

QString ListProbe::ChosenIndex() const
{
    return list.ChosenIndex();
}

void ListProbe::ChosenIndex(const QString& index)
{
    list.ChosenIndex(index);
}

QString ListProbe::Text1() const
{
    return list.Text1->text();
}

void ListProbe::Text1(const QString& text)
{
    list.Text1->setText(text);
}

int ListProbe::itemsUpperBound() const
{
    return static_cast<int>(list.st.Items.size()) - 1;
}

QString ListProbe::column(int item, int c) const
{
    return itemrecord::Split(list.st.Items.at(static_cast<size_t>(item))).value(c);
}

double TwipsPerPixelY()
{
    return 1440.0 / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

double TwipsPerPixelX()
{
    return 1440.0 / QGuiApplication::primaryScreen()->logicalDotsPerInchX();
}

double HalfEven(double v)
{
    const double nearest = std::round(v);
    if (std::abs(v - std::trunc(v)) == 0.5)
        return 2 * std::round(v / 2);
    return nearest;
}

int PixelsDown(double twips)
{
    return static_cast<int>(HalfEven(twips / TwipsPerPixelY()));
}

double MeasuredTextHeight(const UserControl1& list)
{
    QFont font(list.Fontname());
    font.setPointSizeF(list.FontSize());
    return QFontMetrics(font).height() * TwipsPerPixelY();
}

std::unique_ptr<UserControl1> LoadedList()
{
    return std::unique_ptr<UserControl1>(UserControl1::FromBlock(lbblock::Write(PropertyBag())));
}

std::unique_ptr<UserControl1> MovesListAsSetUp()
{
    std::unique_ptr<UserControl1> list(UserControl1::FromBlock(MovesListBlock()));
    list->DropDownHeight(3750);
    list->Mode(0);
    list->BorderStyle(0);
    list->GridLines(true);
    list->ToolTip(true);
    return list;
}

void AppendItems(UserControl1& list, int n)
{
    for (int i = 1; i <= n; ++i) {
        QString s = QStringLiteral("item %1").arg(i);
        list.Additem(s);
    }
}

int ErrorCode(const std::function<void()>& call)
{
    try {
        call();
    } catch (const ListError& error) {
        return error.code();
    }
    return 0;
}
