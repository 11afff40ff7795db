#include "moveslist/likepattern.h"

#include "moveslist/listerror.h"

#include <algorithm>
#include <array>

namespace {

[[noreturn]] void invalidPattern()
{
    throw ListError(ListErrorCode::InvalidPattern);
}

} // namespace

LikePattern::LikePattern(const QString& pattern)
{
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const char16_t unit = pattern[i].unicode();
        switch (unit) {
        case u'?':
            m_tokens.emplace_back(Kind::Any);
            break;
        case u'*':
            // A run of stars is one star.
            if (m_tokens.empty() || m_tokens.back().kind != Kind::Star)
                m_tokens.emplace_back(Kind::Star);
            break;
        case u'#':
            m_tokens.emplace_back(Kind::Digit);
            break;
        case u'[':
            i = readList(pattern, i);
            break;
        default:
            m_tokens.emplace_back(Kind::Char, unit);
        }
    }
    m_firstStar = m_tokens.size();
    m_lastStar = m_tokens.size();
    for (size_t t = 0; t < m_tokens.size(); ++t) {
        if (m_tokens[t].kind == Kind::Star) {
            m_firstStar = std::min(m_firstStar, t);
            m_lastStar = t;
        }
        const bool known = std::find(m_requiredUnits.begin(), m_requiredUnits.end(),
                                     m_tokens[t].unit) != m_requiredUnits.end();
        if (m_tokens[t].kind == Kind::Char && !known && m_requiredUnits.size() < MaxRequiredUnits)
            m_requiredUnits.push_back(m_tokens[t].unit);
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
        invalidPattern(); // a [ is never closed
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
                invalidPattern(); // the range …-… runs backwards
            list.ranges.push_back({low, high});
            i += 2;
        } else {
            list.ranges.push_back({low, low});
        }
    }
    m_tokens.push_back(std::move(list));
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
        return upperCase ? upperUnit(subject[s].unicode()) : subject[s].unicode();
    };
    const auto n = static_cast<size_t>(subject.size());
    if (m_firstStar == m_tokens.size()) {
        if (n != m_tokens.size())
            return false;
        for (size_t t = 0; t < n; ++t)
            if (!accepts(m_tokens[t], unit(qsizetype(t))))
                return false;
        return true;
    }
    const size_t tailLength = m_tokens.size() - m_lastStar - 1;
    if (n < m_firstStar + tailLength)
        return false;
    for (size_t t = 0; t < m_firstStar; ++t)
        if (!accepts(m_tokens[t], unit(qsizetype(t))))
            return false;
    for (size_t k = 0; k < tailLength; ++k)
        if (!accepts(m_tokens[m_lastStar + 1 + k], unit(qsizetype(n - tailLength + k))))
            return false;
    for (const char16_t required : m_requiredUnits)
        if (!mayHold(subject, required, upperCase))
            return false;
    return matchesBetweenStars(
        subject.mid(qsizetype(m_firstStar), qsizetype(n - tailLength - m_firstStar)), upperCase);
}

// Every token but the star takes exactly one character, so a failure after a star
// only ever needs that star to take one character more: going back to earlier stars
// could not find a match the last one misses.
bool LikePattern::matchesBetweenStars(QStringView middle, bool upperCase) const
{
    const size_t end = m_lastStar + 1;
    size_t t = m_firstStar;
    qsizetype s = 0;
    size_t star = end;
    qsizetype starAt = 0;
    while (s < middle.size()) {
        const char16_t unit = upperCase ? upperUnit(middle[s].unicode()) : middle[s].unicode();
        if (t < end && m_tokens[t].kind == Kind::Star) {
            star = t++;
            starAt = s;
        } else if (t < end && accepts(m_tokens[t], unit)) {
            ++t;
            ++s;
        } else if (star < end) {
            t = star + 1;
            s = ++starAt;
        } else {
            return false;
        }
    }
    while (t < end && m_tokens[t].kind == Kind::Star)
        ++t;
    return t == end;
}

namespace {

// The ASCII units that some other unit turns into when upper-cased: I from the dotless
// i, S from the long s. A subject can hold those without showing them.
const std::array<bool, 0x80>& reachedFromAbove()
{
    static const std::array<bool, 0x80> reached = [] {
        std::array<bool, 0x80> table{};
        for (char32_t unit = 0x80; unit <= 0xFFFF; ++unit) {
            const char16_t upper = LikePattern::upperUnit(char16_t(unit));
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
    if (unit >= 0x80 || reachedFromAbove()[unit])
        return true;
    const bool letter = unit >= u'A' && unit <= u'Z';
    return subject.contains(QChar(unit)) ||
           (letter && subject.contains(QChar(char16_t(unit + (u'a' - u'A')))));
}

QString LikePattern::upperCase(const QString& text)
{
    QString upper = text;
    for (QChar& unit : upper)
        unit = QChar(upperUnit(unit.unicode()));
    return upper;
}

char16_t LikePattern::upperUnit(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z' ? char16_t(unit - (u'a' - u'A')) : unit;
    if (QChar::isSurrogate(unit))
        return unit;
    const char32_t upper = QChar::toUpper(char32_t(unit));
    return upper <= 0xFFFF ? char16_t(upper) : unit;
}
