<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
    <name>tools</name>
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
        <source>the column en is missing</source>
        <translation>缺少列 en</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language</source>
        <translation>既不是此表的列，也不是已知语言</translation>
    </message>
    <message>
        <source>not a column of this table</source>
        <translation>不是此表的列</translation>
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
        <source>&quot;%1&quot; is not in colours.csv</source>
        <translation>“%1”不在 colours.csv 中</translation>
    </message>
    <message>
        <source>a space in a colour&apos;s key</source>
        <translation>颜色的键中有空格</translation>
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
        <source>format %1 is not in formats.csv</source>
        <translation>格式 %1 不在 formats.csv 中</translation>
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
        <source>material %1 is not in materials.csv</source>
        <translation>材料 %1 不在 materials.csv 中</translation>
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
        <source>&quot;%1&quot; is not in ribbons.csv</source>
        <translation>“%1”不在 ribbons.csv 中</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in supplies.csv</source>
        <translation>“%1”不在 supplies.csv 中</translation>
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
        <source>not UTF-8 text</source>
        <translation>不是 UTF-8 文本</translation>
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
        <source>%1:1, column %2 (%3): %4</source>
        <translation>%1:1，第 %2 列 (%3)：%4</translation>
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
        <source>English is missing%1</source>
        <translation>缺少英语%1</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row</source>
        <translation>%1 中有一行引用了不存在的行</translation>
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
        <source>build creates the supply database FILE from the tables in DIRECTORY.</source>
        <translation>build 根据 DIRECTORY 中的表创建耗材数据库 FILE。</translation>
    </message>
    <message>
        <source>check verifies FILE.</source>
        <translation>check 检查 FILE。</translation>
    </message>
    <message>
        <source>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</source>
        <translation>show 输出 FILE 中有关某种耗材或色带的内容，名称使用英语或语言 TAG（“de”、“ja”）。</translation>
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
        <source>expected build, check or show</source>
        <translation>应为 build、check 或 show</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected build, check or show</source>
        <translation>未知命令“%1”；应为 build、check 或 show</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3</source>
        <translation>%1 需要 %2 个参数，而不是 %3 个</translation>
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
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
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
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</source>
        <translation>SERVICE 是 supplyd、m4、printqd、status、一个编号，或 list 输出的名称。文本参数按原样使用，其他参数按 JSON 读取。</translation>
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
        <source>use the virtual printers that FILE describes</source>
        <translation>使用 FILE 所描述的虚拟打印机</translation>
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
        <source>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>status 会等待所显示的每台打印机都已报告且 0.1 秒内没有其他报告，但最多等待 2 秒。之后再用最多半秒处理届时已到达的报告。</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</source>
        <translation>颜色和材料的名称来自本程序旁边的 roll.db 文件。只有 Windows 版本能看到系统的打印机；其他版本只有虚拟打印机，默认为六台。</translation>
    </message>
    <message>
        <source>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>如果输出不是终端或设置了 NO_COLOR，则不使用颜色。可能控制终端的字符显示为 \u001b 之类的形式。</translation>
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
        <source>print a line for each change to the label printers</source>
        <translation>标签打印机每有变化就输出一行</translation>
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
        <source>of an unknown kind</source>
        <translation>未知类型</translation>
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
        <source>supply left</source>
        <translation>耗材余量</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>色带 1</translation>
    </message>
    <message>
        <source>ribbon 1 left</source>
        <translation>色带 1 余量</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>色带 2</translation>
    </message>
    <message>
        <source>ribbon 2 left</source>
        <translation>色带 2 余量</translation>
    </message>
    <message>
        <source>has a ribbon 2</source>
        <translation>有色带 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>network printer</source>
        <translation>网络打印机</translation>
    </message>
    <message>
        <source>managed</source>
        <translation>受管理</translation>
    </message>
    <message>
        <source>has been active</source>
        <translation>曾为活动</translation>
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
        <source>ACTIVE</source>
        <translation>活动</translation>
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
        <source>errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>ribbons</source>
        <translation>色带</translation>
    </message>
    <message>
        <source>found</source>
        <translation>已发现</translation>
    </message>
    <message>
        <source>records</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>a printer is in error</source>
        <translation>有打印机出错</translation>
    </message>
    <message>
        <source>no printer is in error</source>
        <translation>没有打印机出错</translation>
    </message>
    <message>
        <source>changed or removed</source>
        <translation>已更换或取出</translation>
    </message>
    <message>
        <source>is the active printer</source>
        <translation>是活动打印机</translation>
    </message>
    <message>
        <source>is the active printer but has no record</source>
        <translation>是活动打印机，但没有记录</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>is now watched</source>
        <translation>现已开始监视</translation>
    </message>
    <message>
        <source>no changes</source>
        <translation>无更改</translation>
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
        <source>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</source>
        <translation>没有打印机“%1”的记录；“vxprintmon status”会显示有记录的打印机</translation>
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
</context>
</TS>
