// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "documents/DocumentLoader.h"

#include "picture/PictureDocument.h"
#include "picture/PictureFormats.h"
#include "text/TextDocument.h"

#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>

namespace Workbench {

DocumentLoader::DocumentLoader(TextOptions *textOptions)
    : m_textOptions(textOptions)
{
}

std::unique_ptr<Document> DocumentLoader::load(const QString &path, QString *error) const
{
    if (PictureFormats::canRead(path)) {
        auto picture = std::make_unique<PictureDocument>();
        return picture->load(path, error) ? std::move(picture) : nullptr;
    }
    auto text = std::make_unique<TextDocument>(m_textOptions);
    if (text->load(path, error))
        return text;
    // What is no text may still be a picture under a name that does not tell.
    if (!text->isBinary() || QImageReader::imageFormat(path).isEmpty())
        return nullptr;
    auto picture = std::make_unique<PictureDocument>();
    return picture->load(path, error) ? std::move(picture) : nullptr;
}

} // namespace Workbench
