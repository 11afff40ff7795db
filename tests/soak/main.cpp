// tavok-soak GAMES: whole games on the real window, offscreen, from its event loop.
// Every move is a forced turn, which also plays the computer's reply, each step of it
// paused and clicked through; each user action is an event of its own, so the window
// paints and tidies up in between as it does for a player. The bead count goes round
// the slider's range. After every move: the board, the faces, the enabled controls and
// the bar; at every restart: the log's clearing; over a long run: the memory.
#include "controls/quillet.h"
#include "moveslist/usercontrol1.h"
#include "window/form1.h"

#include <QApplication>
#include <QFile>
#include <QGroupBox>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <numeric>

namespace {

// Warm-up (fonts, caches, the log's storage) is over by then; memory may grow by less
// than 1 MB after that.
constexpr int WarmGames = 100;
constexpr long MemoryBoundKb = 1024;

long residentKb()
{
    QFile status("/proc/self/status");
    const QString text = status.open(QIODevice::ReadOnly) ? status.readAll() : QByteArray();
    return text.section("VmRSS:", 1).simplified().section(' ', 0, 0).toLong();
}

struct Soak {
    template <typename T> T* child(const QString& name) const { return form.findChild<T*>(name); }

    explicit Soak(int gameCount) : games(gameCount)
    {
        form.show();
        QApplication::setActiveWindow(&form);
        // A pause shuts the commands away and offers only the bar.
        form.setPauseHook([this] {
            expect(!frame->isEnabled() && mess->isEnabled() &&
                       mess->caption().startsWith("Computer move> "),
                   "the pause does not shut the commands and offer the bar");
            ++pauses;
            QTest::mouseClick(mess, Qt::LeftButton);
        });
        QTest::mouseClick(child<Quillet>("Pausex"), Qt::LeftButton);
        QTimer::singleShot(0, &form, [this] { step(); });
    }

    // A new game from the bar, or one more forced turn; then the next step, or the end.
    void step()
    {
        if (turns++ > 0) {
            QTest::mouseClick(child<Quillet>("TakeComp"), Qt::LeftButton);
            ++moves;
        } else if (game > 0) {
            QTest::mouseClick(mess, Qt::LeftButton);
            expect(child<UserControl1>("MovesList")->state().ItemCount == 0,
                   "the restart left lines in the log");
        }
        if (turns == 1) {
            count = slider->minimum() + game % (slider->maximum() - slider->minimum() + 1);
            slider->setValue(count);
        }
        check();
        if (form.game().state().GameFinished) {
            turns = 0;
            if (++game == std::min(WarmGames, games))
                warmRss = residentKb();
        }
        if (game < games)
            return QTimer::singleShot(0, &form, [this] { step(); });
        // The bound only means something over a long run.
        const long growth = residentKb() - warmRss;
        const bool bounded = games < 1000 || growth < MemoryBoundKb;
        std::printf("games %d, moves %lld (forced turns, each with the computer's reply), "
                    "pauses %lld\nVmRSS after %d games %ld kB, then grew %ld kB%s\n",
                    game, moves, pauses, std::min(WarmGames, games), warmRss, growth,
                    bounded ? "" : ": 1 MB or more, too much");
        std::fflush(stdout);
        QCoreApplication::exit(bounded ? 0 : 1);
    }

    // Beads only move from slot to slot, a new game lays them out anew, and the faces
    // show the board. The game ends when a row is spent; until then the human's pots are
    // open where they hold beads, the computer's only after the first restart, the banks
    // never. A forced turn takes no undo snapshot and does not lock the bead count.
    void check()
    {
        const Board& b = form.game().state().Beads;
        const bool over = std::count(&b[FirstHumanPot], &b[HumanBank], 0) == PotsPerRow ||
                          std::count(&b[FirstComputerPot], &b[ComputerBank], 0) == PotsPerRow;
        // Every turn banks a bead or carries beads nearer a bank: no game lasts that long.
        expect(over == form.game().state().GameFinished && turns < 100000 &&
                   std::accumulate(b.begin(), b.end(), 0) == 12 * count,
               "the game's end and the rows disagree, or beads came or went");
        for (int s = 0; s < SlotCount; ++s) {
            const Quillet* pot = child<Quillet>(QStringLiteral("Pots%1").arg(s));
            const bool open = !over && (isHumanPot(s) ? b[s] > 0 : isComputerPot(s) && game > 0);
            expect(b[s] >= 0 && pot->Tag().toInt() == b[s] && pot->isEnabled() == open &&
                       (turns > 1 || b[s] == (isBank(s) ? 0 : count)),
                   "a slot is negative, laid out, shown or enabled wrongly");
        }
        const QString move = turns == 1 ? "YOUR MOVE NOW" : "AGAIN YOUR MOVE NOW";
        expect(mess->isEnabled() == over && mess->isVisible() &&
                   (over ? mess->caption().endsWith(" - click here to restart")
                         : mess->caption() == move),
               "the bar does not hand the move back or offer the restart");
        expect(frame->isEnabled() && !child<Quillet>("Undox")->isEnabled() && slider->isEnabled(),
               "the commands stay shut, undo is offered or the slider is locked");
    }

    void expect(bool holds, const char* what) const
    {
        if (holds)
            return;
        std::printf("soak: game %d, move %d: %s\n", game + 1, turns - 1, what);
        std::fflush(stdout);
        std::_Exit(1);
    }

    Form1 form;
    const int games;
    Quillet* mess = child<Quillet>("Mess");
    QGroupBox* frame = child<QGroupBox>("CommandFrame");
    QSlider* slider = child<QSlider>("StartBeads");
    int game = 0;
    int count = 0;
    int turns = 0;
    long long moves = 0;
    long long pauses = 0;
    long warmRss = 0;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const int games = argc == 2 ? std::atoi(argv[1]) : 0;
    if (games < 1) {
        std::fprintf(stderr, "usage: tavok-soak GAMES\n");
        return 2;
    }
    Soak soak(games);
    return app.exec();
}
