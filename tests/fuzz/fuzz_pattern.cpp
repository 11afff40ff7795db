// The list's pattern matcher against the plain recursive reading of the same language,
// with case counting and without. Input: pattern, a line feed, subject.
#include "fuzzinput.h"
#include "reference_matcher.h"

#include "moveslist/likepattern.h"
#include "moveslist/listerror.h"

#include <QString>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

// The reference walks every way through the stars: longer inputs take seconds.
constexpr int MaxLength = 10;

// Control bytes stand for the characters whose upper case or digit class is awkward:
// dotless i, long s, sharp s, dotted capital I, an Arabic-Indic one (a digit, but not
// one # takes), a fullwidth A, a lone surrogate and y with diaeresis.
constexpr std::array<char16_t, 8> Awkward{0x0131, 0x017F, 0x00DF, 0x0130,
                                          0x0661, 0xFF21, 0xD800, 0x00FF};

// Printable ASCII stands for itself and bytes from 0x80 are Latin-1, so that a corpus
// file reads as the pattern it holds.
QChar CharOf(uint8_t b)
{
    if (b < 0x20)
        return QChar(Awkward[b % Awkward.size()]);
    return QChar(char16_t(b));
}

QString ReadText(FuzzInput& in)
{
    QString text;
    while (!in.done() && text.size() < MaxLength) {
        const uint8_t b = in.byte();
        if (b == '\n')
            break;
        text += CharOf(b);
    }
    return text;
}

std::optional<bool> Matches(const QString& pattern, const QString& subject, bool upperCase)
{
    try {
        return LikePattern(pattern).matches(subject, upperCase);
    } catch (const ListError& e) {
        if (e.code() != 93) {
            std::fprintf(stderr, "ListError %d instead of 93: %s\n", e.code(), e.what());
            std::abort();
        }
        return std::nullopt;
    }
}

QString Shown(const std::optional<bool>& result)
{
    return result ? (*result ? "match" : "no match") : "malformed";
}

void Agree(const QString& pattern, const QString& subject, bool upperCase)
{
    const QString p = upperCase ? LikePattern::UpperCase(pattern) : pattern;
    const QString s = upperCase ? LikePattern::UpperCase(subject) : subject;
    const std::optional<bool> expected = ReferenceMatcher::Match(p, s);
    const std::optional<bool> actual = Matches(p, subject, upperCase);
    if (actual == expected)
        return;
    std::fprintf(stderr, "pattern \"%s\" on \"%s\"%s: %s, the reference says %s\n",
                 qPrintable(pattern), qPrintable(subject), upperCase ? " (case not counting)" : "",
                 qPrintable(Shown(actual)), qPrintable(Shown(expected)));
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    const QString pattern = ReadText(in);
    const QString subject = ReadText(in);
    Agree(pattern, subject, false);
    Agree(pattern, subject, true);
    return 0;
}
