// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "write/build_state.h"

#include <string_view>

namespace tq::php {

/// Writes the function download_file(): its banner and head, then the page
/// with one paragraph for each of `downloadTexts` (1..downloadTextCount) and
/// one link for each of `downloadFiles` (1..downloadFileCount), each link
/// `serverPath` joined to the file name, and a Home button to `homePage`
/// unless that is empty or "NONE". Throws model::InternalError when a count
/// passes its table's bound.
void WriteDownloadFile(write::LineWriter& out, const write::BuildState& state, std::string_view serverPath);

/// Writes the banner and the whole function show_error($myError), which shows
/// the red error box and ends the script; its last line closes the script.
void WriteShowError(write::LineWriter& out);

} // namespace tq::php
