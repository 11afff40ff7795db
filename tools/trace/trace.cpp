#include "tools/trace/trace.h"

#include "common/key_numbers.h"
#include "controls/marlet.h"
#include "controls/quillet.h"
#include "moveslist/itemrecord.h"
#include "moveslist/usercontrol1.h"
#include "window/form1.h"
#include "window/form1_layout.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>

#include <ostream>

namespace {

QString Shown(const QString& caption)
{
    return caption.isEmpty() ? QStringLiteral(".") : caption;
}

char Flag(bool on)
{
    return on ? '1' : '0';
}

Qt::MouseButton QtButton(int button)
{
    return button == 2 ? Qt::RightButton : Qt::LeftButton;
}

} // namespace

Trace::Trace(Form1& form, std::ostream& out) : form_(form), out_(out)
{
    // Every pause is released at once by a click on the bar; its caption is kept.
    form_.setPauseHook([this] { ReleasePause(); });
}

template <typename T> T* Trace::Child(const char* name) const
{
    return form_.findChild<T*>(QString::fromLatin1(name));
}

Quillet* Trace::Pot(int slot) const
{
    return form_.findChild<Quillet*>(QStringLiteral("Pots%1").arg(slot));
}

void Trace::PrintStart()
{
    PrintState(QStringLiteral("start"));
}

bool Trace::Perform(const QString& line)
{
    const QStringList words = line.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return false;
    bool numberOk = true;
    const int argument = words.size() > 1 ? words[1].toInt(&numberOk) : 0;
    pauses_.clear();
    bool ignored = false;
    if (!numberOk || !Act(words[0], argument, ignored)) {
        out_ << "> " << line.toStdString() << " unknown\n";
        return false;
    }
    PrintState(line.simplified() + (ignored ? QStringLiteral(" ignored") : QString()));
    return true;
}

bool Trace::Act(const QString& verb, int argument, bool& ignored)
{
    auto potAction = [&](auto&& action) {
        Quillet* pot = Pot(argument);
        if (!pot)
            return false;
        ignored = !action(pot);
        return true;
    };
    auto onControl = [&](const char* name, auto&& action) {
        ignored = !action(Child<QWidget>(name));
        return true;
    };
    if (verb == QLatin1String("click"))
        return potAction([&](Quillet* p) { return ClickWidget(p, 1); });
    if (verb == QLatin1String("rdown"))
        return potAction([&](Quillet* p) { return PressWidget(p, 2); });
    if (verb == QLatin1String("rup"))
        return potAction([&](Quillet* p) { return ReleaseWidget(p, 2); });
    if (verb == QLatin1String("hover"))
        return potAction([&](Quillet* p) { return MoveOver(p); });
    if (verb == QLatin1String("formmove"))
        return MoveOver(&form_), true;
    if (verb == QLatin1String("key"))
        return PressKey(static_cast<int16_t>(argument)), true;
    if (verb == QLatin1String("mess"))
        return onControl("Mess", [&](QWidget* w) { return ClickWidget(w, 1); });
    if (verb == QLatin1String("undo"))
        return onControl("Undox", [&](QWidget* w) { return ClickWidget(w, 1); });
    if (verb == QLatin1String("pause"))
        return onControl("Pausex", [&](QWidget* w) { return ClickWidget(w, 1); });
    if (verb == QLatin1String("force"))
        return onControl("TakeComp", [&](QWidget* w) { return ClickWidget(w, 1); });
    if (verb == QLatin1String("hintdown"))
        return onControl("GiveHint", [&](QWidget* w) { return PressWidget(w, 1); });
    if (verb == QLatin1String("hintup"))
        return onControl("GiveHint", [&](QWidget* w) { return ReleaseWidget(w, 1); });
    if (verb == QLatin1String("score"))
        return onControl("Scorex", [&](QWidget* w) { return ReleaseWidget(w, 1); });
    if (verb == QLatin1String("slider")) {
        auto* slider = Child<QSlider>("StartBeads");
        ignored = !slider->isEnabled();
        if (!ignored)
            DragSlider(argument);
        return true;
    }
    return false;
}

// A disabled control, or one inside a disabled frame, takes no click: the action is
// dropped as the user's click would be.
bool Trace::ClickWidget(QWidget* widget, int button)
{
    if (!widget->isEnabled())
        return false;
    QTest::mouseClick(widget, QtButton(button));
    return true;
}

bool Trace::PressWidget(QWidget* widget, int button)
{
    if (!widget->isEnabled())
        return false;
    QTest::mousePress(widget, QtButton(button));
    return true;
}

bool Trace::ReleaseWidget(QWidget* widget, int button)
{
    if (!widget->isEnabled())
        return false;
    QTest::mouseRelease(widget, QtButton(button));
    return true;
}

bool Trace::MoveOver(QWidget* widget)
{
    if (!widget->isEnabled())
        return false;
    // Over the window's own surface: a corner no control covers.
    const QPoint at = widget == &form_ ? QPoint(1, 1) : widget->rect().center();
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    return true;
}

void Trace::PressKey(int16_t code)
{
    QWidget* focus = QApplication::focusWidget();
    QWidget* target = focus && focus->window() == &form_ ? focus : &form_;
    const int key = QtKeyFor(code);
    QTest::keyClick(target, static_cast<Qt::Key>(key ? key : Qt::Key_unknown));
}

void Trace::DragSlider(int value)
{
    auto* slider = Child<QSlider>("StartBeads");
    slider->setSliderDown(true);
    slider->setSliderPosition(value);
    slider->setSliderDown(false);
}

void Trace::ReleasePause()
{
    auto* mess = Child<Quillet>("Mess");
    pauses_ << mess->caption();
    QTest::mouseClick(mess, Qt::LeftButton);
}

void Trace::PrintState(const QString& heading)
{
    out_ << "> " << heading.toStdString() << '\n';

    std::string pots = "pots", enabled = "enabled ";
    for (int s = 0; s < 14; ++s) {
        pots += ' ' + Shown(Pot(s)->caption()).toStdString();
        enabled += Flag(Pot(s)->isEnabled());
    }
    out_ << pots << '\n' << enabled << '\n';

    auto* mess = Child<Quillet>("Mess");
    out_ << "mess " << Flag(mess->isEnabled()) << ' ' << Shown(mess->caption()).toStdString()
         << '\n';
    out_ << "totals " << Shown(Child<QLabel>("TotalB1")->text()).toStdString() << ' '
         << Shown(Child<QLabel>("TotalB2")->text()).toStdString() << '\n';
    out_ << "label2 " << Shown(Child<QLabel>("Label2")->text()).toStdString() << '\n';
    out_ << "pausex " << Shown(Child<Quillet>("Pausex")->caption()).toStdString() << '\n';

    auto* undo = Child<Quillet>("Undox");
    auto* frame = Child<QGroupBox>("CommandFrame");
    auto* slider = Child<QSlider>("StartBeads");
    out_ << "undo " << Flag(undo->isEnabledTo(frame)) << " frame " << Flag(frame->isEnabled())
         << " slider " << Flag(slider->isEnabled()) << ' ' << slider->value() << '\n';

    auto* hand = Child<Quillet>("Hand");
    std::string where = "hidden";
    if (hand->Visible()) {
        where = "elsewhere";
        for (int i = 0; i < 6; ++i)
            if (hand->Left() == Layout::PotNameLeft[i] && hand->Top() == Layout::PotNameTop)
                where = std::to_string(i);
    }
    out_ << "hand " << where << '\n';

    auto* score = Child<Marlets::Marlet>("Score1");
    out_ << "score " << score->wins() << ' ' << score->losses() << ' ' << score->draws() << '\n';
    for (const QString& caption : pauses_)
        out_ << "pause " << Shown(caption).toStdString() << '\n';

    const ListState& list = Child<UserControl1>("MovesList")->state();
    out_ << "list " << list.ItemCount << '\n';
    for (int item = 1; item <= list.ItemCount; ++item) {
        const QStringList columns = itemrecord::Split(list.Items[item]);
        const auto color = static_cast<uint32_t>(
            static_cast<int64_t>(AnyValue(columns.value(itemrecord::Colour)).toNumber()));
        out_ << QStringLiteral("%1").arg(color, 8, 16, QLatin1Char('0')).toUpper().toStdString()
             << ' ' << columns.value(itemrecord::Text).toStdString() << '\n';
    }
    out_.flush();
}
