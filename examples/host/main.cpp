// A window with Tavok's list: a few lines added, sorted, found and shown. It prints
// what the calls gave and says whether that is what the list's documentation promises.
#include <moveslist/usercontrol1.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    UserControl1 list;
    list.resize(300, 200);
    list.DropDownHeight(2000);
    list.Mode(0);
    for (QString fruit : {"pear", "Apple", "fig", "apple"})
        list.Additem(fruit);
    list.SortAscending();
    QStringList sorted;
    for (int it = 0; it < list.ListCount().toNumber(); ++it)
        sorted << list.List(it).toText();
    const AnyValue fig = list.Find(0, 0, QStringLiteral("f?g"));
    const AnyValue apples = list.Find(1, 0, QStringLiteral("APPLE"));
    list.ShowItem(fig);
    list.show();
    app.processEvents();

    std::printf("sorted: %s\nfig: item %g\nlast apple: item %g\nchosen: %s\n",
                qPrintable(sorted.join(QLatin1Char(' '))), fig.toNumber(), apples.toNumber(),
                qPrintable(list.text().toText()));
    // Sorting compares codes, so capitals come first; Find counts items from 1, and
    // without casen it takes no account of case.
    const bool promised = sorted == QStringList{"Apple", "apple", "fig", "pear"} &&
                          fig == AnyValue(3) && apples == AnyValue(2) &&
                          list.text() == AnyValue("fig");
    std::puts(promised ? "as documented" : "NOT as documented");
    return promised ? 0 : 1;
}
