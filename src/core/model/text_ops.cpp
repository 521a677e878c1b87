// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/text_ops.h"

#include <cmath>
#include <limits>

namespace tq::model {

char UpperChar(char c)
{
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string ToUpper(std::string_view s)
{
    std::string out(s);
    for (char& c : out)
        c = UpperChar(c);
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

std::string_view LTrim(std::string_view s)
{
    const size_t i = s.find_first_not_of(' ');
    return i == std::string_view::npos ? std::string_view() : s.substr(i);
}

std::string_view RTrim(std::string_view s)
{
    const size_t i = s.find_last_not_of(' ');
    return i == std::string_view::npos ? std::string_view() : s.substr(0, i + 1);
}

std::string_view Trim(std::string_view s)
{
    return RTrim(LTrim(s));
}

void LTrimInPlace(std::string& s)
{
    const size_t i = s.find_first_not_of(' ');
    s.erase(0, i == std::string::npos ? s.size() : i);
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

} // namespace tq::model
