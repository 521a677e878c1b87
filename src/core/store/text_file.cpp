// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text_file.h"

#include "port/file_system.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tq::store {

namespace fs = std::filesystem;

std::optional<std::string> ReadWholeFile(const std::string& path)
{
    std::error_code ec;
    if (path.empty() || fs::is_directory(path, ec))
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    // one read of the whole file where its size is known; a stream without
    // one (a pipe, a file under /proc) is read to its end as it comes
    std::string bytes;
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    in.seekg(0, std::ios::beg);
    if (size > 0 && in) {
        bytes.resize(static_cast<size_t>(size));
        in.read(bytes.data(), size);
        bytes.resize(static_cast<size_t>(in.gcount()));
    }
    in.clear();
    bytes.append(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    if (in.bad())
        return std::nullopt;
    return bytes;
}

bool FileReadable(const std::string& path)
{
    std::error_code ec;
    if (path.empty() || fs::is_directory(path, ec))
        return false;
    std::ifstream in(path, std::ios::binary);
    return static_cast<bool>(in);
}

std::vector<std::string> SplitFileLines(std::string_view bytes)
{
    std::vector<std::string> lines;
    size_t start = 0;
    while (start < bytes.size()) {
        size_t lf = bytes.find('\n', start);
        size_t end = lf == std::string_view::npos ? bytes.size() : lf;
        size_t stop = end;
        if (lf != std::string_view::npos && stop > start && bytes[stop - 1] == '\r')
            --stop;
        lines.emplace_back(bytes.substr(start, stop - start));
        if (lf == std::string_view::npos)
            break;
        start = lf + 1;
    }
    return lines;
}

bool WriteFileReplacing(const std::string& path, std::string_view bytes)
{
    using platform::WriteFault;
    using platform::WriteStep;
    if (path.empty())
        return false;
    std::error_code ec;
    if (fs::is_directory(path, ec)) {
        errno = EISDIR;
        return false;
    }
    const std::string temp = platform::TemporaryNameFor(path);
    // the temporary file goes; errno keeps the fault of the step that failed
    auto fail = [&path](int code) {
        platform::DropTemporary(path);
        errno = code != 0 ? code : EIO;
        return false;
    };
    errno = 0;
    if (WriteFault(WriteStep::Open, path) != 0)
        return fail(errno);
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out)
            return fail(errno);
        // written in two parts, so that a write can fail half way
        const size_t half = bytes.size() / 2;
        out.write(bytes.data(), static_cast<std::streamsize>(half));
        if (out && WriteFault(WriteStep::Write, path) != 0) {
            const int code = errno;
            out.close();
            return fail(code);
        }
        out.write(bytes.data() + half, static_cast<std::streamsize>(bytes.size() - half));
        out.flush();
        if (!out) {
            const int code = errno;
            out.close();
            return fail(code);
        }
        out.close();
        if (out.fail())
            return fail(errno);
    }
    return platform::ReplaceFromTemporary(path) == 0;
}

bool CopyFileReplacing(const std::string& from, const std::string& to)
{
    auto bytes = ReadWholeFile(from);
    return bytes && WriteFileReplacing(to, *bytes);
}

bool LineReader::next(std::string& line)
{
    if (pos >= lines.size())
        return false;
    line = lines[pos++];
    return true;
}

LineReader ReaderOf(std::string_view bytes)
{
    return LineReader{SplitFileLines(bytes), 0};
}

} // namespace tq::store
