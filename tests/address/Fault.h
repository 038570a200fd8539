// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

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
