// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tq::store {

/// Values kept for the run: the current project name, the last form file, counters.
struct RunValues
{
};

} // namespace tq::store
