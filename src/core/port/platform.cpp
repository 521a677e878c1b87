// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/platform.h"

namespace tq::platform {

std::string JoinPath(std::string_view folder, std::string_view name)
{
    std::string out(folder);
    std::string_view rest = name;
    while (!rest.empty() && (rest.front() == '\\' || rest.front() == '/'))
        rest.remove_prefix(1);
    if (out.empty() || (out.back() != '/' && out.back() != '\\'))
        out += kSeparator;
    out += rest;
    return out;
}

size_t FindDriveMark(std::string_view line)
{
    return line.find('/');
}

} // namespace tq::platform
