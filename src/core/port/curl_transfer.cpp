// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/curl_transfer.h"

#include <array>
#include <cstdio>
#include <curl/curl.h>
#include <memory>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>
#include <vector>

namespace tq {

namespace {

constexpr long kConnectTimeoutS = 15;

/// Where the old file of an SFTP upload waits while the new one takes its
/// name: beside the temporary file, as hidden as it is.
std::string AsideName(const std::string& tempName)
{
    return tempName + ".old";
}

std::string Base64(const unsigned char* data, size_t size, bool padding)
{
    std::string out(4 * ((size + 2) / 3) + 1, '\0');
    const int n = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(out.data()), data, static_cast<int>(size));
    out.resize(static_cast<size_t>(n));
    if (!padding)
        while (!out.empty() && out.back() == '=')
            out.pop_back();
    return out;
}

std::vector<unsigned char> Sha256(const unsigned char* data, size_t size)
{
    std::vector<unsigned char> digest(EVP_MAX_MD_SIZE);
    unsigned int length = 0;
    EVP_Digest(data, size, digest.data(), &length, EVP_sha256(), nullptr);
    digest.resize(length);
    return digest;
}

std::string HexPairs(const std::vector<unsigned char>& bytes)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    for (unsigned char b : bytes) {
        if (!out.empty())
            out += ':';
        out += kHex[b >> 4];
        out += kHex[b & 15];
    }
    return out;
}

/// An SSH host key's fingerprint as ssh-keygen shows it: "SHA256:" and the unpadded base64 of its hash.
std::string HostKeyFingerprint(const curl_khkey* key)
{
    std::vector<unsigned char> raw;
    if (key->len == 0) {
        const std::string text(key->key);
        raw.resize(text.size());
        const int n = EVP_DecodeBlock(raw.data(), reinterpret_cast<const unsigned char*>(text.data()),
                                      static_cast<int>(text.size()));
        if (n < 0)
            return {};
        size_t size = static_cast<size_t>(n);
        // EVP_DecodeBlock counts the padding as zero bytes
        for (size_t i = text.size(); i > 0 && text[i - 1] == '='; --i)
            --size;
        raw.resize(size);
    } else {
        raw.assign(key->key, key->key + key->len);
    }
    const auto digest = Sha256(raw.data(), raw.size());
    return "SHA256:" + Base64(digest.data(), digest.size(), false);
}

struct KeyCheck
{
    bool trust = false;
    bool called = false;
    curl_khmatch match = CURLKHMATCH_OK;
    std::string fingerprint;
};

int CheckHostKey(CURL*, const curl_khkey*, const curl_khkey* found, curl_khmatch match, void* client)
{
    auto* check = static_cast<KeyCheck*>(client);
    check->called = true;
    check->match = match;
    check->fingerprint = HostKeyFingerprint(found);
    if (match == CURLKHMATCH_OK)
        return CURLKHSTAT_FINE;
    if (match == CURLKHMATCH_MISSING && check->trust)
        return CURLKHSTAT_FINE_ADD_TO_FILE;
    return CURLKHSTAT_REJECT;
}

/// The certificate's fingerprint (SHA-256 of its DER, in hex pairs) and the
/// pin of its public key ("sha256//" and the base64 of the key's hash).
bool CertificateIdentity(const std::string& pem, std::string& fingerprint, std::string& pin)
{
    std::unique_ptr<BIO, decltype(&BIO_free)> bio(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())), &BIO_free);
    std::unique_ptr<X509, decltype(&X509_free)> cert(PEM_read_bio_X509(bio.get(), nullptr, nullptr, nullptr),
                                                     &X509_free);
    if (!cert)
        return false;
    unsigned char* der = nullptr;
    int size = i2d_X509(cert.get(), &der);
    if (size <= 0)
        return false;
    fingerprint = "SHA256 " + HexPairs(Sha256(der, static_cast<size_t>(size)));
    OPENSSL_free(der);
    der = nullptr;
    size = i2d_X509_PUBKEY(X509_get_X509_PUBKEY(cert.get()), &der);
    if (size <= 0)
        return false;
    const auto digest = Sha256(der, static_cast<size_t>(size));
    OPENSSL_free(der);
    pin = "sha256//" + Base64(digest.data(), digest.size(), true);
    return true;
}

size_t Discard(char*, size_t size, size_t count, void*)
{
    return size * count;
}

size_t Collect(char* data, size_t size, size_t count, void* client)
{
    static_cast<std::string*>(client)->append(data, size * count);
    return size * count;
}

std::string Escape(CURL* curl, const std::string& text)
{
    char* escaped = curl_easy_escape(curl, text.data(), static_cast<int>(text.size()));
    std::string out = escaped != nullptr ? escaped : "";
    curl_free(escaped);
    return out;
}

/// The remote folder as SFTP quote commands and URLs take it: absolute, or
/// "/~/" for a folder below the login's home.
std::string SftpFolder(const std::string& dir)
{
    std::string folder = dir.empty() || dir.front() == '/' ? dir : "/~/" + dir;
    if (folder.empty() || folder.back() != '/')
        folder += '/';
    return folder;
}

/// The last part of a "/"-separated name.
std::string BaseName(const std::string& name)
{
    const size_t slash = name.rfind('/');
    return slash == std::string::npos ? name : name.substr(slash + 1);
}

/// A path in double quotes for an SFTP quote command.
std::string Quoted(const std::string& path)
{
    std::string out = "\"";
    for (char c : path) {
        if (c == '"' || c == '\\')
            out += '\\';
        out += c;
    }
    return out + "\"";
}

struct SList
{
    curl_slist* list = nullptr;
    ~SList() { curl_slist_free_all(list); }
    void add(const std::string& line) { list = curl_slist_append(list, line.c_str()); }
};

} // namespace

struct CurlTransfer::Handle
{
    CURL* curl = curl_easy_init();
    std::array<char, CURL_ERROR_SIZE> error{};
    KeyCheck keyCheck;
    ~Handle() { curl_easy_cleanup(curl); }

    /// The URL of the remote folder (with its trailing "/") or of a file
    /// below it ("images/bg.jpg": each folder escaped on its own).
    std::string urlOf(const RemoteLogin& login, const std::string& name) const
    {
        const bool sftp = login.protocol == Protocol::Sftp;
        std::string url = sftp ? "sftp://" : "ftp://";
        url += login.host.find(':') != std::string::npos ? "[" + login.host + "]" : login.host;
        if (login.port > 0)
            url += ":" + std::to_string(login.port);
        std::string path;
        size_t from = 0;
        std::string dir = login.remoteDir;
        if (sftp) {
            url += login.remoteDir.empty() || login.remoteDir.front() != '/' ? "/~" : "";
        } else if (!dir.empty() && dir.front() == '/') {
            url += "/%2F"; // an absolute folder on FTP
            from = 1;
        }
        // each part of the folder escaped on its own, the separators kept
        while (from < dir.size()) {
            size_t slash = dir.find('/', from);
            if (slash == std::string::npos)
                slash = dir.size();
            if (slash > from)
                path += "/" + Escape(curl, dir.substr(from, slash - from));
            from = slash + 1;
        }
        std::string file;
        for (size_t at = 0; at <= name.size();) {
            size_t slash = name.find('/', at);
            if (slash == std::string::npos)
                slash = name.size();
            file += (at > 0 ? "/" : "") + Escape(curl, name.substr(at, slash - at));
            at = slash + 1;
        }
        return url + path + "/" + file;
    }

    /// Resets the handle for a new request on `login`, keeping its connection.
    void prepare(const RemoteLogin& login)
    {
        curl_easy_reset(curl);
        error[0] = '\0';
        curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, error.data());
        curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, kConnectTimeoutS);
        curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(curl, CURLOPT_USERNAME, login.user.c_str());
        curl_easy_setopt(curl, CURLOPT_PASSWORD, login.password.c_str());
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, Discard);
        if (login.protocol == Protocol::Sftp) {
            keyCheck = KeyCheck{login.trustShown, false, CURLKHMATCH_OK, {}};
            curl_easy_setopt(curl, CURLOPT_SSH_KNOWNHOSTS, login.knownHostsPath.c_str());
            curl_easy_setopt(curl, CURLOPT_SSH_KEYFUNCTION, CheckHostKey);
            curl_easy_setopt(curl, CURLOPT_SSH_KEYDATA, &keyCheck);
            if (!login.keyPath.empty()) {
                curl_easy_setopt(curl, CURLOPT_SSH_AUTH_TYPES, static_cast<long>(CURLSSH_AUTH_PUBLICKEY));
                curl_easy_setopt(curl, CURLOPT_SSH_PRIVATE_KEYFILE, login.keyPath.c_str());
                curl_easy_setopt(curl, CURLOPT_KEYPASSWD, login.password.c_str());
            } else {
                curl_easy_setopt(curl, CURLOPT_SSH_AUTH_TYPES,
                                 static_cast<long>(CURLSSH_AUTH_PASSWORD | CURLSSH_AUTH_KEYBOARD));
            }
        } else if (login.protocol == Protocol::Ftps) {
            curl_easy_setopt(curl, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
            if (!login.pinnedKey.empty()) {
                // a certificate the user trusted by its fingerprint: its key must be the one kept
                curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, 0L);
                curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, 0L);
                curl_easy_setopt(curl, CURLOPT_PINNEDPUBLICKEY, login.pinnedKey.c_str());
            }
        }
    }

    std::string answer(CURLcode code) const
    {
        std::string text = error[0] != '\0' ? std::string(error.data()) : curl_easy_strerror(code);
        long response = 0;
        if (curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &response) == CURLE_OK && response > 0)
            text += " (server answer " + std::to_string(response) + ")";
        return text;
    }

    /// The certificate an FTPS server shows, fetched without logging in.
    void showCertificate(const RemoteLogin& login, TransferResult& result)
    {
        RemoteLogin anonymous = login;
        anonymous.user.clear();
        anonymous.password.clear();
        anonymous.pinnedKey.clear();
        prepare(anonymous);
        curl_easy_setopt(curl, CURLOPT_URL, urlOf(anonymous, "").c_str());
        curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, 0L);
        curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, 0L);
        curl_easy_setopt(curl, CURLOPT_CERTINFO, 1L);
        curl_easy_setopt(curl, CURLOPT_NOBODY, 1L);
        curl_easy_setopt(curl, CURLOPT_FORBID_REUSE, 1L);
        curl_easy_perform(curl);
        curl_certinfo* info = nullptr;
        if (curl_easy_getinfo(curl, CURLINFO_CERTINFO, &info) != CURLE_OK || info == nullptr || info->num_of_certs < 1)
            return;
        for (curl_slist* item = info->certinfo[0]; item != nullptr; item = item->next) {
            const std::string line = item->data;
            if (line.rfind("Cert:", 0) == 0)
                CertificateIdentity(line.substr(5), result.fingerprint, result.pinnedKey);
        }
    }

    TransferResult outcome(const RemoteLogin& login, CURLcode code, bool listing)
    {
        TransferResult result;
        if (login.protocol == Protocol::Sftp && keyCheck.called)
            result.fingerprint = keyCheck.fingerprint;
        if (code == CURLE_OK)
            return result;
        result.answer = answer(code);
        if (login.protocol == Protocol::Sftp && keyCheck.called && keyCheck.match != CURLKHMATCH_OK &&
            !(keyCheck.match == CURLKHMATCH_MISSING && keyCheck.trust)) {
            result.status = keyCheck.match == CURLKHMATCH_MISMATCH ? TransferStatus::ChangedIdentity
                                                                   : TransferStatus::UnknownIdentity;
            return result;
        }
        switch (code) {
        case CURLE_PEER_FAILED_VERIFICATION:
            result.status = TransferStatus::UnknownIdentity;
            showCertificate(login, result);
            break;
        case CURLE_SSL_PINNEDPUBKEYNOTMATCH:
            result.status = TransferStatus::ChangedIdentity;
            showCertificate(login, result);
            break;
        case CURLE_LOGIN_DENIED:
            result.status = TransferStatus::LoginRefused;
            break;
        case CURLE_ABORTED_BY_CALLBACK:
            result.status = TransferStatus::Cancelled;
            break;
        case CURLE_REMOTE_ACCESS_DENIED:
        case CURLE_REMOTE_FILE_NOT_FOUND:
        case CURLE_FTP_COULDNT_RETR_FILE:
            result.status = listing ? TransferStatus::NoFolder : TransferStatus::Failed;
            break;
        default:
            result.status = TransferStatus::Failed;
        }
        return result;
    }

    /// Cleans up after a failed upload, quietly: the old file that stepped
    /// aside (SFTP) comes back, and the temporary file goes.
    void cleanUpQuietly(const RemoteLogin& login, const std::string& remoteName, const std::string& tempName)
    {
        prepare(login);
        SList commands;
        if (login.protocol == Protocol::Sftp) {
            const std::string folder = SftpFolder(login.remoteDir);
            commands.add("*rename " + Quoted(folder + AsideName(tempName)) + " " + Quoted(folder + remoteName));
            commands.add("*rm " + Quoted(folder + tempName));
        } else {
            commands.add("*DELE " + tempName);
        }
        curl_easy_setopt(curl, CURLOPT_URL, urlOf(login, "").c_str());
        curl_easy_setopt(curl, CURLOPT_NOBODY, 1L);
        curl_easy_setopt(curl, CURLOPT_QUOTE, commands.list);
        curl_easy_perform(curl);
    }
};

namespace {

struct ProgressContext
{
    const TransferProgress* progress;
};

int OnProgress(void* client, curl_off_t, curl_off_t, curl_off_t total, curl_off_t sent)
{
    const auto* context = static_cast<ProgressContext*>(client);
    if (*context->progress &&
        !(*context->progress)(static_cast<std::uint64_t>(sent), static_cast<std::uint64_t>(total)))
        return 1;
    return 0;
}

struct FileCloser
{
    void operator()(std::FILE* f) const { std::fclose(f); }
};

} // namespace

CurlTransfer::CurlTransfer()
{
    curl_global_init(CURL_GLOBAL_DEFAULT);
    m_handle = std::make_unique<Handle>();
}

CurlTransfer::~CurlTransfer() = default;

TransferResult CurlTransfer::probe(const RemoteLogin& login)
{
    Handle& h = *m_handle;
    h.prepare(login);
    curl_easy_setopt(h.curl, CURLOPT_URL, h.urlOf(login, "").c_str());
    curl_easy_setopt(h.curl, CURLOPT_DIRLISTONLY, 1L);
    return h.outcome(login, curl_easy_perform(h.curl), true);
}

TransferResult CurlTransfer::put(const RemoteLogin& login,
                                 const std::string& localPath,
                                 const std::string& remoteName,
                                 const std::string& tempName,
                                 const TransferProgress& progress)
{
    Handle& h = *m_handle;
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(localPath.c_str(), "rb"));
    if (!file)
        return {TransferStatus::Failed, "cannot read " + localPath, {}, {}};
    std::fseek(file.get(), 0, SEEK_END);
    const long size = std::ftell(file.get());
    std::rewind(file.get());

    h.prepare(login);
    SList after;
    if (login.protocol == Protocol::Sftp) {
        // SFTP's rename does not replace a file. The old one steps aside under
        // a name of its own (where one left by a broken publish goes first),
        // the complete one takes its name, and only then is the old one
        // removed: at no moment is the old file gone while the new one is not
        // in place.
        const std::string folder = SftpFolder(login.remoteDir);
        const std::string asideName = AsideName(tempName);
        after.add("*rm " + Quoted(folder + asideName));
        after.add("*rename " + Quoted(folder + remoteName) + " " + Quoted(folder + asideName));
        after.add("rename " + Quoted(folder + tempName) + " " + Quoted(folder + remoteName));
        after.add("*rm " + Quoted(folder + asideName));
    } else {
        // FTP stands in the file's own folder after the upload
        after.add("RNFR " + BaseName(tempName));
        after.add("RNTO " + BaseName(remoteName));
    }
    ProgressContext context{&progress};
    curl_easy_setopt(h.curl, CURLOPT_URL, h.urlOf(login, tempName).c_str());
    curl_easy_setopt(h.curl, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(h.curl, CURLOPT_READDATA, file.get());
    curl_easy_setopt(h.curl, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(size));
    curl_easy_setopt(h.curl, CURLOPT_POSTQUOTE, after.list);
    // a file below the remote folder ("images/bg.jpg") gets its folders made; the remote folder itself was probed
    curl_easy_setopt(h.curl, CURLOPT_FTP_CREATE_MISSING_DIRS, static_cast<long>(CURLFTP_CREATE_DIR_RETRY));
    curl_easy_setopt(h.curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(h.curl, CURLOPT_XFERINFOFUNCTION, OnProgress);
    curl_easy_setopt(h.curl, CURLOPT_XFERINFODATA, &context);
    const CURLcode code = curl_easy_perform(h.curl);
    TransferResult result = h.outcome(login, code, false);
    if (code != CURLE_OK && result.status != TransferStatus::UnknownIdentity &&
        result.status != TransferStatus::ChangedIdentity && result.status != TransferStatus::LoginRefused)
        h.cleanUpQuietly(login, remoteName, tempName);
    return result;
}

HttpAnswer CurlTransfer::get(std::string_view url, int timeoutMs)
{
    Handle& h = *m_handle;
    HttpAnswer answer;
    curl_easy_reset(h.curl);
    h.error[0] = '\0';
    const std::string address(url);
    curl_easy_setopt(h.curl, CURLOPT_ERRORBUFFER, h.error.data());
    curl_easy_setopt(h.curl, CURLOPT_URL, address.c_str());
    curl_easy_setopt(h.curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(h.curl, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(h.curl, CURLOPT_MAXREDIRS, 5L);
    curl_easy_setopt(h.curl, CURLOPT_TIMEOUT_MS, static_cast<long>(timeoutMs));
    curl_easy_setopt(h.curl, CURLOPT_WRITEFUNCTION, Collect);
    curl_easy_setopt(h.curl, CURLOPT_WRITEDATA, &answer.body);
    const CURLcode code = curl_easy_perform(h.curl);
    if (code != CURLE_OK) {
        answer.error = h.answer(code);
        return answer;
    }
    curl_easy_getinfo(h.curl, CURLINFO_RESPONSE_CODE, &answer.status);
    return answer;
}

} // namespace tq
