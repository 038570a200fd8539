// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtWidgets/QPlainTextEdit>

namespace Workbench {

class TextOptions;

/*!
    The editor of a text, with a zoom of its own. Files dropped on it go to the window.
*/
class TextEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextEditor(TextOptions *options, QWidget *parent = nullptr);

    qreal zoom() const;
    void setZoom(qreal zoom);

Q_SIGNALS:
    //! The user turned the wheel with Ctrl held: \a steps is above 0 to zoom in.
    void zoomWanted(int steps);

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void applyOptions();

    TextOptions *m_options;
    qreal m_zoom = 1;
};

} // namespace Workbench
