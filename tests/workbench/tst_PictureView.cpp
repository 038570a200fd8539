// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "Gui.h"
#include "TestCase.h"
#include "picture/PictureView.h"

#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

using Workbench::PictureView;

class tst_PictureView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsThePictureInTheMiddle();
    void showsSmallPicturesAsTheyAre();
    void fitsLargePicturesAtFirst();
    void fitsWhenItsSizeChanges();
    void endsFittingByAZoom();
    void scrollsWhatDoesNotFit();
    void selectsByDragging_data();
    void selectsByDragging();
    void keepsSelectionsInThePicture();
    void deselectsByAClickAndByEscape();
    void deselectsWithANewPicture();
    void asksForZoomByWheelWithControl();
};

static void drag(PictureView *view, QPointF from, QPointF to)
{
    const QPoint start = view->fromImage(from).toPoint();
    const QPoint end = view->fromImage(to).toPoint();
    Gui::press(view->viewport(), start);
    // QTest says nothing of pressed buttons in a move.
    QMouseEvent move(QEvent::MouseMove, end, view->viewport()->mapToGlobal(end), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &move);
    Gui::release(view->viewport(), end);
}

void tst_PictureView::showsThePictureInTheMiddle()
{
    PictureView view;
    view.resize(400, 300);
    view.setImage(Files::quarters(QSize(100, 60)));
    QVERIFY(Gui::open(&view));
    const QImage seen = Gui::picture(view.viewport());
    QCOMPARE(Gui::pixel(seen, QPoint(199, 149)), QColor(Qt::red));
    QCOMPARE(Gui::pixel(seen, QPoint(200, 149)), QColor(Qt::green));
    QCOMPARE(Gui::pixel(seen, QPoint(199, 150)), QColor(Qt::blue));
    QCOMPARE(Gui::pixel(seen, QPoint(200, 150)), QColor(Qt::white));
    QCOMPARE(Gui::pixel(seen, QPoint(150, 120)), QColor(Qt::red));
    QVERIFY(Gui::pixel(seen, QPoint(148, 120)) != QColor(Qt::red));
}

void tst_PictureView::showsSmallPicturesAsTheyAre()
{
    PictureView view;
    view.resize(400, 300);
    view.setImage(Files::quarters(QSize(100, 60)));
    QVERIFY(Gui::open(&view));
    QCOMPARE(view.zoom(), 1.0);
    QVERIFY(!view.isFitted());
}

void tst_PictureView::fitsLargePicturesAtFirst()
{
    PictureView view;
    view.resize(432, 332);
    view.setImage(Files::quarters(QSize(1600, 600)));
    QVERIFY(Gui::open(&view));
    QVERIFY(view.isFitted());
    QCOMPARE(view.zoom(), 0.25);
    QVERIFY(!view.horizontalScrollBar()->isVisible());
    QVERIFY(!view.verticalScrollBar()->isVisible());
}

void tst_PictureView::fitsWhenItsSizeChanges()
{
    PictureView view;
    view.resize(232, 232);
    view.setImage(Files::quarters(QSize(100, 100)));
    QVERIFY(Gui::open(&view));
    view.setFitted(true);
    QCOMPARE(view.zoom(), 2.0);
    view.resize(332, 432);
    QTRY_COMPARE(view.zoom(), 3.0);
    view.setImage(Files::quarters(QSize(50, 100)));
    QCOMPARE(view.zoom(), 4.0);
}

void tst_PictureView::endsFittingByAZoom()
{
    PictureView view;
    view.resize(232, 232);
    view.setImage(Files::quarters(QSize(100, 100)));
    QVERIFY(Gui::open(&view));
    view.setFitted(true);
    view.setZoom(1);
    QVERIFY(!view.isFitted());
    view.resize(432, 432);
    QTRY_COMPARE(view.viewport()->width(), 432);
    QCOMPARE(view.zoom(), 1.0);
}

void tst_PictureView::scrollsWhatDoesNotFit()
{
    PictureView view;
    view.resize(300, 300);
    view.setImage(Files::quarters(QSize(1000, 1000)));
    QVERIFY(Gui::open(&view));
    view.setZoom(1);
    QTRY_VERIFY(view.verticalScrollBar()->isVisible());
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->minimum());
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->minimum());
    const QPoint middle = view.viewport()->rect().center();
    QCOMPARE(Gui::pixel(view.viewport(), middle), QColor(Qt::red));
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    QCOMPARE(Gui::pixel(view.viewport(), middle), QColor(Qt::white));
    // The last pixel and the margin can be reached.
    const QPoint corner = view.viewport()->rect().bottomRight();
    QVERIFY(Gui::pixel(view.viewport(), corner) != QColor(Qt::white));
    QCOMPARE(Gui::pixel(view.viewport(), corner - QPoint(20, 20)), QColor(Qt::white));
}

void tst_PictureView::selectsByDragging_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<qreal>("zoom");
    QTest::newRow("down right") << QPointF(10, 20) << QPointF(40, 50) << 1.0;
    QTest::newRow("up left") << QPointF(40, 50) << QPointF(10, 20) << 1.0;
    QTest::newRow("enlarged") << QPointF(10, 20) << QPointF(40, 50) << 3.0;
}

void tst_PictureView::selectsByDragging()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(qreal, zoom);
    PictureView view;
    view.resize(500, 400);
    view.setImage(Files::quarters(QSize(100, 60)));
    QVERIFY(Gui::open(&view));
    view.setZoom(zoom);
    drag(&view, from, to);
    QCOMPARE(view.selection(), QRect(10, 20, 30, 30));
    // What is not selected is seen darker.
    const auto seen = [&](QPointF at) {
        return Gui::pixel(view.viewport(), view.fromImage(at).toPoint());
    };
    QCOMPARE(seen(QPointF(25, 25)), QColor(Qt::red));
    QVERIFY(seen(QPointF(3, 3)) != QColor(Qt::red));
}

void tst_PictureView::keepsSelectionsInThePicture()
{
    PictureView view;
    view.resize(400, 300);
    view.setImage(Files::quarters(QSize(100, 60)));
    QVERIFY(Gui::open(&view));
    drag(&view, QPointF(-30, -20), QPointF(150, 90));
    QCOMPARE(view.selection(), QRect(0, 0, 100, 60));
    view.setSelection(QRect(90, 50, 100, 100));
    QCOMPARE(view.selection(), QRect(90, 50, 10, 10));
    drag(&view, QPointF(-30, -20), QPointF(-10, -10));
    QVERIFY(view.selection().isEmpty());
}

void tst_PictureView::deselectsByAClickAndByEscape()
{
    PictureView view;
    view.resize(400, 300);
    view.setImage(Files::quarters(QSize(100, 60)));
    QVERIFY(Gui::open(&view));
    QSignalSpy changed(&view, &PictureView::selectionChanged);
    drag(&view, QPointF(10, 10), QPointF(20, 20));
    QVERIFY(!view.selection().isEmpty());
    QVERIFY(changed.count() > 0);
    Gui::click(view.viewport(), view.fromImage(QPointF(50, 50)).toPoint());
    QVERIFY(view.selection().isEmpty());
    view.setSelection(QRect(1, 1, 5, 5));
    QTest::keyClick(&view, Qt::Key_Escape);
    QVERIFY(view.selection().isEmpty());
}

void tst_PictureView::deselectsWithANewPicture()
{
    PictureView view;
    view.setImage(Files::quarters(QSize(100, 60)));
    view.setSelection(QRect(1, 1, 5, 5));
    view.setImage(Files::quarters(QSize(60, 100)));
    QVERIFY(view.selection().isEmpty());
}

void tst_PictureView::asksForZoomByWheelWithControl()
{
    PictureView view;
    view.resize(400, 300);
    view.setImage(Files::quarters(QSize(100, 60)));
    QVERIFY(Gui::open(&view));
    QSignalSpy wanted(&view, &PictureView::zoomWanted);
    QTest::wheelEvent(view.windowHandle(), QPointF(50, 50), QPoint(0, 120), QPoint(),
                      Qt::ControlModifier);
    QTest::wheelEvent(view.windowHandle(), QPointF(50, 50), QPoint(0, -120), QPoint(),
                      Qt::ControlModifier);
    QTest::wheelEvent(view.windowHandle(), QPointF(50, 50), QPoint(0, 120));
    QTRY_COMPARE(wanted.count(), 2);
    QCOMPARE(wanted.at(0).at(0).toInt(), 1);
    QCOMPARE(wanted.at(1).at(0).toInt(), -1);
}

NORVANE_TEST_MAIN(tst_PictureView)
#include "tst_PictureView.moc"
