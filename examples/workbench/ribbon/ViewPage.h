// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ribbon/DocumentPage.h"

namespace Workbench {

class TextOptions;

/*!
    How documents and the window are shown.
*/
class ViewPage : public DocumentPage
{
    Q_OBJECT

public:
    explicit ViewPage(TextOptions *textOptions, QWidget *parent = nullptr);

    void setFullScreen(bool fullScreen);

Q_SIGNALS:
    void fullScreenWanted(bool fullScreen);
    void optionsWanted();

protected:
    void refresh() override;

private:
    QAction *m_zoomIn;
    QAction *m_zoomOut;
    QAction *m_resetZoom;
    QAction *m_wrap;
    QAction *m_fullScreen;
};

} // namespace Workbench
