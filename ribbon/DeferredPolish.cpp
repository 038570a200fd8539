// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "DeferredPolish.h"

#include <QtCore/QChildEvent>
#include <QtCore/QCoreApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace Norvane {

namespace {

class StyleChangeEater : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        return event->type() == QEvent::StyleChange;
    }
};

} // namespace

DeferredPolish::DeferredPolish(QWidget *page)
    : QObject(page)
    , m_page(page)
{
    page->installEventFilter(this);
}

void DeferredPolish::adopt(QWidget *widget, QWidget *parent)
{
    StyleChangeEater eater;
    if (!parent->isVisible()) {
        widget->installEventFilter(&eater);
        const QList<QWidget *> children = widget->findChildren<QWidget *>();
        for (QWidget *child : children)
            child->installEventFilter(&eater);
    }
    widget->setParent(parent);
}

bool DeferredPolish::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
        watch(static_cast<QChildEvent *>(event)->child());
        return false;
    case QEvent::PolishRequest:
        return watched != m_page;
    case QEvent::StyleChange:
        // Frames and buttons answer it by asking the style; finish() makes up for it.
        m_styleChanged = m_styleChanged || watched != m_page;
        return watched != m_page;
    case QEvent::Show:
    case QEvent::Paint:
        if (watched == m_page)
            finish();
        return false;
    default:
        return false;
    }
}

void DeferredPolish::watch(QObject *widget)
{
    if (!widget->isWidgetType())
        return;
    widget->installEventFilter(this);
    for (QObject *child : widget->children())
        watch(child);
}

void DeferredPolish::finish()
{
    m_page->removeEventFilter(this);
    // What the page's name and properties select may have changed since it was polished.
    m_page->style()->polish(m_page);
    const QList<QWidget *> widgets = m_page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        widget->removeEventFilter(this);
        widget->ensurePolished();
        if (m_styleChanged) {
            QEvent change(QEvent::StyleChange);
            QCoreApplication::sendEvent(widget, &change);
        }
    }
    // Buttons took their sizes when they were shown: settle the layouts, innermost first, so that
    // the first frame has everything in its place.
    for (auto widget = widgets.crbegin(); widget != widgets.crend(); ++widget) {
        if (QLayout *layout = (*widget)->layout())
            layout->activate();
    }
    if (QLayout *layout = m_page->layout())
        layout->activate();
    deleteLater();
}

} // namespace Norvane
