// SPDX-License-Identifier: GPL-3.0-or-later
#include "show/show_settings.h"

#include "model/text_ops.h"

#include <cstdio>

namespace tq::show {

const std::string_view kShowHelpText =
    "Fill in the fields of this page, choose how many images go on a line and how they blend, and press BUILD PHOTO "
    "SHOW. The photo show is written into your image folder as photoshow.php with instructions in readmeshow.txt. "
    "Save the entries with File and Save to use them again later. You can then select File and Recent and open up any "
    "of the files that you've saved in your history";

void ApplyFadeSwitch(ShowPage& page)
{
    page.fadeFieldsEnabled = model::EqualsNoCase(page.settings.UseFading, "YES");
}

std::string RemoveTrailingSeparator(std::string_view path)
{
    if (!path.empty() && (path.back() == '/' || path.back() == '\\'))
        path.remove_suffix(1);
    return std::string(path);
}

std::string CutListValue(std::string_view text, size_t count)
{
    return std::string(model::Trim(text.substr(0, count)));
}

std::string ShowColorHex(long color)
{
    const unsigned long c = static_cast<unsigned long>(color) & 0xFFFFFFUL;
    char buf[8];
    std::snprintf(buf, sizeof buf, "%02lX%02lX%02lX", c & 0xFFUL, (c >> 8) & 0xFFUL, (c >> 16) & 0xFFUL);
    return buf;
}

std::string ShowWebPath(const ShowSettings& settings)
{
    return RemoveTrailingSeparator(settings.WebImageFolder);
}

std::string ShowLink(const ShowSettings& settings)
{
    return ShowWebPath(settings) + "/photoshow.php";
}

} // namespace tq::show
