// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/platform.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <unistd.h>

namespace tq::platform {

std::string JoinPath(std::string_view folder, std::string_view name)
{
    std::string out(folder);
    std::string_view rest = name;
    while (!rest.empty() && (rest.front() == '\\' || rest.front() == '/'))
        rest.remove_prefix(1);
    if (out.empty() || (out.back() != '/' && out.back() != '\\'))
        out += kSeparator;
    out += rest;
    return out;
}

size_t FindDriveMark(std::string_view line)
{
    return line.find('/');
}

namespace {

std::string Env(const char* name)
{
    const char* v = std::getenv(name);
    return v ? std::string(v) : std::string();
}

// The XDG_DOCUMENTS_DIR line of user-dirs.dirs, "$HOME" replaced; empty when none.
std::string DocumentsFromUserDirs(const std::string& home)
{
    std::string config = Env("XDG_CONFIG_HOME");
    if (config.empty() && !home.empty())
        config = home + "/.config";
    if (config.empty())
        return {};
    std::ifstream in(config + "/user-dirs.dirs");
    std::string line;
    const std::string key = "XDG_DOCUMENTS_DIR=";
    while (std::getline(in, line)) {
        if (line.rfind(key, 0) != 0)
            continue;
        std::string value = line.substr(key.size());
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
            value = value.substr(1, value.size() - 2);
        if (value.rfind("$HOME", 0) == 0)
            value = home + value.substr(5);
        return value.empty() || value.front() != '/' ? std::string() : value;
    }
    return {};
}

} // namespace

std::string DocumentsFolder()
{
    const std::string home = Env("HOME");
    if (std::string docs = Env("XDG_DOCUMENTS_DIR"); !docs.empty())
        return docs;
    if (std::string docs = DocumentsFromUserDirs(home); !docs.empty())
        return docs;
    return home.empty() ? std::string() : home + "/Documents";
}

std::string FixedFolder()
{
    const std::string docs = DocumentsFolder();
    return docs.empty() ? std::string() : JoinPath(docs, "tarnquill/forms");
}

std::string StartErrorText(std::string_view program)
{
    const std::string name(program);
    int err = ENOENT;
    if (name.find('/') != std::string::npos) {
        if (::access(name.c_str(), X_OK) != 0)
            err = errno;
        else
            err = 0;
    } else {
        const std::string path = Env("PATH");
        size_t start = 0;
        while (!name.empty() && start <= path.size()) {
            size_t end = path.find(':', start);
            if (end == std::string::npos)
                end = path.size();
            const std::string dir = end > start ? path.substr(start, end - start) : std::string(".");
            if (::access((dir + "/" + name).c_str(), X_OK) == 0) {
                err = 0;
                break;
            }
            if (errno != ENOENT)
                err = errno;
            start = end + 1;
        }
    }
    if (err == 0) {
        // found and runnable: a folder, or a file the system refused for another reason
        std::error_code ec;
        err = std::filesystem::is_directory(name, ec) ? EISDIR : ENOEXEC;
    }
    return std::strerror(err);
}

} // namespace tq::platform
