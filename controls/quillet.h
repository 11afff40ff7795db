#pragma once

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>

#include <cstdint>

// The face most of the board is built of: the pots, the command buttons, the message
// bar and the hint's hand. A rectangle with a picture, a caption over it and four
// edges of their own colours. Lengths are twips; mouse events carry the game's button
// numbers (1 left, 2 right, 4 middle) and shift numbers (1 shift, 2 ctrl, 4 alt).
//
// A face that takes the keyboard's focus shows a dotted ring and is pressed by Space,
// as the left button would press it in its middle; a screen reader presses it the same
// way through its Press action.
class Quillet : public QWidget {
    Q_OBJECT
public:
    // What a screen reader makes of a face: a picture, a button it can press, a label,
    // or a bar that is a button while it takes clicks and a status label while not.
    enum class Access { Picture, Button, Label, Bar };

    explicit Quillet(QWidget* parent = nullptr);

    QString caption() const { return m_caption; }
    void caption(const QString& New_caption);
    bool enabled() const;
    void enabled(bool New_enabled);
    const QPixmap& picture() const { return m_picture; }
    void picture(const QPixmap& New_picture);
    QString Tag() const { return m_tag; }
    void Tag(const QString& New_Tag) { m_tag = New_Tag; }
    bool Visible() const { return !isHidden(); }
    void Visible(bool New_Visible) { setVisible(New_Visible); }

    float Left() const;
    void Left(float New_Left);
    float Top() const;
    void Top(float New_Top);
    void place(float left, float top, float width, float height);

    QColor forecolor() const { return m_forecolor; }
    void forecolor(const QColor& New_forecolor);
    QColor backcolor() const { return m_backcolor; }
    void backcolor(const QColor& New_backcolor);
    void bordertop(const QColor& New_bordertop);
    void borderleft(const QColor& New_borderleft);
    void borderright(const QColor& New_borderright);
    void borderbottom(const QColor& New_borderbottom);

    Access access() const { return m_access; }
    void setAccess(Access kind) { m_access = kind; }
    // Off, the caption keeps its colour and the face lies flat: a bar whose words must
    // stay readable while it takes no clicks.
    void setReadableWhenOff(bool readable);
    // The left button pressed and released over the middle of the face, if it is on.
    void press();

signals:
    void MouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void Click();
    void MouseDown(int16_t Button, int16_t Shift, float X, float Y);
    void MouseUp(int16_t Button, int16_t Shift, float X, float Y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum Edge { EdgeTop, EdgeLeft, EdgeRight, EdgeBottom, EdgeCount };

    void setEdge(Edge edge, const QColor& colour);
    void forgetPress();
    void pressDown(int16_t shift);
    void pressUp(int16_t shift);
    QRect pictureRect() const;
    void paintEdges(QPainter& painter) const;
    QColor captionColour() const;
    template <typename Raise> void deliver(Raise&& raiseEvent);

    QString m_caption;
    QString m_tag;
    QPixmap m_picture;
    // The opaque part of the picture: a clear margin may hang over the face's edge.
    QRect m_pictureContent;
    QColor m_forecolor;
    QColor m_backcolor;
    QColor m_edges[EdgeCount];
    // Twips as the caller gave them, so that a read gives back what was written.
    float m_left = 0.0f;
    float m_top = 0.0f;
    // A left press on this face that has not been released yet, and whether the
    // mouse is still over the face: together they make a click and the pressed look.
    bool m_leftPressed = false;
    bool m_pressedInside = false;
    // Space is down on the focused face: its release presses the face.
    bool m_spacePressed = false;
    bool m_readableWhenOff = false;
    Access m_access = Access::Picture;
};
