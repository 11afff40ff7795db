#include "tools/moveslist_trace/listtrace.h"

#include "moveslist/itemrecord.h"
#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/olecolor.h"
#include "moveslist/propertybag.h"
#include "moveslist/usercontrol1.h"
#include "tools/moveslist_trace/listprobe.h"
#include "window/moveslistblock.h"

#include <QApplication>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

#include <cmath>
#include <map>
#include <ostream>

namespace {

// A token that was written in double quotes keeps its opening quote, so that "12" stays
// a text and 12 a number.
QStringList tokens(const QString& line)
{
    QStringList words;
    int i = 0;
    const int n = int(line.size());
    while (i < n) {
        if (line[i].isSpace()) {
            ++i;
            continue;
        }
        if (line[i] != QLatin1Char('"')) {
            const int start = i;
            while (i < n && !line[i].isSpace())
                ++i;
            words << line.mid(start, i - start);
            continue;
        }
        QString text = QStringLiteral("\"");
        for (++i; i < n && line[i] != QLatin1Char('"'); ++i) {
            if (line[i] == QLatin1Char('\\') && i + 1 < n) {
                const QChar c = line[++i];
                text += c == QLatin1Char('t')   ? QChar('\t')
                        : c == QLatin1Char('n') ? QChar('\n')
                                                : c;
            } else {
                text += line[i];
            }
        }
        ++i;
        // "W"*300 repeats the text.
        if (i + 1 < n && line[i] == QLatin1Char('*') && line[i + 1].isDigit()) {
            const int start = ++i;
            while (i < n && line[i].isDigit())
                ++i;
            text = QLatin1Char('"') + text.mid(1).repeated(line.mid(start, i - start).toInt());
        }
        words << text;
    }
    return words;
}

bool isText(const QString& word)
{
    return word.startsWith(QLatin1Char('"'));
}

QString textOf(const QString& word)
{
    return isText(word) ? word.mid(1) : word;
}

double numberOf(const QString& word)
{
    if (word.startsWith(QLatin1String("0x")))
        return double(int32_t(word.mid(2).toUInt(nullptr, 16)));
    return word.toDouble();
}

AnyValue valueOf(const QString& word)
{
    if (isText(word))
        return AnyValue(word.mid(1));
    if (word == QLatin1String("empty"))
        return AnyValue();
    return AnyValue(numberOf(word));
}

QString quoted(const QString& text)
{
    QString shown = text;
    shown.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    shown.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    shown.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

QString number(double v)
{
    return QString::number(v, 'g', 12);
}

QString shown(const AnyValue& value)
{
    if (value.isEmpty())
        return QStringLiteral("empty");
    if (value.isNumber())
        return number(value.toNumber());
    return quoted(value.toText());
}

QString hex(int32_t colour)
{
    return QStringLiteral("0x%1")
        .arg(uint32_t(colour), 8, 16, QLatin1Char('0'))
        .toUpper()
        .replace(QLatin1String("0X"), QLatin1String("0x"));
}

QString colourName(QRgb pixel)
{
    return QStringLiteral("#%1").arg(pixel & 0xFFFFFF, 6, 16, QLatin1Char('0'));
}

QString sizeOf(const QWidget* w)
{
    return QStringLiteral("%1x%2").arg(w->width()).arg(w->height());
}

const char* PropertyTypeName(PropertyType type)
{
    switch (type) {
    case PropertyType::Integer:
        return "integer";
    case PropertyType::Long:
        return "long";
    case PropertyType::Single:
        return "single";
    case PropertyType::Text:
        return "text";
    case PropertyType::Object:
        return "object";
    }
    return "?";
}

double twipsPerPixelY()
{
    return 1440.0 / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

int pixelsDown(double twips)
{
    return int(std::nearbyint(twips / twipsPerPixelY()));
}

struct KeyName {
    const char* name;
    Qt::Key key;
};

constexpr KeyName Keys[] = {
    {"Down", Qt::Key_Down},     {"Up", Qt::Key_Up},
    {"Home", Qt::Key_Home},     {"End", Qt::Key_End},
    {"PageUp", Qt::Key_PageUp}, {"PageDown", Qt::Key_PageDown},
    {"Return", Qt::Key_Return}, {"Enter", Qt::Key_Enter},
    {"Escape", Qt::Key_Escape}, {"Left", Qt::Key_Left},
    {"Right", Qt::Key_Right},   {"Tab", Qt::Key_Tab},
    {"Space", Qt::Key_Space},   {"Shift", Qt::Key_Shift},
    {"F1", Qt::Key_F1},         {"Backspace", Qt::Key_Backspace},
};

Qt::KeyboardModifiers modifiers(const QStringList& words)
{
    Qt::KeyboardModifiers mods;
    for (const QString& w : words) {
        if (w == QLatin1String("shift"))
            mods |= Qt::ShiftModifier;
        else if (w == QLatin1String("ctrl"))
            mods |= Qt::ControlModifier;
        else if (w == QLatin1String("alt"))
            mods |= Qt::AltModifier;
        else if (w == QLatin1String("keypad"))
            mods |= Qt::KeypadModifier;
    }
    return mods;
}

Qt::MouseButton buttonOf(const QStringList& words)
{
    if (words.contains(QLatin1String("right")))
        return Qt::RightButton;
    if (words.contains(QLatin1String("middle")))
        return Qt::MiddleButton;
    return Qt::LeftButton;
}

} // namespace

ListTrace::ListTrace(std::ostream& out) : m_out(out) {}

ListTrace::~ListTrace()
{
    m_list.reset();
}

void ListTrace::say(const QString& text)
{
    m_out << "  " << text.toStdString() << '\n';
}

bool ListTrace::perform(const QString& line)
{
    if (line.trimmed().startsWith(QLatin1Char('#')) || line.trimmed().isEmpty())
        return true;
    const QStringList words = tokens(line);
    const QString verb = words.value(0);
    const QStringList args = words.mid(1);
    m_out << "> " << line.trimmed().toStdString() << '\n';
    bool known = false;
    try {
        known = setUp(verb, args) ||
                (m_list && (call(verb, args) || input(verb, args) || inspect(verb, args)));
    } catch (const ListError& error) {
        known = true;
        // The code, and what the host is told with it.
        say(QStringLiteral("error %1 %2").arg(error.code()).arg(QString::fromUtf8(error.what())));
    } catch (const std::exception& failure) {
        known = true;
        say(QStringLiteral("failure %1").arg(QString::fromUtf8(failure.what())));
    }
    if (!known) {
        say(QStringLiteral("unknown"));
        return false;
    }
    if (!m_list)
        return true;
    for (const QString& state : stateLines()) {
        const QString label = state.section(QLatin1Char(' '), 0, 0);
        if (m_shown.value(label) != state) {
            m_shown[label] = state;
            m_out << state.toStdString() << '\n';
        }
    }
    return true;
}

// --- Making the list -------------------------------------------------------------

bool ListTrace::setUp(const QString& verb, const QList<QString>& args)
{
    if (verb == QLatin1String("load")) {
        // As a form loads an instance whose block holds no settings.
        adopt(UserControl1::fromBlock(lbblock::write(PropertyBag())));
    } else if (verb == QLatin1String("log")) {
        adopt(UserControl1::fromBlock(movesListBlock()));
        setUpMovesLog(*m_list);
    } else if (verb == QLatin1String("new")) {
        adopt(new UserControl1);
    } else if (verb == QLatin1String("loadwith")) {
        // A block of the given entries, each KEY TYPE VALUE (integer, long, single, text).
        PropertyBag bag;
        for (int i = 0; i + 2 < args.size(); i += 3) {
            const QString type = args[i + 1];
            const PropertyType kind = type == QLatin1String("long")     ? PropertyType::Long
                                      : type == QLatin1String("single") ? PropertyType::Single
                                      : type == QLatin1String("text")   ? PropertyType::Text
                                                                        : PropertyType::Integer;
            bag.add({textOf(args[i]).toLower(),
                     kind,
                     valueOf(args[i + 2]),
                     {},
                     PropertyBag::keyHash(textOf(args[i]))});
        }
        adopt(UserControl1::fromBlock(lbblock::write(bag)));
    } else if (verb == QLatin1String("reload")) {
        if (!m_list)
            return false;
        PropertyBag bag;
        m_list->UserControl_WriteProperties(bag);
        adopt(UserControl1::fromBlock(lbblock::write(bag)));
    } else if (verb == QLatin1String("host") && m_list) {
        makeHost();
    } else if (verb == QLatin1String("show") && m_list) {
        QWidget* top = m_host ? m_host.get() : static_cast<QWidget*>(m_list.get());
        m_list->show();
        top->show();
        QApplication::setActiveWindow(top);
        if (!QTest::qWaitForWindowExposed(top))
            say(QStringLiteral("not exposed"));
        // The pointer starts off the list.
        QCursor::setPos(m_list->mapToGlobal(QPoint(-50, -50)));
    } else if (verb == QLatin1String("hide") && m_list) {
        m_list->hide();
    } else if (verb == QLatin1String("raise") && m_list) {
        // The host puts the list above its other widgets.
        m_list->raise();
    } else if (verb == QLatin1String("away") && m_list) {
        // Another window of the program takes the activation, and gives it back with
        // "back".
        m_away = std::make_unique<QWidget>();
        m_away->resize(100, 100);
        m_away->show();
        QApplication::setActiveWindow(m_away.get());
        if (!QTest::qWaitForWindowActive(m_away.get()))
            say(QStringLiteral("not active"));
    } else if (verb == QLatin1String("back") && m_list) {
        QWidget* top = m_host ? m_host.get() : static_cast<QWidget*>(m_list.get());
        QApplication::setActiveWindow(top);
        if (!QTest::qWaitForWindowActive(top))
            say(QStringLiteral("not active"));
        m_away.reset();
    } else if (verb == QLatin1String("resize") && m_list) {
        m_list->resize(int(numberOf(args.value(0))), int(numberOf(args.value(1))));
    } else if (verb == QLatin1String("font") && m_list) {
        QFont font(textOf(args.value(0)));
        font.setPointSizeF(numberOf(args.value(1)));
        m_list->setFont(font);
    } else if (verb == QLatin1String("design") && m_list) {
        m_list->setDesignTime(numberOf(args.value(0)) != 0);
    } else if (verb == QLatin1String("picture") && m_list) {
        // A picture of the given size in one colour, added to the list's image list.
        if (!m_list->PictureList())
            m_list->PictureList(std::make_shared<ImageList>());
        QImage picture(int(numberOf(args.value(0))), int(numberOf(args.value(1))),
                       QImage::Format_RGB32);
        const int32_t colour = args.size() > 2 ? int32_t(numberOf(args[2])) : 0x00FFFF00;
        picture.fill(olecolor::toQColor(colour));
        m_list->PictureList()->add(picture);
        say(QStringLiteral("pictures %1").arg(m_list->PictureList()->count()));
    } else {
        return false;
    }
    return true;
}

void ListTrace::adopt(UserControl1* list)
{
    m_list.reset(list);
    m_host.reset();
    m_shown.clear();
    listenTo(*m_list);
}

// A host window with the list at its top and buttons below the head, where an open
// drop-down has to lie over them.
void ListTrace::makeHost()
{
    m_host = std::make_unique<QWidget>();
    m_host->resize(400, 400);
    m_list->setParent(m_host.get());
    m_list->setGeometry(10, 10, 300, 19);
    m_below = new QPushButton(QStringLiteral("below"), m_host.get());
    m_below->setGeometry(10, 40, 300, 30);
    m_elsewhere = new QPushButton(QStringLiteral("elsewhere"), m_host.get());
    m_elsewhere->setGeometry(10, 360, 100, 30);
}

// Every event with its arguments, as the host hears it. The host writes to what it
// is given; the list must not care.
void ListTrace::listenTo(UserControl1& list)
{
    const auto mouse = [this](const char* name) {
        return [this, name](int16_t& b, int16_t& s, float& x, float& y) {
            QString heard = QStringLiteral("%1 %2 %3 %4 %5")
                                .arg(QLatin1String(name))
                                .arg(b)
                                .arg(s)
                                .arg(number(x), number(y));
            // What the host reads of a pick while it hears of it.
            if (QLatin1String(name) == QLatin1String("MouseUp"))
                heard += QStringLiteral(" reads %1 %2")
                             .arg(shown(m_list->text()), ListProbe(*m_list).canvas()->isHidden()
                                                             ? QStringLiteral("closed")
                                                             : QStringLiteral("open"));
            say(heard);
            b = s = 99;
        };
    };
    QObject::connect(&list, &UserControl1::MouseUp, &list, mouse("MouseUp"));
    QObject::connect(&list, &UserControl1::MouseMove, &list, mouse("MouseMove"));
    QObject::connect(&list, &UserControl1::MouseDown, &list, mouse("MouseDown"));
    QObject::connect(&list, &UserControl1::KeyDown, &list, [this](int16_t& k, int16_t& s) {
        say(QStringLiteral("KeyDown %1 %2").arg(k).arg(s));
        k = 0;
    });
    QObject::connect(&list, &UserControl1::KeyPress, &list,
                     [this](int16_t& k) { say(QStringLiteral("KeyPress %1").arg(k)); });
    QObject::connect(&list, &UserControl1::KeyUp, &list, [this](int16_t& k, int16_t& s) {
        say(QStringLiteral("KeyUp %1 %2").arg(k).arg(s));
    });
    QObject::connect(&list, &UserControl1::Click, &list, [this] { say(QStringLiteral("Click")); });
}

// --- Members a host calls --------------------------------------------------------

bool ListTrace::call(const QString& verb, const QStringList& args)
{
    UserControl1& list = *m_list;
    const auto v = [&](int i) { return valueOf(args.value(i)); };
    const auto n = [&](int i) { return numberOf(args.value(i)); };
    const auto s = [&](int i) { return textOf(args.value(i)); };
    const auto i16 = [&](int i) { return static_cast<int16_t>(n(i)); };
    const auto result = [&](const QString& text) { say(QStringLiteral("= ") + text); };
    const bool get = args.isEmpty();

    if (verb == QLatin1String("Additem")) {
        QString text = s(0);
        if (args.size() <= 2) {
            list.Additem(text, args.size() > 1 ? i16(1) : int16_t(0));
        } else {
            int16_t ipic = i16(2);
            QString font = s(3);
            int32_t colour = int32_t(n(4));
            list.Additem(text, i16(1), ipic, font, colour);
            result(QStringLiteral("ipic %1 colour %2").arg(ipic).arg(hex(colour)));
        }
    } else if (verb == QLatin1String("fill")) {
        // n items appended, "item 1" to "item n" or by a pattern of its own: %1 the
        // item's number, %2 the number counted from the end.
        const int count = int(n(0));
        const QString pattern = args.size() > 1 ? s(1) : QStringLiteral("item %1");
        for (int k = 1; k <= count; ++k) {
            QString text = QString(pattern)
                               .replace(QLatin1String("%1"), QString::number(k))
                               .replace(QLatin1String("%2"), QString::number(count + 1 - k));
            list.Additem(text);
        }
    } else if (verb == QLatin1String("RemoveItem")) {
        list.RemoveItem(v(0));
    } else if (verb == QLatin1String("Clear")) {
        list.Clear();
    } else if (verb == QLatin1String("SortAscending")) {
        list.SortAscending();
    } else if (verb == QLatin1String("SortDescending")) {
        list.SortDescending();
    } else if (verb == QLatin1String("Find")) {
        result(shown(list.Find(i16(0), i16(1), s(2), args.size() > 3 ? i16(3) : int16_t(0))));
    } else if (verb == QLatin1String("ShowItem")) {
        list.ShowItem(v(0));
    } else if (verb == QLatin1String("UpdateIcon")) {
        list.UpdateIcon(v(0), v(1));
    } else if (verb == QLatin1String("UpdateText")) {
        list.UpdateText(v(0), s(1));
    } else if (verb == QLatin1String("UpdateFont")) {
        list.UpdateFont(v(0), s(1));
    } else if (verb == QLatin1String("UpdateForeColor")) {
        list.UpdateForeColor(v(0), int32_t(n(1)));
    } else if (verb == QLatin1String("UpdateItemData")) {
        list.UpdateItemData(v(0), v(1));
    } else if (verb == QLatin1String("GetItemData")) {
        result(shown(list.GetItemData(v(0))));
    } else if (verb == QLatin1String("SetItemData")) {
        list.SetItemData(v(0), v(1));
    } else if (verb == QLatin1String("List")) {
        if (args.size() > 1)
            list.List(v(0), v(1));
        else
            result(shown(list.List(v(0))));
    } else if (verb == QLatin1String("text")) {
        get ? result(shown(list.text())) : list.text(v(0));
    } else if (verb == QLatin1String("ListIndex")) {
        get ? result(shown(list.ListIndex())) : list.ListIndex(v(0));
    } else if (verb == QLatin1String("ListCount")) {
        if (get)
            result(shown(list.ListCount()));
        else
            list.ListCount(v(0));
    } else if (verb == QLatin1String("RowHeight")) {
        get ? result(shown(list.RowHeight())) : list.RowHeight(v(0));
    } else if (verb == QLatin1String("Enabled")) {
        get ? result(number(list.Enabled())) : list.Enabled(n(0) != 0);
    } else if (verb == QLatin1String("GridLines")) {
        get ? result(number(list.GridLines())) : list.GridLines(n(0) != 0);
    } else if (verb == QLatin1String("ToolTip")) {
        get ? result(number(list.ToolTip())) : list.ToolTip(n(0) != 0);
    } else if (verb == QLatin1String("Fontname")) {
        get ? result(quoted(list.Fontname())) : list.Fontname(s(0));
    } else if (verb == QLatin1String("FontSize")) {
        get ? result(number(list.FontSize())) : list.FontSize(float(n(0)));
    } else if (verb == QLatin1String("BorderStyle")) {
        get ? result(number(list.BorderStyle())) : list.BorderStyle(i16(0));
    } else if (verb == QLatin1String("DropDownHeight")) {
        get ? result(number(list.DropDownHeight())) : list.DropDownHeight(i16(0));
    } else if (verb == QLatin1String("Mode")) {
        get ? result(number(list.Mode())) : list.Mode(i16(0));
    } else if (verb == QLatin1String("DrawStyle")) {
        get ? result(number(list.DrawStyle())) : list.DrawStyle(i16(0));
    } else if (verb == QLatin1String("forecolor")) {
        get ? result(hex(list.forecolor())) : list.forecolor(int32_t(n(0)));
    } else if (verb == QLatin1String("BackColor")) {
        get ? result(hex(list.BackColor())) : list.BackColor(int32_t(n(0)));
    } else if (verb == QLatin1String("GridColor")) {
        get ? result(hex(list.GridColor())) : list.GridColor(int32_t(n(0)));
    } else if (verb == QLatin1String("PictureList")) {
        if (s(0) == QLatin1String("none"))
            list.PictureList(nullptr);
        else if (!get)
            list.PictureList(std::make_shared<ImageList>());
        else
            result(list.PictureList() ? QString::number(list.PictureList()->count())
                                      : QStringLiteral("nothing"));
    } else if (verb == QLatin1String("InitProperties")) {
        list.UserControl_InitProperties();
    } else if (verb == QLatin1String("write")) {
        // What the host's stored block would get: key, type and value of each entry.
        PropertyBag bag;
        list.UserControl_WriteProperties(bag);
        for (const PropertyEntry& e : bag.entries())
            say(QStringLiteral("%1 %2 %3")
                    .arg(e.key, QLatin1String(PropertyTypeName(e.type)),
                         e.type == PropertyType::Object
                             ? QStringLiteral("%1 bytes").arg(e.objectData.size())
                             : shown(e.value)));
    } else {
        return false;
    }
    return true;
}

// --- What a user does ------------------------------------------------------------

QWidget* ListTrace::widget(const QString& name) const
{
    ListProbe probe(*m_list);
    if (name == QLatin1String("canvas"))
        return probe.canvas();
    if (name == QLatin1String("head"))
        return probe.head();
    if (name == QLatin1String("button"))
        return probe.button();
    if (name == QLatin1String("bar"))
        return probe.bar();
    if (name == QLatin1String("surface"))
        return m_list.get();
    if (name == QLatin1String("below"))
        return m_below;
    if (name == QLatin1String("elsewhere"))
        return m_elsewhere;
    return nullptr;
}

// The middle of canvas row `row`, 30 pixels in.
QPoint ListTrace::rowPoint(double row) const
{
    return QPoint(30, pixelsDown((row + 0.5) * m_list->state().RowTwips));
}

bool ListTrace::input(const QString& verb, const QStringList& args)
{
    ListProbe probe(*m_list);
    const auto keyOn = [&](QWidget* target) {
        const QString name = args.value(0);
        const Qt::KeyboardModifiers mods = modifiers(args.mid(1));
        for (const KeyName& k : Keys)
            if (name == QLatin1String(k.name)) {
                QTest::keyClick(target, k.key,
                                k.key == Qt::Key_Enter ? mods | Qt::KeypadModifier : mods);
                return true;
            }
        if (name.size() != 1)
            return false;
        QTest::keyClick(target, name[0].toLatin1(), mods);
        return true;
    };
    // A place on a widget: x and y in its pixels, or y as rN, the middle of canvas row N.
    const auto place = [&](int at) {
        const QString y = args.value(at + 1);
        if (y.startsWith(QLatin1Char('r')))
            return QPoint(int(numberOf(args.value(at))), rowPoint(y.mid(1).toDouble()).y());
        return QPoint(int(numberOf(args.value(at))), int(numberOf(y)));
    };

    if (verb == QLatin1String("key"))
        return keyOn(probe.canvas());
    if (verb == QLatin1String("headkey"))
        return keyOn(probe.head());
    if (verb == QLatin1String("type")) {
        QTest::keyClicks(probe.head(), textOf(args.value(0)));
    } else if (verb == QLatin1String("click") || verb == QLatin1String("dclick")) {
        const QPoint at = rowPoint(numberOf(args.value(0)));
        const Qt::MouseButton button = buttonOf(args);
        if (verb == QLatin1String("click"))
            QTest::mouseClick(probe.canvas(), button, modifiers(args), at);
        else
            QTest::mouseDClick(probe.canvas(), button, modifiers(args), at);
    } else if (verb == QLatin1String("press") || verb == QLatin1String("release") ||
               verb == QLatin1String("move")) {
        QWidget* target = widget(args.value(0));
        if (!target)
            return false;
        const QPoint at = place(1);
        if (verb == QLatin1String("press"))
            QTest::mousePress(target, buttonOf(args), modifiers(args), at);
        else if (verb == QLatin1String("release"))
            QTest::mouseRelease(target, buttonOf(args), modifiers(args), at);
        else
            QTest::mouseMove(target, at);
    } else if (verb == QLatin1String("clickon")) {
        QWidget* target = widget(args.value(0));
        if (!target)
            return false;
        QTest::mouseClick(target, buttonOf(args));
    } else if (verb == QLatin1String("barfoot")) {
        // The arrow at the foot of the scroll bar.
        QScrollBar* bar = probe.bar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() - 3));
    } else if (verb == QLatin1String("scroll")) {
        // The bar moved as a user moves it; the list repaints inside this call.
        probe.bar()->setValue(int(numberOf(args.value(0))));
    } else if (verb == QLatin1String("hover")) {
        // The pointer steps across as well, so that each call is a move of its own.
        QTest::mouseMove(probe.canvas(),
                         QPoint(20 + (++m_moves % 2), rowPoint(numberOf(args.value(0))).y()));
    } else {
        return false;
    }
    return true;
}

// --- Looking inside ----------------------------------------------------------------

bool ListTrace::inspect(const QString& verb, const QStringList& args)
{
    ListProbe probe(*m_list);
    const QImage& canvas = m_list->canvas();
    const auto inked = [&](int top, int bottom) {
        std::optional<QPoint> first;
        const QRgb g = ground();
        for (int y = std::max(0, top); y < std::min(bottom, canvas.height()); ++y)
            for (int x = 0; x < canvas.width(); ++x)
                if ((canvas.pixel(x, y) & 0xFFFFFF) != (g & 0xFFFFFF)) {
                    if (!first)
                        first = QPoint(x, y);
                    first->setX(std::min(first->x(), x));
                }
        return first;
    };

    if (verb == QLatin1String("records")) {
        for (size_t i = 1; i < probe.items().size(); ++i)
            say(QStringLiteral("%1 %2").arg(i).arg(quoted(probe.items()[i])));
    } else if (verb == QLatin1String("texts")) {
        QStringList texts;
        for (int it = 0; it < m_list->state().ItemCount; ++it)
            texts << shown(m_list->List(it));
        say(texts.join(QLatin1Char(' ')));
    } else if (verb == QLatin1String("pixel")) {
        const int x = int(numberOf(args.value(0))), y = int(numberOf(args.value(1)));
        say(QStringLiteral("pixel %1 %2 %3").arg(x).arg(y).arg(colourName(canvas.pixel(x, y))));
    } else if (verb == QLatin1String("ink")) {
        // The first inked pixel row, and the leftmost inked column, in canvas rows from
        // `from` to `to` (the row bands the row height gives), or from a pixel row down.
        int top, bottom;
        if (args.value(0) == QLatin1String("below")) {
            top = int(numberOf(args.value(1)));
            bottom = canvas.height();
        } else {
            const double row = m_list->state().RowTwips;
            top = pixelsDown(numberOf(args.value(0)) * row);
            bottom = pixelsDown((numberOf(args.value(args.size() > 1 ? 1 : 0)) + 1) * row);
        }
        const auto at = inked(top, bottom);
        say(at ? QStringLiteral("ink %1 %2").arg(at->x()).arg(at->y()) : QStringLiteral("no ink"));
    } else if (verb == QLatin1String("colours")) {
        // The colours of a canvas row band, most used first.
        const double row = m_list->state().RowTwips;
        const int r = int(numberOf(args.value(0)));
        std::map<QRgb, int> count;
        for (int y = pixelsDown(r * row); y < std::min(pixelsDown((r + 1) * row), canvas.height());
             ++y)
            for (int x = 0; x < canvas.width(); ++x)
                ++count[canvas.pixel(x, y) & 0xFFFFFF];
        std::vector<std::pair<int, QRgb>> byUse;
        for (const auto& [colour, uses] : count)
            byUse.emplace_back(-uses, colour);
        std::sort(byUse.begin(), byUse.end());
        QStringList names;
        for (size_t i = 0; i < byUse.size() && i < 3; ++i)
            names << colourName(byUse[i].second);
        say(QStringLiteral("colours ") + names.join(QLatin1Char(' ')));
    } else if (verb == QLatin1String("pictures")) {
        // Each picture of the list's image list: its size and its colours.
        const auto images = m_list->PictureList();
        for (int i = 1; images && i <= images->count(); ++i) {
            const QImage picture = images->ListImages(i).Picture;
            std::map<QRgb, int> colours;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    ++colours[picture.pixel(x, y) & 0xFFFFFF];
            QStringList names;
            for (const auto& [colour, uses] : colours)
                names << QStringLiteral("%1x%2").arg(colourName(colour)).arg(uses);
            say(QStringLiteral("picture %1 %2x%3 %4")
                    .arg(i)
                    .arg(picture.width())
                    .arg(picture.height())
                    .arg(names.join(QLatin1Char(' '))));
        }
    } else if (verb == QLatin1String("arrow")) {
        // The drop button's picture, a character a pixel: # ink, . clear.
        const QImage picture = probe.button()->pixmap().toImage();
        for (int y = 0; y < picture.height(); ++y) {
            QString row;
            for (int x = 0; x < picture.width(); ++x)
                row += qAlpha(picture.pixel(x, y)) > 127 ? QLatin1Char('#') : QLatin1Char('.');
            say(row);
        }
    } else if (verb == QLatin1String("snap")) {
        m_snaps[args.value(0)] = canvas.copy();
    } else if (verb == QLatin1String("compare")) {
        // Pixel rows as runs: the same as the snapshot, every pixel inverted, or other.
        const QImage& was = m_snaps[args.value(0)];
        // "within": only the snapshot's own rectangle of a canvas that has grown.
        const bool within = args.value(1) == QLatin1String("within") &&
                            was.width() <= canvas.width() && was.height() <= canvas.height();
        if (!within && was.size() != canvas.size()) {
            say(QStringLiteral("size %1x%2 was %3x%4")
                    .arg(canvas.width())
                    .arg(canvas.height())
                    .arg(was.width())
                    .arg(was.height()));
            return true;
        }
        QStringList runs;
        QString kind;
        int start = 0;
        for (int y = 0; y <= was.height(); ++y) {
            QString k;
            if (y < was.height()) {
                bool same = true, inverted = true;
                for (int x = 0; x < was.width(); ++x) {
                    const QRgb a = was.pixel(x, y) & 0xFFFFFF, b = canvas.pixel(x, y) & 0xFFFFFF;
                    same = same && a == b;
                    inverted = inverted && b == (~a & 0xFFFFFF);
                }
                k = same       ? QStringLiteral("same")
                    : inverted ? QStringLiteral("inverted")
                               : QStringLiteral("changed");
            }
            if (k != kind) {
                if (!kind.isEmpty())
                    runs << QStringLiteral("%1 %2-%3").arg(kind).arg(start).arg(y - 1);
                kind = k;
                start = y;
            }
        }
        say(runs.join(QLatin1String(", ")));
    } else if (verb == QLatin1String("geometry")) {
        QWidget* w = widget(args.value(0));
        if (!w)
            return false;
        const QRect g = w->geometry();
        say(QStringLiteral("%1 %2,%3 %4x%5")
                .arg(args.value(0))
                .arg(g.x())
                .arg(g.y())
                .arg(g.width())
                .arg(g.height()));
    } else if (verb == QLatin1String("at")) {
        // Which widget of the host stands at a point of the host.
        QWidget* w =
            m_host ? m_host->childAt(int(numberOf(args.value(0))), int(numberOf(args.value(1))))
                   : nullptr;
        QString name = QStringLiteral("nothing");
        for (const char* n : {"canvas", "head", "button", "bar", "below", "elsewhere"})
            if (w && w == widget(QLatin1String(n)))
                name = QLatin1String(n);
        if (w && name == QLatin1String("nothing") && m_list->isAncestorOf(w))
            name = QStringLiteral("list");
        say(QStringLiteral("at ") + name);
    } else if (verb == QLatin1String("DrawRows")) {
        // "view" stands for the number of rows in view.
        const QString last = args.value(1);
        probe.DrawRows(int16_t(numberOf(args.value(0))), last == QLatin1String("view")
                                                             ? m_list->state().RowsInView
                                                             : int16_t(numberOf(last)));
    } else if (verb == QLatin1String("DrawOneRow")) {
        probe.DrawOneRow(int16_t(numberOf(args.value(0))));
    } else if (verb == QLatin1String("InvertRowStrip")) {
        probe.InvertRowStrip(int16_t(numberOf(args.value(0))));
    } else if (verb == QLatin1String("hidecanvas")) {
        probe.canvas()->hide();
    } else if (verb == QLatin1String("poke")) {
        // Inner values set by hand, as a run of events could have left them.
        const QString what = args.value(0);
        if (what == QLatin1String("chosen"))
            probe.ChosenIndex(textOf(args.value(1)));
        else if (what == QLatin1String("head"))
            probe.head()->setText(textOf(args.value(1)));
        else if (what == QLatin1String("width")) {
            auto& record = probe.items().at(size_t(numberOf(args.value(1))));
            QStringList columns = itemrecord::Split(record);
            columns[itemrecord::DrawnWidth] = textOf(args.value(2));
            record = itemrecord::join(columns);
        } else
            return false;
    } else {
        return false;
    }
    return true;
}

QRgb ListTrace::ground() const
{
    return olecolor::toQColor(ListProbe(*m_list).canvas()->BackColor()).rgb();
}

// Canvas rows whose strip reads inverted at the canvas' right end, where no text reaches.
QString ListTrace::marks() const
{
    const ListState& st = m_list->state();
    const QImage& canvas = m_list->canvas();
    QStringList rows;
    if (st.RowTwips <= 0 || canvas.isNull())
        return QString();
    const QRgb inverse = ~ground() & 0xFFFFFF;
    for (int r = 0; r < st.RowsInView; ++r) {
        const int y = pixelsDown((r + 0.5) * st.RowTwips);
        if (y >= canvas.height())
            break;
        if ((canvas.pixel(canvas.width() - 3, y) & 0xFFFFFF) == inverse)
            rows << QString::number(r);
    }
    return rows.join(QLatin1Char(','));
}

QStringList ListTrace::stateLines() const
{
    const UserControl1& list = *m_list;
    const ListState& st = list.state();
    ListProbe probe(*m_list);
    QStringList lines;
    lines << QStringLiteral("items %1 entries %2")
                 .arg(st.ItemCount)
                 .arg(int(probe.items().size()) - 1);
    const QString marked = marks();
    lines << QStringLiteral("view top %1 bottom %2 selected %3 marks %4")
                 .arg(st.TopRow)
                 .arg(st.BottomRow)
                 .arg(st.SelectedRow)
                 .arg(marked.isEmpty() ? QStringLiteral("none") : marked);
    lines << QStringLiteral("bar %1/%2%3")
                 .arg(probe.bar()->value())
                 .arg(probe.bar()->maximum())
                 .arg(probe.bar()->isHidden() ? QStringLiteral(" hidden") : QString());
    lines << QStringLiteral("rows height %1 text %2 inview %3 view %4 pixel %5,%6")
                 .arg(st.RowTwips)
                 .arg(st.TextTwips)
                 .arg(st.RowsInView)
                 .arg(st.ViewHeight)
                 .arg(st.PixelTwipsX)
                 .arg(st.PixelTwipsY);
    // What the property stores keep, which no member reads back.
    lines << QStringLiteral("stores count %1 index %2 text %3 list %4")
                 .arg(shown(st.ListCountStore), shown(st.ListIndexStore), shown(st.TextStore),
                      shown(st.ListStore));
    lines << QStringLiteral("pick last %1 chosen %2 head %3")
                 .arg(quoted(probe.LastAddedIndex()), quoted(probe.ChosenIndex()),
                      quoted(probe.head()->text()));
    lines << QStringLiteral("size list %1 canvas %2%3")
                 .arg(sizeOf(&list), sizeOf(probe.canvas()),
                      probe.canvas()->isHidden() ? QStringLiteral(" hidden") : QString());
    QString focus = QStringLiteral("none");
    for (const char* n : {"canvas", "head", "button", "bar"})
        if (QApplication::focusWidget() && QApplication::focusWidget() == widget(QLatin1String(n)))
            focus = QLatin1String(n);
    lines << QStringLiteral("focus ") + focus;
    lines << QStringLiteral("tip ") + quoted(probe.canvas()->toolTip());
    return lines;
}
