#include "window/form1.h"

#include "controls/marlet.h"
#include "controls/quillet.h"
#include "helpabout/aboutform.h"
#include "helpabout/helpform.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

void Form1::Scorex_MouseUp(int16_t, int16_t, float, float)
{
    Score1->ScoreShow(true);
    Score1->Visible(true);
    Score1->zOrder(0);
}

// The page lies beside the program in the build folder; an installed game keeps it
// in its data folder, found from the program's folder wherever the game was installed,
// or where the build put it. Where it is nowhere, the help window names the place an
// installed game would have it.
static QString helpPagePath()
{
    const QString name = QStringLiteral("tavok.htm");
    const QDir program(QCoreApplication::applicationDirPath());
    const QString places[] = {
        program.filePath(name),
        program.filePath(QStringLiteral(TAVOK_DATA_FROM_PROGRAM "/") + name),
        QDir(QStringLiteral(TAVOK_DATA_DIR)).filePath(name),
    };
    for (const QString& place : places)
        if (QFileInfo::exists(place))
            return QDir::cleanPath(place);
    return QDir::cleanPath(places[1]);
}

void Form1::Helpx_Click()
{
    // A window of its own that stays above the game's, which goes on beside it.
    if (!m_helpForm)
        m_helpForm = new HelpForm(this);
    m_helpForm->Tag(helpPagePath());
    m_helpForm->show();
    m_helpForm->raise();
    m_helpForm->activateWindow();
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
    if (m_helpForm)
        delete m_helpForm;
    hide();
    if (m_game.state().WaitingForClick != 0) {
        std::fflush(nullptr);
        std::_Exit(0);
    }
    QCoreApplication::quit();
}
