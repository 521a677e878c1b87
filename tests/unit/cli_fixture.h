// SPDX-License-Identifier: GPL-3.0-or-later
// tarnquill-cli run in process, for the cli_* tests.
#pragma once

#include "run_cli.h"

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

namespace tq::test {

struct CliRun
{
    int code;
    std::string out;
    std::string err;
};

inline CliRun Cli(const std::vector<std::string>& args)
{
    std::istringstream in;
    std::ostringstream out, err;
    const int code = tq::cli::RunCli(args, in, out, err);
    return {code, out.str(), err.str()};
}

/// A shipped sample project.
inline std::string Sample(const std::string& name)
{
    return std::string(TQ_DATA_DIR) + "/samples/" + name;
}

/// What `php -l` says about the file, and whether it passed.
inline std::pair<bool, std::string> PhpLint(const std::string& file)
{
    const std::string cmd = "php -l '" + file + "' 2>&1";
    FILE* p = ::popen(cmd.c_str(), "r");
    std::string said;
    if (!p)
        return {false, said};
    char buf[512];
    while (size_t n = std::fread(buf, 1, sizeof buf, p))
        said.append(buf, n);
    return {::pclose(p) == 0, said};
}

} // namespace tq::test
