// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tq::cli {

/// Runs `program` (looked up on the PATH when it names no folder) with `args`,
/// collecting standard output and standard error in one text, and waits for
/// it. nullopt when it could not be started; a program still running after
/// `timeoutMs` is killed and also gives nullopt.
std::optional<ProcessResult> RunProcess(std::string_view program, const std::vector<std::string>& args, int timeoutMs);

} // namespace tq::cli
