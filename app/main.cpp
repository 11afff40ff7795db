#include "controls/marlet.h"
#include "window/form1.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int NoDisplay = 3;

// Without a display Qt would abort with a long message; one clear line is kinder.
bool hasDisplay()
{
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        const char* value = std::getenv(name);
        if (value && *value)
            return true;
    }
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    if (!hasDisplay()) {
        std::fprintf(stderr, "tavok: no display found (DISPLAY is not set); "
                             "start it from a desktop session, or under xvfb-run\n");
        return NoDisplay;
    }
    QApplication app(argc, argv);
    // The score board's record lasts from one run to the next.
    Marlets::Marlet::keepRecords(true);
    Form1 form;
    form.show();
    return app.exec();
}
