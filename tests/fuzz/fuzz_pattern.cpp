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
QChar charOf(uint8_t b)
{
    if (b < 0x20)
        return QChar(Awkward[b % Awkward.size()]);
    return QChar(char16_t(b));
}

QString readText(FuzzInput& in)
{
    QString text;
    while (!in.done() && text.size() < MaxLength) {
        const uint8_t b = in.byte();
        if (b == '\n')
            break;
        text += charOf(b);
    }
    return text;
}

std::optional<bool> matches(const QString& pattern, const QString& subject, bool upperCase)
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

QString shown(const std::optional<bool>& result)
{
    return result ? (*result ? "match" : "no match") : "malformed";
}

void agree(const QString& pattern, const QString& subject, bool upperCase)
{
    const QString p = upperCase ? LikePattern::upperCase(pattern) : pattern;
    const QString s = upperCase ? LikePattern::upperCase(subject) : subject;
    const std::optional<bool> expected = ReferenceMatcher::match(p, s);
    const std::optional<bool> actual = matches(p, subject, upperCase);
    if (actual == expected)
        return;
    std::fprintf(stderr, "pattern \"%s\" on \"%s\"%s: %s, the reference says %s\n",
                 qPrintable(pattern), qPrintable(subject), upperCase ? " (case not counting)" : "",
                 qPrintable(shown(actual)), qPrintable(shown(expected)));
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    const QString pattern = readText(in);
    const QString subject = readText(in);
    agree(pattern, subject, false);
    agree(pattern, subject, true);
    return 0;
}
