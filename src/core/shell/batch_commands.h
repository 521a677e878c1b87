// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::shell {

/// Rewrites `key` (e.g. "[SHADE WIDTH") to `value` in every filled row of the
/// four Pages whose text holds it; with `tablesOnly`, in the TABLE rows only.
/// Returns the number of rows rewritten; a file fault of the rewrite stops
/// the run with `buildError` set.
int RewriteOnAllRows(Session& s, std::string_view key, std::string_view value, bool tablesOnly);

/// The page command that sets one alignment on every row that has `key`
/// ("[ALIGN", or "[TABLE ALIGN" for the tables). Refuses on a project with
/// no Entry but SETUP (ERROR); asks for left, right or center until the
/// answer is one of them or the user cancels; tells NO CHANGES MADE when no
/// row holds the key. Returns the number of rows rewritten, -1 when nothing
/// was asked or it was cancelled.
int SetAlignmentOnAll(Session& s, UiPort& ui, std::string_view key);

/// The two table colour commands: the foreground is the tables' text colour
/// ("[TEXT COLOR"), the background their answer back colour ("[ANSWER BACK
/// COLOR"). Refuses when no TABLE row is on the Pages; otherwise says which
/// colour to pick and opens the colour dialog. Returns the rows rewritten,
/// -1 when refused or cancelled.
int SetTableColor(Session& s, UiPort& ui, bool foreground);

/// The help box of the create pages on dragging an Input Type into the rows.
void ShowDragDropHelp(UiPort& ui);

} // namespace tq::shell
