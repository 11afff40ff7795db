#include <QFile>
#include <QFileInfo>
#include <QTextBlock>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace {

QString readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The game's own page as the browser reads it: its links, places, pictures and words.
class HelpPage : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_FALSE(html.isEmpty());
        document.setHtml(html);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextCharFormat format = it.fragment().charFormat();
                if (format.isImageFormat())
                    pictures << format.toImageFormat().name();
                if (!format.anchorHref().isEmpty())
                    links << format.anchorHref();
                places << format.anchorNames();
            }
        }
    }

    const QString html = readFile(QStringLiteral(TAVOK_HELP_PAGE));
    QTextDocument document;
    QStringList links, places, pictures;
};

} // namespace

TEST_F(HelpPage, EveryLinkLeadsToAPlaceOnThePage)
{
    EXPECT_GE(links.size(), 8) << "the contents list gives Back and Forward their work";
    for (const QString& link : links) {
        ASSERT_TRUE(link.startsWith(QLatin1Char('#'))) << link.toStdString();
        EXPECT_TRUE(places.contains(link.mid(1))) << link.toStdString();
    }
}

TEST_F(HelpPage, NamesEveryTextAsTheGameShowsIt)
{
    const QString text = document.toPlainText();
    for (const char* words :
         {"Undo last move", "Do not pause", "Pause at moves", "Force Computer turn", "Give hint",
          "Show score", "Help", "About", "Exit", "Start with", "YOUR MOVE NOW",
          "AGAIN YOUR MOVE NOW", "Last entry into the bank; move again", "click to continue",
          "click here to restart", "GAME DRAWN", "UNDO LAST HUMAN/COMPUTER MOVE",
          "HINT: ", " - computer played"})
        EXPECT_TRUE(text.contains(QLatin1String(words))) << words;
}

TEST_F(HelpPage, LiesBesideTheGameWithItsPicturesAfterABuild)
{
    const QString source = QFileInfo(QStringLiteral(TAVOK_HELP_PAGE)).absolutePath();
    const QString game = QStringLiteral(TAVOK_GAME_FOLDER);
    EXPECT_EQ(readFile(game + QStringLiteral("/tavok.htm")), html);
    for (const QString& picture : pictures) {
        EXPECT_TRUE(picture.startsWith(QStringLiteral("help/"))) << picture.toStdString();
        EXPECT_TRUE(QFileInfo::exists(source + QLatin1Char('/') + picture))
            << picture.toStdString();
        EXPECT_TRUE(QFileInfo::exists(game + QLatin1Char('/') + picture)) << picture.toStdString();
    }
}
