// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/html_text.h"

#include "model/text_ops.h"

namespace tq::html {

std::string Repeat(std::string_view piece, int times)
{
    std::string out;
    for (int i = 0; i < times; ++i)
        out += piece;
    return out;
}

bool IsOn(std::string_view value)
{
    return model::EqualsNoCase(value, "ON");
}

std::string ParagraphOpen(std::string_view align)
{
    return "<p align=" + Quoted(align) + ">";
}

} // namespace tq::html
