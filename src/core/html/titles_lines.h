// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "port/ui_port.h"
#include "write/build_state.h"

namespace tq::html {

// The Input Types that write no question, on channel 1 of the HTML pass.
// Each reads the Entry values that its extraction left in the build state.

/// HORIZONTAL LINE: an hr tag with size, alignment, width and colour.
void WriteHorizontalLine(write::BuildState& b);

/// TITLE SHADE: the title, cut into its lines, in a fixed grey table.
void WriteTitleShade(write::BuildState& b);

/// BLANK LINE: NEW LINE times "<br>". A count past 32767 throws
/// model::InternalError (it would overflow the counter of the format).
void WriteBlankLine(write::BuildState& b);

/// VIDEO: an img tag with dynsrc. A path with none of .AVI, .MP4, .WMV is
/// told as not supported (unless it is NONE) and writes nothing; the build
/// goes on. In SURVEY the video stands in the wrapper table, and an MP4
/// leaves before the table is closed.
void WriteVideo(write::BuildState& b, model::Mode mode, UiPort& ui);

/// PICTURE: an img tag in the wrapper table; nothing for the path NONE. In
/// FORM two breaks come first unless the last slot of the previous PHP pass
/// of this run was 3.
void WritePicture(write::BuildState& b, model::Mode mode);

} // namespace tq::html
