#include "controls/marlet.h"
#include "window/form1.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <optional>

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

// The names the desktop knows the game by: the window's class and the Wayland app id
// match the desktop entry. No display name: Qt would add it to every window's caption.
void nameTheGame()
{
    QCoreApplication::setApplicationName(QStringLiteral("tavok"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVOK_VERSION));
    QCoreApplication::setOrganizationName(QStringLiteral("Tavok"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("tavok.example"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tavok.Tavok"));
}

// --help and --version answer on standard output, with or without a display; any
// other argument is Qt's or is ignored, and the game opens as always.
std::optional<int> answerCommandLine(int argc, char* argv[])
{
    if (argc < 2)
        return std::nullopt;
    const QCoreApplication core(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tavok: a mancala board game against the computer.\n"
                       "The score board's record is kept in ~/.config/Tavok/Tavok.conf."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and exit."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version and exit."));
    parser.addOption(help);
    parser.addOption(version);
    parser.parse(QCoreApplication::arguments());
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        std::printf("tavok %s\n", TAVOK_VERSION);
        return 0;
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char* argv[])
{
    nameTheGame();
    if (const std::optional<int> answered = answerCommandLine(argc, argv))
        return *answered;
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
