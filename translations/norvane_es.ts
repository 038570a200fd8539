<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Cerrar la pestaña</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressBar</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Paste and Go</source>
        <translation>Pegar e ir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressEntry</name>
    <message>
        <source>Root</source>
        <translation>Raíz</translation>
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
        <translation>La carpeta introducida no existe. Compruebe la ortografía e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressTree</name>
    <message>
        <source>New Folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Source file does not exist</source>
        <translation>El archivo de origen no existe</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. The Target folder is a subfolder of the source folder.</source>
        <translation>No se puede copiar ni mover «%1» a «%2». La carpeta de destino es una subcarpeta de la carpeta de origen.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. A file with the same name already exist.</source>
        <translation>No se puede copiar ni mover «%1» a «%2». Ya existe un archivo con el mismo nombre.</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. File permission denied.</source>
        <translation>No se puede copiar ni mover «%1» a «%2». No tiene permiso sobre el archivo.</translation>
    </message>
    <message>
        <source>Copy Error</source>
        <translation>Error al copiar</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>This folder already contains a file named %1. Do you want to replace the existing file or save the new file as a copy?</source>
        <translation>Esta carpeta ya contiene un archivo llamado «%1». ¿Desea reemplazar el archivo existente o guardar el nuevo como copia?</translation>
    </message>
    <message>
        <source>Replace Current</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Guardar una copia</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Open in Explorer</source>
        <translation>Abrir en el gestor de archivos</translation>
    </message>
    <message>
        <source>Open with Default</source>
        <translation>Abrir con el programa predeterminado</translation>
    </message>
    <message>
        <source>Copy Absolute Path</source>
        <translation>Copiar ruta absoluta</translation>
    </message>
    <message>
        <source>Copy Relative Path</source>
        <translation>Copiar ruta relativa</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Infomation</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Open the selected file with the external default program?</source>
        <translation>¿Abrir el archivo seleccionado con el programa externo predeterminado?</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copiar ruta</translation>
    </message>
</context>
<context>
    <name>Norvane::DockContentWidget</name>
    <message>
        <source>Close Current</source>
        <translation>Cerrar la pestaña actual</translation>
    </message>
    <message>
        <source>Close All Left</source>
        <translation>Cerrar todas las pestañas a la izquierda</translation>
    </message>
    <message>
        <source>Close All Right</source>
        <translation>Cerrar todas las pestañas a la derecha</translation>
    </message>
    <message>
        <source>Close All(Except Current)</source>
        <translation>Cerrar todas (excepto la actual)</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>Cerrar todas las pestañas</translation>
    </message>
</context>
<context>
    <name>Norvane::DockTitle</name>
    <message>
        <source>minimize to bar</source>
        <translation>Minimizar en la barra</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>Contraer %1</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>Menú de %1</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGallery</name>
    <message>
        <source>All Items</source>
        <translation>Todos los elementos</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryGroup</name>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryItem</name>
    <message>
        <source>Collect</source>
        <translation>Agregar a favoritos</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryPopup</name>
    <message>
        <source>collected</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>No items match your search criteria.</source>
        <translation>Ningún elemento coincide con su búsqueda.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
