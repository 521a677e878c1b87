// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tq::shell {

/// The project text with the value of its first "[Drive Folder Path=" (any
/// case) replaced by `folder`; `found` tells whether there was one. The rest
/// of the text is kept byte for byte.
std::string PointProjectAt(const std::string& project, const std::string& folder, bool& found);

/// The shell script given to PHP as sendmail_path: it stores each mail it
/// reads on standard input as one file "mail-<time>-<pid>.txt" in `mailFolder`.
std::string MailCaptureScript(const std::string& mailFolder);

/// The arguments of PHP's built-in server for a local test: it listens on
/// `address` ("127.0.0.1:8123"), serves `siteFolder`, writes its output
/// unbuffered (a download page needs that) and hands mail to `captureScript`.
std::vector<std::string>
LocalServerArgs(const std::string& address, const std::string& siteFolder, const std::string& captureScript);

/// One mail as the script handed it to sendmail: the header block, then the body.
struct CapturedMail
{
    std::string to;                   // the To: header's value
    std::string subject;              // the Subject: header's value
    std::vector<std::string> headers; // every header line, To and Subject included, as written
    std::string body;                 // everything after the first empty line, line ends as written
};

/// Splits a captured mail at its first empty line (CR LF or LF) and picks
/// out To and Subject (names compared in any case; a folded header line
/// continues the one before it). A mail with no empty line is all headers.
CapturedMail ParseCapturedMail(std::string_view bytes);

/// The help shown when the local test cannot run because PHP's command-line
/// program is missing.
inline constexpr std::string_view kNoPhpText =
    "The local test runs your form with PHP's own web server, and PHP's command-line program (php) is not "
    "installed on this computer.\r\rInstall it from a terminal with:\r\r    sudo apt-get install php-cli\r\rthen "
    "choose Test Locally again.";

} // namespace tq::shell
