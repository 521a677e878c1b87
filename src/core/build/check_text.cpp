// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/check_text.h"

#include <cctype>

namespace tq::build {

std::string Upper(std::string_view s)
{
    std::string out(s);
    for (char& c : out)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return out;
}

std::string LeftTrim(std::string_view s)
{
    size_t i = 0;
    while (i < s.size() && s[i] == ' ')
        ++i;
    return std::string(s.substr(i));
}

std::string Trim(std::string_view s)
{
    std::string out = LeftTrim(s);
    while (!out.empty() && out.back() == ' ')
        out.pop_back();
    return out;
}

bool StartsWithUpper(std::string_view s, std::string_view prefix)
{
    return s.size() >= prefix.size() && Upper(s.substr(0, prefix.size())) == Upper(prefix);
}

bool Contains(std::string_view s, std::string_view part)
{
    return s.find(part) != std::string_view::npos;
}

bool IsNumeric(std::string_view s)
{
    const std::string t = Trim(s);
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    bool digits = false;
    bool point = false;
    for (; i < t.size(); ++i) {
        const auto c = static_cast<unsigned char>(t[i]);
        if (std::isdigit(c))
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
        while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) {
            expDigits = true;
            ++i;
        }
        if (!expDigits)
            return false;
    }
    return i == t.size();
}

long LeadingNumber(std::string_view s)
{
    const std::string t = LeftTrim(s);
    size_t i = 0;
    bool negative = false;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        negative = t[i++] == '-';
    long n = 0;
    for (; i < t.size() && std::isdigit(static_cast<unsigned char>(t[i])); ++i) {
        if (n > 100000000L)
            break; // far past any count the format uses
        n = n * 10 + (t[i] - '0');
    }
    return negative ? -n : n;
}

} // namespace tq::build
