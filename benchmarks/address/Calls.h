// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

// Counts what the thread asks the file system. The functions of the same names in this program
// stand before those of the C library, for Qt too.
namespace Calls {

struct Counts
{
    int opendirs = 0;
    int stats = 0;
};

// What this thread asked since the last call.
Counts take();

// Until released, other threads wait when they have read that many entries of a folder.
void holdReaders(int entries);
void releaseReaders();

} // namespace Calls
