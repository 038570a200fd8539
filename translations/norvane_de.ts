<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Tab schließen</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressBar</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste and Go</source>
        <translation>Einfügen und öffnen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressEntry</name>
    <message>
        <source>Root</source>
        <translation>Stammverzeichnis</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressStrip</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The director entered does not exist, please checek the spelling and try again.</source>
        <translation>Der eingegebene Ordner existiert nicht. Bitte prüfen Sie die Schreibweise und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressTree</name>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Source file does not exist</source>
        <translation>Die Quelldatei existiert nicht</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. The Target folder is a subfolder of the source folder.</source>
        <translation>„%1“ kann nicht nach „%2“ kopiert oder verschoben werden. Der Zielordner ist ein Unterordner des Quellordners.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. A file with the same name already exist.</source>
        <translation>„%1“ kann nicht nach „%2“ kopiert oder verschoben werden. Eine Datei mit demselben Namen existiert bereits.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. File permission denied.</source>
        <translation>„%1“ kann nicht nach „%2“ kopiert oder verschoben werden. Die Dateiberechtigungen erlauben es nicht.</translation>
    </message>
    <message>
        <source>Copy Error</source>
        <translation>Fehler beim Kopieren</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>This folder already contains a file named %1. Do you want to replace the existing file or save the new file as a copy?</source>
        <translation>Dieser Ordner enthält bereits eine Datei namens „%1“. Möchten Sie die vorhandene Datei ersetzen oder die neue Datei als Kopie speichern?</translation>
    </message>
    <message>
        <source>Replace Current</source>
        <translation>Vorhandene ersetzen</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Als Kopie speichern</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Open in Explorer</source>
        <translation>Im Dateimanager öffnen</translation>
    </message>
    <message>
        <source>Open with Default</source>
        <translation>Mit Standardprogramm öffnen</translation>
    </message>
    <message>
        <source>Copy Absolute Path</source>
        <translation>Absoluten Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy Relative Path</source>
        <translation>Relativen Pfad kopieren</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Infomation</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Open the selected file with the external default program?</source>
        <translation>Die ausgewählte Datei mit dem externen Standardprogramm öffnen?</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Pfad kopieren</translation>
    </message>
</context>
<context>
    <name>Norvane::DockContentWidget</name>
    <message>
        <source>Close Current</source>
        <translation>Aktuellen Tab schließen</translation>
    </message>
    <message>
        <source>Close All Left</source>
        <translation>Alle Tabs links schließen</translation>
    </message>
    <message>
        <source>Close All Right</source>
        <translation>Alle Tabs rechts schließen</translation>
    </message>
    <message>
        <source>Close All(Except Current)</source>
        <translation>Alle schließen (außer dem aktuellen)</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>Alle Tabs schließen</translation>
    </message>
</context>
<context>
    <name>Norvane::DockTitle</name>
    <message>
        <source>minimize to bar</source>
        <translation>In die Leiste minimieren</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>%1 einklappen</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>Menü von %1</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGallery</name>
    <message>
        <source>All Items</source>
        <translation>Alle Elemente</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryGroup</name>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryItem</name>
    <message>
        <source>Collect</source>
        <translation>Zu Favoriten hinzufügen</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryPopup</name>
    <message>
        <source>collected</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>No items match your search criteria.</source>
        <translation>Keine Einträge entsprechen Ihrer Suche.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
