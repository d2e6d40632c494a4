<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PrinterWindow</name>
    <message>
        <source>Label printers</source>
        <translation>标签打印机</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>耗材</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>色带 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>色带 2</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>A printer needs your attention.</source>
        <translation>有打印机需要您处理。</translation>
    </message>
    <message>
        <source>Look for new printers</source>
        <translation>查找新打印机</translation>
    </message>
</context>
</TS>
