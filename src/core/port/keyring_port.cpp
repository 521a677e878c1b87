// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/keyring_port.h"

namespace tq {

std::optional<std::string> NoKeyring::readSecret(std::string_view)
{
    return std::nullopt;
}

bool NoKeyring::writeSecret(std::string_view, std::string_view)
{
    return false;
}

} // namespace tq
