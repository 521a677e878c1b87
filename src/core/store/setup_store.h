// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tq::store {

/// The web-folder table and the three tool paths.
struct SetupStore
{
};

} // namespace tq::store
