// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Files.h"
#include "Gui.h"
#include "TestCase.h"
#include "ribbon/FindField.h"
#include "text/TextDocument.h"
#include "text/TextEditor.h"
#include "text/TextOptions.h"

#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Workbench;

class tst_FindField : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhileTyping();
    void staysAtWhatGoesOnMatching();
    void findsOnWithEnterAndBackWithShift();
    void tellsSmallFromCapitalIfAsked();
    void findsWholeWordsIfAsked();
    void showsThatNothingIsFound();
    void goesBackToTheTextWithEscape();
    void isDisabledWithoutAText();
    void survivesItsText();
};

// A field over a text, with the field in focus.
class Scene
{
public:
    explicit Scene(const QByteArray &text)
        : document(new TextDocument(&options))
        , field(new FindField)
    {
        QString error;
        loaded = document->load(m_files.write(QStringLiteral("a.txt"), text), &error);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(document);
        field->setDocument(document);
        window.show();
        window.activateWindow();
        active = QTest::qWaitForWindowActive(&window, patience);
        field->setFocus();
    }

    void type(const QString &text) const
    {
        for (QChar c : text)
            QTest::keyClick(window.windowHandle(), c.toLatin1());
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    int selected() const
    {
        const QTextCursor cursor = document->findChild<TextEditor *>()->textCursor();
        return cursor.hasSelection() ? cursor.selectionStart() : -1;
    }
    bool looksFound() const
    {
        return Gui::pixel(field, QPoint(field->width() - 30, 4)) == QColor(Qt::white);
    }

    TextOptions options;
    QWidget window;
    TextDocument *document;
    FindField *field;
    bool loaded = false;
    bool active = false;

private:
    Files m_files;
};

void tst_FindField::findsWhileTyping()
{
    const Scene scene("one two three");
    QVERIFY(scene.loaded && scene.active);
    scene.type(QStringLiteral("t"));
    QCOMPARE(scene.selected(), 4);
    scene.type(QStringLiteral("h"));
    QCOMPARE(scene.selected(), 8);
    scene.key(Qt::Key_Backspace);
    QVERIFY(scene.field->hasFocus());
    QVERIFY(!scene.document->isModified());
}

void tst_FindField::staysAtWhatGoesOnMatching()
{
    const Scene scene("three three");
    scene.type(QStringLiteral("thr"));
    QCOMPARE(scene.selected(), 0);
}

void tst_FindField::findsOnWithEnterAndBackWithShift()
{
    const Scene scene("ab ab ab");
    scene.type(QStringLiteral("ab"));
    QCOMPARE(scene.selected(), 0);
    scene.key(Qt::Key_Return);
    QCOMPARE(scene.selected(), 3);
    scene.key(Qt::Key_Enter);
    QCOMPARE(scene.selected(), 6);
    scene.key(Qt::Key_Return);
    QCOMPARE(scene.selected(), 0);
    scene.key(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(scene.selected(), 6);
    scene.key(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(scene.selected(), 3);
}

void tst_FindField::tellsSmallFromCapitalIfAsked()
{
    const Scene scene("AB ab");
    scene.type(QStringLiteral("ab"));
    QCOMPARE(scene.selected(), 0);
    scene.field->setMatchCase(true);
    QCOMPARE(scene.selected(), 3);
    scene.field->setMatchCase(false);
    scene.key(Qt::Key_Return);
    QCOMPARE(scene.selected(), 0);
}

void tst_FindField::findsWholeWordsIfAsked()
{
    const Scene scene("abc ab");
    scene.type(QStringLiteral("ab"));
    QCOMPARE(scene.selected(), 0);
    scene.field->setWholeWords(true);
    QCOMPARE(scene.selected(), 4);
}

void tst_FindField::showsThatNothingIsFound()
{
    const Scene scene("ab");
    QVERIFY(scene.looksFound());
    scene.type(QStringLiteral("a"));
    QVERIFY(scene.looksFound());
    scene.type(QStringLiteral("x"));
    QVERIFY(!scene.looksFound());
    QVERIFY(scene.field->toolTip().contains(QStringLiteral("not found")));
    scene.key(Qt::Key_Backspace);
    QVERIFY(scene.looksFound());
    scene.type(QStringLiteral("x"));
    scene.field->clear();
    scene.key(Qt::Key_Return);
    QVERIFY(scene.looksFound());
}

void tst_FindField::goesBackToTheTextWithEscape()
{
    const Scene scene("ab");
    QVERIFY(scene.field->hasFocus());
    scene.key(Qt::Key_Escape);
    QVERIFY(scene.document->findChild<TextEditor *>()->hasFocus());
}

void tst_FindField::isDisabledWithoutAText()
{
    FindField field;
    field.setDocument(nullptr);
    QVERIFY(!field.isEnabled());
    field.findNext();
    field.findPrevious();
    field.setMatchCase(true);
}

void tst_FindField::survivesItsText()
{
    FindField field;
    TextOptions options;
    auto document = std::make_unique<TextDocument>(&options);
    field.setDocument(document.get());
    field.setText(QStringLiteral("x"));
    document.reset();
    field.findNext();
    QTest::keyClick(&field, Qt::Key_Escape);
}

NORVANE_TEST_MAIN(tst_FindField)
#include "tst_FindField.moc"
