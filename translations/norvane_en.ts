<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Close Tab</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressBar</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Browse</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Paste and Go</source>
        <translation>Paste and Go</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressEntry</name>
    <message>
        <source>Root</source>
        <translation>Root</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressStrip</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The director entered does not exist, please checek the spelling and try again.</source>
        <translation>The directory entered does not exist, please check the spelling and try again.</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Select Folder</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressTree</name>
    <message>
        <source>New Folder</source>
        <translation>New Folder</translation>
    </message>
    <message>
        <source>Source file does not exist</source>
        <translation>Source file does not exist</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. The Target folder is a subfolder of the source folder.</source>
        <translation>Cannot copy or move the file from %1 to %2. The target folder is a subfolder of the source folder.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. A file with the same name already exist.</source>
        <translation>Cannot copy or move the file from %1 to %2. A file with the same name already exists.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. File permission denied.</source>
        <translation>Cannot copy or move the file from %1 to %2. File permission denied.</translation>
    </message>
    <message>
        <source>Copy Error</source>
        <translation>Copy Error</translation>
    </message>
    <message>
        <source>information</source>
        <translation>information</translation>
    </message>
    <message>
        <source>This folder already contains a file named %1. Do you want to replace the existing file or save the new file as a copy?</source>
        <translation>This folder already contains a file named %1. Do you want to replace the existing file or save the new file as a copy?</translation>
    </message>
    <message>
        <source>Replace Current</source>
        <translation>Replace Current</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Save a Copy</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Open in Explorer</source>
        <translation>Open in Explorer</translation>
    </message>
    <message>
        <source>Open with Default</source>
        <translation>Open with Default</translation>
    </message>
    <message>
        <source>Copy Absolute Path</source>
        <translation>Copy Absolute Path</translation>
    </message>
    <message>
        <source>Copy Relative Path</source>
        <translation>Copy Relative Path</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Infomation</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Open the selected file with the external default program?</source>
        <translation>Open the selected file with the external default program?</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copy Path</translation>
    </message>
</context>
<context>
    <name>Norvane::DockContentWidget</name>
    <message>
        <source>Close Current</source>
        <translation>Close Current</translation>
    </message>
    <message>
        <source>Close All Left</source>
        <translation>Close All Left</translation>
    </message>
    <message>
        <source>Close All Right</source>
        <translation>Close All Right</translation>
    </message>
    <message>
        <source>Close All(Except Current)</source>
        <translation>Close All (Except Current)</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>Close All</translation>
    </message>
</context>
<context>
    <name>Norvane::DockTitle</name>
    <message>
        <source>minimize to bar</source>
        <translation>minimize to bar</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>Collapse %1</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>Menu of %1</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGallery</name>
    <message>
        <source>All Items</source>
        <translation>All Items</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryGroup</name>
    <message>
        <source>Move Up</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Move Down</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryItem</name>
    <message>
        <source>Collect</source>
        <translation>Collect</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryPopup</name>
    <message>
        <source>collected</source>
        <translation>collected</translation>
    </message>
    <message>
        <source>No items match your search criteria.</source>
        <translation>No items match your search criteria.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
</TS>
