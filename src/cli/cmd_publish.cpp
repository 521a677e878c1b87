// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands.h"
#include "console_port.h"
#include "port/curl_transfer.h"
#include "port/keyring_port.h"
#include "publish/publish.h"
#include "publish/site_login.h"
#include "session.h"
#include "shell/instructions.h"
#include "store/site_store.h"

#include <charconv>
#include <istream>
#include <memory>
#include <ostream>

namespace tq::cli {

namespace {

constexpr const char* kSiteUsage = "usage: tarnquill-cli site N --protocol ftp|ftps|sftp --host H [--port P] --user U "
                                   "[--key PATH] [--password-stdin] --remote-dir D --url URL [--trust] "
                                   "[--data-folder DIR]\n";
constexpr const char* kPublishUsage = "usage: tarnquill-cli publish FILE --site N [--all] [--dry-run] "
                                      "[--password-stdin] [--web-folder DIR] [--data-folder DIR]\n";

int Usage(std::ostream& err, const std::string& why, const char* usage)
{
    err << "tarnquill-cli: " << why << "\n" << usage;
    return 2;
}

std::optional<int> NumberOf(const std::string& text, int low, int high)
{
    int n = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (ec != std::errc() || end != text.data() + text.size() || n < low || n > high)
        return std::nullopt;
    return n;
}

/// The first line of standard input, without its line end.
std::string ReadPassword(std::istream& in)
{
    std::string line;
    std::getline(in, line);
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return line;
}

/// Options of the form "--name value" gathered in order; flags without a value.
struct Parsed
{
    std::vector<std::string> words;
    std::vector<std::pair<std::string, std::string>> values;
    std::vector<std::string> flags;
    std::string error;

    const std::string* value(const std::string& name) const
    {
        for (const auto& [n, v] : values)
            if (n == name)
                return &v;
        return nullptr;
    }
    bool flag(const std::string& name) const { return std::find(flags.begin(), flags.end(), name) != flags.end(); }
};

Parsed Parse(const std::vector<std::string>& args,
             const std::vector<std::string>& withValue,
             const std::vector<std::string>& withoutValue)
{
    Parsed p;
    for (size_t i = 0; i < args.size() && p.error.empty(); ++i) {
        const std::string& a = args[i];
        if (std::find(withValue.begin(), withValue.end(), a) != withValue.end()) {
            if (i + 1 >= args.size())
                p.error = a + " needs a value";
            else
                p.values.emplace_back(a, args[++i]);
        } else if (std::find(withoutValue.begin(), withoutValue.end(), a) != withoutValue.end()) {
            p.flags.push_back(a);
        } else if (!a.empty() && a[0] == '-') {
            p.error = "unknown option '" + a + "'";
        } else {
            p.words.push_back(a);
        }
    }
    return p;
}

std::optional<std::string> OptionalValue(const Parsed& p, const std::string& name)
{
    const std::string* v = p.value(name);
    return v != nullptr ? std::optional<std::string>(*v) : std::nullopt;
}

/// Sets the data folder from --data-folder and reads its sites file; returns
/// the exit code to stop with (telling why on `err`), or 0.
int OpenSites(const Parsed& p, Session& s, store::SiteStore& sites, std::ostream& err)
{
    if (const int code = SetDataFolder(s, OptionalValue(p, "--data-folder"), err); code != 0)
        return code;
    std::string error;
    if (store::ReadSites(s.DataFolder, sites, error))
        return 0;
    err << "tarnquill-cli: " << error << "\n";
    return 1;
}

/// The console port that, like the desktop program, fills the final page
/// when the build brings it up: that is where the upload list is made.
struct PublishPort : ConsolePort
{
    PublishPort(std::ostream& err, Session& s) : ConsolePort(err), session(s) {}
    void showView(View v) override
    {
        if (v == View::FinalPage)
            uploads = shell::ShowInstructions(session, *this).uploads;
    }
    Session& session;
    std::vector<std::string> uploads;
};

} // namespace

int CmdSite(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err)
{
    const Parsed p =
        Parse(args, {"--protocol", "--host", "--port", "--user", "--key", "--remote-dir", "--url", "--data-folder"},
              {"--password-stdin", "--trust"});
    if (!p.error.empty())
        return Usage(err, p.error, kSiteUsage);
    if (p.words.size() != 1)
        return Usage(err, "site needs one number N", kSiteUsage);
    const auto number = NumberOf(p.words[0], 1, store::kSiteCount);
    if (!number)
        return Usage(err, "N is a web folder from 1 to 15, not '" + p.words[0] + "'", kSiteUsage);
    for (const char* needed : {"--protocol", "--host", "--user", "--remote-dir", "--url"})
        if (p.value(needed) == nullptr)
            return Usage(err, std::string("site needs ") + needed, kSiteUsage);
    const auto protocol = ProtocolOfName(*p.value("--protocol"));
    if (!protocol)
        return Usage(err, "--protocol is ftp, ftps or sftp, not '" + *p.value("--protocol") + "'", kSiteUsage);
    std::optional<int> port = 0;
    if (const std::string* text = p.value("--port"); text != nullptr && !(port = NumberOf(*text, 1, 65535)))
        return Usage(err, "--port is a number from 1 to 65535, not '" + *text + "'", kSiteUsage);
    if (p.value("--key") != nullptr && *protocol != Protocol::Sftp)
        return Usage(err, "--key is for sftp only", kSiteUsage);

    auto s = std::make_unique<Session>();
    store::SiteStore sites;
    if (const int code = OpenSites(p, *s, sites, err); code != 0)
        return code;
    store::SiteTarget& site = *store::SiteOfNumber(sites, *number);
    const auto sent = site.host == *p.value("--host") && site.remoteDir == *p.value("--remote-dir")
                          ? site.sent
                          : std::map<std::string, store::SentFile>{};
    const std::string pinned = site.host == *p.value("--host") ? site.pinnedKey : std::string();
    site = store::SiteTarget{true,
                             *protocol,
                             *p.value("--host"),
                             *port,
                             *p.value("--user"),
                             OptionalValue(p, "--key").value_or(""),
                             *p.value("--remote-dir"),
                             *p.value("--url"),
                             pinned,
                             sent};

    const std::optional<std::string> password =
        p.flag("--password-stdin") ? std::optional<std::string>(ReadPassword(in)) : std::nullopt;
    ConsolePort ui(err);
    int code = 0;
    if (p.flag("--trust")) {
        NoKeyring keyring;
        CurlTransfer transfer;
        auto login = publish::LoginOf(s->DataFolder, site, password.value_or(""), keyring, ui);
        const TransferResult r = publish::Connect(*login, site, transfer, ui, true);
        if (!r.fingerprint.empty())
            out << "trusted " << r.fingerprint << "\n";
        code = r.status == TransferStatus::Ok ? 0 : 1;
    }
    if (password && site.keyPath.empty())
        err << "tarnquill-cli: this tool has no keyring, so the password is not kept; give it to publish with "
               "--password-stdin\n";
    if (!store::WriteSites(s->DataFolder, sites)) {
        err << "tarnquill-cli: cannot write the site settings in " << s->DataFolder << "\n";
        return 1;
    }
    out << "site " << *number << ": " << ProtocolName(site.protocol) << "://" << site.user << "@" << site.host
        << (site.port > 0 ? ":" + std::to_string(site.port) : std::string()) << " " << site.remoteDir << " " << site.url
        << "\n";
    return code;
}

int CmdPublish(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err)
{
    const Parsed p =
        Parse(args, {"--site", "--data-folder", "--web-folder"}, {"--all", "--dry-run", "--password-stdin"});
    if (!p.error.empty())
        return Usage(err, p.error, kPublishUsage);
    if (p.words.size() != 1)
        return Usage(err, "publish needs one FILE", kPublishUsage);
    const std::string* siteText = p.value("--site");
    if (siteText == nullptr)
        return Usage(err, "publish needs --site N", kPublishUsage);
    const auto number = NumberOf(*siteText, 1, store::kSiteCount);
    if (!number)
        return Usage(err, "--site is a web folder from 1 to 15, not '" + *siteText + "'", kPublishUsage);

    auto s = std::make_unique<Session>();
    store::SiteStore sites;
    if (const int code = OpenSites(p, *s, sites, err); code != 0)
        return code;

    publish::PublishOptions options;
    options.siteNumber = *number;
    options.all = p.flag("--all");
    options.dryRun = p.flag("--dry-run");
    if (p.flag("--password-stdin"))
        options.password = ReadPassword(in);

    // the whole page is built, so that the page can be sent and checked beside its script
    PublishPort ui(err, *s);
    BuildOptions build{p.words[0], {}, true, true, s->DataFolder, OptionalValue(p, "--web-folder")};
    if (BuildProject(*s, build, ui, err) != 0)
        return 1;

    options.uploads = ui.uploads;
    NoKeyring keyring;
    CurlTransfer transfer;
    const publish::PublishReport report = publish::Publish(*s, sites, options, transfer, keyring, ui);
    for (const auto& line : report.lines)
        out << line << "\n";
    if (!report.ok) {
        err << "tarnquill-cli: " << ConvertLineBreaks(report.failure, "\n") << "\n";
        return 1;
    }
    return 0;
}

} // namespace tq::cli
