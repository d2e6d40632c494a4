<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DoctorDialog</name>
    <message>
        <source>Doctor</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>Doctor: %1</source>
        <translation>诊断：%1</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>没有问题。</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>发现的问题：%1</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此计算机</translation>
    </message>
</context>
<context>
    <name>EventModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>事件</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Label printers</source>
        <translation>标签打印机</translation>
    </message>
    <message>
        <source>&amp;Printers</source>
        <translation>打印机(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Look for printers</source>
        <translation>查找打印机(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>保存案例以供技术支持(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>诊断(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>事件(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>颜色(&amp;C)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>通知(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;None for an hour</source>
        <translation>一小时内不通知(&amp;N)</translation>
    </message>
    <message>
        <source>None of the chosen &amp;printer</source>
        <translation>不通知所选打印机(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;All printers and kinds again</source>
        <translation>恢复所有打印机和类型的通知(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Warn of few labels…</source>
        <translation>标签不足时警告(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;Stay in the tray when the window is closed</source>
        <translation>关闭窗口后留在通知区域(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>关于(&amp;A)…</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Events, the newest first</source>
        <translation>事件（最新的在前）</translation>
    </message>
    <message>
        <source>Details of the chosen printer</source>
        <translation>所选打印机的详细信息</translation>
    </message>
    <message>
        <source>How many printers there are of each state</source>
        <translation>各状态的打印机数量</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>无法保存 %1：%2</translation>
    </message>
    <message>
        <source>Printers: %1 with an error, %2 with a warning, %3 others</source>
        <translation>打印机：错误 %1，警告 %2，其他 %3</translation>
    </message>
    <message>
        <source>The queue of %1 could not be opened.</source>
        <translation>无法打开 %1 的队列。</translation>
    </message>
    <message>
        <source>Print a test label</source>
        <translation>打印测试标签</translation>
    </message>
    <message>
        <source>The command is sent to %1 as it is:</source>
        <translation>以下命令将原样发送到 %1：</translation>
    </message>
    <message>
        <source>The command is in the queue of %1.</source>
        <translation>命令已进入 %1 的队列。</translation>
    </message>
    <message>
        <source>Save a case for support</source>
        <translation>保存案例以供技术支持</translation>
    </message>
    <message>
        <source>Cases (*.vxcase)</source>
        <translation>案例 (*.vxcase)</translation>
    </message>
    <message>
        <source>Warn of few labels</source>
        <translation>标签不足时警告</translation>
    </message>
    <message>
        <source>Warn when fewer labels are left than (0: never):</source>
        <translation>剩余标签少于此数时警告（0：从不）：</translation>
    </message>
    <message>
        <source>Show the &amp;printer</source>
        <translation>显示打印机(&amp;P)</translation>
    </message>
    <message>
        <source>No notices of this p&amp;rinter</source>
        <translation>不通知此打印机(&amp;R)</translation>
    </message>
    <message>
        <source>No notices of this &amp;kind</source>
        <translation>不通知此类型(&amp;K)</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer.</source>
        <translation>显示此计算机的标签打印机。</translation>
    </message>
    <message>
        <source>Version %1, with Qt %2 (used: %3)</source>
        <translation>版本 %1，Qt %2（正在使用：%3）</translation>
    </message>
    <message>
        <source>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</source>
        <translation>版权归 VxPrinterStatus 作者所有，采用 MIT 许可证。Qt 依据 GNU 宽通用公共许可证第 3 版使用；SQLite 属于公有领域。完整文本随程序提供。</translation>
    </message>
    <message>
        <source>Label printers: %1</source>
        <translation>标签打印机：%1</translation>
    </message>
    <message>
        <source>Only for the printers of this computer. These are those of a site, as its agents publish them.</source>
        <translation>仅适用于此计算机的打印机。此处显示的是某个站点的打印机，由其代理程序发布。</translation>
    </message>
    <message>
        <source>Shows the label printers of a site, as its agents publish them.</source>
        <translation>显示某个站点的标签打印机，由其代理程序发布。</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>Looking for printers…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</source>
        <translation>正在向打印后台处理程序查询打印机。如果网络中的打印机没有响应，需要的时间会更长。</translation>
    </message>
    <message>
        <source>No label printer is installed</source>
        <translation>没有安装标签打印机</translation>
    </message>
    <message>
        <source>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</source>
        <translation>请通过 USB 连接打印机，打开电源并安装驱动程序。打印机会自动出现在这里。不显示其他厂商的打印机。</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>重新查找(&amp;L)</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>打印后台处理程序没有运行</translation>
    </message>
    <message>
        <source>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</source>
        <translation>没有它就无法打印，也无法得知任何打印机的状态。请启动服务“Print Spooler”(services.msc)，或重新启动计算机。打印机会自动恢复。</translation>
    </message>
    <message>
        <source>&amp;Show the last known state</source>
        <translation>显示最后已知的状态(&amp;S)</translation>
    </message>
    <message>
        <source>You may not manage these printers</source>
        <translation>您无权管理这些打印机</translation>
    </message>
    <message>
        <source>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</source>
        <translation>Windows 只向有权管理打印机的人提供其状态。请向管理员申请“管理此打印机”权限（打印机属性，安全）。</translation>
    </message>
    <message>
        <source>&amp;Show the printers all the same</source>
        <translation>仍然显示打印机(&amp;S)</translation>
    </message>
    <message>
        <source>Connecting to the broker…</source>
        <translation>正在连接代理服务器…</translation>
    </message>
    <message>
        <source>Nothing can be read from the broker</source>
        <translation>无法从代理服务器读取任何内容</translation>
    </message>
    <message>
        <source>The connection is tried again, and the printers appear by themselves.</source>
        <translation>将再次尝试连接，打印机会自动显示。</translation>
    </message>
    <message>
        <source>No agent has published a printer</source>
        <translation>没有代理程序发布打印机</translation>
    </message>
    <message>
        <source>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</source>
        <translation>在每台连接打印机的计算机上，代理程序 (vxprintagent) 会将打印机发布到此代理服务器。请检查代理程序是否正在运行，以及其配置是否指定了此代理服务器和此站点。打印机会自动显示在此处。</translation>
    </message>
</context>
<context>
    <name>OverviewBar</name>
    <message>
        <source>%1 error</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 个警告</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 个警告</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 条信息</translation>
    </message>
    <message>
        <source>%1 notices</source>
        <translation>%1 条信息</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 台就绪</translation>
    </message>
    <message>
        <source>Show only these printers; press again to show all</source>
        <translation>只显示这些打印机；再按一次显示全部</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知选项“%1”。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>未知选项：%1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>“%1”后面缺少值。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>“%1”后面有多余的值。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>SiteBar</name>
    <message>
        <source>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</source>
        <translation>自 %1 起与代理服务器无连接。显示的均为当时的状态。将再次尝试连接。</translation>
    </message>
    <message>
        <source>Agents offline: %1 and %2 more</source>
        <translation>脱机的代理程序：%1 以及另外 %2 个</translation>
    </message>
    <message>
        <source>Agents offline: %1</source>
        <translation>脱机的代理程序：%1</translation>
    </message>
    <message>
        <source>Messages that cannot be read: %1. The last one: %2</source>
        <translation>无法读取的消息：%1 条。最后一条：%2</translation>
    </message>
    <message>
        <source>There are more printers or agents than this program shows. Messages left out: %1</source>
        <translation>打印机或代理程序的数量超过此程序的显示上限。忽略的消息：%1 条</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;No notices for an hour</source>
        <translation>一小时内不通知(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>print a log of what happened to printers</source>
        <translation>显示打印机事件的日志</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>一个文件</translation>
    </message>
    <message>
        <source>log: only events of the printer NAME and of the spooler</source>
        <translation>log：仅打印机 NAME 和后台处理程序的事件</translation>
    </message>
    <message>
        <source>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</source>
        <translation>log：仅 TIME 以来的事件：2026-11-22、2026-11-22T10:30、10:30（今天），或 30m、2h、7d 之前</translation>
    </message>
    <message>
        <source>log: only events that are ok, information, warning or error, or worse</source>
        <translation>log：仅严重程度不低于 ok、information、warning 或 error 的事件</translation>
    </message>
    <message>
        <source>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</source>
        <translation>--since：应为 2026-11-22、2026-11-22T10:30、10:30 或 2h 等形式，实际为“%1”</translation>
    </message>
    <message>
        <source>--severity: expected ok, information, warning or error, found &quot;%1&quot;</source>
        <translation>--severity：应为 ok、information、warning 或 error，实际为“%1”</translation>
    </message>
    <message>
        <source>lines that are no events and were left out: %1</source>
        <translation>因不是事件而略去的行数：%1</translation>
    </message>
    <message>
        <source>There are no such events.</source>
        <translation>没有符合条件的事件。</translation>
    </message>
    <message>
        <source>%1 (see %2 --help)</source>
        <translation>%1（请参阅 %2 --help）</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</source>
        <translation>退出状态：0 成功，1 失败，2 用法错误。无法写入输出视为失败，除非读取方已关闭管道。</translation>
    </message>
    <message>
        <source>the character U+%1 is invisible; remove it</source>
        <translation>字符 U+%1 不可见；请将其删除</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>longer than %1 characters</source>
        <translation>超过 %1 个字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number between %2 and %3</source>
        <translation>“%1”不是 %2 到 %3 之间的整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</source>
        <translation>“%1”不是 SKU：最多 %2 个字符，可用 A 到 Z 的字母、数字、句点、下划线和连字符，以字母或数字开头</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour of the form #RRGGBB</source>
        <translation>“%1”不是 #RRGGBB 形式的颜色</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>“%1”既不是 yes 也不是 no</translation>
    </message>
    <message>
        <source>%1: no such file, or it cannot be read</source>
        <translation>%1：没有此文件，或无法读取</translation>
    </message>
    <message>
        <source>the column %1 is missing</source>
        <translation>缺少列 %1</translation>
    </message>
    <message>
        <source>the same language as the column %1</source>
        <translation>与列 %1 是同一语言</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number between %2 and %3</source>
        <translation>“%1”不是 %2 到 %3 之间的数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not greater than 0</source>
        <translation>“%1”不大于 0</translation>
    </message>
    <message>
        <source>duplicate colour &quot;%1&quot;</source>
        <translation>颜色“%1”重复</translation>
    </message>
    <message>
        <source>duplicate material %1</source>
        <translation>材料 %1 重复</translation>
    </message>
    <message>
        <source>duplicate format %1</source>
        <translation>格式 %1 重复</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>“%1”不是 %2 之一</translation>
    </message>
    <message>
        <source>duplicate number %1</source>
        <translation>编号 %1 重复</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a plain file name</source>
        <translation>“%1”不是单纯的文件名</translation>
    </message>
    <message>
        <source>%1%2 cannot be read</source>
        <translation>无法读取 %1%2</translation>
    </message>
    <message>
        <source>%1%2 is larger than %3 KiB</source>
        <translation>%1%2 大于 %3 KiB</translation>
    </message>
    <message>
        <source>%1%2 is not a readable image</source>
        <translation>%1%2 不是可读取的图像</translation>
    </message>
    <message>
        <source>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</source>
        <translation>%1%2 为 %3 x %4 像素；最大为 %5 x %5</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>超过 %1 行</translation>
    </message>
    <message>
        <source>duplicate SKU %1</source>
        <translation>SKU %1 重复</translation>
    </message>
    <message>
        <source>a second colour and its width must be given together or not at all</source>
        <translation>第二颜色及其宽度必须同时指定或都不指定</translation>
    </message>
    <message>
        <source>a label length is given, but the format is continuous</source>
        <translation>指定了标签长度，但格式为连续</translation>
    </message>
    <message>
        <source>empty, but the format is not continuous</source>
        <translation>为空，但格式不是连续</translation>
    </message>
    <message>
        <source>a gap is given, but there is only one label across</source>
        <translation>指定了间隔，但横向只有一张标签</translation>
    </message>
    <message>
        <source>empty, but there are several labels across</source>
        <translation>为空，但横向有多张标签</translation>
    </message>
    <message>
        <source>%1 is a supply&apos;s SKU</source>
        <translation>%1 是耗材的 SKU</translation>
    </message>
    <message>
        <source>%1 panels; a ribbon has 1 to %2</source>
        <translation>%1 个色段；色带应有 1 到 %2 个</translation>
    </message>
    <message>
        <source>duplicate print setting for panel %1 of %2 with %3</source>
        <translation>%2 的色段 %1 与 %3 的打印设置重复</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same model as &quot;%2&quot;</source>
        <translation>“%1”与“%2”是同一型号</translation>
    </message>
    <message>
        <source>duplicate format %1 for %2</source>
        <translation>%2 的格式 %1 重复</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1：没有此目录</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 不是文件</translation>
    </message>
    <message>
        <source>%1: cannot be created in %2: %3</source>
        <translation>%1：无法在 %2 中创建：%3</translation>
    </message>
    <message>
        <source>%1: larger than 16 MiB</source>
        <translation>%1：大于 16 MiB</translation>
    </message>
    <message>
        <source>%1:%2, column %3 (%4)</source>
        <translation>%1:%2，第 %3 列 (%4)</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>超过 %1 列</translation>
    </message>
    <message>
        <source>a carriage return without a line feed</source>
        <translation>有回车符但没有换行符</translation>
    </message>
    <message>
        <source>text after a closing quotation mark</source>
        <translation>右引号后面有文本</translation>
    </message>
    <message>
        <source>a field of more than %1 characters</source>
        <translation>有字段超过 %1 个字符</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>含有 NUL 字符</translation>
    </message>
    <message>
        <source>a quotation mark inside a field that is not quoted</source>
        <translation>未加引号的字段中有引号</translation>
    </message>
    <message>
        <source>an unclosed quotation mark</source>
        <translation>引号未闭合</translation>
    </message>
    <message>
        <source>empty; expected a line of column names</source>
        <translation>为空；应有一行列名</translation>
    </message>
    <message>
        <source>a column without a name</source>
        <translation>有一列没有名称</translation>
    </message>
    <message>
        <source>duplicate column</source>
        <translation>列重复</translation>
    </message>
    <message>
        <source>%1 fields, but there are %2 columns</source>
        <translation>有 %1 个字段，但有 %2 列</translation>
    </message>
    <message>
        <source>the panels of ribbon %1 are not numbered consecutively from 1</source>
        <translation>色带 %1 的色段未从 1 开始连续编号</translation>
    </message>
    <message>
        <source>%1 is both a supply and a ribbon</source>
        <translation>%1 既是耗材又是色带</translation>
    </message>
    <message>
        <source>supply %1 has a label length and a continuous format, or neither</source>
        <translation>耗材 %1 同时具有标签长度和连续格式，或两者都没有</translation>
    </message>
    <message>
        <source>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</source>
        <translation>打印机型号“%1”的格式未从 0 开始连续编号</translation>
    </message>
    <message>
        <source>the language 0 is &quot;%1&quot;, not English</source>
        <translation>语言 0 是“%1”，而不是英语</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>已损坏：%1</translation>
    </message>
    <message>
        <source>its tables are not those of schema version %1</source>
        <translation>其中的表不符合架构版本 %1</translation>
    </message>
    <message>
        <source>%1: not a file, so it is not replaced</source>
        <translation>%1：不是文件，因此不会替换</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 种耗材，%2 种色带，%3 项打印设置，%4 种语言</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1：正常，%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known language</source>
        <translation>“%1”不是已知语言</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>耗材</translation>
    </message>
    <message>
        <source>material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>second colour</source>
        <translation>第二颜色</translation>
    </message>
    <message>
        <source>stripe</source>
        <translation>条纹</translation>
    </message>
    <message>
        <source>width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>label length</source>
        <translation>标签长度</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>分隔</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>side by side</source>
        <translation>并排张数</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>background</source>
        <translation>背景图</translation>
    </message>
    <message>
        <source>printed with</source>
        <translation>打印使用</translation>
    </message>
    <message>
        <source>%1 panel %2: heat %3, offset %4, speed %5, tension %6</source>
        <translation>%1 色段 %2：热量 %3，偏移 %4，速度 %5，张力 %6</translation>
    </message>
    <message>
        <source>ribbon</source>
        <translation>色带</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>色段</translation>
    </message>
    <message>
        <source>%1: no supply or ribbon &quot;%2&quot;</source>
        <translation>%1：没有耗材或色带“%2”</translation>
    </message>
    <message>
        <source>there is no method %1</source>
        <translation>没有方法 %1</translation>
    </message>
    <message>
        <source>the arguments do not fit %1</source>
        <translation>参数不符合 %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> 或 </translation>
    </message>
    <message>
        <source>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</source>
        <translation>未知服务“%1”；应为 supplyd、m4、printqd、status、编号或 list 输出的名称</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>无</translation>
    </message>
    <message>
        <source>a SERVICE</source>
        <translation>一个 SERVICE</translation>
    </message>
    <message>
        <source>a SERVICE, a METHOD and its arguments</source>
        <translation>一个 SERVICE、一个 METHOD 及其参数</translation>
    </message>
    <message>
        <source>expected list, describe, call or watch</source>
        <translation>应为 list、describe、call 或 watch</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; %2</source>
        <translation>未知命令“%1”；%2</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1 的参数应为：%2</translation>
    </message>
    <message>
        <source>Calls the endpoints that run for this user.</source>
        <translation>调用为此用户运行的端点。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>list the endpoints: name, service, process, application</source>
        <translation>列出端点：名称、服务、进程、应用程序</translation>
    </message>
    <message>
        <source>list the methods and signals of an endpoint</source>
        <translation>列出端点的方法和信号</translation>
    </message>
    <message>
        <source>call a method and print its result</source>
        <translation>调用方法并输出结果</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>输出 JSON</translation>
    </message>
    <message>
        <source>wait up to MS milliseconds for an endpoint (10000)</source>
        <translation>最多等待端点 MS 毫秒 (10000)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>输出此帮助</translation>
    </message>
    <message>
        <source>what follows is not an option</source>
        <translation>其后内容不是选项</translation>
    </message>
    <message>
        <source>print a line of JSON for each emission of the signals, or of all signals, until interrupted</source>
        <translation>每当所列信号（未列出时为所有信号）发出时输出一行 JSON，直到被中断</translation>
    </message>
    <message>
        <source>watch for SECONDS only</source>
        <translation>只监视 SECONDS 秒</translation>
    </message>
    <message>
        <source>--for takes a number of seconds</source>
        <translation>--for 需要一个秒数</translation>
    </message>
    <message>
        <source>%1 takes no --for</source>
        <translation>%1 不接受 --for</translation>
    </message>
    <message>
        <source>a SERVICE and SIGNALs</source>
        <translation>一个 SERVICE 和若干 SIGNAL</translation>
    </message>
    <message>
        <source>%1: it has no signals</source>
        <translation>%1：没有信号</translation>
    </message>
    <message>
        <source>%1: the connection ended; waiting for the endpoint</source>
        <translation>%1：连接已结束；正在等待端点</translation>
    </message>
    <message>
        <source>%1: watching again; what changed meanwhile was missed</source>
        <translation>%1：已恢复监视；期间的变化未显示</translation>
    </message>
    <message>
        <source>--timeout takes a number of milliseconds</source>
        <translation>--timeout 需要毫秒数</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>未知选项 %1</translation>
    </message>
    <message>
        <source>--virtual: this build uses the system&apos;s own print spooler</source>
        <translation>--virtual：此版本使用系统自身的打印后台处理程序</translation>
    </message>
    <message>
        <source>print JSON: an array, or one object per line</source>
        <translation>输出 JSON：一个数组，或每行一个对象</translation>
    </message>
    <message>
        <source>watch: stop after SECONDS; by default, when interrupted</source>
        <translation>watch：SECONDS 秒后结束；默认在中断时结束</translation>
    </message>
    <message>
        <source>append the library&apos;s log to FILE</source>
        <translation>将库的日志追加到 FILE</translation>
    </message>
    <message>
        <source>watch: speed up the virtual printers&apos; story by FACTOR</source>
        <translation>watch：将虚拟打印机的进程加速 FACTOR 倍</translation>
    </message>
    <message>
        <source>title: all codes, with what they mean and what to do</source>
        <translation>title：所有代码及其含义和处理方法</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>输出版本</translation>
    </message>
    <message>
        <source>Lists and watches the label printers of the print spooler.</source>
        <translation>列出并监视打印后台处理程序中的标签打印机。</translation>
    </message>
    <message>
        <source>--%1: expected a file name</source>
        <translation>--%1：应为文件名</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</source>
        <translation>--%1：应为大于 0 且不超过 1000000 的数，实际为“%2”</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected one of %2</source>
        <translation>未知命令“%1”；应为以下之一：%2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 takes %2, found %3</source>
        <translation>%1 的参数应为：%2；实际为：%3</translation>
    </message>
    <message>
        <source>expected a command: %1</source>
        <translation>需要一条命令：%1</translation>
    </message>
    <message>
        <source>--%1 is valid only with %2</source>
        <translation>--%1 只能与 %2 一起使用</translation>
    </message>
    <message>
        <source>list the printers of the print spooler</source>
        <translation>列出打印后台处理程序中的打印机</translation>
    </message>
    <message>
        <source>show the status of all label printers, or of one</source>
        <translation>显示所有标签打印机或其中一台的状态</translation>
    </message>
    <message>
        <source>at most one printer</source>
        <translation>最多一台打印机</translation>
    </message>
    <message>
        <source>send a command in the printer&apos;s own language</source>
        <translation>以打印机自身的语言发送命令</translation>
    </message>
    <message>
        <source>a printer and a command</source>
        <translation>一台打印机和一条命令</translation>
    </message>
    <message>
        <source>print the title of a status code</source>
        <translation>输出状态代码的标题</translation>
    </message>
    <message>
        <source>a status code or --all</source>
        <translation>一个状态代码或 --all</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2</source>
        <translation>无法写入日志 %1：%2</translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>not managed</source>
        <translation>未受管理</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>脱机</translation>
    </message>
    <message>
        <source>There are no printers, or the print spooler is not running.</source>
        <translation>没有打印机，或打印后台处理程序未运行。</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>PORT</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>DRIVER</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <source>FLAGS</source>
        <translation>标志</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>online</source>
        <translation>联机</translation>
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
        <source>firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>There are no label printers yet.</source>
        <translation>还没有标签打印机。</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>SUPPLY</source>
        <translation>耗材</translation>
    </message>
    <message>
        <source>RIBBON 1</source>
        <translation>色带 1</translation>
    </message>
    <message>
        <source>RIBBON 2</source>
        <translation>色带 2</translation>
    </message>
    <message>
        <source>FIRMWARE</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>active</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</source>
        <translation>打印作业 %1，“%2”：%3，页数：%4，字节数：%5。</translation>
    </message>
    <message>
        <source>Sent to %1: %2</source>
        <translation>已发送到 %1：%2</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</source>
        <translation>title 需要 -2147483648 到 2147483647 之间的状态代码，实际为“%1”</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>处理方法：%1</translation>
    </message>
    <message>
        <source>title takes a status code or --all, not both</source>
        <translation>title 需要一个状态代码或 --all，不能同时使用</translation>
    </message>
    <message>
        <source>title takes a status code or --all, found nothing</source>
        <translation>title 需要一个状态代码或 --all，实际为无</translation>
    </message>
    <message>
        <source>send: wait until the job was printed or has left the queue</source>
        <translation>send：等待作业打印完成或离开队列</translation>
    </message>
    <message>
        <source>send: also to a printer of another maker, also nothing</source>
        <translation>send：也发送到其他厂商的打印机，也发送空命令</translation>
    </message>
    <message>
        <source>Print job %1, bytes: %2.</source>
        <translation>打印作业 %1，字节数：%2。</translation>
    </message>
    <message>
        <source>interrupted while print job %1 was in the queue of &quot;%2&quot;</source>
        <translation>打印作业 %1 还在“%2”的队列中时被中断</translation>
    </message>
    <message>
        <source>--force sends it nevertheless.</source>
        <translation>使用 --force 仍会发送。</translation>
    </message>
    <message>
        <source>the command was not sent: %1</source>
        <translation>命令未发送：%1</translation>
    </message>
    <message>
        <source>print job %1 was not printed: %2</source>
        <translation>打印作业 %1 未打印：%2</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</source>
        <translation>耗材和色带没有名称：无法从目录 %1 读取任何内容；“rolldb check”会说明问题所在</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</source>
        <translation>耗材和色带没有名称：目录 %1 不存在；请将其放到该处，或用 --catalogue 或 VX_ROLL_DB 指定另一个</translation>
    </message>
    <message>
        <source>watch: append what happens to FILE as well</source>
        <translation>watch：将发生的事情同时追加到 FILE</translation>
    </message>
    <message>
        <source>watch: print seconds since the start, not the time of day</source>
        <translation>watch：输出从开始算起的秒数，而不是时刻</translation>
    </message>
    <message>
        <source>watch: print every change of a level</source>
        <translation>watch：输出余量的每次变化</translation>
    </message>
    <message>
        <source>watch --json: print the signals that a host receives</source>
        <translation>watch --json：输出宿主程序收到的信号</translation>
    </message>
    <message>
        <source>take the names of supplies and ribbons from FILE</source>
        <translation>从 FILE 获取耗材和色带的名称</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>使用 FILE 所描述的虚拟打印机，或内置的打印机（“built-in”）</translation>
    </message>
    <message>
        <source>print this help as JSON</source>
        <translation>以 JSON 格式输出此帮助</translation>
    </message>
    <message>
        <source>print this help, or that of a command</source>
        <translation>输出此帮助或某个命令的帮助</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</source>
        <translation>颜色和材料的名称来自本程序旁边的 roll.db 文件或随程序安装的目录，除非 --catalogue 或环境变量 VX_ROLL_DB 指定了另一个文件。只有 Windows 版本能看到系统的打印机；其他版本只有虚拟打印机：--virtual 指定的、VX_VIRTUAL_FLEET 指定的，或内置的六台。</translation>
    </message>
    <message>
        <source>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>表格适应终端、COLUMNS 指定的宽度或 80 列；被截短的内容以省略号结尾。如果输出不是终端或设置了 NO_COLOR，则不使用颜色。可能控制终端的字符显示为 \u001b 之类的形式。</translation>
    </message>
    <message>
        <source>help takes at most one command, found &quot;%1&quot;</source>
        <translation>help 最多接受一个命令，实际为“%1”</translation>
    </message>
    <message>
        <source>print a line for each thing that happens to the label printers</source>
        <translation>标签打印机每发生一件事就输出一行</translation>
    </message>
    <message>
        <source>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</source>
        <translation>首先显示打印机的现状，然后每个事件输出一行，直到被中断。如果指定了打印机，则只输出这些打印机的事件。只是逐渐减少的余量在降到 25、10 和 5 % 时输出。使用 --json 时每行是一个对象；第一个对象包含所有打印机。</translation>
    </message>
    <message>
        <source>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>打印机名称不区分大小写。使用 --json 时，会等待所显示的每台打印机都已报告且 0.1 秒内没有其他报告，但最多等待 2 秒。之后再用最多半秒处理届时已到达的报告。</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>没有打印机“%1”；您是否指 %2？</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</source>
        <translation>没有打印机“%1”；“vxprintmon list”显示所有打印机</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</source>
        <translation>“%1”没有状态：其驱动程序“%2”不是标签打印机厂商的</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</source>
        <translation>“%1”没有状态：其驱动程序“%2”属于不受支持的型号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</source>
        <translation>“%1”没有状态：自发现以来一直离线；请打开电源并检查电缆</translation>
    </message>
    <message>
        <source>Network printer</source>
        <translation>网络打印机</translation>
    </message>
    <message>
        <source>Not managed</source>
        <translation>未受管理</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and its severity</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>未知类型</translation>
    </message>
    <message>
        <source>%1 % %2</source>
        <comment>how much of what is left</comment>
        <translation>%1 % %2</translation>
    </message>
    <message>
        <source>%1, level not known</source>
        <translation>%1，余量未知</translation>
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
        <source>no, it is a network printer</source>
        <translation>否，是网络打印机</translation>
    </message>
    <message>
        <source>no, you may not manage it</source>
        <translation>否，您无权管理它</translation>
    </message>
    <message>
        <source>no, it was removed and added again</source>
        <translation>否，它被删除后又重新添加</translation>
    </message>
    <message>
        <source>no, it was removed</source>
        <translation>否，它已被删除</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 以及另外 %2 台</translation>
    </message>
    <message>
        <source>Offline since they were found, so without a status: %1</source>
        <translation>自发现以来一直离线，因此没有状态：%1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1余量</translation>
    </message>
    <message>
        <source>Active printer: %1</source>
        <translation>当前打印机：%1</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>what to do</source>
        <translation>处理方法</translation>
    </message>
    <message>
        <source>boot loader</source>
        <translation>引导程序</translation>
    </message>
    <message>
        <source>model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>driver</source>
        <translation>驱动程序</translation>
    </message>
    <message>
        <source>port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>受监控</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2; it is tried again every second</source>
        <translation>无法写入日志 %1：%2；每秒重试一次</translation>
    </message>
    <message>
        <source>--signals is valid only with --json</source>
        <translation>--signals 只能与 --json 一起使用</translation>
    </message>
    <message>
        <source>watch --signals takes no printers: it prints every signal</source>
        <translation>watch --signals 不接受打印机：它输出所有信号</translation>
    </message>
    <message>
        <source>--relative and --verbose are not valid with --json</source>
        <translation>--relative 和 --verbose 不能与 --json 一起使用</translation>
    </message>
    <message>
        <source> (was %1)</source>
        <comment>after what it is now</comment>
        <translation>（原为 %1）</translation>
    </message>
    <message>
        <source>Supply removed</source>
        <translation>耗材已取出</translation>
    </message>
    <message>
        <source>Ribbon 1 removed</source>
        <translation>色带 1 已取出</translation>
    </message>
    <message>
        <source>Ribbon 2 removed</source>
        <translation>色带 2 已取出</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>已装入 %1</translation>
    </message>
    <message>
        <source>Ribbon 1: %1 loaded</source>
        <translation>色带 1：已装入 %1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1 loaded</source>
        <translation>色带 2：已装入 %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>固件 %1</translation>
    </message>
    <message>
        <source>now the active printer</source>
        <translation>现为当前打印机</translation>
    </message>
    <message>
        <source>Firmware update: %1 %</source>
        <translation>固件更新：%1 %</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 used up</source>
        <translation>%1 已用完</translation>
    </message>
    <message>
        <source> (was: %1)</source>
        <comment>a status, after what it is now</comment>
        <translation>（原为：%1）</translation>
    </message>
    <message>
        <source>, was %1</source>
        <comment>a level, after what it is now</comment>
        <translation>，原为 %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>help takes at most one command</source>
        <translation>help 最多带一个命令</translation>
    </message>
    <message>
        <source>print this help, or more about a command</source>
        <translation>显示本帮助，或某个命令的详细说明</translation>
    </message>
    <message>
        <source>empty; expected a text of at most %1 characters</source>
        <translation>为空；应为最多 %1 个字符的文本</translation>
    </message>
    <message>
        <source>%1: there is also %2; remove one of them</source>
        <translation>%1：还存在 %2；请删除其中一个</translation>
    </message>
    <message>
        <source>not a column of this table; expected %1</source>
        <translation>不是此表的列；应为 %1</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language; expected %1 and languages such as en or de</source>
        <translation>既不是此表的列，也不是已知语言；应为 %1 以及 en、de 等语言</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in %2</source>
        <translation>“%1”不在 %2 中</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a space; expected a key without spaces</source>
        <translation>“%1”含有空格；键不能含空格</translation>
    </message>
    <message>
        <source>format %1 is not in %2</source>
        <translation>格式 %1 不在 %2 中</translation>
    </message>
    <message>
        <source>material %1 is not in %2</source>
        <translation>材料 %1 不在 %2 中</translation>
    </message>
    <message>
        <source>KINDS</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>RIBBON</source>
        <translation>色带</translation>
    </message>
    <message>
        <source>NUMBERS</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>it has content that the tables cannot express</source>
        <translation>其中有表格无法表达的内容</translation>
    </message>
    <message>
        <source>%1: files written: %2</source>
        <translation>%1：已写入的文件数：%2</translation>
    </message>
    <message>
        <source>%1: it cannot be written as tables:</source>
        <translation>%1：无法写成表格：</translation>
    </message>
    <message>
        <source>create a supply database from the tables in DIRECTORY</source>
        <translation>用 DIRECTORY 中的表格创建耗材数据库</translation>
    </message>
    <message>
        <source>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</source>
        <translation>会显示表格中的所有错误（最多 50 个），没有错误时才写入 FILE。表格可用逗号、分号或制表符分隔；用制表符时也可以是 .tsv 文件。</translation>
    </message>
    <message>
        <source>verify a supply database or a directory of tables</source>
        <translation>检查耗材数据库或表格目录</translation>
    </message>
    <message>
        <source>Nothing is written. All that is wrong is printed, up to 50 lines.</source>
        <translation>不写入任何内容。会显示所有错误，最多 50 行。</translation>
    </message>
    <message>
        <source>list the supplies and ribbons in FILE</source>
        <translation>列出 FILE 中的耗材和色带</translation>
    </message>
    <message>
        <source>With the numbers in identifiers that stand for them, and their names.</source>
        <translation>同时显示标识符中代表它们的编号，以及名称。</translation>
    </message>
    <message>
        <source>print what FILE has about a supply or a ribbon</source>
        <translation>显示 FILE 中有关某种耗材或色带的内容</translation>
    </message>
    <message>
        <source>print what the identifier of a roll or a ribbon stands for</source>
        <translation>显示卷材或色带的标识符代表什么</translation>
    </message>
    <message>
        <source>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</source>
        <translation>IDENTIFIER 是驱动程序发布的值：耗材的 20 个字符或色带的编号。如果 FILE 中没有，退出状态为 1。</translation>
    </message>
    <message>
        <source>write the tables and pictures of FILE to DIRECTORY</source>
        <translation>把 FILE 的表格和图片写入 DIRECTORY</translation>
    </message>
    <message>
        <source>A database that is built from them has the same bytes.</source>
        <translation>用它们创建的数据库逐字节相同。</translation>
    </message>
    <message>
        <source>write tables with examples to DIRECTORY</source>
        <translation>把带示例的表格写入 DIRECTORY</translation>
    </message>
    <message>
        <source>A start for a catalogue of your own: every column with its name and an example.</source>
        <translation>可作为自己目录的起点：每一列都有列名和示例。</translation>
    </message>
    <message>
        <source>Builds and reads the supply databases of printers.</source>
        <translation>创建和读取打印机的耗材数据库。</translation>
    </message>
    <message>
        <source>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</source>
        <translation>用语言 TAG（“de”、“ja”）而不是英语显示名称</translation>
    </message>
    <message>
        <source>replace existing files</source>
        <translation>替换已有的文件</translation>
    </message>
    <message>
        <source>not UTF-8 text; save the table as UTF-8</source>
        <translation>不是 UTF-8 文本；请将表格另存为 UTF-8</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row of %2</source>
        <translation>%1 的某一行引用了 %2 中不存在的行</translation>
    </message>
    <message>
        <source>English is missing</source>
        <translation>缺少英语</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 已存在；用 --force 替换</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>not a directory</source>
        <translation>不是目录</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what a printer reports when nothing is loaded</source>
        <translation>“%1”是打印机在未装任何东西时报告的值</translation>
    </message>
    <message>
        <source>no supply of the kind %1</source>
        <translation>没有种类为 %1 的耗材</translation>
    </message>
    <message>
        <source>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</source>
        <translation>种类 %2 的第 %1 卷，全新时长 %3 英尺（%4 英寸）。</translation>
    </message>
    <message>
        <source>The catalogue has another length, so the library cannot tell how much of the roll is left.</source>
        <translation>目录中的长度不同，因此库无法算出卷材的剩余量。</translation>
    </message>
    <message>
        <source>no ribbon with the number %1</source>
        <translation>没有编号为 %1 的色带</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a SKU; show prints what the file has about it</source>
        <translation>“%1”是 SKU；用 show 可显示文件中有关它的内容</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</source>
        <translation>“%1”不是标识符；应为耗材的 20 个字符（8 位十六进制、6 位十进制、6 位十六进制数字）或 1 到 %2 的色带编号</translation>
    </message>
    <message>
        <source>%1; similar: %2</source>
        <translation>%1；相近的有：%2</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>……另有 %1 个</translation>
    </message>
    <message>
        <source>kinds</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1，%2 字节</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>prints on</source>
        <translation>可打印于</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</source>
        <translation>SERVICE 是 supplyd、m4、printqd、status、编号，或 list 显示的名称。</translation>
    </message>
    <message>
        <source>An endpoint that does not answer is listed too, with the reason in place of its process.</source>
        <translation>不应答的端点也会列出，进程一栏显示原因。</translation>
    </message>
    <message>
        <source>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</source>
        <translation>文本参数按原样使用，其他参数按 JSON 读取。同名方法有多个时，调用参数与实参相符的那个。</translation>
    </message>
    <message>
        <source>If the endpoint goes away, watch waits for it and goes on.</source>
        <translation>如果端点消失，watch 会等它恢复后继续。</translation>
    </message>
    <message>
        <source>check everything from the spooler to the catalogue</source>
        <translation>检查从后台处理程序到目录的所有环节</translation>
    </message>
    <message>
        <source>show all label printers in a live table</source>
        <translation>在实时更新的表格中显示所有标签打印机</translation>
    </message>
    <message>
        <source>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</source>
        <translation>启动服务“Spooler”：以管理员身份运行“net start spooler”。</translation>
    </message>
    <message>
        <source>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</source>
        <translation>重新启动服务“Spooler”：以管理员身份运行“net stop spooler”和“net start spooler”。</translation>
    </message>
    <message>
        <source>Connect the printer by USB, switch it on and install its driver.</source>
        <translation>用 USB 连接打印机，打开电源并安装其驱动程序。</translation>
    </message>
    <message>
        <source>Remove the printer from Windows and install it again with its driver.</source>
        <translation>从 Windows 中删除打印机，然后连同驱动程序重新安装。</translation>
    </message>
    <message>
        <source>Take the name from the output of &quot;vxprintmon list&quot;.</source>
        <translation>请使用“vxprintmon list”输出的名称。</translation>
    </message>
    <message>
        <source>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</source>
        <translation>请管理员在打印机属性的“安全”中允许您管理此打印机。</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</source>
        <translation>在 Windows 中打开打印机的队列，并在其菜单中关闭“脱机使用打印机”。</translation>
    </message>
    <message>
        <source>Switch the printer on and check its USB cable at both ends.</source>
        <translation>打开打印机电源，并检查 USB 电缆两端。</translation>
    </message>
    <message>
        <source>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</source>
        <translation>用 USB 将打印机连接到此计算机，或在打印机所连接的计算机上运行本程序。</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</source>
        <translation>在 Windows 中打开打印机的队列。如果已暂停则恢复，并处理其报告的情况。</translation>
    </message>
    <message>
        <source>Switch the printer off and on again. If that does not help, install its current driver.</source>
        <translation>关闭打印机后再打开。如果无效，请安装最新的驱动程序。</translation>
    </message>
    <message>
        <source>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</source>
        <translation>重新插拔打印机的 USB 电缆，或在打印机属性的“端口”中选择其所在端口。</translation>
    </message>
    <message>
        <source>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</source>
        <translation>将 roll.db 文件放在程序旁边，或用 --catalogue 或 VX_ROLL_DB 指定一个。“rolldb build”可生成该文件，“rolldb check”可说明其问题。</translation>
    </message>
    <message>
        <source>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</source>
        <translation>获取最新的 roll.db，或将装入的耗材添加到其表格中并运行“rolldb build”。</translation>
    </message>
    <message>
        <source>If other programs are to ask for the printers, start the program that watches them.</source>
        <translation>如果其他程序需要查询打印机，请启动监视打印机的程序。</translation>
    </message>
    <message>
        <source>End the program that does not answer, and start it again.</source>
        <translation>结束没有响应的程序，然后重新启动。</translation>
    </message>
    <message>
        <source>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</source>
        <translation>请管理员删除其他用户放在那里的内容。</translation>
    </message>
    <message>
        <source>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</source>
        <translation>无需处理。如果这是需要监视的标签打印机，请安装其驱动程序。</translation>
    </message>
    <message>
        <source>Nothing needs to be done: not every printer has this value.</source>
        <translation>无需处理：并非每台打印机都有此值。</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>一切正常。</translation>
    </message>
    <message>
        <source>Everything else is in order.</source>
        <translation>其他一切正常。</translation>
    </message>
    <message>
        <source>Driver values not published: %1.</source>
        <translation>驱动程序未发布的值：%1。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>没有打印机“%1”。</translation>
    </message>
    <message>
        <source>Similar names: %1.</source>
        <translation>相近的名称：%1。</translation>
    </message>
    <message>
        <source>problems found: %1</source>
        <translation>发现的问题：%1</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is not running (state %1).</source>
        <translation>服务“Spooler”未运行（状态 %1）。</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is running.</source>
        <translation>服务“Spooler”正在运行。</translation>
    </message>
    <message>
        <source>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</source>
        <translation>打印后台处理程序列出了一台没有名称、端口或驱动程序的打印机，因此库无法查找打印机。</translation>
    </message>
    <message>
        <source>The print spooler lists no label printer that can be watched. Printers: %1.</source>
        <translation>打印后台处理程序没有列出可以监视的标签打印机。打印机：%1。</translation>
    </message>
    <message>
        <source>The print spooler answers. Printers: %1, label printers: %2.</source>
        <translation>打印后台处理程序有响应。打印机：%1，标签打印机：%2。</translation>
    </message>
    <message>
        <source>The device registry has no USB device of a label printer.</source>
        <translation>设备注册表中没有标签打印机的 USB 设备。</translation>
    </message>
    <message>
        <source>USB devices of class %1: %2.</source>
        <translation>类 %1 的 USB 设备：%2。</translation>
    </message>
    <message>
        <source>There is no catalogue %1.</source>
        <translation>没有目录文件 %1。</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>无法读取目录文件 %1：%2。</translation>
    </message>
    <message>
        <source>The file %1 is no supply catalogue.</source>
        <translation>文件 %1 不是耗材目录。</translation>
    </message>
    <message>
        <source>The catalogue %1 has the schema version %2; only version %3 can be read.</source>
        <translation>目录文件 %1 的架构版本为 %2；只能读取版本 %3。</translation>
    </message>
    <message>
        <source>The catalogue %1 is damaged or empty.</source>
        <translation>目录文件 %1 已损坏或为空。</translation>
    </message>
    <message>
        <source>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</source>
        <translation>目录文件 %1，架构版本 %2。耗材：%3，色带：%4。</translation>
    </message>
    <message>
        <source>The endpoint %1 is not running.</source>
        <translation>端点 %1 未运行。</translation>
    </message>
    <message>
        <source>The endpoint %1 does not answer: %2.</source>
        <translation>端点 %1 没有响应：%2。</translation>
    </message>
    <message>
        <source>The endpoint %1 answers: %2, process %3.</source>
        <translation>端点 %1 有响应：%2，进程 %3。</translation>
    </message>
    <message>
        <source>%1: not published; this model has one ribbon</source>
        <translation>%1：未发布；此型号只有一条色带</translation>
    </message>
    <message>
        <source>%1: not published</source>
        <translation>%1：未发布</translation>
    </message>
    <message>
        <source>%1; expected the type %2</source>
        <translation>%1；应为类型 %2</translation>
    </message>
    <message>
        <source>%1; expected %2 to %3 bytes</source>
        <translation>%1；应为 %2 到 %3 字节</translation>
    </message>
    <message>
        <source>%1; a number up to %2 is plausible</source>
        <translation>%1；合理的数值不超过 %2</translation>
    </message>
    <message>
        <source>The status code &quot;%1&quot; is not a number.</source>
        <translation>状态代码“%1”不是数字。</translation>
    </message>
    <message>
        <source>Status %1: %2. %3</source>
        <translation>状态 %1：%2。%3</translation>
    </message>
    <message>
        <source>%1: nothing is loaded.</source>
        <translation>%1：未装入任何耗材。</translation>
    </message>
    <message>
        <source>%1: the catalogue does not know %2.</source>
        <translation>%1：目录中没有 %2。</translation>
    </message>
    <message>
        <source>%1: %2 is %3 in the catalogue.</source>
        <translation>%1：%2 在目录中是 %3。</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</source>
        <translation>驱动程序“%1”来自其他厂商，因此不监视此打印机。</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</source>
        <translation>驱动程序“%1”属于不支持的型号，因此不监视此打印机。</translation>
    </message>
    <message>
        <source>Model %1, driver &quot;%2&quot;.</source>
        <translation>型号 %1，驱动程序“%2”。</translation>
    </message>
    <message>
        <source>You may manage the printer.</source>
        <translation>您可以管理此打印机。</translation>
    </message>
    <message>
        <source>You may not manage the printer, so it is not watched.</source>
        <translation>您无权管理此打印机，因此不监视它。</translation>
    </message>
    <message>
        <source>The printer is reached over a network (port %1), so it is listed, but not watched.</source>
        <translation>打印机通过网络连接（端口 %1），因此只列出而不监视。</translation>
    </message>
    <message>
        <source>No USB device of a label printer is on the printer&apos;s port %1.</source>
        <translation>打印机的端口 %1 上没有标签打印机的 USB 设备。</translation>
    </message>
    <message>
        <source>Port %1, with the device %2.</source>
        <translation>端口 %1，设备 %2。</translation>
    </message>
    <message>
        <source>The printer is set to be used offline.</source>
        <translation>打印机被设置为脱机使用。</translation>
    </message>
    <message>
        <source>Windows reports the printer offline.</source>
        <translation>Windows 报告打印机脱机。</translation>
    </message>
    <message>
        <source>The printer is online.</source>
        <translation>打印机已联机。</translation>
    </message>
    <message>
        <source>The queue reports nothing.</source>
        <translation>队列没有报告任何情况。</translation>
    </message>
    <message>
        <source>The queue reports: %1.</source>
        <translation>队列报告：%1。</translation>
    </message>
    <message>
        <source>%1 failed: %2 (error %3).</source>
        <translation>%1 失败：%2（错误 %3）。</translation>
    </message>
    <message>
        <source>top draws on a terminal, but its input or output is none; use status, or top --json</source>
        <translation>top 需要在终端上显示，但其输入或输出不是终端；请使用 status 或 top --json</translation>
    </message>
    <message>
        <source>the terminal cannot be used: %1</source>
        <translation>无法使用终端：%1</translation>
    </message>
    <message>
        <source>this console does not know escape sequences; use that of Windows 10 or newer</source>
        <translation>此控制台不支持转义序列；请使用 Windows 10 或更高版本的控制台</translation>
    </message>
    <message>
        <source>Printers: %1</source>
        <translation>打印机：%1</translation>
    </message>
    <message>
        <source>with errors: %1</source>
        <translation>有错误：%1</translation>
    </message>
    <message>
        <source>shown: %1 to %2</source>
        <translation>显示：%1 到 %2</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>q quit</source>
        <translation>q 退出</translation>
    </message>
    <message>
        <source>s by severity</source>
        <translation>s 按严重程度</translation>
    </message>
    <message>
        <source>n by name</source>
        <translation>n 按名称</translation>
    </message>
    <message>
        <source>l by level</source>
        <translation>l 按余量</translation>
    </message>
    <message>
        <source>arrows, Page Up, Page Down: scroll</source>
        <translation>方向键、Page Up、Page Down：滚动</translation>
    </message>
    <message>
        <source>a file to read and a file to write</source>
        <translation>一个要读取的文件和一个要写入的文件</translation>
    </message>
    <message>
        <source>case: expected show, explain, redact or verify, found &quot;%1&quot;</source>
        <translation>case：应为 show、explain、redact 或 verify，实际为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>line %1, after %2 s</source>
        <translation>第 %1 行，%2 秒后</translation>
    </message>
    <message>
        <source>Signals and log lines that are about no printer: the first difference is at number %1</source>
        <translation>与打印机无关的信号和日志行：第一个不同之处是第 %1 个</translation>
    </message>
    <message>
        <source>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</source>
        <translation>&quot;%1&quot; 的信号和日志行：第一个不同之处是第 %2 个</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>replayed</source>
        <translation>重放</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2 and more: %3</source>
        <translation>证据（自 %1 起）：第 %2 行，另有 %3 行</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2</source>
        <translation>证据（自 %1 起）：第 %2 行</translation>
    </message>
    <message>
        <source>Nothing in this case is recognised.</source>
        <translation>在此案例中没有识别出任何问题。</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>字节 %1：%2</translation>
    </message>
    <message>
        <source>expected an object with the list &quot;findings&quot;</source>
        <translation>应为带有列表 &quot;findings&quot; 的对象</translation>
    </message>
    <message>
        <source>there are more than %1 findings</source>
        <translation>发现项超过 %1 个</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2</source>
        <translation>&quot;%1&quot; 必须是%2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>没有成员 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>a condition or a list of conditions</source>
        <translation>条件或条件列表</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>文本列表</translation>
    </message>
    <message>
        <source>a number of seconds</source>
        <translation>秒数</translation>
    </message>
    <message>
        <source>a text, or texts by their languages with &quot;en&quot; among them</source>
        <translation>文本，或按语言列出且包含 &quot;en&quot; 的文本</translation>
    </message>
    <message>
        <source>%1: the file is larger than %2 bytes</source>
        <translation>%1：文件超过 %2 字节</translation>
    </message>
    <message>
        <source>%1: there is such a file already; name another one</source>
        <translation>%1：该文件已存在，请指定另一个名称</translation>
    </message>
    <message>
        <source>%1: lines written: %2, left out: %3</source>
        <translation>%1：写入的行：%2，省略的行：%3</translation>
    </message>
    <message>
        <source>Read it before you send it: it is plain text.</source>
        <translation>发送之前请先阅读：它是纯文本。</translation>
    </message>
    <message>
        <source>a monitoring thread does not come to rest</source>
        <translation>某个监视线程没有停下来</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1, for %2</source>
        <translation>%1，历时 %2</translation>
    </message>
    <message>
        <source>with</source>
        <translation>环境</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>steps: %1, signals: %2, log lines: %3</source>
        <translation>步骤：%1，信号：%2，日志行：%3</translation>
    </message>
    <message>
        <source>names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>replaced by others</source>
        <translation>已替换为其他名称</translation>
    </message>
    <message>
        <source>as they are; &quot;vxprintmon case redact&quot; replaces them</source>
        <translation>保持原样；&quot;vxprintmon case redact&quot; 可替换它们</translation>
    </message>
    <message>
        <source>end</source>
        <translation>结尾</translation>
    </message>
    <message>
        <source>missing: the recording was cut short</source>
        <translation>缺失：录制被中断</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>过快</translation>
    </message>
    <message>
        <source>how often values changed faster than they were read: %1</source>
        <translation>值的变化快于读取的次数：%1</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告和错误</translation>
    </message>
    <message>
        <source>What was loaded</source>
        <translation>所装耗材</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</source>
        <translation>本程序没有虚拟打印机，因此无法重放案例；请在 Linux 上运行 &quot;vxprintmon case verify&quot;</translation>
    </message>
    <message>
        <source>The recording was cut short; it is compared up to there.</source>
        <translation>录制被中断；比较到该处为止。</translation>
    </message>
    <message>
        <source>No signals were recorded; only the log is compared.</source>
        <translation>没有录制信号；只比较日志。</translation>
    </message>
    <message>
        <source>The same: %1 signals and %2 log lines in %3 steps.</source>
        <translation>相同：%3 个步骤中有 %1 个信号和 %2 行日志。</translation>
    </message>
    <message>
        <source>the library does something else than was recorded</source>
        <translation>库的行为与录制的不同</translation>
    </message>
    <message>
        <source>case explain: recognise what the table FILE describes as well</source>
        <translation>case explain：同时识别表 FILE 所描述的内容</translation>
    </message>
    <message>
        <source>show, explain, redact or verify a case file</source>
        <translation>显示、解释、脱敏或验证案例文件</translation>
    </message>
    <message>
        <source>an action and one or two files</source>
        <translation>一个操作和一两个文件</translation>
    </message>
    <message>
        <source>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</source>
        <translation>&quot;case show FILE&quot; 讲述案例文件的内容。&quot;case explain FILE&quot; 列出它识别的故障、显示这些故障的行以及处理方法。&quot;case redact IN OUT&quot; 写出一份不含人员、计算机和打印机名称、序列号及地址的副本。&quot;case verify FILE&quot; 重放案例，并将库现在的行为与录制的内容进行比较。</translation>
    </message>
    <message>
        <source>%1: its catalogue cannot be written to a temporary file: %2</source>
        <translation>%1：无法将其目录写入临时文件：%2</translation>
    </message>
    <message>
        <source>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</source>
        <translation>%1:%2：有一行不符合目录的表 &quot;%3&quot;：%4</translation>
    </message>
    <message>
        <source>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</source>
        <translation>record：使文件小于 SIZE（例如 64M）；此时保留开头和最新部分</translation>
    </message>
    <message>
        <source>record: keep names, serial numbers and addresses as they are</source>
        <translation>record：保留名称、序列号和地址的原样</translation>
    </message>
    <message>
        <source>record what printers do, for those who help</source>
        <translation>录制打印机的活动，供提供帮助的人使用</translation>
    </message>
    <message>
        <source>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</source>
        <translation>与使用打印机的其他程序并行，录制打印后台处理程序告诉库的一切以及库的处理结果，直到被中断。FILE 即使在崩溃后也是完整的，是供 &quot;case&quot;、--virtual 和提供帮助的人使用的案例文件。该文件不得已存在。每半分钟显示一次已录制的内容。</translation>
    </message>
    <message>
        <source>%1  printers %2, changes %3, signals %4, log lines %5, %6</source>
        <translation>%1  打印机 %2，变化 %3，信号 %4，日志行 %5，%6</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>变化</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Log lines</source>
        <translation>日志行</translation>
    </message>
    <message>
        <source>Faster than read</source>
        <translation>快于读取</translation>
    </message>
    <message>
        <source>Left out to keep the limit</source>
        <translation>因上限而省略</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>未写入</translation>
    </message>
    <message>
        <source>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</source>
        <translation>文件中有打印机、人员和计算机的名称。&quot;vxprintmon case redact&quot; 可将其去除。</translation>
    </message>
    <message>
        <source>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</source>
        <translation>名称、序列号和地址已被替换。&quot;vxprintmon case show&quot; 可显示文件内容。</translation>
    </message>
    <message>
        <source>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</source>
        <translation>--limit：应为 1M 到 1G 的大小，例如 64M，实际为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 exists and is not replaced; choose another name, or delete it first</source>
        <translation>%1 已存在，不会被替换；请选择其他名称，或先将其删除</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>无法创建 %1：%2</translation>
    </message>
    <message>
        <source>Recording into %1.</source>
        <translation>正在录制到 %1。</translation>
    </message>
    <message>
        <source>Recording into %1, until it is interrupted (Ctrl-C).</source>
        <translation>正在录制到 %1，直到被中断 (Ctrl-C)。</translation>
    </message>
    <message>
        <source>cannot write %1: %2; it is tried again every second</source>
        <translation>无法写入 %1：%2；每秒重试一次</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>watch: also record what is used, in the user&apos;s history or --file</source>
        <translation>watch：同时将用量记录到用户的历史记录或 --file 中</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets (CSV)</source>
        <translation>history：输出电子表格用的表格 (CSV)</translation>
    </message>
    <message>
        <source>print what printers have used</source>
        <translation>显示打印机的用量</translation>
    </message>
    <message>
        <source>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</source>
        <translation>每卷介质和每条色带显示一行：装入了什么、从何时到何时、用了多少、平均每天用多少。打印机用名称或序列号指定。这些都由“vxprintmon watch --history”记录。</translation>
    </message>
    <message>
        <source>say when rolls and ribbons will end</source>
        <translation>说明卷材和色带何时用完</translation>
    </message>
    <message>
        <source>say whether a job fits: the right supply and ribbon, and enough</source>
        <translation>说明作业是否可行：耗材和色带是否正确、是否够用</translation>
    </message>
    <message>
        <source>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</source>
        <translation>打印机、耗材的 SKU、标签数量和色带的 SKU</translation>
    </message>
    <message>
        <source>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</source>
        <translation>如果用已装入的材料可以打印该作业，退出状态为 0；不能则为 3；不知道则为 4。指定的每条色带都必须已装入；不指定时，任何一条与耗材匹配且够用的已装入色带即可。</translation>
    </message>
    <message>
        <source>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</source>
        <translation>enough 需要 1 到 2147483647 之间的标签数量，但得到“%1”</translation>
    </message>
    <message>
        <source>the catalogue has no %1</source>
        <translation>目录中没有 %1</translation>
    </message>
    <message>
        <source>the catalogue has no %1; did you mean %2?</source>
        <translation>目录中没有 %1；您是否指 %2？</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>two durations</comment>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>剩余</translation>
    </message>
    <message>
        <source>LASTS ABOUT</source>
        <translation>大约可用</translation>
    </message>
    <message>
        <source>PROBABLY</source>
        <translation>可能</translation>
    </message>
    <message>
        <source>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</source>
        <translation>预测需要用量历史；“vxprintmon watch --history”会记录</translation>
    </message>
    <message>
        <source>over 2 years</source>
        <translation>超过 2 年</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚不清楚</translation>
    </message>
    <message>
        <source>the history cannot be read: %1</source>
        <translation>无法读取历史：%1</translation>
    </message>
    <message>
        <source>still loaded</source>
        <translation>仍装入</translation>
    </message>
    <message>
        <source>LOADED</source>
        <translation>装入</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>UNTIL</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>USED</source>
        <translation>用量</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>标签数</translation>
    </message>
    <message>
        <source>A DAY</source>
        <translation>日均</translation>
    </message>
    <message>
        <source> (serial number %1)</source>
        <translation>（序列号 %1）</translation>
    </message>
    <message>
        <source>Changes that could not be recorded: %1, from %2 to %3</source>
        <translation>未能记录的变化：%1 次，从 %2 到 %3</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;</source>
        <translation>历史记录中没有打印机“%1”</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>历史记录中没有打印机“%1”；您是指 %2 吗？</translation>
    </message>
    <message>
        <source>--csv and --json are not valid together</source>
        <translation>--csv 和 --json 不能同时使用</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</source>
        <translation>尚未记录任何内容。“vxprintmon watch --history”会记录用量。</translation>
    </message>
    <message>
        <source>the history was damaged, is now called %1, and has been begun anew: %2</source>
        <translation>历史记录已损坏，现已更名为 %1 并重新开始：%2</translation>
    </message>
    <message>
        <source>cannot write the history %1</source>
        <translation>无法写入历史记录 %1</translation>
    </message>
    <message>
        <source>cannot write the history %1; it is tried again every second</source>
        <translation>无法写入历史记录 %1；每秒重试一次</translation>
    </message>
    <message>
        <source>%1 lasts</source>
        <translation>%1 可用</translation>
    </message>
    <message>
        <source>about %1, probably %2 to %3</source>
        <translation>约 %1，可能 %2 至 %3</translation>
    </message>
    <message>
        <source>LASTS</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>--file is valid only with --history</source>
        <translation>--file 只能与 --history 一起使用</translation>
    </message>
    <message>
        <source>history, forecast, watch --history: FILE in place of the user&apos;s history</source>
        <translation>history、forecast、watch --history：使用 FILE 代替用户的历史记录</translation>
    </message>
    <message>
        <source>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</source>
        <translation>watch、forecast：卷上剩余标签少于 LABELS 张时警告；watch 默认为 100，0 表示从不</translation>
    </message>
    <message>
        <source>watch, forecast: warn of rolls that have fewer LABELS than a job needs</source>
        <translation>watch、forecast：卷上剩余标签少于作业所需的 LABELS 张时警告</translation>
    </message>
    <message>
        <source>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</source>
        <translation>watch、forecast：警告可能在本班结束之前用完的材料；TIMES 例如 14:00,22:00</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</source>
        <translation>--%1：应为 %2 到 2147483647 之间的整数，实际为“%3”</translation>
    </message>
    <message>
        <source>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</source>
        <translation>--%1：应为 14:00,22:00 这样的时间，实际为“%2”</translation>
    </message>
    <message>
        <source>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</source>
        <translation>它根据“vxprintmon watch --history”记录的用户历史进行学习。五次中有四次，装入的材料会在最后一列的两个时间之间用完。使用 --warn-below、--job 或 --shift-end 时，还会显示“watch”将发出的警告。</translation>
    </message>
    <message>
        <source>%1: its catalogue can only be played with a supply database of the product itself</source>
        <translation>%1：其目录只能用产品自带的耗材数据库重放</translation>
    </message>
    <message>
        <source>lines left out from %1 to %2: %3</source>
        <translation>从 %1 到 %2 省略的行：%3</translation>
    </message>
    <message>
        <source>AT THE BEGINNING</source>
        <translation>开始时</translation>
    </message>
    <message>
        <source>AT THE END</source>
        <translation>结束时</translation>
    </message>
    <message>
        <source>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</source>
        <translation>--language：应为 en、de、es、fr、it、ja 或 zh_CN，实际为“%1”</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>无法写入图片 %1</translation>
    </message>
    <message>
        <source>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>显示 FILE 所描述的虚拟打印机，或内置的打印机（“built-in”）</translation>
    </message>
    <message>
        <source>speed up the virtual printers&apos; story by FACTOR</source>
        <translation>将虚拟打印机的进程加速 FACTOR 倍</translation>
    </message>
    <message>
        <source>record what is used in FILE, and show it</source>
        <translation>将用量记录到 FILE 并显示</translation>
    </message>
    <message>
        <source>keep the settings of the window in FILE</source>
        <translation>将窗口的设置保存在 FILE 中</translation>
    </message>
    <message>
        <source>start without an open window</source>
        <translation>启动时不打开窗口</translation>
    </message>
    <message>
        <source>speak the language TAG: en, de, es, fr, it, ja or zh_CN</source>
        <translation>使用语言 TAG：en、de、es、fr、it、ja 或 zh_CN</translation>
    </message>
    <message>
        <source>use the colours SCHEME: light, dark or system</source>
        <translation>使用颜色方案 SCHEME：light、dark 或 system</translation>
    </message>
    <message>
        <source>open the window in this size</source>
        <translation>以此大小打开窗口</translation>
    </message>
    <message>
        <source>save a picture of the window in FILE.png and end</source>
        <translation>将窗口的图片保存到 FILE.png 并结束</translation>
    </message>
    <message>
        <source>with --screenshot: SECONDS after the start, 3 by default</source>
        <translation>与 --screenshot 一起：启动后 SECONDS 秒，默认为 3</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer in a window.</source>
        <translation>在窗口中显示此计算机的标签打印机。</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</source>
        <translation>--%1：应为大于 0 且不超过 %2 的数，实际为“%3”</translation>
    </message>
    <message>
        <source>--size: expected such as 1200x800, found &quot;%1&quot;</source>
        <translation>--size：应为例如 1200x800，实际为“%1”</translation>
    </message>
    <message>
        <source>--%1: expected a value</source>
        <translation>--%1：需要一个值</translation>
    </message>
    <message>
        <source>expected options only, found &quot;%1&quot;</source>
        <translation>只应有选项，实际为“%1”</translation>
    </message>
    <message>
        <source>--after goes with --screenshot</source>
        <translation>--after 应与 --screenshot 一起使用</translation>
    </message>
    <message>
        <source>--colors: expected light, dark or system, found &quot;%1&quot;</source>
        <translation>--colors：应为 light、dark 或 system，实际为“%1”</translation>
    </message>
    <message>
        <source>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</source>
        <translation>监视这台计算机的标签打印机，并将所见发布到代理服务器和监控系统。</translation>
    </message>
    <message>
        <source>watch and publish until interrupted</source>
        <translation>监视并发布，直到被中断</translation>
    </message>
    <message>
        <source>say what is wrong with a configuration</source>
        <translation>指出配置中的错误</translation>
    </message>
    <message>
        <source>install the agent as a Windows service that runs with the configuration</source>
        <translation>将代理安装为使用该配置运行的 Windows 服务</translation>
    </message>
    <message>
        <source>remove the Windows service</source>
        <translation>删除 Windows 服务</translation>
    </message>
    <message>
        <source>the configuration, a JSON file</source>
        <translation>配置（JSON 文件）</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>使用 FILE 描述的虚拟打印机</translation>
    </message>
    <message>
        <source>play the story of virtual printers FACTOR times as fast</source>
        <translation>以 FACTOR 倍速度播放虚拟打印机的情节</translation>
    </message>
    <message>
        <source>--speed takes a number above 0 and up to 1000</source>
        <translation>--speed 需要大于 0 且不超过 1000 的数字</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要一个值</translation>
    </message>
    <message>
        <source>%1 needs --config FILE</source>
        <translation>%1 需要 --config FILE</translation>
    </message>
    <message>
        <source>%1 is a valid configuration</source>
        <translation>%1 是有效的配置</translation>
    </message>
    <message>
        <source>%1 takes no further words</source>
        <translation>%1 不接受其他参数</translation>
    </message>
    <message>
        <source>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</source>
        <translation>只有 Windows 才能安装服务；其他系统请使用 systemd 单元 deploy/systemd/vxprintagent.service</translation>
    </message>
    <message>
        <source>what the Windows service manager starts</source>
        <translation>由 Windows 服务管理器启动</translation>
    </message>
    <message>
        <source>%1: Windows allows it to administrators alone; use a console that was started as administrator</source>
        <translation>%1：Windows 只允许管理员这样做；请使用以管理员身份启动的控制台</translation>
    </message>
    <message>
        <source>%1: %2 (error %3)</source>
        <translation>%1：%2（错误 %3）</translation>
    </message>
    <message>
        <source>the service %1 cannot be installed</source>
        <translation>无法安装服务 %1</translation>
    </message>
    <message>
        <source>the service %1 cannot be removed</source>
        <translation>无法删除服务 %1</translation>
    </message>
    <message>
        <source>the rights to %1 are not known</source>
        <translation>无法得知 %1 的权限</translation>
    </message>
    <message>
        <source>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</source>
        <translation>%2 可以更改 %1，从而获得该服务的权限；请将其移到只有管理员可以更改的位置，例如“C:\Program Files”下</translation>
    </message>
    <message>
        <source>%1 is on a network drive, which a service does not see; copy it to this computer</source>
        <translation>%1 位于网络驱动器上，服务无法看到；请将其复制到此计算机</translation>
    </message>
    <message>
        <source>%1: it does not stop; end vxprintagent.exe in the task manager and try again</source>
        <translation>%1：它不停止；请在任务管理器中结束 vxprintagent.exe 后重试</translation>
    </message>
    <message>
        <source>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</source>
        <translation>命令“service”供服务管理器使用；在控制台上请使用“vxprintagent run --config FILE”</translation>
    </message>
    <message>
        <source>the service manager does not answer</source>
        <translation>服务管理器没有应答</translation>
    </message>
    <message>
        <source>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</source>
        <translation>%1：它已经安装；请先运行“vxprintagent uninstall”</translation>
    </message>
    <message>
        <source>the service %1 is installed and starts with Windows; to start it now: net start %1</source>
        <translation>服务 %1 已安装，会随 Windows 启动；要立即启动：net start %1</translation>
    </message>
    <message>
        <source>the service %1 is not installed</source>
        <translation>服务 %1 未安装</translation>
    </message>
    <message>
        <source>%1 yet: another program has it open; close the list of services and the event viewer</source>
        <translation>%1：另一个程序正在使用它；请关闭服务列表和事件查看器</translation>
    </message>
    <message>
        <source>%1 does not let this user read what agents publish (%2); ask who runs the broker</source>
        <translation>%1 不允许此用户读取代理程序发布的内容 (%2)；请咨询代理服务器的管理员</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>超过 %1 字节</translation>
    </message>
    <message>
        <source>a name that is empty or has more than %1 characters</source>
        <translation>名称为空或超过 %1 个字符</translation>
    </message>
    <message>
        <source>expected online or offline</source>
        <translation>应为 online 或 offline</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>不是 JSON 对象</translation>
    </message>
    <message>
        <source>there are more than %1 printers</source>
        <translation>打印机超过 %1 台</translation>
    </message>
    <message>
        <source>a message cannot be read: %1 (so far: %2)</source>
        <translation>有消息无法读取：%1（至今：%2 条）</translation>
    </message>
    <message>
        <source>%1; those beyond are not shown</source>
        <translation>%1；超出部分不显示</translation>
    </message>
    <message>
        <source>there are more than %1 agents</source>
        <translation>代理程序超过 %1 个</translation>
    </message>
    <message>
        <source>--%1: expected %2</source>
        <translation>--%1：应为 %2</translation>
    </message>
    <message>
        <source>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</source>
        <translation>%1 未指定代理服务器：请用 --broker 或 &quot;mqtt&quot; 中的 &quot;url&quot; 指定</translation>
    </message>
    <message>
        <source>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</source>
        <translation>没有 TLS 时，%1 中的证书不起作用；应为以 mqtts:// 开头的 URL</translation>
    </message>
    <message>
        <source>the password crosses the network readably; use mqtts://</source>
        <translation>密码以明文经过网络；请使用 mqtts://</translation>
    </message>
    <message>
        <source>--broker: this build has no MQTT; build it with libmosquitto</source>
        <translation>--broker：此版本不含 MQTT；请使用 libmosquitto 构建</translation>
    </message>
    <message>
        <source>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>top：显示代理程序在 URL 的代理服务器上发布的内容，例如 mqtts://broker.example/SITE；不含 SITE 时为所有站点</translation>
    </message>
    <message>
        <source>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>top：从 FILE 获取代理服务器、用户和证书，其格式与代理程序的配置相同</translation>
    </message>
    <message>
        <source>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</source>
        <translation>使用 --broker 或 --broker-config 时，显示整个站点的打印机，由其代理程序通过 MQTT 发布。FILE 在 &quot;mqtt&quot; 中指定用户和密码文件；URL 中不含这两项。</translation>
    </message>
    <message>
        <source>No agent since %1</source>
        <translation>自 %1 起无代理程序</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>代理程序脱机</translation>
    </message>
    <message>
        <source>--%1 does not go with --broker</source>
        <translation>--%1 不能与 --broker 一起使用</translation>
    </message>
    <message>
        <source>no connection since %1</source>
        <translation>自 %1 起无连接</translation>
    </message>
    <message>
        <source>no connection</source>
        <translation>无连接</translation>
    </message>
    <message>
        <source>agents offline: %1</source>
        <translation>脱机的代理程序：%1</translation>
    </message>
    <message>
        <source>unreadable messages: %1</source>
        <translation>无法读取的消息：%1</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>正在连接 %1…</translation>
    </message>
    <message>
        <source>No agent has published a printer yet.</source>
        <translation>尚无代理程序发布打印机。</translation>
    </message>
    <message>
        <source>No agent of the site &quot;%1&quot; has published a printer yet.</source>
        <translation>站点 &quot;%1&quot; 尚无代理程序发布打印机。</translation>
    </message>
    <message>
        <source>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>显示代理程序在 URL 的代理服务器上发布的内容，例如 mqtts://broker.example/SITE；不含 SITE 时为所有站点</translation>
    </message>
    <message>
        <source>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>从 FILE 获取代理服务器、用户和证书，其格式与代理程序的配置相同</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>忽略：%1</translation>
    </message>
</context>
</TS>
