// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/editing.h"
#include "model/mode_hooks.h"

#include <string_view>

namespace tq::model {

/// The warning of a frame switch, titled "ABORTED": shown when the switch off
/// can't clear the rows, and when the frame is switched on.
inline constexpr std::string_view kFrameSwitchWarning =
    "That is because all input type colors must be changed to black\rAll entries must be cleared before you can "
    "switch the table off.";

/// Empties the six sample paths, puts the template settings back to their
/// defaults, rebuilds the catalogue and sets row 0 of Page 1 to "Setup" with
/// the SETUP template in its stored form.
void InitSetupRow(EditContext& c);

/// InitSetupRow, then the default rows of Page 1 for the mode (FORM: rows
/// 1-4, 15, 16 and an empty row 5; SURVEY: rows 1-5, 15, 16), each with its
/// template in stored form; refreshes the edit commands, empties
/// CurrentFileName and refreshes the views. Other rows are left as they are.
void InitNewProject(EditContext& c);

/// The only way to change the mode. Sets the sample picture and video paths,
/// stores `mode`, sets the frame and numbering switches, and unless
/// `keepEntries` is 1 clears every row through ClearAllRows(1). A refusal
/// shows the ABORTED message (worded for the frame switch when `frameSwitch`)
/// and returns 1; the mode stays changed then. Outside a save or a load the
/// submit defaults follow the mode and the recent lists are reloaded; the
/// pick lists are refilled, and unless a load runs the view `targetPage`
/// (1 start page, 2 to 5 Page 1 to 4, 6 the Setup page) is shown. Returns
/// the AbortFlag (0 when the switch went through).
int SwitchMode(
    EditContext& c, const ModeHooks& hooks, Mode mode, int targetPage, int keepEntries, bool frameSwitch = false);

/// Create Form / Create Survey: SwitchMode with NewProjectPending set, then,
/// unless refused, InitNewProject with the previous SetupEntry put back
/// (when there was one). Returns false when the user kept the old entries.
bool CreateNewProject(EditContext& c, const ModeHooks& hooks, Mode mode, int targetPage);

/// The Form / Survey commands of the switch menu: like CreateNewProject, but
/// the SetupEntry stays at the fresh template of the new mode. Returns false
/// when the user kept the old entries (then no row changes).
bool SwitchProjectList(EditContext& c, const ModeHooks& hooks, Mode mode);

} // namespace tq::model
