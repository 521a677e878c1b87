// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/line_writer.h"

namespace tq::build {

bool LineWriter::open(const std::string& path, bool append)
{
    close();
    m_path = path;
    m_out.open(path, std::ios::binary | (append ? std::ios::app : std::ios::trunc));
    m_good = m_out.is_open();
    return m_good;
}

void LineWriter::line(std::string_view text)
{
    piece(text);
    piece("\r\n");
}

void LineWriter::piece(std::string_view text)
{
    if (!m_out.is_open())
        return;
    m_out.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!m_out)
        m_good = false;
}

void LineWriter::close()
{
    if (m_out.is_open()) {
        m_out.close();
        if (m_out.fail())
            m_good = false;
    }
}

} // namespace tq::build
