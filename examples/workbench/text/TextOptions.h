// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtGui/QFont>

namespace Workbench {

/*!
    How texts are shown, the same for all of them.
*/
class TextOptions : public QObject
{
    Q_OBJECT

public:
    explicit TextOptions(QObject *parent = nullptr);

    QFont font() const;
    void setFont(const QFont &font);

    //! Whether long lines go on in the next row.
    bool wrap() const;
    void setWrap(bool wrap);

Q_SIGNALS:
    void changed();

private:
    QFont m_font;
    bool m_wrap = false;
};

} // namespace Workbench
