// SPDX-License-Identifier: GPL-3.0-or-later
#include "show/show_commands.h"

#include "port/platform.h"

namespace tq::show {

void ShowHelp(UiPort& ui)
{
    ui.message(kShowHelpText, "HELP", Icon::Information);
}

bool ViewInstructions(const ShowSettings& settings, UiPort& ui)
{
    return ui.openTarget(platform::JoinPath(settings.ImageFolder, "\\readmeshow.txt"));
}

bool ViewShowLive(std::string_view browserPath, const ShowPage& page, UiPort& ui)
{
    return ui.startProgram(browserPath, {page.OutputLine}, "");
}

bool OpenLocalShow(const ShowSettings& settings, UiPort& ui)
{
    return ui.openTarget(platform::JoinPath(settings.ImageFolder, "\\photoshow.php"));
}

} // namespace tq::show
