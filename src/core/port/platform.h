// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq::platform {

/// Sample values that the program shows until the user replaces them.
inline constexpr std::string_view kSampleSite = "https://www.tarnquill.example";
inline constexpr std::string_view kSampleEmail = "webmaster@tarnquill.example";
/// Help pages and the version endpoint live under this address.
inline constexpr std::string_view kHelpBase = "https://www.tarnquill.example/tarnquill/";
inline constexpr std::string_view kVersionUrl = "https://www.tarnquill.example/tarnquill/download/revision.txt";
inline constexpr std::string_view kVersionText = "Version 2.00.0002";

/// Default tool paths: web editor, FTP program, browser.
inline constexpr std::string_view kDefaultEditor = "/usr/bin/bluefish";
inline constexpr std::string_view kDefaultFtp = "/usr/bin/filezilla";
inline constexpr std::string_view kDefaultBrowser = "/usr/bin/xdg-open";

/// The path separator of this platform.
inline constexpr char kSeparator = '/';

/// Joins a folder and one of the program's own file names, which keep their
/// leading backslash ("\setup.imp"). The backslash becomes this platform's
/// separator; a folder that already ends in a separator gets no second one.
std::string JoinPath(std::string_view folder, std::string_view name);

/// The drive mark of this platform at the start of a recent-list line: the
/// root "/". Returns the position of the path in `line`, or npos.
size_t FindDriveMark(std::string_view line);

/// The user's documents folder: XDG_DOCUMENTS_DIR from the environment or
/// from the user-dirs.dirs file of the XDG configuration folder, else
/// $HOME/Documents. Empty when not even HOME is set.
std::string DocumentsFolder();

/// The fixed folder that holds "\Tarnquill.stt": "tarnquill/forms" in the
/// documents folder; empty when there is no documents folder.
std::string FixedFolder();

/// The system's text of the error that keeps `program` from starting: the
/// program is looked for as a path, or on PATH when it names no folder.
std::string StartErrorText(std::string_view program);

} // namespace tq::platform
