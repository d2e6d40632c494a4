<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>VxKit::LevelBar</name>
    <message>
        <source>nothing loaded</source>
        <translation>セットされていません</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>about %1 %</source>
        <translation>約 %1 %</translation>
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
        <translation>ラベル %1 枚</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>ラベル %1 枚</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between two amounts</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>not in the catalogue</source>
        <translation>カタログにありません</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>カタログにありません (%1)</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>サプライ</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>リボン 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>リボン 2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1: %2</translation>
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
        <translation>使い切る見込み: %1 (%2～%3)</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterDetails</name>
    <message>
        <source>Day</source>
        <translation>1 日</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>1 週間</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Offline since printers were looked for. Switch it on, then look for printers again.</source>
        <translation>プリンターの検索時からオフラインです。電源を入れてから、もう一度プリンターを検索してください。</translation>
    </message>
    <message>
        <source>A network printer, which cannot be watched.</source>
        <translation>ネットワークプリンターのため監視できません。</translation>
    </message>
    <message>
        <source>You may not administer this printer, so it cannot be watched.</source>
        <translation>このプリンターを管理する権限がないため、監視できません。</translation>
    </message>
    <message>
        <source>New. Look for printers to watch it.</source>
        <translation>新しいプリンターです。監視するにはプリンターを検索してください。</translation>
    </message>
    <message>
        <source>Removed and added again. Restart the program to watch it.</source>
        <translation>削除後に再度追加されました。監視するにはプログラムを再起動してください。</translation>
    </message>
    <message>
        <source>Removed on %1</source>
        <translation>%1 に削除</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Status code</source>
        <translation>状態コード</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>ドライバー</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>Boot loader</source>
        <translation>ブートローダー</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>更新の進行状況</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>更新エラー</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>%1, identifier</source>
        <translation>%1、識別子</translation>
    </message>
    <message>
        <source>%1, mileage in percent</source>
        <translation>%1、残量 (パーセント)</translation>
    </message>
    <message>
        <source>%1, mileage in millimetres</source>
        <translation>%1、残量 (ミリメートル)</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>最終報告</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>The last 24 hours</source>
        <translation>過去 24 時間</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>過去 7 日間</translation>
    </message>
    <message>
        <source>Since this roll or ribbon was loaded</source>
        <translation>このロールまたはリボンの装着以降</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>最近のイベント</translation>
    </message>
    <message>
        <source>What the driver reports</source>
        <translation>ドライバーからの報告</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>ファームウェアの更新</translation>
    </message>
    <message>
        <source>Choose a printer to see everything about it.</source>
        <translation>プリンターを選択すると、すべての情報が表示されます。</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>プリンター「%1」はありません。</translation>
    </message>
    <message>
        <source>Firmware update: %p %</source>
        <translation>ファームウェアの更新: %p %</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>ファームウェアを更新できませんでした (エラー %1)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a name and its value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a severity and what happened</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>まだ何も起きていません。</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>履歴を読み取れません: %1</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>使用中のプリンター</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>オンライン</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
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
        <translation>テストラベルを印刷(&amp;T)…</translation>
    </message>
    <message>
        <source>Open the print &amp;queue</source>
        <translation>印刷キューを開く(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>診断(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>サポート用の記録を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Filter the printers</source>
        <translation>プリンターを絞り込む</translation>
    </message>
    <message>
        <source>Words of a name, model, driver, port, serial number, status or supply</source>
        <translation>名前、モデル、ドライバー、ポート、シリアル番号、状態、サプライに含まれる語</translation>
    </message>
    <message>
        <source>Worst first</source>
        <translation>悪い順</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>名前順</translation>
    </message>
    <message>
        <source>Order of the printers</source>
        <translation>プリンターの順序</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>No printer fits the filter. Press Escape to show all.</source>
        <translation>条件に合うプリンターがありません。Esc キーですべて表示します。</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>詳細をコピー(&amp;C)</translation>
    </message>
</context>
<context>
    <name>VxKit::ReadingTexts</name>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1 に削除</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Network printer, not watched</source>
        <translation>ネットワークプリンター (監視対象外)</translation>
    </message>
    <message>
        <source>Not watched: you may not manage it</source>
        <translation>監視対象外: 管理する権限がありません</translation>
    </message>
    <message>
        <source>Not watched yet</source>
        <translation>まだ監視していません</translation>
    </message>
    <message>
        <source>Replaced: watched again after a restart</source>
        <translation>置き換え済み: 再起動後に監視します</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>まだ報告なし</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <extracomment>%1 is such as &quot;5 min ago&quot;</extracomment>
        <translation>最後の報告: %1</translation>
    </message>
    <message>
        <source>active printer</source>
        <translation>使用中のプリンター</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 is a status, %2 is such as &quot;error&quot;</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 is a sentence without its full stop</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>This is the active printer.</source>
        <translation>これが使用中のプリンターです。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>ドライバー</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>%1 (%2, code %3)</source>
        <translation>%1 (%2、コード %3)</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>対処方法</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>最後の報告</translation>
    </message>
    <message>
        <source>Agent offline since %1</source>
        <extracomment>the agent on the printer&apos;s computer</extracomment>
        <translation>エージェントが %1 からオフライン</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>エージェントがオフライン</translation>
    </message>
    <message>
        <source>As it was at %1</source>
        <extracomment>the values are old</extracomment>
        <translation>%1 時点の状態</translation>
    </message>
</context>
<context>
    <name>VxKit::SlotSection</name>
    <message>
        <source>%1 days</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a percentage and amounts</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Will probably be used up in %1 (%2 to %3)</source>
        <translation>%1 後に使い切る見込み (%2～%3)</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusIcon</name>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>使用中のプリンター</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>古い値</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>ファームウェアの更新</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>サプライ</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>リボン</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Print spooler stopped</source>
        <translation>印刷スプーラー停止</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>権限なし</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notices muted</source>
        <translation>通知オフ</translation>
    </message>
</context>
</TS>
