// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <functional>

namespace tq {
struct Session;
}

namespace tq::store {

/// Calls into the shell and the catalogue that the defaults need.
struct DefaultsHooks
{
    /// The setup reminder of the final page (SetupReminder with askFirst 1);
    /// returns its answer: 1 when the user still has to edit the SetupEntry.
    std::function<int(Session&, UiPort&)> setupReminder;
    /// Refills the Input Type lists of the four Pages for the mode.
    std::function<void(Session&)> fillPickLists;
};

/// SaveDefaults(askFirst): writes the raw first pass of a save (no asterisk
/// lines, no recent list) to the chosen file, "\default.txt" proposed. Says
/// DEFAULTS SAVED. Returns true when a file was written; the status text does
/// not change.
bool SaveDefaults(Session& s, UiPort& ui, bool askFirst, const DefaultsHooks& hooks = {});

/// RestoreDefaults: reads a defaults file with the project reader (a raw file
/// comes back as one row), sets the run's font values, applies the Setup
/// menus and says RESTORED. Cancel or an unreadable file end it silently with
/// nothing changed; returns false then.
bool RestoreDefaults(Session& s, UiPort& ui, const DefaultsHooks& hooks = {});

} // namespace tq::store
