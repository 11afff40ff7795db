#include "help_fixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>
#include <QTextBlock>

TestPage::TestPage()
{
    rewrite(QStringLiteral("first version"));
    QImage dot(12, 12, QImage::Format_RGB32);
    dot.fill(Qt::green);
    QDir(m_folder.path()).mkpath(QStringLiteral("help"));
    dot.save(m_folder.filePath(QStringLiteral("help/dot.png")));
    // Its drawing for screens of ratio 2, in another colour to tell them apart.
    QImage large(24, 24, QImage::Format_RGB32);
    large.fill(Qt::red);
    large.save(m_folder.filePath(QStringLiteral("help/dot@2x.png")));
}

QString TestPage::address() const
{
    return QUrl::fromLocalFile(path()).toString();
}

void TestPage::rewrite(const QString& marker)
{
    const QString filler =
        QStringLiteral("<p>Sow the beads round the ring, one by one.</p>").repeated(60);
    const QString html = QStringLiteral("<p>%1</p><p><a href=\"#first\">First</a> "
                                        "<a href=\"#second\">Second</a> "
                                        "<a href=\"http://tavok.example/\">Web</a> "
                                        "<a href=\"mailto:dravo@tavok.example\">Mail</a> "
                                        "<a href=\"other.htm#first\">Other</a> "
                                        "<a href=\"tavok.htm#second\">Again</a></p>%2"
                                        "<h2><a name=\"first\">First place</a></h2>%2"
                                        "<h2><a name=\"second\">Second place</a></h2>%2"
                                        "<p><img src=\"help/dot.png\"></p>")
                             .arg(marker, filler);
    QFile file(path());
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(html.toUtf8());
}

QTextBrowser* viewOf(QWidget* browser)
{
    return browser->findChild<QTextBrowser*>();
}

QPoint linkPoint(QTextBrowser* view, const QString& href)
{
    QTextDocument* document = view->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.charFormat().anchorHref() != href)
                continue;
            QTextCursor cursor(document);
            cursor.setPosition(fragment.position() + fragment.length() / 2);
            return view->cursorRect(cursor).center();
        }
    }
    return {-1, -1};
}

void clickLink(QTextBrowser* view, const QString& href)
{
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, linkPoint(view, href));
}
