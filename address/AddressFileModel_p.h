// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "AddressFileModel.h"

#include <QtCore/QStringList>

namespace Norvane {

class AddressFileModelPrivate
{
    Q_DECLARE_PUBLIC(AddressFileModel)

public:
    virtual ~AddressFileModelPrivate();

    QString path;
    QStringList names;
    AddressFileModel *q_ptr = nullptr;
};

} // namespace Norvane
