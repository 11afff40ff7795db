#include "moveslist/picturebox.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/olecolor.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include <cmath>

using moveslist::R;

namespace {

constexpr double TwipsPerInch = 1440.0;

QPainter::CompositionMode RasterOp(int16_t drawMode)
{
    switch (drawMode) {
    case PictureBox::MergeNotPen:
        return QPainter::RasterOp_SourceOrNotDestination;
    case PictureBox::Invert:
        return QPainter::RasterOp_NotDestination;
    default:
        return QPainter::CompositionMode_Source;
    }
}

// Lines and strips are drawn pixel for pixel: an inverting mode hit twice on one
// pixel would take its own mark off again.
void PlainPixels(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

PictureBox::PictureBox(QWidget* parent)
    : QWidget(parent), drawFont(font()), backColour(olecolor::WindowBackground),
      foreColour(olecolor::WindowText)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void PictureBox::BackColor(int32_t New_BackColor)
{
    backColour = New_BackColor;
    canvas = QImage();
    Cls();
}

double PictureBox::TwipsPerPixelX() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchX();
}

double PictureBox::TwipsPerPixelY() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchY();
}

void PictureBox::Cls()
{
    syncImage();
    canvas.fill(olecolor::ToQColor(backColour));
    currentY = 0;
    drawn(canvas.rect());
}

void PictureBox::Print(const QString& text)
{
    syncImage();
    QPainter painter(&canvas);
    painter.setFont(drawFont);
    painter.setPen(olecolor::ToQColor(foreColour));
    const QFontMetrics metrics(drawFont, &canvas);
    const int top = PixelY(currentY);
    painter.drawText(QPoint(0, top + metrics.ascent()), text);
    currentY += TextHeight(text);
    drawn(QRect(0, top, canvas.width(), metrics.height()));
}

double PictureBox::TextWidth(const QString& text) const
{
    syncImage();
    return QFontMetrics(drawFont, &canvas).horizontalAdvance(text) * TwipsPerPixelX();
}

double PictureBox::TextHeight(const QString& text) const
{
    syncImage();
    const auto lines = static_cast<int>(text.count(QLatin1Char('\n'))) + 1;
    return lines * QFontMetrics(drawFont, &canvas).height() * TwipsPerPixelY();
}

void PictureBox::Line(QPointF from, QPointF to, int32_t colour)
{
    syncImage();
    QPainter painter(&canvas);
    PlainPixels(painter);
    painter.setCompositionMode(RasterOp(drawMode));
    painter.setPen(QPen(olecolor::ToQColor(colour), 0));
    const QPoint a(PixelX(from.x()), PixelY(from.y()));
    const QPoint b(PixelX(to.x()), PixelY(to.y()));
    // The end point is not part of the line; a horizontal line across the canvas
    // ends past its edge anyway.
    if (a.y() == b.y())
        painter.drawLine(a, QPoint(b.x() - (b.x() > a.x() ? 1 : -1), b.y()));
    else
        painter.drawLine(a, b);
    drawn(QRect(a, b).normalized().adjusted(-1, -1, 1, 1));
}

void PictureBox::FilledBox(QPointF from, QPointF to, int32_t colour)
{
    syncImage();
    const QRect area = PixelRect(from, to);
    QPainter painter(&canvas);
    PlainPixels(painter);
    painter.setCompositionMode(RasterOp(drawMode));
    painter.fillRect(area, olecolor::ToQColor(colour));
    drawn(area);
}

void PictureBox::PaintPicture(const QImage& source, QPointF at, QSizeF size, QPointF sourceAt,
                              QSizeF sourceSize, uint32_t rasterCode)
{
    syncImage();
    const QRect from =
        PixelRect(sourceAt, sourceAt + QPointF(sourceSize.width(), sourceSize.height()));
    if (source.isNull() || !source.rect().contains(from))
        throw ListError(ListErrorCode::InvalidPicture,
                        QStringLiteral("Invalid picture: the picture has no such part"));
    const QRect to = PixelRect(at, at + QPointF(size.width(), size.height()));
    QPainter painter(&canvas);
    painter.setCompositionMode(rasterCode == SourceAnd ? QPainter::RasterOp_SourceAndDestination
                                                       : QPainter::CompositionMode_Source);
    painter.drawImage(to, source, from);
    drawn(to);
}

void PictureBox::BitBlt(int x, int y, int width, int height, const PictureBox& source, int sourceX,
                        int sourceY)
{
    syncImage();
    const QImage& from = source.image();
    // Only what the source holds is copied; the part of the block past its edge
    // stays as it was.
    const QRect block = QRect(sourceX, sourceY, width, height).intersected(from.rect());
    if (block.isEmpty())
        return;
    QPainter painter(&canvas);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QPoint target(x + block.x() - sourceX, y + block.y() - sourceY);
    painter.drawImage(target, from, block);
    drawn(QRect(target, block.size()));
}

void PictureBox::Picture(const QImage& New_Picture)
{
    picture = New_Picture;
    if (!picture.isNull())
        resize(picture.size());
}

const QImage& PictureBox::image() const
{
    syncImage();
    return canvas;
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    syncImage();
    QPainter painter(this);
    painter.drawImage(event->rect(), canvas, event->rect());
}

void PictureBox::resizeEvent(QResizeEvent* event)
{
    syncImage();
    QWidget::resizeEvent(event);
}

void PictureBox::syncImage() const
{
    const QSize wanted = size().expandedTo(QSize(1, 1));
    if (canvas.size() == wanted)
        return;
    QImage grown(wanted, QImage::Format_RGB32);
    grown.setDotsPerMeterX(std::lround(screen()->logicalDotsPerInchX() / 0.0254));
    grown.setDotsPerMeterY(std::lround(screen()->logicalDotsPerInchY() / 0.0254));
    grown.fill(olecolor::ToQColor(backColour));
    if (!canvas.isNull()) {
        QPainter painter(&grown);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(0, 0, canvas);
    }
    canvas = grown;
}

int PictureBox::PixelX(double twips) const
{
    return static_cast<int>(R(twips / TwipsPerPixelX()));
}

int PictureBox::PixelY(double twips) const
{
    return static_cast<int>(R(twips / TwipsPerPixelY()));
}

// The box from one corner up to, not including, the other.
QRect PictureBox::PixelRect(QPointF from, QPointF to) const
{
    const int left = PixelX(std::min(from.x(), to.x()));
    const int right = PixelX(std::max(from.x(), to.x()));
    const int top = PixelY(std::min(from.y(), to.y()));
    const int bottom = PixelY(std::max(from.y(), to.y()));
    return QRect(left, top, right - left, bottom - top);
}

void PictureBox::drawn(const QRect& area)
{
    update(area);
}
