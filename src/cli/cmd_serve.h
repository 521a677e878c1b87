// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/local_test.h"

namespace tq::cli {

// The pieces of the local test server live in the core, shared with the desktop program.
using shell::MailCaptureScript;
using shell::PointProjectAt;

} // namespace tq::cli
