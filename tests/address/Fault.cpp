// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Fault.h"

#include <QtCore/QtGlobal>

#include <array>
#include <cerrno>
#include <cstdarg>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/types.h>

namespace {

struct Plan
{
    int calls = 0;
    int first = 0;
    int last = 0;
    int error = 0;
};

thread_local std::array<Plan, Fault::CallCount> plans;

bool fails(Fault::Call call)
{
    Plan &plan = plans.at(call);
    ++plan.calls;
    if (plan.calls < plan.first || plan.calls > plan.last)
        return false;
    errno = plan.error;
    return true;
}

template<typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int openNext(const char *name, const char *path, int flags, mode_t mode)
{
    if (fails((flags & O_ACCMODE) == O_RDONLY ? Fault::OpenToRead : Fault::OpenToWrite))
        return -1;
    return next<int (*)(const char *, int, mode_t)>(name)(path, flags, mode);
}

} // namespace

Fault::Fault(Call call, int first, int last, int error)
    : m_call(call)
{
    plans.at(call) = {0, first, last, error};
}

Fault::~Fault()
{
    plans.at(m_call) = {};
}

int Fault::calls() const
{
    return plans.at(m_call).calls;
}

extern "C" {

Q_DECL_EXPORT int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return openNext("open", path, flags, mode);
}

Q_DECL_EXPORT int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return openNext("open64", path, flags, mode);
}

Q_DECL_EXPORT DIR *opendir(const char *path)
{
    if (fails(Fault::OpenFolder))
        return nullptr;
    return next<DIR *(*)(const char *)>("opendir")(path);
}

Q_DECL_EXPORT DIR *fdopendir(int folder)
{
    if (fails(Fault::OpenFolder))
        return nullptr;
    return next<DIR *(*)(int)>("fdopendir")(folder);
}

Q_DECL_EXPORT int rename(const char *from, const char *to) noexcept
{
    if (fails(Fault::Name))
        return -1;
    return next<int (*)(const char *, const char *)>("rename")(from, to);
}

Q_DECL_EXPORT int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                            unsigned flags) noexcept
{
    if (fails(Fault::Name))
        return -1;
    return next<int (*)(int, const char *, int, const char *, unsigned)>("renameat2")(
        fromFolder, from, toFolder, to, flags);
}

Q_DECL_EXPORT int linkat(int fromFolder, const char *from, int toFolder, const char *to,
                         int flags) noexcept
{
    if (fails(Fault::Name))
        return -1;
    return next<int (*)(int, const char *, int, const char *, int)>("linkat")(fromFolder, from,
                                                                              toFolder, to, flags);
}

Q_DECL_EXPORT int unlink(const char *path) noexcept
{
    if (fails(Fault::Unlink))
        return -1;
    return next<int (*)(const char *)>("unlink")(path);
}

Q_DECL_EXPORT ssize_t sendfile(int to, int from, off_t *offset, size_t size) noexcept
{
    if (fails(Fault::Fill))
        return -1;
    return next<ssize_t (*)(int, int, off_t *, size_t)>("sendfile")(to, from, offset, size);
}

Q_DECL_EXPORT ssize_t write(int file, const void *data, size_t size)
{
    if (fails(Fault::Fill))
        return -1;
    return next<ssize_t (*)(int, const void *, size_t)>("write")(file, data, size);
}

} // extern "C"
