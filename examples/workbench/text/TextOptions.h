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

    //! The system's font for program text.
    static QFont defaultFont();
    static constexpr int defaultTabWidth = 4;

    QFont font() const;
    void setFont(const QFont &font);

    //! Whether long lines go on in the next row.
    bool wrap() const;
    void setWrap(bool wrap);

    //! How many spaces a tab is as wide as, from 1 to 16; what is out of that is bounded.
    int tabWidth() const;
    void setTabWidth(int spaces);

Q_SIGNALS:
    void changed();

private:
    QFont m_font;
    bool m_wrap = false;
    int m_tabWidth = defaultTabWidth;
};

} // namespace Workbench
