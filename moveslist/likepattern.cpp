#include "moveslist/likepattern.h"

#include "moveslist/listerror.h"

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

// Every token but the star takes exactly one character, so a failure after a star
// only ever needs that star to take one character more: going back to earlier stars
// could not find a match the last one misses.
bool LikePattern::matches(QStringView subject, bool upperCase) const
{
    const size_t tokenCount = tokens.size();
    size_t t = 0;
    qsizetype s = 0;
    size_t star = tokenCount;
    qsizetype starAt = 0;
    while (s < subject.size()) {
        const char16_t unit = upperCase ? UpperUnit(subject[s].unicode()) : subject[s].unicode();
        if (t < tokenCount && tokens[t].kind == Kind::Star) {
            star = t++;
            starAt = s;
        } else if (t < tokenCount && accepts(tokens[t], unit)) {
            ++t;
            ++s;
        } else if (star < tokenCount) {
            t = star + 1;
            s = ++starAt;
        } else {
            return false;
        }
    }
    while (t < tokenCount && tokens[t].kind == Kind::Star)
        ++t;
    return t == tokenCount;
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
