// SPDX-License-Identifier: GPL-3.0-or-later
#include "publish/publish.h"

#include "port/platform.h"
#include "publish/file_digest.h"
#include "publish/server_check.h"
#include "publish/site_login.h"
#include "session.h"
#include "shell/instructions.h"

#include <algorithm>
#include <filesystem>

namespace tq::publish {

namespace {

namespace fs = std::filesystem;

bool IsRegularFile(const std::string& path)
{
    std::error_code ec;
    return !path.empty() && fs::is_regular_file(path, ec);
}

void AddFile(PublishPlan& plan, const store::SiteTarget& site, bool all, std::string name, std::string localPath)
{
    if (plan.files.end() !=
        std::find_if(plan.files.begin(), plan.files.end(), [&](const PlannedFile& f) { return f.name == name; }))
        return;
    const auto digest = DigestFile(localPath);
    if (!digest) {
        if (plan.error.empty())
            plan.error = "Cannot read " + localPath + ".";
        return;
    }
    PlannedFile file{std::move(name), std::move(localPath), *digest, true};
    const auto last = site.sent.find(file.name);
    if (!all && last != site.sent.end())
        file.changed = last->second.size != file.digest.size || last->second.sha256 != file.digest.sha256;
    plan.files.push_back(std::move(file));
}

PublishReport Stop(PublishReport report, std::string why)
{
    report.ok = false;
    report.failure = std::move(why);
    return report;
}

} // namespace

std::string TemporaryRemoteName(const std::string& name)
{
    const size_t slash = name.rfind('/');
    const size_t base = slash == std::string::npos ? 0 : slash + 1;
    return name.substr(0, base) + "." + name.substr(base) + ".part";
}

std::string RemoteNameOfExtra(const std::string& path)
{
    std::string generic = path;
    std::replace(generic.begin(), generic.end(), '\\', '/');
    const fs::path given(generic);
    if (given.is_absolute())
        return given.filename().string();
    const fs::path normal = given.lexically_normal();
    // a path that climbs out of the output folder has no place below the remote folder
    if (normal.empty() || *normal.begin() == "..")
        return normal.filename().string();
    return normal.generic_string();
}

std::string FileUrl(const std::string& base, const std::string& name)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string url = base;
    if (url.empty() || url.back() != '/')
        url += '/';
    for (unsigned char c : name) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
                           c == '_' || c == '.' || c == '~';
        if (plain) {
            url += static_cast<char>(c);
        } else {
            url += '%';
            url += kHex[c >> 4];
            url += kHex[c & 15];
        }
    }
    return url;
}

PublishPlan
PlanPublish(const Session& s, const store::SiteTarget& site, const std::vector<std::string>& uploads, bool all)
{
    PublishPlan plan;
    if (uploads.empty()) {
        plan.error = "There is nothing to publish yet: build the form first.";
        return plan;
    }
    const std::string folder = fs::path(s.build.htmlPath).parent_path().string();
    for (const auto& name : uploads)
        AddFile(plan, site, all, name, platform::JoinPath(folder, name));
    for (const auto& extra : shell::ExtraUploads(s.store)) {
        // only a path that names a file here can be sent; the others are told to the user as they are.
        // The page names it relative to itself, so it goes to the same place below the remote folder.
        std::string local = fs::path(extra.path).is_absolute() ? extra.path : platform::JoinPath(folder, extra.path);
        if (IsRegularFile(local))
            AddFile(plan, site, all, RemoteNameOfExtra(extra.path), std::move(local));
    }
    return plan;
}

PublishReport Publish(Session& s,
                      store::SiteStore& sites,
                      const PublishOptions& options,
                      TransferPort& transfer,
                      KeyringPort& keyring,
                      UiPort& ui,
                      const PublishProgress& progress)
{
    PublishReport report;
    store::SiteTarget* site = store::SiteOfNumber(sites, options.siteNumber);
    if (site == nullptr || !site->set) {
        const std::string why = "Web folder " + std::to_string(options.siteNumber) +
                                " has no upload target. Set one up in the site settings first.";
        ui.message(why, "NO SITE", Icon::Exclamation);
        return Stop(report, why);
    }
    const PublishPlan plan = PlanPublish(s, *site, options.uploads, options.all);
    if (!plan.error.empty()) {
        ui.message(plan.error, "PUBLISH FAILED", Icon::Exclamation);
        return Stop(report, plan.error);
    }
    const auto changed = std::count_if(plan.files.begin(), plan.files.end(), [](const auto& f) { return f.changed; });
    for (const auto& f : plan.files)
        if (!f.changed)
            report.lines.push_back("unchanged " + f.name);
    if (options.dryRun) {
        for (const auto& f : plan.files)
            if (f.changed)
                report.lines.push_back("would send " + f.name + " (" + std::to_string(f.digest.size) + " bytes)");
        report.ok = true;
        return report;
    }

    if (changed > 0) {
        auto login = LoginOf(s.DataFolder, *site, options.password, keyring, ui);
        if (!login)
            return Stop(report, "No password was given.");
        const TransferResult connected = Connect(*login, *site, transfer, ui, options.trustShown);
        // a certificate the user trusted is kept even when the login then failed
        if (!store::WriteSites(s.DataFolder, sites))
            ui.message("The site settings could not be written to the data folder.", "PUBLISH", Icon::Exclamation);
        if (connected.status != TransferStatus::Ok)
            return Stop(report, connected.answer.empty() ? connected.fingerprint : connected.answer);
        if (!options.password)
            KeepPassword(*site, *login, keyring, ui);

        for (const auto& f : plan.files) {
            if (!f.changed)
                continue;
            const TransferResult r = transfer.put(
                *login, f.localPath, f.name, TemporaryRemoteName(f.name),
                [&](std::uint64_t sent, std::uint64_t total) { return !progress || progress(f.name, sent, total); });
            if (r.status == TransferStatus::Cancelled) {
                report.lines.push_back("cancelled " + f.name);
                return Stop(report, "Cancelled while sending " + f.name + "; the file on the server stays as it was.");
            }
            if (r.status != TransferStatus::Ok) {
                const std::string why = f.name + " was not published: " + r.answer +
                                        "\r\rThe file on the server stays as it was, and so do the files not sent yet.";
                report.lines.push_back("failed " + f.name);
                ui.message(why, "PUBLISH FAILED", Icon::Exclamation);
                return Stop(report, f.name + " was not published: " + r.answer);
            }
            site->sent[f.name] = f.digest;
            ++report.sent;
            report.lines.push_back("sent " + f.name + " (" + std::to_string(f.digest.size) + " bytes)");
            if (!store::WriteSites(s.DataFolder, sites))
                ui.message("The site settings could not be written to the data folder.", "PUBLISH", Icon::Exclamation);
        }
    }

    if (site->url.empty()) {
        report.lines.push_back("not checked: the site has no web address");
        report.ok = true;
        return report;
    }
    const std::string& page = s.build.setupValues.OutputName;
    const bool pageSent = std::find(options.uploads.begin(), options.uploads.end(), page) != options.uploads.end();
    const ServedCheck check = CheckServed(site->url, pageSent ? page : std::string(), s.build.formAction, transfer, ui);
    report.lines.insert(report.lines.end(), check.lines.begin(), check.lines.end());
    if (!check.ok)
        return Stop(report, check.failure);
    report.checked = true;
    report.ok = true;
    report.lines.push_back("published and checked");
    return report;
}

} // namespace tq::publish
