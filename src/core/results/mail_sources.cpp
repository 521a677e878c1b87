// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mail_sources.h"

#include "store/text_file.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace tq::results {

namespace fs = std::filesystem;

namespace {

// The message without its "From " separator line, ">From " unquoted.
void HandMessage(std::string_view message, const std::string& origin, const MailSink& sink)
{
    if (message.substr(0, 5) == "From ") {
        const size_t eol = message.find('\n');
        message = eol == std::string_view::npos ? std::string_view() : message.substr(eol + 1);
    }
    if (message.find("\n>") == std::string_view::npos) {
        sink(message, origin);
        return;
    }
    std::string text;
    text.reserve(message.size());
    size_t at = 0;
    while (at < message.size()) {
        size_t eol = message.find('\n', at);
        eol = eol == std::string_view::npos ? message.size() : eol + 1;
        std::string_view line = message.substr(at, eol - at);
        const size_t quotes = line.find_first_not_of('>');
        if (quotes != std::string_view::npos && quotes > 0 && line.substr(quotes, 5) == "From ")
            line.remove_prefix(1);
        text += line;
        at = eol;
    }
    sink(text, origin);
}

bool ReadFileInto(const fs::path& file, std::string& bytes)
{
    auto read = store::ReadWholeFile(file.string());
    if (!read)
        return false;
    bytes = std::move(*read);
    return true;
}

std::vector<fs::path> FilesIn(const fs::path& folder)
{
    std::vector<fs::path> files;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (!name.empty() && name[0] != '.' && it->is_regular_file(ec))
            files.push_back(it->path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

void SplitMbox(std::string_view mbox, const std::string& name, const MailSink& sink)
{
    size_t start = 0;
    int number = 0;
    auto hand = [&](size_t end) {
        if (end > start)
            HandMessage(mbox.substr(start, end - start), name + " #" + std::to_string(++number), sink);
    };
    for (size_t at = mbox.find("\nFrom "); at != std::string_view::npos; at = mbox.find("\nFrom ", at + 1)) {
        // a separator stands behind an empty line
        const bool behindEmpty = (at >= 1 && mbox[at - 1] == '\n') || (at >= 2 && mbox.substr(at - 2, 2) == "\n\r");
        if (!behindEmpty)
            continue;
        hand(at + 1);
        start = at + 1;
    }
    hand(mbox.size());
}

bool ReadMailSource(const std::string& path, const MailSink& sink, std::string& error)
{
    std::error_code ec;
    const fs::path p(path);
    if (fs::is_directory(p, ec)) {
        std::vector<fs::path> files;
        if (fs::is_directory(p / "cur", ec) || fs::is_directory(p / "new", ec)) {
            for (const char* sub : {"cur", "new"}) {
                const auto more = FilesIn(p / sub);
                files.insert(files.end(), more.begin(), more.end());
            }
        } else {
            files = FilesIn(p);
        }
        std::string bytes;
        for (const auto& f : files) {
            if (!ReadFileInto(f, bytes))
                continue;
            if (bytes.substr(0, 5) == "From ")
                SplitMbox(bytes, f.string(), sink);
            else
                sink(bytes, f.string());
        }
        return true;
    }
    std::string bytes;
    if (!ReadFileInto(p, bytes)) {
        error = "cannot read " + path;
        return false;
    }
    // a damaged mbox may have lost its first separator: its later ones still tell it
    if (bytes.substr(0, 5) == "From " || bytes.find("\n\nFrom ") != std::string::npos ||
        bytes.find("\n\r\nFrom ") != std::string::npos)
        SplitMbox(bytes, path, sink);
    else
        sink(bytes, path);
    return true;
}

} // namespace tq::results
