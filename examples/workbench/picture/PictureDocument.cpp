// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "picture/PictureDocument.h"

#include "picture/PictureEffect.h"
#include "picture/PictureFormats.h"
#include "picture/PictureReplaceCommand.h"
#include "picture/PictureView.h"
#include "picture/Pixels.h"

#include <QtCore/QFile>
#include <QtCore/QMimeData>
#include <QtCore/QSaveFile>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>
#include <QtGui/QPainter>
#include <QtGui/QUndoStack>

namespace Workbench {

static constexpr int jpegQuality = 95;

static QColor background(const QImage &image)
{
    return image.hasAlphaChannel() ? Qt::transparent : Qt::white;
}

static QImage onWhite(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(0, 0, image);
    flat.setDotsPerMeterX(image.dotsPerMeterX());
    flat.setDotsPerMeterY(image.dotsPerMeterY());
    return flat;
}

PictureDocument::PictureDocument(QWidget *parent)
    : Document(parent)
    , m_view(new PictureView)
    , m_history(new QUndoStack(this))
{
    m_view->setAccessibleName(tr("Picture"));
    setView(m_view);
    connect(m_view, &PictureView::selectionChanged, this, &Document::changed);
    connect(m_view, &PictureView::zoomChanged, this, &Document::changed);
    connect(m_view, &PictureView::zoomWanted, this,
            [this](int steps) { steps > 0 ? zoomIn() : zoomOut(); });
    connect(m_history, &QUndoStack::indexChanged, this, &Document::changed);
    connect(m_history, &QUndoStack::cleanChanged, this, &Document::changed);
}

PictureDocument::~PictureDocument()
{
    // A history that is not clean tells so once more when it goes.
    m_history->disconnect(this);
}

void PictureDocument::turn(PictureTurnCommand::Turn turn)
{
    m_history->push(new PictureTurnCommand(m_view, turn));
}

void PictureDocument::apply(const PictureEffect &effect)
{
    const QImage before = m_view->image();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QImage after = effect.apply(before);
    QGuiApplication::restoreOverrideCursor();
    if (after.isNull())
        return;
    const QRect selection = after.size() == before.size() ? m_view->selection() : QRect();
    m_history->push(new PictureReplaceCommand(m_view, after, selection));
}

bool PictureDocument::canCrop() const
{
    return !m_view->selection().isEmpty() && m_view->selection() != m_view->image().rect();
}

void PictureDocument::cropToSelection()
{
    if (canCrop()) {
        m_history->push(
            new PictureReplaceCommand(m_view, m_view->image().copy(m_view->selection())));
    }
}

bool PictureDocument::isFitted() const
{
    return m_view->isFitted();
}

void PictureDocument::setFitted(bool fitted)
{
    m_view->setFitted(fitted);
}

Document::Kind PictureDocument::kind() const
{
    return Kind::Picture;
}

QString PictureDocument::summary() const
{
    const QRect selection = m_view->selection();
    QString summary;
    if (!selection.isEmpty()) {
        summary = tr("Selection %1 × %2 at %3, %4   |   ")
                      .arg(selection.width())
                      .arg(selection.height())
                      .arg(selection.x())
                      .arg(selection.y());
    }
    return summary
        + tr("%1 × %2 pixels   |   %3%")
              .arg(m_view->image().width())
              .arg(m_view->image().height())
              .arg(qRound(zoom() * 100));
}

bool PictureDocument::isModified() const
{
    return !m_history->isClean();
}

bool PictureDocument::canUndo() const
{
    return m_history->canUndo();
}

bool PictureDocument::canRedo() const
{
    return m_history->canRedo();
}

bool PictureDocument::canCut() const
{
    return canCopy();
}

bool PictureDocument::canCopy() const
{
    return !m_view->selection().isEmpty();
}

bool PictureDocument::canPaste() const
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasImage();
}

void PictureDocument::undo()
{
    m_history->undo();
}

void PictureDocument::redo()
{
    m_history->redo();
}

void PictureDocument::cut()
{
    if (!canCut())
        return;
    copy();
    QImage image = Pixels::straight(m_view->image());
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(m_view->selection(), background(image));
    painter.end();
    m_history->push(new PictureReplaceCommand(m_view, image, m_view->selection()));
}

void PictureDocument::copy()
{
    if (canCopy())
        QGuiApplication::clipboard()->setImage(m_view->image().copy(m_view->selection()));
}

void PictureDocument::paste()
{
    const QImage pasted = QGuiApplication::clipboard()->image();
    if (pasted.isNull())
        return;
    const QImage before = Pixels::straight(m_view->image());
    const QRect place(m_view->selection().topLeft(), pasted.size());
    QImage image = Pixels::blank(before, before.rect().united(place).size());
    image.fill(background(before));
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, before);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(place, pasted);
    painter.end();
    m_history->push(new PictureReplaceCommand(m_view, image, place));
}

void PictureDocument::selectAll()
{
    m_view->setSelection(m_view->image().rect());
}

qreal PictureDocument::zoom() const
{
    return m_view->zoom();
}

void PictureDocument::setZoom(qreal zoom)
{
    m_view->setZoom(zoom);
}

bool PictureDocument::read(QFile &file, QString *error)
{
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull()) {
        *error = reader.errorString();
        return false;
    }
    m_view->setImage(image);
    m_history->clear();
    if (reader.imageCount() > 1) {
        setNotice(tr("This file holds %1 pictures. The first one is shown, and saving keeps only "
                     "that.")
                      .arg(reader.imageCount()));
    }
    return true;
}

bool PictureDocument::write(QSaveFile &file, QString *error)
{
    const QByteArray format = PictureFormats::writeFormat(file.fileName());
    if (format.isEmpty()) {
        *error = tr("Pictures cannot be written in the format of this suffix. These can: %1")
                     .arg(PictureFormats::writePatterns().join(u' '));
        return false;
    }
    QImageWriter writer(&file, format);
    if (format == "jpg" || format == "jpeg")
        writer.setQuality(jpegQuality);
    const QImage image = m_view->image();
    if (!writer.write(PictureFormats::hasTransparency(format) ? image : onWhite(image))) {
        *error = writer.errorString();
        return false;
    }
    return true;
}

void PictureDocument::markSaved()
{
    m_history->setClean();
}

void PictureDocument::markUnsaved()
{
    m_history->resetClean();
}

} // namespace Workbench
