// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/transfer_port.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace tq::store {

/// One site per web folder of the Setup page, numbered 1 to 15 as the menus are.
constexpr int kSiteCount = 15;
/// The file of the upload targets in the DataFolder (ours; `\setup.imp` stays as it is).
constexpr std::string_view kSitesFileName = "\\sites.json";
/// The SFTP host keys the user trusted, in the DataFolder.
constexpr std::string_view kKnownHostsFileName = "\\known_hosts";

/// What was last sent of one file, to tell whether it changed since.
struct SentFile
{
    std::uint64_t size = 0;
    std::string sha256; // lower-case hex
    bool operator==(const SentFile&) const = default;
};

/// The upload target of one web folder. The password is never kept here.
struct SiteTarget
{
    bool set = false; // false: no target for this web folder
    Protocol protocol = Protocol::Sftp;
    std::string host;
    int port = 0; // 0: the protocol's own
    std::string user;
    std::string keyPath;                  // SFTP key instead of a password
    std::string remoteDir;                // the folder on the server
    std::string url;                      // the web address of that folder
    std::string pinnedKey;                // FTPS: the certificate the user trusted
    std::map<std::string, SentFile> sent; // by remote file name
};

struct SiteStore
{
    std::array<SiteTarget, kSiteCount> sites;
};

/// Reads the sites file of `dataFolder`. A missing file gives empty targets
/// and true; an unreadable or malformed one returns false with the reason in
/// `error` and leaves `sites` empty, so that nobody writes over it unawares.
[[nodiscard]] bool ReadSites(const std::string& dataFolder, SiteStore& sites, std::string& error);

/// Writes the sites file through a temporary file; false when it failed.
[[nodiscard]] bool WriteSites(const std::string& dataFolder, const SiteStore& sites);

/// The site of number 1 to 15; nullptr for any other number.
SiteTarget* SiteOfNumber(SiteStore& sites, int number);

/// The known_hosts path of `dataFolder`.
std::string KnownHostsPath(const std::string& dataFolder);

/// The keyring key of a site's password: "user@host:port".
std::string PasswordKey(const SiteTarget& site);

} // namespace tq::store
