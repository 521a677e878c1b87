// SPDX-License-Identifier: GPL-3.0-or-later
#include "publish/file_digest.h"

#include <array>
#include <fstream>
#include <memory>
#include <openssl/evp.h>

namespace tq::publish {

std::optional<store::SentFile> DigestFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> ctx(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    if (!ctx || EVP_DigestInit_ex(ctx.get(), EVP_sha256(), nullptr) != 1)
        return std::nullopt;
    store::SentFile file;
    std::array<char, 65536> buffer{};
    while (in) {
        in.read(buffer.data(), buffer.size());
        const auto got = static_cast<size_t>(in.gcount());
        if (got > 0 && EVP_DigestUpdate(ctx.get(), buffer.data(), got) != 1)
            return std::nullopt;
        file.size += got;
    }
    if (in.bad())
        return std::nullopt;
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int length = 0;
    if (EVP_DigestFinal_ex(ctx.get(), digest.data(), &length) != 1)
        return std::nullopt;
    static constexpr char kHex[] = "0123456789abcdef";
    for (unsigned int i = 0; i < length; ++i) {
        file.sha256 += kHex[digest[i] >> 4];
        file.sha256 += kHex[digest[i] & 15];
    }
    return file;
}

} // namespace tq::publish
