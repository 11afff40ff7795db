#include "moveslist/usercontrol1.h"

#include "moveslist/listnumbers.h"
#include "moveslist/uniformsource.h"

#include <algorithm>
#include <cmath>
#include <utility>

using moveslist::to16;

namespace {

// The bounds of what is left to sort once a pivot has found its place: the lower part
// ends at lowEnd, the upper part starts at highStart.
struct Split {
    int lowEnd;
    int highStart;
};

// Records compare as binary text, code unit by code unit, case counting.
template <bool Ascending> class HoleSort {
public:
    explicit HoleSort(std::deque<QString>& items) : m_items(items) {}

    // Recurses into the smaller part and loops on the larger, so that a list of
    // identical records, which leaves every record on one side, stays shallow.
    void run(int first, int last)
    {
        while (first < last) {
            const Split split = partition(first, last);
            if (split.lowEnd - first < last - split.highStart) {
                run(first, split.lowEnd);
                first = split.highStart;
            } else {
                run(split.highStart, last);
                last = split.lowEnd;
            }
        }
    }

private:
    // The top keeps what is not below the pivot going up, what is below it going down.
    bool staysOnTop(const QString& record, const QString& pivot)
    {
        const int order = record.compare(pivot);
        m_sawEqual = m_sawEqual || order == 0;
        return Ascending ? order >= 0 : order < 0;
    }

    bool staysAtBottom(const QString& record, const QString& pivot)
    {
        const int order = record.compare(pivot);
        m_sawEqual = m_sawEqual || order == 0;
        return Ascending ? order < 0 : order >= 0;
    }

    // The pivot is held outside the array and a hole moves from end to end: every
    // move is one assignment, and no record is swapped.
    Split partition(int first, int last)
    {
        const float r = moveslist::rnd();
        // Single precision can round the top draw up to last + 1.
        const int p = std::min(
            last, static_cast<int>(std::floor(float(last - first + 1) * r + float(first))));
        QString pivot = std::move(m_items[p]);
        if (p != first)
            m_items[p] = std::move(m_items[first]);
        m_sawEqual = false;
        int lo = first;
        int hi = last;
        for (;;) {
            while (hi > lo && staysOnTop(m_items[hi], pivot))
                --hi;
            if (hi <= lo) {
                m_items[lo] = std::move(pivot);
                break;
            }
            m_items[lo] = std::move(m_items[hi]);
            ++lo;
            while (lo < hi && staysAtBottom(m_items[lo], pivot))
                ++lo;
            if (lo >= hi) {
                lo = hi;
                m_items[hi] = std::move(pivot);
                break;
            }
            m_items[hi] = std::move(m_items[lo]);
        }
        return m_sawEqual ? gatherEquals(first, lo, last) : Split{lo - 1, lo + 1};
    }

    // Records equal to the pivot all went to one side of it. Brought next to the pivot
    // they are done with: without this a list of identical records sorts in time
    // growing with the square of its length.
    Split gatherEquals(int first, int at, int last)
    {
        const QString& pivot = m_items[at];
        if (Ascending) {
            int next = at + 1;
            for (int k = at + 1; k <= last; ++k)
                if (m_items[k] == pivot)
                    std::swap(m_items[k], m_items[next++]);
            return {at - 1, next};
        }
        int next = at - 1;
        for (int k = at - 1; k >= first; --k)
            if (m_items[k] == pivot)
                std::swap(m_items[k], m_items[next--]);
        return {next, at + 1};
    }

    std::deque<QString>& m_items;
    bool m_sawEqual = false;
};

} // namespace

// The canvas shows the same item numbers with their new records; the chosen item and
// the scroll position are not carried along.
void UserControl1::SortAscending()
{
    settleSize();
    QuickSortUp(1, to16(m_state.ItemCount));
    forgetItems();
    DrawRows(m_state.TopRow, m_state.BottomRow);
}

void UserControl1::SortDescending()
{
    settleSize();
    QuickSortDown(1, to16(m_state.ItemCount));
    forgetItems();
    DrawRows(m_state.TopRow, m_state.BottomRow);
}

void UserControl1::QuickSortUp(int16_t first, int16_t last)
{
    HoleSort<true>(m_state.Items).run(first, last);
}

void UserControl1::QuickSortDown(int16_t first, int16_t last)
{
    HoleSort<false>(m_state.Items).run(first, last);
}
