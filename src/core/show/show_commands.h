// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "show/show_settings.h"

#include <string_view>

namespace tq::show {

/// The page's Help: one message, title "HELP".
void ShowHelp(UiPort& ui);

/// "VIEW INSTRUCTIONS": opens ImageFolder + "/readmeshow.txt" in the
/// desktop's text editor. False when nothing could be started.
bool ViewInstructions(const ShowSettings& settings, UiPort& ui);

/// "VIEW PHOTOSHOW LIVE ON YOUR WEB SITE": starts the browser of the setup
/// with the output line as its argument. False when it could not be started.
bool ViewShowLive(std::string_view browserPath, const ShowPage& page, UiPort& ui);

/// Opens ImageFolder + "/photoshow.php" with the desktop's handler.
bool OpenLocalShow(const ShowSettings& settings, UiPort& ui);

} // namespace tq::show
