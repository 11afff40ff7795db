#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace {

QString ReadFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

// What the game's help page holds, as the browser reads it.
struct PageContents {
    QStringList links;
    QSet<QString> places;
    QStringList pictures;
    QString text;
};

PageContents Contents(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    PageContents contents;
    contents.text = document.toPlainText();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isImageFormat())
                contents.pictures << format.toImageFormat().name();
            if (!format.anchorHref().isEmpty())
                contents.links << format.anchorHref();
            for (const QString& name : format.anchorNames())
                contents.places.insert(name);
        }
    }
    return contents;
}

class HelpPage : public ::testing::Test {
protected:
    const QString source = QStringLiteral(TAVOK_HELP_PAGE);
    const QString html = ReadFile(source);
    const PageContents page = Contents(html);
};

} // namespace

TEST_F(HelpPage, EveryLinkLeadsToAPlaceOnThePage)
{
    ASSERT_FALSE(html.isEmpty());
    EXPECT_GE(page.links.size(), 8) << "the contents list gives Back and Forward their work";
    for (const QString& link : page.links) {
        ASSERT_TRUE(link.startsWith(QLatin1Char('#'))) << link.toStdString();
        EXPECT_TRUE(page.places.contains(link.mid(1))) << link.toStdString();
    }
}

TEST_F(HelpPage, EveryPictureLiesBesideThePage)
{
    const QString folder = QFileInfo(source).absolutePath();
    for (const QString& picture : page.pictures) {
        EXPECT_TRUE(picture.startsWith(QStringLiteral("help/"))) << picture.toStdString();
        EXPECT_TRUE(QFileInfo::exists(folder + QLatin1Char('/') + picture))
            << picture.toStdString();
    }
}

TEST_F(HelpPage, NamesEveryControlAndMessageAsTheGameShowsThem)
{
    const QStringList shown{"Undo last move",
                            "Do not pause",
                            "Pause at moves",
                            "Force Computer turn",
                            "Give hint",
                            "Show score",
                            "Help",
                            "About",
                            "Exit",
                            "Start with",
                            "YOUR MOVE NOW",
                            "AGAIN YOUR MOVE NOW",
                            "Last entry into the bank; move again",
                            "click to continue",
                            "click here to restart",
                            "GAME DRAWN",
                            "UNDO LAST HUMAN/COMPUTER MOVE",
                            "HINT: ",
                            " - computer played"};
    for (const QString& words : shown)
        EXPECT_TRUE(page.text.contains(words)) << words.toStdString();
}

TEST_F(HelpPage, LiesBesideTheGameAfterABuild)
{
    const QString folder = QStringLiteral(TAVOK_GAME_FOLDER);
    EXPECT_EQ(ReadFile(folder + QStringLiteral("/tavok.htm")), html);
    for (const QString& picture : page.pictures)
        EXPECT_TRUE(QFileInfo::exists(folder + QLatin1Char('/') + picture))
            << picture.toStdString();
}
