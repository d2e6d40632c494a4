<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>KitHost</name>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1, not in the catalogue</source>
        <translation>%1、カタログにありません</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n label(s)</source>
        <translation>
            <numerusform>%1、ラベル %n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 m</source>
        <translation>%1、%2 m</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>サプライ</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>リボン 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>リボン 2</translation>
    </message>
    <message>
        <source>removed from Windows</source>
        <translation>Windows から削除されました</translation>
    </message>
    <message>
        <source>expected a number of seconds</source>
        <translation>秒数を指定してください</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>標準出力に書き込めませんでした: %1</translation>
    </message>
</context>
</TS>
