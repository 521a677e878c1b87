// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tq::gui {

/// Where the waits of the window go. With TQ_TIMINGS set in the environment
/// each note prints to standard error the milliseconds since the wait's
/// start; without it nothing is measured or printed.
/// Starts the wait called `what`.
void StartWait(const char* what);
/// Notes that `step` of the wait on its way has been reached.
void NoteWait(const char* step);

} // namespace tq::gui
