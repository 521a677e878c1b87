// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

namespace tq::model {

/// A bound of a fixed working list or table was passed: a fault of the
/// program, reported to the user, never undefined behaviour.
struct InternalError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

} // namespace tq::model
