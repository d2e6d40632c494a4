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
<context>
    <name>VXError</name>
    <message>
        <source>The printer is disconnected</source>
        <translation>打印机未连接</translation>
    </message>
    <message>
        <source>The printer is ready</source>
        <translation>打印机已就绪</translation>
    </message>
    <message>
        <source>The printer is out of labels</source>
        <translation>标签已用完</translation>
    </message>
    <message>
        <source>The ribbon has run out</source>
        <translation>色带已用完</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>机盖已打开</translation>
    </message>
    <message>
        <source>The labels are jammed</source>
        <translation>标签卡住</translation>
    </message>
    <message>
        <source>The cutter is jammed</source>
        <translation>切刀卡住</translation>
    </message>
    <message>
        <source>The cutter cover is open</source>
        <translation>切刀盖已打开</translation>
    </message>
    <message>
        <source>The print head is too hot</source>
        <translation>打印头温度过高</translation>
    </message>
    <message>
        <source>The print head is not connected</source>
        <translation>打印头未连接</translation>
    </message>
    <message>
        <source>The motor is too hot</source>
        <translation>电机温度过高</translation>
    </message>
    <message>
        <source>No labels are loaded</source>
        <translation>未装入标签</translation>
    </message>
    <message>
        <source>No ribbon is loaded</source>
        <translation>未装入色带</translation>
    </message>
    <message>
        <source>The labels are not recognized</source>
        <translation>无法识别标签</translation>
    </message>
    <message>
        <source>The ribbon is not recognized</source>
        <translation>无法识别色带</translation>
    </message>
    <message>
        <source>The ribbon does not suit the labels</source>
        <translation>色带与标签不匹配</translation>
    </message>
    <message>
        <source>The start of the label was not found</source>
        <translation>未找到标签起始位置</translation>
    </message>
    <message>
        <source>The ribbon is torn or slack</source>
        <translation>色带断裂或松弛</translation>
    </message>
    <message>
        <source>The label sensor must be calibrated</source>
        <translation>需要校准标签传感器</translation>
    </message>
    <message>
        <source>The printer is paused</source>
        <translation>打印机已暂停</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>打印机内存已满</translation>
    </message>
    <message>
        <source>The firmware is being updated</source>
        <translation>正在更新固件</translation>
    </message>
    <message>
        <source>The firmware update has failed</source>
        <translation>固件更新失败</translation>
    </message>
    <message>
        <source>The battery is low</source>
        <translation>电池电量低</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>打印后台处理程序未运行</translation>
    </message>
    <message>
        <source>The printer&apos;s status is not known</source>
        <translation>打印机状态未知</translation>
    </message>
    <message>
        <source>The printer is reached over a network</source>
        <translation>打印机通过网络连接</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>打印机已脱机</translation>
    </message>
    <message>
        <source>The printer is not managed</source>
        <translation>打印机未受管理</translation>
    </message>
    <message>
        <source>Printer error %1</source>
        <translation>打印机错误 %1</translation>
    </message>
</context>
</TS>
