// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Calls.h"

#include <QtCore/QtGlobal>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

thread_local Calls::Counts counts;
thread_local int entriesRead = 0;
thread_local bool holder = false;

std::mutex mutex;
std::condition_variable released;
std::atomic_int allowed = -1;

void waitForRelease()
{
    std::unique_lock lock(mutex);
    released.wait(lock, [] { return allowed < 0 || entriesRead < allowed; });
    ++entriesRead;
}

template<typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

Calls::Counts Calls::take()
{
    return std::exchange(counts, {});
}

void Calls::holdReaders(int entries)
{
    const std::lock_guard lock(mutex);
    holder = true;
    allowed = entries;
}

void Calls::releaseReaders()
{
    {
        const std::lock_guard lock(mutex);
        allowed = -1;
    }
    released.notify_all();
}

extern "C" {

Q_DECL_EXPORT DIR *opendir(const char *path)
{
    static const auto function = next<DIR *(*)(const char *)>("opendir");
    ++counts.opendirs;
    entriesRead = 0;
    return function(path);
}

Q_DECL_EXPORT struct dirent64 *readdir64(DIR *folder)
{
    static const auto function = next<struct dirent64 *(*)(DIR *)>("readdir64");
    if (!holder && allowed >= 0)
        waitForRelease();
    return function(folder);
}

Q_DECL_EXPORT int stat64(const char *path, struct stat64 *result) noexcept
{
    static const auto function = next<int (*)(const char *, struct stat64 *)>("stat64");
    ++counts.stats;
    return function(path, result);
}

Q_DECL_EXPORT int lstat64(const char *path, struct stat64 *result) noexcept
{
    static const auto function = next<int (*)(const char *, struct stat64 *)>("lstat64");
    ++counts.stats;
    return function(path, result);
}

Q_DECL_EXPORT int statx(int folder, const char *path, int flags, unsigned mask,
                        struct statx *result) noexcept
{
    static const auto function =
        next<int (*)(int, const char *, int, unsigned, struct statx *)>("statx");
    ++counts.stats;
    return function(folder, path, flags, mask, result);
}

Q_DECL_EXPORT int access(const char *path, int mode) noexcept
{
    static const auto function = next<int (*)(const char *, int)>("access");
    ++counts.stats;
    return function(path, mode);
}

} // extern "C"
