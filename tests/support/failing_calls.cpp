// SPDX-License-Identifier: MIT
#include "support/failing_calls.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <unistd.h>

namespace {

CallFault chosenFault = CallFault::None;
int chosenNumber = 0;
std::atomic<int> count = 0;

/// Whether the call that is now made fails. `takesRoom` is true of what a full disk doesn't allow.
bool Fails(bool takesRoom)
{
    const int number = ++count;
    if (chosenFault == CallFault::FullDisk && number >= chosenNumber && takesRoom) {
        errno = ENOSPC;
        return true;
    }
    if (chosenFault == CallFault::None || number != chosenNumber || chosenFault == CallFault::FullDisk) {
        return false;
    }
    if (chosenFault == CallFault::Kill) {
        _exit(KilledByFault);
    }
    errno = EIO;
    return true;
}

}

void FailCall(CallFault fault, int number)
{
    chosenFault = fault;
    chosenNumber = number;
    count = 0;
}

int CallCount()
{
    return count;
}

// NOLINTBEGIN: the linker gives the names, the system the lists of arguments.
extern "C" {

int __real_open(const char *path, int flags, mode_t mode);
int __real_openat(int folder, const char *path, int flags, mode_t mode);
ssize_t __real_read(int file, void *data, size_t size);
ssize_t __real_write(int file, const void *data, size_t size);
int __real_fsync(int file);
int __real_close(int file);
int __real_ftruncate(int file, off_t size);
off_t __real_lseek(int file, off_t place, int from);
int __real_renameat(int oldFolder, const char *oldPath, int newFolder, const char *newPath);
int __real_unlinkat(int folder, const char *path, int flags);
int __real_fchown(int file, uid_t owner, gid_t group);
int __real_fchmod(int file, mode_t mode);

int __wrap_open(const char *path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return Fails((flags & O_CREAT) != 0) ? -1 : __real_open(path, flags, mode);
}

int __wrap_openat(int folder, const char *path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return Fails((flags & O_CREAT) != 0) ? -1 : __real_openat(folder, path, flags, mode);
}

ssize_t __wrap_read(int file, void *data, size_t size)
{
    return Fails(false) ? -1 : __real_read(file, data, size);
}

ssize_t __wrap_write(int file, const void *data, size_t size)
{
    if (chosenFault == CallFault::Kill && count + 1 == chosenNumber) {
        (void)!__real_write(file, data, size / 2);
    }
    return Fails(true) ? -1 : __real_write(file, data, size);
}

int __wrap_fsync(int file)
{
    return Fails(true) ? -1 : __real_fsync(file);
}

int __wrap_close(int file)
{
    const bool fails = Fails(false);
    const int result = __real_close(file);
    return fails ? -1 : result;
}

int __wrap_ftruncate(int file, off_t size)
{
    return Fails(true) ? -1 : __real_ftruncate(file, size);
}

off_t __wrap_lseek(int file, off_t place, int from)
{
    return Fails(false) ? -1 : __real_lseek(file, place, from);
}

int __wrap_renameat(int oldFolder, const char *oldPath, int newFolder, const char *newPath)
{
    return Fails(true) ? -1 : __real_renameat(oldFolder, oldPath, newFolder, newPath);
}

int __wrap_unlinkat(int folder, const char *path, int flags)
{
    return Fails(false) ? -1 : __real_unlinkat(folder, path, flags);
}

int __wrap_fchown(int file, uid_t owner, gid_t group)
{
    return Fails(false) ? -1 : __real_fchown(file, owner, group);
}

int __wrap_fchmod(int file, mode_t mode)
{
    return Fails(false) ? -1 : __real_fchmod(file, mode);
}
}
// NOLINTEND
