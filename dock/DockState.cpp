// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DockState.h"

#include <QtCore/QtEndian>
#include <QtWidgets/QWidget>

namespace Norvane {

namespace {

constexpr char Separator = 0x7C;
constexpr qsizetype SizesLength = 3 * sizeof(qint32);

// A splitter's state: magic, version and number of panes; the panes' sizes; whether panes collapse
// and the handles' width; whether dragging is opaque; the orientation; whether opaque was asked
// for.
constexpr qsizetype HeadLength = 3 * sizeof(qint32);
constexpr qsizetype SettingsAt = HeadLength + SizesLength;
constexpr qsizetype SettingsLength = 1 + sizeof(qint32);
constexpr qsizetype OpaqueAt = SettingsAt + SettingsLength;
constexpr qsizetype OrientationAt = OpaqueAt + 1;
constexpr qsizetype OpaqueSetAt = OrientationAt + sizeof(qint32);

qint32 integerAt(const QByteArray &splitter, qsizetype position)
{
    return qFromBigEndian<qint32>(splitter.constData() + position);
}

bool isFlag(char byte)
{
    return byte == 0 || byte == 1;
}

bool isKnown(const QByteArray &splitter)
{
    if (splitter.size() <= OpaqueSetAt)
        return false;
    for (qsizetype at = HeadLength; at < SettingsAt; at += sizeof(qint32)) {
        const qint32 size = integerAt(splitter, at);
        // Qt writes -1 for a pane that was hidden from the beginning.
        if (size < -1 || size > QWIDGETSIZE_MAX)
            return false;
    }
    return isFlag(splitter.at(SettingsAt)) && isFlag(splitter.at(OpaqueAt))
        && integerAt(splitter, OrientationAt) == Qt::Horizontal && isFlag(splitter.at(OpaqueSetAt));
}

bool hasSizes(const QByteArray &splitter)
{
    for (qsizetype at = HeadLength; at < SettingsAt; at += sizeof(qint32)) {
        if (integerAt(splitter, at) > 0)
            return true;
    }
    return false;
}

bool isSplitterState(const QByteArray &splitter, const QByteArray &current)
{
    if (splitter.size() != current.size()
        || splitter.first(HeadLength) != current.first(HeadLength))
        return false;
    // What a later Qt writes in another way only its splitter can read.
    if (!isKnown(current))
        return true;
    // Panes that do not collapse could not go to their bars any more, and a handle stays as wide as
    // a state has made it.
    return isKnown(splitter) && hasSizes(splitter)
        && splitter.sliced(SettingsAt, SettingsLength)
        == current.sliced(SettingsAt, SettingsLength);
}

bool isSize(qint32 size)
{
    return size >= 0 && size <= QWIDGETSIZE_MAX;
}

} // namespace

QByteArray DockState::toBytes() const
{
    QByteArray bytes = splitter + Separator;
    for (qint32 size : {leftWidth, bottomHeight, rightWidth}) {
        const qint32 little = qToLittleEndian(size);
        bytes.append(reinterpret_cast<const char *>(&little), sizeof(little));
    }
    return bytes;
}

std::optional<DockState> DockState::fromBytes(const QByteArray &bytes, const QByteArray &current)
{
    // Callers rely on it: a size that contains the separator is not restored.
    const QList<QByteArray> pieces = bytes.split(Separator);
    if (pieces.size() != 2 || pieces.constLast().size() < SizesLength
        || !isSplitterState(pieces.constFirst(), current))
        return {};
    const char *sizes = pieces.constLast().constData();
    DockState state;
    state.splitter = pieces.constFirst();
    state.leftWidth = qFromLittleEndian<qint32>(sizes);
    state.bottomHeight = qFromLittleEndian<qint32>(sizes + sizeof(qint32));
    state.rightWidth = qFromLittleEndian<qint32>(sizes + 2 * sizeof(qint32));
    if (!isSize(state.leftWidth) || !isSize(state.bottomHeight) || !isSize(state.rightWidth))
        return {};
    return state;
}

} // namespace Norvane
