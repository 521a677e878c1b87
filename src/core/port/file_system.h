// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace tq::platform {

/// The steps of a file write that can fail: opening the file, writing its
/// bytes (asked once a part of them has gone out), and renaming the finished
/// temporary file over the target.
enum class WriteStep { Open, Write, Rename };

/// A fault-injection hook: asked before each step with the path of the file
/// being written (the target, not its temporary name); a non-zero result is the errno that the step then fails with
/// (ENOSPC, EACCES, ENOENT...). The hook may also change the file system
/// itself, e.g. remove the folder being written to.
using WriteHook = std::function<int(WriteStep step, const std::string& path)>;

/// Installs `hook` for the whole process; an empty hook removes it. This is a
/// seam for tests only: the program itself never installs one, and writes
/// then go straight to the file system. Not thread-safe.
void SetWriteHook(WriteHook hook);

/// Asks the installed hook about one step. Returns 0 when there is no hook or
/// the step may go on; otherwise sets errno to the fault and returns it.
int WriteFault(WriteStep step, const std::string& path);

/// The temporary name a file is written under before it replaces `path`.
std::string TemporaryNameFor(const std::string& path);

/// Ends a replacing write: renames the finished temporary file over `path`
/// (asking the hook first). On failure the temporary file is removed and the
/// target stays as it was. Returns 0 or the errno of the failure.
int ReplaceFromTemporary(const std::string& path);

/// Removes the temporary file of `path`, if there is one.
void DropTemporary(const std::string& path);

/// Installs a hook for the life of a scope and removes it at the end.
class ScopedWriteHook
{
  public:
    explicit ScopedWriteHook(WriteHook hook);
    ~ScopedWriteHook();
    ScopedWriteHook(const ScopedWriteHook&) = delete;
    ScopedWriteHook& operator=(const ScopedWriteHook&) = delete;
};

} // namespace tq::platform
