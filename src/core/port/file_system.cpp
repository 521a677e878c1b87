// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/file_system.h"

#include <cerrno>
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

ScopedWriteHook::ScopedWriteHook(WriteHook hook)
{
    SetWriteHook(std::move(hook));
}

ScopedWriteHook::~ScopedWriteHook()
{
    SetWriteHook({});
}

} // namespace tq::platform
