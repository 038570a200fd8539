// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QCoreApplication>

#include <memory>

namespace Workbench {

class Document;
class TextOptions;

/*!
    Makes the document that suits a file: pictures by their suffix, then texts, then pictures by
    their content.
*/
class DocumentLoader
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::DocumentLoader)

public:
    explicit DocumentLoader(TextOptions *textOptions);

    //! Null if the file cannot be shown; \a error tells why.
    std::unique_ptr<Document> load(const QString &path, QString *error) const;

private:
    TextOptions *m_textOptions;
};

} // namespace Workbench
