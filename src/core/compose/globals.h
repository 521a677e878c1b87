// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/input_types.h"
#include "write/working_values.h"

namespace tq::compose {

/// The SetupEntry's overrides, run at the end of every extraction but the
/// SetupEntry's own. A global alignment other than "NONE" replaces the Entry's,
/// the submit button's, the line's and the video's alignment, and sets the text
/// colour to "0" when the frame is off or the mode is SURVEY; a global text
/// colour other than "NONE" then replaces hex(TEXT COLOR). The table colours,
/// the submit and cancel colours are never touched.
void ApplyGlobals(write::SetupValues& setup, write::WorkingValues& v, model::Mode mode);

} // namespace tq::compose
