// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/result_set.h"

#include <string>
#include <string_view>

namespace tq::results {

/// One field of a CSV file (RFC 4180): quoted when it holds a comma, a
/// double quote, a line break or a leading or trailing blank, its quotes
/// doubled, line breaks inside written as CR LF.
std::string CsvField(std::string_view value);

/// The results as a CSV file for a spreadsheet: UTF-8 with a byte order
/// mark (so that spreadsheets take it as UTF-8), CR LF line ends, a header
/// row "Date", "Address" and one column per question, then one row per
/// submission. Ticked boxes are joined by "; ".
std::string ResultsCsv(const ResultSet& set);

/// Writes ResultsCsv to `path` through a temporary file; false when it cannot be written.
[[nodiscard]] bool WriteResultsCsv(const ResultSet& set, const std::string& path);

} // namespace tq::results
