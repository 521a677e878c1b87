// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <fstream>
#include <string>
#include <string_view>

namespace tq::write {

/// One numbered output channel: bytes to a file, each line ended by CR LF.
/// The lines go to a temporary name beside the file (the name + ".tqtmp"),
/// which close() renames over it; a channel whose write failed removes its
/// temporary file instead, so the file is either the old one byte for byte
/// or everything that was written. Opens, writes and the rename pass the
/// write seam (port/file_system.h).
class LineWriter
{
  public:
    LineWriter() = default;
    LineWriter(LineWriter&&) = default;
    LineWriter& operator=(LineWriter&&) = default;
    /// Closes the channel, as close() does.
    ~LineWriter();

    /// Opens `path` for output (truncating) or, with append, at its end (an
    /// append writes to the file itself). Returns false, with errno set, when
    /// the file cannot be opened.
    bool open(const std::string& path, bool append = false);
    /// Writes a whole line and its CR LF.
    void line(std::string_view text);
    /// Writes text without a line end; the next write continues the line.
    void piece(std::string_view text);
    /// Ends the writing: the temporary file replaces the file when every
    /// write went through; otherwise it is removed and good() is false.
    void close();
    bool isOpen() const { return m_out.is_open(); }
    /// False once an open, a write or the closing rename failed.
    bool good() const { return m_good; }
    /// The errno of the first failure since open(); 0 when none.
    int error() const { return m_error; }
    const std::string& path() const { return m_path; }

  private:
    void fail(int code);

    std::ofstream m_out;
    std::string m_path;
    std::string m_temp; // empty when writing to the file itself
    bool m_good = true;
    int m_error = 0;
};

/// The driver's channels, numbered 1 to 3 as the format numbers them.
struct Channels
{
    std::array<LineWriter, 4> ch;
    LineWriter& operator[](int n) { return ch.at(static_cast<size_t>(n)); }
    void closeAll()
    {
        for (auto& c : ch)
            c.close();
    }
};

} // namespace tq::write
