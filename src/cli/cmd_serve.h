// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tq::cli {

/// The project text with the value of its first "[Drive Folder Path=" (any
/// case) replaced by `folder`; `found` tells whether there was one. The rest
/// of the text is kept byte for byte.
std::string PointProjectAt(const std::string& project, const std::string& folder, bool& found);

/// The shell script given to PHP as sendmail_path: it stores each mail it
/// reads on standard input as one file "mail-<time>-<pid>.txt" in `mailFolder`.
std::string MailCaptureScript(const std::string& mailFolder);

} // namespace tq::cli
