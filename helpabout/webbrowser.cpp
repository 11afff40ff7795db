#include "helpabout/webbrowser.h"

#include "common/twips.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

namespace {

QUrl withoutFragment(QUrl address)
{
    address.setFragment(QString());
    return address;
}

QUrl addressOf(const QString& path)
{
    if (path.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        return QUrl(path);
    return QUrl::fromLocalFile(path);
}

} // namespace

WebBrowser::WebBrowser(QWidget* parent) : QWidget(parent), m_view(new QTextBrowser(this))
{
    // We follow links ourselves: only jumps inside the page are taken.
    m_view->setOpenLinks(false);
    m_view->setOpenExternalLinks(false);
    setFocusProxy(m_view);
    connect(m_view, &QTextBrowser::anchorClicked, this, &WebBrowser::followLink);
}

void WebBrowser::Navigate(const QString& path)
{
    const QUrl address = addressOf(path);
    load(withoutFragment(address));
    visit(address);
    place(address.fragment());
}

QString WebBrowser::LocationURL() const
{
    if (m_current < 0)
        return {};
    return m_history[m_current].toString();
}

void WebBrowser::GoBack()
{
    if (m_current <= 0)
        return;
    showEntry(m_current - 1);
}

void WebBrowser::GoForward()
{
    if (m_current < 0 || m_current + 1 >= m_history.size())
        return;
    showEntry(m_current + 1);
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
    m_view->setGeometry(rect());
}

void WebBrowser::followLink(const QUrl& link)
{
    if (m_current < 0)
        return;
    const QUrl address = m_history[m_current].resolved(link);
    const bool insidePage = withoutFragment(address) == withoutFragment(m_history[m_current]);
    if (!insidePage || address.fragment().isEmpty())
        return;
    visit(address);
    place(address.fragment());
}

// A new address cuts off whatever lay forward of the current one.
void WebBrowser::visit(const QUrl& address)
{
    if (m_current >= 0 && m_history[m_current] == address)
        return;
    m_history.resize(m_current + 1);
    m_history.append(address);
    m_current = m_history.size() - 1;
}

void WebBrowser::showEntry(qsizetype entry)
{
    m_current = entry;
    const QUrl& address = m_history[entry];
    if (withoutFragment(address) != m_loadedPage)
        load(withoutFragment(address));
    place(address.fragment());
}

void WebBrowser::load(const QUrl& page)
{
    m_loadedPage = page;
    // Pictures of the page lie beside it.
    m_view->document()->setBaseUrl(page);
    QFile file(page.toLocalFile());
    // A page that is gone is said in the window, where the player looks, and on
    // standard error, where a packager looks.
    if (!file.open(QIODevice::ReadOnly)) {
        m_view->setHtml(QStringLiteral("<p><b>The help page cannot be read.</b></p><p>%1</p>")
                            .arg(page.toLocalFile().toHtmlEscaped()));
        qWarning().noquote() << "tavok: the help page cannot be read:" << page.toLocalFile();
        return;
    }
    m_view->setHtml(QString::fromUtf8(file.readAll()));
    useLargePictures(page);
}

// On a screen at scale 2 a picture of the page with an @2x file beside it is shown
// from that file, at the same size: the browser looks for such files only by paths
// it can reach from the program's working folder, never beside the page.
void WebBrowser::useLargePictures(const QUrl& page)
{
    if (m_view->devicePixelRatio() <= 1.0)
        return;
    QTextDocument* document = m_view->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QTextCharFormat format = fragment.fragment().charFormat();
            if (!format.isImageFormat())
                continue;
            const QUrl address = page.resolved(QUrl(format.toImageFormat().name()));
            const QFileInfo picture(address.toLocalFile());
            QPixmap large(picture.path() + QLatin1Char('/') + picture.completeBaseName() +
                          QStringLiteral("@2x.") + picture.suffix());
            if (large.isNull())
                continue;
            large.setDevicePixelRatio(2.0);
            document->addResource(QTextDocument::ImageResource, address, large);
        }
    }
}

void WebBrowser::place(const QString& fragment)
{
    if (fragment.isEmpty()) {
        m_view->verticalScrollBar()->setValue(0);
        m_view->horizontalScrollBar()->setValue(0);
        return;
    }
    m_view->scrollToAnchor(fragment);
}
