#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

// What the moves list should hold after a sequence of member calls, kept as plain
// records. Each member gives the ListError code the list must refuse with (0: none);
// a refused call changes nothing here. Indices are 0-based as in the list's members.
class ListModel {
public:
    struct Item {
        QString text;
        QString data = QStringLiteral("0"); // " 5" once set, "0" as added
        int ipic = 0;
        QString font;
        int32_t colour = 0;
        QString width; // the painter's: taken over from the list after each call
    };

    // The font name and fore colour of the list's surface, which the first item takes
    // when it is given none.
    ListModel(QString surfaceFont, int32_t surfaceColour)
        : m_surfaceFont(std::move(surfaceFont)), m_surfaceColour(surfaceColour)
    {}

    // ipic and colour come back settled.
    int Additem(const QString& s, int itemx, int& ipic, const QString& font, int32_t& colour);
    int RemoveItem(std::optional<double> it);
    void Clear() { items.clear(); }
    int SetItemData(std::optional<double> it, std::optional<double> value);
    // Column: 0 text, 1 data, 2 picture, 3 font, 4 colour; number columns take value.
    int update(std::optional<double> it, int column, const QString& text,
               std::optional<double> value);
    void sort(bool ascending);
    // The item number found, 0 for none, no value when the search does not run; a
    // malformed pattern sets error to 93.
    std::optional<int> Find(int sdir, int it, const QString& pattern, int casen, int& error) const;
    int ShowItem(std::optional<double> i);
    // Plain-list mode sets the scroll bar's maximum back to 0 until the next Additem.
    void Mode(int mode)
    {
        if (mode == 0)
            scrollMax = 0;
    }

    // A record as the list stores it, the drawn width last.
    static QString record(const Item& item);
    static QString number(long long n);

    std::vector<Item> items;
    std::optional<int> chosen; // ListIndex reads 0 for none
    QString shownText;         // the head's text box
    int lastAdded = 0;         // SetItemData's -1
    QString fontName;          // sticky between calls
    int scrollMax = 0;         // how far ShowItem can scroll

private:
    // The 0-based index a value names, or -1 when it names no item.
    int indexOf(double it) const;

    QString m_surfaceFont;
    int32_t m_surfaceColour;
};
