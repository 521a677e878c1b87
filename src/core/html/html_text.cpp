// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/html_text.h"

namespace tq::html {

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
