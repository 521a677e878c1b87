// SPDX-License-Identifier: GPL-3.0-or-later
// tarnquill-cli run in process, for the cli_* tests.
#pragma once

#include "run_cli.h"

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

} // namespace tq::test
