// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "session.h"
#include "show/show_settings.h"

#include <string>
#include <string_view>
#include <vector>

namespace tq::show {

/// The mark of the template's home link line: the project's own web address.
inline constexpr std::string_view kHomeLinkMark = "https://www.tarnquill.example";

/// The field checks of the photo show, on the upper-cased texts; the first
/// failure shows its message (title "ERROR") and sets `failed`.
void ValidateShow(const ShowSettings& settings, bool& failed, UiPort& ui);

/// The dialog that finds the template photodata.php, starting in
/// `programFolder`. Cancel says "ABORTED..." and sets `failed`; a choice sets
/// the run's font defaults and fills `path`.
void FindTemplate(std::string& path, bool& failed, std::string_view programFolder, store::RunValues& run, UiPort& ui);

/// The lines written for one template line `line`: the first mark of the
/// table that `line` contains (exact case) decides; a line with no mark is
/// copied. The result may hold no line (a fade mode that is not in the list),
/// one, or two (the "<?PHP" line and the colour behind it).
std::vector<std::string> RewriteTemplateLine(std::string_view line, const ShowSettings& settings);

/// The lines of readmeshow.txt for `imageFolder` (without a trailing separator).
std::vector<std::string> ReadmeShowLines(const ShowSettings& settings, std::string_view imageFolder);

/// The text of the DONE message for `imageFolder` (without a trailing separator).
std::string ShowDoneMessage(const ShowSettings& settings, std::string_view imageFolder);

/// The command "BUILD PHOTO SHOW": checks the fields and the image folder,
/// finds the template (proposed in `programFolder`), writes photoshow.php and
/// readmeshow.txt into the image folder, says DONE, fills the output line and
/// adds the show to `\history.txt` (when the session has a DataFolder),
/// which refreshes the photo list.
/// Returns true when both files were written.
bool BuildShow(Session& session, std::string_view programFolder, UiPort& ui);

} // namespace tq::show
