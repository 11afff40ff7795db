#include "moveslist/lbblock.h"
#include "moveslist/usercontrol1.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>

// Lists too long to write out in a trace, checked against a plain model.
namespace {

std::unique_ptr<UserControl1> loadedList()
{
    return std::unique_ptr<UserControl1>(UserControl1::fromBlock(lbblock::write(PropertyBag())));
}

void append(UserControl1& list, const QStringList& texts)
{
    for (QString s : texts)
        list.Additem(s);
}

// Each item's text and item data as its record holds them, first to last.
QStringList textsAndData(const UserControl1& list)
{
    QStringList items;
    for (int it = 0; it < list.ListCount().toNumber(); ++it)
        items << list.List(it).toText() + QStringLiteral("\t ") +
                     QString::number(list.GetItemData(it).toNumber());
    return items;
}

// Short texts over a small alphabet with a few item data, so that many records are
// identical and many more share their text. The other columns are alike in every
// record, so text and data order the records as the whole records do. (A TAB inside
// a text would split its record: the traces show that case.)
TEST(Sorting, GivesTheOrderOfAStandardSortOfTheSameRecords)
{
    for (unsigned seed = 1; seed <= 3; ++seed) {
        auto list = loadedList();
        std::mt19937 random(seed);
        const QString letters = QStringLiteral("abAB ");
        QStringList expected;
        for (int i = 0; i < 1500; ++i) {
            QString s;
            for (int n = int(random() % 4); n > 0; --n)
                s += letters[int(random() % 5)];
            const int data = int(random() % 3);
            list->Additem(s);
            list->SetItemData(-1, data);
            expected << s + QStringLiteral("\t ") + QString::number(data);
        }
        std::sort(expected.begin(), expected.end(), [](const QString& a, const QString& b) {
            return QString::compare(a, b, Qt::CaseSensitive) < 0;
        });
        list->SortAscending();
        EXPECT_EQ(textsAndData(*list), expected) << "seed " << seed;
        std::reverse(expected.begin(), expected.end());
        list->SortDescending();
        EXPECT_EQ(textsAndData(*list), expected) << "seed " << seed;
    }
}

// Identical records put every record on one side of the pivot, and an ordered list is
// the quick sort's worst case without a random pivot: neither may run out of stack.
TEST(Sorting, TheLargestListsGetThrough)
{
    auto same = loadedList();
    const QStringList alike(32767, QStringLiteral("same"));
    append(*same, alike);
    same->SortAscending();
    same->SortDescending();
    EXPECT_EQ(same->ListCount(), AnyValue(32767));
    auto ordered = loadedList();
    QStringList rising;
    for (int i = 0; i < 32767; ++i)
        rising << QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0'));
    append(*ordered, rising);
    ordered->SortDescending();
    for (int it : {0, 1, 16383, 32766})
        EXPECT_EQ(ordered->List(it), AnyValue(rising[32766 - it])) << it;
}

TEST(Finding, ManyStarsOnALongTextTakeNoBacktracking)
{
    auto list = loadedList();
    const QString text(5000, QLatin1Char('a'));
    append(*list, {text, text + QLatin1Char('b')});
    // Backtracking into every star would not end in the life of the test.
    EXPECT_EQ(list->Find(0, 0, QString("*a").repeated(40) + QStringLiteral("*b"), 1), AnyValue(2));
}

} // namespace
