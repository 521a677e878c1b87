// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "write/build_state.h"

#include <string_view>

namespace tq::php {

// The fixed parts of the script, in the order of the PHP pass. The driver
// opens the files and copies the download checks of `\downtemp.txt` in
// between; these only write lines.

/// The opening: "<?php" and an empty line.
void WriteScriptOpening(write::LineWriter& out);

/// The recipients line, EMAIL2 and EMAIL3 each left out when empty or "NONE",
/// and the "Validation Code" banner under which the per-entry checks follow.
void WriteValidationBanner(write::LineWriter& out, const write::SetupValues& setup);

/// The "$option" and "$drop_down" lines, written when `optionPending` is set.
void WriteOptionLines(write::LineWriter& out);

/// Everything behind the download checks: date, headers, subject
/// (`mailSubject`), the message from `messageLines`, mail and redirect to
/// COMPLETED, the function library, download_file (links under `serverPath`)
/// and show_error, whose last line closes the script. Throws
/// model::InternalError when a table count passes its bound.
void WriteScriptTail(write::LineWriter& out, const write::BuildState& state, std::string_view serverPath);

/// Writes the e-mail body from `messageLines`, two slots per field: the label
/// (a backslash-n makes a line break, or is dropped at the very start; every
/// "&nbsp;" is removed; a label holding "B." gets an empty line behind it),
/// then "$" and the variable name, or the fixed text behind a leading "-".
/// Throws model::InternalError when `messageLineCount` passes the table.
void WriteMessageBody(write::LineWriter& out, const write::BuildState& state);

} // namespace tq::php
