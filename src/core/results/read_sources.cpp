// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/read_sources.h"

#include "results/imap_source.h"
#include "results/mail_sources.h"

namespace tq::results {

std::vector<SourceReport>
ReadSources(ResultSet& set, const std::vector<std::string>& sources, const std::string& imapPassword)
{
    std::vector<SourceReport> reports;
    const MailSink sink = [&set](std::string_view bytes, const std::string& origin) { AddMail(set, bytes, origin); };
    for (const auto& source : sources) {
        SourceReport r;
        r.source = source;
        if (auto target = ParseImapAddress(source)) {
            target->password = imapPassword;
            r.read = ReadImapFolder(*target, sink, r.error);
        } else {
            r.read = ReadMailSource(source, sink, r.error);
        }
        reports.push_back(std::move(r));
    }
    return reports;
}

} // namespace tq::results
