// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::shell {

/// How long the syntax check of a script may take.
inline constexpr int kPublishCheckTimeoutMs = 20000;

/// What the publish check found after a build.
struct PublishCheck
{
    bool checked = false; // php ran on the script
    bool parses = true;   // php could parse it (true when it was not checked)
    std::string warning;  // one line when it cannot be parsed, else empty
};

/// The line number in php's "... on line N"; 0 when it names none.
int PhpErrorLine(std::string_view phpOutput);

/// The one-line warning for a script that php refused with `phpOutput`.
/// `script` is the script's text; the line php names is searched for the
/// field name of an Entry of the build's flat list that PHP cannot take as a
/// variable (the blank inside "cell 11"), and that Entry's Input Type is
/// named. Without such a name the line carries php's own words.
std::string PublishWarning(const write::BuildState& build, std::string_view phpOutput, std::string_view script);

/// Runs "php -l" on the script of the last build (through the port) and
/// tells what it found. Not checked when there was no script or php could not
/// be run. The generated files are only read.
PublishCheck CheckPublishedScript(const write::BuildState& build, UiPort& ui);

} // namespace tq::shell
