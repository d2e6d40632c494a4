<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>vxtestkit</name>
    <message>
        <source>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</source>
        <translation>在此计算机上运行 VxPrinterStatus 的测试，并写出报告。</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Runs the tests without asking.</source>
        <translation>不询问即运行测试。</translation>
    </message>
    <message>
        <source>Allows tests to stop and start the print spooler, without asking.</source>
        <translation>不询问即允许测试停止和启动打印后台处理程序。</translation>
    </message>
    <message>
        <source>Leaves out the tests that stop the print spooler, without asking.</source>
        <translation>不询问即略过会停止打印后台处理程序的测试。</translation>
    </message>
    <message>
        <source>Leaves out the tests that need an administrator&apos;s rights.</source>
        <translation>略过需要管理员权限的测试。</translation>
    </message>
    <message>
        <source>Runs only the tests whose names match this regular expression.</source>
        <translation>只运行名称与此正则表达式匹配的测试。</translation>
    </message>
    <message>
        <source>Ends a test that prints nothing for so many seconds (180).</source>
        <translation>结束在这么多秒内没有任何输出的测试 (180)。</translation>
    </message>
    <message>
        <source>Writes the report into this folder.</source>
        <translation>将报告写入此文件夹。</translation>
    </message>
    <message>
        <source>Speaks this language: de, en, es, fr, it, ja or zh.</source>
        <translation>使用的语言：de、en、es、fr、it、ja 或 zh。</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>--allow-spooler-stop and --no-spooler-stop contradict each other</source>
        <translation>--allow-spooler-stop 与 --no-spooler-stop 互相矛盾</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression: %2</source>
        <translation>“%1”不是正则表达式：%2</translation>
    </message>
    <message>
        <source>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</source>
        <translation>--silence：应为 1 到 %1 之间的秒数，实际为“%2”</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>通过</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>CRASHED</source>
        <translation>崩溃</translation>
    </message>
    <message>
        <source>HANGS, was ended</source>
        <translation>无响应，已结束</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>未运行</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未做任何更改。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>An earlier run did not end by itself. What it has left behind is removed now.</source>
        <translation>之前的一次运行没有自行结束。现在将删除它留下的内容。</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</source>
        <translation>无法读取 %1，因此不知道那次运行之前有什么。如果它添加的打印机已不存在，请删除该文件。</translation>
    </message>
    <message>
        <source>Tests of VxPrinterStatus %1</source>
        <translation>VxPrinterStatus %1 的测试</translation>
    </message>
    <message>
        <source>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</source>
        <translation>本程序在此计算机上运行 VxPrinterStatus 的测试。它会添加使用自有名称的打印机、驱动程序和端口，但不会在您的打印机上打印任何内容。它会在注册表中写入自有的项，添加自有的服务，并显示一些出现后又消失的窗口。之后会将这些全部删除。在短时间内，它的一台打印机会成为默认打印机。</translation>
    </message>
    <message>
        <source>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</source>
        <translation>它只留下一个文件，即一份报告，您可以在发送之前阅读。其中不含人员、计算机和您的打印机的名称。不会自动发送任何内容。</translation>
    </message>
    <message>
        <source>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</source>
        <translation>需要 10 到 30 分钟。可随时按 Ctrl+C 结束，届时会删除已添加的内容。</translation>
    </message>
    <message>
        <source>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</source>
        <translation>它没有管理员权限，因此 %2 个测试中有 %1 个无法运行。要运行全部测试，请回答“否”，然后右键单击 run-tests.cmd 并选择“以管理员身份运行”。</translation>
    </message>
    <message>
        <source>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</source>
        <translation>此处的 Windows 不是英文版。有些测试会比较英文文本，可能仅因此而失败。报告中会注明这一点。</translation>
    </message>
    <message>
        <source>Run the tests?</source>
        <translation>要运行测试吗？</translation>
    </message>
    <message>
        <source>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</source>
        <translation>有些测试会将打印后台处理程序停止几秒钟，然后重新启动。在此期间，任何人都无法通过此计算机打印，作业会等待。如果不允许，则运行其余测试。</translation>
    </message>
    <message>
        <source>May they stop the print spooler?</source>
        <translation>允许停止打印后台处理程序吗？</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 skipped, %4 not run</source>
        <translation>%1 个通过，%2 个失败，%3 个跳过，%4 个未运行</translation>
    </message>
    <message>
        <source>Not as it was before:</source>
        <translation>与之前不同之处：</translation>
    </message>
    <message>
        <source>Please send back this file:</source>
        <translation>请发回此文件：</translation>
    </message>
    <message>
        <source>The tests are already running on this computer.</source>
        <translation>此计算机上已在运行测试。</translation>
    </message>
    <message>
        <source>Press Enter to close.</source>
        <translation>按 Enter 键关闭。</translation>
    </message>
    <message>
        <source>[y/n]</source>
        <comment>the first letters of yes and no</comment>
        <translation>[y/n]</translation>
    </message>
    <message>
        <source>Removed: %1. Could not be removed: %2.</source>
        <translation>已删除：%1。无法删除：%2。</translation>
    </message>
    <message>
        <source>%1: the test &quot;%2&quot; has no program in this folder</source>
        <translation>%1：测试“%2”在此文件夹中没有程序</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 lists no tests</source>
        <translation>%1 未列出任何测试</translation>
    </message>
</context>
</TS>
