// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands.h"

#include <ostream>

namespace tq::cli {

int CmdNew(const std::vector<std::string>&, std::ostream&, std::ostream& err)
{
    err << "tarnquill-cli: 'new' is not available in this build\n";
    return 2;
}

int CmdBuild(const std::vector<std::string>&, std::ostream&, std::ostream& err)
{
    err << "tarnquill-cli: 'build' is not available in this build\n";
    return 2;
}

} // namespace tq::cli
