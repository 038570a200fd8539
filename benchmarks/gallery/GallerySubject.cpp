// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "GallerySubject.h"

#include <Norvane/RibbonGallery.h>
#include <Norvane/RibbonGroup.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QToolButton>

GallerySubject::GallerySubject()
    : m_gallery(new Norvane::RibbonGallery)
{
    m_gallery->setCollectEnabled(true);
    ribbonGroup()->addWidget(m_gallery);
}

void GallerySubject::fill(const QList<GroupActions> &groups)
{
    for (const GroupActions &actions : groups) {
        const int group = m_gallery->addGroup(QStringLiteral("Group"));
        for (QAction *action : actions)
            m_gallery->addItem(group, action);
    }
}

QWidget *GallerySubject::firstItem() const
{
    const QList<QToolButton *> buttons = popup()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->defaultAction())
            return button;
    }
    return nullptr;
}

QMenu *GallerySubject::menu() const
{
    return m_gallery->findChild<QMenu *>(QStringLiteral("galleryPopupMenu"));
}

void GallerySubject::open()
{
    m_gallery->findChild<QPushButton *>(QStringLiteral("popupButton"))->click();
}

QLineEdit *GallerySubject::edit() const
{
    return popup()->findChild<QLineEdit *>();
}

void GallerySubject::setCollected(int group, int item, bool collected)
{
    m_gallery->setItemCollected(group, item, collected);
}

void GallerySubject::setCellCount(int count)
{
    m_gallery->setDispalyCount(count);
}

void GallerySubject::moveFirstGroup()
{
    const QList<QPushButton *> buttons = popup()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        const QWidget *title = button->parentWidget();
        // The group at the top is the only one with just this button.
        if (title->objectName() == QStringLiteral("galleryGroupTitle") && button->isVisible()) {
            button->click();
            return;
        }
    }
}

void GallerySubject::refreshStrip()
{
    QMetaObject::invokeMethod(popup(), "signalGroupUpdated", Qt::DirectConnection);
}

QWidget *GallerySubject::popup() const
{
    return menu()->findChild<QScrollArea *>();
}
