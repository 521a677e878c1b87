// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "build/build_state.h"

#include <string_view>

namespace tq::php {

/// The scratch file of the download checks, in the DataFolder.
inline constexpr std::string_view kDownTempFile = "\\downtemp.txt";

/// Starts the PHP pass: opens `phpPath` for output on channel 1 and writes
/// "<?php", opens the DataFolder's `\downtemp.txt` for output on channel 2,
/// then writes the recipients line (EMAIL2 and EMAIL3 left out when empty or
/// "NONE") and the "Validation Code" banner on channel 1. Returns false, with
/// every channel closed, when a file cannot be opened.
bool WriteScriptHead(build::BuildState& state, std::string_view dataFolder);

/// Ends the script on channel 1 after the per-entry lines; channel 2 has been
/// closed. Writes the `$option` lines when `optionPending`, copies
/// `\downtemp.txt` line by line (so the download checks stand behind all
/// others), then the date, headers, subject, the message from `messageLines`,
/// the mail and redirect, the function library, download_file (links under
/// `serverPath`) and show_error. Returns false when `\downtemp.txt` cannot be
/// read; throws model::InternalError when a table count passes its bound.
bool WriteScriptBody(build::BuildState& state, std::string_view dataFolder, std::string_view serverPath);

/// Writes the e-mail body from `messageLines`, two slots per field: the label
/// (a backslash-n makes a line break, or is dropped at the very start; every
/// "&nbsp;" is removed; a label holding "B." gets an empty line behind it),
/// then "$" and the variable name, or the fixed text behind a leading "-".
/// Throws model::InternalError when `messageLineCount` passes the table.
void WriteMessageBody(build::LineWriter& out, const build::BuildState& state);

} // namespace tq::php
