// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <Norvane/NorvaneExport.h>

#include <QtCore/QSharedPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QLabel>

namespace Norvane {

//! Which tabs of a section are to be closed, seen from one of them.
enum CloseMode {
    CloseCurrent,          //!< That tab: by its button, a middle click or the menu.
    CloseAllLeft,          //!< All tabs left of it.
    CloseAllRight,         //!< All tabs right of it.
    CloseAllExceptCurrent, //!< All others.
    CloseAll               //!< All.
};

class DockContentWidgetPrivate;

/*!
    The centre of a DockContainer: named sections, whose tabs run along the bottom, and in each of
    them a row of the application's widgets under closable, movable tabs. As long as there is no tab
    at all it shows a placeholder picture.

    Sections are numbered from 0 in order of addition and are never removed. A section's entry in
    the section bar is visible as long as the section has tabs.

    The widget never closes a tab. It emits signalTabCloseRequested(), and the application answers
    with removeTab(), or does not.

    A section out of range, on either side, gives -1, null, false, an empty string or an invalid
    variant and changes nothing, and so does a tab out of range.
*/
class NORVANE_EXPORT DockContentWidget : public QLabel
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(DockContentWidget)
    Q_DISABLE_COPY_MOVE(DockContentWidget)

public:
    //! Makes a content without sections.
    explicit DockContentWidget(QWidget *parent = nullptr);
    ~DockContentWidget() override;

    //! Adds an empty section with the title \a text and returns its index. Emits nothing.
    int addSection(const QString &text);

    /*!
        Adds \a widget at the end of \a section under a tab with the text \a text, and returns the
        tab's index. The section owns the widget until removeTab(). A widget that is in another
        section leaves it; one that is in \a section keeps its place, and its index is returned; a
        null pointer is ignored and -1 returned.

        The first tab of all emits signalCurrentSectionChanged(), and signalVisibleChanged(true) if
        this widget is not visible.
    */
    int addTab(int section, QWidget *widget, const QString &text);

    /*!
        Takes a tab out of its section and hands its widget, which is hidden and not deleted, back
       to the caller. When no tab is left anywhere signalVisibleChanged(false) (if this widget is
        visible and hides by itself), signalCurrentSectionChanged(-1) and
        signalCurrentTabChanged(-1, -1) are emitted; likewise when the application deletes the last
        tab's widget.
    */
    void removeTab(int section, int index);

    //! The number of sections, with tabs or without.
    int sectionCount() const;
    //! The title of \a section.
    QString sectionText(int section);
    //! The section in front, or -1 if there is none.
    int currentSection() const;
    //! The tab in front of \a section, which may be behind itself; -1 if it has no tab.
    int currentTab(int section) const;
    //! The widget of the tab in front of \a section, or null.
    QWidget *currentWidget(int section) const;
    //! The widget of tab \a index of \a section, or null.
    QWidget *widget(int section, int index) const;
    //! The number of tabs in \a section.
    int tabCount(int section) const;

    //! Whether \a widget is in a section.
    bool contains(QWidget *widget);
    //! The section that holds \a widget, or -1.
    int sectionOf(QWidget *widget) const;
    //! The index of \a widget's tab in its section, or -1.
    int tabOf(QWidget *widget) const;

    //! Makes \a section current, then its tab \a index.
    void setCurrentTab(int section, int index);

    //! Whether the user can choose tab \a index of \a section.
    bool isTabEnabled(int section, int index) const;
    //! Lets the user choose a tab, or not, and enables its widget or disables it.
    void setTabEnabled(int section, int index, bool enabled);
    //! Whether tab \a index of \a section is in the row of tabs.
    bool isTabVisible(int section, int index) const;
    //! Shows or hides a tab; another one comes to the front if the one in front is hidden.
    void setTabVisible(int section, int index, bool visible);
    //! The text on tab \a index of \a section.
    QString tabText(int section, int index);
    //! Sets the text on tab \a index of \a section.
    void setTabText(int section, int index, const QString &text);
    //! The tool tip of tab \a index of \a section.
    QString tabToolTip(int section, int index);
    //! Sets the tool tip of tab \a index of \a section.
    void setTabToolTip(int section, int index, const QString &toolTip);
    //! What setTabData() has set for the tab.
    QVariant tabData(int section, int index);
    //! Attaches something of the application's own to tab \a index of \a section.
    void setTabData(int section, int index, const QVariant &data);

    //! Whether \a section has its entry in the section bar.
    bool isSectionVisible(int section) const;
    //! Shows or hides the entry of \a section, until another tab of it comes to the front.
    void setSectionVisible(int section, bool visible);
    //! Whether the user can choose \a section. Callers rely on the name as it is spelled.
    bool isSectionEnbaled(int section) const;
    //! Lets the user choose \a section, or not.
    void setSectionEnabled(int section, bool enabled);

    //! Whether the sections, not only their bar, are visible.
    bool isSectionBarVisible() const;
    //! Shows or hides the sections, not only their bar.
    void setSectionBarVisible(bool visible);

    //! Sets what is shown, centred, while there is no tab.
    void setPlaceholderPixmap(const QPixmap &pixmap);

    /*!
        Sets whether removing the last tab asks, by signalVisibleChanged(false), for this widget to
        be hidden. Also hides this widget at once if \a autoHide is true, and shows it if not.
    */
    void setAutoHide(bool autoHide);

    //! What the sections ask for, not the placeholder.
    QSize sizeHint() const override;
    //! What the sections ask for, not the placeholder.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! The user asked to close what \a mode says, seen from tab \a index of \a section.
    void signalTabCloseRequested(Norvane::CloseMode mode, int section, int index);
    //! The current section changed; -1 when the last tab is gone.
    void signalCurrentSectionChanged(int section);
    //! The current tab or its section changed; both are -1 when the last tab is gone.
    void signalCurrentTabChanged(int section, int index);
    //! This widget should be shown, or may be hidden. DockContainer does so.
    void signalVisibleChanged(bool visible);

protected:
    DockContentWidget(DockContentWidgetPrivate &dd, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

    const QSharedPointer<DockContentWidgetPrivate> d_ptr;
};

} // namespace Norvane
