<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>KitHost</name>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>%1, not in the catalogue</source>
        <translation>%1，不在目录中</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n label(s)</source>
        <translation>
            <numerusform>%1，%n 张标签</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 m</source>
        <translation>%1，%2 m</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>耗材</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>色带 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>色带 2</translation>
    </message>
    <message>
        <source>removed from Windows</source>
        <translation>已从 Windows 中删除</translation>
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
