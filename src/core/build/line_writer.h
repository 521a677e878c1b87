// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <fstream>
#include <string>
#include <string_view>

namespace tq::build {

/// One numbered output channel: bytes to a file, each line ended by CR LF.
class LineWriter
{
  public:
    /// Opens `path` for output (truncating) or, with append, at its end.
    /// Returns false when the file cannot be opened.
    bool open(const std::string& path, bool append = false);
    /// Writes a whole line and its CR LF.
    void line(std::string_view text);
    /// Writes text without a line end; the next write continues the line.
    void piece(std::string_view text);
    void close();
    bool isOpen() const { return m_out.is_open(); }
    /// False once a write failed.
    bool good() const { return m_good; }
    const std::string& path() const { return m_path; }

  private:
    std::ofstream m_out;
    std::string m_path;
    bool m_good = true;
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

} // namespace tq::build
