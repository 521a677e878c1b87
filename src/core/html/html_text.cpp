// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/html_text.h"

namespace tq::html {

std::string UpperText(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return out;
}

std::string LowerText(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return out;
}

std::string TrimText(std::string_view text)
{
    size_t b = 0;
    size_t e = text.size();
    while (b < e && text[b] == ' ')
        ++b;
    while (e > b && text[e - 1] == ' ')
        --e;
    return std::string(text.substr(b, e - b));
}

bool BeginsWith(std::string_view text, std::string_view prefix)
{
    return UpperText(text.substr(0, prefix.size())) == prefix;
}

bool HasText(std::string_view text, std::string_view part)
{
    return UpperText(text).find(part) != std::string::npos;
}

std::string Quoted(std::string_view text)
{
    std::string out = "\"";
    out += text;
    out += '"';
    return out;
}

std::string Repeat(std::string_view piece, int times)
{
    std::string out;
    for (int i = 0; i < times; ++i)
        out += piece;
    return out;
}

} // namespace tq::html
