// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <QObject>
#include <functional>

namespace tq::gui {

/// Runs a core step that calls one program through UiPort::runProcess
/// without blocking the window: `step` runs once to learn the program it
/// wants, the program then runs on its own, and `step` runs again with the
/// program's result once it has finished. A step that asks for no program
/// runs only once. `done` is called on the window's thread after the last run;
/// nothing is called when `context` is gone by then.
void RunStepWithoutWaiting(QObject* context, std::function<void(UiPort&)> step, std::function<void()> done);

} // namespace tq::gui
