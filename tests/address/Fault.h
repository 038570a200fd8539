// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QString>

#include <functional>

/*!
    Lets calls to the system fail, as long as it lives. The functions of the same names in the
    test program stand before those of the C library, for Qt too.
*/
class Fault
{
public:
    //! Name is what gives a file its name, Fill what gives it its content.
    enum Call { OpenToRead, OpenToWrite, OpenFolder, Name, Unlink, Fill, CallCount };

    //! Of these calls on this thread, counted from 1, those from \a first to \a last fail.
    Fault(Call call, int first, int last, int error);
    ~Fault();
    Fault(const Fault &) = delete;
    Fault &operator=(const Fault &) = delete;

    //! How often the call was made.
    int calls() const;

private:
    const Call m_call;
};

/*!
    Delays one call to the system, as a disk does that was asleep: before it is made, somebody else
    does \a meanwhile, whose own calls do not count.
*/
class Delay
{
public:
    //! Delays the call with this \a number among these calls on this thread, counted from 1.
    Delay(Fault::Call call, int number, const std::function<void()> &meanwhile);
    ~Delay();
    Delay(const Delay &) = delete;
    Delay &operator=(const Delay &) = delete;

    bool isOver() const;

private:
    const Fault::Call m_call;
    const int m_number;
};

//! Lets other threads wait before they list a folder, until it is released.
class Hold
{
public:
    explicit Hold(const QString &folder);
    ~Hold();
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;

    //! Whether a thread has come to it.
    bool isReached() const;
    void release();
};
