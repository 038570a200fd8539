// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "AddressStrip_p.h"

#include "AddressEntry.h"
#include "AddressPath.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QStringListModel>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStyle>

namespace Norvane {

namespace {

// Stands the crumbs side by side and lets the strip clip the row. A plain box would squeeze a row
// that is too long, and crumbs, which keep their size, would lie on each other.
class CrumbLayout : public QHBoxLayout
{
public:
    using QHBoxLayout::QHBoxLayout;

    void setGeometry(const QRect &rect) override
    {
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): what a box does is to squeeze.
        QLayout::setGeometry(rect);
        QPoint start = rect.topLeft();
        for (int i = 0; i < count(); ++i) {
            const QSize size = itemAt(i)->sizeHint();
            const QPoint centred(start.x(), start.y() + (rect.height() - size.height()) / 2);
            itemAt(i)->widget()->setGeometry(
                QStyle::visualRect(parentWidget()->layoutDirection(), rect, QRect(centred, size)));
            start.rx() += size.width();
        }
    }
};

} // namespace

AddressStripPrivate::AddressStripPrivate()
    : completer(new QCompleter)
    , model(new QStringListModel(completer))
{
    completer->setModel(model);
}

AddressStripPrivate::~AddressStripPrivate() = default;

void AddressStripPrivate::navigate(const QString &path)
{
    Q_Q(AddressStrip);
    if (path.isEmpty())
        return;
    QString stored = AddressPath::stored(path);
    if (stored == this->path)
        return;
    if (AddressPath::isBareDrive(stored, AddressPath::nativeStyle()))
        stored += u'/';
    clearCrumbs();
    this->path = stored;
    if (history.isEmpty() || history.last() != stored) {
        history.resize(qMin(history.size(), qsizetype(index) + 1));
        history.append(stored);
    }
    const QPointer<AddressStrip> that = q;
    rebuild(int(history.size()) - 1);
    if (that)
        updateButtons();
}

void AddressStripPrivate::step(int by)
{
    // A button may be enabled although the history is empty, after a reset to the current path.
    if (index + by < 0 || index + by >= history.size())
        return;
    clearCrumbs();
    path = history.at(index + by);
    rebuild(index + by);
}

void AddressStripPrivate::rebuild(int index)
{
    Q_Q(AddressStrip);
    this->index = index;
    {
        const QScopedValueRollback building(rebuilding, true);
        q->clearFocus();
        q->clear();
    }
    // Before the layout does so one by one, and is activated by each.
    QMetaObject::invokeMethod(q, [this] { showCrumbs(); }, Qt::QueuedConnection);
    addRootIcon();
    addEntry(QString(), QString());
    const QList<AddressPath::Crumb> crumbs = AddressPath::crumbs(path, AddressPath::nativeStyle());
    for (const AddressPath::Crumb &crumb : crumbs)
        addEntry(crumb.label, crumb.path);
    updateButtons();
    Q_EMIT q->signalPathChanged(QString(path));
}

void AddressStripPrivate::showCrumbs()
{
    Q_Q(AddressStrip);
    q->layout()->setEnabled(false);
    for (int i = 0; i < q->layout()->count(); ++i)
        q->layout()->itemAt(i)->widget()->show();
    q->layout()->setEnabled(true);
    q->layout()->activate();
}

void AddressStripPrivate::addRootIcon()
{
    Q_Q(AddressStrip);
    constexpr int size = 24;
    constexpr int margin = 4;
    auto *label = new QLabel(q);
    label->setPixmap(
        q->style()
            ->standardIcon(QStyle::SP_DirOpenIcon)
            .pixmap(QSize(size - 2 * margin, size - 2 * margin), q->devicePixelRatio()));
    label->setScaledContents(true);
    label->setFixedSize(size, size);
    label->setMargin(margin);
    q->layout()->addWidget(label);
}

void AddressStripPrivate::addEntry(const QString &text, const QString &path)
{
    Q_Q(AddressStrip);
    auto *entry = new AddressEntry(q);
    entry->setText(text);
    entry->setPath(path);
    entry->setFocusPolicy(Qt::NoFocus);
    entry->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    q->layout()->addWidget(entry);
    QObject::connect(entry, &AddressEntry::signalClicked, q, &AddressStrip::setPath);
}

void AddressStripPrivate::clearCrumbs()
{
    Q_Q(AddressStrip);
    while (QLayoutItem *item = q->layout()->takeAt(0)) {
        if (QWidget *widget = item->widget()) {
            // It is deleted late, after a dialog that answers to the change, for instance.
            widget->hide();
            widget->deleteLater();
        }
        delete item;
    }
}

void AddressStripPrivate::updateButtons()
{
    Q_Q(AddressStrip);
    // "Not the first" rather than "after the first": an empty history has a way back.
    const bool backward = index != 0;
    const bool forward = index != history.size() - 1;
    const bool dirup = QDir(AddressPath::folder(path)).cdUp();
    Q_EMIT q->signalActionsEnabled(backward, forward, dirup);
}

void AddressStripPrivate::commit()
{
    Q_Q(AddressStrip);
    if (q->layout()->count() != 0)
        return;
    if (q->text().isEmpty()) {
        q->clearFocus();
        return;
    }
    const QString typed = AddressPath::typed(q->text(), AddressPath::nativeStyle());
    if (QDir(QString(typed).replace(u'\\', u'/')).exists()) {
        path = typed;
        q->clearFocus();
    } else {
        QMessageBox::critical(q, AddressStrip::tr("Error"),
                              AddressStrip::tr("The director entered does not exist, please checek "
                                               "the spelling and try again."),
                              QMessageBox::Ok);
    }
}

AddressStrip::AddressStrip(QWidget *parent)
    : AddressStrip(*new AddressStripPrivate, parent)
{
    Q_D(AddressStrip);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    qApp->installEventFilter(this);
    setContextMenuPolicy(Qt::NoContextMenu);
    d->completer->setParent(this);
    setCompleter(d->completer);
    connect(d->completer, qOverload<const QString &>(&QCompleter::activated), this,
            [d](const QString &text) {
                d->path = text;
                d->clearCrumbs();
                d->navigate(text);
            });
    auto *layout = new CrumbLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft);
}

AddressStrip::AddressStrip(AddressStripPrivate &dd, QWidget *parent)
    : QLineEdit(parent)
    , d_ptr(&dd)
{
    Q_D(AddressStrip);
    d->q_ptr = this;
}

AddressStrip::~AddressStrip() = default;

QString AddressStrip::path() const
{
    Q_D(const AddressStrip);
    return d->path;
}

void AddressStrip::setPath(const QString &path)
{
    Q_D(AddressStrip);
    d->navigate(path);
}

void AddressStrip::resetPath(const QString &path)
{
    Q_D(AddressStrip);
    d->history.clear();
    d->index = -1;
    d->navigate(path);
}

void AddressStrip::goBackward()
{
    Q_D(AddressStrip);
    d->step(-1);
}

void AddressStrip::goForward()
{
    Q_D(AddressStrip);
    d->step(1);
}

void AddressStrip::goUp()
{
    Q_D(AddressStrip);
    QDir dir(AddressPath::folder(d->path));
    dir.cdUp();
    d->clearCrumbs();
    const QPointer<AddressStrip> that = this;
    d->navigate(dir.path());
    if (that)
        d->updateButtons();
}

void AddressStrip::browse()
{
    Q_D(AddressStrip);
    const QString current = AddressPath::folder(d->path);
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Select Folder"), current,
                                                             QFileDialog::ShowDirsOnly);
    if (chosen.isEmpty() || QDir(chosen) == QDir(AddressPath::folder(d->path)))
        return;
    d->clearCrumbs();
    d->navigate(chosen);
}

void AddressStrip::edit(const QString &text)
{
    Q_D(AddressStrip);
    setFocusPolicy(Qt::StrongFocus);
    setFocus(Qt::OtherFocusReason);
    setCursor(Qt::IBeamCursor);
    d->clearCrumbs();
    d->path.replace(u'/', u'\\');
    setText(text);
    selectAll();
}

bool AddressStrip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && watched != this && !underMouse())
        clearFocus();
    return QLineEdit::eventFilter(watched, event);
}

void AddressStrip::slotPathChanged(const QString &path)
{
    Q_D(AddressStrip);
    d->clearCrumbs();
    d->navigate(path);
}

void AddressStrip::mouseReleaseEvent(QMouseEvent *event)
{
    Q_D(AddressStrip);
    if (event->button() != Qt::LeftButton)
        event->ignore();
    else if (focusPolicy() == Qt::NoFocus)
        edit(QString(d->path).replace(u'/', u'\\'));
    else
        QLineEdit::mouseReleaseEvent(event);
}

void AddressStrip::keyPressEvent(QKeyEvent *event)
{
    Q_D(AddressStrip);
    if (event->key() == Qt::Key_Return)
        d->commit();
    else
        QLineEdit::keyPressEvent(event);
}

void AddressStrip::focusOutEvent(QFocusEvent *event)
{
    Q_D(AddressStrip);
    clear();
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    if (!d->rebuilding)
        d->navigate(d->path);
    QLineEdit::focusOutEvent(event);
}

} // namespace Norvane
