// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Crumbs.h"

#include <Norvane/AddressBar.h>

#include <QtCore/QDir>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

namespace {

QMenu *menuOfLast(const QWidget *row)
{
    QMenu *menu = nullptr;
    const auto buttons = row->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons) {
        if (button->menu())
            menu = button->menu();
    }
    return menu;
}

} // namespace

BarCrumbs::BarCrumbs()
    : m_bar(std::make_unique<Norvane::AddressBar>())
{
}

BarCrumbs::~BarCrumbs() = default;

QWidget *BarCrumbs::widget()
{
    return m_bar.get();
}

void BarCrumbs::setPath(const QString &path)
{
    m_bar->setPath(path);
}

QMenu *BarCrumbs::lastMenu()
{
    return menuOfLast(m_bar.get());
}

PlainCrumbs::PlainCrumbs()
{
    auto *layout = new QHBoxLayout(&m_row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft);
    // Narrower than its buttons, as a bar is.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    m_row.setFixedHeight(24);
}

void PlainCrumbs::setPath(const QString &path)
{
    const auto old = m_row.findChildren<QToolButton *>(Qt::FindDirectChildrenOnly);
    for (QToolButton *button : old) {
        m_row.layout()->removeWidget(button);
        button->deleteLater();
    }
    const QIcon icon = m_row.style()->standardIcon(QStyle::SP_DirIcon);
    const QStringList names = path.split(u'/', Qt::SkipEmptyParts);
    QString prefix;
    for (qsizetype i = -1; i < names.size(); ++i) {
        if (i >= 0)
            prefix += u'/' + names.at(i);
        auto *button = new QToolButton(&m_row);
        button->setText(names.value(i));
        const QStringList folders =
            QDir(prefix + u'/').entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        if (!folders.isEmpty()) {
            auto *menu = new QMenu(button);
            for (const QString &folder : folders)
                menu->addAction(new QAction(icon, folder, menu));
            button->setMenu(menu);
            button->setPopupMode(QToolButton::MenuButtonPopup);
        }
        button->setFixedSize(button->sizeHint());
        m_row.layout()->addWidget(button);
    }
}

QMenu *PlainCrumbs::lastMenu()
{
    return menuOfLast(&m_row);
}
