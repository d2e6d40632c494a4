<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>VxKit::LevelBar</name>
    <message>
        <source>nothing loaded</source>
        <translation>未装入</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>about %1 %</source>
        <translation>约 %1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 label</source>
        <translation>%1 张标签</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 张标签</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between two amounts</comment>
        <translation>，</translation>
    </message>
    <message>
        <source>not in the catalogue</source>
        <translation>不在目录中</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>不在目录中 (%1)</translation>
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
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>VxKit::LevelPlot</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a percentage and a length</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Will probably be used up %1, between %2 and %3</source>
        <translation>预计用完：%1（%2 至 %3）</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>另有 %1 项</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterDetails</name>
    <message>
        <source>Day</source>
        <translation>一天</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>一周</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>一卷</translation>
    </message>
    <message>
        <source>Offline since printers were looked for. Switch it on, then look for printers again.</source>
        <translation>自查找打印机以来一直脱机。请打开打印机电源，然后再次查找打印机。</translation>
    </message>
    <message>
        <source>A network printer, which cannot be watched.</source>
        <translation>这是网络打印机，无法监视。</translation>
    </message>
    <message>
        <source>You may not administer this printer, so it cannot be watched.</source>
        <translation>您无权管理此打印机，因此无法监视。</translation>
    </message>
    <message>
        <source>New. Look for printers to watch it.</source>
        <translation>新打印机。请查找打印机以监视它。</translation>
    </message>
    <message>
        <source>Removed and added again. Restart the program to watch it.</source>
        <translation>已删除后重新添加。请重新启动程序以监视它。</translation>
    </message>
    <message>
        <source>Removed on %1</source>
        <translation>已于 %1 删除</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Status code</source>
        <translation>状态代码</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Boot loader</source>
        <translation>引导加载程序</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>更新进度</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>更新错误</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>%1, identifier</source>
        <translation>%1，标识符</translation>
    </message>
    <message>
        <source>%1, mileage in percent</source>
        <translation>%1，余量（百分比）</translation>
    </message>
    <message>
        <source>%1, mileage in millimetres</source>
        <translation>%1，余量（毫米）</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>上次报告</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>The last 24 hours</source>
        <translation>最近 24 小时</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>最近七天</translation>
    </message>
    <message>
        <source>Since this roll or ribbon was loaded</source>
        <translation>自装入此卷或此色带以来</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>最近事件</translation>
    </message>
    <message>
        <source>What the driver reports</source>
        <translation>驱动程序报告的值</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>固件更新</translation>
    </message>
    <message>
        <source>Choose a printer to see everything about it.</source>
        <translation>请选择一台打印机以查看其全部信息。</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>没有名为“%1”的打印机。</translation>
    </message>
    <message>
        <source>Firmware update: %p %</source>
        <translation>固件更新：%p %</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>固件更新失败，错误 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a name and its value</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a severity and what happened</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>尚未发生任何事件。</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>无法读取历史记录：%1</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>活动打印机</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>联机</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>脱机</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a reason and an explanation</comment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterListView</name>
    <message>
        <source>Print a &amp;test label…</source>
        <translation>打印测试标签(&amp;T)…</translation>
    </message>
    <message>
        <source>Open the print &amp;queue</source>
        <translation>打开打印队列(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>诊断(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>保存案例以供技术支持(&amp;S)…</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Filter the printers</source>
        <translation>筛选打印机</translation>
    </message>
    <message>
        <source>Words of a name, model, driver, port, serial number, status or supply</source>
        <translation>名称、型号、驱动程序、端口、序列号、状态或耗材中的词</translation>
    </message>
    <message>
        <source>Worst first</source>
        <translation>最严重的在前</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>按名称</translation>
    </message>
    <message>
        <source>Order of the printers</source>
        <translation>打印机的顺序</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>No printer fits the filter. Press Escape to show all.</source>
        <translation>没有符合筛选条件的打印机。按 Esc 键显示全部。</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>复制详细信息(&amp;C)</translation>
    </message>
</context>
<context>
    <name>VxKit::ReadingTexts</name>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>已删除（%1）</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Network printer, not watched</source>
        <translation>网络打印机，未监控</translation>
    </message>
    <message>
        <source>Not watched: you may not manage it</source>
        <translation>未监控：您无权管理</translation>
    </message>
    <message>
        <source>Not watched yet</source>
        <translation>尚未监控</translation>
    </message>
    <message>
        <source>Replaced: watched again after a restart</source>
        <translation>已替换：重新启动后恢复监控</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>脱机</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>尚无报告</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <extracomment>%1 is such as &quot;5 min ago&quot;</extracomment>
        <translation>上次报告：%1</translation>
    </message>
    <message>
        <source>active printer</source>
        <translation>当前打印机</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 is a status, %2 is such as &quot;error&quot;</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 is a sentence without its full stop</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>This is the active printer.</source>
        <translation>这是当前打印机。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>%1 (%2, code %3)</source>
        <translation>%1（%2，代码 %3）</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>处理方法</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>上次报告</translation>
    </message>
    <message>
        <source>Agent offline since %1</source>
        <extracomment>the agent on the printer&apos;s computer</extracomment>
        <translation>代理程序自 %1 起脱机</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>代理程序脱机</translation>
    </message>
    <message>
        <source>As it was at %1</source>
        <extracomment>the values are old</extracomment>
        <translation>%1 时的状态</translation>
    </message>
</context>
<context>
    <name>VxKit::SlotSection</name>
    <message>
        <source>%1 days</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a percentage and amounts</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Will probably be used up in %1 (%2 to %3)</source>
        <translation>预计 %1 后用完（%2 至 %3）</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusIcon</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>活动打印机</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>旧值</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>固件更新</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>耗材</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>色带</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
    <message>
        <source>Print spooler stopped</source>
        <translation>打印后台处理程序已停止</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notices muted</source>
        <translation>通知已静音</translation>
    </message>
</context>
</TS>
