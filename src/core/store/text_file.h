// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tq::store {

/// Reads a whole file as bytes; nullopt when it cannot be opened (missing, a
/// folder, no permission).
[[nodiscard]] std::optional<std::string> ReadWholeFile(const std::string& path);

/// True when the file can be opened for reading.
[[nodiscard]] bool FileReadable(const std::string& path);

/// Splits file bytes into lines. A line ends at LF, and a CR in front of the
/// LF belongs to the line end, so CR LF and lone LF files read alike. A last
/// line without a line end still counts; the end of the bytes after a line
/// end gives no further empty line.
std::vector<std::string> SplitFileLines(std::string_view bytes);

/// Writes `bytes` to a temporary name beside `path` (the name + ".tqtmp")
/// and renames it over the target. Returns false, with the old file left
/// byte for byte, no temporary file left behind and errno set to the fault,
/// when any step fails. Each step passes the write seam (port/file_system.h).
bool WriteFileReplacing(const std::string& path, std::string_view bytes);

/// Copies one file over another through WriteFileReplacing; false when the
/// source can't be read or the target can't be written.
bool CopyFileReplacing(const std::string& from, const std::string& to);

/// Reads lines one after another from bytes already in memory.
struct LineReader
{
    std::vector<std::string> lines;
    size_t pos = 0;

    /// Reads the next line into `line`; false at the end of the file.
    bool next(std::string& line);
    /// True when every line has been read.
    bool atEnd() const { return pos >= lines.size(); }
};

/// A reader over the lines of `bytes`.
LineReader ReaderOf(std::string_view bytes);

} // namespace tq::store
