// The list's pattern matcher against the tests' reading of the same language, with case
// counting and without, up to 2,000 characters each. Input: pattern, a line feed, subject.
#include "fuzzinput.h"
#include "reference_matcher.h"

#include "moveslist/likepattern.h"
#include "moveslist/listerror.h"

#include <vector>

namespace {

// Printable ASCII stands for itself and bytes from 0x80 are Latin-1, so a corpus file
// reads as it looks; control bytes stand for characters whose upper case or digit class
// is awkward: dotless i, long s, sharp s, dotted capital I, an Arabic-Indic one (a digit,
// but not one # takes), a fullwidth A, a lone surrogate and y with diaeresis.
QString readText(FuzzInput& in)
{
    static const char16_t awkward[] = u"\u0131\u017F\u00DF\u0130\u0661\uFF21\xD800\u00FF";
    QString text;
    for (uint8_t b = 0; !in.done() && text.size() < 2000 && (b = in.byte()) != '\n';)
        text += QChar(b < 0x20 ? awkward[b % 8] : char16_t(b));
    return text;
}

// The reading's recursion would walk every way through the stars; it only says what each
// place takes here, once a character, and reach[j] follows the places over all of s at once.
bool matchByPlaces(const QString& p, const QString& s)
{
    std::vector<qsizetype> first(size_t(s.size()));
    for (qsizetype j = 0; j < s.size(); ++j)
        first[j] = s.indexOf(s[j]);
    std::vector<char> reach(size_t(s.size()) + 1, 0), takes;
    reach[0] = 1;
    for (qsizetype i = 0, end = 0; i < p.size(); i = end + 1) {
        end = p[i] == u'[' ? p.indexOf(u']', i + (p.mid(i + 1).startsWith(u'!') ? 2 : 1)) : i;
        const QString place = p.mid(i, end - i + 1);
        takes.assign(reach.size(), -1);
        const auto take = [&](qsizetype j) {
            char& t = takes[first[j]];
            return t < 0 ? (t = *ReferenceMatcher::match(place, s[j])) : t;
        };
        if (p[i] == u'*')
            for (size_t j = 1; j < reach.size(); ++j)
                reach[j] |= reach[j - 1];
        else if (!*ReferenceMatcher::match(place, {})) // "[]" takes no character
            for (qsizetype j = s.size(); j >= 0; --j)
                reach[j] = j > 0 && reach[j - 1] && take(j - 1);
    }
    return reach.back();
}

// 1 a match, 0 none, -1 a malformed pattern, which must be refused with 93 and no other.
void agree(const QString& pattern, const QString& subject, bool upperCase)
{
    const QString p = upperCase ? LikePattern::upperCase(pattern) : pattern;
    const QString s = upperCase ? LikePattern::upperCase(subject) : subject;
    const int expected = ReferenceMatcher::match(p, {}) ? int(matchByPlaces(p, s)) : -1;
    int actual = -1;
    try {
        actual = LikePattern(p).matches(subject, upperCase);
    } catch (const ListError& e) {
        actual = e.code() == ListErrorCode::InvalidPattern ? -1 : -2;
    }
    if (actual != expected)
        fail((pattern + " on " + subject).toStdString() + " gives " + std::to_string(actual));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in{data, size};
    const QString pattern = readText(in);
    const QString subject = readText(in);
    agree(pattern, subject, false);
    agree(pattern, subject, true);
    return 0;
}
