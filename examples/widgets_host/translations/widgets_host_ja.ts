<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>PrinterWindow</name>
    <message>
        <source>Label printers</source>
        <translation>ラベルプリンター</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
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
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>A printer needs your attention.</source>
        <translation>対応が必要なプリンターがあります。</translation>
    </message>
    <message>
        <source>Look for new printers</source>
        <translation>新しいプリンターを探す</translation>
    </message>
</context>
</TS>
