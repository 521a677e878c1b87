// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/file_system.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace tq::platform {

namespace {

// The one piece of process state in the core: empty unless a test sets it.
WriteHook& Hook()
{
    static WriteHook hook;
    return hook;
}

} // namespace

void SetWriteHook(WriteHook hook)
{
    Hook() = std::move(hook);
}

int WriteFault(WriteStep step, const std::string& path)
{
    const WriteHook& hook = Hook();
    if (!hook)
        return 0;
    const int fault = hook(step, path);
    if (fault != 0)
        errno = fault;
    return fault;
}

std::string TemporaryNameFor(const std::string& path)
{
    return path + ".tqtmp";
}

int ReplaceFromTemporary(const std::string& path)
{
    int code = WriteFault(WriteStep::Rename, path);
    if (code == 0) {
        std::error_code ec;
        std::filesystem::rename(TemporaryNameFor(path), path, ec);
        code = ec.value();
    }
    if (code != 0) {
        DropTemporary(path);
        errno = code;
    }
    return code;
}

void DropTemporary(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove(TemporaryNameFor(path), ignored);
}

ScopedWriteHook::ScopedWriteHook(WriteHook hook)
{
    SetWriteHook(std::move(hook));
}

ScopedWriteHook::~ScopedWriteHook()
{
    SetWriteHook({});
}

} // namespace tq::platform
