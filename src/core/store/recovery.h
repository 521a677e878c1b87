// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/entry_store.h"
#include "port/ui_port.h"
#include "store/project_file.h"

#include <optional>
#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::store {

/// The recovery copy in the DataFolder: the rows of the open project as they
/// were at most a second ago, so that a crash loses nothing. It is never the
/// user's own file.
std::string RecoveryPath(std::string_view dataFolder);

/// The copy's text: the mode, the project's file name and every row (type,
/// attributes, reference number), each value with its length in front, so
/// every byte comes back as it was.
std::string RecoveryText(const Session& s);

struct RecoveryCopy
{
    model::Mode mode = model::Mode::Form;
    std::string fileName;
    model::PageRows pages;
};

/// Reads a copy back; nothing for a text that is not a whole copy.
std::optional<RecoveryCopy> ReadRecoveryText(std::string_view text);

/// What the recovery keeper remembers between its ticks.
struct RecoveryKeeper
{
    std::string saved;   // the copy's text as the project was last opened or saved
    std::string written; // the text of the copy on disk; empty when there is none
    int saves = 0;
};

/// At start: when a copy newer than the last save of its project is there,
/// asks whether to restore it and does so. A copy that is refused, stale or
/// unreadable is removed. Returns true when the rows were restored.
bool StartRecovery(RecoveryKeeper& keeper, Session& s, UiPort& ui, const ProjectHooks& hooks);

/// One tick, run about every half second while no command runs and once more
/// at a clean exit: writes the copy (atomically) when the rows changed since
/// the last write, removes it when the rows are as last opened or saved. So
/// an exit after a save leaves no copy, and unsaved rows stay recoverable.
void KeepRecovery(RecoveryKeeper& keeper, const Session& s);

} // namespace tq::store
