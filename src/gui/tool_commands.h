// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "session.h"

#include <QHash>
#include <QString>
#include <functional>

namespace tq::gui {

class MainWindow;

/// How long the version check waits for the server.
inline constexpr int kVersionCheckTimeoutMs = 10000;

/// The commands that start the user's programs and pages: FTP,
/// LivePreview1..15, Web1..15, the Help menu's web pages, ViewTarnquillFolder,
/// ViewFolder, ShowOutputInEditor and CheckForUpdate (busy pointer, 10 s).
/// Adds them to `commands`; the session and port must outlive the table.
void RegisterToolCommands(QHash<QString, std::function<void()>>& commands, Session& session, UiPort& ui);

/// Gives the window the commands above, PhotoShow (the photo show page, made
/// on first use; its Exit goes back to the calling page) and TestLocally (the
/// local test window) and Results (the results window over the project open).
void InstallToolCommands(MainWindow& window);

} // namespace tq::gui
