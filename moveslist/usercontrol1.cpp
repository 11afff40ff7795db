#include "moveslist/usercontrol1.h"

#include "moveslist/lbblock.h"
#include "moveslist/listaccessible.h"
#include "moveslist/listnumbers.h"
#include "moveslist/olecolor.h"
#include "moveslist/picturebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <qdrawutil.h>

namespace {

// The platform's default font, which nothing in the control changes; the desktop
// substitutes its nearest face.
constexpr const char* DefaultFontName = "MS Sans Serif";
constexpr double DefaultFontSize = 8.25;

// Heights the children have from their design.
constexpr double Text1Height = 252;
constexpr double Picture3Height = 315;

// The drop button's picture: a black down arrow 11 pixels wide and 10 high, 2 in
// from the left and 3 down, on a transparent ground. A stem of four rows stands on a
// head that narrows from 11 pixels to 1. Drawn at the screen's own density, so its
// edges stay crisp on a high-density screen.
QPixmap dropArrow(qreal ratio)
{
    QImage arrow(QSize(16, 16) * ratio, QImage::Format_ARGB32);
    arrow.setDevicePixelRatio(ratio);
    arrow.fill(Qt::transparent);
    QPainter painter(&arrow);
    painter.fillRect(QRect(6, 3, 3, 4), Qt::black);
    for (int row = 0; row < 6; ++row)
        painter.fillRect(QRect(2 + row, 7 + row, 11 - 2 * row, 1), Qt::black);
    painter.end();
    return QPixmap::fromImage(arrow);
}

// The list's scroll bar: a new maximum that leaves the thumb where it was, and the
// arrows as they were, leaves the bar's pixels alone too. A log's maximum grows with
// every line, and the thumb of a long log no longer moves.
class ListScrollBar : public QScrollBar {
public:
    explicit ListScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {}

protected:
    void sliderChange(SliderChange change) override
    {
        const auto look = this->look();
        if (change == SliderRangeChange && look == m_painted)
            return;
        m_painted = look;
        QScrollBar::sliderChange(change);
    }

private:
    std::tuple<QRect, bool, bool> look() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return {style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                        this),
                value() == minimum(), value() == maximum()};
    }

    std::tuple<QRect, bool, bool> m_painted;
};

} // namespace

UserControl1::UserControl1(QWidget* parent)
    : QWidget(parent), m_surfaceBackColor(olecolor::ButtonFace),
      m_surfaceForeColor(olecolor::ButtonText)
{
    QFont surfaceFont(QString::fromLatin1(DefaultFontName));
    surfaceFont.setPointSizeF(DefaultFontSize);
    setFont(surfaceFont);
    setAutoFillBackground(true);
    createChildren();
    wireEvents();
    applySurfaceBackColor(m_surfaceBackColor);
    // A new control has a fixed single border.
    applySurfaceBorder(1);
    UserControl_Initialize();
    // Screen readers reach the items through the list's own interface.
    static const bool readable = (QAccessible::installFactory(&ListAccessible::create), true);
    Q_UNUSED(readable);
}

UserControl1* UserControl1::fromBlock(const QByteArray& block, QWidget* parent)
{
    const PropertyBag bag = lbblock::read(block);
    auto list = std::make_unique<UserControl1>(parent);
    list->UserControl_ReadProperties(bag);
    // The extent is kept in hundredths of a millimetre.
    const double width = bag.readProperty(QStringLiteral("_ExtentX"), {}).toNumber();
    const double height = bag.readProperty(QStringLiteral("_ExtentY"), {}).toNumber();
    if (width > 0 && height > 0) {
        const double twipsPerExtent = 1440.0 / 2540.0;
        // Pixels that no widget can have are an overflow, as for any number too large.
        list->resize(moveslist::to32(width * twipsPerExtent / list->screenTwipsX()),
                     moveslist::to32(height * twipsPerExtent / list->screenTwipsY()));
    }
    return list.release();
}

void UserControl1::UserControl_Initialize()
{
    m_state.ItemCount = 0;
    m_state.SelectedRow = -1;
}

void UserControl1::createChildren()
{
    Picture1 = new PictureBox(this);
    Picture1->BackColor(olecolor::WindowBackground);
    // The selection strip is drawn in this mode whether grid lines are on or not.
    Picture1->DrawMode(PictureBox::Invert);

    Picture2 = new PictureBox(this);
    Picture2->hide();

    Picture3 = new PictureBox(this);
    Picture3->BackColor(olecolor::WindowBackground);
    Picture3->hide();
    setChildHeight(Picture3, Picture3Height);

    Text1 = new QLineEdit(this);
    setChildHeight(Text1, Text1Height);

    VScroll1 = new ListScrollBar(this);
    VScroll1->setRange(0, 0);
    VScroll1->setSingleStep(1);
    VScroll1->setPageStep(1);
    // Dragging the thumb repaints when it is released.
    VScroll1->setTracking(false);
    connect(VScroll1, &QScrollBar::valueChanged, this, [this] { VScroll1_Change(); });

    // A picture that serves as a button: raised like one, with no pressed look.
    command1 = new QLabel(this);
    command1->setPixmap(dropArrow(devicePixelRatioF()));
    command1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    command1->setFrameStyle(QFrame::Panel | QFrame::Raised);
    command1->setLineWidth(1);
    command1->setAutoFillBackground(true);
    command1->setBackgroundRole(QPalette::Button);

    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture2->setObjectName(QStringLiteral("Picture2"));
    Picture3->setObjectName(QStringLiteral("Picture3"));
    Text1->setObjectName(QStringLiteral("Text1"));
    VScroll1->setObjectName(QStringLiteral("VScroll1"));
    command1->setObjectName(QStringLiteral("command1"));
}

const QImage& UserControl1::canvas() const
{
    return Picture1->image();
}

void UserControl1::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // A size written through the list has already been laid out inside the write.
    layOutNewSize();
}

void UserControl1::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (m_surfaceBorderStyle != 1)
        return;
    QPainter painter(this);
    qDrawShadePanel(&painter, rect(), palette(), true, borderPixels());
}

// Children are placed inside the border: a new border moves them with the inside.
void UserControl1::applySurfaceBorder(int16_t style)
{
    const int before = borderPixels();
    m_surfaceBorderStyle = style;
    const int border = borderPixels();
    setContentsMargins(border, border, border, border);
    if (border != before)
        for (QWidget* child : {static_cast<QWidget*>(Picture1), static_cast<QWidget*>(Picture2),
                               static_cast<QWidget*>(Picture3), static_cast<QWidget*>(Text1),
                               static_cast<QWidget*>(VScroll1), static_cast<QWidget*>(command1)})
            child->move(child->pos() + QPoint(border - before, border - before));
    update();
}

void UserControl1::applySurfaceBackColor(int32_t colour)
{
    m_surfaceBackColor = colour;
    QPalette surface = palette();
    surface.setColor(QPalette::Window, olecolor::toQColor(colour));
    setPalette(surface);
}

int UserControl1::borderPixels() const
{
    return m_surfaceBorderStyle == 1 ? 2 : 0;
}
