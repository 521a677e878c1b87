// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/keyring_port.h"

class QObject;

namespace tq::gui {

/// The desktop's keyring (Secret Service or KWallet) through QtKeychain.
/// Every job runs on the window's thread, whichever thread asks. A keyring
/// that does not answer once is not asked again while the program runs: the
/// password is then asked for at each use.
class QtKeyring : public KeyringPort
{
  public:
    explicit QtKeyring(QObject* windowObject) : m_window(windowObject) {}

    std::optional<std::string> readSecret(std::string_view key) override;
    bool writeSecret(std::string_view key, std::string_view secret) override;
    /// False once a job found no keyring to talk to.
    bool answers() const { return !m_absent; }

  private:
    QObject* m_window;
    bool m_absent = false;
};

/// The keyring key of an IMAP mailbox's password: its address without a password.
std::string MailboxPasswordKey(std::string_view address);

} // namespace tq::gui
