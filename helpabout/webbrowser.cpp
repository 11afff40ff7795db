#include "helpabout/webbrowser.h"

#include "common/twips.h"

#include <QDebug>
#include <QFile>
#include <QScrollBar>
#include <QTextBrowser>

namespace {

QUrl WithoutFragment(QUrl address)
{
    address.setFragment(QString());
    return address;
}

QUrl AddressOf(const QString& path)
{
    if (path.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        return QUrl(path);
    return QUrl::fromLocalFile(path);
}

} // namespace

WebBrowser::WebBrowser(QWidget* parent) : QWidget(parent), view(new QTextBrowser(this))
{
    // We follow links ourselves: only jumps inside the page are taken.
    view->setOpenLinks(false);
    view->setOpenExternalLinks(false);
    setFocusProxy(view);
    connect(view, &QTextBrowser::anchorClicked, this, &WebBrowser::followLink);
}

void WebBrowser::Navigate(const QString& path)
{
    const QUrl address = AddressOf(path);
    load(WithoutFragment(address));
    visit(address);
    place(address.fragment());
}

QString WebBrowser::LocationURL() const
{
    if (current < 0)
        return {};
    return history[current].toString();
}

void WebBrowser::GoBack()
{
    if (current <= 0)
        return;
    showEntry(current - 1);
}

void WebBrowser::GoForward()
{
    if (current < 0 || current + 1 >= history.size())
        return;
    showEntry(current + 1);
}

double WebBrowser::Top() const
{
    return y() * Twips::perPixel();
}

void WebBrowser::Width(double twips)
{
    resize(Twips::toPixels(static_cast<float>(twips)), height());
}

void WebBrowser::Height(double twips)
{
    resize(width(), Twips::toPixels(static_cast<float>(twips)));
}

// No layout here: a layout would give the browser a least size, and a window made
// small must leave the browser as it was.
void WebBrowser::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    view->setGeometry(rect());
}

void WebBrowser::followLink(const QUrl& link)
{
    if (current < 0)
        return;
    const QUrl address = history[current].resolved(link);
    const bool insidePage = WithoutFragment(address) == WithoutFragment(history[current]);
    if (!insidePage || address.fragment().isEmpty())
        return;
    visit(address);
    place(address.fragment());
}

// A new address cuts off whatever lay forward of the current one.
void WebBrowser::visit(const QUrl& address)
{
    if (current >= 0 && history[current] == address)
        return;
    history.resize(current + 1);
    history.append(address);
    current = history.size() - 1;
}

void WebBrowser::showEntry(qsizetype entry)
{
    current = entry;
    const QUrl& address = history[entry];
    if (WithoutFragment(address) != loadedPage)
        load(WithoutFragment(address));
    place(address.fragment());
}

void WebBrowser::load(const QUrl& page)
{
    loadedPage = page;
    // Pictures of the page lie beside it.
    view->document()->setBaseUrl(page);
    QFile file(page.toLocalFile());
    // A page that is gone leaves the window empty; the reason goes to standard error,
    // where a packager looks.
    if (!file.open(QIODevice::ReadOnly)) {
        view->clear();
        qWarning().noquote() << "Help page not found:" << page.toLocalFile();
        return;
    }
    view->setHtml(QString::fromUtf8(file.readAll()));
}

void WebBrowser::place(const QString& fragment)
{
    if (fragment.isEmpty()) {
        view->verticalScrollBar()->setValue(0);
        view->horizontalScrollBar()->setValue(0);
        return;
    }
    view->scrollToAnchor(fragment);
}
