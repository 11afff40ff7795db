#include <QApplication>
#include <QLabel>

#include <cstdio>
#include <cstdlib>

namespace {

// Without a display Qt would abort with a long message; one clear line is kinder.
bool HasDisplay()
{
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    if (platform && *platform)
        return true;
    const char* x11 = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    return (x11 && *x11) || (wayland && *wayland);
}

} // namespace

int main(int argc, char* argv[])
{
    if (!HasDisplay()) {
        std::fprintf(stderr, "tavok: no display found (DISPLAY is not set); "
                             "run it in a desktop session, or under xvfb-run\n");
        return 1;
    }
    QApplication app(argc, argv);
    QLabel board(QStringLiteral("TAVOK"));
    board.setWindowTitle(QStringLiteral("TAVOK"));
    board.setAlignment(Qt::AlignCenter);
    board.resize(530, 464);
    board.show();
    return app.exec();
}
