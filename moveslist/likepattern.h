#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <utility>
#include <vector>

// A pattern of the list's Find, matched against the whole of a subject:
//   ?  one character        *  any run, also none     #  one digit 0 to 9
//   [abc] [a-f] one character of the list   [!abc] one character not in it
// Inside brackets ? * # and [ stand for themselves, a hyphen first or last too, and
// ! negates only right behind the opening bracket; ] outside brackets is itself, and
// [] matches nothing at all, taking no character. Characters compare by their codes.
//
// Matching takes time in proportion to the subject's length, times the length of the
// longest run between two stars in 64ths: each such run is looked for by a bit-parallel
// automaton, one bit a token, at its leftmost place after the run before it.
class LikePattern {
public:
    // An opening bracket without its closing one, or a range whose bounds stand in
    // reverse, is ListError 93.
    explicit LikePattern(const QString& pattern);

    // With upperCase, every character of the subject is taken in upper case, as the
    // pattern is expected to be already.
    bool matches(QStringView subject, bool upperCase = false) const;

    // Upper case one code unit at a time, so that subject and pattern keep their length.
    static QString upperCase(const QString& text);
    static char16_t upperUnit(char16_t unit);

private:
    enum class Kind { Char, Any, Digit, Star, List };
    struct Range {
        char16_t low;
        char16_t high;
    };
    struct Token {
        explicit Token(Kind kind, char16_t unit = 0) : kind(kind), unit(unit) {}
        Kind kind;
        char16_t unit;
        bool negated = false;
        std::vector<Range> ranges;
    };

    // The tokens between two stars, as masks of the automaton: bit j of word w stands
    // for token 64 w + j, and a unit's mask has the bits of the tokens that take it.
    struct Segment {
        size_t length = 0;
        size_t words = 0;
        std::vector<uint64_t> any;   // ? and negated lists, checked one by one below
        std::vector<uint64_t> digit; // #
        std::vector<uint64_t> ascii; // plain characters below 128, 128 x words
        std::vector<std::pair<char16_t, std::vector<uint64_t>>> wide; // the others
        std::vector<size_t> lists; // tokens that are bracket lists
        size_t first = 0;          // the segment's first token
    };

    qsizetype readList(const QString& pattern, qsizetype open);
    static bool accepts(const Token& token, char16_t unit);
    void buildSegments();
    qsizetype findSegment(const Segment& segment, QStringView subject, qsizetype from,
                          bool upperCase, std::vector<uint64_t>& state,
                          std::vector<uint64_t>& mask) const;
    bool matchesBetweenStars(QStringView middle, bool upperCase) const;
    static bool mayHold(QStringView subject, char16_t unit, bool upperCase);

    std::vector<Token> m_tokens;
    // Places of the first and the last star; the number of tokens when there is none.
    size_t m_firstStar = 0;
    size_t m_lastStar = 0;
    // A few plain characters the subject must hold somewhere, looked for first.
    static constexpr size_t MaxRequiredUnits = 4;
    std::vector<char16_t> m_requiredUnits;
    std::vector<Segment> m_segments;
};
