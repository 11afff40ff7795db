#include "helpabout/aboutform.h"

#include "common/twips.h"
#include "helpabout/boardpicture.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTextEdit>

namespace {

constexpr QRect ClientPlace{2790, 2925, 4755, 2640};
constexpr QRect AboutOkPlace{1740, 1860, 510, 375};
constexpr QRect Picture1Place{4185, 30, 510, 480};
constexpr QRect Label1Place{90, 2280, 4575, 315};
constexpr QRect Text1Place{60, 30, 4095, 1755};

// Three empty lines set the name and the address low in the box.
const QString AboutText = QStringLiteral("\n\n\nTAVOK by Dravo\nemail dravo@tavok.example");

QFont formFont()
{
    QFont font(QStringLiteral("MS Sans Serif"));
    font.setPointSizeF(8.25);
    font.setBold(true);
    return font;
}

} // namespace

AboutForm::AboutForm(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint)
{
    setWindowTitle(QStringLiteral("About TAVOK"));
    setWindowIcon(QIcon(miniatureBoard()));
    setFont(formFont());
    const QRect client = Twips::toPixels(ClientPlace);
    setGeometry(client);
    setFixedSize(client.size());

    AboutOk = new QPushButton(QStringLiteral("OK"), this);
    AboutOk->setGeometry(Twips::toPixels(AboutOkPlace));
    AboutOk->setDefault(true);

    Picture1 = new QLabel(this);
    Picture1->setGeometry(Twips::toPixels(Picture1Place));
    Picture1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Picture1->setPixmap(miniatureBoard());

    Label1 = new QLabel(QStringLiteral("Version 1.0"), this);
    Label1->setGeometry(Twips::toPixels(Label1Place));
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setAutoFillBackground(true);
    QPalette versionColours = Label1->palette();
    versionColours.setColor(QPalette::Window, Qt::black);
    versionColours.setColor(QPalette::WindowText, Qt::white);
    Label1->setPalette(versionColours);

    Text1 = new QTextEdit(this);
    Text1->setGeometry(Twips::toPixels(Text1Place));
    Text1->setReadOnly(true);
    Text1->setFrameShape(QFrame::NoFrame);
    Text1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text1->document()->setDefaultTextOption(QTextOption(Qt::AlignHCenter));
    Text1->setPlainText(AboutText);
    QPalette buttonFace = Text1->palette();
    buttonFace.setColor(QPalette::Base, buttonFace.color(QPalette::Button));
    Text1->setPalette(buttonFace);

    // The picture, the version and the text are not the window's surface: a press on
    // them must not reach Form_MouseDown.
    for (QWidget* child : {static_cast<QWidget*>(Picture1), static_cast<QWidget*>(Label1),
                           static_cast<QWidget*>(Text1), Text1->viewport()})
        child->setAttribute(Qt::WA_NoMousePropagation);
    Text1->viewport()->installEventFilter(this);

    setTabOrder(AboutOk, Text1);
    AboutOk->setFocus();
    connect(AboutOk, &QPushButton::clicked, this, &AboutForm::AboutOk_Click);
}

void AboutForm::showModal(QWidget* parent)
{
    AboutForm about(parent);
    about.exec();
}

void AboutForm::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    Form_MouseDown();
}

bool AboutForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Text1->viewport() && event->type() == QEvent::MouseButtonRelease) {
        const auto* release = static_cast<QMouseEvent*>(event);
        if (Text1->viewport()->rect().contains(release->position().toPoint()))
            Text1_MouseUp();
    }
    return QDialog::eventFilter(watched, event);
}

void AboutForm::AboutOk_Click()
{
    unload();
}

void AboutForm::Form_MouseDown()
{
    unload();
}

void AboutForm::Text1_MouseUp()
{
    unload();
}

// Closing from the frame ends here too, through QDialog's own close handling.
void AboutForm::unload()
{
    reject();
}
