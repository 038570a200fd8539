// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "ribbon/FindField.h"

#include "text/TextDocument.h"

#include <QtGui/QKeyEvent>

namespace Workbench {

FindField::FindField(QWidget *parent)
    : QLineEdit(parent)
{
    setAccessibleName(tr("Find"));
    setPlaceholderText(tr("Find"));
    setClearButtonEnabled(true);
    setFixedSize(170, 22);
    connect(this, &QLineEdit::textEdited, this, [this] { find({}, true); });
}

void FindField::setDocument(TextDocument *document)
{
    m_document = document;
    setEnabled(document != nullptr);
    showFound(true);
}

void FindField::findNext()
{
    find({}, false);
}

void FindField::findPrevious()
{
    find(QTextDocument::FindBackward, false);
}

void FindField::setMatchCase(bool match)
{
    m_flags.setFlag(QTextDocument::FindCaseSensitively, match);
    find({}, true);
}

void FindField::setWholeWords(bool whole)
{
    m_flags.setFlag(QTextDocument::FindWholeWords, whole);
    find({}, true);
}

void FindField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->modifiers() & Qt::ShiftModifier ? findPrevious() : findNext();
        break;
    case Qt::Key_Escape:
        if (m_document)
            m_document->setFocus();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void FindField::find(QTextDocument::FindFlags direction, bool incremental)
{
    if (m_document)
        showFound(text().isEmpty() || m_document->find(text(), m_flags | direction, incremental));
}

void FindField::showFound(bool found)
{
    setStyleSheet(found ? QString()
                        : QStringLiteral("QLineEdit { background-color: rgb(255, 215, 215); }"));
    setToolTip(found ? tr("Enter finds the next place, Shift+Enter the previous one")
                     : tr("The text was not found"));
}

} // namespace Workbench
