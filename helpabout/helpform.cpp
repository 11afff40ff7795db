#include "helpabout/helpform.h"

#include "common/twips.h"
#include "helpabout/boardpicture.h"
#include "helpabout/webbrowser.h"

#include <QEvent>
#include <QPushButton>
#include <QScreen>

namespace {

constexpr int ClientWidth = 7185;
constexpr int ClientHeight = 5625;
constexpr QRect Command1Place{60, 30, 1095, 375};
constexpr QRect Command2Place{1155, 30, 1095, 375};
constexpr QRect Command3Place{2250, 30, 1095, 375};
constexpr QRect BrowserPlace{30, 420, 7110, 5460};

// What the frame takes round the browser: its right and lower edges follow the
// window's outer edges at these distances.
constexpr double FrameWidthAllowance = 120;
constexpr double FrameHeightAllowance = 480;

QFont buttonFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8.25);
    font.setBold(false);
    return font;
}

} // namespace

// A window of the dialog kind, never modal: given the game's window as parent, the
// window manager keeps it above that window (a plain window would get no owner), and
// the game goes on beside it. The frame keeps its buttons and stays sizable.
HelpForm::HelpForm(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint)
{
    // Closing from the frame unloads the window; the next "Help" builds a new one.
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Tavok Help"));
    setWindowIcon(QIcon(miniatureBoard()));
    resize(Twips::toPixels(ClientWidth), Twips::toPixels(ClientHeight));

    Command1 = addButton(QStringLiteral("Back"), Twips::toPixels(Command1Place));
    Command2 = addButton(QStringLiteral("Forward"), Twips::toPixels(Command2Place));
    Command3 = addButton(QStringLiteral("Exit"), Twips::toPixels(Command3Place));
    WebBrowser1 = new WebBrowser(this);
    WebBrowser1->setGeometry(Twips::toPixels(BrowserPlace));

    setTabOrder(WebBrowser1, Command1);
    setTabOrder(Command1, Command2);
    setTabOrder(Command2, Command3);
    WebBrowser1->setFocus();

    connect(Command1, &QPushButton::clicked, this, &HelpForm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &HelpForm::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &HelpForm::Command3_Click);
    centreOnScreen();
}

void HelpForm::Tag(const QString& path)
{
    m_tag = path;
}

QString HelpForm::Tag() const
{
    return m_tag;
}

// Every return to this window shows the page afresh, from its top.
void HelpForm::Form_Activate()
{
    WebBrowser1->Navigate(m_tag);
}

// The browser's lower and right edges follow the frame; a window made too small
// for it leaves the browser as it was.
void HelpForm::Form_Resize()
{
    const double perPixel = Twips::perPixel();
    const QSize outer = frameGeometry().size();
    const double width = outer.width() * perPixel - FrameWidthAllowance;
    if (width >= 0)
        WebBrowser1->Width(width);
    const double height = outer.height() * perPixel - FrameHeightAllowance - WebBrowser1->Top();
    if (height >= 0)
        WebBrowser1->Height(height);
}

// Back and Forward act only after a jump inside the page: at the plain page they
// would leave it for whatever was shown before.
void HelpForm::Command1_Click()
{
    if (WebBrowser1->LocationURL().contains(QLatin1Char('#')))
        WebBrowser1->GoBack();
}

void HelpForm::Command2_Click()
{
    if (WebBrowser1->LocationURL().contains(QLatin1Char('#')))
        WebBrowser1->GoForward();
}

void HelpForm::Command3_Click()
{
    hide();
}

void HelpForm::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
}

// A window manager may keep the focus where it was; the page is there all the same.
void HelpForm::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Form_Activate();
}

void HelpForm::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Form_Resize();
}

// The frame's true size is known only once the window manager has put it round the
// window, which moves the window without resizing it.
void HelpForm::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    Form_Resize();
}

QPushButton* HelpForm::addButton(const QString& text, const QRect& place)
{
    auto* button = new QPushButton(text, this);
    button->setFont(buttonFont());
    button->setGeometry(place);
    return button;
}

void HelpForm::centreOnScreen()
{
    const QScreen* screen = this->screen();
    if (!screen)
        return;
    QRect frame = geometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
}
