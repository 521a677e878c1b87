// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq::php {

/// ASCII upper case, as the script writers compare names and values.
std::string Upper(std::string_view s);

/// `s` without leading and trailing blanks (spaces only).
std::string TrimSpaces(std::string_view s);

} // namespace tq::php
