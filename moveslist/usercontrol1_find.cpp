#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/likepattern.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLineEdit>

using moveslist::to16;

namespace col = itemrecord;

namespace {

// Column 0 of a record, read in place: a search looks at nothing else.
QStringView textColumn(const QString& record)
{
    const qsizetype tab = record.indexOf(QLatin1Char('\t'));
    return tab < 0 ? QStringView(record) : QStringView(record).left(tab);
}

} // namespace

// The backward run covers the same items as the forward one, from the last item down
// to the start item; neither wraps round. A pattern is only read once the search runs.
AnyValue UserControl1::Find(int16_t sdir, int16_t it, const QString& ftext, int16_t casen)
{
    const int16_t start = to16(it + 1.0);
    if (start > m_state.ItemCount || start < 1 || m_state.ItemCount == 0)
        return {};
    const bool caseCounts = casen == 1;
    const LikePattern pattern(caseCounts ? ftext : LikePattern::upperCase(ftext));
    const int32_t step = sdir == 1 ? -1 : 1;
    const int32_t from = sdir == 1 ? m_state.ItemCount : start;
    const int32_t to = sdir == 1 ? start : m_state.ItemCount;
    for (int32_t n = from;; n += step) {
        const QString& record = m_state.Items[static_cast<size_t>(n)];
        if (pattern.matches(textColumn(record), !caseCounts)) {
            m_state.ItemColumns = col::Split(record);
            return n;
        }
        if (n == to)
            break;
    }
    // The scratch columns hold the record looked at last, as a split of each would.
    m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(to)]);
    return 0;
}

// The item ends on the first canvas row, with blank canvas below it if need be: the
// position is not held back to keep the view full.
void UserControl1::ShowItem(const AnyValue& i)
{
    settleSize();
    const double n = i.toNumberStrict();
    if (!(n >= 1 && n <= m_state.ItemCount))
        return;
    // The entry is whole; the chosen index and the bar's value take the number as given,
    // the bar bringing it to a whole value.
    m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(R(n))]);
    Text1->setText(col::column(m_state.ItemColumns, col::Text));
    ChosenIndex(moveslist::numberText(n - 1));
    if (m_state.SelectedRow != -1)
        InvertRowStrip(to16(m_state.SelectedRow));
    if (m_state.ComboMode == 1 && Picture1->isHidden()) {
        OpenDropDown();
        Picture1->setFocus();
    }
    setScrollValue(static_cast<int>(R(n - 1)));
    InvertRowStrip(0);
    m_state.SelectedRow = 0;
}
