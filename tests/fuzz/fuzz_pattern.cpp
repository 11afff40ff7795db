// The list's pattern matcher against the plain recursive reading of the same language,
// with case counting and without. Input: pattern, a line feed, subject.
#include "fuzzinput.h"
#include "reference_matcher.h"

#include "moveslist/likepattern.h"
#include "moveslist/listerror.h"

namespace {

// Up to 10 characters: the reference walks every way through the stars. Printable ASCII
// stands for itself and bytes from 0x80 are Latin-1, so a corpus file reads as it looks;
// control bytes stand for characters whose upper case or digit class is awkward: dotless
// i, long s, sharp s, dotted capital I, an Arabic-Indic one (a digit, but not one # takes),
// a fullwidth A, a lone surrogate and y with diaeresis.
QString readText(FuzzInput& in)
{
    static const char16_t awkward[] = u"\u0131\u017F\u00DF\u0130\u0661\uFF21\xD800\u00FF";
    QString text;
    for (uint8_t b = 0; !in.done() && text.size() < 10 && (b = in.byte()) != '\n';)
        text += QChar(b < 0x20 ? awkward[b % 8] : char16_t(b));
    return text;
}

// 1 a match, 0 none, -1 a malformed pattern, which must be refused with 93 and no other.
void agree(const QString& pattern, const QString& subject, bool upperCase)
{
    const QString p = upperCase ? LikePattern::upperCase(pattern) : pattern;
    const std::optional<bool> reference =
        ReferenceMatcher::match(p, upperCase ? LikePattern::upperCase(subject) : subject);
    int actual = -1;
    try {
        actual = LikePattern(p).matches(subject, upperCase);
    } catch (const ListError& e) {
        actual = e.code() == ListErrorCode::InvalidPattern ? -1 : -2;
    }
    if (actual != (reference ? int(*reference) : -1))
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
