// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGui/QImage>

/*!
    Pictures that were looked at. With NORVANE_UPDATE_BASELINES in the environment they are written
    anew: look at them before they are committed.
*/
namespace Baseline {

/*!
    Compares \a actual with the picture of the running test's row in \a folder, one for each scale.
    Returns what is wrong, or nothing; what was painted is then left in the current folder.
*/
QString compare(const QImage &actual, const QString &folder);

} // namespace Baseline
