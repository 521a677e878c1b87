// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::html {

/// The head of the page on channel 1, after the file was opened: the html and
/// body tags of a whole page, the frame opening of a FORM, the background
/// image and the form tag with `formAction`.
void WritePageHead(write::BuildState& b, model::Mode mode);

/// The frame tables of a FORM, written at most once per build (FrameOpened).
/// Does nothing when the frame is off.
void WriteFrameOpen(write::BuildState& b);

/// Closes the inner table and one frame table, whatever TOTAL FRAMES is.
/// Does nothing when the frame is off.
void WriteFrameClose(write::BuildState& b);

/// The wrapper table of pictures and videos, aligned by the shared ALIGN.
void WriteBlockOpen(write::BuildState& b);
/// Closes the wrapper table.
void WriteBlockClose(write::BuildState& b);

/// The tail of the page: the submit button with `submitName`, the cancel
/// button when its Entry named one of more than one character, the form's
/// end, the frame close of a FORM and the end tags of a whole page.
void WritePageClose(write::BuildState& b, model::Mode mode, std::string_view submitName);

} // namespace tq::html
