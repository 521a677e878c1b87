// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace tq::cli {

// Each command gets its arguments after the command word and returns the
// exit code: 0 success, 1 stopped with a message, 2 usage error.

int CmdNew(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdBuild(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdShow(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdResults(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
int CmdServe(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

/// The project mode a file's extension gives: SURVEY for ".srv", else FORM.
std::string ModeOfFile(const std::string& path);
/// The data folder named by "Tarnquill.stt" in the fixed folder of this
/// machine; nothing when there is none.
std::optional<std::string> DefaultDataFolder();

} // namespace tq::cli
