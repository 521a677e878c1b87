// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/site_store.h"

#include "port/platform.h"
#include "store/text_file.h"

#include <nlohmann/json.hpp>

namespace tq::store {

namespace {

using nlohmann::json;

json SiteToJson(int number, const SiteTarget& s)
{
    json sent = json::object();
    for (const auto& [name, file] : s.sent)
        sent[name] = {{"size", file.size}, {"sha256", file.sha256}};
    return {{"number", number},         {"protocol", ProtocolName(s.protocol)},
            {"host", s.host},           {"port", s.port},
            {"user", s.user},           {"key", s.keyPath},
            {"remoteDir", s.remoteDir}, {"url", s.url},
            {"pinnedKey", s.pinnedKey}, {"sent", sent}};
}

SiteTarget SiteOfJson(const json& j)
{
    SiteTarget s;
    s.set = true;
    const auto protocol = ProtocolOfName(j.value("protocol", std::string()));
    if (!protocol)
        throw std::runtime_error("unknown protocol \"" + j.value("protocol", std::string()) + "\"");
    s.protocol = *protocol;
    s.host = j.value("host", std::string());
    s.port = j.value("port", 0);
    s.user = j.value("user", std::string());
    s.keyPath = j.value("key", std::string());
    s.remoteDir = j.value("remoteDir", std::string());
    s.url = j.value("url", std::string());
    s.pinnedKey = j.value("pinnedKey", std::string());
    if (j.contains("sent"))
        for (const auto& [name, file] : j.at("sent").items())
            s.sent[name] = SentFile{file.at("size").get<std::uint64_t>(), file.at("sha256").get<std::string>()};
    return s;
}

} // namespace

bool ReadSites(const std::string& dataFolder, SiteStore& sites, std::string& error)
{
    sites = SiteStore{};
    const std::string path = platform::JoinPath(dataFolder, kSitesFileName);
    if (!FileReadable(path))
        return true;
    const auto bytes = ReadWholeFile(path);
    if (!bytes) {
        error = "cannot read " + path;
        return false;
    }
    SiteStore read;
    try {
        const json doc = json::parse(*bytes);
        for (const auto& j : doc.at("sites")) {
            const int number = j.at("number").get<int>();
            if (number < 1 || number > kSiteCount)
                throw std::runtime_error("site number " + std::to_string(number) + " is not between 1 and 15");
            read.sites[static_cast<size_t>(number - 1)] = SiteOfJson(j);
        }
    } catch (const std::exception& e) {
        error = path + " is damaged: " + e.what();
        return false;
    }
    sites = std::move(read);
    return true;
}

bool WriteSites(const std::string& dataFolder, const SiteStore& sites)
{
    json list = json::array();
    for (size_t i = 0; i < sites.sites.size(); ++i)
        if (sites.sites[i].set)
            list.push_back(SiteToJson(static_cast<int>(i) + 1, sites.sites[i]));
    const json doc = {{"sites", list}};
    // a name that is not UTF-8 is kept with replacement characters: it only costs a resend
    const std::string text = doc.dump(2, ' ', false, json::error_handler_t::replace) + "\n";
    return WriteFileReplacing(platform::JoinPath(dataFolder, kSitesFileName), text);
}

SiteTarget* SiteOfNumber(SiteStore& sites, int number)
{
    if (number < 1 || number > kSiteCount)
        return nullptr;
    return &sites.sites[static_cast<size_t>(number - 1)];
}

std::string KnownHostsPath(const std::string& dataFolder)
{
    return platform::JoinPath(dataFolder, kKnownHostsFileName);
}

std::string PasswordKey(const SiteTarget& site)
{
    return site.user + "@" + site.host + ":" + std::to_string(site.port);
}

} // namespace tq::store
