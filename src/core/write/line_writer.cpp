// SPDX-License-Identifier: GPL-3.0-or-later
#include "write/line_writer.h"

#include "port/file_system.h"

#include <cerrno>

namespace tq::write {

using platform::WriteFault;
using platform::WriteStep;

LineWriter::~LineWriter()
{
    close();
}

void LineWriter::fail(int code)
{
    if (m_good)
        m_error = code != 0 ? code : EIO;
    m_good = false;
}

bool LineWriter::open(const std::string& path, bool append)
{
    close();
    m_path = path;
    m_temp.clear();
    m_good = true;
    m_error = 0;
    errno = 0;
    if (WriteFault(WriteStep::Open, path) != 0) {
        fail(errno);
        return false;
    }
    if (append) {
        m_out.open(path, std::ios::binary | std::ios::app);
    } else {
        m_temp = platform::TemporaryNameFor(path);
        m_out.open(m_temp, std::ios::binary | std::ios::trunc);
    }
    if (!m_out.is_open()) {
        const int code = errno;
        m_temp.clear();
        fail(code);
        errno = m_error;
        return false;
    }
    return true;
}

void LineWriter::line(std::string_view text)
{
    piece(text);
    piece("\r\n");
}

void LineWriter::piece(std::string_view text)
{
    if (!m_out.is_open() || !m_good)
        return;
    if (WriteFault(WriteStep::Write, m_path) != 0) {
        fail(errno);
        return;
    }
    m_out.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!m_out)
        fail(errno);
}

void LineWriter::close()
{
    if (!m_out.is_open())
        return;
    m_out.close();
    if (m_out.fail())
        fail(errno);
    if (m_temp.empty())
        return;
    if (m_good) {
        if (const int code = platform::ReplaceFromTemporary(m_path); code != 0)
            fail(code);
    } else {
        // the file stays as it was; the half-written copy goes
        platform::DropTemporary(m_path);
    }
    if (!m_good)
        errno = m_error;
    m_temp.clear();
}

} // namespace tq::write
