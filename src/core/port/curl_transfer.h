// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/transfer_port.h"

#include <memory>

namespace tq {

/// The transfer port over libcurl: FTP, FTP with explicit TLS (AUTH TLS) and
/// SFTP, and HTTP GET. One connection is kept between calls while the login
/// stays the same, so the files of one publish share it.
class CurlTransfer : public TransferPort
{
  public:
    CurlTransfer();
    ~CurlTransfer() override;
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;

    TransferResult probe(const RemoteLogin& login) override;
    TransferResult put(const RemoteLogin& login,
                       const std::string& localPath,
                       const std::string& remoteName,
                       const std::string& tempName,
                       const TransferProgress& progress) override;
    HttpAnswer get(std::string_view url, int timeoutMs) override;

  private:
    struct Handle;
    std::unique_ptr<Handle> m_handle;
};

} // namespace tq
