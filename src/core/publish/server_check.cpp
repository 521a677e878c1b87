// SPDX-License-Identifier: GPL-3.0-or-later
#include "publish/server_check.h"

#include "publish/publish.h"

namespace tq::publish {

namespace {

constexpr int kCheckTimeoutMs = 15000;
// the title of the script's own error page, which a GET without fields shows
constexpr std::string_view kErrorPageMark = "<title>Show Error</title>";

std::string Status(const HttpAnswer& a)
{
    return a.status == 0 ? a.error : "HTTP " + std::to_string(a.status);
}

} // namespace

ServedCheck CheckServed(const std::string& url,
                        const std::string& pageName,
                        const std::string& scriptName,
                        TransferPort& transfer,
                        UiPort& ui)
{
    ServedCheck check;
    auto fail = [&](std::string line, std::string why) {
        check.lines.push_back(std::move(line));
        if (check.ok)
            check.failure = std::move(why);
        check.ok = false;
    };

    if (!pageName.empty()) {
        const std::string pageUrl = FileUrl(url, pageName);
        const HttpAnswer page = transfer.get(pageUrl, kCheckTimeoutMs);
        if (page.status == 200)
            check.lines.push_back("served " + pageUrl);
        else
            fail("not served " + pageUrl + " (" + Status(page) + ")",
                 "The page " + pageName + " is not served at " + pageUrl + " (" + Status(page) + ").");
    }

    const std::string scriptUrl = FileUrl(url, scriptName);
    const HttpAnswer script = transfer.get(scriptUrl, kCheckTimeoutMs);
    if (script.body.find("<?php") != std::string::npos) {
        const std::string why = "The web server sends " + scriptName +
                                " as text: PHP does not run there. Anyone who opens " + scriptUrl +
                                " can read the script, with the e-mail addresses of its recipients. Remove it from "
                                "the server, or have PHP enabled for that folder, before you share the form.";
        ui.message(why, "PHP NOT RUNNING", Icon::Critical);
        fail("source shown " + scriptUrl, why);
    } else if (script.status == 200 && script.body.find(kErrorPageMark) != std::string::npos) {
        check.lines.push_back("runs " + scriptUrl);
    } else {
        fail("does not run " + scriptUrl + " (" + Status(script) + ")",
             "The script " + scriptName + " does not run at " + scriptUrl + " (" + Status(script) +
                 "): its own error page did not come back.");
    }
    return check;
}

} // namespace tq::publish
