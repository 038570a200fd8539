<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>タブを閉じる</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressBar</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Paste and Go</source>
        <translation>貼り付けて移動</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressEntry</name>
    <message>
        <source>Root</source>
        <translation>ルート</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressStrip</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The director entered does not exist, please checek the spelling and try again.</source>
        <translation>入力されたフォルダーは存在しません。つづりを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>フォルダーの選択</translation>
    </message>
</context>
<context>
    <name>Norvane::AddressTree</name>
    <message>
        <source>New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Source file does not exist</source>
        <translation>コピー元のファイルは存在しません</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. The Target folder is a subfolder of the source folder.</source>
        <translation>「%1」を「%2」にコピーまたは移動できません。対象のフォルダーは元のフォルダーのサブフォルダーです。</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. A file with the same name already exist.</source>
        <translation>「%1」を「%2」にコピーまたは移動できません。同じ名前のファイルが既に存在します。</translation>
    </message>
    <message>
        <source>Cannot copy or move the file from %1 to %2. File permission denied.</source>
        <translation>「%1」を「%2」にコピーまたは移動できません。ファイルへのアクセスが許可されていません。</translation>
    </message>
    <message>
        <source>Copy Error</source>
        <translation>コピーのエラー</translation>
    </message>
    <message>
        <source>information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>This folder already contains a file named %1. Do you want to replace the existing file or save the new file as a copy?</source>
        <translation>このフォルダーには「%1」という名前のファイルが既に存在します。既存のファイルを置き換えますか、それとも新しいファイルをコピーとして保存しますか?</translation>
    </message>
    <message>
        <source>Replace Current</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>コピーを保存</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Open in Explorer</source>
        <translation>ファイルマネージャーで開く</translation>
    </message>
    <message>
        <source>Open with Default</source>
        <translation>既定のプログラムで開く</translation>
    </message>
    <message>
        <source>Copy Absolute Path</source>
        <translation>絶対パスをコピー</translation>
    </message>
    <message>
        <source>Copy Relative Path</source>
        <translation>相対パスをコピー</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規作成</translation>
    </message>
    <message>
        <source>Infomation</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Open the selected file with the external default program?</source>
        <translation>選択したファイルを既定の外部プログラムで開きますか?</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>パスをコピー</translation>
    </message>
</context>
<context>
    <name>Norvane::DockContentWidget</name>
    <message>
        <source>Close Current</source>
        <translation>現在のタブを閉じる</translation>
    </message>
    <message>
        <source>Close All Left</source>
        <translation>左側のタブをすべて閉じる</translation>
    </message>
    <message>
        <source>Close All Right</source>
        <translation>右側のタブをすべて閉じる</translation>
    </message>
    <message>
        <source>Close All(Except Current)</source>
        <translation>すべて閉じる (現在のタブを除く)</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>すべてのタブを閉じる</translation>
    </message>
</context>
<context>
    <name>Norvane::DockTitle</name>
    <message>
        <source>minimize to bar</source>
        <translation>バーに最小化</translation>
    </message>
    <message>
        <source>Collapse %1</source>
        <translation>%1 を折りたたむ</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>%1 のメニュー</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGallery</name>
    <message>
        <source>All Items</source>
        <translation>すべての項目</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryGroup</name>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryItem</name>
    <message>
        <source>Collect</source>
        <translation>お気に入り</translation>
    </message>
</context>
<context>
    <name>Norvane::RibbonGalleryPopup</name>
    <message>
        <source>collected</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>No items match your search criteria.</source>
        <translation>検索条件に一致する項目はありません。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
</TS>
