#include "tools/trace/trace.h"

#include "common/key_numbers.h"
#include "controls/marlet.h"
#include "controls/quillet.h"
#include "moveslist/itemrecord.h"
#include "moveslist/usercontrol1.h"
#include "window/form1.h"
#include "window/form1_layout.h"

#include "assets/pictures.h"
#include "common/twips.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>

#include <ostream>
#include <utility>

namespace {

QString shown(const QString& caption)
{
    return caption.isEmpty() ? QStringLiteral(".") : caption;
}

char flag(bool on)
{
    return on ? '1' : '0';
}

Qt::MouseButton QtButton(int button)
{
    return button == 2 ? Qt::RightButton : Qt::LeftButton;
}

// Whether every line of a caption stands inside its control, as its own font draws it.
bool fits(const QWidget* control, const QString& text)
{
    const QFontMetrics metrics(control->font());
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines)
        if (metrics.horizontalAdvance(line) > control->width())
            return false;
    return int(lines.size()) * metrics.height() <= control->height() + metrics.descent();
}

// The disc a pot's face shows: raised (G, R) or hollow (g, r), green or red.
char discOf(const Quillet* pot)
{
    static const std::vector<std::pair<char, QImage>> discs{
        {'G', Pictures::load(Pictures::DiscGreenRaised).toImage()},
        {'g', Pictures::load(Pictures::DiscGreenSunken).toImage()},
        {'R', Pictures::load(Pictures::DiscRedRaised).toImage()},
        {'r', Pictures::load(Pictures::DiscRedSunken).toImage()}};
    const QImage face = pot->picture().toImage();
    for (const auto& [letter, disc] : discs)
        if (face == disc)
            return letter;
    return '?';
}

} // namespace

Trace::Trace(Form1& form, std::ostream& out) : m_form(form), m_out(out)
{
    // Every pause is released at once by a click on the bar; its caption is kept.
    m_form.setPauseHook([this] { releasePause(); });
}

template <typename T> T* Trace::child(const char* name) const
{
    return m_form.findChild<T*>(QString::fromLatin1(name));
}

Quillet* Trace::Pot(int slot) const
{
    return m_form.findChild<Quillet*>(QStringLiteral("Pots%1").arg(slot));
}

void Trace::printStart()
{
    printState(QStringLiteral("start"));
}

bool Trace::perform(const QString& line)
{
    // A script says in lines of its own, beginning with #, what it shows.
    if (line.trimmed().startsWith(QLatin1Char('#')))
        return true;
    const QStringList words = line.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return false;
    bool numberOk = true;
    const int argument = words.size() > 1 ? words[1].toInt(&numberOk) : 0;
    m_pauses.clear();
    bool ignored = false;
    if (!numberOk || !act(words[0], argument, ignored)) {
        m_out << "> " << line.toStdString() << " unknown\n";
        return false;
    }
    printState(line.simplified() + (ignored ? QStringLiteral(" ignored") : QString()));
    return true;
}

bool Trace::act(const QString& verb, int argument, bool& ignored)
{
    auto potAction = [&](auto&& action) {
        Quillet* pot = Pot(argument);
        if (!pot)
            return false;
        ignored = !action(pot);
        return true;
    };
    auto onControl = [&](const QString& name, auto&& action) {
        ignored = !action(m_form.findChild<QWidget*>(name));
        return true;
    };
    if (verb == QLatin1String("click"))
        return potAction([&](Quillet* p) { return clickWidget(p, 1); });
    if (verb == QLatin1String("rdown"))
        return potAction([&](Quillet* p) { return pressWidget(p, 2); });
    if (verb == QLatin1String("rup"))
        return potAction([&](Quillet* p) { return releaseWidget(p, 2); });
    if (verb == QLatin1String("hover"))
        return potAction([&](Quillet* p) { return moveOver(p); });
    if (verb == QLatin1String("letter"))
        return onControl(argument >= 0 && argument < 6 ? QStringLiteral("PotName%1").arg(argument)
                                                       : QString(),
                         [&](QWidget* w) { return w && moveOver(w); });
    if (verb == QLatin1String("controls"))
        return m_controlsWanted = true, true;
    if (verb == QLatin1String("formmove"))
        return moveOver(&m_form), true;
    if (verb == QLatin1String("key"))
        return pressKey(static_cast<int16_t>(argument), KeyClick), true;
    if (verb == QLatin1String("keydown"))
        return pressKey(static_cast<int16_t>(argument), KeyPress), true;
    if (verb == QLatin1String("keyup"))
        return pressKey(static_cast<int16_t>(argument), KeyRelease), true;
    if (verb == QLatin1String("backtab"))
        return QTest::keyClick(keyTarget(), Qt::Key_Tab, Qt::ShiftModifier), true;
    if (verb == QLatin1String("mess"))
        return onControl("Mess", [&](QWidget* w) { return clickWidget(w, 1); });
    if (verb == QLatin1String("undo"))
        return onControl("Undox", [&](QWidget* w) { return clickWidget(w, 1); });
    if (verb == QLatin1String("pause"))
        return onControl("Pausex", [&](QWidget* w) { return clickWidget(w, 1); });
    if (verb == QLatin1String("force"))
        return onControl("TakeComp", [&](QWidget* w) { return clickWidget(w, 1); });
    if (verb == QLatin1String("hintdown"))
        return onControl("GiveHint", [&](QWidget* w) { return pressWidget(w, 1); });
    if (verb == QLatin1String("hintup"))
        return onControl("GiveHint", [&](QWidget* w) { return releaseWidget(w, 1); });
    if (verb == QLatin1String("score"))
        return onControl("Scorex", [&](QWidget* w) { return releaseWidget(w, argument); });
    if (verb == QLatin1String("slider")) {
        auto* slider = child<QSlider>("StartBeads");
        ignored = !slider->isEnabled();
        if (!ignored)
            dragSlider(argument);
        return true;
    }
    return false;
}

// A disabled control, or one inside a disabled frame, takes no click: the action is
// dropped as the user's click would be.
bool Trace::clickWidget(QWidget* widget, int button)
{
    if (!widget->isEnabled())
        return false;
    QTest::mouseClick(widget, QtButton(button));
    return true;
}

bool Trace::pressWidget(QWidget* widget, int button)
{
    if (!widget->isEnabled())
        return false;
    QTest::mousePress(widget, QtButton(button));
    return true;
}

bool Trace::releaseWidget(QWidget* widget, int button)
{
    if (!widget->isEnabled())
        return false;
    QTest::mouseRelease(widget, QtButton(button));
    return true;
}

bool Trace::moveOver(QWidget* widget)
{
    if (!widget->isEnabled())
        return false;
    // Over the window's own surface: a corner no control covers.
    const QPoint at = widget == &m_form ? QPoint(1, 1) : widget->rect().center();
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    return true;
}

QWidget* Trace::keyTarget() const
{
    QWidget* focus = QApplication::focusWidget();
    return focus && focus->window() == &m_form ? focus : &m_form;
}

void Trace::pressKey(int16_t code, KeyStroke stroke)
{
    const int qtKey = QtKeyFor(code);
    const auto key = static_cast<Qt::Key>(qtKey ? qtKey : Qt::Key_unknown);
    if (stroke != KeyRelease)
        QTest::keyPress(keyTarget(), key);
    if (stroke != KeyPress)
        QTest::keyRelease(keyTarget(), key);
}

// The control the keys are on, by the name of the window's control.
std::string Trace::focused() const
{
    const QWidget* focus = QApplication::focusWidget();
    const auto* list = child<UserControl1>("MovesList");
    if (focus && list->isAncestorOf(focus))
        focus = list;
    return focus ? shown(focus->objectName()).toStdString() : "none";
}

void Trace::dragSlider(int value)
{
    auto* slider = child<QSlider>("StartBeads");
    slider->setSliderDown(true);
    slider->setSliderPosition(value);
    slider->setSliderDown(false);
}

void Trace::releasePause()
{
    auto* mess = child<Quillet>("Mess");
    m_pauses << QString::fromStdString(focused()) + QLatin1Char(' ') + mess->caption();
    QTest::mouseClick(mess, Qt::LeftButton);
}

// The window, then each control on it and in its frames, in the order they were made:
// place and size in pixels, font, colours, shown or not, tooltip.
void Trace::printControls()
{
    m_out << "window " << m_form.windowTitle().toStdString() << " icon "
          << flag(!m_form.windowIcon().isNull()) << " size " << m_form.width() << 'x'
          << m_form.height() << " fixed " << flag(m_form.minimumSize() == m_form.maximumSize())
          << '\n';
    for (QWidget* w : m_form.findChildren<QWidget*>()) {
        QWidget* parent = w->parentWidget();
        if (w->objectName().isEmpty() ||
            (parent != &m_form &&
             !(qobject_cast<QGroupBox*>(parent) && parent->parentWidget() == &m_form)))
            continue;
        const auto* face = qobject_cast<const Quillet*>(w);
        const QColor fore = face ? face->forecolor() : w->palette().color(QPalette::WindowText);
        const bool filled = face || w->autoFillBackground();
        const QColor back = face ? face->backcolor() : w->palette().color(QPalette::Window);
        m_out << "control " << w->objectName().toStdString() << ' ' << w->x() << ',' << w->y()
              << ' ' << w->width() << 'x' << w->height() << " font "
              << w->font().family().toStdString() << ' ' << w->font().pointSizeF()
              << (w->font().bold() ? " bold" : "") << " text " << fore.name().toStdString()
              << " back " << (filled ? back.name().toStdString() : "-")
              << (w->isVisible() ? " shown" : " hidden") << " tip "
              << shown(w->toolTip()).toStdString() << '\n';
    }
}

void Trace::printState(const QString& heading)
{
    m_out << "> " << heading.toStdString() << '\n';

    std::string pots = "pots", enabled = "enabled ";
    for (int s = 0; s < 14; ++s) {
        pots += ' ' + shown(Pot(s)->caption()).toStdString();
        enabled += flag(Pot(s)->isEnabled());
    }
    std::string faces = "faces ";
    for (int s = 0; s < 14; ++s)
        faces += discOf(Pot(s));
    m_out << pots << '\n' << enabled << '\n' << faces << '\n';

    auto* mess = child<Quillet>("Mess");
    m_out << "mess " << flag(mess->isEnabled()) << ' ' << shown(mess->caption()).toStdString()
          << '\n';
    m_out << "totals " << shown(child<QLabel>("TotalB1")->text()).toStdString() << ' '
          << shown(child<QLabel>("TotalB2")->text()).toStdString() << '\n';
    m_out << "label2 " << shown(child<QLabel>("Label2")->text()).toStdString() << '\n';
    m_out << "pausex " << shown(child<Quillet>("Pausex")->caption()).toStdString() << '\n';

    auto* undo = child<Quillet>("Undox");
    auto* frame = child<QGroupBox>("CommandFrame");
    auto* slider = child<QSlider>("StartBeads");
    m_out << "undo " << flag(undo->isEnabledTo(frame)) << " frame " << flag(frame->isEnabled())
          << " slider " << flag(slider->isEnabled()) << ' ' << slider->value() << '\n';

    auto* hand = child<Quillet>("Hand");
    std::string where = "hidden";
    if (hand->Visible()) {
        where = "elsewhere";
        for (int i = 0; i < 6; ++i)
            if (hand->Left() == Layout::PotNameLeft[i] && hand->Top() == Layout::PotNameTop)
                where = std::to_string(i);
    }
    m_out << "hand " << where << '\n';

    auto* score = child<Marlets::Marlet>("Score1");
    m_out << "score " << score->wins() << ' ' << score->losses() << ' ' << score->draws()
          << (score->isVisible() ? " shown" : "") << '\n';
    if (std::exchange(m_controlsWanted, false))
        printControls();
    for (const QString& pause : m_pauses)
        m_out << "pause focus " << pause.toStdString() << '\n';
    m_out << "focus " << focused() << '\n';
    // A caption cut short is said; a whole game of them says nothing.
    for (const QWidget* w : m_form.findChildren<QWidget*>()) {
        const auto* face = qobject_cast<const Quillet*>(w);
        const auto* label = qobject_cast<const QLabel*>(w);
        const QString text = face ? face->caption() : label ? label->text() : QString();
        if (w->isVisible() && !text.isEmpty() && !fits(w, text))
            m_out << "overflow " << w->objectName().toStdString() << ' ' << text.toStdString()
                  << '\n';
    }
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window != &m_form && window->isVisible())
            m_out << "open " << window->windowTitle().toStdString() << '\n';

    const ListState& list = child<UserControl1>("MovesList")->state();
    m_out << "list " << list.ItemCount << '\n';
    for (int item = 1; item <= list.ItemCount; ++item) {
        const QStringList columns = itemrecord::Split(list.Items[item]);
        const auto color = static_cast<uint32_t>(
            static_cast<int64_t>(AnyValue(columns.value(itemrecord::Colour)).toNumber()));
        m_out << QStringLiteral("%1").arg(color, 8, 16, QLatin1Char('0')).toUpper().toStdString()
              << ' ' << columns.value(itemrecord::Text).toStdString() << '\n';
    }
    m_out.flush();
}
