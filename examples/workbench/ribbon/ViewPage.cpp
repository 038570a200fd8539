// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/ViewPage.h"

#include "documents/Document.h"
#include "text/TextOptions.h"

#include <Norvane/RibbonGroup.h>

#include <QtGui/QAction>

namespace Workbench {

using namespace Qt::StringLiterals;

ViewPage::ViewPage(TextOptions *textOptions, QWidget *parent)
    : DocumentPage(parent)
{
    Norvane::RibbonGroup *zoom = addGroup(tr("Zoom"));
    m_zoomIn = addCommand({tr("Zoom\nIn"),
                           "zoom-in"_L1,
                           tr("Show the document larger"),
                           {QKeySequence(u"Ctrl++"_s), QKeySequence(u"Ctrl+="_s)}});
    connect(m_zoomIn, &QAction::triggered, this, [this] { document()->zoomIn(); });
    m_zoomOut = addCommand({tr("Zoom\nOut"),
                            "zoom-out"_L1,
                            tr("Show the document smaller"),
                            {QKeySequence(u"Ctrl+-"_s)}});
    connect(m_zoomOut, &QAction::triggered, this, [this] { document()->zoomOut(); });
    m_resetZoom = addCommand({tr("100%"),
                              "zoom-100"_L1,
                              tr("Show the document in its own size"),
                              {QKeySequence(u"Ctrl+0"_s)}});
    connect(m_resetZoom, &QAction::triggered, this, [this] { document()->setZoom(1); });
    for (QAction *action : {m_zoomIn, m_zoomOut, m_resetZoom})
        zoom->addAction(action);

    m_wrap = addCommand({tr("Wrap\nLines"),
                         "wrap"_L1,
                         tr("Continue long lines of texts in the next row"),
                         {QKeySequence(u"Alt+Z"_s)}});
    m_wrap->setCheckable(true);
    m_wrap->setChecked(textOptions->wrap());
    connect(m_wrap, &QAction::toggled, textOptions, &TextOptions::setWrap);
    addGroup(tr("Text"))->addAction(m_wrap);

    m_fullScreen = addCommand({tr("Full\nScreen"),
                               "full-screen"_L1,
                               tr("Use the whole screen"),
                               {QKeySequence(u"F11"_s)}});
    m_fullScreen->setCheckable(true);
    connect(m_fullScreen, &QAction::triggered, this, &ViewPage::fullScreenWanted);
    QAction *options = addCommand({tr("Options"),
                                   "options"_L1,
                                   tr("Set the font, which files open here, and more"),
                                   {QKeySequence(u"Ctrl+,"_s)}});
    connect(options, &QAction::triggered, this, &ViewPage::optionsWanted);
    Norvane::RibbonGroup *window = addGroup(tr("Window"));
    window->addAction(m_fullScreen);
    window->addAction(options);
    ViewPage::refresh();
}

void ViewPage::setFullScreen(bool fullScreen)
{
    m_fullScreen->setChecked(fullScreen);
}

void ViewPage::refresh()
{
    for (QAction *action : {m_zoomIn, m_zoomOut, m_resetZoom})
        action->setEnabled(document());
    m_wrap->setEnabled(document() && document()->kind() == Document::Kind::Text);
}

} // namespace Workbench
