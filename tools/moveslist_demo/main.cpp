#include "tools/moveslist_demo/demowindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>

#include <iostream>

// moveslist-demo: the list control on its own. With --shot FILE.png it saves a picture
// of the window instead of waiting for the user (run it with QT_QPA_PLATFORM=offscreen
// where there is no display); --open N opens the drop-down on item N first.
int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOption({QStringLiteral("shot"), QStringLiteral("Save a picture and quit."),
                       QStringLiteral("file")});
    options.addOption({QStringLiteral("open"), QStringLiteral("Open the drop-down on an item."),
                       QStringLiteral("item")});
    options.process(app);

    DemoWindow window;
    window.show();
    window.activateWindow();
    if (options.isSet(QStringLiteral("open")))
        window.showInDropDown(options.value(QStringLiteral("open")).toInt());
    if (!options.isSet(QStringLiteral("shot")))
        return QApplication::exec();

    QApplication::processEvents();
    const QString file = options.value(QStringLiteral("shot"));
    if (!window.grab().save(file)) {
        std::cerr << "moveslist-demo: cannot write " << file.toStdString() << '\n';
        return 1;
    }
    return 0;
}
