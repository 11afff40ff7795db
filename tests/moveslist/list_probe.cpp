#include "list_probe.h"

#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/moveslistblock.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>

#include <cmath>

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
    if (std::abs(v - std::trunc(v)) == 0.5)
        return 2 * std::round(v / 2);
    return std::round(v);
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

std::unique_ptr<UserControl1> WhiteList(int items, int16_t dropDownHeight)
{
    auto list = LoadedList();
    list->resize(300, 200);
    list->BackColor(0x00FFFFFF);
    list->DropDownHeight(dropDownHeight);
    list->Mode(0);
    AppendItems(*list, items);
    ListProbe(*list).DrawRows(1, list->state().RowsInView);
    return list;
}

bool RowMarked(const UserControl1& list, int row)
{
    const ListState& st = list.state();
    const int y = PixelsDown((row + 0.5) * st.RowTwips);
    return (list.canvas().pixel(list.canvas().width() - 3, y) & 0xFFFFFF) != 0xFFFFFF;
}

void AppendItems(UserControl1& list, int n)
{
    for (int i = 1; i <= n; ++i) {
        QString s = QStringLiteral("item %1").arg(i);
        list.Additem(s);
    }
}

void AppendTexts(UserControl1& list, const QStringList& texts)
{
    for (QString s : texts)
        list.Additem(s);
}

QStringList Texts(const UserControl1& list)
{
    QStringList texts;
    for (int it = 0; it < list.ListCount().toNumber(); ++it)
        texts << list.List(it).toText();
    return texts;
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
