// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QDateTime>
#include <QtWidgets/QWidget>

class QFile;
class QSaveFile;
class QVBoxLayout;

namespace Workbench {

class NoticeBar;

/*!
    A file in a tab: what every kind of document can do, for the window and the ribbon pages.

    A document is made by DocumentLoader and always stands for a file; it is the widget that shows
    that file as well. Operations that do not apply do nothing.
*/
class Document : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { Text, Picture };
    Q_ENUM(Kind)

    ~Document() override;

    virtual Kind kind() const = 0;

    QString path() const;
    //! The file's name without its folder.
    QString title() const;
    //! What the status bar says of the document.
    virtual QString summary() const = 0;
    //! What the reader should know of how the file was read; empty if there is nothing.
    QString notice() const;

    //! Reads the file at \a path; on failure \a error tells why and the document is of no use.
    bool load(const QString &path, QString *error);
    //! Writes the file back; on failure \a error tells why and the file is as it was.
    bool save(QString *error);
    //! Writes to \a path, which the document stands for from then on.
    bool saveAs(const QString &path, QString *error);

    //! Whether the file exists and is not the one that was read or written last.
    bool isFileForeign() const;
    /*!
        Looks at the file again. If another program changed it, it is read again; but where that
        would lose what the user did, or the file is gone, a notice says so and nothing is lost.
    */
    void followFile();

    virtual bool isModified() const = 0;
    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;
    virtual bool canCut() const = 0;
    virtual bool canCopy() const = 0;
    virtual bool canPaste() const = 0;

    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;
    virtual void selectAll() = 0;

    //! 1 is the size that the file asks for.
    virtual qreal zoom() const = 0;
    virtual void setZoom(qreal zoom) = 0;
    void zoomIn();
    void zoomOut();

Q_SIGNALS:
    //! Anything that the window or the ribbon shows of the document has changed.
    void changed();
    //! The document was saved, perhaps under another name.
    void saved();
    //! The file was changed by another program and read again.
    void followed();

protected:
    explicit Document(QWidget *parent = nullptr);

    //! Puts \a view, which also takes the keyboard focus, under the notice.
    void setView(QWidget *view);
    void setNotice(const QString &notice);

    virtual bool read(QFile &file, QString *error) = 0;
    virtual bool write(QSaveFile &file, QString *error) = 0;
    //! The content is now what the file holds.
    virtual void markSaved() = 0;
    //! The content is in no file.
    virtual void markUnsaved() = 0;

private:
    //! What tells one state of a file from another.
    struct Stamp
    {
        QDateTime changed;
        qint64 size = -1;
        bool operator==(const Stamp &other) const
        {
            return changed == other.changed && size == other.size;
        }
    };

    Stamp stamp() const;
    void readAgain();

    QVBoxLayout *m_layout;
    NoticeBar *m_noticeBar;
    QString m_path;
    //! Of the file that was read or written last, or that the user was told of.
    Stamp m_known;
    Stamp m_seen;
};

} // namespace Workbench
