// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace Norvane {

/*!
    A saved layout: the outer splitter's own state, the byte 0x7C, and three remembered sizes, 32
    bits each, little-endian.
*/
struct DockState
{
    QByteArray splitter;
    qint32 leftWidth = 0;
    qint32 bottomHeight = 0;
    qint32 rightWidth = 0;

    QByteArray toBytes() const;

    /*!
        Reads \a bytes, or nothing if they cannot come from toBytes(). \a current is what the
        splitter that is to be restored saves now. QSplitter::restoreState() takes nearly every
        sequence of bytes for a state: it would turn the splitter, hang in a handle of a billion
        pixels, or lose panes.
    */
    static std::optional<DockState> fromBytes(const QByteArray &bytes, const QByteArray &current);
};

} // namespace Norvane
