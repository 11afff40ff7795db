#pragma once

#include <QPoint>
#include <QString>
#include <QTemporaryDir>

class QTextBrowser;
class QWidget;

// A page written for the test: a contents line of links at the top, two places far
// enough down that a jump scrolls, links that lead out of the page, and a picture
// beside it in help/.
class TestPage {
public:
    TestPage();
    QString path() const;
    QString address() const;
    void rewrite(const QString& marker);

private:
    QTemporaryDir folder;
};

QTextBrowser* ViewOf(QWidget* browser);
// Where a link is on the screen, in the view's viewport; (-1, -1) when it is not there.
QPoint LinkPoint(QTextBrowser* view, const QString& href);
void ClickLink(QTextBrowser* view, const QString& href);
bool PageShows(QTextBrowser* view, const QString& text);
int ScrollOf(QTextBrowser* view);
