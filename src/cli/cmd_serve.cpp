// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands.h"

#include <ostream>

namespace tq::cli {

int CmdServe(const std::vector<std::string>&, std::ostream&, std::ostream& err)
{
    err << "tarnquill-cli: 'serve' is not available in this build\n";
    return 2;
}

} // namespace tq::cli
