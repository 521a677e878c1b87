// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq::model {

/// ASCII upper case of one character; other bytes stay.
char UpperChar(char c);
/// ASCII lower case of one character; other bytes stay.
char LowerChar(char c);
/// The text in ASCII upper case; other bytes stay.
std::string ToUpper(std::string_view s);
/// The text in ASCII lower case; other bytes stay.
std::string ToLower(std::string_view s);
/// The text with its first character in upper case and the rest in lower
/// case ("survey" and "SURVEY" give "Survey").
std::string ToProperCase(std::string_view s);
/// `text` between two double quotes, as the page and the script write values.
std::string Quoted(std::string_view text);
/// True when the two texts are equal after upper-casing.
bool EqualsNoCase(std::string_view a, std::string_view b);
/// True when `s` begins with `prefix`, compared after upper-casing.
bool StartsWithNoCase(std::string_view s, std::string_view prefix);
/// The first index of `needle` in `s` compared after upper-casing, from
/// index `from`; npos when absent. An empty needle is found at `from`.
size_t FindNoCase(std::string_view s, std::string_view needle, size_t from = 0);
/// True when `s` holds `part` exactly as given.
bool Contains(std::string_view s, std::string_view part);
/// True when `s` holds `needle`, compared after upper-casing.
bool ContainsNoCase(std::string_view s, std::string_view needle);
/// The text without its leading characters out of `blanks` (spaces unless told).
std::string_view LTrim(std::string_view s, std::string_view blanks = " ");
/// The text without its trailing characters out of `blanks` (spaces unless told).
std::string_view RTrim(std::string_view s, std::string_view blanks = " ");
/// The text without leading and trailing characters out of `blanks` (spaces unless told).
std::string_view Trim(std::string_view s, std::string_view blanks = " ");
/// Removes the leading blanks of `s` in place.
void LTrimInPlace(std::string& s);
/// Replaces every `from` in `text` by `to`, left to right; a replacement is
/// not searched again. An empty `from` changes nothing.
void ReplaceAll(std::string& text, std::string_view from, std::string_view to);
/// The leading number of a text: blanks skipped, an optional sign, digits
/// and a fraction rounded half to even; 0 when there is none. Saturates at
/// the range of a 64-bit integer.
long long ValLong(std::string_view s);
/// The leading whole number of a text past its leading spaces, with an
/// optional sign ("12abc" is 12, "abc" is 0). Reading stops at the first
/// digit that takes the magnitude past `limit`, that digit kept.
long LeadingWhole(std::string_view s, long limit);
/// True when the text reads as a number: blanks around it, an optional sign,
/// digits with at most one decimal point, an optional exponent. Empty is not.
bool IsNumeric(std::string_view s);

} // namespace tq::model
