// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/result_set.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tq {
struct Session;
}

namespace tq::results {

/// The questions of the project held by `s`, in the order its script mails
/// them, with the choices its page offers. It builds the whole page into
/// `scratchFolder` (the project's files are not touched) and reads the
/// captions from the build and the choices from the page. Returns false and
/// sets `error` (the build's own message) when the project does not build.
[[nodiscard]] bool
ReadProjectQuestions(Session& s, const std::string& scratchFolder, ProjectQuestions& out, std::string& error);

/// The values a page offers for each field name, in page order: the values of
/// radio buttons and check boxes ("name[]" counted under "name") and the
/// options of a select (its value, else its text).
std::map<std::string, std::vector<std::string>> ChoicesOfPage(std::string_view html);

} // namespace tq::results
