// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QObject;

namespace tq::gui {

/// Runs `work` once the user has left keys, buttons and wheel alone for
/// `quietMs`: for work that holds the window up a moment and can wait, such
/// as starting the browser engine. Nothing runs if `owner` goes first.
void RunWhenIdle(QObject* owner, int quietMs, std::function<void()> work);

} // namespace tq::gui
