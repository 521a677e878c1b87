// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/php_text.h"

namespace tq::php {

std::string Upper(std::string_view s)
{
    std::string u(s);
    for (char& c : u)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return u;
}

std::string TrimSpaces(std::string_view s)
{
    size_t b = s.find_first_not_of(' ');
    if (b == std::string_view::npos)
        return {};
    size_t e = s.find_last_not_of(' ');
    return std::string(s.substr(b, e - b + 1));
}

} // namespace tq::php
