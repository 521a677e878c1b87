// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tq::results {

/// Receives one mail as it was stored, and where it came from (a file name,
/// or the mbox and the mail's number in it).
using MailSink = std::function<void(std::string_view bytes, const std::string& origin)>;

/// Hands every mail stored at `path` to `sink`: an mbox file (a file that
/// starts with "From "), a single mail file, a Maildir (a folder with cur/
/// and new/), or a folder of mail files such as .eml files or the mails that
/// Test Locally caught (hidden files are left out). In an mbox a message
/// starts at a "From " line at the start of the file or behind an empty line;
/// ">From " lines lose one ">"; text before the first message is handed on as
/// it is, so that the reader counts it as skipped. Returns false and sets
/// `error` when nothing can be read at `path`.
[[nodiscard]] bool ReadMailSource(const std::string& path, const MailSink& sink, std::string& error);

/// Splits the bytes of an mbox into its messages, as ReadMailSource does.
void SplitMbox(std::string_view mbox, const std::string& name, const MailSink& sink);

} // namespace tq::results
