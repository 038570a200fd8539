// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace Workbench {

class TextOptions;

/*!
    What the user has set. Each change is kept at once for the next start of the program.
*/
class Options : public QObject
{
    Q_OBJECT

public:
    explicit Options(QObject *parent = nullptr);

    TextOptions *text() const;

    //! The suffixes, in lower case and without a dot, of the files that open in this program.
    QStringList suffixes() const;
    void setSuffixes(const QStringList &suffixes);
    //! Texts, and the pictures that this machine can read.
    static QStringList defaultSuffixes();

    //! Whether panels and window come back where they were.
    bool keepsLayout() const;
    void setKeepsLayout(bool keep);

Q_SIGNALS:
    void suffixesChanged();

private:
    void save() const;

    TextOptions *m_text;
    QStringList m_suffixes;
    bool m_keepsLayout;
};

} // namespace Workbench
