// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/site_store.h"

#include <optional>
#include <string>

namespace tq::publish {

/// The size and SHA-256 of a file, read in pieces; nullopt when it cannot be read.
std::optional<store::SentFile> DigestFile(const std::string& path);

} // namespace tq::publish
