#include "controls/quillet.h"
#include "window/form1.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstring>

// Starts a computer's move that pauses, then ends the program from inside the pause:
// by closing the window ("close") or with the Exit button ("quit"). Reaching the end
// of main means the pause held the program up.
int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const bool byButton = argc > 1 && std::strcmp(argv[1], "quit") == 0;
    Form1 form;
    form.show();
    QTest::mouseClick(form.findChild<Quillet*>(QStringLiteral("Pausex")), Qt::LeftButton);
    QTimer::singleShot(50, &form, [&] {
        if (form.game().state().WaitingForClick == 0) {
            std::puts("no pause");
            std::exit(4);
        }
        if (byButton)
            QTest::mouseClick(form.findChild<Quillet*>(QStringLiteral("Quitx")), Qt::LeftButton);
        else
            form.close();
    });
    QTest::mouseClick(form.findChild<Quillet*>(QStringLiteral("Pots0")), Qt::LeftButton);
    std::puts("the pause outlived the window");
    return 3;
}
