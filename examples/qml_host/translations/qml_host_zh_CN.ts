<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Main</name>
    <message>
        <source>1 label</source>
        <translation>1 张标签</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 张标签</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>amount not known</source>
        <translation>余量未知</translation>
    </message>
    <message>
        <source>%1: empty</source>
        <translation>%1：空</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2，%3</translation>
    </message>
    <message>
        <source>%1: not in the catalogue</source>
        <translation>%1：不在目录中</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1：未知</translation>
    </message>
    <message>
        <source>No label printers were found.</source>
        <translation>未找到标签打印机。</translation>
    </message>
    <message>
        <source>%1 (active)</source>
        <translation>%1（活动）</translation>
    </message>
    <message>
        <source>Removed from Windows</source>
        <translation>已从 Windows 中删除</translation>
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
        <source>Label printers</source>
        <translation>标签打印机</translation>
    </message>
</context>
</TS>
