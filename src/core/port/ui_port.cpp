// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/ui_port.h"

namespace tq {

std::string ConvertLineBreaks(std::string_view text, std::string_view lineBreak)
{
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '\r') {
            out += lineBreak;
            // a CR LF pair is one break
            if (i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            out += c;
        }
    }
    return out;
}

} // namespace tq
