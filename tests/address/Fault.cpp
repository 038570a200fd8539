// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Fault.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <array>
#include <cerrno>
#include <condition_variable>
#include <cstdarg>
#include <mutex>
#include <thread>
#include <utility>

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
    int delayed = 0;
    std::function<void()> meanwhile;
};

thread_local std::array<Plan, Fault::CallCount> plans;

std::mutex mutex;
std::condition_variable released;
QString heldFolder;
std::thread::id holder;
bool reached = false;

bool fails(Fault::Call call)
{
    Plan &plan = plans.at(call);
    if (++plan.calls == plan.delayed) {
        auto interrupted = std::exchange(plans, {});
        interrupted.at(call).meanwhile();
        plans = std::move(interrupted);
    }
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

void waitForRelease(const char *path)
{
    std::unique_lock lock(mutex);
    const auto isHeld = [path] {
        return !heldFolder.isEmpty() && holder != std::this_thread::get_id()
            && QDir::cleanPath(QFile::decodeName(path)) == heldFolder;
    };
    if (!isHeld())
        return;
    reached = true;
    released.wait(lock, [&] { return !isHeld(); });
}

} // namespace

Fault::Fault(Call call, int first, int last, int error)
    : m_call(call)
{
    plans.at(call) = {0, first, last, error, 0, {}};
}

Fault::~Fault()
{
    plans.at(m_call) = {};
}

int Fault::calls() const
{
    return plans.at(m_call).calls;
}

Delay::Delay(Fault::Call call, int number, const std::function<void()> &meanwhile)
    : m_call(call)
    , m_number(number)
{
    Plan &plan = plans.at(call);
    plan.calls = 0;
    plan.delayed = number;
    plan.meanwhile = meanwhile;
}

Delay::~Delay()
{
    plans.at(m_call).delayed = 0;
}

bool Delay::isOver() const
{
    return plans.at(m_call).calls >= m_number;
}

Hold::Hold(const QString &folder)
{
    const std::lock_guard lock(mutex);
    heldFolder = folder;
    holder = std::this_thread::get_id();
    reached = false;
}

Hold::~Hold()
{
    release();
}

bool Hold::isReached() const
{
    const std::lock_guard lock(mutex);
    return reached;
}

void Hold::release()
{
    {
        const std::lock_guard lock(mutex);
        heldFolder.clear();
    }
    released.notify_all();
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
    waitForRelease(path);
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
