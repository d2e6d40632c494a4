<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>VxKit</name>
    <message>
        <source>The print job cannot be followed: %1</source>
        <translation>无法跟踪打印作业：%1</translation>
    </message>
    <message>
        <source>The print spooler does not answer: %1</source>
        <translation>打印后台处理程序无响应：%1</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>打印机已脱机。</translation>
    </message>
    <message>
        <source>The printer is out of labels.</source>
        <translation>标签已用完。</translation>
    </message>
    <message>
        <source>The printer is in error.</source>
        <translation>打印机出错。</translation>
    </message>
    <message>
        <source>The printer needs attention.</source>
        <translation>打印机需要处理。</translation>
    </message>
    <message>
        <source>The job is paused.</source>
        <translation>作业已暂停。</translation>
    </message>
    <message>
        <source>The job is being deleted.</source>
        <translation>正在删除作业。</translation>
    </message>
    <message>
        <source>The driver cannot print the job.</source>
        <translation>驱动程序无法打印该作业。</translation>
    </message>
    <message>
        <source>The printer is paused.</source>
        <translation>打印机已暂停。</translation>
    </message>
    <message>
        <source>Labels are jammed.</source>
        <translation>标签卡住。</translation>
    </message>
    <message>
        <source>The printer has a problem with its labels.</source>
        <translation>打印机的标签有问题。</translation>
    </message>
    <message>
        <source>The printer is not available.</source>
        <translation>打印机不可用。</translation>
    </message>
    <message>
        <source>The printer is open.</source>
        <translation>打印机已打开盖子。</translation>
    </message>
    <message>
        <source>The printer is set to work offline.</source>
        <translation>打印机已设为脱机使用。</translation>
    </message>
    <message>
        <source>The command is empty.</source>
        <translation>命令为空。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a label printer of a supported model.</source>
        <translation>“%1”不是受支持型号的标签打印机。</translation>
    </message>
    <message>
        <source>The print spooler took only the first %1 bytes of the command.</source>
        <translation>打印后台处理程序只接收了命令的前 %1 个字节。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>无法打开“%1”：%2</translation>
    </message>
    <message>
        <source>The driver of &quot;%1&quot; cannot be queried: %2</source>
        <translation>无法查询“%1”的驱动程序：%2</translation>
    </message>
    <message>
        <source>The command cannot be sent to &quot;%1&quot;: %2</source>
        <translation>无法将命令发送到“%1”：%2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>The job waits in the queue.</source>
        <translation>作业在队列中等待。</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>正在打印作业。</translation>
    </message>
    <message>
        <source>The job has been printed.</source>
        <translation>作业已打印。</translation>
    </message>
    <message>
        <source>The job was deleted.</source>
        <translation>作业已删除。</translation>
    </message>
    <message>
        <source>The job has left the queue; whether it was printed is not known.</source>
        <translation>作业已离开队列；不知道是否已打印。</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseFile</name>
    <message>
        <source>%1: line %2: %3</source>
        <extracomment>%1 is a file, %2 the number of a line in it, %3 what is wrong.</extracomment>
        <translation>%1：第 %2 行：%3</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>该行超过 %1 字节</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>文件超过 %1 字节</translation>
    </message>
    <message>
        <source>the member &quot;kind&quot; is missing</source>
        <translation>缺少成员 &quot;kind&quot;</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>不是 JSON 对象</translation>
    </message>
    <message>
        <source>there is a line behind the end of the case</source>
        <translation>在案例结束之后还有一行</translation>
    </message>
    <message>
        <source>&quot;t&quot; is not a number of seconds since the start</source>
        <translation>&quot;t&quot; 不是自开始以来的秒数</translation>
    </message>
    <message>
        <source>this is not a case file</source>
        <translation>这不是案例文件</translation>
    </message>
    <message>
        <source>the case file has version %1, but this program reads version %2</source>
        <translation>案例文件的版本是 %1，而本程序读取的版本是 %2</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseRecorder</name>
    <message>
        <source>nothing is kept in memory</source>
        <translation>内存中没有保存任何内容</translation>
    </message>
</context>
<context>
    <name>VxKit::Preflight</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>Numbers of labels</extracomment>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1: nothing is loaded, the job needs %2.</source>
        <extracomment>%1 is a place of the printer, such as &quot;Ribbon 1&quot;. This holds for all texts that begin with it.</extracomment>
        <translation>%1：未装入任何东西，作业需要 %2。</translation>
    </message>
    <message>
        <source>%1: %2 is loaded, the job needs %3.</source>
        <translation>%1：已装入 %2，作业需要 %3。</translation>
    </message>
    <message>
        <source>The job needs the ribbon %1 as well, but the printer has no place for it.</source>
        <translation>作业还需要色带 %1，但打印机没有可装入的位置。</translation>
    </message>
    <message>
        <source>No ribbon is loaded.</source>
        <translation>未装入色带。</translation>
    </message>
    <message>
        <source>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</source>
        <translation>色带 %1 与耗材 %2 不匹配：目录中没有两者的打印设置。</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: %4.</source>
        <translation>%1：不足。剩余标签：%2，需要：%3，缺少：%4。</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</source>
        <translation>%1：不足。剩余标签：%2，需要：%3，缺少：至少 %4。</translation>
    </message>
    <message>
        <source>There is no label printer &quot;%1&quot;.</source>
        <translation>没有标签打印机“%1”。</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer is not watched.</source>
        <translation>不知道装入了什么，因为该打印机未被监视。</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer has not reported anything yet.</source>
        <translation>不知道装入了什么，因为打印机尚未报告任何信息。</translation>
    </message>
    <message>
        <source>It is not known whether the printer can print, because it has not reported its status.</source>
        <translation>不知道打印机能否打印，因为它尚未报告状态。</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because the printer does not report it.</source>
        <translation>%1：不知道装入了什么，因为打印机不报告。</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because %2 is not in the catalogue.</source>
        <translation>%1：不知道装入了什么，因为 %2 不在目录中。</translation>
    </message>
    <message>
        <source>%1: it is not known how much is left.</source>
        <translation>%1：不知道还剩多少。</translation>
    </message>
    <message>
        <source>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</source>
        <translation>%1：不知道 %2 是否与耗材匹配，因为无法读取目录。</translation>
    </message>
    <message>
        <source>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</source>
        <translation>%1：不知道还剩多少张标签，因为目录中没有 %2 的标签长度。</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</source>
        <translation>%1：不知道是否够用，因为打印机只报告整数百分比。剩余标签：%2，需要：%3。</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</source>
        <translation>%1：不知道是否够用，因为一张标签可能用到其中多种颜色。剩余标签：%2，需要：%3。</translation>
    </message>
    <message>
        <source>The printer is not ready: %1.</source>
        <translation>打印机未就绪：%1。</translation>
    </message>
    <message>
        <source>Ready. Labels left: %1, needed: %2.</source>
        <translation>就绪。剩余标签：%1，需要：%2。</translation>
    </message>
    <message>
        <source>Ready: what the job needs is loaded.</source>
        <translation>就绪：作业所需的已装入。</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterEvent</name>
    <message>
        <source>Ribbon 1: %1</source>
        <translation>色带 1：%1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1</source>
        <translation>色带 2：%1</translation>
    </message>
    <message>
        <source>Supply: %1</source>
        <translation>耗材：%1</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 米</translation>
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
        <source>%1 % left</source>
        <translation>剩余 %1 %</translation>
    </message>
    <message>
        <source>nothing loaded</source>
        <translation>未装入</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>不在目录中 (%1)</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>固件更新失败，错误 %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>固件 %1</translation>
    </message>
    <message>
        <source>Firmware %1, was %2</source>
        <translation>固件 %1，之前为 %2</translation>
    </message>
    <message>
        <source>Command failed: %1</source>
        <translation>命令失败：%1</translation>
    </message>
    <message>
        <source>Printer added</source>
        <translation>已添加打印机</translation>
    </message>
    <message>
        <source>Printer removed</source>
        <translation>已删除打印机</translation>
    </message>
    <message>
        <source>Printer renamed, was %1</source>
        <translation>打印机已重命名，之前为 %1</translation>
    </message>
    <message>
        <source>Print spooler stopped, no printer can be read</source>
        <translation>Print Spooler 已停止，无法读取任何打印机</translation>
    </message>
    <message>
        <source>Print spooler is running again</source>
        <translation>Print Spooler 已重新运行</translation>
    </message>
    <message>
        <source>%1 event is missing since %2, because the log could not be written</source>
        <translation>由于无法写入日志，自 %2 起缺少 %1 个事件</translation>
    </message>
    <message>
        <source>%1 events are missing since %2, because the log could not be written</source>
        <translation>由于无法写入日志，自 %2 起缺少 %1 个事件</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterForecasts</name>
    <message>
        <source>%1: few labels left: %2</source>
        <translation>%1：标签所剩不多：%2</translation>
    </message>
    <message>
        <source>%1: not enough for the job. Labels left: %2, needed: %3</source>
        <translation>%1：不够用于该作业。剩余标签：%2，需要：%3</translation>
    </message>
    <message>
        <source>%1: will probably end before the shift does, at %2</source>
        <translation>%1：可能在本班 %2 结束之前用完</translation>
    </message>
</context>
<context>
    <name>VxKit::Slot</name>
    <message>
        <source>Ribbon 1</source>
        <translation>色带 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>色带 2</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>耗材</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusInfo</name>
    <message>
        <source>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</source>
        <translation>打印机已关闭，或未连接到此计算机。其驱动程序已安装，没有报告任何故障。</translation>
    </message>
    <message>
        <source>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</source>
        <translation>请打开打印机。检查电源线和 USB 线的两端。如果仍未连接，请使用计算机的另一个 USB 端口。</translation>
    </message>
    <message>
        <source>The printer is switched on, is connected and can print.</source>
        <translation>打印机已打开并已连接，可以打印。</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>无需任何操作。</translation>
    </message>
    <message>
        <source>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</source>
        <translation>装入的标签已用完。尚未打印的内容在打印队列中等待。</translation>
    </message>
    <message>
        <source>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</source>
        <translation>打开机盖，取出空卷芯，装入一卷相同的新标签。关上机盖后打印会继续。</translation>
    </message>
    <message>
        <source>The ribbon is used up to its end. The labels are not the cause.</source>
        <translation>色带已用到末端。与标签无关。</translation>
    </message>
    <message>
        <source>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</source>
        <translation>打开机盖，取出用完的色带和两个卷芯。装入同类型的新色带，将其拉紧，然后关上机盖。</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</source>
        <translation>打印机机盖已打开或未扣紧。为了安全，机盖打开时打印机不会打印。</translation>
    </message>
    <message>
        <source>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</source>
        <translation>关上机盖，按下两侧直到听到咔嗒声。如果关不上，请检查标签和色带是否安装到位。</translation>
    </message>
    <message>
        <source>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</source>
        <translation>标签无法在打印机中移动。可能有标签粘在胶辊或打印头上。</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</source>
        <translation>关闭打印机并打开机盖。用手取下粘住的标签，不要使用锋利的工具。重新装入标签，关上机盖，然后打开打印机。</translation>
    </message>
    <message>
        <source>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</source>
        <translation>切刀无法移动刀片。通常是标签或粘胶卡在刀片之间。</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</source>
        <translation>关闭打印机并打开切刀盖。取出卡住的东西，不要触碰刀片。关上切刀盖并打开打印机。如果切刀再次卡住，请联系维修。</translation>
    </message>
    <message>
        <source>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</source>
        <translation>切刀盖已打开或未扣紧。为了安全，关上之前打印机既不裁切也不打印。</translation>
    </message>
    <message>
        <source>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</source>
        <translation>关上切刀盖，直到听到咔嗒声。如果关不上，请关闭打印机并清除切刀中的标签碎片。</translation>
    </message>
    <message>
        <source>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</source>
        <translation>打印头过热，需要冷却。长时间打印或深色打印时会发生这种情况，并非故障。</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</source>
        <translation>请保持打印机开启并等待几分钟，打印会自动继续。如果经常发生，请降低打印浓度或速度，并保持通风口畅通。</translation>
    </message>
    <message>
        <source>The printer does not detect its print head. The head or its cable may be loose or defective.</source>
        <translation>打印机检测不到打印头。打印头或其电缆可能松动或损坏。</translation>
    </message>
    <message>
        <source>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</source>
        <translation>关闭打印机，等待十秒后再打开。如果再次出现此消息，请关闭打印机，拔下电源，并请维修人员检查打印头。</translation>
    </message>
    <message>
        <source>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</source>
        <translation>电机过热，需要冷却。长时间打印或标签移动不畅时会发生这种情况。</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</source>
        <translation>请保持打印机开启并等待几分钟，打印会自动继续。如果经常发生，请检查标签卷是否转动顺畅。</translation>
    </message>
    <message>
        <source>There are no labels in the printer, or they do not reach the sensor.</source>
        <translation>打印机中没有标签，或标签未到达传感器。</translation>
    </message>
    <message>
        <source>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</source>
        <translation>装入一卷标签。将标签起始端从导板下方推到打印头处，然后关上机盖。</translation>
    </message>
    <message>
        <source>There is no ribbon in the printer, but the labels need one.</source>
        <translation>打印机中没有色带，但这些标签需要色带。</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, pull it tight and close the cover.</source>
        <translation>装入与标签匹配的色带，将其拉紧，然后关上机盖。</translation>
    </message>
    <message>
        <source>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</source>
        <translation>打印机无法判断装入的是哪种标签。无法读取其标识，或打印机不认识这种标签。</translation>
    </message>
    <message>
        <source>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</source>
        <translation>取出标签卷，按正确方向重新装入。清洁打印机读取标签卷的位置。尝试另一卷标签。如果新标签卷也无法识别，请更新固件。</translation>
    </message>
    <message>
        <source>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</source>
        <translation>打印机无法判断装入的是哪种色带。无法读取其标识，或打印机不认识这种色带。</translation>
    </message>
    <message>
        <source>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</source>
        <translation>取出色带并重新装入。清洁打印机读取色带的位置。尝试另一卷色带。如果新色带也无法识别，请更新固件。</translation>
    </message>
    <message>
        <source>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</source>
        <translation>色带与标签不匹配。两者各自都没有问题，但打印内容无法附着牢固。</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</source>
        <translation>装入与标签匹配的色带，或与色带匹配的标签。包装和耗材目录中列有匹配的组合。</translation>
    </message>
    <message>
        <source>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</source>
        <translation>打印机找不到标签的起始位置。装入的标签与设置的不同，或检测不到标记或间隙。</translation>
    </message>
    <message>
        <source>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</source>
        <translation>检查标签卷是否在导板之间放正。将打印设置中的标签尺寸与装入的标签进行比较。清洁标签传感器，然后进行校准。</translation>
    </message>
    <message>
        <source>The ribbon is torn, or it is not tight. It need not be used up.</source>
        <translation>色带断裂或未拉紧。色带不一定已用完。</translation>
    </message>
    <message>
        <source>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</source>
        <translation>打开机盖。如果色带断裂，请用胶带将其末端固定在回收卷芯上。转动回收卷芯，直到色带拉紧且平整。关上机盖。</translation>
    </message>
    <message>
        <source>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</source>
        <translation>标签传感器需要根据装入的标签进行调整。更换耗材后常会出现这种情况，并非故障。</translation>
    </message>
    <message>
        <source>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</source>
        <translation>检查标签是否放正、机盖是否关好。在打印机上或其驱动程序设置中启动校准。等待打印机送出几张标签并停止。</translation>
    </message>
    <message>
        <source>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</source>
        <translation>有人在打印机上暂停了打印。没有损坏；作业会等待，直到恢复打印。</translation>
    </message>
    <message>
        <source>Press the pause key at the printer to resume printing.</source>
        <translation>按打印机上的暂停键恢复打印。</translation>
    </message>
    <message>
        <source>The job needs more memory than the printer has free. The memory of this computer is not meant.</source>
        <translation>作业所需内存超过打印机的可用内存。这里指的不是本计算机的内存。</translation>
    </message>
    <message>
        <source>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</source>
        <translation>从打印队列中删除该作业。关闭打印机再打开。每次少打印一些标签，并使用更小或更少的图片。</translation>
    </message>
    <message>
        <source>The printer is installing new firmware and does not print meanwhile. This is not a fault.</source>
        <translation>打印机正在安装新固件，期间不会打印。这不是故障。</translation>
    </message>
    <message>
        <source>Wait until the update is complete. Do not switch the printer off and do not unplug it.</source>
        <translation>请等待更新完成。不要关闭打印机，也不要拔下电缆。</translation>
    </message>
    <message>
        <source>The printer could not install the new firmware. It may still work with the old one.</source>
        <translation>打印机未能安装新固件。它可能仍可使用旧固件工作。</translation>
    </message>
    <message>
        <source>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</source>
        <translation>关闭打印机再打开。确认固件适用于此型号，然后重新开始更新。如果再次失败，请联系售后服务。</translation>
    </message>
    <message>
        <source>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</source>
        <translation>打印机电池即将耗尽。打印机仍可打印，但很快会自动关机。</translation>
    </message>
    <message>
        <source>Connect the printer to its power supply, or change the battery.</source>
        <translation>将打印机连接到电源适配器，或更换电池。</translation>
    </message>
    <message>
        <source>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</source>
        <translation>负责所有打印的 Windows 服务已停止，因此本计算机的任何打印机都无法打印或读取。打印机本身没有问题。</translation>
    </message>
    <message>
        <source>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</source>
        <translation>以管理员身份打开 services.msc，选择“Print Spooler”，然后选择“启动”。几秒钟后会重新读取打印机。如果该服务再次停止，请重新启动计算机。</translation>
    </message>
    <message>
        <source>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</source>
        <translation>打印机尚未报告状态，或无法读取状态。这并不说明打印机能否打印。</translation>
    </message>
    <message>
        <source>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</source>
        <translation>请等待几秒钟。如果状态仍然未知，请关闭打印机再打开，并检查其驱动程序是否正确安装。</translation>
    </message>
    <message>
        <source>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</source>
        <translation>该打印机通过网络访问。它会列出，但本计算机不会监视它。它仍然可以打印。</translation>
    </message>
    <message>
        <source>To see its status and what is loaded, use the computer that the printer is connected to.</source>
        <translation>要查看其状态和装入的耗材，请使用连接该打印机的计算机。</translation>
    </message>
    <message>
        <source>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</source>
        <translation>Windows 将该打印机列为脱机。它已关闭、未连接，或被设为“脱机使用打印机”；作业在打印队列中等待。</translation>
    </message>
    <message>
        <source>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</source>
        <translation>打开打印机并检查电缆。打开其打印队列，确认未勾选“脱机使用打印机”。</translation>
    </message>
    <message>
        <source>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</source>
        <translation>当前用户可以打印，但无权管理此打印机，因此无法读取其状态和装入的耗材。打印机本身可能正常。</translation>
    </message>
    <message>
        <source>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</source>
        <translation>请管理员为您的帐户授予“管理此打印机”的权限（打印机属性，“安全”）。然后重新启动本程序。</translation>
    </message>
    <message>
        <source>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</source>
        <translation>打印机报告状态代码 %1，该代码没有说明。打印机已连接，并自行报告了此状态。</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</source>
        <translation>查看打印机的显示屏和手册。关闭打印机再打开。如果该代码再次出现，请将编号 %1 和打印机型号告知售后服务。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>代理程序脱机</translation>
    </message>
    <message>
        <source>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</source>
        <translation>未收到打印机所在计算机上代理程序的任何消息。装载的耗材按最后一次报告的状态显示。</translation>
    </message>
    <message>
        <source>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</source>
        <translation>请检查计算机是否已开机并连接到网络，以及 vxprintagent 是否正在其上运行。</translation>
    </message>
</context>
<context>
    <name>VxKit::SupplyCatalogue</name>
    <message>
        <source>%1 %2</source>
        <extracomment>The name of a supply or ribbon for people. %1 is its colour or colours, such as &quot;Yellow&quot; or &quot;Black/Red&quot;, %2 its material, such as &quot;Vinyl&quot;.</extracomment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>VxKit::UsageHistory</name>
    <message>
        <source>%1: not an SQLite database</source>
        <translation>%1：不是 SQLite 数据库</translation>
    </message>
    <message>
        <source>%1: not a file</source>
        <translation>%1：不是文件</translation>
    </message>
    <message>
        <source>%1: larger than 1 GiB</source>
        <translation>%1：大于 1 GiB</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1：没有这个文件</translation>
    </message>
    <message>
        <source>%1: not yet in the format of this version</source>
        <translation>%1：尚未转换为此版本的格式</translation>
    </message>
    <message>
        <source>%1: a database of another program</source>
        <translation>%1：属于其他程序的数据库</translation>
    </message>
    <message>
        <source>%1: written by a newer version (its format is %2; this version knows formats up to %3)</source>
        <translation>%1：由更新的版本写入（格式为 %2；此版本支持的格式最高为 %3）</translation>
    </message>
    <message>
        <source>%1: not the tables of a history</source>
        <translation>%1：其中的表不是历史记录的表</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>其他程序正在使用它</translation>
    </message>
    <message>
        <source>%1: another program is writing to it</source>
        <translation>%1：其他程序正在写入</translation>
    </message>
    <message>
        <source>%1: another program has been reading it for too long</source>
        <translation>%1：其他程序读取时间过长</translation>
    </message>
</context>
</TS>
