<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>MinimalHost</name>
    <message>
        <source>%1: %2, supply %3 %4 %, ribbon %5 %6 %</source>
        <translation>%1: %2、サプライ %3 %4 %、リボン %5 %6 %</translation>
    </message>
    <message>
        <source>no printers</source>
        <translation>プリンターはありません</translation>
    </message>
    <message>
        <source>active printer: %1</source>
        <translation>使用中のプリンター: %1</translation>
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
