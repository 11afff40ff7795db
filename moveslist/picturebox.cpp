#include "moveslist/picturebox.h"

#include "common/numbers.h"
#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/olecolor.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include <cmath>
#include <cstring>

namespace {

// A rectangle of widget pixels as the pixels of an image at the given ratio.
QRectF deviceRect(const QRect& logical, qreal ratio)
{
    return QRectF(logical.x() * ratio, logical.y() * ratio, logical.width() * ratio,
                  logical.height() * ratio);
}

// A pixel under a draw mode; only the colour bits take part.
QRgb underMode(int16_t drawMode, QRgb pen, QRgb destination)
{
    switch (drawMode) {
    case PictureBox::MergeNotPen:
        return 0xFF000000u | ((pen | ~destination) & 0xFFFFFFu);
    case PictureBox::Invert:
        return 0xFF000000u | (~destination & 0xFFFFFFu);
    default:
        return 0xFF000000u | (pen & 0xFFFFFFu);
    }
}

} // namespace

PictureBox::PictureBox(QWidget* parent)
    : QWidget(parent), m_drawFont(font()), m_backColour(olecolor::WindowBackground),
      m_foreColour(olecolor::WindowText)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void PictureBox::BackColor(int32_t New_BackColor)
{
    m_backColour = New_BackColor;
    m_canvas = QImage();
    Cls();
}

double PictureBox::twipsPerPixelX() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchX();
}

double PictureBox::twipsPerPixelY() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchY();
}

void PictureBox::Cls()
{
    syncImage();
    m_canvas.fill(olecolor::toQColor(m_backColour));
    m_currentY = 0;
    drawn(logicalRect());
}

void PictureBox::Print(const QString& text)
{
    syncImage();
    const LaidOutText& laidOut = layOut(text);
    QPainter painter(&m_canvas);
    painter.setFont(m_drawFont);
    painter.setPen(olecolor::toQColor(m_foreColour));
    const int top = pixelY(m_currentY);
    painter.drawStaticText(QPoint(0, top), laidOut.text);
    m_currentY += TextHeight(text);
    drawn(QRect(0, top, width(), drawMetrics().height()));
}

double PictureBox::TextWidth(const QString& text) const
{
    syncImage();
    return layOut(text).width * twipsPerPixelX();
}

double PictureBox::TextHeight(const QString& text) const
{
    syncImage();
    const auto lines = static_cast<int>(text.count(QLatin1Char('\n'))) + 1;
    return lines * drawMetrics().height() * twipsPerPixelY();
}

// The modes are applied pixel by pixel: a painter would hand a raster-op line to its
// thread pool, which costs more than the whole row. No pixel is touched twice, so an
// inverting mode never takes its own mark off again.
void PictureBox::Line(double y, double fromX, double toX, int32_t colour)
{
    syncImage();
    const int row = pixelY(y);
    const int left = pixelX(fromX), right = pixelX(toX);
    // Ruled from left to right, the end point left out.
    if (left >= right)
        return;
    horizontalLine(row, left, right - 1, olecolor::toQColor(colour).rgb());
    drawn(QRect(QPoint(left, row), QPoint(right - 1, row)));
}

void PictureBox::filledBox(QPointF from, QPointF to, int32_t colour)
{
    syncImage();
    const QRgb pen = olecolor::toQColor(colour).rgb();
    const QRect area = pixelRect(from, to).intersected(logicalRect());
    for (int y = area.top(); y <= area.bottom(); ++y)
        horizontalLine(y, area.left(), area.right(), pen);
    drawn(area);
}

// Coordinates are the widget's pixels; on a high-density screen each one covers a
// block of the canvas's own, so lines stay as thick as designed and text stays sharp.
void PictureBox::horizontalLine(int y, int left, int right, QRgb pen)
{
    const QRect logical = logicalRect();
    if (y < 0 || y >= logical.height())
        return;
    left = std::max(left, 0);
    right = std::min(right, logical.width() - 1);
    if (left > right)
        return;
    const qreal ratio = m_canvas.devicePixelRatio();
    const auto device = [ratio](int at) { return static_cast<int>(std::lround(at * ratio)); };
    const int lastRow = std::min(device(y + 1), m_canvas.height()) - 1;
    const int lastColumn = std::min(device(right + 1), m_canvas.width()) - 1;
    for (int row = device(y); row <= lastRow; ++row) {
        auto* line = reinterpret_cast<QRgb*>(m_canvas.scanLine(row));
        for (int x = device(left); x <= lastColumn; ++x)
            line[x] = underMode(m_drawMode, pen, line[x]);
    }
}

QRect PictureBox::logicalRect() const
{
    return QRect(QPoint(0, 0), m_canvas.deviceIndependentSize().toSize());
}

void PictureBox::PaintPicture(const QImage& source, QPointF at, QSizeF size, QPointF sourceAt,
                              QSizeF sourceSize, uint32_t rasterCode)
{
    syncImage();
    if (source.isNull())
        throw ListError(ListErrorCode::InvalidPicture);
    const QRect from =
        pixelRect(sourceAt, sourceAt + QPointF(sourceSize.width(), sourceSize.height()));
    const QRect to = pixelRect(at, at + QPointF(size.width(), size.height()));
    // Only the part of the asked rectangle that the picture holds is painted, where it
    // falls in the destination; the rest of the row stays as it was.
    const QRect part =
        from.intersected(QRect(QPoint(0, 0), source.deviceIndependentSize().toSize()));
    if (part.isEmpty() || from.isEmpty() || to.isEmpty())
        return;
    const double sx = double(to.width()) / from.width(), sy = double(to.height()) / from.height();
    const QRectF target(to.x() + (part.x() - from.x()) * sx, to.y() + (part.y() - from.y()) * sy,
                        part.width() * sx, part.height() * sy);
    QPainter painter(&m_canvas);
    painter.setCompositionMode(rasterCode == SourceAnd ? QPainter::RasterOp_SourceAndDestination
                                                       : QPainter::CompositionMode_Source);
    painter.drawImage(target, source, deviceRect(part, source.devicePixelRatio()));
    drawn(target.toAlignedRect());
}

void PictureBox::BitBlt(int x, int y, int width, int height, const PictureBox& source, int sourceX,
                        int sourceY)
{
    BitBlt(x, y, width, height, source.image(), sourceX, sourceY);
}

void PictureBox::BitBlt(int x, int y, int width, int height, const QImage& from, int sourceX,
                        int sourceY)
{
    syncImage();
    // Only what the source holds is copied; the part of the block past its edge
    // stays as it was.
    const QRect whole(QPoint(0, 0), from.deviceIndependentSize().toSize());
    const QRect block = QRect(sourceX, sourceY, width, height).intersected(whole);
    if (block.isEmpty())
        return;
    const QPoint target(x + block.x() - sourceX, y + block.y() - sourceY);
    const qreal ratio = m_canvas.devicePixelRatio();
    if (from.format() == m_canvas.format() && from.devicePixelRatio() == ratio &&
        m_canvas.depth() == 32) {
        // A plain copy of whole pixels, line by line: a painter's set-up costs more than
        // the row it would copy.
        const QRect source = deviceRect(block, ratio).toAlignedRect();
        const QRect into = QRect(deviceRect(QRect(target, block.size()), ratio).toAlignedRect())
                               .intersected(m_canvas.rect());
        const int left = into.x() - (deviceRect(QRect(target, block.size()), ratio).x());
        const int top = into.y() - (deviceRect(QRect(target, block.size()), ratio).y());
        for (int row = 0; row < into.height(); ++row)
            std::memcpy(m_canvas.scanLine(into.y() + row) + into.x() * 4,
                        from.constScanLine(source.y() + top + row) + (source.x() + left) * 4,
                        size_t(into.width()) * 4);
    } else {
        QPainter painter(&m_canvas);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(QRectF(QRect(target, block.size())), from,
                          deviceRect(block, from.devicePixelRatio()));
    }
    drawn(QRect(target, block.size()));
}

void PictureBox::Picture(const QImage& New_Picture)
{
    m_picture = New_Picture;
    if (!m_picture.isNull())
        resize(m_picture.size());
}

void PictureBox::fontName(const QString& New_FontName)
{
    if (New_FontName == m_drawFont.family())
        return;
    m_drawFont.setFamily(New_FontName);
    m_metrics.reset();
}

// A log repaints the same lines over and over, each with its text shaped for print
// and for measure: the shaping is kept, by font name and text.
const PictureBox::LaidOutText& PictureBox::layOut(const QString& text) const
{
    const auto key = std::make_pair(m_drawFont.family(), text);
    const auto found = m_laidOutTexts.constFind(key);
    if (found != m_laidOutTexts.constEnd())
        return *found;
    if (m_laidOutTexts.size() >= MaxLaidOutTexts)
        m_laidOutTexts.clear();
    QStaticText staticText(text);
    staticText.setTextFormat(Qt::PlainText);
    staticText.setPerformanceHint(QStaticText::AggressiveCaching);
    const qreal ratio = m_canvas.devicePixelRatio();
    staticText.prepare(QTransform::fromScale(ratio, ratio), m_drawFont);
    return *m_laidOutTexts.insert(key, {staticText, drawMetrics().horizontalAdvance(text)});
}

void PictureBox::FontSize(float New_FontSize)
{
    m_drawFont.setPointSizeF(New_FontSize);
    m_metrics.reset();
    m_laidOutTexts.clear();
}

// Rows set the same font name over and over: the measures are kept until it changes.
const QFontMetrics& PictureBox::drawMetrics() const
{
    syncImage();
    if (!m_metrics)
        m_metrics.emplace(m_drawFont, &m_canvas);
    return *m_metrics;
}

const QImage& PictureBox::image() const
{
    syncImage();
    return m_canvas;
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    m_waiting = QRect();
    syncImage();
    QPainter painter(this);
    painter.drawImage(QRectF(event->rect()), m_canvas,
                      deviceRect(event->rect(), m_canvas.devicePixelRatio()));
}

// The surfaces have the control's font: a font its host gives it reaches them too.
void PictureBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        m_drawFont = font();
        m_metrics.reset();
        m_laidOutTexts.clear();
    }
    QWidget::changeEvent(event);
}

void PictureBox::resizeEvent(QResizeEvent* event)
{
    syncImage();
    QWidget::resizeEvent(event);
}

void PictureBox::syncImage() const
{
    // The canvas has the screen's own pixels, so that text is drawn sharp on a
    // high-density screen rather than scaled up.
    const qreal ratio = devicePixelRatioF();
    const QSize logical = size().expandedTo(QSize(1, 1));
    const QSize wanted(static_cast<int>(std::lround(logical.width() * ratio)),
                       static_cast<int>(std::lround(logical.height() * ratio)));
    if (m_canvas.size() == wanted && m_canvas.devicePixelRatio() == ratio)
        return;
    QImage grown(wanted, QImage::Format_RGB32);
    grown.setDevicePixelRatio(ratio);
    grown.setDotsPerMeterX(std::lround(screen()->logicalDotsPerInchX() / 0.0254));
    grown.setDotsPerMeterY(std::lround(screen()->logicalDotsPerInchY() / 0.0254));
    grown.fill(olecolor::toQColor(m_backColour));
    if (!m_canvas.isNull()) {
        QPainter painter(&grown);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(QPointF(0, 0), m_canvas);
    }
    if (m_canvas.devicePixelRatio() != ratio)
        m_laidOutTexts.clear();
    m_canvas = grown;
}

int PictureBox::pixelX(double twips) const
{
    return twipsToPixels(twips, twipsPerPixelX());
}

int PictureBox::pixelY(double twips) const
{
    return twipsToPixels(twips, twipsPerPixelY());
}

// The box from one corner up to, not including, the other.
QRect PictureBox::pixelRect(QPointF from, QPointF to) const
{
    const int left = pixelX(std::min(from.x(), to.x()));
    const int right = pixelX(std::max(from.x(), to.x()));
    const int top = pixelY(std::min(from.y(), to.y()));
    const int bottom = pixelY(std::max(from.y(), to.y()));
    return QRect(left, top, right - left, bottom - top);
}

// What was drawn is shown at the next paint. A row drawn inside a region already
// waiting for it asks for nothing more.
void PictureBox::drawn(const QRect& area)
{
    if (m_waiting.contains(area))
        return;
    m_waiting = m_waiting.united(area);
    update(area);
}
