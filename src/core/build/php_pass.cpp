// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/php_pass.h"

// The script writers of the php subsystem are called from these functions.
// Until they are in place the PHP pass runs through every Entry (so that
// every check of the extraction runs a second time) and writes no script text.

namespace tq::build {

void WriteScriptHead(Session&, UiPort&) {}

void WriteValidationBanner(Session&, UiPort&) {}

void WriteEntryPhp(Session&, UiPort&, PhpWriter, std::string_view, std::string_view) {}

void WriteOptionLines(Session&, UiPort&) {}

void WriteScriptTail(Session&, UiPort&) {}

} // namespace tq::build
