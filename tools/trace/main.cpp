#include "tools/trace/trace.h"
#include "window/form1.h"

#include <QApplication>

#include <iostream>
#include <string>

// tavok-trace: reads actions from standard input and prints the window after each.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Form1 form;
    form.show();
    QApplication::setActiveWindow(&form);

    Trace trace(form, std::cout);
    trace.printStart();
    bool allKnown = true;
    for (std::string line; std::getline(std::cin, line);)
        if (!QString::fromStdString(line).trimmed().isEmpty())
            allKnown = trace.perform(QString::fromStdString(line)) && allKnown;
    return allKnown ? 0 : 2;
}
