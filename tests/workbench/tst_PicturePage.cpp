// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "WorkbenchWindow.h"
#include "picture/EffectGallery.h"

#include <QtWidgets/QPushButton>

using namespace Workbench;

class tst_PicturePage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void turnsTheFile_data();
    void turnsTheFile();
    void cropsTheFileToADraggedSelection();
    void fitsAndShowsTheActualSize();
    void offersCropOnlyWithASelection();
    void appliesAnEffectOfTheStrip();
    void appliesAnEffectOfThePopup();
    void collectsEffects();
    void keepsTheSelectionIfItCan();
};

void tst_PicturePage::turnsTheFile_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QPoint>("red");
    QTest::addColumn<QSize>("size");
    QTest::newRow("left") << QStringLiteral("Rotate\nLeft") << QPoint(0, 39) << QSize(20, 40);
    QTest::newRow("right") << QStringLiteral("Rotate\nRight") << QPoint(19, 0) << QSize(20, 40);
    QTest::newRow("horizontally") << QStringLiteral("Flip Horizontally") << QPoint(39, 0)
                                  << QSize(40, 20);
    QTest::newRow("vertically") << QStringLiteral("Flip Vertically") << QPoint(0, 19)
                                << QSize(40, 20);
}

void tst_PicturePage::turnsTheFile()
{
    QFETCH(QString, command);
    QFETCH(QPoint, red);
    QFETCH(QSize, size);
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.clickPage(QStringLiteral("Picture"));
    window.clickButton(command);
    window.clickPage(QStringLiteral("Home"));
    window.clickButton(QStringLiteral("Save"));
    const QImage saved(files.path(QStringLiteral("a.png")));
    QCOMPARE(saved.size(), size);
    QCOMPARE(saved.pixelColor(red), QColor(Qt::red));
    QCOMPARE(saved.pixelColor(size.width() - 1 - red.x(), size.height() - 1 - red.y()),
             QColor(Qt::white));
}

void tst_PicturePage::cropsTheFileToADraggedSelection()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(80, 60))});
    window.clickPage(QStringLiteral("Picture"));
    const PictureView *view = window.view();
    const QPoint from = view->fromImage(QPointF(30, 20)).toPoint();
    const QPoint to = view->fromImage(QPointF(70, 50)).toPoint();
    Gui::press(view->viewport(), from);
    QMouseEvent move(QEvent::MouseMove, to, view->viewport()->mapToGlobal(to), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &move);
    Gui::release(view->viewport(), to);
    window.clickButton(QStringLiteral("Crop to\nSelection"));
    QCOMPARE(view->image(), Files::quarters(QSize(80, 60)).copy(30, 20, 40, 30));
    window.key(Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(QImage(files.path(QStringLiteral("a.png"))).size(), QSize(40, 30));
    window.key(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(view->image(), Files::quarters(QSize(80, 60)));
}

void tst_PicturePage::fitsAndShowsTheActualSize()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(80, 60)),
                                  files.writeQuarters(QStringLiteral("b.png"), QSize(3000, 60))});
    window.clickPage(QStringLiteral("Picture"));
    QVERIFY(window.button(QStringLiteral("Fit"))->isChecked());
    window.clickButton(QStringLiteral("Actual\nSize"));
    QCOMPARE(window.view()->zoom(), 1.0);
    QVERIFY(!window.button(QStringLiteral("Fit"))->isChecked());

    window.clickTab(QStringLiteral("a.png"));
    QCOMPARE(window.view()->zoom(), 1.0);
    window.clickButton(QStringLiteral("Fit"));
    QVERIFY(window.button(QStringLiteral("Fit"))->isChecked());
    const qreal fitting = qMin(window.view()->width() / 80.0, window.view()->height() / 60.0);
    QVERIFY(window.view()->zoom() > 0.9 * fitting);
    QVERIFY(window.view()->zoom() <= fitting);
    window.clickButton(QStringLiteral("Fit"));
    QVERIFY(!window.button(QStringLiteral("Fit"))->isChecked());
    QVERIFY(!window.document()->isModified());
}

void tst_PicturePage::offersCropOnlyWithASelection()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(80, 60))});
    window.clickPage(QStringLiteral("Picture"));
    const QToolButton *crop = window.button(QStringLiteral("Crop to\nSelection"));
    QVERIFY(!crop->isEnabled());
    window.view()->setSelection(QRect(1, 1, 5, 5));
    QVERIFY(crop->isEnabled());
    window.view()->setSelection(QRect());
    QVERIFY(!crop->isEnabled());
}

// Opens the popup with the mouse, and does something else while it is open.
static void openEffects(const WorkbenchWindow &window, const std::function<void(QMenu *)> &then)
{
    const auto *gallery = window.ribbon()->findChild<EffectGallery *>();
    const auto *opener = gallery->findChild<QPushButton *>(QStringLiteral("popupButton"));
    WorkbenchWindow::openMenu([opener] { Gui::click(opener); }, then);
}

static QToolButton *effect(const QWidget *parent, const QString &name)
{
    const QList<QToolButton *> buttons = parent->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->isVisible() && button->text() == name)
            return button;
    }
    return nullptr;
}

void tst_PicturePage::appliesAnEffectOfTheStrip()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.clickPage(QStringLiteral("Picture"));
    const QImage before = window.view()->image();
    window.clickButton(QStringLiteral("Negative"));
    QCOMPARE(window.view()->image().pixelColor(0, 0), QColor(Qt::cyan));
    QCOMPARE(window.view()->image().pixelColor(39, 19), QColor(Qt::black));
    QVERIFY(window.document()->isModified());
    window.key(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(window.view()->image(), before);
    QVERIFY(!window.document()->isModified());
    window.key(Qt::Key_Y, Qt::ControlModifier);
    QTRY_COMPARE(window.view()->image().pixelColor(0, 0), QColor(Qt::cyan));
    window.key(Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(QImage(files.path(QStringLiteral("a.png"))).pixelColor(0, 0), QColor(Qt::cyan));
}

void tst_PicturePage::appliesAnEffectOfThePopup()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.clickPage(QStringLiteral("Picture"));
    openEffects(window, [](QMenu *menu) { Gui::click(effect(menu, QStringLiteral("Half Size"))); });
    QCOMPARE(window.view()->image().size(), QSize(20, 10));
    window.key(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(window.view()->image(), Files::quarters(QSize(40, 20)));
}

void tst_PicturePage::collectsEffects()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(40, 20))});
    window.clickPage(QStringLiteral("Picture"));
    QVERIFY(!window.button(QStringLiteral("Swirl")));
    openEffects(window, [](QMenu *menu) {
        const QToolButton *swirl = effect(menu, QStringLiteral("Swirl"));
        Gui::moveMouse(swirl, QPoint(40, 40));
        Gui::click(swirl->findChild<QToolButton *>());
        menu->close();
    });
    QTRY_VERIFY(window.button(QStringLiteral("Swirl")));
    QVERIFY(!window.document()->isModified());
}

void tst_PicturePage::keepsTheSelectionIfItCan()
{
    const Files files;
    const WorkbenchWindow window({files.writeQuarters(QStringLiteral("a.png"), QSize(80, 60))});
    window.clickPage(QStringLiteral("Picture"));
    const QRect selection(10, 10, 20, 20);
    window.view()->setSelection(selection);
    window.clickButton(QStringLiteral("Darker"));
    QCOMPARE(window.view()->selection(), selection);
    openEffects(window, [](QMenu *menu) { Gui::click(effect(menu, QStringLiteral("Square"))); });
    QVERIFY(window.view()->selection().isEmpty());
    window.key(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(window.view()->selection(), selection);
}

NORVANE_TEST_MAIN(tst_PicturePage)
#include "tst_PicturePage.moc"
