#include "moveslist/itemrecord.h"
#include "moveslist/listaccessible.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"
#include "moveslist/usercontrol1.h"

#include <QAccessible>

#include <cmath>

namespace col = itemrecord;

QString UserControl1::rowAccessibleName(int32_t item) const
{
    if (item < 1 || item > m_state.ItemCount)
        return {};
    const QStringList columns = col::Split(m_state.Items[static_cast<size_t>(item)]);
    const QString text = columns.value(col::Text);
    if (!m_rowVoice)
        return text;
    const auto colour = static_cast<int32_t>(moveslist::numericRead(columns.value(col::Colour)));
    return m_rowVoice(text, colour);
}

QRect UserControl1::itemRect(int32_t item) const
{
    if (m_state.RowTwips <= 0 || m_state.PixelTwipsY <= 0 || m_state.TopRow < 1 ||
        Picture1->isHidden())
        return {};
    if (item < m_state.TopRow || item >= m_state.TopRow + m_state.RowsInView ||
        item > m_state.ItemCount)
        return {};
    // Each row's top is rounded on its own, as the rows are drawn, so that a fraction
    // of a pixel per row does not add up down the list.
    const auto top = [&](int32_t row) {
        return static_cast<int>(
            R(double(row - m_state.TopRow) * m_state.RowTwips / m_state.PixelTwipsY));
    };
    const QPoint at = Picture1->mapToGlobal(QPoint(0, top(item)));
    return QRect(mapFromGlobal(at), QSize(Picture1->width(), top(item + 1) - top(item)));
}

// A screen reader may ask about the list while its children are going: its interface
// goes first.
UserControl1::~UserControl1()
{
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(this)));
}

int32_t UserControl1::itemAt(QPoint at) const
{
    const int32_t last =
        std::min<int32_t>(m_state.TopRow + m_state.RowsInView - 1, m_state.ItemCount);
    for (int32_t item = std::max<int32_t>(m_state.TopRow, 1); item <= last; ++item)
        if (itemRect(item).contains(at))
            return item;
    return 0;
}

// The rows a screen reader was given keep their items whether a reader listens now or
// not; only a listening reader gets told of new ones.
ListAccessible* UserControl1::readerView()
{
    return dynamic_cast<ListAccessible*>(QAccessible::queryAccessibleInterface(this));
}

// The item is a new child of the list: a screen reader reads it out as it arrives.
void UserControl1::announceItem(int32_t item)
{
    ListAccessible* list = readerView();
    if (!list)
        return;
    list->itemInserted(item);
    if (!QAccessible::isActive())
        return;
    if (QAccessibleInterface* row = list->child(item - 1)) {
        QAccessibleEvent created(row, QAccessible::ObjectCreated);
        QAccessible::updateAccessibility(&created);
    }
}

void UserControl1::forgetItem(int32_t item)
{
    if (ListAccessible* list = readerView())
        list->itemRemoved(item);
}

void UserControl1::forgetItems()
{
    // The rows go with their interfaces; this Qt sends a reorder in a form readers
    // refuse, so none is sent.
    if (ListAccessible* list = readerView())
        list->itemsReset();
}
