<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>MinimalHost</name>
    <message>
        <source>%1: %2, supply %3 %4 %, ribbon %5 %6 %</source>
        <translation>%1：%2，耗材 %3 %4 %，色带 %5 %6 %</translation>
    </message>
    <message>
        <source>no printers</source>
        <translation>没有打印机</translation>
    </message>
    <message>
        <source>active printer: %1</source>
        <translation>活动打印机：%1</translation>
    </message>
    <message>
        <source>expected a number of seconds</source>
        <translation>需要秒数</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
</context>
</TS>
