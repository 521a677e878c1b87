// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/result_set.h"

#include <string>
#include <vector>

namespace tq::results {

/// How one source of mails went.
struct SourceReport
{
    std::string source;
    bool read = false; // false: nothing could be read there
    std::string error; // why not, or the mails of it that could not be fetched
};

/// Reads every source into `set`: a path (mbox, mail file, folder of mails,
/// Maildir) or an IMAP address ("imap://USER@HOST:PORT/FOLDER"), which logs
/// in with `imapPassword`.
std::vector<SourceReport>
ReadSources(ResultSet& set, const std::vector<std::string>& sources, const std::string& imapPassword);

} // namespace tq::results
