// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RibbonPage_p.h"

#include "DeferredPolish.h"
#include "RibbonGroup.h"

#include <QtWidgets/QHBoxLayout>

namespace Norvane {

namespace {

// Gives every group its width even where the page is too narrow for them: what does not fit is
// clipped at the end of the row, where a plain box would squeeze all groups and cut each of them.
class GroupRow : public QHBoxLayout
{
public:
    void setGeometry(const QRect &rect) override
    {
        const int width = qMax(rect.width(), sizeHint().width());
        QHBoxLayout::setGeometry({rect.topLeft(), QSize(width, rect.height())});
        if (width == rect.width() || !parentWidget()->isRightToLeft())
            return;
        // The end is at the left here, and a layout item refuses a place left of its parent.
        int left = rect.right() + 1;
        for (int i = 0; i < count(); ++i) {
            QWidget *group = itemAt(i)->widget();
            if (!group || itemAt(i)->isEmpty())
                continue;
            left -= group->width();
            group->move(left, group->y());
        }
    }
};

} // namespace

RibbonPagePrivate::RibbonPagePrivate()
    : layout(new GroupRow)
{
    layout->setContentsMargins(3, 0, 0, 0);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

RibbonPagePrivate::~RibbonPagePrivate() = default;

RibbonPage::RibbonPage(QWidget *parent)
    : RibbonPage(*new RibbonPagePrivate, parent)
{
}

RibbonPage::RibbonPage(RibbonPagePrivate &dd, QWidget *parent)
    : QWidget(parent)
    , d_ptr(&dd)
{
    Q_D(RibbonPage);
    d->q_ptr = this;
    setLayout(d->layout);
    new DeferredPolish(this);
}

RibbonPage::~RibbonPage() = default;

RibbonGroup *RibbonPage::addGroup(const QString &title)
{
    Q_D(RibbonPage);
    ensurePolished();
    auto *group = new RibbonGroup(title, DeferredPolish::nursery(this));
    DeferredPolish::adopt(group, this);
    d->layout->addWidget(group);
    d->groups.append(group);
    return group;
}

RibbonGroup *RibbonPage::group(int index) const
{
    Q_D(const RibbonPage);
    return d->groups.value(index);
}

int RibbonPage::indexOf(RibbonGroup *group) const
{
    Q_D(const RibbonPage);
    return int(d->groups.indexOf(group));
}

} // namespace Norvane
