// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench_support.h"

#include <filesystem>
#include <random>

namespace tq::bench {

Answer QuietPort::ask(std::string_view, std::string_view title, Buttons b, Icon, int def)
{
    // replace existing output files without changing the folder
    if (title == "EDIT SETUP")
        return Answer::No;
    if (b == Buttons::Ok)
        return Answer::Ok;
    return def == 2 ? Answer::No : Answer::Yes;
}

std::string MakeAttributeText(size_t bytes)
{
    static const char* const kItems[] = {"[Title=Enter your full name] ",
                                         "[Info: The title of the question] ",
                                         "[Title Size=3] ",
                                         "[Info: From 1 to 7] ",
                                         "[Align=left] ",
                                         "[Choices=left,right,center] ",
                                         "[Text Color=0] ",
                                         "[Info: A colour] "};
    std::string out;
    out.reserve(bytes + 64);
    for (size_t i = 0; out.size() < bytes; ++i)
        out += kItems[i % (sizeof kItems / sizeof *kItems)];
    return out;
}

std::string MakeTempFolder(const std::string& tag)
{
    std::random_device rd;
    auto p = std::filesystem::temp_directory_path() / ("tq-bench-" + tag + "-" + std::to_string(rd()));
    std::filesystem::create_directories(p);
    return p.string();
}

} // namespace tq::bench
