// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mode.h"
#include "port/ui_port.h"

#include <functional>
#include <string>

namespace tq {
struct Session;
}

namespace tq::shell {

/// Where the desktop and the command line differ when a project is opened
/// by its path. Every member must be set: OpenProjectFile refuses hooks with
/// a gap as a fault of the program.
struct OpenHooks
{
    /// The clear prompt of the open; returns the AbortFlag: 1 when the user
    /// kept the rows.
    std::function<int(Session&, UiPort&)> clearPrompt;
    /// Changes the mode for a file of the other mode, keeping the rows.
    std::function<void(Session&, UiPort&, model::Mode mode, int targetPage)> switchMode;
    /// What the open keeps of the file it read (the recent lists, or nothing).
    std::function<void(Session&, UiPort&)> remember;
};

/// How an open by path ended.
enum class OpenResult {
    Opened,     // the rows are the file's; it is the current project
    Kept,       // nothing was read: the clear prompt kept the rows (or the file went away meanwhile)
    Unreadable, // the file is missing, a folder or not readable: nothing changed
};

/// Opens the project file at `path` (made absolute) as a pick from a recent
/// list does: a file of the other mode switches the mode, otherwise the clear
/// prompt runs; then the rows are read and the file becomes the current
/// project. Nothing is shown for an unreadable file: the caller says so in
/// its own words. Throws model::InternalError when a hook is not set.
[[nodiscard]] OpenResult OpenProjectFile(Session& s, UiPort& ui, const std::string& path, const OpenHooks& hooks);

} // namespace tq::shell
