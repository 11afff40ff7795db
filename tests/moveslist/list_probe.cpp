#include "list_probe.h"

#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/moveslistblock.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

double twipsPerPixelY()
{
    return 1440.0 / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

double twipsPerPixelX()
{
    return 1440.0 / QGuiApplication::primaryScreen()->logicalDotsPerInchX();
}

double halfEven(double v)
{
    if (std::abs(v - std::trunc(v)) == 0.5)
        return 2 * std::round(v / 2);
    return std::round(v);
}

int pixelsDown(double twips)
{
    return static_cast<int>(halfEven(twips / twipsPerPixelY()));
}

double measuredTextHeight(const UserControl1& list)
{
    QFont font(list.Fontname());
    font.setPointSizeF(list.FontSize());
    return QFontMetrics(font).height() * twipsPerPixelY();
}

std::unique_ptr<UserControl1> loadedList()
{
    return std::unique_ptr<UserControl1>(UserControl1::fromBlock(lbblock::write(PropertyBag())));
}

std::unique_ptr<UserControl1> movesListAsSetUp()
{
    std::unique_ptr<UserControl1> list(UserControl1::fromBlock(movesListBlock()));
    setUpMovesLog(*list);
    return list;
}

std::unique_ptr<UserControl1> unpaintedList(int items)
{
    auto list = loadedList();
    list->DropDownHeight(2000);
    list->Mode(0);
    appendItems(*list, items);
    return list;
}

std::unique_ptr<UserControl1> whiteList(int items, int16_t dropDownHeight)
{
    auto list = loadedList();
    list->resize(300, 200);
    list->BackColor(0x00FFFFFF);
    list->DropDownHeight(dropDownHeight);
    list->Mode(0);
    appendItems(*list, items);
    ListProbe(*list).DrawRows(1, list->state().RowsInView);
    return list;
}

bool rowMarked(const UserControl1& list, int row)
{
    const ListState& st = list.state();
    const int y = pixelsDown((row + 0.5) * st.RowTwips);
    return (list.canvas().pixel(list.canvas().width() - 3, y) & 0xFFFFFF) != 0xFFFFFF;
}

bool blank(const QImage& image, QRgb colour, int top)
{
    for (int y = std::max(top, 0); y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != colour)
                return false;
    return true;
}

void appendItems(UserControl1& list, int n)
{
    for (int i = 1; i <= n; ++i) {
        QString s = QStringLiteral("item %1").arg(i);
        list.Additem(s);
    }
}

void appendTexts(UserControl1& list, const QStringList& texts)
{
    for (QString s : texts)
        list.Additem(s);
}

std::pair<int16_t, int32_t> addFull(UserControl1& list, const QString& text, int16_t itemx,
                                    int16_t ipic, int32_t colour, const QString& font)
{
    QString s = text;
    QString ItemFont = font;
    list.Additem(s, itemx, ipic, ItemFont, colour);
    return {ipic, colour};
}

QStringList texts(const UserControl1& list)
{
    QStringList texts;
    for (int it = 0; it < list.ListCount().toNumber(); ++it)
        texts << list.List(it).toText();
    return texts;
}

std::vector<QString> records(UserControl1& list)
{
    ListProbe probe(list);
    std::vector<QString> records;
    for (int item = 1; item <= list.state().ItemCount; ++item)
        records.push_back(probe.record(item));
    return records;
}

int errorCode(const std::function<void()>& call)
{
    try {
        call();
    } catch (const ListError& error) {
        return error.code();
    }
    return 0;
}
