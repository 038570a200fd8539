// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Gui.h"

#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGallery.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <gallery/RibbonGalleryGroup.h>
#include <gallery/RibbonGalleryItem.h>
#include <gallery/RibbonGalleryPopup.h>

#include <QtGui/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

//! A window with a gallery in a ribbon at its top, as applications build it.
class GalleryWindow : public QWidget
{
public:
    explicit GalleryWindow(bool collectEnabled = true)
        : gallery(new Norvane::RibbonGallery)
    {
        auto *bar = new Norvane::RibbonBar;
        Norvane::RibbonPage *page = bar->addPage(QStringLiteral("Page"), false);
        page->addGroup(QStringLiteral("Group"))->addWidget(gallery);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(bar);
        column->addStretch();
        gallery->setCollectEnabled(collectEnabled);
        setGeometry(10, 20, 700, 200);
    }

    //! Adds a group with an item for each of \a texts.
    void add(const QString &group, const QStringList &texts)
    {
        const int index = gallery->addGroup(group);
        for (const QString &text : texts)
            gallery->addItem(index, createAction(text));
    }

    QAction *createAction(const QString &text) { return new QAction(text, this); }

    bool open()
    {
        if (!Gui::open(this))
            return false;
        // A move to where an earlier window left the mouse would tell this one nothing.
        Gui::moveMouse(this, rect().bottomLeft() + QPoint(5, -5));
        moveMouseAway();
        return true;
    }

    void moveMouseAway() { Gui::moveMouse(this, rect().bottomRight() - QPoint(5, 5)); }

    //! Clicks the button at the strip's end, with the mouse in the popup's search row afterwards.
    bool openPopup()
    {
        Gui::click(popupButton());
        if (!menu()->isVisible() || !QTest::qWaitForWindowExposed(menu(), patience))
            return false;
        Gui::moveMouse(edit(), {3, 3});
        return true;
    }

    void closePopup() { QTest::keyClick(windowHandle(), Qt::Key_Escape); }

    //! Clicks into the search field and replaces its text.
    void search(const QString &text)
    {
        Gui::click(edit());
        if (!edit()->text().isEmpty()) {
            edit()->selectAll();
            QTest::keyClick(windowHandle(), Qt::Key_Delete);
        }
        for (const QChar letter : text)
            QTest::keyClick(windowHandle(), letter.toLatin1());
    }

    //! Moves the mouse over \a item and clicks its marker.
    static void clickMarker(const Norvane::RibbonGalleryItem *item)
    {
        Gui::moveMouse(item, item->rect().center());
        Gui::click(markerOf(item));
    }

    QFrame *itemsFrame() const
    {
        return gallery->findChild<QFrame *>(QStringLiteral("itemsFrame"));
    }
    QPushButton *popupButton() const
    {
        return gallery->findChild<QPushButton *>(QStringLiteral("popupButton"));
    }
    QMenu *menu() const { return gallery->findChild<QMenu *>(QStringLiteral("galleryPopupMenu")); }
    Norvane::RibbonGalleryPopup *popup() const
    {
        return menu()->findChild<Norvane::RibbonGalleryPopup *>();
    }
    QLineEdit *edit() const { return popup()->findChild<QLineEdit *>(); }
    QPushButton *closeButton() const
    {
        const QList<QPushButton *> buttons =
            popup()->widget()->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
        return buttons.value(0);
    }
    QLabel *noMatchLabel() const
    {
        const QList<QLabel *> labels =
            popup()->widget()->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        return labels.value(0);
    }

    //! The collected group and the others, in the popup's order.
    QList<Norvane::RibbonGalleryGroup *> groups() const
    {
        QList<Norvane::RibbonGalleryGroup *> found =
            popup()->widget()->findChildren<Norvane::RibbonGalleryGroup *>();
        const QLayout *column = groupsLayout(popup()->widget()->layout());
        std::sort(found.begin(), found.end(), [column](QWidget *one, QWidget *other) {
            return column->indexOf(one) < column->indexOf(other);
        });
        return found;
    }
    Norvane::RibbonGalleryGroup *collected() const { return groups().constFirst(); }
    //! The group that stands at \a index among those that are not the collected one.
    Norvane::RibbonGalleryGroup *group(int index) const { return groups().value(index + 1); }
    Norvane::RibbonGalleryItem *item(int group, int item) const
    {
        return this->group(group)->item(item);
    }

    static QToolButton *markerOf(const Norvane::RibbonGalleryItem *item)
    {
        return item->findChild<QToolButton *>(QStringLiteral("collectedButton"));
    }
    static QPushButton *toTopOf(const Norvane::RibbonGalleryGroup *group)
    {
        return group->findChildren<QPushButton *>().value(0);
    }
    static QPushButton *toBottomOf(const Norvane::RibbonGalleryGroup *group)
    {
        return group->findChildren<QPushButton *>().value(1);
    }

    //! What stands in the strip, placeholders included.
    QList<Norvane::RibbonGalleryItem *> cells() const
    {
        QList<Norvane::RibbonGalleryItem *> cells;
        const QLayout *row = itemsFrame()->layout();
        for (int i = 0; i < row->count(); ++i)
            cells << qobject_cast<Norvane::RibbonGalleryItem *>(row->itemAt(i)->widget());
        return cells;
    }

    //! The texts of the strip, with "-" for what is disabled and has no text.
    QStringList strip() const
    {
        QStringList texts;
        const QList<Norvane::RibbonGalleryItem *> shown = cells();
        for (const Norvane::RibbonGalleryItem *cell : shown) {
            const bool empty = cell->text().isEmpty() && !cell->isEnabled();
            texts << (empty ? QStringLiteral("-") : cell->text());
        }
        return texts;
    }

    //! The texts of the visible items of \a group.
    static QStringList visibleTexts(const Norvane::RibbonGalleryGroup *group)
    {
        QStringList texts;
        for (int i = 0; i < group->count(); ++i) {
            if (!group->item(i)->isHidden())
                texts << group->item(i)->text();
        }
        return texts;
    }

    Norvane::RibbonGallery *gallery;

private:
    static QLayout *groupsLayout(const QLayout *column) { return column->itemAt(1)->layout(); }
};
