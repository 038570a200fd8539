// SPDX-FileCopyrightText: Norvane contributors
// SPDX-License-Identifier: MIT

#include "Gui.h"
#include "TestCase.h"

#include <Norvane/AddressBar.h>
#include <Norvane/DockContainer.h>
#include <Norvane/DockContentWidget.h>
#include <Norvane/DockPanelWidget.h>
#include <Norvane/NorvaneAgent.h>
#include <Norvane/RibbonBar.h>
#include <Norvane/RibbonGallery.h>
#include <Norvane/RibbonGroup.h>
#include <Norvane/RibbonPage.h>
#include <address/AddressStrip.h>
#include <dock/DockTitle.h>
#include <gallery/RibbonGalleryGroup.h>
#include <gallery/RibbonGalleryPopup.h>

#include <QtCore/QDir>
#include <QtCore/QMimeData>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtCore/QUrl>
#include <QtGui/QClipboard>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTreeView>

#include <functional>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_Translations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void speakTheLanguageThatWasLoaded_data();
    void speakTheLanguageThatWasLoaded();

    void cleanup();
};

namespace {

bool writeFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("text") == 4;
}

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        if (!action->isSeparator())
            texts << action->text();
        if (action->menu())
            texts << textsOf(action->menu());
    }
    return texts;
}

QStringList textsOf(const QMessageBox *box)
{
    QStringList texts{box->windowTitle(), box->text()};
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (box->standardButton(button) == QMessageBox::NoButton)
            texts << button->text();
    }
    return texts;
}

//! The texts of the menu or the dialog that \a open opens, which is closed by the Escape key.
QStringList openedBy(const std::function<void()> &open)
{
    QStringList texts;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget *window = QApplication::activePopupWidget();
        if (!window)
            window = QApplication::activeModalWidget();
        if (!window || !window->windowHandle() || !window->windowHandle()->isExposed())
            return;
        poll.stop();
        if (const auto *menu = qobject_cast<QMenu *>(window))
            texts = textsOf(menu);
        else if (const auto *box = qobject_cast<QMessageBox *>(window))
            texts = textsOf(box);
        QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    });
    poll.start(1);
    open();
    return texts;
}

QStringList contextMenu(QWidget *widget, QPoint position)
{
    return openedBy([&] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, widget->mapToGlobal(position));
        QCoreApplication::sendEvent(widget, &event);
    });
}

//! A window with everything that the library has a text for, over a folder with one file.
class Frame
{
public:
    Frame()
    {
        agent.setup(&window, true, true);
        gallery = new RibbonGallery;
        gallery->setCollectEnabled(true);
        gallery->addItem(u"Effects"_s, new QAction(u"Blur"_s, &window));
        gallery->setItemCollected(0, 0, true);
        agent.ribbonBar()->addPage(u"Page"_s, false)->addGroup(u"Group"_s)->addWidget(gallery);

        DockContainer *docks = agent.dockContainer();
        content = docks->contentWidget();
        const int section = content->addSection(u"Section"_s);
        content->addTab(section, new QWidget, u"one"_s);
        content->addTab(section, new QWidget, u"two"_s);

        agent.addressBar()->setPath(folder.path());
        tree = agent.addressBar()->treeView();
        docks->panelWidget(DockContainer::LeftDockArea)->addView(tree, QIcon(), u"Files"_s);
        window.resize(1000, 700);
    }

    bool open()
    {
        QDir(folder.path()).mkdir(u"elsewhere"_s);
        return writeFile(file()) && writeFile(otherFile()) && Gui::open(&window)
            && QTest::qWaitForWindowActive(&window, patience);
    }

    QString file() const { return folder.filePath(u"file.xyz"_s); }
    QString otherFile() const { return folder.filePath(u"elsewhere/file.xyz"_s); }

    QModelIndex entry(const QString &name) const
    {
        const QAbstractItemModel *model = tree->model();
        const QModelIndexList found =
            model->match(model->index(0, 0, tree->rootIndex()), Qt::DisplayRole, name, 1,
                         Qt::MatchExactly | Qt::MatchCaseSensitive);
        return found.value(0);
    }

    QStringList ofTheGallery()
    {
        Gui::click(gallery->findChild<QPushButton *>(u"popupButton"_s));
        auto *popup = gallery->findChild<RibbonGalleryPopup *>();
        QStringList texts{popup->findChild<RibbonGalleryGroup *>()->title()};
        Gui::click(popup->findChild<QLineEdit *>());
        QTest::keyClick(window.windowHandle(), Qt::Key_Z);
        const QList<QLabel *> labels =
            popup->widget()->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QLabel *label : labels) {
            if (label->isVisible())
                texts << label->text();
        }
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        return texts;
    }

    QStringList ofTheDocks()
    {
        auto *title = window.findChild<DockTitle *>();
        auto *tabs = content->findChild<QTabBar *>(u"dockTabBar"_s);
        return contextMenu(title, title->rect().center())
            + contextMenu(tabs, tabs->tabRect(0).center());
    }

    QStringList ofTheTree()
    {
        return contextMenu(tree->viewport(), tree->visualRect(entry(u"file.xyz"_s)).center())
            + contextMenu(tree->viewport(), tree->viewport()->rect().bottomRight());
    }

    QStringList ofTheDialogs()
    {
        const QStringList ask = openedBy([this] {
            const QPoint position = tree->visualRect(entry(u"file.xyz"_s)).center();
            Gui::click(tree->viewport(), position);
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, position);
        });
        const QStringList conflict = openedBy([this] {
            auto *data = new QMimeData;
            data->setUrls({QUrl::fromLocalFile(otherFile())});
            QApplication::clipboard()->setMimeData(data);
            tree->clearSelection();
            tree->setFocus();
            QTest::keySequence(window.windowHandle(), QKeySequence::Paste);
        });
        auto *strip = agent.addressBar()->findChild<AddressStrip *>();
        const QStringList missing = openedBy([strip] {
            strip->edit(u"no such folder"_s);
            QTest::keyClick(strip->window()->windowHandle(), Qt::Key_Return);
        });
        return ask + conflict + missing;
    }

    const QTemporaryDir folder;
    QMainWindow window;
    NorvaneAgent agent;
    RibbonGallery *gallery;
    DockContentWidget *content;
    QTreeView *tree;
};

} // namespace

void tst_Translations::cleanup()
{
    qApp->setStyleSheet(QString());
    TestCase::cleanup();
}

void tst_Translations::speakTheLanguageThatWasLoaded_data()
{
    QTest::addColumn<QLocale>("language");
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<QStringList>("ribbonGallery");
    QTest::addColumn<QStringList>("docks");
    QTest::addColumn<QStringList>("addressTree");
    QTest::addColumn<QStringList>("dialogs");

    const QStringList gallery{u"collected"_s, u"No items match your search criteria."_s};
    const QStringList docks{u"minimize to bar"_s, u"Close Current"_s, u"Close All Right"_s,
                            u"Close All(Except Current)"_s, u"Close All"_s};
    const QStringList tree{u"Cut"_s,
                           u"Copy"_s,
                           u"Paste"_s,
                           u"Delete"_s,
                           u"Rename"_s,
                           u"Open with Default"_s,
                           u"Copy Path"_s,
                           u"Copy Absolute Path"_s,
                           u"Copy Relative Path"_s,
                           u"Open in Explorer"_s,
                           u"Paste"_s,
                           u"New"_s,
                           u"Folder"_s};
    const QStringList dialogs{
        u"Infomation"_s,
        u"Open the selected file with the external default program?"_s,
        u"information"_s,
        u"This folder already contains a file named file.xyz. Do you want to replace the existing "
        u"file or save the new file as a copy?"_s,
        u"Replace Current"_s,
        u"Save a Copy"_s,
        u"Skip"_s,
        u"Cancel"_s,
        u"Error"_s,
        u"The director entered does not exist, please checek the spelling and try again."_s};

    // The library loads nothing by itself, whatever the user's language is.
    QTest::addRow("none") << QLocale(u"de_AT"_s) << false << gallery << docks << tree << dialogs;

    QStringList mendedDocks = docks;
    mendedDocks[3] = u"Close All (Except Current)"_s;
    QStringList mendedDialogs = dialogs;
    mendedDialogs[0] = u"Information"_s;
    mendedDialogs[9] =
        u"The directory entered does not exist, please check the spelling and try again."_s;
    QTest::addRow("English") << QLocale(u"en_US"_s) << true << gallery << mendedDocks << tree
                             << mendedDialogs;

    QTest::addRow("German")
        << QLocale(u"de_AT"_s) << true
        << QStringList{u"Favoriten"_s, u"Keine Einträge entsprechen Ihrer Suche."_s}
        << QStringList{u"In die Leiste minimieren"_s, u"Aktuellen Tab schließen"_s,
                       u"Alle Tabs rechts schließen"_s, u"Alle schließen (außer dem aktuellen)"_s,
                       u"Alle Tabs schließen"_s}
        << QStringList{u"Ausschneiden"_s,
                       u"Kopieren"_s,
                       u"Einfügen"_s,
                       u"Löschen"_s,
                       u"Umbenennen"_s,
                       u"Mit Standardprogramm öffnen"_s,
                       u"Pfad kopieren"_s,
                       u"Absoluten Pfad kopieren"_s,
                       u"Relativen Pfad kopieren"_s,
                       u"Im Dateimanager öffnen"_s,
                       u"Einfügen"_s,
                       u"Neu"_s,
                       u"Ordner"_s}
        << QStringList{u"Hinweis"_s,
                       u"Die ausgewählte Datei mit dem externen Standardprogramm öffnen?"_s,
                       u"Hinweis"_s,
                       u"Dieser Ordner enthält bereits eine Datei namens „file.xyz“. Möchten Sie "
                       u"die vorhandene Datei ersetzen oder die neue Datei als Kopie speichern?"_s,
                       u"Vorhandene ersetzen"_s,
                       u"Als Kopie speichern"_s,
                       u"Überspringen"_s,
                       u"Abbrechen"_s,
                       u"Fehler"_s,
                       u"Der eingegebene Ordner existiert nicht. Bitte prüfen Sie die Schreibweise "
                       u"und versuchen Sie es erneut."_s};

    QTest::addRow("French")
        << QLocale(u"fr_CA"_s) << true
        << QStringList{u"Favoris"_s, u"Aucun élément ne correspond à votre recherche."_s}
        << QStringList{u"Réduire dans la barre"_s, u"Fermer l’onglet actuel"_s,
                       u"Fermer tous les onglets à droite"_s,
                       u"Fermer tous les onglets (sauf l’actuel)"_s, u"Fermer tous les onglets"_s}
        << QStringList{u"Couper"_s,
                       u"Copier"_s,
                       u"Coller"_s,
                       u"Supprimer"_s,
                       u"Renommer"_s,
                       u"Ouvrir avec le programme par défaut"_s,
                       u"Copier le chemin"_s,
                       u"Copier le chemin absolu"_s,
                       u"Copier le chemin relatif"_s,
                       u"Ouvrir dans le gestionnaire de fichiers"_s,
                       u"Coller"_s,
                       u"Nouveau"_s,
                       u"Dossier"_s}
        << QStringList{
               u"Information"_s,
               u"Ouvrir le fichier sélectionné avec le programme externe par défaut\u00a0?"_s,
               u"Information"_s,
               u"Ce dossier contient déjà un fichier nommé «\u00a0file.xyz\u00a0». "
               u"Voulez-vous remplacer le fichier existant ou enregistrer le nouveau "
               u"fichier en tant que copie\u00a0?"_s,
               u"Remplacer"_s,
               u"Enregistrer une copie"_s,
               u"Ignorer"_s,
               u"Annuler"_s,
               u"Erreur"_s,
               u"Le dossier saisi n’existe pas. Vérifiez l’orthographe et réessayez."_s};

    QTest::addRow("Spanish")
        << QLocale(u"es_MX"_s) << true
        << QStringList{u"Favoritos"_s, u"Ningún elemento coincide con su búsqueda."_s}
        << QStringList{u"Minimizar en la barra"_s, u"Cerrar la pestaña actual"_s,
                       u"Cerrar todas las pestañas a la derecha"_s,
                       u"Cerrar todas (excepto la actual)"_s, u"Cerrar todas las pestañas"_s}
        << QStringList{u"Cortar"_s,
                       u"Copiar"_s,
                       u"Pegar"_s,
                       u"Eliminar"_s,
                       u"Cambiar nombre"_s,
                       u"Abrir con el programa predeterminado"_s,
                       u"Copiar ruta"_s,
                       u"Copiar ruta absoluta"_s,
                       u"Copiar ruta relativa"_s,
                       u"Abrir en el gestor de archivos"_s,
                       u"Pegar"_s,
                       u"Nuevo"_s,
                       u"Carpeta"_s}
        << QStringList{u"Información"_s,
                       u"¿Abrir el archivo seleccionado con el programa externo predeterminado?"_s,
                       u"Información"_s,
                       u"Esta carpeta ya contiene un archivo llamado «file.xyz». ¿Desea reemplazar "
                       u"el archivo existente o guardar el nuevo como copia?"_s,
                       u"Reemplazar"_s,
                       u"Guardar una copia"_s,
                       u"Omitir"_s,
                       u"Cancelar"_s,
                       u"Error"_s,
                       u"La carpeta introducida no existe. Compruebe la ortografía e inténtelo de "
                       u"nuevo."_s};

    QTest::addRow("Japanese")
        << QLocale(u"ja_JP"_s) << true
        << QStringList{u"お気に入り"_s, u"検索条件に一致する項目はありません。"_s}
        << QStringList{u"バーに最小化"_s, u"現在のタブを閉じる"_s, u"右側のタブをすべて閉じる"_s,
                       u"すべて閉じる (現在のタブを除く)"_s, u"すべてのタブを閉じる"_s}
        << QStringList{u"切り取り"_s,         u"コピー"_s,
                       u"貼り付け"_s,         u"削除"_s,
                       u"名前の変更"_s,       u"既定のプログラムで開く"_s,
                       u"パスをコピー"_s,     u"絶対パスをコピー"_s,
                       u"相対パスをコピー"_s, u"ファイルマネージャーで開く"_s,
                       u"貼り付け"_s,         u"新規作成"_s,
                       u"フォルダー"_s}
        << QStringList{
               u"情報"_s,
               u"選択したファイルを既定の外部プログラムで開きますか?"_s,
               u"情報"_s,
               u"このフォルダーには「file.xyz」という名前のファイルが既に存在します。"
               u"既存のファイルを置き換えますか、それとも新しいファイルをコピーとして"
               u"保存しますか?"_s,
               u"置き換える"_s,
               u"コピーを保存"_s,
               u"スキップ"_s,
               u"キャンセル"_s,
               u"エラー"_s,
               u"入力されたフォルダーは存在しません。つづりを確認して、もう一度お試しください。"_s};

    QTest::addRow("Chinese")
        << QLocale(u"zh_CN"_s) << true << QStringList{u"收藏"_s, u"没有符合搜索条件的项目。"_s}
        << QStringList{u"最小化到停靠栏"_s, u"关闭当前标签页"_s, u"关闭右侧所有标签页"_s,
                       u"关闭所有标签页（当前除外）"_s, u"关闭所有标签页"_s}
        << QStringList{u"剪切"_s,         u"复制"_s,
                       u"粘贴"_s,         u"删除"_s,
                       u"重命名"_s,       u"用默认程序打开"_s,
                       u"复制路径"_s,     u"复制绝对路径"_s,
                       u"复制相对路径"_s, u"在文件管理器中打开"_s,
                       u"粘贴"_s,         u"新建"_s,
                       u"文件夹"_s}
        << QStringList{
               u"提示"_s,
               u"要用外部默认程序打开所选文件吗？"_s,
               u"提示"_s,
               u"此文件夹中已有名为“file.xyz”的文件。要替换现有文件，还是将新文件另存为副本？"_s,
               u"替换现有文件"_s,
               u"保存副本"_s,
               u"跳过"_s,
               u"取消"_s,
               u"错误"_s,
               u"输入的文件夹不存在，请检查拼写后重试。"_s};
}

void tst_Translations::speakTheLanguageThatWasLoaded()
{
    QFETCH(QLocale, language);
    QFETCH(bool, loaded);
    const QLocale before;
    QLocale::setDefault(language);
    QTranslator translator;
    if (loaded) {
        QVERIFY(
            translator.load(QLocale(), u"norvane"_s, u"_"_s, QStringLiteral(NORVANE_TRANSLATIONS)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
    }
    Frame frame;
    QLocale::setDefault(before);
    QVERIFY(frame.open());
    QTRY_VERIFY(frame.tree->visualRect(frame.entry(u"file.xyz"_s)).isValid());
    QTEST(frame.ofTheGallery(), "ribbonGallery");
    QTEST(frame.ofTheDocks(), "docks");
    QTEST(frame.ofTheTree(), "addressTree");
    QTEST(frame.ofTheDialogs(), "dialogs");
}

NORVANE_TEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
