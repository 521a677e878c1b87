// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/version_check.h"

#include "model/text_ops.h"
#include "port/platform.h"

#include <algorithm>
#include <cctype>

namespace tq::shell {

std::string VersionLine()
{
    return std::string(platform::kVersionText);
}

static std::string CurrentVersion()
{
    std::string line = VersionLine();
    const size_t at = model::FindNoCase(line, "VERSION");
    if (at == std::string::npos || at + 8 > line.size())
        return {};
    return line.substr(at + 8);
}

void CheckForUpdate(UiPort& ui, std::string_view url, std::string_view downloadPage, int timeoutMs)
{
    ui.setBusy(true);
    std::optional<std::string> latest = ui.httpGet(url, timeoutMs);
    ui.setBusy(false);
    if (!latest) {
        ui.message("Cannot retrieve revision. Web Server may be down", "Tarnquill", Icon::Exclamation);
        return;
    }
    if (latest->empty()) {
        ui.message("Cannot retrieve the revision from the website", "ERROR", Icon::Critical);
        return;
    }
    std::string current = CurrentVersion();
    std::string report = "Current version : " + current + "\r" + "Latest Version    : " + *latest;
    if (*latest == current) {
        ui.message(report + "\r\rYou have the latest version", "VERSION UP TO DATE", Icon::Information);
        return;
    }
    Answer a = ui.ask(report + "\r\rA new version is available. Would you like to download the new version?\r\r"
                               "Note: Exit Tarnquill before installing the new version of Tarnquill",
                      "DOWNLOAD NEW VERSION", Buttons::YesNo, Icon::Question, 1);
    if (a == Answer::Yes)
        ui.openTarget(downloadPage);
}

} // namespace tq::shell
