// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tq {

/// How files go to a site: plain FTP, FTP with explicit TLS, or SFTP.
enum class Protocol { Ftp, Ftps, Sftp };

/// The protocol's word in files and on the command line ("ftp", "ftps", "sftp").
std::string_view ProtocolName(Protocol protocol);
/// The protocol of a word, compared without case; nullopt for any other word.
std::optional<Protocol> ProtocolOfName(std::string_view name);

/// Where and as whom a transfer logs in.
struct RemoteLogin
{
    Protocol protocol = Protocol::Sftp;
    std::string host;
    int port = 0; // 0: the protocol's own port
    std::string user;
    std::string password; // may be empty when a key is used
    std::string keyPath;  // SFTP: the user's private key; empty: the password
    std::string remoteDir;
    std::string knownHostsPath; // SFTP: the host keys the user trusted
    std::string pinnedKey;      // FTPS: "sha256//..." of the certificate key the user trusted; empty: CA check
    bool trustShown = false;    // SFTP: accept the unknown host key shown now and keep it in knownHostsPath
};

enum class TransferStatus {
    Ok,
    Failed,          // the server or the connection failed; `answer` says how
    UnknownIdentity, // an unknown host key or a certificate nobody vouches for; see `fingerprint`
    ChangedIdentity, // the host key or certificate differs from the one trusted
    LoginRefused,
    NoFolder, // the remote folder does not exist
    Cancelled,
};

/// What a transfer came to.
struct TransferResult
{
    TransferStatus status = TransferStatus::Ok;
    std::string answer;      // the server's (or the connection's) words on failure
    std::string fingerprint; // "SHA256:..." of the key or certificate the server showed, when known
    std::string pinnedKey;   // FTPS: the pin of the certificate shown, to keep when the user trusts it
};

/// Told the bytes of the current file sent so far and its size; returning
/// false cancels the transfer.
using TransferProgress = std::function<bool(std::uint64_t sent, std::uint64_t total)>;

/// The answer to an HTTP GET; `status` is 0 when no answer came (see `error`).
struct HttpAnswer
{
    long status = 0;
    std::string body;
    std::string error;
};

/// File transfers and web fetches. The program's implementation is libcurl;
/// the core only sees this interface, so its tests need no network library.
struct TransferPort
{
    virtual ~TransferPort() = default;

    /// Logs in and lists the remote folder: proves the identity, the login and the folder.
    virtual TransferResult probe(const RemoteLogin& login) = 0;
    /// Sends the local file to `tempName` in the remote folder and, when it is
    /// complete, renames it over `remoteName`. On failure the temporary file is
    /// removed where the server allows and `remoteName` stays as it was.
    virtual TransferResult put(const RemoteLogin& login,
                               const std::string& localPath,
                               const std::string& remoteName,
                               const std::string& tempName,
                               const TransferProgress& progress) = 0;
    /// A plain GET that follows redirects.
    virtual HttpAnswer get(std::string_view url, int timeoutMs) = 0;
};

} // namespace tq
