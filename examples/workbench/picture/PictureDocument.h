// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/Document.h"
#include "picture/PictureTurnCommand.h"

class QUndoStack;

namespace Workbench {

class PictureView;
struct PictureEffect;

/*!
    A picture file. It is written in the format that its suffix names.
*/
class PictureDocument : public Document
{
    Q_OBJECT

public:
    explicit PictureDocument(QWidget *parent = nullptr);
    ~PictureDocument() override;

    void turn(PictureTurnCommand::Turn turn);
    //! Does nothing if the result would be too large.
    void apply(const PictureEffect &effect);
    bool canCrop() const;
    void cropToSelection();
    bool isFitted() const;
    void setFitted(bool fitted);

    Kind kind() const override;
    QString summary() const override;
    bool isModified() const override;
    bool canUndo() const override;
    bool canRedo() const override;
    bool canCut() const override;
    bool canCopy() const override;
    bool canPaste() const override;
    void undo() override;
    void redo() override;
    //! The place of what was cut becomes transparent, or white in a picture that cannot.
    void cut() override;
    void copy() override;
    //! Puts the clipboard's picture at the selection; the picture grows if it does not fit.
    void paste() override;
    void selectAll() override;
    qreal zoom() const override;
    void setZoom(qreal zoom) override;

protected:
    bool read(QFile &file, QString *error) override;
    bool write(QSaveFile &file, QString *error) override;
    void markSaved() override;
    void markUnsaved() override;

private:
    PictureView *m_view;
    QUndoStack *m_history;
};

} // namespace Workbench
