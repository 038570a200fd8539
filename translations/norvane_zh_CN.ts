<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>关闭标签页</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressBar</name>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>向上</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Paste and Go</source>
        <translation>粘贴并转到</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressEntry</name>
    <message>
        <source>Root</source>
        <translation>根目录</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressStrip</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The director entered does not exist, please checek the spelling and try again.</source>
        <translation>输入的文件夹不存在，请检查拼写后重试。</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>选择文件夹</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressTree</name>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Source file does not exist</source>
        <translation>源文件不存在</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. The Target folder is a subfolder of the source folder.</source>
        <translation>无法将文件从“%1”复制或移动到“%2”。目标文件夹是源文件夹的子文件夹。</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. A file with the same name already exist.</source>
        <translation>无法将文件从“%1”复制或移动到“%2”。已存在同名文件。</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. File permission denied.</source>
        <translation>无法将文件从“%1”复制或移动到“%2”。没有文件权限。</translation>
    </message>
    <message>
        <source>Copy Error</source>
        <translation>复制错误</translation>
    </message>
    <message>
        <source>information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>This folder already contains a file named %1. Do you want to replace the existing file or save the new file as a copy?</source>
        <translation>此文件夹中已有名为“%1”的文件。要替换现有文件，还是将新文件另存为副本？</translation>
    </message>
    <message>
        <source>Replace Current</source>
        <translation>替换现有文件</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>保存副本</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Open in Explorer</source>
        <translation>在文件管理器中打开</translation>
    </message>
    <message>
        <source>Open with Default</source>
        <translation>用默认程序打开</translation>
    </message>
    <message>
        <source>Copy Absolute Path</source>
        <translation>复制绝对路径</translation>
    </message>
    <message>
        <source>Copy Relative Path</source>
        <translation>复制相对路径</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Infomation</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Open the selected file with the external default program?</source>
        <translation>要用外部默认程序打开所选文件吗？</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>复制路径</translation>
    </message>
</context>
<context>
    <name>Norvane::DockContentWidget</name>
    <message>
        <source>Close Current</source>
        <translation>关闭当前标签页</translation>
    </message>
    <message>
        <source>Close All Left</source>
        <translation>关闭左侧所有标签页</translation>
    </message>
    <message>
        <source>Close All Right</source>
        <translation>关闭右侧所有标签页</translation>
    </message>
    <message>
        <source>Close All(Except Current)</source>
        <translation>关闭所有标签页（当前除外）</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>关闭所有标签页</translation>
    </message>
</context>
<context>
    <name>Norvane::DockTitle</name>
    <message>
        <source>minimize to bar</source>
        <translation>最小化到停靠栏</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>折叠“%1”</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>“%1”的菜单</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGallery</name>
    <message>
        <source>All Items</source>
        <translation>所有项目</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryGroup</name>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryItem</name>
    <message>
        <source>Collect</source>
        <translation>收藏</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryPopup</name>
    <message>
        <source>collected</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>No items match your search criteria.</source>
        <translation>没有符合搜索条件的项目。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
