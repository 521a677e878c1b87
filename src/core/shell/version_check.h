// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <string>
#include <string_view>

namespace tq::shell {

/// The version line of the about box.
std::string VersionLine();

/// Compares the program's version with the one-line text at `url` and tells
/// the user; offers `downloadPage` when they differ. The comparison is exact:
/// a body that ends in a line end counts as a different version.
void CheckForUpdate(UiPort& ui, std::string_view url, std::string_view downloadPage, int timeoutMs = 10000);

} // namespace tq::shell
