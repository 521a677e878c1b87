// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/mail_sources.h"

#include <optional>
#include <string>
#include <string_view>

namespace tq::results {

/// An IMAP mailbox to read results from.
struct ImapTarget
{
    bool tls = false; // imaps: TLS from the start
    std::string host;
    int port = 0; // 0: 143, or 993 with TLS
    std::string user;
    std::string password;
    std::string folder = "INBOX";
};

/// Reads "imap://USER@HOST[:PORT][/FOLDER]" (or "imaps://"); nothing when the
/// text is not such an address. The password is never part of it.
std::optional<ImapTarget> ParseImapAddress(std::string_view address);

/// The address of a target as ParseImapAddress reads it.
std::string ImapAddress(const ImapTarget& target);

/// Hands every mail of the target's folder to `sink`, oldest first, each
/// named "FOLDER UID n". Returns false and sets `error` (the server's or the
/// transfer's reason) when the folder cannot be listed; a single mail that
/// cannot be fetched is skipped and its reason added to `error`.
[[nodiscard]] bool ReadImapFolder(const ImapTarget& target, const MailSink& sink, std::string& error);

} // namespace tq::results
