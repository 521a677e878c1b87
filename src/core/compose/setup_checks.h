// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::compose {

/// Reads the SetupEntry's 20 keys in order from the front of `text` (a
/// working copy; consumed) into `setupValues`, each followed by its help item.
/// [BACKGROUND COLOR= is read only when the text begins with it. Unless the
/// build is an Entry preview, a [FROM= starting with ";" opens the SetupEntry
/// on the edit page, shows "INVALID ENTRIES" and sets `setupHold`; a
/// [COMPLETED= starting with ";" shows "NAME INVALID" and sets `buildError`.
/// Afterwards the mode's own values are derived: FrameOff and the colour
/// copies. The global overrides are not applied here.
void ExtractSetupEntry(Session& s, UiPort& ui, std::string& text);

/// The edit page's check of one row: `key` is the attribute's name as
/// written, without its brackets ("Title Size"), `value` the row's trimmed
/// value. Runs the tests in their fixed order; the first that fails shows its
/// text under "ERROR" (exclamation), sets `err` to 1, closes the scratch
/// channel, copies "\tempStore.txt" over "\temp11.txt" in the DataFolder and
/// sets the failed-commit flag. The caller then focuses, selects and colours
/// the row's value (background 255, text 16777215). Two e-mail tests set
/// `value` to "none". With `commitMode` EntryPreview nothing is tested.
void CheckAttribute(Session& s, UiPort& ui, std::string_view key, std::string& value, int& err);

} // namespace tq::compose
