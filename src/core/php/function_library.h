// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "write/line_writer.h"

namespace tq::php {

/// Writes the script's fixed function library: validate_email to check_entry,
/// each under its banner, ending with the empty line after check_entry. The
/// download page and the error page follow it (WriteDownloadFile,
/// WriteShowError). Written in every script, whatever the Entries.
void WriteFunctionLibrary(write::LineWriter& out);

} // namespace tq::php
