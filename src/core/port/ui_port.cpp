// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/ui_port.h"

#include <cerrno>
#include <cstring>
#include <string>

namespace tq {

View ViewOfPageNumber(int number, View otherwise)
{
    switch (number) {
    case 1:
        return View::StartPage;
    case 2:
        return View::Page1;
    case 3:
        return View::Page2;
    case 4:
        return View::Page3;
    case 5:
        return View::Page4;
    case 6:
        return View::SetupPage;
    case 9:
        return View::FinalPage;
    case 10:
        return View::EditPage;
    case 11:
        return View::Preview;
    default:
        return otherwise;
    }
}

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

void ReportFileFault(UiPort& ui, FileStep step, int code, std::string_view path)
{
    const bool opening = step == FileStep::Opening;
    if (code == 0)
        code = opening ? EACCES : EIO;
    ui.message(std::string(std::strerror(code)) + (opening ? " when opening " : " when writing ") + std::string(path),
               "UNRECOVERABLE ERROR. CONTACT SUPPORT", Icon::Critical);
}

} // namespace tq
