// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mode.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace tq {
struct Session;
struct UiPort;
} // namespace tq

namespace tq::cli {

class ConsolePort;

/// What a build from the command line needs.
struct BuildOptions
{
    std::string file;
    std::string mode; // FORM or SURVEY; empty: by the file's extension
    bool wholePage = false;
    bool replace = false;
    std::optional<std::string> dataFolder;
    std::optional<std::string> webFolder;
};

/// Sets the session's DataFolder to `given` or the default one; 0, or 2 with
/// the reason on `err` when there is none or it does not exist.
int SetDataFolder(Session& s, const std::optional<std::string>& given, std::ostream& err);

/// Opens `file` into `s` as the command line does: the mode set before
/// stands (ModeOfFile or --mode), the fresh session has nothing to clear, the
/// recent lists stay as they are. False, with the reason on `err`, when the
/// file cannot be read.
bool OpenProjectForCommand(Session& s, UiPort& port, const std::string& file, std::ostream& err);

/// Reads the project file into `s` and builds it as `o` says: 0 when the
/// build made its files, 1 when it stopped (the reason went through `port`).
int BuildProject(Session& s, const BuildOptions& o, ConsolePort& port, std::ostream& err);

// Each command gets its arguments after the command word and returns the
// exit code: 0 success, 1 stopped with a message, 2 usage error.

int CmdNew(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdBuild(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdShow(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdResults(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
int CmdServe(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int CmdSite(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
int CmdPublish(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

/// The project mode a file's extension gives: SURVEY for ".srv", else FORM.
model::Mode ModeOfFile(const std::string& path);
/// The data folder named by "Tarnquill.stt" in the fixed folder of this
/// machine; nothing when there is none.
std::optional<std::string> DefaultDataFolder();

} // namespace tq::cli
