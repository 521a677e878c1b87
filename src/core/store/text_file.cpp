// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text_file.h"

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
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
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
    if (path.empty())
        return false;
    std::error_code ec;
    if (fs::is_directory(path, ec))
        return false;
    fs::path target(path);
    fs::path temp = target;
    temp += ".tqtmp";
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out)
            return false;
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        out.flush();
        if (!out) {
            out.close();
            fs::remove(temp, ec);
            return false;
        }
    }
    fs::rename(temp, target, ec);
    if (ec) {
        fs::remove(temp, ec);
        return false;
    }
    return true;
}

bool CopyFileReplacing(const std::string& from, const std::string& to)
{
    auto bytes = ReadWholeFile(from);
    return bytes && WriteFileReplacing(to, *bytes);
}

std::string Upper(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return out;
}

std::string Lower(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return out;
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
