#include "moveslist/likepattern.h"

#include "moveslist/listerror.h"

#include <algorithm>
#include <array>

namespace {

[[noreturn]] void InvalidPattern(const QString& pattern, const QString& why)
{
    throw ListError(ListErrorCode::InvalidPattern,
                    QStringLiteral("Invalid pattern string \"%1\": %2").arg(pattern, why));
}

} // namespace

LikePattern::LikePattern(const QString& pattern)
{
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const char16_t unit = pattern[i].unicode();
        switch (unit) {
        case u'?':
            tokens.emplace_back(Kind::Any);
            break;
        case u'*':
            // A run of stars is one star.
            if (tokens.empty() || tokens.back().kind != Kind::Star)
                tokens.emplace_back(Kind::Star);
            break;
        case u'#':
            tokens.emplace_back(Kind::Digit);
            break;
        case u'[':
            i = readList(pattern, i);
            break;
        default:
            tokens.emplace_back(Kind::Char, unit);
        }
    }
    firstStar = tokens.size();
    lastStar = tokens.size();
    for (size_t t = 0; t < tokens.size(); ++t) {
        if (tokens[t].kind == Kind::Star) {
            firstStar = std::min(firstStar, t);
            lastStar = t;
        }
        const bool known = std::find(requiredUnits.begin(), requiredUnits.end(), tokens[t].unit) !=
                           requiredUnits.end();
        if (tokens[t].kind == Kind::Char && !known && requiredUnits.size() < MaxRequiredUnits)
            requiredUnits.push_back(tokens[t].unit);
    }
}

// Reads the list that opens at `open` and gives the place of its closing bracket.
qsizetype LikePattern::readList(const QString& pattern, qsizetype open)
{
    qsizetype first = open + 1;
    const bool negated = first < pattern.size() && pattern[first] == u'!';
    if (negated)
        ++first;
    const qsizetype close = pattern.indexOf(u']', first);
    if (close < 0)
        InvalidPattern(pattern, QStringLiteral("a [ is never closed"));
    // [] takes no character; [!] is a list of nothing left out, so any character.
    if (close == first && !negated)
        return close;
    Token list(Kind::List);
    list.negated = negated;
    for (qsizetype i = first; i < close; ++i) {
        const char16_t low = pattern[i].unicode();
        const bool hyphenFirst = i == first && low == u'-';
        if (!hyphenFirst && i + 2 < close && pattern[i + 1] == u'-') {
            const char16_t high = pattern[i + 2].unicode();
            if (high < low)
                InvalidPattern(pattern, QStringLiteral("the range %1-%2 runs backwards")
                                            .arg(QChar(low))
                                            .arg(QChar(high)));
            list.ranges.push_back({low, high});
            i += 2;
        } else {
            list.ranges.push_back({low, low});
        }
    }
    tokens.push_back(std::move(list));
    return close;
}

bool LikePattern::accepts(const Token& token, char16_t unit)
{
    switch (token.kind) {
    case Kind::Char:
        return unit == token.unit;
    case Kind::Any:
        return true;
    case Kind::Digit:
        return unit >= u'0' && unit <= u'9';
    case Kind::List:
        for (const Range& range : token.ranges)
            if (unit >= range.low && unit <= range.high)
                return !token.negated;
        return token.negated;
    case Kind::Star:
        break;
    }
    return false;
}

// What stands before the first star has to match the start of the subject, and what
// stands after the last star its end: most subjects fail there at once.
bool LikePattern::matches(QStringView subject, bool upperCase) const
{
    const auto unit = [&](qsizetype s) {
        return upperCase ? UpperUnit(subject[s].unicode()) : subject[s].unicode();
    };
    const auto n = static_cast<size_t>(subject.size());
    if (firstStar == tokens.size()) {
        if (n != tokens.size())
            return false;
        for (size_t t = 0; t < n; ++t)
            if (!accepts(tokens[t], unit(qsizetype(t))))
                return false;
        return true;
    }
    const size_t tailLength = tokens.size() - lastStar - 1;
    if (n < firstStar + tailLength)
        return false;
    for (size_t t = 0; t < firstStar; ++t)
        if (!accepts(tokens[t], unit(qsizetype(t))))
            return false;
    for (size_t k = 0; k < tailLength; ++k)
        if (!accepts(tokens[lastStar + 1 + k], unit(qsizetype(n - tailLength + k))))
            return false;
    for (const char16_t required : requiredUnits)
        if (!mayHold(subject, required, upperCase))
            return false;
    return matchesBetweenStars(
        subject.mid(qsizetype(firstStar), qsizetype(n - tailLength - firstStar)), upperCase);
}

// Every token but the star takes exactly one character, so a failure after a star
// only ever needs that star to take one character more: going back to earlier stars
// could not find a match the last one misses.
bool LikePattern::matchesBetweenStars(QStringView middle, bool upperCase) const
{
    const size_t end = lastStar + 1;
    size_t t = firstStar;
    qsizetype s = 0;
    size_t star = end;
    qsizetype starAt = 0;
    while (s < middle.size()) {
        const char16_t unit = upperCase ? UpperUnit(middle[s].unicode()) : middle[s].unicode();
        if (t < end && tokens[t].kind == Kind::Star) {
            star = t++;
            starAt = s;
        } else if (t < end && accepts(tokens[t], unit)) {
            ++t;
            ++s;
        } else if (star < end) {
            t = star + 1;
            s = ++starAt;
        } else {
            return false;
        }
    }
    while (t < end && tokens[t].kind == Kind::Star)
        ++t;
    return t == end;
}

namespace {

// The ASCII units that some other unit turns into when upper-cased: I from the dotless
// i, S from the long s. A subject can hold those without showing them.
const std::array<bool, 0x80>& ReachedFromAbove()
{
    static const std::array<bool, 0x80> reached = [] {
        std::array<bool, 0x80> table{};
        for (char32_t unit = 0x80; unit <= 0xFFFF; ++unit) {
            const char16_t upper = LikePattern::UpperUnit(char16_t(unit));
            if (upper < 0x80)
                table[upper] = true;
        }
        return table;
    }();
    return reached;
}

} // namespace

// Every plain character of the pattern has to be somewhere in the subject: a search
// for it is far quicker than the walk between the stars. Where upper-casing makes it
// hard to tell, the subject is given the benefit of the doubt.
bool LikePattern::mayHold(QStringView subject, char16_t unit, bool upperCase)
{
    if (!upperCase)
        return subject.contains(QChar(unit));
    if (unit >= 0x80 || ReachedFromAbove()[unit])
        return true;
    const bool letter = unit >= u'A' && unit <= u'Z';
    return subject.contains(QChar(unit)) ||
           (letter && subject.contains(QChar(char16_t(unit + (u'a' - u'A')))));
}

QString LikePattern::UpperCase(const QString& text)
{
    QString upper = text;
    for (QChar& unit : upper)
        unit = QChar(UpperUnit(unit.unicode()));
    return upper;
}

char16_t LikePattern::UpperUnit(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z' ? char16_t(unit - (u'a' - u'A')) : unit;
    if (QChar::isSurrogate(unit))
        return unit;
    const char32_t upper = QChar::toUpper(char32_t(unit));
    return upper <= 0xFFFF ? char16_t(upper) : unit;
}
