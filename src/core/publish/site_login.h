// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/keyring_port.h"
#include "port/transfer_port.h"
#include "port/ui_port.h"
#include "store/site_store.h"

#include <optional>
#include <string>

namespace tq::publish {

/// The login of a site. The password is `given` when there is one, else the
/// keyring's, else asked for (a site with a key needs none). nullopt when the
/// user cancelled the question.
std::optional<RemoteLogin> LoginOf(const std::string& dataFolder,
                                   const store::SiteTarget& site,
                                   const std::optional<std::string>& given,
                                   KeyringPort& keyring,
                                   UiPort& ui);

/// Logs in and looks at the remote folder. An unknown host key or
/// certificate is shown with its fingerprint and trusted only when the user
/// says Yes (or `trustShown` is set: the command line's choice); a trusted
/// certificate is kept in `site.pinnedKey`, a host key in the known_hosts
/// file. Every failure is told through `ui` and returned.
TransferResult
Connect(RemoteLogin& login, store::SiteTarget& site, TransferPort& transfer, UiPort& ui, bool trustShown);

/// Keeps the password of a login that succeeded; says once per keyring when no keyring answers.
void KeepPassword(const store::SiteTarget& site, const RemoteLogin& login, KeyringPort& keyring, UiPort& ui);

} // namespace tq::publish
