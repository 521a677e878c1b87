// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>

namespace tq::model {

/// The calls a mode switch makes into the parts of the program that own the
/// project files, the recent lists and the status texts. The shell fills
/// them from its session; an empty hook is skipped (a busy mark and a load
/// mark that are not given read as idle).
struct ModeHooks
{
    /// The busy mark of the project files: 0 idle, 1 loading, 222 saving.
    std::function<int()> busyMark;
    /// True from the open dialog to the end of a load.
    std::function<bool()> loadInProgress;
    /// Rebuilds the recent-list menus of "FORM" or "SURVEY".
    std::function<void(std::string_view mode)> reloadHistoryMenus;
    /// RefreshStatus: the file and mode labels and the page captions.
    std::function<void()> refreshStatus;
};

} // namespace tq::model
