#include "controls/quillet.h"

#include "common/mouse_numbers.h"
#include "common/twips.h"
#include "controls/quilletaccessible.h"

#include <QAccessible>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <exception>

namespace {

float twipsX(const QMouseEvent* event)
{
    return Twips::fromPixels(static_cast<float>(event->position().x()));
}

float twipsY(const QMouseEvent* event)
{
    return Twips::fromPixels(static_cast<float>(event->position().y()));
}

// The part of a picture that is not fully clear, in its own device-independent pixels.
QRect opaqueBounds(const QPixmap& picture)
{
    const QRect whole(QPoint(0, 0), picture.deviceIndependentSize().toSize());
    if (!picture.hasAlphaChannel())
        return whole;
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) == 0)
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (right < 0)
        return QRect();
    const qreal ratio = picture.devicePixelRatio();
    const QRectF device(left, top, right - left + 1, bottom - top + 1);
    const QRectF logical(device.topLeft() / ratio, device.size() / ratio);
    return logical.toAlignedRect();
}

QColor halfway(const QColor& from, const QColor& to)
{
    return QColor((from.red() + to.red()) / 2, (from.green() + to.green()) / 2,
                  (from.blue() + to.blue()) / 2);
}

} // namespace

Quillet::Quillet(QWidget* parent) : QWidget(parent)
{
    // Moves without a button pressed are what the pots' hover look lives on.
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    const QPalette& colours = palette();
    m_forecolor = colours.color(QPalette::WindowText);
    m_backcolor = colours.color(QPalette::Button);
    m_edges[EdgeTop] = colours.color(QPalette::Light);
    m_edges[EdgeLeft] = colours.color(QPalette::Light);
    m_edges[EdgeRight] = colours.color(QPalette::Dark);
    m_edges[EdgeBottom] = colours.color(QPalette::Dark);
    // Only the window makes a face reachable by Tab.
    setFocusPolicy(Qt::NoFocus);
    static const bool readable = (QAccessible::installFactory(&QuilletAccessible::create), true);
    Q_UNUSED(readable);
}

void Quillet::caption(const QString& New_caption)
{
    if (New_caption == m_caption)
        return;
    m_caption = New_caption;
    update();
    // A face without a name of its own is read by its caption: a new caption is a new
    // name, and the message bar is heard saying it.
    if (accessibleName().isEmpty() && QAccessible::isActive()) {
        QAccessibleEvent renamed(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&renamed);
    }
}

void Quillet::setReadableWhenOff(bool readable)
{
    m_readableWhenOff = readable;
    update();
}

bool Quillet::enabled() const
{
    // The face's own setting: a disabled frame round it does not change what it holds.
    return !testAttribute(Qt::WA_ForceDisabled);
}

void Quillet::enabled(bool New_enabled)
{
    setEnabled(New_enabled);
}

void Quillet::picture(const QPixmap& New_picture)
{
    if (New_picture.cacheKey() == m_picture.cacheKey())
        return;
    m_picture = New_picture;
    m_pictureContent = m_picture.isNull() ? QRect() : opaqueBounds(m_picture);
    update();
}

float Quillet::Left() const
{
    // A move by plain Qt calls leaves the twips behind; the pixels then tell.
    return Twips::toPixels(m_left) == x() ? m_left : Twips::fromPixels(static_cast<float>(x()));
}

void Quillet::Left(float New_Left)
{
    m_left = New_Left;
    move(Twips::toPixels(New_Left), y());
}

float Quillet::Top() const
{
    return Twips::toPixels(m_top) == y() ? m_top : Twips::fromPixels(static_cast<float>(y()));
}

void Quillet::Top(float New_Top)
{
    m_top = New_Top;
    move(x(), Twips::toPixels(New_Top));
}

void Quillet::place(float left, float top, float width, float height)
{
    m_left = left;
    m_top = top;
    setGeometry(Twips::toPixels(left, top, width, height));
}

void Quillet::forecolor(const QColor& New_forecolor)
{
    m_forecolor = New_forecolor;
    update();
}

void Quillet::backcolor(const QColor& New_backcolor)
{
    m_backcolor = New_backcolor;
    update();
}

void Quillet::bordertop(const QColor& New_bordertop)
{
    setEdge(EdgeTop, New_bordertop);
}

void Quillet::borderleft(const QColor& New_borderleft)
{
    setEdge(EdgeLeft, New_borderleft);
}

void Quillet::borderright(const QColor& New_borderright)
{
    setEdge(EdgeRight, New_borderright);
}

void Quillet::borderbottom(const QColor& New_borderbottom)
{
    setEdge(EdgeBottom, New_borderbottom);
}

void Quillet::setEdge(Edge edge, const QColor& colour)
{
    m_edges[edge] = colour;
    update();
}

void Quillet::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_backcolor);
    if (!m_picture.isNull()) {
        const QRect target = pictureRect();
        if (target.size() != m_picture.deviceIndependentSize().toSize())
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(target, m_picture);
    }
    if (!m_caption.isEmpty()) {
        painter.setPen(captionColour());
        painter.setFont(font());
        painter.drawText(rect(), Qt::AlignCenter, m_caption);
    }
    if (!(m_readableWhenOff && !isEnabled()))
        paintEdges(painter);
    if (hasFocus()) {
        // The keyboard's ring, inside the edges, in the caption's own colour.
        painter.setPen(QPen(m_forecolor, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(3, 3, -4, -4));
    }
}

QRect Quillet::pictureRect() const
{
    const QSize size = m_picture.deviceIndependentSize().toSize();
    // Whole pixels from the face's corner keep a picture of the screen's own ratio crisp.
    const QRect centred(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    if (m_pictureContent.isEmpty())
        return centred;
    // Shrink about the picture's centre, only as far as its visible part needs to fit:
    // a clear margin may hang over the edges.
    const QPointF middle = QRectF(QPointF(0, 0), QSizeF(size)).center();
    const qreal reachX =
        std::max(middle.x() - m_pictureContent.left(), m_pictureContent.right() + 1 - middle.x());
    const qreal reachY =
        std::max(middle.y() - m_pictureContent.top(), m_pictureContent.bottom() + 1 - middle.y());
    const qreal scale = std::min({1.0, width() / (2.0 * reachX), height() / (2.0 * reachY)});
    if (scale == 1.0)
        return centred;
    const QSize shrunk = (QSizeF(size) * scale).toSize();
    return QRect(QPoint((width() - shrunk.width()) / 2, (height() - shrunk.height()) / 2), shrunk);
}

QColor Quillet::captionColour() const
{
    // A plain button greys its text while it cannot be used; a face with a picture, a
    // pot or a bank, keeps its count readable whatever its state.
    if (isEnabled() || !m_picture.isNull() || m_readableWhenOff)
        return m_forecolor;
    return halfway(m_forecolor, m_backcolor);
}

void Quillet::paintEdges(QPainter& painter) const
{
    const bool sunk = m_leftPressed && m_pressedInside;
    const int right = width() - 1;
    const int bottom = height() - 1;
    // Top and left first: the shadow edges own the two far corners, as on a raised key.
    painter.fillRect(QRect(0, 0, width(), 1), m_edges[sunk ? EdgeBottom : EdgeTop]);
    painter.fillRect(QRect(0, 0, 1, height()), m_edges[sunk ? EdgeRight : EdgeLeft]);
    painter.fillRect(QRect(right, 0, 1, height()), m_edges[sunk ? EdgeLeft : EdgeRight]);
    painter.fillRect(QRect(0, bottom, width(), 1), m_edges[sunk ? EdgeTop : EdgeBottom]);
}

template <typename Raise> void Quillet::deliver(Raise&& raiseEvent)
{
    // The game's handlers run inside this mouse event; whatever goes wrong in them must
    // not take the event loop down with it.
    try {
        raiseEvent();
    } catch (const std::exception& error) {
        qWarning("Quillet: a handler of the face failed: %s", error.what());
    } catch (...) {
        qWarning("Quillet: a handler of the face failed");
    }
}

void Quillet::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_leftPressed = true;
        m_pressedInside = true;
        update();
    }
    const int16_t button = buttonNumber(event->button());
    const int16_t shift = shiftNumber(event->modifiers());
    deliver([&] { emit MouseDown(button, shift, twipsX(event), twipsY(event)); });
}

void Quillet::mouseReleaseEvent(QMouseEvent* event)
{
    const bool leftClick = event->button() == Qt::LeftButton && m_leftPressed &&
                           rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton)
        forgetPress();
    const int16_t button = buttonNumber(event->button());
    const int16_t shift = shiftNumber(event->modifiers());
    QPointer<Quillet> alive(this);
    deliver([&] { emit MouseUp(button, shift, twipsX(event), twipsY(event)); });
    // The handler of the release may have closed the face or turned it off; then the
    // click is not for it any more.
    if (!alive || !isEnabled() || !leftClick)
        return;
    deliver([&] { emit Click(); });
}

void Quillet::mouseMoveEvent(QMouseEvent* event)
{
    if (m_leftPressed) {
        const bool inside = rect().contains(event->position().toPoint());
        if (inside != m_pressedInside) {
            m_pressedInside = inside;
            update();
        }
    }
    const int16_t button = buttonNumber(event->buttons());
    const int16_t shift = shiftNumber(event->modifiers());
    deliver([&] { emit MouseMove(button, shift, twipsX(event), twipsY(event)); });
}

void Quillet::pressDown(int16_t shift)
{
    m_leftPressed = true;
    m_pressedInside = true;
    update();
    const QPointF middle = QRectF(rect()).center();
    deliver([&] {
        emit MouseDown(1, shift, Twips::fromPixels(float(middle.x())),
                       Twips::fromPixels(float(middle.y())));
    });
}

void Quillet::pressUp(int16_t shift)
{
    forgetPress();
    const QPointF middle = QRectF(rect()).center();
    QPointer<Quillet> alive(this);
    deliver([&] {
        emit MouseUp(1, shift, Twips::fromPixels(float(middle.x())),
                     Twips::fromPixels(float(middle.y())));
    });
    if (alive && isEnabled())
        deliver([&] { emit Click(); });
}

void Quillet::press()
{
    if (!isEnabled())
        return;
    QPointer<Quillet> alive(this);
    pressDown(0);
    if (alive && isEnabled())
        pressUp(0);
}

// Space presses the face and its release lets go, as the left button does: a held
// hint shows while Space is held. Enter is left to the window, which plays the pot the
// keys selected.
void Quillet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat() && !m_spacePressed) {
        m_spacePressed = true;
        pressDown(shiftNumber(event->modifiers()));
    }
}

void Quillet::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !m_spacePressed)
        return;
    m_spacePressed = false;
    if (isEnabled())
        pressUp(shiftNumber(event->modifiers()));
}

// The focus gone with Space still down: the press is let go without a click, as a
// release off the face would be.
void Quillet::focusOutEvent(QFocusEvent* event)
{
    if (m_spacePressed) {
        m_spacePressed = false;
        forgetPress();
        const QPointF middle = QRectF(rect()).center();
        deliver([&] {
            emit MouseUp(1, 0, Twips::fromPixels(float(middle.x())),
                         Twips::fromPixels(float(middle.y())));
        });
    }
    QWidget::focusOutEvent(event);
}

void Quillet::changeEvent(QEvent* event)
{
    // A face turned off with the button still down never sees the release.
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        forgetPress();
    QWidget::changeEvent(event);
}

void Quillet::hideEvent(QHideEvent* event)
{
    forgetPress();
    QWidget::hideEvent(event);
}

void Quillet::forgetPress()
{
    if (!m_leftPressed)
        return;
    m_leftPressed = false;
    m_pressedInside = false;
    update();
}
