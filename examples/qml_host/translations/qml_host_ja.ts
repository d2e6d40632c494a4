<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>1 label</source>
        <translation>ラベル 1 枚</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>ラベル %1 枚</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>amount not known</source>
        <translation>残量不明</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1: なし</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2、%3</translation>
    </message>
    <message>
        <source>%1: not in the catalogue</source>
        <translation>%1: カタログにありません</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1: 不明</translation>
    </message>
    <message>
        <source>No label printers were found.</source>
        <translation>ラベルプリンターが見つかりませんでした。</translation>
    </message>
    <message>
        <source>%1 (active)</source>
        <translation>%1 (使用中)</translation>
    </message>
    <message>
        <source>Removed from Windows</source>
        <translation>Windows から削除されました</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>サプライ</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>リボン 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>リボン 2</translation>
    </message>
    <message>
        <source>Label printers</source>
        <translation>ラベルプリンター</translation>
    </message>
</context>
</TS>
