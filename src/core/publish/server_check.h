// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/transfer_port.h"
#include "port/ui_port.h"

#include <string>
#include <vector>

namespace tq::publish {

/// What the web check found.
struct ServedCheck
{
    bool ok = true;
    std::vector<std::string> lines; // one per address fetched
    std::string failure;            // the first fault, in plain words
};

/// Fetches the page (when `pageName` is not empty) and the script from the
/// site's web address `url`. The page must come back with status 200; a GET
/// of the script must come back as the script's own error page. A script
/// that comes back as its source is told at once through `ui`: PHP does not
/// run there and anyone can read the recipients' addresses.
ServedCheck CheckServed(const std::string& url,
                        const std::string& pageName,
                        const std::string& scriptName,
                        TransferPort& transfer,
                        UiPort& ui);

} // namespace tq::publish
