// Draws the pictures of the help page into a folder, at 1x and at twice the size for
// screens at scale 2 (ring.png, ring@2x.png): draw_help_pictures <folder>
// The pictures are committed; the build never runs this. Run it again after a change
// here and look at the result before committing.

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdio>

namespace {

const QColor Face(240, 240, 240);
const QColor RedBody(255, 0, 0);
const QColor RedDark(119, 0, 0);
const QColor GreenBody(0, 187, 0);
const QColor GreenDark(0, 85, 0);
const QColor Path(160, 0, 160);

constexpr int Width = 420;
constexpr int Height = 190;
constexpr double Radius = 15;
constexpr double TopRow = 52;
constexpr double BottomRow = 138;
constexpr double Between = (TopRow + BottomRow) / 2;

double column(int i)
{
    return 110 + i * 40;
}

void disc(QPainter& painter, QPointF centre, const QColor& body, const QColor& dark, bool sunken,
          const QString& count)
{
    QRadialGradient shade(centre + (sunken ? QPointF(4, 4) : QPointF(-5, -5)), Radius * 1.6);
    shade.setColorAt(0, body.lighter(sunken ? 100 : 130));
    shade.setColorAt(1, sunken ? body.darker(140) : dark);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(shade);
    painter.drawEllipse(centre, Radius, Radius);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(centre.x() - Radius, centre.y() - Radius, 2 * Radius, 2 * Radius),
                     Qt::AlignCenter, count);
}

void arrowHead(QPainter& painter, QPointF tip, double angle)
{
    const double size = 10;
    QPolygonF head;
    head << tip << tip - QPointF(size * std::cos(angle - 0.45), size * std::sin(angle - 0.45))
         << tip - QPointF(size * std::cos(angle + 0.45), size * std::sin(angle + 0.45));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Path);
    painter.drawPolygon(head);
}

// The way of the beads: right along the green row, up through the human's bank, left
// along the red row, down through the computer's bank and on round.
void sowingPath(QPainter& painter)
{
    const double left = 40;
    const double right = Width - 40;
    const double low = BottomRow + 26;
    const double high = TopRow - 26;
    QPainterPath path;
    path.moveTo(column(0) - 20, low);
    path.lineTo(column(5) + 20, low);
    path.quadTo(right, low, right, Between);
    path.quadTo(right, high, column(5) + 20, high);
    path.lineTo(column(0) - 20, high);
    path.quadTo(left, high, left, Between);
    path.quadTo(left, low, column(0) - 20, low);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Path, 2, Qt::DashLine));
    painter.drawPath(path);
    const double pi = std::acos(-1.0);
    arrowHead(painter, QPointF(column(3), low), 0);
    arrowHead(painter, QPointF(right, Between), -pi / 2);
    arrowHead(painter, QPointF(column(2), high), pi);
    arrowHead(painter, QPointF(left, Between), pi / 2);
}

QImage ring(int scale)
{
    QImage image(Width * scale, Height * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Face);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    sowingPath(painter);

    QFont counts(QStringLiteral("Arial"));
    counts.setPixelSize(13);
    counts.setBold(true);
    painter.setFont(counts);
    for (int i = 0; i < 6; ++i) {
        disc(painter, {column(i), BottomRow}, GreenBody, GreenDark, false, QStringLiteral("3"));
        disc(painter, {column(i), TopRow}, RedBody, RedDark, false, QStringLiteral("3"));
    }
    disc(painter, {column(0) - 46, Between}, RedBody, RedDark, true, QStringLiteral("0"));
    disc(painter, {column(5) + 46, Between}, GreenBody, GreenDark, true, QStringLiteral("0"));

    QFont letters(QStringLiteral("Arial"));
    letters.setPixelSize(16);
    letters.setBold(true);
    painter.setFont(letters);
    painter.setPen(Qt::black);
    for (int i = 0; i < 6; ++i)
        painter.drawText(QRectF(column(i) - 15, Between - 12, 30, 24), Qt::AlignCenter,
                         QString(QChar('A' + i)));

    QFont words(QStringLiteral("Arial"));
    words.setPixelSize(11);
    painter.setFont(words);
    painter.setPen(RedDark);
    painter.drawText(QRectF(0, 2, Width, 14), Qt::AlignCenter,
                     QStringLiteral("the computer's row"));
    painter.drawText(QRectF(4, 2, 120, 14), Qt::AlignLeft, QStringLiteral("computer's bank"));
    painter.setPen(GreenDark);
    painter.drawText(QRectF(0, Height - 16, Width, 14), Qt::AlignCenter,
                     QStringLiteral("your row"));
    painter.drawText(QRectF(Width - 124, Height - 16, 120, 14), Qt::AlignRight,
                     QStringLiteral("your bank"));
    return image;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: draw_help_pictures <folder>\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const bool written = ring(1).save(folder.filePath(QStringLiteral("ring.png"))) &&
                         ring(2).save(folder.filePath(QStringLiteral("ring@2x.png")));
    if (!written) {
        std::fprintf(stderr, "draw_help_pictures: cannot write into %s\n", argv[1]);
        return 1;
    }
    return 0;
}
