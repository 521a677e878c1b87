// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tq {

/// The desktop's keyring, where site passwords are kept. The program's
/// implementation is QtKeychain; the command-line tool has none.
struct KeyringPort
{
    virtual ~KeyringPort() = default;

    /// The secret kept under `key`; nullopt when none is kept or no keyring answers.
    virtual std::optional<std::string> readSecret(std::string_view key) = 0;
    /// Keeps `secret` under `key`; false when no keyring answers.
    virtual bool writeSecret(std::string_view key, std::string_view secret) = 0;

    /// Set once the user was told that this keyring cannot keep a password,
    /// so that a program that lives on says it once.
    bool toldNotKept = false;
};

/// A keyring that keeps nothing: what a program without a desktop keyring has.
struct NoKeyring : KeyringPort
{
    std::optional<std::string> readSecret(std::string_view key) override;
    bool writeSecret(std::string_view key, std::string_view secret) override;
};

} // namespace tq
