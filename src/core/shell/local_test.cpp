// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/local_test.h"

#include "model/text_ops.h"

namespace tq::shell {

namespace {

} // namespace

std::string PointProjectAt(const std::string& project, const std::string& folder, bool& found)
{
    const std::string key = "[DRIVE FOLDER PATH=";
    const std::string upper = model::ToUpper(project);
    size_t at = upper.find(key);
    found = at != std::string::npos;
    if (!found)
        return project;
    size_t from = at + key.size();
    size_t to = project.find_first_of("]\r\n", from);
    if (to == std::string::npos)
        to = project.size();
    return project.substr(0, from) + folder + project.substr(to);
}

std::string MailCaptureScript(const std::string& mailFolder)
{
    // each mail lands whole under a name that sorts by arrival
    return "#!/bin/sh\n"
           "# Keeps each mail that the script sends as one file.\n"
           "d='" +
           mailFolder +
           "'\n"
           "t=\"$d/.incoming-$$\"\n"
           "cat > \"$t\" && mv \"$t\" \"$d/mail-$(date +%s%N)-$$.txt\"\n";
}

std::vector<std::string>
LocalServerArgs(const std::string& address, const std::string& siteFolder, const std::string& captureScript)
{
    return {"-S", address, "-t", siteFolder, "-d", "output_buffering=0", "-d", "sendmail_path=" + captureScript};
}

CapturedMail ParseCapturedMail(std::string_view bytes)
{
    CapturedMail mail;
    size_t pos = 0;
    while (pos < bytes.size()) {
        size_t end = bytes.find('\n', pos);
        const size_t next = end == std::string_view::npos ? bytes.size() : end + 1;
        std::string_view line = bytes.substr(pos, (end == std::string_view::npos ? bytes.size() : end) - pos);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        pos = next;
        if (line.empty()) {
            mail.body = std::string(bytes.substr(pos));
            break;
        }
        if ((line.front() == ' ' || line.front() == '\t') && !mail.headers.empty()) {
            mail.headers.back() += std::string(line);
            continue;
        }
        mail.headers.emplace_back(line);
    }
    for (const auto& header : mail.headers) {
        const size_t colon = header.find(':');
        if (colon == std::string::npos)
            continue;
        const std::string name = model::ToUpper(header.substr(0, colon));
        const std::string value(model::LTrim(std::string_view(header).substr(colon + 1), " \t"));
        if (name == "TO" && mail.to.empty())
            mail.to = value;
        else if (name == "SUBJECT" && mail.subject.empty())
            mail.subject = value;
    }
    return mail;
}

} // namespace tq::shell
