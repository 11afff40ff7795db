// Sorting and finding in the moves list control at its largest size, 32,767 items,
// beside a stock QListWidget doing the same work on the same texts: sortItems, and
// findItems with Qt::MatchWildcard.

#include "moveslist/lbblock.h"
#include "moveslist/usercontrol1.h"

#include <QListWidget>

#include <benchmark/benchmark.h>

#include <memory>
#include <random>

namespace {

constexpr int Items = 32767;

QString randomText(std::mt19937& random, int length, const QString& letters)
{
    QString text;
    for (int i = 0; i < length; ++i)
        text += letters[int(random() % letters.size())];
    return text;
}

const QStringList& randomTexts()
{
    static const QStringList texts = [] {
        std::mt19937 random(1);
        const QString letters = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGH0123456789 ");
        QStringList made;
        for (int i = 0; i < Items; ++i)
            made << randomText(random, 8 + int(random() % 33), letters);
        return made;
    }();
    return texts;
}

const QStringList& identicalTexts()
{
    static const QStringList texts(Items, QStringLiteral("HUMAN  pot C: 4 beads"));
    return texts;
}

// 200 characters each, full of a's and without a single b.
const QStringList& longTexts()
{
    static const QStringList texts = [] {
        std::mt19937 random(2);
        const QString letters = QStringLiteral("aaacdefghij ");
        QStringList made;
        for (int i = 0; i < Items; ++i)
            made << randomText(random, 200, letters);
        return made;
    }();
    return texts;
}

// The list as a host sets it up, with the first rows painted, so that a sort repaints.
std::unique_ptr<UserControl1> filledList(const QStringList& texts)
{
    std::unique_ptr<UserControl1> list(UserControl1::fromBlock(lbblock::write(PropertyBag())));
    list->DropDownHeight(3750);
    list->Mode(0);
    for (QString s : texts)
        list->Additem(s);
    list->ShowItem(1);
    return list;
}

void listSort(benchmark::State& state, const QStringList& texts)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto list = filledList(texts);
        state.ResumeTiming();
        list->SortAscending();
        state.PauseTiming();
        list.reset();
        state.ResumeTiming();
    }
}

void widgetSort(benchmark::State& state, const QStringList& texts)
{
    QListWidget list;
    for (auto _ : state) {
        state.PauseTiming();
        list.clear();
        list.addItems(texts);
        state.ResumeTiming();
        list.sortItems(Qt::AscendingOrder);
    }
}

void BM_ListSortRandomTexts(benchmark::State& state)
{
    listSort(state, randomTexts());
}

void BM_QListWidgetSortRandomTexts(benchmark::State& state)
{
    widgetSort(state, randomTexts());
}

void BM_ListSortIdenticalTexts(benchmark::State& state)
{
    listSort(state, identicalTexts());
}

void BM_QListWidgetSortIdenticalTexts(benchmark::State& state)
{
    widgetSort(state, identicalTexts());
}

// The pattern named in the target, and the same with a star behind it, which leaves the
// end of the subject free and so makes every item walk all its characters.
const QString EndsInB = QStringLiteral("*a*a*a*a*a*a*a*a*b");
const QString HoldsB = QStringLiteral("*a*a*a*a*a*a*a*a*b*");

void listFind(benchmark::State& state, const QString& pattern)
{
    auto list = filledList(longTexts());
    for (auto _ : state) {
        const AnyValue found = list->Find(0, 0, pattern);
        if (!(found == AnyValue(0))) {
            state.SkipWithError("an item was found");
            return;
        }
    }
}

void widgetFind(benchmark::State& state, const QString& pattern)
{
    QListWidget list;
    list.addItems(longTexts());
    for (auto _ : state) {
        if (!list.findItems(pattern, Qt::MatchWildcard).isEmpty()) {
            state.SkipWithError("an item was found");
            return;
        }
    }
}

void BM_ListFindEndsInB(benchmark::State& state)
{
    listFind(state, EndsInB);
}

void BM_QListWidgetFindEndsInB(benchmark::State& state)
{
    widgetFind(state, EndsInB);
}

void BM_ListFindHoldsB(benchmark::State& state)
{
    listFind(state, HoldsB);
}

void BM_QListWidgetFindHoldsB(benchmark::State& state)
{
    widgetFind(state, HoldsB);
}

// Long runs of plain characters between stars, case counting, none of them found: a
// run of n a's looked for in texts of a's only, or in texts whose runs of a's are one
// short of it. Each is measured beside QListWidget::findItems with a case-sensitive
// wildcard, Qt's compiled regular expression.
QStringList runsOfA(int count, int length, int every)
{
    QStringList texts;
    QString text(length, QLatin1Char('a'));
    if (every > 0)
        for (int i = every - 1; i < length; i += every)
            text[i] = QLatin1Char('b');
    for (int i = 0; i < count; ++i)
        texts << text;
    return texts;
}

struct FindWork {
    QString pattern;
    QStringList texts;
};

const FindWork& findWork(int row)
{
    static const FindWork work[] = {
        {QStringLiteral("*") + QString(1000, QLatin1Char('a')) + QStringLiteral("[b]*"),
         runsOfA(10, 100000, 0)},
        {QStringLiteral("*") + QString(5000, QLatin1Char('a')) + QStringLiteral("[b]*"),
         runsOfA(10, 100000, 0)},
        {QStringLiteral("*") + QString(1000, QLatin1Char('a')) + QStringLiteral("*"),
         runsOfA(10, 100000, 1000)},
        {QStringLiteral("*") + QString(200, QLatin1Char('a')) + QStringLiteral("*"),
         runsOfA(32767, 200, 200)},
    };
    return work[row];
}

void BM_ListFindLongRun(benchmark::State& state)
{
    const FindWork& work = findWork(int(state.range(0)));
    auto list = filledList(work.texts);
    for (auto _ : state)
        if (!(list->Find(0, 0, work.pattern, 1) == AnyValue(0)))
            return state.SkipWithError("an item was found");
}

void BM_QListWidgetFindLongRun(benchmark::State& state)
{
    const FindWork& work = findWork(int(state.range(0)));
    QListWidget list;
    list.addItems(work.texts);
    for (auto _ : state)
        if (!list.findItems(work.pattern, Qt::MatchWildcard | Qt::MatchCaseSensitive).isEmpty())
            return state.SkipWithError("an item was found");
}

BENCHMARK(BM_ListFindLongRun)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_QListWidgetFindLongRun)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ListSortRandomTexts)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(BM_QListWidgetSortRandomTexts)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(BM_ListSortIdenticalTexts)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(BM_QListWidgetSortIdenticalTexts)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(BM_ListFindEndsInB)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_QListWidgetFindEndsInB)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ListFindHoldsB)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_QListWidgetFindHoldsB)->Unit(benchmark::kMillisecond);

} // namespace
