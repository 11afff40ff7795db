#include "tools/moveslist_trace/listtrace.h"

#include <QApplication>

#include <iostream>
#include <string>

// moveslist-trace: reads host calls and user events from standard input, one a line,
// and prints what the list does with each.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    bool allKnown = true;
    {
        ListTrace trace(std::cout);
        for (std::string line; std::getline(std::cin, line);)
            allKnown = trace.perform(QString::fromStdString(line)) && allKnown;
    }
    return allKnown ? 0 : 2;
}
