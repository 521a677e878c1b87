// SPDX-License-Identifier: GPL-3.0-or-later
#include "publish/site_login.h"

namespace tq::publish {

namespace {

std::string Where(const store::SiteTarget& site)
{
    return site.host + (site.port > 0 ? ":" + std::to_string(site.port) : std::string());
}

bool AskTrust(const store::SiteTarget& site, const TransferResult& shown, UiPort& ui)
{
    const bool sftp = site.protocol == Protocol::Sftp;
    const std::string what =
        sftp ? "a host key that is not known yet" : "a certificate that no trusted authority signed";
    return ui.ask("The server " + Where(site) + " shows " + what + ":\r\r" + shown.fingerprint +
                      "\r\rCompare this fingerprint with the one your host gives you. Trust it and go on?",
                  sftp ? "UNKNOWN HOST KEY" : "UNTRUSTED CERTIFICATE", Buttons::YesNo, Icon::Question,
                  2) == Answer::Yes;
}

void TellFailure(const store::SiteTarget& site, const RemoteLogin& login, const TransferResult& r, UiPort& ui)
{
    const bool sftp = site.protocol == Protocol::Sftp;
    switch (r.status) {
    case TransferStatus::Ok:
        return;
    case TransferStatus::ChangedIdentity:
        ui.message("The server " + Where(site) + " shows a different " + (sftp ? "host key" : "certificate") +
                       " than the one you trusted:\r\r" + r.fingerprint +
                       "\r\rSomeone may be between you and your server. Nothing was sent. If your host did change "
                       "it, " +
                       (sftp ? "remove the host's line from known_hosts in the data folder"
                             : "set the site up again and trust the new certificate") +
                       ".",
                   sftp ? "HOST KEY CHANGED" : "CERTIFICATE CHANGED", Icon::Critical);
        return;
    case TransferStatus::UnknownIdentity:
        ui.message("The " + std::string(sftp ? "host key" : "certificate") + " of " + Where(site) +
                       " is not trusted, so nothing was sent:\r\r" + r.fingerprint,
                   "NOT TRUSTED", Icon::Exclamation);
        return;
    case TransferStatus::LoginRefused:
        ui.message("The server " + Where(site) + " refused the login of " + login.user + ":\r\r" + r.answer,
                   "LOGIN FAILED", Icon::Exclamation);
        return;
    case TransferStatus::NoFolder:
        ui.message("The folder " + login.remoteDir + " does not exist on " + Where(site) + ":\r\r" + r.answer,
                   "NO REMOTE FOLDER", Icon::Exclamation);
        return;
    case TransferStatus::Cancelled:
        return;
    case TransferStatus::Failed:
        ui.message("No connection to " + Where(site) + ":\r\r" + r.answer, "CONNECTION FAILED", Icon::Exclamation);
        return;
    }
}

} // namespace

std::optional<RemoteLogin> LoginOf(const std::string& dataFolder,
                                   const store::SiteTarget& site,
                                   const std::optional<std::string>& given,
                                   KeyringPort& keyring,
                                   UiPort& ui)
{
    RemoteLogin login;
    login.protocol = site.protocol;
    login.host = site.host;
    login.port = site.port;
    login.user = site.user;
    login.keyPath = site.keyPath;
    login.remoteDir = site.remoteDir;
    login.knownHostsPath = store::KnownHostsPath(dataFolder);
    login.pinnedKey = site.pinnedKey;
    if (given) {
        login.password = *given;
    } else if (site.keyPath.empty()) {
        if (auto kept = keyring.readSecret(store::PasswordKey(site))) {
            login.password = *kept;
        } else {
            auto typed = ui.passwordBox("Password of " + site.user + " on " + Where(site) + ":", "PASSWORD");
            if (!typed)
                return std::nullopt;
            login.password = *typed;
        }
    }
    return login;
}

TransferResult Connect(RemoteLogin& login, store::SiteTarget& site, TransferPort& transfer, UiPort& ui, bool trustShown)
{
    if (site.protocol == Protocol::Ftp)
        ui.message("Plain FTP sends your password and your files as clear text: anyone on the way can read them. "
                   "Use FTP with TLS or SFTP where your host offers it.",
                   "PLAIN FTP", Icon::Exclamation);
    TransferResult r = transfer.probe(login);
    if (r.status == TransferStatus::UnknownIdentity && (trustShown || AskTrust(site, r, ui))) {
        const std::string fingerprint = r.fingerprint;
        if (site.protocol == Protocol::Sftp) {
            login.trustShown = true;
        } else {
            login.pinnedKey = r.pinnedKey;
            site.pinnedKey = r.pinnedKey;
        }
        r = transfer.probe(login);
        login.trustShown = false;
        if (r.fingerprint.empty())
            r.fingerprint = fingerprint;
    }
    TellFailure(site, login, r, ui);
    return r;
}

void KeepPassword(const store::SiteTarget& site, const RemoteLogin& login, KeyringPort& keyring, UiPort& ui)
{
    if (!site.keyPath.empty() || login.password.empty())
        return;
    const std::string key = store::PasswordKey(site);
    if (keyring.readSecret(key) == login.password)
        return;
    if (!keyring.writeSecret(key, login.password) && !keyring.toldNotKept) {
        keyring.toldNotKept = true;
        ui.message("No keyring answers on this desktop, so the password cannot be kept. It is asked for at each "
                   "publish.",
                   "PASSWORD NOT KEPT", Icon::Information);
    }
}

} // namespace tq::publish
