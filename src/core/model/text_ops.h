// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq::model {

/// ASCII upper case of one character; other bytes stay.
char UpperChar(char c);
/// The text in ASCII upper case.
std::string ToUpper(std::string_view s);
/// True when the two texts are equal after upper-casing.
bool EqualsNoCase(std::string_view a, std::string_view b);
/// True when `s` begins with `prefix`, compared after upper-casing.
bool StartsWithNoCase(std::string_view s, std::string_view prefix);
/// The first index of `needle` in `s` compared after upper-casing, from
/// index `from`; npos when absent. An empty needle is found at `from`.
size_t FindNoCase(std::string_view s, std::string_view needle, size_t from = 0);
/// The text without its leading blanks (spaces only).
std::string_view LTrim(std::string_view s);
/// The text without its trailing blanks (spaces only).
std::string_view RTrim(std::string_view s);
/// The text without leading and trailing blanks (spaces only).
std::string_view Trim(std::string_view s);
/// Removes the leading blanks of `s` in place.
void LTrimInPlace(std::string& s);
/// The leading number of a text: blanks skipped, an optional sign, digits
/// and a fraction rounded half to even; 0 when there is none. Saturates at
/// the range of a 64-bit integer.
long long ValLong(std::string_view s);

} // namespace tq::model
