<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Fermer l’onglet</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressBar</name>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste and Go</source>
        <translation>Coller et ouvrir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressEntry</name>
    <message>
        <source>Root</source>
        <translation>Racine</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressStrip</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>The director entered does not exist, please checek the spelling and try again.</source>
        <translation>Le dossier saisi n’existe pas. Vérifiez l’orthographe et réessayez.</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressTree</name>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Source file does not exist</source>
        <translation>Le fichier source n’existe pas</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. The Target folder is a subfolder of the source folder.</source>
        <translation>Impossible de copier ou de déplacer «&#xa0;%1&#xa0;» vers «&#xa0;%2&#xa0;». Le dossier cible est un sous-dossier du dossier source.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. A file with the same name already exist.</source>
        <translation>Impossible de copier ou de déplacer «&#xa0;%1&#xa0;» vers «&#xa0;%2&#xa0;». Un fichier du même nom existe déjà.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. File permission denied.</source>
        <translation>Impossible de copier ou de déplacer «&#xa0;%1&#xa0;» vers «&#xa0;%2&#xa0;». Les droits d’accès au fichier sont insuffisants.</translation>
    </message>
    <message>
        <source>Copy Error</source>
        <translation>Erreur de copie</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>This folder already contains a file named %1. Do you want to replace the existing file or save the new file as a copy?</source>
        <translation>Ce dossier contient déjà un fichier nommé «&#xa0;%1&#xa0;». Voulez-vous remplacer le fichier existant ou enregistrer le nouveau fichier en tant que copie&#xa0;?</translation>
    </message>
    <message>
        <source>Replace Current</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Open in Explorer</source>
        <translation>Ouvrir dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Open with Default</source>
        <translation>Ouvrir avec le programme par défaut</translation>
    </message>
    <message>
        <source>Copy Absolute Path</source>
        <translation>Copier le chemin absolu</translation>
    </message>
    <message>
        <source>Copy Relative Path</source>
        <translation>Copier le chemin relatif</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Infomation</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Open the selected file with the external default program?</source>
        <translation>Ouvrir le fichier sélectionné avec le programme externe par défaut&#xa0;?</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copier le chemin</translation>
    </message>
</context>
<context>
    <name>Norvane::DockContentWidget</name>
    <message>
        <source>Close Current</source>
        <translation>Fermer l’onglet actuel</translation>
    </message>
    <message>
        <source>Close All Left</source>
        <translation>Fermer tous les onglets à gauche</translation>
    </message>
    <message>
        <source>Close All Right</source>
        <translation>Fermer tous les onglets à droite</translation>
    </message>
    <message>
        <source>Close All(Except Current)</source>
        <translation>Fermer tous les onglets (sauf l’actuel)</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>Fermer tous les onglets</translation>
    </message>
</context>
<context>
    <name>Norvane::DockTitle</name>
    <message>
        <source>minimize to bar</source>
        <translation>Réduire dans la barre</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>Réduire %1</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>Menu de %1</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGallery</name>
    <message>
        <source>All Items</source>
        <translation>Tous les éléments</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryGroup</name>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryItem</name>
    <message>
        <source>Collect</source>
        <translation>Ajouter aux favoris</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryPopup</name>
    <message>
        <source>collected</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>No items match your search criteria.</source>
        <translation>Aucun élément ne correspond à votre recherche.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
