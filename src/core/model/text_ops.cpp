// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/text_ops.h"

#include <cmath>
#include <limits>

namespace tq::model {

char UpperChar(char c)
{
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

char LowerChar(char c)
{
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string ToUpper(std::string_view s)
{
    std::string out(s);
    for (char& c : out)
        c = UpperChar(c);
    return out;
}

std::string ToLower(std::string_view s)
{
    std::string out(s);
    for (char& c : out)
        c = LowerChar(c);
    return out;
}

std::string ToProperCase(std::string_view s)
{
    std::string out = ToLower(s);
    if (!out.empty())
        out[0] = UpperChar(out[0]);
    return out;
}

std::string Quoted(std::string_view text)
{
    std::string out;
    out.reserve(text.size() + 2);
    out += '"';
    out += text;
    out += '"';
    return out;
}

bool EqualsNoCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (UpperChar(a[i]) != UpperChar(b[i]))
            return false;
    return true;
}

bool StartsWithNoCase(std::string_view s, std::string_view prefix)
{
    return s.size() >= prefix.size() && EqualsNoCase(s.substr(0, prefix.size()), prefix);
}

size_t FindNoCase(std::string_view s, std::string_view needle, size_t from)
{
    if (needle.empty())
        return from <= s.size() ? from : std::string_view::npos;
    if (s.size() < needle.size())
        return std::string_view::npos;
    const char first = UpperChar(needle.front());
    for (size_t i = from; i + needle.size() <= s.size(); ++i)
        if (UpperChar(s[i]) == first && EqualsNoCase(s.substr(i, needle.size()), needle))
            return i;
    return std::string_view::npos;
}

bool Contains(std::string_view s, std::string_view part)
{
    return s.find(part) != std::string_view::npos;
}

bool ContainsNoCase(std::string_view s, std::string_view needle)
{
    return FindNoCase(s, needle) != std::string_view::npos;
}

std::string_view LTrim(std::string_view s, std::string_view blanks)
{
    const size_t i = s.find_first_not_of(blanks);
    return i == std::string_view::npos ? std::string_view() : s.substr(i);
}

std::string_view RTrim(std::string_view s, std::string_view blanks)
{
    const size_t i = s.find_last_not_of(blanks);
    return i == std::string_view::npos ? std::string_view() : s.substr(0, i + 1);
}

std::string_view Trim(std::string_view s, std::string_view blanks)
{
    return RTrim(LTrim(s, blanks), blanks);
}

void LTrimInPlace(std::string& s)
{
    const size_t i = s.find_first_not_of(' ');
    s.erase(0, i == std::string::npos ? s.size() : i);
}

void ReplaceAll(std::string& text, std::string_view from, std::string_view to)
{
    if (from.empty())
        return;
    size_t at = 0;
    while ((at = text.find(from, at)) != std::string::npos) {
        text.replace(at, from.size(), to);
        at += to.size();
    }
}

long long ValLong(std::string_view s)
{
    size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t'))
        ++i;
    bool negative = false;
    if (i < s.size() && (s[i] == '-' || s[i] == '+')) {
        negative = s[i] == '-';
        ++i;
    }
    double n = 0;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9')
        n = n * 10 + (s[i++] - '0');
    if (i < s.size() && s[i] == '.') {
        double scale = 0.1;
        for (++i; i < s.size() && s[i] >= '0' && s[i] <= '9'; ++i, scale /= 10)
            n += (s[i] - '0') * scale;
    }
    if (negative)
        n = -n;
    n = std::nearbyint(n); // half to even, as the run-time rounds
    constexpr double kMax = 9.2e18;
    if (n >= kMax)
        return std::numeric_limits<long long>::max();
    if (n <= -kMax)
        return std::numeric_limits<long long>::min();
    return static_cast<long long>(n);
}

long LeadingWhole(std::string_view s, long limit)
{
    s = LTrim(s);
    size_t i = 0;
    bool negative = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        negative = s[i++] == '-';
    long n = 0;
    for (; i < s.size() && s[i] >= '0' && s[i] <= '9'; ++i) {
        n = n * 10 + (s[i] - '0');
        if (n > limit)
            break;
    }
    return negative ? -n : n;
}

bool IsNumeric(std::string_view s)
{
    const std::string_view t = Trim(s);
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    bool digits = false;
    bool point = false;
    for (; i < t.size(); ++i) {
        if (t[i] >= '0' && t[i] <= '9')
            digits = true;
        else if (t[i] == '.' && !point)
            point = true;
        else
            break;
    }
    if (!digits)
        return false;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
        ++i;
        if (i < t.size() && (t[i] == '+' || t[i] == '-'))
            ++i;
        bool expDigits = false;
        for (; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i)
            expDigits = true;
        if (!expDigits)
            return false;
    }
    return i == t.size();
}

} // namespace tq::model
