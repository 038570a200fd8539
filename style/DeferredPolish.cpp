// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DeferredPolish.h"

#include "StyleChangeEater.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace Norvane {

namespace {

// A filter on every widget would take a tenth of its memory.
// Goes when the requests that were posted before it was last asked to stay are delivered.
class PolishRequestEater : public QObject
{
public:
    static PolishRequestEater *stay()
    {
        static QPointer<PolishRequestEater> eater;
        if (!eater)
            eater = new PolishRequestEater;
        eater->m_stay = true;
        return eater;
    }

    void spareHiddenChildrenOf(const QWidget *parent) { m_parents.insert(parent); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::PolishRequest || !watched->isWidgetType())
            return false;
        const auto *widget = static_cast<QWidget *>(watched);
        return DeferredPolish::isUnseen(widget)
            || (widget->isHidden() && m_parents.contains(widget->parentWidget()));
    }

protected:
    void customEvent(QEvent *event) override
    {
        Q_UNUSED(event)
        if (!m_stay) {
            delete this;
            return;
        }
        m_stay = false;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

private:
    PolishRequestEater()
        : QObject(QCoreApplication::instance())
    {
        QCoreApplication::instance()->installEventFilter(this);
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    bool m_stay = true;
    QSet<const QWidget *> m_parents;
};

QHash<const QWidget *, DeferredPolish *> &unseenPages()
{
    static QHash<const QWidget *, DeferredPolish *> pages;
    return pages;
}

DeferredPolish *unseenPageOf(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (DeferredPolish *page = unseenPages().value(widget))
            return page;
    }
    return nullptr;
}

} // namespace

DeferredPolish::DeferredPolish(QWidget *page)
    : QObject(page)
    , m_page(page)
{
    page->installEventFilter(this);
    unseenPages().insert(page, this);
}

DeferredPolish::~DeferredPolish()
{
    unseenPages().remove(m_page);
}

bool DeferredPolish::isUnseen(const QWidget *widget)
{
    return unseenPageOf(widget->parentWidget());
}

void DeferredPolish::putOffHiddenChildren(const QWidget *parent)
{
    PolishRequestEater::stay()->spareHiddenChildrenOf(parent);
}

QWidget *DeferredPolish::nursery(QWidget *parent)
{
    DeferredPolish *page = unseenPageOf(parent);
    if (!page)
        return parent;
    if (!page->m_nursery)
        page->m_nursery = std::make_unique<QWidget>();
    return page->m_nursery.get();
}

void DeferredPolish::adopt(QWidget *widget, QWidget *parent)
{
    if (widget->parentWidget() == parent)
        return;
    PolishRequestEater::stay();
    const StyleChangeEater eater;
    widget->setParent(parent);
}

bool DeferredPolish::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    if (event->type() == QEvent::Show || event->type() == QEvent::Paint)
        finish();
    return false;
}

void DeferredPolish::finish()
{
    m_page->removeEventFilter(this);
    unseenPages().remove(m_page);
    // What the page's name and properties select may have changed since it was polished.
    m_page->style()->polish(m_page);
    const QList<QWidget *> widgets = m_page->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->ensurePolished();
    // Buttons took their sizes when they were shown: settle the layouts, innermost first, so that
    // the first frame has everything in its place.
    for (auto widget = widgets.crbegin(); widget != widgets.crend(); ++widget) {
        if (QLayout *layout = (*widget)->layout())
            layout->activate();
    }
    if (QLayout *layout = m_page->layout())
        layout->activate();
    m_nursery.reset();
    deleteLater();
}

} // namespace Norvane
