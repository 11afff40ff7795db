#include "listmodel.h"

#include "reference_matcher.h"

#include "moveslist/likepattern.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int TypeMismatch = 13;
constexpr int InvalidPropertyValue = 380;

} // namespace

QString ListModel::number(long long n)
{
    return n < 0 ? QString::number(n) : QLatin1Char(' ') + QString::number(n);
}

QString ListModel::record(const Item& item)
{
    return QStringList{item.text, item.data,           number(item.ipic),
                       item.font, number(item.colour), item.width}
        .join(QLatin1Char('\t'));
}

// Halves go to the even neighbour, as everywhere in the list.
int ListModel::indexOf(double it) const
{
    const double n = std::nearbyint(it);
    return n >= 0 && n < double(items.size()) ? int(n) : -1;
}

int ListModel::Additem(const QString& s, int itemx, int& ipic, const QString& font, int32_t& colour)
{
    if (!font.isEmpty())
        fontName = font;
    if (fontName.isEmpty() && items.empty())
        fontName = m_surfaceFont;
    if (colour == -1 && items.empty())
        colour = m_surfaceColour;
    // Picture and colour come from the last item, wherever the new one goes.
    if (ipic <= 0 && !items.empty())
        ipic = items.back().ipic;
    if (colour == -1 && !items.empty())
        colour = items.back().colour;
    // k from 1 puts the item at index k, -1 first, anything else last; the first item
    // of all goes last, which is first.
    size_t at = items.size();
    bool insert = false;
    if (itemx == -1 && !items.empty()) {
        at = 0;
        insert = true;
    } else if (itemx > 0) {
        if (itemx >= int(items.size()))
            return 0;
        at = size_t(itemx);
        insert = true;
    }
    items.insert(items.begin() + std::ptrdiff_t(at),
                 Item{s, QStringLiteral("0"), ipic, fontName, colour,
                      insert ? QStringLiteral(" ") : QString()});
    lastAdded = int(at);
    scrollMax = int(items.size()) - 1;
    return 0;
}

int ListModel::RemoveItem(std::optional<double> it)
{
    if (!it)
        return TypeMismatch;
    const int n = indexOf(*it);
    if (n < 0)
        return 0;
    items.erase(items.begin() + n);
    scrollMax = std::max(int(items.size()) - 1, 0);
    shownText.clear();
    if (items.empty())
        chosen.reset();
    return 0;
}

int ListModel::SetItemData(std::optional<double> it, std::optional<double> value)
{
    if (!it)
        return TypeMismatch;
    const int n = indexOf(*it == -1 ? lastAdded : *it);
    if (n < 0)
        return 0;
    if (!value)
        return TypeMismatch;
    items[size_t(n)].data = number(std::llround(*value));
    return 0;
}

int ListModel::update(std::optional<double> it, int column, const QString& text,
                      std::optional<double> value)
{
    if (!it)
        return TypeMismatch;
    const int n = indexOf(*it);
    if (n < 0)
        return 0;
    Item& item = items[size_t(n)];
    if (column == 0 || column == 3) {
        (column == 0 ? item.text : item.font) = text;
        return 0;
    }
    if (!value)
        return TypeMismatch;
    if (column == 1)
        item.data = number(std::llround(*value));
    else if (column == 2)
        item.ipic = int(std::llround(*value));
    else
        item.colour = int32_t(std::llround(*value));
    return 0;
}

// Whole records compare as binary text; equal records are the same in every column.
void ListModel::sort(bool ascending)
{
    std::sort(items.begin(), items.end(), [ascending](const Item& a, const Item& b) {
        return ascending ? record(a) < record(b) : record(b) < record(a);
    });
}

std::optional<int> ListModel::Find(int sdir, int it, const QString& pattern, int casen,
                                   int& error) const
{
    error = 0;
    const int start = it + 1;
    const int count = int(items.size());
    if (start < 1 || start > count)
        return std::nullopt;
    const bool caseCounts = casen == 1;
    const QString p = caseCounts ? pattern : LikePattern::upperCase(pattern);
    if (!ReferenceMatcher::match(p, QString())) {
        error = 93;
        return std::nullopt;
    }
    auto matches = [&](int number) {
        const QString& text = items[size_t(number - 1)].text;
        return *ReferenceMatcher::match(p, caseCounts ? text : LikePattern::upperCase(text));
    };
    if (sdir == 1) {
        for (int n = count; n >= start; --n)
            if (matches(n))
                return n;
    } else {
        for (int n = start; n <= count; ++n)
            if (matches(n))
                return n;
    }
    return 0;
}

int ListModel::ShowItem(std::optional<double> i)
{
    if (!i)
        return TypeMismatch;
    if (*i < 1 || *i > double(items.size()))
        return 0;
    const auto n = static_cast<int>(std::nearbyint(*i));
    shownText = items[size_t(n - 1)].text;
    chosen = n - 1;
    // The pick is made before the scroll, which cannot go past the bar's maximum.
    return n - 1 > scrollMax ? InvalidPropertyValue : 0;
}
