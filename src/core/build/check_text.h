// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq::build {

/// The text in upper case (ASCII letters only; other bytes stay).
std::string Upper(std::string_view s);
/// The text without leading blanks.
std::string LeftTrim(std::string_view s);
/// The text without leading and trailing blanks.
std::string Trim(std::string_view s);
/// True when `s` begins with `prefix`, compared in upper case.
bool StartsWithUpper(std::string_view s, std::string_view prefix);
/// True when `s` holds `part`.
bool Contains(std::string_view s, std::string_view part);
/// True when the text reads as a number: blanks around it, an optional sign,
/// digits with at most one decimal point, an optional exponent. Empty is not.
bool IsNumeric(std::string_view s);
/// The leading number of a text ("12abc" is 12, "abc" is 0), past leading blanks.
long LeadingNumber(std::string_view s);

} // namespace tq::build
