#pragma once

#include <QList>
#include <QUrl>
#include <QWidget>

class QTextBrowser;

// The help window's browser: a page from a file, jumps to places inside it, and a
// history to walk back and forth. Links that lead out of the page open nothing.
class WebBrowser : public QWidget {
    Q_OBJECT

public:
    explicit WebBrowser(QWidget* parent = nullptr);

    // Loads the file afresh, even when it is the page already shown.
    void Navigate(const QString& path);
    // The address shown, with its "#" part after a jump inside the page.
    QString LocationURL() const;
    // One step in the history; silently nothing at either end.
    void GoBack();
    void GoForward();

    // Place and size in twips.
    double Top() const;
    void Width(double twips);
    void Height(double twips);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void followLink(const QUrl& link);
    void visit(const QUrl& address);
    void showEntry(qsizetype entry);
    void load(const QUrl& page);
    void useLargePictures(const QUrl& page);
    void place(const QString& fragment);

    QTextBrowser* m_view;
    QList<QUrl> m_history;
    qsizetype m_current = -1;
    QUrl m_loadedPage;
};
