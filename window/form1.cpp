#include "window/form1.h"
#include "window/formaccessible.h"

#include "assets/pictures.h"
#include "common/twips.h"
#include "controls/marlet.h"
#include "controls/quillet.h"
#include "moveslist/listerror.h"
#include "moveslist/usercontrol1.h"
#include "window/moveslistblock.h"

#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QSlider>

namespace {

// The slider for the beads per pot. Locked for the rest of a game, it is hatched over,
// so that nobody reaches for it in vain.
class BeadSlider : public QSlider {
public:
    explicit BeadSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QSlider::paintEvent(event);
        if (isEnabled())
            return;
        QPainter painter(this);
        QColor veil = palette().color(QPalette::Window);
        veil.setAlpha(170);
        painter.fillRect(rect(), veil);
        painter.fillRect(rect(), QBrush(palette().color(QPalette::Dark), Qt::BDiagPattern));
    }
};

QString fromStd(const std::string& s)
{
    return QString::fromStdString(s);
}

QFont arialFont(double points, bool bold)
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

QFont sansSerifFont(bool bold)
{
    QFont font(QStringLiteral("MS Sans Serif"));
    font.setPointSizeF(8.25);
    font.setBold(bold);
    return font;
}

int px(int twips)
{
    return Twips::toPixels(static_cast<float>(twips));
}

QRect pxRect(const Layout::Rect& r)
{
    return Twips::toPixels(static_cast<float>(r.left), static_cast<float>(r.top),
                           static_cast<float>(r.width), static_cast<float>(r.height));
}

} // namespace

// The game's fonts come from another desktop; these look alike and ship with Debian.
static void installFontSubstitutes()
{
    const QStringList sans{QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"),
                           QStringLiteral("DejaVu Sans")};
    QFont::insertSubstitutions(QStringLiteral("MS Sans Serif"), sans);
    QFont::insertSubstitutions(QStringLiteral("Arial"), sans);
}

Form1::Form1(QWidget* parent) : QWidget(parent)
{
    static const bool readable = (QAccessible::installFactory(&FormAccessible::create), true);
    Q_UNUSED(readable);
    installFontSubstitutes();
    setWindowTitle(QStringLiteral("TAVOK"));
    setWindowIcon(QIcon(Pictures::Board));
    setFont(sansSerifFont(true));
    setFixedSize(px(Layout::ClientWidth), px(Layout::ClientHeight));
    // Mouse moves over the bare surface end a hover look.
    setMouseTracking(true);

    createControls();
    connectHandlers();
    orderTabs();
    qApp->installEventFilter(this);
    Form_Load();

    if (QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

Form1::~Form1()
{
    qApp->removeEventFilter(this);
}

// A plain button: Arial 8.25, window text on button face, raised edges.
static void makePlainButton(Quillet* button, const QString& caption)
{
    const QPalette palette = button->palette();
    button->setFont(arialFont(8.25, false));
    button->forecolor(palette.color(QPalette::WindowText));
    button->backcolor(palette.color(QPalette::Button));
    button->bordertop(palette.color(QPalette::Light));
    button->borderleft(palette.color(QPalette::Light));
    button->borderright(palette.color(QPalette::Dark));
    button->borderbottom(palette.color(QPalette::Dark));
    button->caption(caption);
}

// Edges in the face colour: the control shows only its picture and caption.
static void makeFlat(Quillet* q)
{
    const QColor face = q->palette().color(QPalette::Button);
    q->backcolor(face);
    q->bordertop(face);
    q->borderleft(face);
    q->borderright(face);
    q->borderbottom(face);
}

static QLabel* makeLabel(QWidget* parent, const char* name, const QString& text)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    // A label has mouse events of its own: a move over it is no move over the window.
    label->setAttribute(Qt::WA_NoMousePropagation);
    return label;
}

static void setTextColors(QLabel* label, const QColor& text, const QColor& back)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, text);
    if (back.isValid()) {
        palette.setColor(QPalette::Window, back);
        label->setAutoFillBackground(true);
    }
    label->setPalette(palette);
}

void Form1::createControls()
{
    createCommandPanel();

    Score1 = new Marlets::Marlet(this);
    Score1->setObjectName(QStringLiteral("Score1"));
    Score1->setGeometry(pxRect(Layout::Score1));
    Score1->Visible(false);

    // The log keeps the platform's plain font, not the window's bold one: it is made
    // apart and only then put on the window.
    MovesList = UserControl1::fromBlock(movesListBlock(), nullptr);
    MovesList->setFont(sansSerifFont(false));
    MovesList->setParent(this);
    MovesList->setObjectName(QStringLiteral("MovesList"));
    MovesList->setGeometry(pxRect(Layout::MovesList));
    voiceMovesList();

    Hand = new Quillet(this);
    Hand->setObjectName(QStringLiteral("Hand"));
    Hand->place(Layout::Hand.left, Layout::Hand.top, Layout::Hand.width, Layout::Hand.height);
    makeFlat(Hand);
    Hand->picture(Pictures::load(Pictures::Hand));
    Hand->Visible(false);
    Hand->setAccessibleName(QStringLiteral("The hint points here"));

    StartBeads = new BeadSlider(this);
    StartBeads->setObjectName(QStringLiteral("StartBeads"));
    StartBeads->setGeometry(pxRect(Layout::StartBeads));
    StartBeads->setRange(2, 99);
    StartBeads->setSingleStep(1);
    StartBeads->setPageStep(10);
    StartBeads->setValue(99);
    StartBeads->setAttribute(Qt::WA_NoMousePropagation);
    StartBeads->setAccessibleName(QStringLiteral("Beads per pot"));

    Text1 = new QLineEdit(QStringLiteral("Text1"), this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setGeometry(pxRect(Layout::Text1));
    Text1->hide();

    Mess = new Quillet(this);
    Mess->setObjectName(QStringLiteral("Mess"));
    Mess->place(Layout::Mess.left, Layout::Mess.top, Layout::Mess.width, Layout::Mess.height);
    makePlainButton(Mess, QStringLiteral("Command"));
    Mess->setFont(sansSerifFont(false));
    Mess->enabled(false);
    // The bar says "YOUR MOVE NOW" while it takes no clicks: its words stay black.
    Mess->setReadableWhenOff(true);
    Mess->setAccess(Quillet::Access::Bar);
    Mess->setAccessibleDescription(QStringLiteral("The game's messages"));

    createBoard();

    Label2 = makeLabel(this, "Label2", QStringLiteral("Label2"));
    Label2->setGeometry(pxRect(Layout::Label2));
    Label2->setFont(arialFont(8.25, true));
    setTextColors(Label2, Qt::white, Qt::black);

    // Stacking: the hand over the letters, the score board over the log.
    Hand->raise();
    Score1->raise();
}

void Form1::createBoard()
{
    // The hidden pictures that hold the raised discs the pots take their faces from.
    Image4 = makeLabel(this, "Image4", {});
    Image4->setGeometry(pxRect(Layout::Image4));
    Image4->setPixmap(Pictures::load(Pictures::DiscGreenRaised));
    Image4->hide();
    Image3 = makeLabel(this, "Image3", {});
    Image3->setGeometry(pxRect(Layout::Image3));
    Image3->setPixmap(Pictures::load(Pictures::DiscRedRaised));
    Image3->hide();
    const QPixmap greenRaised = Image4->pixmap();
    const QPixmap greenSunken = Pictures::load(Pictures::DiscGreenSunken);
    const QPixmap redRaised = Image3->pixmap();
    const QPixmap redSunken = Pictures::load(Pictures::DiscRedSunken);
    for (int s = 0; s < SlotCount; ++s) {
        auto* pot = new Quillet(this);
        pot->setObjectName(QStringLiteral("Pots%1").arg(s));
        pot->place(Layout::PotLeft[s], Layout::PotTop[s], Layout::PotSize, Layout::PotSize);
        makeFlat(pot);
        pot->forecolor(Qt::white);
        pot->setFont(arialFont(10.5, true));
        pot->caption(QStringLiteral("999"));
        if (s == HumanBank)
            pot->picture(greenSunken);
        else if (s == ComputerBank)
            pot->picture(redSunken);
        else
            pot->picture(isHumanPot(s) ? greenRaised : redRaised);
        // The computer's pots are stored disabled: they take the mouse only after a restart.
        pot->enabled(!isComputerPot(s));
        // A screen reader presses the human's pots to play them, and reads the others.
        pot->setAccess(isHumanPot(s) ? Quillet::Access::Button : Quillet::Access::Label);
        Pots[s] = pot;
    }

    Label3 = makeLabel(this, "Label3", QStringLiteral("COMPUTER"));
    Label3->setGeometry(pxRect(Layout::Label3));
    Label3->setFont(arialFont(8.25, true));
    setTextColors(Label3, QColor(192, 0, 0), {});
    Label3->setToolTip(QStringLiteral("Computer moves beades from RED pots, right to left"));

    Label1 = makeLabel(this, "Label1", QStringLiteral("HUMAN"));
    Label1->setGeometry(pxRect(Layout::Label1));
    Label1->setFont(arialFont(8.25, true));
    setTextColors(Label1, QColor(0, 192, 0), {});
    Label1->setToolTip(QStringLiteral("Human moves beades from GREEN pots, left to right"));

    const QColor totalBack[3] = {{}, QColor(255, 0, 0), QColor(0, 192, 0)};
    const QString totalTip[3] = {{},
                                 QStringLiteral("Total Beads accumulated by the Computer"),
                                 QStringLiteral("Total Beads accumulated by the Human player")};
    for (int i = 1; i <= 2; ++i) {
        QLabel* total = makeLabel(this, i == 1 ? "TotalB1" : "TotalB2", QStringLiteral("TOTAL"));
        total->setGeometry(pxRect(Layout::TotalB[i]));
        total->setFont(arialFont(14.25, true));
        total->setFrameShape(QFrame::Box);
        total->setLineWidth(1);
        setTextColors(total, Qt::black, totalBack[i]);
        total->setToolTip(totalTip[i]);
        TotalB[i] = total;
    }

    for (int i = 0; i < PotsPerRow; ++i) {
        const char* names[] = {"PotName0", "PotName1", "PotName2",
                               "PotName3", "PotName4", "PotName5"};
        QLabel* letter = makeLabel(this, names[i], QString(QChar('A' + i)));
        letter->setGeometry(px(Layout::PotNameLeft[i]), px(Layout::PotNameTop),
                            px(Layout::PotNameWidth), px(Layout::PotNameHeight));
        letter->setFont(arialFont(14.25, true));
        setTextColors(letter, Qt::black, {});
        PotName[i] = letter;
    }

    Image1 = makeLabel(this, "Image1", {});
    Image1->setGeometry(pxRect(Layout::Image1));
    Image1->setScaledContents(true);
    Image1->setPixmap(Pictures::load(Pictures::ArrowRed));
    Image1->setAccessibleName(QStringLiteral("The sowing goes on past the computer's bank"));
    Image2 = makeLabel(this, "Image2", {});
    Image2->setGeometry(pxRect(Layout::Image2));
    Image2->setScaledContents(true);
    Image2->setPixmap(Pictures::load(Pictures::ArrowGreen));
    Image2->setAccessibleName(QStringLiteral("The sowing goes on past your bank"));
}

static QGroupBox* makeFrame(QWidget* parent, const char* name)
{
    auto* frame = new QGroupBox(parent);
    frame->setObjectName(QString::fromLatin1(name));
    frame->setAttribute(Qt::WA_NoMousePropagation);
    return frame;
}

void Form1::createCommandPanel()
{
    Frame2 = makeFrame(this, "Frame2");
    Frame2->setAccessibleName(QStringLiteral("Program"));
    Frame2->setGeometry(pxRect(Layout::Frame2));
    CommandFrame = makeFrame(this, "CommandFrame");
    CommandFrame->setAccessibleName(QStringLiteral("Game"));
    CommandFrame->setGeometry(pxRect(Layout::CommandFrame));

    auto button = [this](QWidget* frame, const char* name, const Layout::Rect& r,
                         const QString& caption, const QString& tip) {
        auto* q = new Quillet(frame);
        q->setObjectName(QString::fromLatin1(name));
        q->place(r.left, r.top, r.width, r.height);
        makePlainButton(q, caption);
        q->setAccess(Quillet::Access::Button);
        if (!tip.isEmpty())
            q->setToolTip(tip);
        describeButton(q);
        return q;
    };
    Quitx = button(Frame2, "Quitx", Layout::Quitx, QStringLiteral("Exit"), {});
    Helpx = button(Frame2, "Helpx", Layout::Helpx, QStringLiteral("Help"), {});
    Aboutx = button(Frame2, "Aboutx", Layout::Aboutx, QStringLiteral("About"), {});
    Scorex = button(Frame2, "Scorex", Layout::Scorex, QStringLiteral("Show score"), {});
    Undox = button(CommandFrame, "Undox", Layout::Undox, QStringLiteral("Undo last move"),
                   QStringLiteral("Undo last move"));
    Pausex = button(CommandFrame, "Pausex", Layout::Pausex, QStringLiteral("Do not pause"),
                    QStringLiteral("Pause at Computer move.  Click OK to continue"));
    TakeComp =
        button(CommandFrame, "TakeComp", Layout::TakeComp, QStringLiteral("Force Computer turn"),
               QStringLiteral("Let computer play Human turn"));
    GiveHint = button(CommandFrame, "GiveHint", Layout::GiveHint, QStringLiteral("Give hint"),
                      QStringLiteral("Click down to get a hint for the next move"));
}

void Form1::connectHandlers()
{
    for (int16_t s = 0; s < SlotCount; ++s) {
        connect(Pots[s], &Quillet::MouseMove, this,
                [this, s](int16_t b, int16_t sh, float x, float y) {
                    m_game.Pots_MouseMove(s, b, sh, x, y);
                });
        connect(Pots[s], &Quillet::MouseDown, this,
                [this, s](int16_t b, int16_t sh, float x, float y) {
                    m_game.Pots_MouseDown(s, b, sh, x, y);
                });
        connect(Pots[s], &Quillet::MouseUp, this,
                [this, s](int16_t b, int16_t sh, float x, float y) {
                    m_game.Pots_MouseUp(s, b, sh, x, y);
                });
    }
    connect(Mess, &Quillet::Click, this, [this] { m_game.Mess_Click(); });
    connect(Undox, &Quillet::Click, this, [this] { m_game.Undox_Click(); });
    connect(Pausex, &Quillet::Click, this, [this] { m_game.Pausex_Click(); });
    connect(TakeComp, &Quillet::Click, this, [this] { m_game.TakeComp_Click(); });
    connect(GiveHint, &Quillet::MouseDown, this, [this](int16_t b, int16_t sh, float x, float y) {
        m_game.GiveHint_MouseDown(b, sh, x, y);
    });
    connect(GiveHint, &Quillet::MouseUp, this, [this](int16_t b, int16_t sh, float x, float y) {
        m_game.GiveHint_MouseUp(b, sh, x, y);
    });
    connect(Scorex, &Quillet::MouseUp, this, &Form1::Scorex_MouseUp);
    connect(Helpx, &Quillet::Click, this, &Form1::Helpx_Click);
    connect(Aboutx, &Quillet::Click, this, &Form1::Aboutx_Click);
    connect(Quitx, &Quillet::Click, this, &Form1::Quitx_Click);
    connect(StartBeads, &QSlider::valueChanged, this, [this] { m_game.StartBeads_Change(); });
}

// The slider comes first, then the message bar and the log in the right-hand column,
// then the buttons as they stand down the left. The pots are played by the keys' walk
// and Enter, not by Tab. A button takes the focus from Tab only, never from a click, so
// that the keys go on walking and scrolling where they did.
void Form1::orderTabs()
{
    for (QWidget* w : findChildren<QWidget*>())
        if (w != StartBeads && w != MovesList && !MovesList->isAncestorOf(w))
            w->setFocusPolicy(Qt::NoFocus);
    QList<QWidget*> chain{StartBeads, Mess};
    // The log's own parts that take the focus, in the log's order.
    for (QWidget* w : MovesList->findChildren<QWidget*>())
        if (w->focusPolicy() & Qt::TabFocus)
            chain << w;
    chain << QList<QWidget*>{Undox, Pausex, TakeComp, GiveHint, Scorex, Helpx, Aboutx, Quitx};
    for (QWidget* w : chain)
        if (qobject_cast<Quillet*>(w))
            w->setFocusPolicy(Qt::TabFocus);
    for (qsizetype i = 1; i < chain.size(); ++i)
        setTabOrder(chain[i - 1], chain[i]);
    StartBeads->setFocus();
}

// The score board is the window's own; the game sets up the rest, and tells the
// screen in their turn the slider, its label and the log's look.
void Form1::Form_Load()
{
    Score1->ScoreTitle(QStringLiteral("Tavok"));
    Score1->ScoreOptionB(true);
    Score1->ScoreOptionA(true);
    m_game.Form_Load();
}

void Form1::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(Qt::black, 3, Qt::SolidLine, Qt::FlatCap));
    for (int x : Layout::Line5X)
        painter.drawLine(px(x), px(Layout::Line5Top), px(x), px(Layout::Line5Bottom));

    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(pxRect(Layout::Shape1Rows)).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.drawEllipse(QRectF(pxRect(Layout::Shape1Banks)).adjusted(0.5, 0.5, -0.5, -0.5));

    painter.setRenderHint(QPainter::Antialiasing, false);
    auto stroke = [&](const Layout::Segment& s, const QColor& color) {
        painter.setPen(QPen(color, 1));
        painter.drawLine(px(s.x1), px(s.y1), px(s.x2), px(s.y2));
    };
    stroke(Layout::Line4, palette().color(QPalette::Dark));
    stroke(Layout::Line3, Qt::white);
}

// Totals grow over many games; a long one steps its font down rather than lose digits.
void Form1::fitTotal(QLabel* total)
{
    QFont font = arialFont(14.25, true);
    const int room = total->contentsRect().width() - 2;
    while (font.pointSizeF() > 6 && QFontMetrics(font).horizontalAdvance(total->text()) > room)
        font.setPointSizeF(font.pointSizeF() - 0.75);
    total->setFont(font);
}

// GameScreen: what the game needs of the window.

std::string Form1::potTag(int16_t index) const
{
    if (!isSlot(index))
        return {};
    return Pots[index]->Tag().toStdString();
}

void Form1::setPotEnabled(int16_t slot, bool enabled)
{
    if (isSlot(slot))
        Pots[slot]->enabled(enabled);
}

void Form1::setMessCaption(const std::string& caption)
{
    Mess->caption(fromStd(caption));
    Mess->setAccessibleName(Mess->caption());
}
void Form1::setMessEnabled(bool enabled)
{
    Mess->enabled(enabled);
}
void Form1::showMess()
{
    Mess->Visible(true);
}
void Form1::setUndoxEnabled(bool enabled)
{
    Undox->enabled(enabled);
}
// A pause shuts the command frame: a player on its buttons by the keyboard is taken to
// the bar, where Space goes on, and back to the button when the frame opens again.
void Form1::setCommandFrameEnabled(bool enabled)
{
    QWidget* focus = QApplication::focusWidget();
    if (!enabled && focus && CommandFrame->isAncestorOf(focus) && Mess->isEnabled()) {
        m_focusBeforePause = focus;
        Mess->setFocus(Qt::OtherFocusReason);
    }
    CommandFrame->setEnabled(enabled);
    if (enabled && m_focusBeforePause) {
        if (!focus || focus == Mess || MovesList->isAncestorOf(focus))
            m_focusBeforePause->setFocus(Qt::OtherFocusReason);
        m_focusBeforePause = nullptr;
    }
}
void Form1::setPausexCaption(const std::string& caption)
{
    Pausex->caption(fromStd(caption));
    describeButton(Pausex);
}
void Form1::setStartBeadsEnabled(bool enabled)
{
    StartBeads->setEnabled(enabled);
}
int16_t Form1::startBeadsValue() const
{
    return static_cast<int16_t>(StartBeads->value());
}
void Form1::setStartBeadsValue(int16_t value)
{
    StartBeads->setValue(value);
}
void Form1::setLabel2Caption(const std::string& caption)
{
    Label2->setText(fromStd(caption));
}
void Form1::setHandLeft(float left)
{
    Hand->Left(left);
}
void Form1::setHandTop(float top)
{
    Hand->Top(top);
}
void Form1::setHandVisible(bool visible)
{
    Hand->Visible(visible);
}
bool Form1::handVisible() const
{
    return Hand->Visible();
}

// The letters never move: their places in the table are their places on the screen.
float Form1::potNameLeft(int16_t index) const
{
    return index >= 0 && index < 6 ? static_cast<float>(Layout::PotNameLeft[index]) : 0.f;
}

float Form1::potNameTop(int16_t) const
{
    return static_cast<float>(Layout::PotNameTop);
}

void Form1::setTotalBCaption(int16_t index, const std::string& caption)
{
    if (index == 1 || index == 2) {
        TotalB[index]->setText(fromStd(caption));
        fitTotal(TotalB[index]);
        describeTotal(index);
    }
}

void Form1::setUpMovesList()
{
    setUpMovesLog(*MovesList);
}

void Form1::movesListAdditem(std::string& s, int16_t itemx, int16_t& ipic, std::string& ItemFont,
                             int32_t& ItemColor)
{
    QString text = fromStd(s);
    QString font = fromStd(ItemFont);
    try {
        MovesList->Additem(text, itemx, ipic, font, ItemColor);
    } catch (const ListError&) {
        // A log too long for the list loses its newest lines, never the game.
    }
    s = text.toStdString();
    ItemFont = font.toStdString();
}

void Form1::movesListAdditem(std::string& s, int16_t itemx)
{
    QString text = fromStd(s);
    try {
        MovesList->Additem(text, itemx);
    } catch (const ListError&) {
    }
    s = text.toStdString();
}

void Form1::movesListClear()
{
    MovesList->Clear();
}
void Form1::scoreWin(bool value)
{
    Score1->ScoreWin(value);
}
void Form1::scoreDraw(bool value)
{
    Score1->ScoreDraw(value);
}

// The pause sleeps on the event queue rather than spinning a core.
void Form1::runPendingEvents()
{
    if (m_pauseHook)
        m_pauseHook();
    else
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
