// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "RealMouse.h"
#include "WorkbenchWindow.h"
#include "views/FilesView.h"

#include <QtGui/QDrag>
#include <QtWidgets/QTreeView>

using namespace Workbench;
using namespace Qt::StringLiterals;

class tst_ClosingDesktop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void endsTheProgramWhateverIsDragged_data();
    void endsTheProgramWhateverIsDragged();
};

// A dock or a pager can close the window while the mouse drags.
void tst_ClosingDesktop::endsTheProgramWhateverIsDragged_data()
{
    QTest::addColumn<bool>("file");
    QTest::newRow("a text") << false;
    QTest::newRow("a file") << true;
}

void tst_ClosingDesktop::endsTheProgramWhateverIsDragged()
{
    QFETCH(bool, file);
    const Files files;
    WorkbenchWindow window({files.write(u"a.txt"_s, "some words to be dragged\n")});
    QVERIFY(window.opened);
    window.editor()->selectAll();
    const QTreeView *tree = window.findChild<FilesView *>()->tree();
    QTRY_VERIFY(tree->visualRect(tree->currentIndex()).isValid());
    if (file)
        RealMouse::move(tree->viewport(), tree->visualRect(tree->currentIndex()).center());
    else
        RealMouse::move(window.editor()->viewport(), QPoint(40, 15));

    QTimer step;
    bool closed = false;
    connect(&step, &QTimer::timeout, &step, [&] {
        if (window.findChild<QDrag *>()) {
            step.stop();
            closed = window.close();
        } else {
            RealMouse::xdotool({u"mousemove_relative"_s, u"5"_s, u"0"_s});
        }
    });
    step.start(20);
    QTimer::singleShot(patience, &step, [] { QCoreApplication::exit(1); });
    RealMouse::xdotool({u"mousedown"_s, u"1"_s});
    const int status = QApplication::exec();
    RealMouse::xdotool({u"mouseup"_s, u"1"_s});
    QVERIFY(closed);
    QCOMPARE(status, 0);
}

NORVANE_TEST_MAIN(tst_ClosingDesktop)
#include "tst_ClosingDesktop.moc"
