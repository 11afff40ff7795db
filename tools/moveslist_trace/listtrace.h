#pragma once

#include "moveslist/anyvalue.h"

#include <QImage>
#include <QMap>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <iosfwd>
#include <memory>
#include <vector>

class QPushButton;
class QWidget;
class UserControl1;

// Plays a script of host calls and user events on a real UserControl1, one a line,
// and prints what each call gives back, the events the host hears, and every part of
// the list's state that the line changed.
class ListTrace {
public:
    explicit ListTrace(std::ostream& out);
    ~ListTrace();

    // Returns false for a line that is no action; a line beginning with # is a comment
    // of the script and prints nothing.
    bool perform(const QString& line);

private:
    bool setUp(const QString& verb, const QList<QString>& words);
    bool call(const QString& verb, const QStringList& args);
    bool input(const QString& verb, const QStringList& args);
    bool inspect(const QString& verb, const QStringList& args);

    void adopt(UserControl1* list);
    void makeHost();
    void listenTo(UserControl1& list);
    QWidget* widget(const QString& name) const;
    QPoint rowPoint(double row) const;

    QStringList stateLines() const;
    QString marks() const;
    QRgb ground() const;
    void say(const QString& text);

    std::ostream& m_out;
    std::unique_ptr<QWidget> m_host;
    std::unique_ptr<QWidget> m_away;
    QPushButton* m_below = nullptr;
    QPushButton* m_elsewhere = nullptr;
    std::unique_ptr<UserControl1> m_list;
    QMap<QString, QImage> m_snaps;
    QMap<QString, QString> m_shown; // state lines as last printed, by their label
    int m_moves = 0;
};
