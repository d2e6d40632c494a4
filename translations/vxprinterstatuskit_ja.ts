<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>VxKit</name>
    <message>
        <source>The print job cannot be followed: %1</source>
        <translation>印刷ジョブを追跡できません: %1</translation>
    </message>
    <message>
        <source>The print spooler does not answer: %1</source>
        <translation>印刷スプーラーが応答しません: %1</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>プリンターはオフラインです。</translation>
    </message>
    <message>
        <source>The printer is out of labels.</source>
        <translation>ラベルがなくなりました。</translation>
    </message>
    <message>
        <source>The printer is in error.</source>
        <translation>プリンターでエラーが発生しています。</translation>
    </message>
    <message>
        <source>The printer needs attention.</source>
        <translation>プリンターの確認が必要です。</translation>
    </message>
    <message>
        <source>The job is paused.</source>
        <translation>ジョブは一時停止中です。</translation>
    </message>
    <message>
        <source>The job is being deleted.</source>
        <translation>ジョブを削除しています。</translation>
    </message>
    <message>
        <source>The driver cannot print the job.</source>
        <translation>ドライバーがジョブを印刷できません。</translation>
    </message>
    <message>
        <source>The printer is paused.</source>
        <translation>プリンターは一時停止中です。</translation>
    </message>
    <message>
        <source>Labels are jammed.</source>
        <translation>ラベルが詰まっています。</translation>
    </message>
    <message>
        <source>The printer has a problem with its labels.</source>
        <translation>プリンターのラベルに問題があります。</translation>
    </message>
    <message>
        <source>The printer is not available.</source>
        <translation>プリンターを使用できません。</translation>
    </message>
    <message>
        <source>The printer is open.</source>
        <translation>プリンターが開いています。</translation>
    </message>
    <message>
        <source>The printer is set to work offline.</source>
        <translation>プリンターはオフラインで使用するように設定されています。</translation>
    </message>
    <message>
        <source>The command is empty.</source>
        <translation>コマンドが空です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a label printer of a supported model.</source>
        <translation>「%1」は対応機種のラベルプリンターではありません。</translation>
    </message>
    <message>
        <source>The print spooler took only the first %1 bytes of the command.</source>
        <translation>印刷スプーラーはコマンドの最初の %1 バイトしか受け取りませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>「%1」を開けません: %2</translation>
    </message>
    <message>
        <source>The driver of &quot;%1&quot; cannot be queried: %2</source>
        <translation>「%1」のドライバーを照会できません: %2</translation>
    </message>
    <message>
        <source>The command cannot be sent to &quot;%1&quot;: %2</source>
        <translation>コマンドを「%1」に送信できません: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>The job waits in the queue.</source>
        <translation>ジョブはキューで待機しています。</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>ジョブを印刷しています。</translation>
    </message>
    <message>
        <source>The job has been printed.</source>
        <translation>ジョブは印刷されました。</translation>
    </message>
    <message>
        <source>The job was deleted.</source>
        <translation>ジョブは削除されました。</translation>
    </message>
    <message>
        <source>The job has left the queue; whether it was printed is not known.</source>
        <translation>ジョブはキューからなくなりました。印刷されたかどうかは不明です。</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseFile</name>
    <message>
        <source>%1: line %2: %3</source>
        <extracomment>%1 is a file, %2 the number of a line in it, %3 what is wrong.</extracomment>
        <translation>%1: %2 行目: %3</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>%1 バイトより長い行です</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>ファイルが %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the member &quot;kind&quot; is missing</source>
        <translation>メンバー &quot;kind&quot; がありません</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>JSON オブジェクトではありません</translation>
    </message>
    <message>
        <source>there is a line behind the end of the case</source>
        <translation>ケースの終わりの後に行があります</translation>
    </message>
    <message>
        <source>&quot;t&quot; is not a number of seconds since the start</source>
        <translation>&quot;t&quot; が開始からの秒数ではありません</translation>
    </message>
    <message>
        <source>this is not a case file</source>
        <translation>これはケース ファイルではありません</translation>
    </message>
    <message>
        <source>the case file has version %1, but this program reads version %2</source>
        <translation>ケース ファイルのバージョンは %1 ですが、このプログラムが読めるのはバージョン %2 です</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseRecorder</name>
    <message>
        <source>nothing is kept in memory</source>
        <translation>メモリに何も保持されていません</translation>
    </message>
</context>
<context>
    <name>VxKit::Preflight</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>Numbers of labels</extracomment>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1: nothing is loaded, the job needs %2.</source>
        <extracomment>%1 is a place of the printer, such as &quot;Ribbon 1&quot;. This holds for all texts that begin with it.</extracomment>
        <translation>%1: 何もセットされていません。ジョブには %2 が必要です。</translation>
    </message>
    <message>
        <source>%1: %2 is loaded, the job needs %3.</source>
        <translation>%1: %2 がセットされていますが、ジョブには %3 が必要です。</translation>
    </message>
    <message>
        <source>The job needs the ribbon %1 as well, but the printer has no place for it.</source>
        <translation>ジョブにはリボン %1 も必要ですが、プリンターにはセットする場所がありません。</translation>
    </message>
    <message>
        <source>No ribbon is loaded.</source>
        <translation>リボンがセットされていません。</translation>
    </message>
    <message>
        <source>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</source>
        <translation>リボン %1 はサプライ %2 に適していません: この組み合わせの印刷設定がカタログにありません。</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: %4.</source>
        <translation>%1: 足りません。ラベルの残り: %2、必要: %3、不足: %4。</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</source>
        <translation>%1: 足りません。ラベルの残り: %2、必要: %3、不足: 少なくとも %4。</translation>
    </message>
    <message>
        <source>There is no label printer &quot;%1&quot;.</source>
        <translation>ラベルプリンター「%1」はありません。</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer is not watched.</source>
        <translation>プリンターが監視されていないため、何がセットされているか不明です。</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer has not reported anything yet.</source>
        <translation>プリンターからまだ何も報告されていないため、何がセットされているか不明です。</translation>
    </message>
    <message>
        <source>It is not known whether the printer can print, because it has not reported its status.</source>
        <translation>プリンターの状態が報告されていないため、印刷できるかどうか不明です。</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because the printer does not report it.</source>
        <translation>%1: プリンターが報告しないため、何がセットされているか不明です。</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because %2 is not in the catalogue.</source>
        <translation>%1: %2 がカタログにないため、何がセットされているか不明です。</translation>
    </message>
    <message>
        <source>%1: it is not known how much is left.</source>
        <translation>%1: 残りの量は不明です。</translation>
    </message>
    <message>
        <source>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</source>
        <translation>%1: カタログを読み取れないため、%2 がサプライに適しているか不明です。</translation>
    </message>
    <message>
        <source>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</source>
        <translation>%1: カタログに %2 のラベルの長さがないため、残りの枚数は不明です。</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</source>
        <translation>%1: プリンターが整数のパーセントしか報告しないため、足りるか不明です。ラベルの残り: %2、必要: %3。</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</source>
        <translation>%1: 1 枚のラベルに複数の色を使う場合があるため、足りるか不明です。ラベルの残り: %2、必要: %3。</translation>
    </message>
    <message>
        <source>The printer is not ready: %1.</source>
        <translation>プリンターの準備ができていません: %1。</translation>
    </message>
    <message>
        <source>Ready. Labels left: %1, needed: %2.</source>
        <translation>準備ができています。ラベルの残り: %1、必要: %2。</translation>
    </message>
    <message>
        <source>Ready: what the job needs is loaded.</source>
        <translation>準備ができています: ジョブに必要なものがセットされています。</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterEvent</name>
    <message>
        <source>Ribbon 1: %1</source>
        <translation>リボン 1: %1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1</source>
        <translation>リボン 2: %1</translation>
    </message>
    <message>
        <source>Supply: %1</source>
        <translation>サプライ: %1</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 label</source>
        <translation>ラベル %1 枚</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>ラベル %1 枚</translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation>残り %1 %</translation>
    </message>
    <message>
        <source>nothing loaded</source>
        <translation>セットされていません</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>カタログにありません (%1)</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>ファームウェアを更新できませんでした (エラー %1)</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>ファームウェア %1</translation>
    </message>
    <message>
        <source>Firmware %1, was %2</source>
        <translation>ファームウェア %1 (以前は %2)</translation>
    </message>
    <message>
        <source>Command failed: %1</source>
        <translation>コマンドを送信できませんでした: %1</translation>
    </message>
    <message>
        <source>Printer added</source>
        <translation>プリンターが追加されました</translation>
    </message>
    <message>
        <source>Printer removed</source>
        <translation>プリンターが削除されました</translation>
    </message>
    <message>
        <source>Printer renamed, was %1</source>
        <translation>プリンター名が変更されました (以前は %1)</translation>
    </message>
    <message>
        <source>Print spooler stopped, no printer can be read</source>
        <translation>Print Spooler が停止したため、プリンターを読み取れません</translation>
    </message>
    <message>
        <source>Print spooler is running again</source>
        <translation>Print Spooler が再び動作しています</translation>
    </message>
    <message>
        <source>%1 event is missing since %2, because the log could not be written</source>
        <translation>ログに書き込めなかったため、%2 以降の %1 件のイベントがありません</translation>
    </message>
    <message>
        <source>%1 events are missing since %2, because the log could not be written</source>
        <translation>ログに書き込めなかったため、%2 以降の %1 件のイベントがありません</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterForecasts</name>
    <message>
        <source>%1: few labels left: %2</source>
        <translation>%1: ラベルの残りわずか: %2</translation>
    </message>
    <message>
        <source>%1: not enough for the job. Labels left: %2, needed: %3</source>
        <translation>%1: ジョブに足りません。ラベルの残り: %2、必要: %3</translation>
    </message>
    <message>
        <source>%1: will probably end before the shift does, at %2</source>
        <translation>%1: シフトの終わり (%2) より前になくなる見込みです</translation>
    </message>
</context>
<context>
    <name>VxKit::Slot</name>
    <message>
        <source>Ribbon 1</source>
        <translation>リボン 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>リボン 2</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>サプライ</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusInfo</name>
    <message>
        <source>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</source>
        <translation>プリンターの電源が切れているか、このコンピューターに接続されていません。ドライバーはインストールされており、故障は報告されていません。</translation>
    </message>
    <message>
        <source>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</source>
        <translation>プリンターの電源を入れてください。電源ケーブルと USB ケーブルの両端を確認してください。それでも接続されない場合は、コンピューターの別の USB ポートを使用してください。</translation>
    </message>
    <message>
        <source>The printer is switched on, is connected and can print.</source>
        <translation>プリンターの電源は入っており、接続されていて、印刷できます。</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>何もする必要はありません。</translation>
    </message>
    <message>
        <source>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</source>
        <translation>セットされていたラベルを使い切りました。まだ印刷されていないものは印刷キューで待機しています。</translation>
    </message>
    <message>
        <source>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</source>
        <translation>カバーを開け、空の巻き芯を取り出し、同じラベルの新しいロールをセットしてください。カバーを閉じると印刷が再開します。</translation>
    </message>
    <message>
        <source>The ribbon is used up to its end. The labels are not the cause.</source>
        <translation>リボンを最後まで使い切りました。ラベルが原因ではありません。</translation>
    </message>
    <message>
        <source>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</source>
        <translation>カバーを開け、使用済みのリボンを両方の巻き芯ごと取り出してください。同じ種類の新しいリボンをセットし、たるみを取ってカバーを閉じてください。</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</source>
        <translation>プリンターのカバーが開いているか、きちんと閉まっていません。安全のため、カバーが開いている間は印刷しません。</translation>
    </message>
    <message>
        <source>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</source>
        <translation>カバーを閉じ、カチッと音がするまで両側を押してください。閉まらない場合は、ラベルとリボンが正しくセットされているか確認してください。</translation>
    </message>
    <message>
        <source>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</source>
        <translation>ラベルがプリンター内を進みません。ラベルがローラーまたは印字ヘッドに貼り付いている可能性があります。</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</source>
        <translation>プリンターの電源を切り、カバーを開けてください。貼り付いたラベルは、鋭利な工具を使わず手で取り除いてください。ラベルをセットし直し、カバーを閉じて電源を入れてください。</translation>
    </message>
    <message>
        <source>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</source>
        <translation>カッターの刃が動きません。通常は、ラベルや粘着剤が刃の間に詰まっています。</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</source>
        <translation>プリンターの電源を切り、カッターカバーを開けてください。刃に触れずに、詰まっているものを取り除いてください。カバーを閉じて電源を入れてください。再び詰まる場合は、修理を依頼してください。</translation>
    </message>
    <message>
        <source>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</source>
        <translation>カッターのカバーが開いているか、きちんと閉まっていません。安全のため、閉じるまではカットも印刷もしません。</translation>
    </message>
    <message>
        <source>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</source>
        <translation>カチッと音がするまでカッターカバーを閉じてください。閉まらない場合は、プリンターの電源を切り、カッターからラベルの切れ端を取り除いてください。</translation>
    </message>
    <message>
        <source>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</source>
        <translation>印字ヘッドの温度が上がりすぎたため、冷却が必要です。長時間の印刷や濃い印刷で起こるもので、故障ではありません。</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</source>
        <translation>プリンターの電源を入れたまま数分待ってください。印刷は自動的に再開します。頻繁に起こる場合は、印字濃度または速度を下げ、通気口をふさがないようにしてください。</translation>
    </message>
    <message>
        <source>The printer does not detect its print head. The head or its cable may be loose or defective.</source>
        <translation>プリンターが印字ヘッドを検出できません。ヘッドまたはそのケーブルが緩んでいるか、故障している可能性があります。</translation>
    </message>
    <message>
        <source>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</source>
        <translation>プリンターの電源を切り、10 秒待ってから入れ直してください。再び表示される場合は、電源を切り、電源プラグを抜いて、印字ヘッドの点検を依頼してください。</translation>
    </message>
    <message>
        <source>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</source>
        <translation>モーターの温度が上がりすぎたため、冷却が必要です。長時間の印刷や、ラベルの送りが重いときに起こります。</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</source>
        <translation>プリンターの電源を入れたまま数分待ってください。印刷は自動的に再開します。頻繁に起こる場合は、ロールが滑らかに回るか確認してください。</translation>
    </message>
    <message>
        <source>There are no labels in the printer, or they do not reach the sensor.</source>
        <translation>プリンターにラベルがないか、ラベルがセンサーまで届いていません。</translation>
    </message>
    <message>
        <source>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</source>
        <translation>ラベルのロールをセットしてください。ラベルの先端をガイドの下から印字ヘッドまで差し込み、カバーを閉じてください。</translation>
    </message>
    <message>
        <source>There is no ribbon in the printer, but the labels need one.</source>
        <translation>プリンターにリボンがありませんが、このラベルにはリボンが必要です。</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, pull it tight and close the cover.</source>
        <translation>ラベルに適したリボンをセットし、たるみを取ってカバーを閉じてください。</translation>
    </message>
    <message>
        <source>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</source>
        <translation>どのラベルがセットされているか判別できません。識別情報を読み取れないか、プリンターがこの種類に対応していません。</translation>
    </message>
    <message>
        <source>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</source>
        <translation>ロールを取り出し、正しい向きでセットし直してください。プリンターがロールを読み取る部分を清掃してください。別のロールを試してください。新しいロールも認識されない場合は、ファームウェアを更新してください。</translation>
    </message>
    <message>
        <source>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</source>
        <translation>どのリボンがセットされているか判別できません。識別情報を読み取れないか、プリンターがこの種類に対応していません。</translation>
    </message>
    <message>
        <source>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</source>
        <translation>リボンを取り出し、セットし直してください。プリンターがリボンを読み取る部分を清掃してください。別のリボンを試してください。新しいリボンも認識されない場合は、ファームウェアを更新してください。</translation>
    </message>
    <message>
        <source>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</source>
        <translation>リボンとラベルの組み合わせが適合していません。それぞれに問題はありませんが、印刷が定着しません。</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</source>
        <translation>ラベルに適したリボン、またはリボンに適したラベルをセットしてください。組み合わせは包装とサプライ品のカタログに記載されています。</translation>
    </message>
    <message>
        <source>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</source>
        <translation>ラベルの始まりを検出できません。セットされたラベルが設定と異なるか、マークまたはすき間を検出できません。</translation>
    </message>
    <message>
        <source>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</source>
        <translation>ラベルロールがガイドの間でまっすぐになっているか確認してください。印刷設定のラベルサイズと、セットされたラベルを比べてください。ラベルセンサーを清掃し、その後調整してください。</translation>
    </message>
    <message>
        <source>The ribbon is torn, or it is not tight. It need not be used up.</source>
        <translation>リボンが切れているか、たるんでいます。使い切ったとは限りません。</translation>
    </message>
    <message>
        <source>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</source>
        <translation>カバーを開けてください。リボンが切れている場合は、その端を粘着テープで巻き取り側の芯に固定してください。リボンがたるみやしわなく張るまで巻き取り側の芯を回してください。カバーを閉じてください。</translation>
    </message>
    <message>
        <source>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</source>
        <translation>セットされたラベルに合わせてラベルセンサーを調整する必要があります。ラベルを交換した後によくあることで、故障ではありません。</translation>
    </message>
    <message>
        <source>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</source>
        <translation>ラベルがまっすぐで、カバーが閉じているか確認してください。プリンター本体またはドライバーの設定で調整を開始してください。ラベルが数枚送られて止まるまで待ってください。</translation>
    </message>
    <message>
        <source>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</source>
        <translation>プリンター本体で一時停止されました。故障ではありません。再開するまでジョブは待機します。</translation>
    </message>
    <message>
        <source>Press the pause key at the printer to resume printing.</source>
        <translation>プリンターの一時停止キーを押して、印刷を再開してください。</translation>
    </message>
    <message>
        <source>The job needs more memory than the printer has free. The memory of this computer is not meant.</source>
        <translation>ジョブに必要なメモリが、プリンターの空きメモリを超えています。このコンピューターのメモリのことではありません。</translation>
    </message>
    <message>
        <source>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</source>
        <translation>印刷キューからジョブを削除してください。プリンターの電源を入れ直してください。一度に印刷するラベルを減らし、画像を小さくするか減らしてください。</translation>
    </message>
    <message>
        <source>The printer is installing new firmware and does not print meanwhile. This is not a fault.</source>
        <translation>プリンターは新しいファームウェアをインストール中で、その間は印刷しません。故障ではありません。</translation>
    </message>
    <message>
        <source>Wait until the update is complete. Do not switch the printer off and do not unplug it.</source>
        <translation>更新が完了するまで待ってください。プリンターの電源を切ったり、ケーブルを抜いたりしないでください。</translation>
    </message>
    <message>
        <source>The printer could not install the new firmware. It may still work with the old one.</source>
        <translation>プリンターは新しいファームウェアをインストールできませんでした。以前のファームウェアで動作する場合があります。</translation>
    </message>
    <message>
        <source>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</source>
        <translation>プリンターの電源を入れ直してください。ファームウェアがこの機種用であることを確認し、更新をやり直してください。再び失敗する場合は、サービス窓口に問い合わせてください。</translation>
    </message>
    <message>
        <source>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</source>
        <translation>プリンターのバッテリーがほとんど残っていません。まだ印刷できますが、まもなく電源が切れます。</translation>
    </message>
    <message>
        <source>Connect the printer to its power supply, or change the battery.</source>
        <translation>プリンターを電源アダプターに接続するか、バッテリーを交換してください。</translation>
    </message>
    <message>
        <source>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</source>
        <translation>すべての印刷を処理する Windows のサービスが停止しているため、このコンピューターのどのプリンターも印刷や状態の読み取りができません。プリンターが原因ではありません。</translation>
    </message>
    <message>
        <source>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</source>
        <translation>管理者として services.msc を開き、「Print Spooler」を選択して「開始」を選んでください。数秒後にプリンターの読み取りが再開します。サービスが再び停止する場合は、コンピューターを再起動してください。</translation>
    </message>
    <message>
        <source>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</source>
        <translation>プリンターの状態がまだ報告されていないか、読み取れませんでした。印刷できるかどうかは、これだけでは分かりません。</translation>
    </message>
    <message>
        <source>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</source>
        <translation>数秒待ってください。不明のままの場合は、プリンターの電源を入れ直し、ドライバーが正しくインストールされているか確認してください。</translation>
    </message>
    <message>
        <source>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</source>
        <translation>このプリンターはネットワーク経由で使用されます。一覧には表示されますが、このコンピューターからは監視されません。印刷は可能です。</translation>
    </message>
    <message>
        <source>To see its status and what is loaded, use the computer that the printer is connected to.</source>
        <translation>状態とセットされているものを確認するには、プリンターが接続されているコンピューターを使用してください。</translation>
    </message>
    <message>
        <source>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</source>
        <translation>Windows はこのプリンターをオフラインとして扱っています。電源が切れているか、接続されていないか、「プリンターをオフラインで使用する」に設定されています。ジョブは印刷キューで待機します。</translation>
    </message>
    <message>
        <source>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</source>
        <translation>プリンターの電源を入れ、ケーブルを確認してください。印刷キューを開き、「プリンターをオフラインで使用する」にチェックが入っていないことを確認してください。</translation>
    </message>
    <message>
        <source>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</source>
        <translation>現在のユーザーは印刷できますが、このプリンターを管理する権限がないため、状態とセットされているものを読み取れません。プリンター自体は正常な場合があります。</translation>
    </message>
    <message>
        <source>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</source>
        <translation>管理者に、あなたのアカウントへ「このプリンターの管理」の権限を与えるよう依頼してください（プリンターのプロパティの「セキュリティ」）。その後、このプログラムを再起動してください。</translation>
    </message>
    <message>
        <source>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</source>
        <translation>プリンターは説明のない状態コード %1 を報告しています。プリンターは接続されており、自らこれを報告しています。</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</source>
        <translation>プリンターの表示とマニュアルを確認してください。プリンターの電源を入れ直してください。再び表示される場合は、番号 %1 とプリンターの機種をサービス窓口に伝えてください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>エージェントがオフライン</translation>
    </message>
    <message>
        <source>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</source>
        <translation>プリンターのコンピューターのエージェントから何も届いていません。装着されているものは、最後に報告された状態で表示されています。</translation>
    </message>
    <message>
        <source>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</source>
        <translation>コンピューターの電源が入りネットワークに接続されていること、および vxprintagent が動作していることを確認してください。</translation>
    </message>
</context>
<context>
    <name>VxKit::SupplyCatalogue</name>
    <message>
        <source>%1 %2</source>
        <extracomment>The name of a supply or ribbon for people. %1 is its colour or colours, such as &quot;Yellow&quot; or &quot;Black/Red&quot;, %2 its material, such as &quot;Vinyl&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>VxKit::UsageHistory</name>
    <message>
        <source>%1: not an SQLite database</source>
        <translation>%1: SQLite データベースではありません</translation>
    </message>
    <message>
        <source>%1: not a file</source>
        <translation>%1: ファイルではありません</translation>
    </message>
    <message>
        <source>%1: larger than 1 GiB</source>
        <translation>%1: 1 GiB を超えています</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: ファイルがありません</translation>
    </message>
    <message>
        <source>%1: not yet in the format of this version</source>
        <translation>%1: まだこのバージョンの形式になっていません</translation>
    </message>
    <message>
        <source>%1: a database of another program</source>
        <translation>%1: 別のプログラムのデータベースです</translation>
    </message>
    <message>
        <source>%1: written by a newer version (its format is %2; this version knows formats up to %3)</source>
        <translation>%1: より新しいバージョンで書かれています (形式 %2。このバージョンが読める形式は %3 まで)</translation>
    </message>
    <message>
        <source>%1: not the tables of a history</source>
        <translation>%1: 履歴の表ではありません</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>別のプログラムが使用中です</translation>
    </message>
    <message>
        <source>%1: another program is writing to it</source>
        <translation>%1: 別のプログラムが書き込んでいます</translation>
    </message>
    <message>
        <source>%1: another program has been reading it for too long</source>
        <translation>%1: 別のプログラムが長時間読み取り中です</translation>
    </message>
</context>
</TS>
