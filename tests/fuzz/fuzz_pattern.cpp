// The list's pattern matcher against the tests' reading of the same language, with case
// counting and without, on patterns and subjects up to 2,000 characters. The reading's
// plain recursion would walk every way through the stars; here it only says whether the
// pattern is well formed and what each place of it takes, and the places are followed
// over all of the subject at once. Input: pattern, a line feed, subject.
#include "fuzzinput.h"
#include "reference_matcher.h"

#include "moveslist/likepattern.h"
#include "moveslist/listerror.h"

#include <QHash>

#include <functional>
#include <numeric>
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

// A well-formed pattern read one place at a time (a star, a list in brackets, or one
// character): reach[j] says that the places read so far can take the first j characters.
bool matchByPlaces(const QString& p, const QString& s)
{
    std::vector<char> reach(size_t(s.size()) + 1, 0);
    reach[0] = 1;
    for (qsizetype i = 0, end = 0; i < p.size(); i = end + 1) {
        const bool negated = i + 1 < p.size() && p[i + 1] == u'!';
        end = p[i] == u'[' ? p.indexOf(u']', i + 1 + negated) : i;
        const QString place = p.mid(i, end - i + 1);
        QHash<QChar, bool> takes;
        const auto take = [&](QChar c) {
            return takes.contains(c) ? takes[c] : (takes[c] = *ReferenceMatcher::match(place, c));
        };
        if (p[i] == u'*')
            std::partial_sum(reach.begin(), reach.end(), reach.begin(), std::logical_or<char>());
        else if (!*ReferenceMatcher::match(place, {})) // "[]" takes no character
            for (qsizetype j = s.size(); j >= 0; --j)
                reach[j] = j > 0 && reach[j - 1] && take(s[j - 1]);
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
