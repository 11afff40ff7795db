#include "window/form1.h"

#include "controls/marlet.h"
#include "controls/quillet.h"
#include "helpabout/aboutform.h"
#include "helpabout/helpform.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QSlider>

#include <cstdio>
#include <cstdlib>

void Form1::StartBeads_Change()
{
    // The count cannot change under a computer's move that is waiting for a click.
    if (game_.Busy()) {
        const QSignalBlocker quiet(StartBeads);
        StartBeads->setValue(game_.StartBeadCount);
        return;
    }
    const int value = StartBeads->value();
    Label2->setText(QStringLiteral("Start with %1 beads").arg(value));
    game_.StartBeadCount = static_cast<int16_t>(value);
    game_.LayOutBoard(game_.StartBeadCount);
    for (int16_t s = 0; s < SlotCount; ++s)
        RefreshPot(s);
}

// The caption names the mode in force, not what a click would do.
void Form1::Pausex_Click()
{
    if (game_.PauseAtMoves) {
        game_.PauseAtMoves = false;
        Pausex->caption(QStringLiteral("Do not pause"));
        DescribeButton(Pausex);
    } else {
        game_.PauseAtMoves = true;
        Pausex->caption(QStringLiteral("Pause at moves"));
        DescribeButton(Pausex);
    }
}

void Form1::Scorex_MouseUp(int16_t, int16_t, float, float)
{
    Score1->ScoreShow(true);
    Score1->Visible(true);
    Score1->ZOrder(0);
}

void Form1::Helpx_Click()
{
    QString path = QCoreApplication::applicationDirPath();
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    path += QStringLiteral("tavok.htm");
    if (!helpForm_)
        helpForm_ = new HelpForm();
    helpForm_->Tag(path);
    helpForm_->show();
    helpForm_->raise();
    helpForm_->activateWindow();
}

void Form1::Aboutx_Click()
{
    AboutForm::showModal(this);
}

void Form1::Quitx_Click()
{
    close();
}

void Form1::closeEvent(QCloseEvent* event)
{
    event->accept();
    Form_Unload();
}

// Nothing is asked and nothing is saved: the other windows go first, the hidden help
// window too, then the program ends, also from inside a pause.
void Form1::Form_Unload()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != this && window->isWindow())
            window->close();
    if (helpForm_)
        delete helpForm_;
    hide();
    if (game_.WaitingForClick != 0) {
        std::fflush(nullptr);
        std::_Exit(0);
    }
    QCoreApplication::quit();
}
