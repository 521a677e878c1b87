// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tq::cli {

/// Runs the command-line tool on `args` (without the program name). Returns
/// the exit code: 0 success, 1 the work stopped with a message, 2 a usage error.
int RunCli(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

} // namespace tq::cli
