#pragma once

#include <QPoint>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>

// A page written for the test: links at the top, two places far enough down that a
// jump scrolls, links that lead out of the page, and a picture beside it in help/.
class TestPage {
public:
    TestPage();
    QString path() const { return m_folder.filePath(QStringLiteral("tavok.htm")); }
    QString address() const;
    void rewrite(const QString& marker);

private:
    QTemporaryDir m_folder;
};

QTextBrowser* viewOf(QWidget* browser);
// Where a link is in the view's viewport; (-1, -1) when the page has no such link.
QPoint linkPoint(QTextBrowser* view, const QString& href);
void clickLink(QTextBrowser* view, const QString& href);
inline bool pageShows(QTextBrowser* view, const QString& text)
{
    return view->toPlainText().contains(text);
}
inline int scrollOf(QTextBrowser* view)
{
    return view->verticalScrollBar()->value();
}
