#pragma once

#include "moveslist/picturebox.h"
#include "moveslist/usercontrol1.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

// Reaches the list's children and inner steps, which a host never sees: the trace
// shows them beside what the host can read.
class ListProbe {
public:
    explicit ListProbe(UserControl1& list) : m_list(list) {}

    PictureBox* canvas() const { return m_list.Picture1; }
    QLineEdit* head() const { return m_list.Text1; }
    QScrollBar* bar() const { return m_list.VScroll1; }
    QLabel* button() const { return m_list.command1; }

    void DrawRows(int16_t first, int16_t last) { m_list.DrawRows(first, last); }
    void DrawOneRow(int16_t row) { m_list.DrawOneRow(row); }
    void InvertRowStrip(int16_t row) { m_list.InvertRowStrip(row); }

    QString LastAddedIndex() const { return m_list.LastAddedIndex(); }
    QString ChosenIndex() const { return m_list.ChosenIndex(); }
    void ChosenIndex(const QString& index) { m_list.ChosenIndex(index); }
    const std::deque<QString>& items() const { return m_list.m_state.Items; }
    std::deque<QString>& items() { return m_list.m_state.Items; }

private:
    UserControl1& m_list;
};
