// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/imap_source.h"

#include <curl/curl.h>
#include <memory>
#include <mutex>
#include <sstream>
#include <vector>

namespace tq::results {

namespace {

struct CurlFree
{
    void operator()(CURL* c) const { curl_easy_cleanup(c); }
};

size_t Collect(char* data, size_t size, size_t count, void* user)
{
    static_cast<std::string*>(user)->append(data, size * count);
    return size * count;
}

std::string FolderUrl(CURL* curl, const ImapTarget& t)
{
    char* escaped = curl_easy_escape(curl, t.folder.c_str(), static_cast<int>(t.folder.size()));
    std::string url = std::string(t.tls ? "imaps://" : "imap://") + t.host + ":" +
                      std::to_string(t.port != 0 ? t.port : (t.tls ? 993 : 143)) + "/" +
                      (escaped != nullptr ? escaped : "");
    curl_free(escaped);
    return url;
}

// Runs one request; the response body lands in `out`. False with the reason in `error`.
bool Perform(CURL* curl, const std::string& url, const char* request, std::string& out, std::string& error)
{
    out.clear();
    char reason[CURL_ERROR_SIZE] = {};
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_CUSTOMREQUEST, request);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &out);
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, reason);
    const CURLcode code = curl_easy_perform(curl);
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, nullptr);
    if (code == CURLE_OK)
        return true;
    error = reason[0] != '\0' ? reason : curl_easy_strerror(code);
    return false;
}

std::vector<std::string> SearchUids(const std::string& response)
{
    std::vector<std::string> uids;
    std::istringstream lines(response);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.rfind("* SEARCH", 0) != 0)
            continue;
        std::istringstream words(line.substr(8));
        std::string word;
        while (words >> word)
            if (word.find_first_not_of("0123456789") == std::string::npos)
                uids.push_back(word);
    }
    return uids;
}

} // namespace

std::optional<ImapTarget> ParseImapAddress(std::string_view address)
{
    ImapTarget t;
    if (address.rfind("imaps://", 0) == 0) {
        t.tls = true;
        address.remove_prefix(8);
    } else if (address.rfind("imap://", 0) == 0) {
        address.remove_prefix(7);
    } else {
        return std::nullopt;
    }
    const size_t at = address.rfind('@', address.find('/'));
    if (at == std::string_view::npos || at == 0)
        return std::nullopt;
    t.user = std::string(address.substr(0, at));
    address.remove_prefix(at + 1);
    const size_t slash = address.find('/');
    std::string_view hostPort = address.substr(0, slash);
    if (slash != std::string_view::npos && slash + 1 < address.size())
        t.folder = std::string(address.substr(slash + 1));
    const size_t colon = hostPort.rfind(':');
    if (colon != std::string_view::npos) {
        const std::string digits(hostPort.substr(colon + 1));
        if (digits.empty() || digits.size() > 5 || digits.find_first_not_of("0123456789") != std::string::npos)
            return std::nullopt;
        t.port = std::stoi(digits);
        if (t.port < 1 || t.port > 65535)
            return std::nullopt;
        hostPort = hostPort.substr(0, colon);
    }
    if (hostPort.empty())
        return std::nullopt;
    t.host = std::string(hostPort);
    return t;
}

std::string ImapAddress(const ImapTarget& target)
{
    return std::string(target.tls ? "imaps://" : "imap://") + target.user + "@" + target.host +
           (target.port != 0 ? ":" + std::to_string(target.port) : "") + "/" + target.folder;
}

bool ReadImapFolder(const ImapTarget& target, const MailSink& sink, std::string& error)
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    std::unique_ptr<CURL, CurlFree> curl(curl_easy_init());
    if (!curl) {
        error = "the transfer library could not start";
        return false;
    }
    CURL* c = curl.get();
    curl_easy_setopt(c, CURLOPT_USERNAME, target.user.c_str());
    curl_easy_setopt(c, CURLOPT_PASSWORD, target.password.c_str());
    curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, Collect);
    curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT, 20L);
    curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
    const std::string folder = FolderUrl(c, target);
    std::string response;
    if (!Perform(c, folder, "UID SEARCH ALL", response, error))
        return false;
    const std::string base = folder + "/;UID=";
    std::string failed;
    for (const auto& uid : SearchUids(response)) {
        std::string why;
        if (!Perform(c, base + uid, nullptr, response, why)) {
            failed += (failed.empty() ? "" : "; ") + ("UID " + uid + ": " + why);
            continue;
        }
        sink(response, target.folder + " UID " + uid);
    }
    error = failed;
    return true;
}

} // namespace tq::results
