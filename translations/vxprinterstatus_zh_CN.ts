<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>无法获取打印机信息。（代码 255）</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>打印机为远程连接。
无法获取打印机信息。</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>打印机未受管理。
无法获取打印机信息。</translation>
    </message>
</context>
</TS>
