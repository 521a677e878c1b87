// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tq::cli {

// Each command gets its arguments after the command word and returns the
// exit code: 0 success, 1 stopped with a message, 2 usage error.

int CmdNew(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdBuild(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdShow(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdServe(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

} // namespace tq::cli
