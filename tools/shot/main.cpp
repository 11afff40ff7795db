#include "tools/trace/trace.h"
#include "window/form1.h"

#include <QApplication>
#include <QPixmap>

#include <iostream>
#include <sstream>
#include <string>

// tavok-shot: plays a trace script on the real window and saves a picture of it at
// each line "snap FILE.png". Runs on whatever display it is given (Xvfb for docs).
int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Form1 form;
    form.show();
    QApplication::setActiveWindow(&form);

    std::ostringstream discard;
    Trace trace(form, discard);
    for (std::string line; std::getline(std::cin, line);) {
        const QString text = QString::fromStdString(line).trimmed();
        if (text.startsWith(QLatin1String("snap "))) {
            QApplication::processEvents();
            const QString file = text.mid(5).trimmed();
            if (!form.grab().save(file))
                std::cerr << "tavok-shot: cannot write " << file.toStdString() << '\n';
        } else if (!text.isEmpty() && !trace.perform(text)) {
            std::cerr << "tavok-shot: unknown action: " << line << '\n';
        }
    }
    return 0;
}
