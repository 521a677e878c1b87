// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "session.h"
#include "show/show_settings.h"

#include <string>
#include <string_view>

namespace tq::show {

/// The show file's bytes: the 14 values, one a line, each ended by CR LF.
std::string ShowFileText(const ShowSettings& settings);

/// Reads the show file's lines in order into `settings`. A file that ends
/// early leaves the remaining fields as they were; a 14th line that is not a
/// decimal number ends the read there. Returns the number of fields set.
[[nodiscard]] int ReadShowText(std::string_view bytes, ShowSettings& settings);

/// The path of a Recent menu entry: its caption from the drive mark on
/// ("3. /home/me/a.shw" gives "/home/me/a.shw"); a caption with no mark stays whole.
std::string ShowPathFromCaption(std::string_view caption);

/// Resets the run's font defaults ("arial", "3", "off", "off"), as every
/// choice of a file in a dialog does.
void SetFontDefaults(store::RunValues& run);

/// The command Save of the photo show page: asks for the name (Cancel stops),
/// asks before replacing a file, writes the 14 lines and adds the name to
/// `\history.txt` (which refreshes the photo list). A name ending in ".shw" becomes LastFormFile. Returns true
/// when the file was written.
bool SaveShow(Session& session, UiPort& ui);

/// The command Open (empty `path`: asks for the file; "ABORTED..." on Cancel)
/// or a Recent entry (its path). Sets the font defaults, reads the 14 lines,
/// runs the fade switch and fills the output line. A file that can't be read
/// ends the load without a message. Returns true when the file was read.
bool OpenShow(Session& session, std::string_view path, UiPort& ui);

} // namespace tq::show
