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
        // A plain character, or a list of one character, must be in the subject.
        const Token& token = m_tokens[t];
        const bool single = token.kind == Kind::List && !token.negated &&
                            token.ranges.size() == 1 && token.ranges[0].low == token.ranges[0].high;
        const char16_t unit = single ? token.ranges[0].low : token.unit;
        const bool known = std::find(m_requiredUnits.begin(), m_requiredUnits.end(), unit) !=
                           m_requiredUnits.end();
        if ((token.kind == Kind::Char || single) && !known &&
            m_requiredUnits.size() < MaxRequiredUnits)
            m_requiredUnits.push_back(unit);
    }
    buildSegments();
}

// The runs of tokens between the first and the last star, as automata.
void LikePattern::buildSegments()
{
    if (m_firstStar == m_tokens.size())
        return;
    for (size_t t = m_firstStar + 1; t <= m_lastStar;) {
        size_t end = t;
        while (end < m_lastStar && m_tokens[end].kind != Kind::Star)
            ++end;
        if (end > t) {
            Segment segment;
            segment.first = t;
            segment.length = end - t;
            segment.words = (segment.length + 63) / 64;
            segment.any.assign(segment.words, 0);
            segment.digit.assign(segment.words, 0);
            segment.ascii.assign(128 * segment.words, 0);
            for (size_t j = 0; j < segment.length; ++j) {
                const Token& token = m_tokens[t + j];
                const size_t word = j / 64;
                const uint64_t bit = uint64_t(1) << (j % 64);
                if (token.kind == Kind::Any) {
                    segment.any[word] |= bit;
                } else if (token.kind == Kind::Digit) {
                    segment.digit[word] |= bit;
                } else if (token.kind == Kind::List) {
                    segment.lists.push_back(t + j);
                } else if (token.unit < 128) {
                    segment.ascii[token.unit * segment.words + word] |= bit;
                } else {
                    auto found = std::find_if(segment.wide.begin(), segment.wide.end(),
                                              [&](const auto& w) { return w.first == token.unit; });
                    if (found == segment.wide.end())
                        found = segment.wide.insert(
                            segment.wide.end(), {token.unit, std::vector<uint64_t>(segment.words)});
                    found->second[word] |= bit;
                }
            }
            m_segments.push_back(std::move(segment));
        }
        t = end + 1;
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

// Every token but the star takes exactly one character, so each run between two stars
// is best placed leftmost after the run before it: a later place can only leave less
// room to the runs that follow.
bool LikePattern::matchesBetweenStars(QStringView middle, bool upperCase) const
{
    std::vector<uint64_t> state, mask;
    qsizetype from = 0;
    for (const Segment& segment : m_segments) {
        from = findSegment(segment, middle, from, upperCase, state, mask);
        if (from < 0)
            return false;
    }
    return true;
}

// Shift-and: after reading a unit, bit j of the state is set when the segment's first
// j + 1 tokens match the units read last. Gives the place just past the leftmost match
// from `from` on, or -1.
qsizetype LikePattern::findSegment(const Segment& segment, QStringView subject, qsizetype from,
                                   bool upperCase, std::vector<uint64_t>& state,
                                   std::vector<uint64_t>& mask) const
{
    const size_t words = segment.words;
    const size_t lastWord = (segment.length - 1) / 64;
    const uint64_t lastBit = uint64_t(1) << ((segment.length - 1) % 64);
    state.assign(words, 0);
    mask.resize(words);
    // Only the words up to the highest one holding a bit, and the one above it, can
    // change: a long run of tokens costs in step with how far a match has got.
    size_t live = 0;
    for (qsizetype s = from; s < subject.size(); ++s) {
        const char16_t unit = upperCase ? upperUnit(subject[s].unicode()) : subject[s].unicode();
        const bool digit = unit >= u'0' && unit <= u'9';
        const size_t reach = std::min(words, live + 1);
        for (size_t w = 0; w < reach; ++w)
            mask[w] = segment.any[w] | (digit ? segment.digit[w] : 0) |
                      (unit < 128 ? segment.ascii[unit * words + w] : 0);
        if (unit >= 128)
            for (const auto& [wide, bits] : segment.wide)
                if (wide == unit)
                    for (size_t w = 0; w < reach; ++w)
                        mask[w] |= bits[w];
        for (const size_t t : segment.lists)
            if ((t - segment.first) / 64 < reach && accepts(m_tokens[t], unit))
                mask[(t - segment.first) / 64] |= uint64_t(1) << ((t - segment.first) % 64);
        uint64_t carry = 1;
        live = 0;
        for (size_t w = 0; w < reach; ++w) {
            const uint64_t next = state[w] >> 63;
            state[w] = ((state[w] << 1) | carry) & mask[w];
            carry = next;
            if (state[w] != 0)
                live = w + 1;
        }
        if (state[lastWord] & lastBit)
            return s + 1;
    }
    return -1;
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
