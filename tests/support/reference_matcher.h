#pragma once

#include <QString>

#include <optional>

// An independent reading of the language, by plain recursion: good for short inputs.
class ReferenceMatcher {
public:
    // Empty when the pattern is malformed.
    static std::optional<bool> match(const QString& p, const QString& s)
    {
        try {
            // Every list is checked, also one that matching would never reach.
            for (int i = 0; i < p.size(); ++i)
                if (p[i] == u'[')
                    i = List(p, i, QString(), 0).close;
            return rest(p, 0, s, 0);
        } catch (const Malformed&) {
            return std::nullopt;
        }
    }

private:
    struct Malformed {};

    static bool rest(const QString& p, int i, const QString& s, int j)
    {
        if (i == p.size())
            return j == s.size();
        const QChar c = p[i];
        if (c == u'*')
            return rest(p, i + 1, s, j) || (j < s.size() && rest(p, i, s, j + 1));
        if (c == u'[')
            return bracket(p, i, s, j);
        if (j == s.size())
            return false;
        const bool one = c == u'?' || (c == u'#' ? s[j].isDigit() && s[j] < u'\x80' : c == s[j]);
        return one && rest(p, i + 1, s, j + 1);
    }

    struct ListRead {
        int close;
        bool negated;
        bool empty;
        bool inList;
    };

    // The list opening at i, and whether s[j] is in it.
    static ListRead List(const QString& p, int i, const QString& s, int j)
    {
        int k = i + 1;
        const bool negated = k < p.size() && p[k] == u'!';
        if (negated)
            ++k;
        const int close = int(p.indexOf(u']', k));
        if (close < 0)
            throw Malformed();
        const QString items = p.mid(k, close - k);
        bool inList = false;
        for (int n = 0; n < items.size(); ++n) {
            const bool range =
                n + 2 < items.size() && items[n + 1] == u'-' && !(n == 0 && items[n] == u'-');
            if (range && items[n + 2] < items[n])
                throw Malformed();
            if (j < s.size())
                inList =
                    inList || (range ? s[j] >= items[n] && s[j] <= items[n + 2] : s[j] == items[n]);
            if (range)
                n += 2;
        }
        return {close, negated, items.isEmpty(), inList};
    }

    static bool bracket(const QString& p, int i, const QString& s, int j)
    {
        const ListRead list = List(p, i, s, j);
        if (list.empty && !list.negated)
            return rest(p, list.close + 1, s, j);
        if (j == s.size())
            return false;
        return list.inList != list.negated && rest(p, list.close + 1, s, j + 1);
    }
};
