// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/keyring_port.h"
#include "port/transfer_port.h"
#include "port/ui_port.h"
#include "store/site_store.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tq {
struct Session;
}

namespace tq::publish {

/// One file that a publish sends, or would send.
struct PlannedFile
{
    std::string name;      // on the server, in the site's remote folder
    std::string localPath; // on this machine
    store::SentFile digest;
    bool changed = true; // differs from what was last sent to the site
};

/// The files to send for the last build of `s`: exactly `uploads`, the list
/// the final page shows (FinalPageText::uploads), plus the extra paths they name that are
/// files here (an absolute path, or one relative to the output folder). A
/// relative path keeps its place below the remote folder, as the page links
/// it; an absolute one goes into the remote folder itself.
/// `changed` compares size and hash with what the site last got; `all` marks
/// every file changed. `error` names a file that cannot be read.
struct PublishPlan
{
    std::vector<PlannedFile> files;
    std::string error;
};
PublishPlan
PlanPublish(const Session& s, const store::SiteTarget& site, const std::vector<std::string>& uploads, bool all);

struct PublishOptions
{
    int siteNumber = 0;               // 1 to 15
    std::vector<std::string> uploads; // the final page's list of files to upload
    bool all = false;                 // send every file, changed or not
    bool dryRun = false;
    std::optional<std::string> password; // given by the caller; else the keyring's or asked for
    bool trustShown = false;             // trust an unknown key or certificate without asking
};

/// Told the file being sent, its bytes sent so far and its size; returning
/// false cancels the publish.
using PublishProgress = std::function<bool(const std::string& name, std::uint64_t sent, std::uint64_t total)>;

struct PublishReport
{
    bool ok = false;
    bool checked = false;           // the web check ran and passed
    int sent = 0;                   // files sent
    std::vector<std::string> lines; // what happened to each file and each check, in order
    std::string failure;            // why it stopped, when not ok
};

/// Publishes the last build of `s` to site `siteNumber`: sends the changed
/// files (each under a temporary name, renamed over the old one when
/// complete), remembers what was sent in `sites` and writes the sites file
/// after each file, then checks the page and the script on the web. A
/// failure is told through `ui`, named in the report, and leaves the files
/// not sent yet as they were on the server.
PublishReport Publish(Session& s,
                      store::SiteStore& sites,
                      const PublishOptions& options,
                      TransferPort& transfer,
                      KeyringPort& keyring,
                      UiPort& ui,
                      const PublishProgress& progress = {});

/// The temporary name a file is sent under before it replaces `name`, in the same folder:
/// "images/bg.jpg" is sent as "images/.bg.jpg.part".
std::string TemporaryRemoteName(const std::string& name);

/// The name below the remote folder of an extra path the instructions name:
/// a relative path as it stands with "/" between its folders, the file name
/// alone for an absolute path or one that climbs out of the output folder.
std::string RemoteNameOfExtra(const std::string& path);

/// `base` (a folder's web address) joined with a file name, escaped for a URL.
std::string FileUrl(const std::string& base, const std::string& name);

} // namespace tq::publish
