<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DoctorDialog</name>
    <message>
        <source>Doctor</source>
        <translation>診断</translation>
    </message>
    <message>
        <source>Doctor: %1</source>
        <translation>診断: %1</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>確認しています…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>確認の結果</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>見つかった問題: %1</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピューター</translation>
    </message>
</context>
<context>
    <name>EventModel</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>内容</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Label printers</source>
        <translation>ラベルプリンター</translation>
    </message>
    <message>
        <source>&amp;Printers</source>
        <translation>プリンター(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Look for printers</source>
        <translation>プリンターを探す(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>サポート用の記録を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>診断(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>イベント(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>システムに合わせる</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>色(&amp;C)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>通知(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;None for an hour</source>
        <translation>1 時間通知しない(&amp;N)</translation>
    </message>
    <message>
        <source>None of the chosen &amp;printer</source>
        <translation>選んだプリンターの通知を出さない(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;All printers and kinds again</source>
        <translation>すべてのプリンターと種類を再び通知する(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Warn of few labels…</source>
        <translation>ラベルの残りが少ないとき警告する(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;Stay in the tray when the window is closed</source>
        <translation>ウィンドウを閉じても通知領域に残る(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>バージョン情報(&amp;A)…</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Events, the newest first</source>
        <translation>イベント (新しい順)</translation>
    </message>
    <message>
        <source>Details of the chosen printer</source>
        <translation>選んだプリンターの詳細</translation>
    </message>
    <message>
        <source>How many printers there are of each state</source>
        <translation>状態ごとのプリンターの数</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>保存しました: %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>%1 を保存できませんでした: %2</translation>
    </message>
    <message>
        <source>Printers: %1 with an error, %2 with a warning, %3 others</source>
        <translation>プリンター: エラー %1、警告 %2、その他 %3</translation>
    </message>
    <message>
        <source>The queue of %1 could not be opened.</source>
        <translation>%1 のキューを開けませんでした。</translation>
    </message>
    <message>
        <source>Print a test label</source>
        <translation>テストラベルを印刷</translation>
    </message>
    <message>
        <source>The command is sent to %1 as it is:</source>
        <translation>次のコマンドをそのまま %1 に送ります:</translation>
    </message>
    <message>
        <source>The command is in the queue of %1.</source>
        <translation>コマンドは %1 のキューに入りました。</translation>
    </message>
    <message>
        <source>Save a case for support</source>
        <translation>サポート用の記録を保存</translation>
    </message>
    <message>
        <source>Cases (*.vxcase)</source>
        <translation>記録 (*.vxcase)</translation>
    </message>
    <message>
        <source>Warn of few labels</source>
        <translation>ラベルの残りが少ないときの警告</translation>
    </message>
    <message>
        <source>Warn when fewer labels are left than (0: never):</source>
        <translation>残りのラベルがこの枚数を下回ったら警告する (0: しない):</translation>
    </message>
    <message>
        <source>Show the &amp;printer</source>
        <translation>プリンターを表示(&amp;P)</translation>
    </message>
    <message>
        <source>No notices of this p&amp;rinter</source>
        <translation>このプリンターを通知しない(&amp;R)</translation>
    </message>
    <message>
        <source>No notices of this &amp;kind</source>
        <translation>この種類を通知しない(&amp;K)</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer.</source>
        <translation>このコンピューターのラベルプリンターを表示します。</translation>
    </message>
    <message>
        <source>Version %1, with Qt %2 (used: %3)</source>
        <translation>バージョン %1、Qt %2 (使用中: %3)</translation>
    </message>
    <message>
        <source>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</source>
        <translation>著作権は VxPrinterStatus の作者にあり、MIT ライセンスで提供されます。Qt は GNU Lesser General Public License バージョン 3 に基づいて使用しています。SQLite はパブリックドメインです。全文はプログラムに付属しています。</translation>
    </message>
    <message>
        <source>Label printers: %1</source>
        <translation>ラベルプリンター: %1</translation>
    </message>
    <message>
        <source>Only for the printers of this computer. These are those of a site, as its agents publish them.</source>
        <translation>このコンピューターのプリンターにのみ使えます。表示しているのは、拠点のエージェントが公開しているプリンターです。</translation>
    </message>
    <message>
        <source>Shows the label printers of a site, as its agents publish them.</source>
        <translation>拠点のエージェントが公開しているラベルプリンターを表示します。</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>Looking for printers…</source>
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</source>
        <translation>印刷スプーラーにプリンターを問い合わせています。ネットワーク上のプリンターが応答しないと時間がかかります。</translation>
    </message>
    <message>
        <source>No label printer is installed</source>
        <translation>ラベルプリンターがインストールされていません</translation>
    </message>
    <message>
        <source>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</source>
        <translation>プリンターを USB で接続し、電源を入れ、ドライバーをインストールしてください。自動的にここに表示されます。他社のプリンターは表示されません。</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>もう一度探す(&amp;L)</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>印刷スプーラーが動作していません</translation>
    </message>
    <message>
        <source>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</source>
        <translation>これがないと何も印刷できず、プリンターの状態もわかりません。サービス「Print Spooler」(services.msc) を開始するか、コンピューターを再起動してください。プリンターは自動的に戻ります。</translation>
    </message>
    <message>
        <source>&amp;Show the last known state</source>
        <translation>最後にわかった状態を表示(&amp;S)</translation>
    </message>
    <message>
        <source>You may not manage these printers</source>
        <translation>これらのプリンターを管理する権限がありません</translation>
    </message>
    <message>
        <source>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</source>
        <translation>Windows はプリンターの状態を、管理する権限のある人にだけ知らせます。管理者に「このプリンターの管理」の権限 (プリンターのプロパティ、セキュリティ) を依頼してください。</translation>
    </message>
    <message>
        <source>&amp;Show the printers all the same</source>
        <translation>それでもプリンターを表示(&amp;S)</translation>
    </message>
    <message>
        <source>Connecting to the broker…</source>
        <translation>ブローカーに接続しています…</translation>
    </message>
    <message>
        <source>Nothing can be read from the broker</source>
        <translation>ブローカーから何も読み取れません</translation>
    </message>
    <message>
        <source>The connection is tried again, and the printers appear by themselves.</source>
        <translation>接続は再試行され、プリンターは自動的に表示されます。</translation>
    </message>
    <message>
        <source>No agent has published a printer</source>
        <translation>プリンターを公開したエージェントはありません</translation>
    </message>
    <message>
        <source>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</source>
        <translation>プリンターのある各コンピューターでは、エージェント (vxprintagent) がこのブローカーにプリンターを公開します。エージェントが動作していること、およびその構成にこのブローカーとこの拠点が指定されていることを確認してください。プリンターは自動的にここに表示されます。</translation>
    </message>
</context>
<context>
    <name>OverviewBar</name>
    <message>
        <source>%1 error</source>
        <translation>エラー %1</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>エラー %1</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>警告 %1</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>警告 %1</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>情報 %1</translation>
    </message>
    <message>
        <source>%1 notices</source>
        <translation>情報 %1</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>準備完了 %1</translation>
    </message>
    <message>
        <source>Show only these printers; press again to show all</source>
        <translation>これらのプリンターだけを表示 (もう一度押すとすべて表示)</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>不明なオプション「%1」です。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>不明なオプション: %1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>「%1」の後に値がありません。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>「%1」の後に不要な値があります。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SiteBar</name>
    <message>
        <source>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</source>
        <translation>%1 からブローカーへの接続がありません。表示はすべてその時点のものです。接続は再試行されます。</translation>
    </message>
    <message>
        <source>Agents offline: %1 and %2 more</source>
        <translation>オフラインのエージェント: %1 ほか %2 件</translation>
    </message>
    <message>
        <source>Agents offline: %1</source>
        <translation>オフラインのエージェント: %1</translation>
    </message>
    <message>
        <source>Messages that cannot be read: %1. The last one: %2</source>
        <translation>読み取れないメッセージ: %1 件。最後のもの: %2</translation>
    </message>
    <message>
        <source>There are more printers or agents than this program shows. Messages left out: %1</source>
        <translation>このプログラムの表示上限を超えるプリンターまたはエージェントがあります。除外したメッセージ: %1 件</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;No notices for an hour</source>
        <translation>1 時間通知しない(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>print a log of what happened to printers</source>
        <translation>プリンターで起きたことのログを表示する</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>1 つのファイル</translation>
    </message>
    <message>
        <source>log: only events of the printer NAME and of the spooler</source>
        <translation>log: プリンター NAME とスプーラーのイベントのみ</translation>
    </message>
    <message>
        <source>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</source>
        <translation>log: TIME 以降のイベントのみ: 2026-11-22、2026-11-22T10:30、10:30 (今日)、または 30m、2h、7d 前</translation>
    </message>
    <message>
        <source>log: only events that are ok, information, warning or error, or worse</source>
        <translation>log: ok、information、warning、error のいずれか以上に重大なイベントのみ</translation>
    </message>
    <message>
        <source>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</source>
        <translation>--since: 2026-11-22、2026-11-22T10:30、10:30、2h のように指定してください: 「%1」</translation>
    </message>
    <message>
        <source>--severity: expected ok, information, warning or error, found &quot;%1&quot;</source>
        <translation>--severity: ok、information、warning、error のいずれかを指定してください: 「%1」</translation>
    </message>
    <message>
        <source>lines that are no events and were left out: %1</source>
        <translation>イベントではないため省略した行の数: %1</translation>
    </message>
    <message>
        <source>There are no such events.</source>
        <translation>該当するイベントはありません。</translation>
    </message>
    <message>
        <source>%1 (see %2 --help)</source>
        <translation>%1 (%2 --help を参照)</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>標準出力に書き込めませんでした: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</source>
        <translation>終了ステータス: 0 成功、1 失敗、2 使い方の誤り。出力を書き込めない場合は失敗です。ただし、読み手がパイプを閉じた場合を除きます。</translation>
    </message>
    <message>
        <source>the character U+%1 is invisible; remove it</source>
        <translation>文字 U+%1 は表示されません。削除してください</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>longer than %1 characters</source>
        <translation>%1 文字を超えています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number between %2 and %3</source>
        <translation>「%1」は %2 から %3 までの整数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</source>
        <translation>「%1」は SKU ではありません: A から Z の英字、数字、ピリオド、アンダースコア、ハイフンで最大 %2 文字、先頭は英字または数字です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour of the form #RRGGBB</source>
        <translation>「%1」は #RRGGBB 形式の色ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>「%1」は yes でも no でもありません</translation>
    </message>
    <message>
        <source>%1: no such file, or it cannot be read</source>
        <translation>%1: ファイルがないか、読み取れません</translation>
    </message>
    <message>
        <source>the column %1 is missing</source>
        <translation>列 %1 がありません</translation>
    </message>
    <message>
        <source>the same language as the column %1</source>
        <translation>列 %1 と同じ言語です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number between %2 and %3</source>
        <translation>「%1」は %2 から %3 までの数値ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not greater than 0</source>
        <translation>「%1」は 0 より大きくありません</translation>
    </message>
    <message>
        <source>duplicate colour &quot;%1&quot;</source>
        <translation>色「%1」が重複しています</translation>
    </message>
    <message>
        <source>duplicate material %1</source>
        <translation>素材 %1 が重複しています</translation>
    </message>
    <message>
        <source>duplicate format %1</source>
        <translation>形式 %1 が重複しています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>「%1」は %2 のいずれでもありません</translation>
    </message>
    <message>
        <source>duplicate number %1</source>
        <translation>番号 %1 が重複しています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a plain file name</source>
        <translation>「%1」は単純なファイル名ではありません</translation>
    </message>
    <message>
        <source>%1%2 cannot be read</source>
        <translation>%1%2 を読み取れません</translation>
    </message>
    <message>
        <source>%1%2 is larger than %3 KiB</source>
        <translation>%1%2 は %3 KiB を超えています</translation>
    </message>
    <message>
        <source>%1%2 is not a readable image</source>
        <translation>%1%2 は読み取り可能な画像ではありません</translation>
    </message>
    <message>
        <source>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</source>
        <translation>%1%2 は %3 x %4 ピクセルです。最大は %5 x %5 です</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>行が %1 個を超えています</translation>
    </message>
    <message>
        <source>duplicate SKU %1</source>
        <translation>SKU %1 が重複しています</translation>
    </message>
    <message>
        <source>a second colour and its width must be given together or not at all</source>
        <translation>2 番目の色とその幅は、両方を指定するか、どちらも指定しないでください</translation>
    </message>
    <message>
        <source>a label length is given, but the format is continuous</source>
        <translation>ラベルの長さが指定されていますが、形式は連続紙です</translation>
    </message>
    <message>
        <source>empty, but the format is not continuous</source>
        <translation>空ですが、形式は連続紙ではありません</translation>
    </message>
    <message>
        <source>a gap is given, but there is only one label across</source>
        <translation>間隔が指定されていますが、横に並ぶラベルは 1 枚だけです</translation>
    </message>
    <message>
        <source>empty, but there are several labels across</source>
        <translation>空ですが、横に複数のラベルが並んでいます</translation>
    </message>
    <message>
        <source>%1 is a supply&apos;s SKU</source>
        <translation>%1 はサプライの SKU です</translation>
    </message>
    <message>
        <source>%1 panels; a ribbon has 1 to %2</source>
        <translation>パネルが %1 個あります。リボンのパネルは 1 から %2 個です</translation>
    </message>
    <message>
        <source>duplicate print setting for panel %1 of %2 with %3</source>
        <translation>%2 のパネル %1 と %3 の印刷設定が重複しています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same model as &quot;%2&quot;</source>
        <translation>「%1」は「%2」と同じ機種です</translation>
    </message>
    <message>
        <source>duplicate format %1 for %2</source>
        <translation>%2 の形式 %1 が重複しています</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1: ディレクトリがありません</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 はファイルではありません</translation>
    </message>
    <message>
        <source>%1: cannot be created in %2: %3</source>
        <translation>%1: %2 に作成できません: %3</translation>
    </message>
    <message>
        <source>%1: larger than 16 MiB</source>
        <translation>%1: 16 MiB を超えています</translation>
    </message>
    <message>
        <source>%1:%2, column %3 (%4)</source>
        <translation>%1:%2、列 %3 (%4)</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>列が %1 個を超えています</translation>
    </message>
    <message>
        <source>a carriage return without a line feed</source>
        <translation>改行のない復帰文字があります</translation>
    </message>
    <message>
        <source>text after a closing quotation mark</source>
        <translation>閉じ引用符の後にテキストがあります</translation>
    </message>
    <message>
        <source>a field of more than %1 characters</source>
        <translation>%1 文字を超えるフィールドがあります</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>NUL 文字があります</translation>
    </message>
    <message>
        <source>a quotation mark inside a field that is not quoted</source>
        <translation>引用符で囲まれていないフィールドの中に引用符があります</translation>
    </message>
    <message>
        <source>an unclosed quotation mark</source>
        <translation>閉じられていない引用符があります</translation>
    </message>
    <message>
        <source>empty; expected a line of column names</source>
        <translation>空です。列名の行が必要です</translation>
    </message>
    <message>
        <source>a column without a name</source>
        <translation>名前のない列があります</translation>
    </message>
    <message>
        <source>duplicate column</source>
        <translation>列が重複しています</translation>
    </message>
    <message>
        <source>%1 fields, but there are %2 columns</source>
        <translation>フィールドが %1 個ありますが、列は %2 個です</translation>
    </message>
    <message>
        <source>the panels of ribbon %1 are not numbered consecutively from 1</source>
        <translation>リボン %1 のパネルに 1 からの連番が付いていません</translation>
    </message>
    <message>
        <source>%1 is both a supply and a ribbon</source>
        <translation>%1 はサプライでもありリボンでもあります</translation>
    </message>
    <message>
        <source>supply %1 has a label length and a continuous format, or neither</source>
        <translation>サプライ %1 は、ラベルの長さと連続紙の形式の両方を持つか、どちらも持っていません</translation>
    </message>
    <message>
        <source>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</source>
        <translation>プリンターの機種「%1」の形式に 0 からの連番が付いていません</translation>
    </message>
    <message>
        <source>the language 0 is &quot;%1&quot;, not English</source>
        <translation>言語 0 は「%1」で、英語ではありません</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>破損しています: %1</translation>
    </message>
    <message>
        <source>its tables are not those of schema version %1</source>
        <translation>表がスキーマのバージョン %1 のものではありません</translation>
    </message>
    <message>
        <source>%1: not a file, so it is not replaced</source>
        <translation>%1: ファイルではないため、置き換えません</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>サプライ %1、リボン %2、印刷設定 %3、言語 %4</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1: 正常、%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known language</source>
        <translation>「%1」は既知の言語ではありません</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>サプライ</translation>
    </message>
    <message>
        <source>material</source>
        <translation>素材</translation>
    </message>
    <message>
        <source>format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>second colour</source>
        <translation>2 番目の色</translation>
    </message>
    <message>
        <source>stripe</source>
        <translation>ストライプ</translation>
    </message>
    <message>
        <source>width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>label length</source>
        <translation>ラベルの長さ</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>区切り</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横向き</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>side by side</source>
        <translation>横に並ぶ枚数</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>printed with</source>
        <translation>印刷に使うリボン</translation>
    </message>
    <message>
        <source>%1 panel %2: heat %3, offset %4, speed %5, tension %6</source>
        <translation>%1 パネル %2: 熱 %3、オフセット %4、速度 %5、張力 %6</translation>
    </message>
    <message>
        <source>ribbon</source>
        <translation>リボン</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>%1: no supply or ribbon &quot;%2&quot;</source>
        <translation>%1: サプライまたはリボン「%2」がありません</translation>
    </message>
    <message>
        <source>there is no method %1</source>
        <translation>メソッド %1 はありません</translation>
    </message>
    <message>
        <source>the arguments do not fit %1</source>
        <translation>引数が %1 に合いません</translation>
    </message>
    <message>
        <source> or </source>
        <translation> または </translation>
    </message>
    <message>
        <source>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</source>
        <translation>不明なサービス「%1」です。supplyd、m4、printqd、status、番号、または list が表示する名前が必要です</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>a SERVICE</source>
        <translation>SERVICE</translation>
    </message>
    <message>
        <source>a SERVICE, a METHOD and its arguments</source>
        <translation>SERVICE、METHOD とその引数</translation>
    </message>
    <message>
        <source>expected list, describe, call or watch</source>
        <translation>list、describe、call、watch のいずれかが必要です</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; %2</source>
        <translation>不明なコマンド「%1」です。%2</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1 の引数: %2</translation>
    </message>
    <message>
        <source>Calls the endpoints that run for this user.</source>
        <translation>このユーザー用に動作しているエンドポイントを呼び出します。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>コマンド:</translation>
    </message>
    <message>
        <source>list the endpoints: name, service, process, application</source>
        <translation>エンドポイントを一覧表示する: 名前、サービス、プロセス、アプリケーション</translation>
    </message>
    <message>
        <source>list the methods and signals of an endpoint</source>
        <translation>エンドポイントのメソッドとシグナルを一覧表示する</translation>
    </message>
    <message>
        <source>call a method and print its result</source>
        <translation>メソッドを呼び出して結果を表示する</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON を出力する</translation>
    </message>
    <message>
        <source>wait up to MS milliseconds for an endpoint (10000)</source>
        <translation>エンドポイントを最大 MS ミリ秒待つ (10000)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>このヘルプを表示する</translation>
    </message>
    <message>
        <source>what follows is not an option</source>
        <translation>以降はオプションとして扱わない</translation>
    </message>
    <message>
        <source>print a line of JSON for each emission of the signals, or of all signals, until interrupted</source>
        <translation>指定したシグナル（指定がなければすべて）が発信されるたびに、中断されるまで JSON を 1 行ずつ表示する</translation>
    </message>
    <message>
        <source>watch for SECONDS only</source>
        <translation>SECONDS 秒間だけ監視する</translation>
    </message>
    <message>
        <source>--for takes a number of seconds</source>
        <translation>--for には秒数を指定します</translation>
    </message>
    <message>
        <source>%1 takes no --for</source>
        <translation>%1 に --for は使えません</translation>
    </message>
    <message>
        <source>a SERVICE and SIGNALs</source>
        <translation>SERVICE と SIGNAL</translation>
    </message>
    <message>
        <source>%1: it has no signals</source>
        <translation>%1: シグナルがありません</translation>
    </message>
    <message>
        <source>%1: the connection ended; waiting for the endpoint</source>
        <translation>%1: 接続が終了しました。エンドポイントを待っています</translation>
    </message>
    <message>
        <source>%1: watching again; what changed meanwhile was missed</source>
        <translation>%1: 監視を再開しました。その間の変更は表示されません</translation>
    </message>
    <message>
        <source>--timeout takes a number of milliseconds</source>
        <translation>--timeout にはミリ秒数を指定します</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>不明なオプション %1 です</translation>
    </message>
    <message>
        <source>--virtual: this build uses the system&apos;s own print spooler</source>
        <translation>--virtual: このビルドはシステムの印刷スプーラーを使用します</translation>
    </message>
    <message>
        <source>print JSON: an array, or one object per line</source>
        <translation>JSON を出力する: 配列、または 1 行に 1 オブジェクト</translation>
    </message>
    <message>
        <source>watch: stop after SECONDS; by default, when interrupted</source>
        <translation>watch: SECONDS 秒後に終了する。既定では中断されたときに終了する</translation>
    </message>
    <message>
        <source>append the library&apos;s log to FILE</source>
        <translation>ライブラリのログを FILE に追記する</translation>
    </message>
    <message>
        <source>watch: speed up the virtual printers&apos; story by FACTOR</source>
        <translation>watch: 仮想プリンターの進行を FACTOR 倍速にする</translation>
    </message>
    <message>
        <source>title: all codes, with what they mean and what to do</source>
        <translation>title: すべてのコードとその意味、対処方法</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>バージョンを表示する</translation>
    </message>
    <message>
        <source>Lists and watches the label printers of the print spooler.</source>
        <translation>印刷スプーラーのラベルプリンターを一覧表示し、監視します。</translation>
    </message>
    <message>
        <source>--%1: expected a file name</source>
        <translation>--%1: ファイル名が必要です</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</source>
        <translation>--%1: 0 より大きく 1000000 以下の数値が必要です。指定されたもの: 「%2」</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected one of %2</source>
        <translation>不明なコマンド「%1」です。次のいずれかが必要です: %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 takes %2, found %3</source>
        <translation>%1 の引数: %2。指定されたもの: %3</translation>
    </message>
    <message>
        <source>expected a command: %1</source>
        <translation>コマンドが必要です: %1</translation>
    </message>
    <message>
        <source>--%1 is valid only with %2</source>
        <translation>--%1 は %2 でのみ有効です</translation>
    </message>
    <message>
        <source>list the printers of the print spooler</source>
        <translation>印刷スプーラーのプリンターを一覧表示する</translation>
    </message>
    <message>
        <source>show the status of all label printers, or of one</source>
        <translation>すべてのラベルプリンター、または 1 台の状態を表示する</translation>
    </message>
    <message>
        <source>at most one printer</source>
        <translation>最大 1 台のプリンター</translation>
    </message>
    <message>
        <source>send a command in the printer&apos;s own language</source>
        <translation>プリンター固有の言語でコマンドを送信する</translation>
    </message>
    <message>
        <source>a printer and a command</source>
        <translation>プリンターとコマンド</translation>
    </message>
    <message>
        <source>print the title of a status code</source>
        <translation>状態コードの題名を表示する</translation>
    </message>
    <message>
        <source>a status code or --all</source>
        <translation>状態コードまたは --all</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2</source>
        <translation>ログ %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>not managed</source>
        <translation>管理対象外</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>There are no printers, or the print spooler is not running.</source>
        <translation>プリンターがないか、印刷スプーラーが実行されていません。</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>PORT</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>DRIVER</source>
        <translation>ドライバー</translation>
    </message>
    <message>
        <source>FLAGS</source>
        <translation>フラグ</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>online</source>
        <translation>オンライン</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>リボン 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>リボン 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>There are no label printers yet.</source>
        <translation>ラベルプリンターはまだありません。</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>SUPPLY</source>
        <translation>サプライ</translation>
    </message>
    <message>
        <source>RIBBON 1</source>
        <translation>リボン 1</translation>
    </message>
    <message>
        <source>RIBBON 2</source>
        <translation>リボン 2</translation>
    </message>
    <message>
        <source>FIRMWARE</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>active</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</source>
        <translation>印刷ジョブ %1、「%2」: %3、ページ数: %4、バイト数: %5。</translation>
    </message>
    <message>
        <source>Sent to %1: %2</source>
        <translation>%1 に送信しました: %2</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>中断されました</translation>
    </message>
    <message>
        <source>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</source>
        <translation>title には -2147483648 から 2147483647 までの状態コードを指定します。指定されたもの: 「%1」</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>対処方法: %1</translation>
    </message>
    <message>
        <source>title takes a status code or --all, not both</source>
        <translation>title には状態コードまたは --all のどちらか一方だけを指定します</translation>
    </message>
    <message>
        <source>title takes a status code or --all, found nothing</source>
        <translation>title には状態コードまたは --all を指定します。何も指定されていません</translation>
    </message>
    <message>
        <source>send: wait until the job was printed or has left the queue</source>
        <translation>send: ジョブが印刷されるか、キューからなくなるまで待つ</translation>
    </message>
    <message>
        <source>send: also to a printer of another maker, also nothing</source>
        <translation>send: 他社のプリンターにも、空のコマンドも送信する</translation>
    </message>
    <message>
        <source>Print job %1, bytes: %2.</source>
        <translation>印刷ジョブ %1、バイト数: %2。</translation>
    </message>
    <message>
        <source>interrupted while print job %1 was in the queue of &quot;%2&quot;</source>
        <translation>印刷ジョブ %1 が「%2」のキューにある間に中断されました</translation>
    </message>
    <message>
        <source>--force sends it nevertheless.</source>
        <translation>--force を使うと送信されます。</translation>
    </message>
    <message>
        <source>the command was not sent: %1</source>
        <translation>コマンドは送信されませんでした: %1</translation>
    </message>
    <message>
        <source>print job %1 was not printed: %2</source>
        <translation>印刷ジョブ %1 は印刷されませんでした: %2</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</source>
        <translation>サプライとリボンの名前がありません: カタログ %1 から何も読み取れません。原因は「rolldb check」で確認できます</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</source>
        <translation>サプライとリボンの名前がありません: カタログ %1 がありません。そこに置くか、--catalogue または VX_ROLL_DB で別のカタログを指定してください</translation>
    </message>
    <message>
        <source>watch: append what happens to FILE as well</source>
        <translation>watch: 起きたことを FILE にも追記する</translation>
    </message>
    <message>
        <source>watch: print seconds since the start, not the time of day</source>
        <translation>watch: 時刻ではなく開始からの秒数を出力する</translation>
    </message>
    <message>
        <source>watch: print every change of a level</source>
        <translation>watch: 残量の変化をすべて出力する</translation>
    </message>
    <message>
        <source>watch --json: print the signals that a host receives</source>
        <translation>watch --json: ホストプログラムが受け取るシグナルを出力する</translation>
    </message>
    <message>
        <source>take the names of supplies and ribbons from FILE</source>
        <translation>サプライとリボンの名前を FILE から取得する</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>FILE に記述された仮想プリンター、または組み込みのもの (built-in) を使う</translation>
    </message>
    <message>
        <source>print this help as JSON</source>
        <translation>このヘルプを JSON として出力する</translation>
    </message>
    <message>
        <source>print this help, or that of a command</source>
        <translation>このヘルプ、またはコマンドのヘルプを表示する</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</source>
        <translation>色と素材の名前は、--catalogue または環境変数 VX_ROLL_DB で別のファイルを指定しない限り、このプログラムと同じ場所にある roll.db、またはプログラムと一緒にインストールされたカタログから取得されます。システムのプリンターが見えるのは Windows 版だけです。その他の版には仮想プリンターだけがあります。--virtual で指定したもの、VX_VIRTUAL_FLEET で指定したもの、または組み込みの 6 台です。</translation>
    </message>
    <message>
        <source>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>表は端末の幅、COLUMNS で指定した幅、または 80 桁に収まります。短縮した部分は省略記号で終わります。出力が端末でない場合、または NO_COLOR が設定されている場合、色は付きません。端末を制御し得る文字は \u001b のように表示されます。</translation>
    </message>
    <message>
        <source>help takes at most one command, found &quot;%1&quot;</source>
        <translation>help に指定できるコマンドは 1 つまでです (指定: &quot;%1&quot;)</translation>
    </message>
    <message>
        <source>print a line for each thing that happens to the label printers</source>
        <translation>ラベルプリンターで何かが起きるたびに 1 行を出力する</translation>
    </message>
    <message>
        <source>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</source>
        <translation>最初に現在のプリンターを表示し、その後は中断されるまで出来事ごとに 1 行を出力します。プリンターを指定すると、そのプリンターの出来事だけを出力します。減り続けるだけの残量は、25、10、5 % になったときに出力します。--json では各行がオブジェクトで、最初のものにすべてのプリンターが入ります。</translation>
    </message>
    <message>
        <source>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>プリンター名の大文字と小文字は区別されません。--json では、表示するすべてのプリンターから報告があり、その後 0.1 秒間報告がなくなるまで、最長 2 秒待ちます。その後、それまでに届いた報告のために最大 0.5 秒を使います。</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>プリンター &quot;%1&quot; はありません。%2 のことですか?</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</source>
        <translation>プリンター &quot;%1&quot; はありません。&quot;vxprintmon list&quot; ですべてのプリンターを確認できます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</source>
        <translation>&quot;%1&quot; の状態はありません: ドライバー &quot;%2&quot; はラベルプリンターのメーカーのものではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</source>
        <translation>&quot;%1&quot; の状態はありません: ドライバー &quot;%2&quot; は対応していない機種のものです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</source>
        <translation>&quot;%1&quot; の状態はありません: 検出されたときからオフラインです。電源を入れ、ケーブルを確認してください</translation>
    </message>
    <message>
        <source>Network printer</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Not managed</source>
        <translation>管理対象外</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and its severity</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>種類不明</translation>
    </message>
    <message>
        <source>%1 % %2</source>
        <comment>how much of what is left</comment>
        <translation>%1 % %2</translation>
    </message>
    <message>
        <source>%1, level not known</source>
        <translation>%1、残量不明</translation>
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
        <source>no, it is a network printer</source>
        <translation>いいえ、ネットワークプリンターです</translation>
    </message>
    <message>
        <source>no, you may not manage it</source>
        <translation>いいえ、管理する権限がありません</translation>
    </message>
    <message>
        <source>no, it was removed and added again</source>
        <translation>いいえ、削除後に再び追加されました</translation>
    </message>
    <message>
        <source>no, it was removed</source>
        <translation>いいえ、削除されました</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか %2 台</translation>
    </message>
    <message>
        <source>Offline since they were found, so without a status: %1</source>
        <translation>検出されたときからオフラインのため状態なし: %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 の残り</translation>
    </message>
    <message>
        <source>Active printer: %1</source>
        <translation>使用中のプリンター: %1</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>意味</translation>
    </message>
    <message>
        <source>what to do</source>
        <translation>対処方法</translation>
    </message>
    <message>
        <source>boot loader</source>
        <translation>ブートローダー</translation>
    </message>
    <message>
        <source>model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>driver</source>
        <translation>ドライバー</translation>
    </message>
    <message>
        <source>port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>監視対象</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2; it is tried again every second</source>
        <translation>ログ %1 に書き込めません: %2。1 秒ごとに再試行します</translation>
    </message>
    <message>
        <source>--signals is valid only with --json</source>
        <translation>--signals は --json でのみ有効です</translation>
    </message>
    <message>
        <source>watch --signals takes no printers: it prints every signal</source>
        <translation>watch --signals にはプリンターを指定できません: すべてのシグナルを出力します</translation>
    </message>
    <message>
        <source>--relative and --verbose are not valid with --json</source>
        <translation>--relative と --verbose は --json と併用できません</translation>
    </message>
    <message>
        <source> (was %1)</source>
        <comment>after what it is now</comment>
        <translation> (以前: %1)</translation>
    </message>
    <message>
        <source>Supply removed</source>
        <translation>サプライが取り外されました</translation>
    </message>
    <message>
        <source>Ribbon 1 removed</source>
        <translation>リボン 1 が取り外されました</translation>
    </message>
    <message>
        <source>Ribbon 2 removed</source>
        <translation>リボン 2 が取り外されました</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>%1 がセットされました</translation>
    </message>
    <message>
        <source>Ribbon 1: %1 loaded</source>
        <translation>リボン 1: %1 がセットされました</translation>
    </message>
    <message>
        <source>Ribbon 2: %1 loaded</source>
        <translation>リボン 2: %1 がセットされました</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>ファームウェア %1</translation>
    </message>
    <message>
        <source>now the active printer</source>
        <translation>使用中のプリンターになりました</translation>
    </message>
    <message>
        <source>Firmware update: %1 %</source>
        <translation>ファームウェアの更新: %1 %</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 used up</source>
        <translation>%1 を使い切りました</translation>
    </message>
    <message>
        <source> (was: %1)</source>
        <comment>a status, after what it is now</comment>
        <translation> (以前: %1)</translation>
    </message>
    <message>
        <source>, was %1</source>
        <comment>a level, after what it is now</comment>
        <translation>、以前 %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前が変わりました</translation>
    </message>
    <message>
        <source>help takes at most one command</source>
        <translation>help に指定できるコマンドは 1 つまでです</translation>
    </message>
    <message>
        <source>print this help, or more about a command</source>
        <translation>このヘルプ、またはコマンドの詳しい説明を表示する</translation>
    </message>
    <message>
        <source>empty; expected a text of at most %1 characters</source>
        <translation>空です。%1 文字以内のテキストが必要です</translation>
    </message>
    <message>
        <source>%1: there is also %2; remove one of them</source>
        <translation>%1: %2 もあります。どちらかを削除してください</translation>
    </message>
    <message>
        <source>not a column of this table; expected %1</source>
        <translation>この表の列ではありません。使える列: %1</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language; expected %1 and languages such as en or de</source>
        <translation>この表の列でも既知の言語でもありません。使える列は %1 と、en や de などの言語です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in %2</source>
        <translation>「%1」は %2 にありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a space; expected a key without spaces</source>
        <translation>「%1」に空白があります。キーに空白は使えません</translation>
    </message>
    <message>
        <source>format %1 is not in %2</source>
        <translation>形式 %1 は %2 にありません</translation>
    </message>
    <message>
        <source>material %1 is not in %2</source>
        <translation>材質 %1 は %2 にありません</translation>
    </message>
    <message>
        <source>KINDS</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>RIBBON</source>
        <translation>リボン</translation>
    </message>
    <message>
        <source>NUMBERS</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>it has content that the tables cannot express</source>
        <translation>表では表せない内容があります</translation>
    </message>
    <message>
        <source>%1: files written: %2</source>
        <translation>%1: 書き込んだファイル数 %2</translation>
    </message>
    <message>
        <source>%1: it cannot be written as tables:</source>
        <translation>%1: 表として書き出せません:</translation>
    </message>
    <message>
        <source>create a supply database from the tables in DIRECTORY</source>
        <translation>DIRECTORY の表から消耗品データベースを作成する</translation>
    </message>
    <message>
        <source>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</source>
        <translation>表の誤りをすべて (50 件まで) 表示し、誤りがないときだけ FILE を書き込みます。表の区切りはコンマ、セミコロン、タブのいずれかで、タブの場合は .tsv ファイルでもかまいません。</translation>
    </message>
    <message>
        <source>verify a supply database or a directory of tables</source>
        <translation>消耗品データベース、または表のあるディレクトリを検査する</translation>
    </message>
    <message>
        <source>Nothing is written. All that is wrong is printed, up to 50 lines.</source>
        <translation>何も書き込みません。誤りをすべて、50 行まで表示します。</translation>
    </message>
    <message>
        <source>list the supplies and ribbons in FILE</source>
        <translation>FILE にある消耗品とリボンを一覧表示する</translation>
    </message>
    <message>
        <source>With the numbers in identifiers that stand for them, and their names.</source>
        <translation>識別子の中でそれを表す番号と、名前も表示します。</translation>
    </message>
    <message>
        <source>print what FILE has about a supply or a ribbon</source>
        <translation>消耗品またはリボンについて FILE にある内容を表示する</translation>
    </message>
    <message>
        <source>print what the identifier of a roll or a ribbon stands for</source>
        <translation>ロールまたはリボンの識別子が何を表すかを表示する</translation>
    </message>
    <message>
        <source>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</source>
        <translation>IDENTIFIER はドライバーが公開する値で、消耗品の 20 文字またはリボンの番号です。FILE にない場合、終了ステータスは 1 です。</translation>
    </message>
    <message>
        <source>write the tables and pictures of FILE to DIRECTORY</source>
        <translation>FILE の表と画像を DIRECTORY に書き出す</translation>
    </message>
    <message>
        <source>A database that is built from them has the same bytes.</source>
        <translation>それから作成したデータベースは、バイト単位で同じになります。</translation>
    </message>
    <message>
        <source>write tables with examples to DIRECTORY</source>
        <translation>例の入った表を DIRECTORY に書き出す</translation>
    </message>
    <message>
        <source>A start for a catalogue of your own: every column with its name and an example.</source>
        <translation>独自のカタログの出発点です。すべての列に名前と例があります。</translation>
    </message>
    <message>
        <source>Builds and reads the supply databases of printers.</source>
        <translation>プリンターの消耗品データベースを作成し、読み取ります。</translation>
    </message>
    <message>
        <source>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</source>
        <translation>名前を英語ではなく言語 TAG (「de」「ja」など) で表示する</translation>
    </message>
    <message>
        <source>replace existing files</source>
        <translation>既存のファイルを置き換える</translation>
    </message>
    <message>
        <source>not UTF-8 text; save the table as UTF-8</source>
        <translation>UTF-8 のテキストではありません。表を UTF-8 で保存してください</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row of %2</source>
        <translation>%1 の行が、存在しない %2 の行を参照しています</translation>
    </message>
    <message>
        <source>English is missing</source>
        <translation>英語がありません</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 はすでにあります。--force で置き換えられます</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message>
        <source>not a directory</source>
        <translation>ディレクトリではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what a printer reports when nothing is loaded</source>
        <translation>「%1」は、何も装着されていないときにプリンターが返す値です</translation>
    </message>
    <message>
        <source>no supply of the kind %1</source>
        <translation>種類 %1 の消耗品はありません</translation>
    </message>
    <message>
        <source>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</source>
        <translation>種類 %2 のロール %1。新品のときの長さは %3 フィート (%4 インチ) です。</translation>
    </message>
    <message>
        <source>The catalogue has another length, so the library cannot tell how much of the roll is left.</source>
        <translation>カタログの長さと異なるため、ロールの残量をライブラリーは計算できません。</translation>
    </message>
    <message>
        <source>no ribbon with the number %1</source>
        <translation>番号 %1 のリボンはありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a SKU; show prints what the file has about it</source>
        <translation>「%1」は SKU です。ファイルにある内容は show で表示できます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</source>
        <translation>「%1」は識別子ではありません。消耗品の 20 文字 (16 進 8 桁、10 進 6 桁、16 進 6 桁) またはリボンの番号 (1 から %2) が必要です</translation>
    </message>
    <message>
        <source>%1; similar: %2</source>
        <translation>%1。似たもの: %2</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... ほか %1 件</translation>
    </message>
    <message>
        <source>kinds</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1、%2 バイト</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>prints on</source>
        <translation>印刷対象</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</source>
        <translation>SERVICE は supplyd、m4、printqd、status、番号、または list が表示する名前です。</translation>
    </message>
    <message>
        <source>An endpoint that does not answer is listed too, with the reason in place of its process.</source>
        <translation>応答しないエンドポイントも、プロセスの代わりに理由を付けて一覧に表示します。</translation>
    </message>
    <message>
        <source>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</source>
        <translation>テキストの引数はそのまま、それ以外は JSON として読み取ります。同じ名前のメソッドが複数ある場合は、引数に合うものを呼び出します。</translation>
    </message>
    <message>
        <source>If the endpoint goes away, watch waits for it and goes on.</source>
        <translation>エンドポイントがなくなると、watch は待機し、戻りしだい再開します。</translation>
    </message>
    <message>
        <source>check everything from the spooler to the catalogue</source>
        <translation>スプーラーからカタログまですべてを検査する</translation>
    </message>
    <message>
        <source>show all label printers in a live table</source>
        <translation>すべてのラベルプリンターを随時更新される表に表示する</translation>
    </message>
    <message>
        <source>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</source>
        <translation>サービス「Spooler」を開始してください。管理者として「net start spooler」を実行します。</translation>
    </message>
    <message>
        <source>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</source>
        <translation>サービス「Spooler」を再起動してください。管理者として「net stop spooler」と「net start spooler」を実行します。</translation>
    </message>
    <message>
        <source>Connect the printer by USB, switch it on and install its driver.</source>
        <translation>プリンターを USB で接続して電源を入れ、ドライバーをインストールしてください。</translation>
    </message>
    <message>
        <source>Remove the printer from Windows and install it again with its driver.</source>
        <translation>プリンターを Windows から削除し、ドライバーとともにもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>Take the name from the output of &quot;vxprintmon list&quot;.</source>
        <translation>「vxprintmon list」に表示される名前を使ってください。</translation>
    </message>
    <message>
        <source>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</source>
        <translation>プリンターのプロパティの「セキュリティ」で、このプリンターの管理を許可するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</source>
        <translation>Windows でプリンターのキューを開き、メニューの「プリンターをオフラインで使用する」をオフにしてください。</translation>
    </message>
    <message>
        <source>Switch the printer on and check its USB cable at both ends.</source>
        <translation>プリンターの電源を入れ、USB ケーブルの両端を確認してください。</translation>
    </message>
    <message>
        <source>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</source>
        <translation>プリンターを USB でこのコンピューターに接続するか、プリンターが接続されているコンピューターでこのプログラムを実行してください。</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</source>
        <translation>Windows でプリンターのキューを開いてください。一時停止中であれば再開し、報告されている内容に対処してください。</translation>
    </message>
    <message>
        <source>Switch the printer off and on again. If that does not help, install its current driver.</source>
        <translation>プリンターの電源を入れ直してください。解決しない場合は、最新のドライバーをインストールしてください。</translation>
    </message>
    <message>
        <source>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</source>
        <translation>プリンターの USB ケーブルを差し直すか、プリンターのプロパティの「ポート」で接続先のポートを選択してください。</translation>
    </message>
    <message>
        <source>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</source>
        <translation>roll.db ファイルをプログラムと同じ場所に置くか、--catalogue または VX_ROLL_DB で指定してください。「rolldb build」で作成でき、「rolldb check」で問題点を確認できます。</translation>
    </message>
    <message>
        <source>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</source>
        <translation>最新の roll.db を入手するか、セットされているものを表に追加して「rolldb build」を実行してください。</translation>
    </message>
    <message>
        <source>If other programs are to ask for the printers, start the program that watches them.</source>
        <translation>他のプログラムからプリンターを問い合わせる場合は、プリンターを監視するプログラムを起動してください。</translation>
    </message>
    <message>
        <source>End the program that does not answer, and start it again.</source>
        <translation>応答しないプログラムを終了し、もう一度起動してください。</translation>
    </message>
    <message>
        <source>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</source>
        <translation>他のユーザーがそこに置いたものを削除するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</source>
        <translation>何もする必要はありません。監視したいラベルプリンターである場合は、そのドライバーをインストールしてください。</translation>
    </message>
    <message>
        <source>Nothing needs to be done: not every printer has this value.</source>
        <translation>何もする必要はありません。この値はすべてのプリンターにあるわけではありません。</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>note</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>すべて正常です。</translation>
    </message>
    <message>
        <source>Everything else is in order.</source>
        <translation>そのほかはすべて正常です。</translation>
    </message>
    <message>
        <source>Driver values not published: %1.</source>
        <translation>ドライバーが公開していない値: %1。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>プリンター「%1」はありません。</translation>
    </message>
    <message>
        <source>Similar names: %1.</source>
        <translation>似た名前: %1。</translation>
    </message>
    <message>
        <source>problems found: %1</source>
        <translation>見つかった問題: %1</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is not running (state %1).</source>
        <translation>サービス「Spooler」が実行されていません (状態 %1)。</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is running.</source>
        <translation>サービス「Spooler」は実行中です。</translation>
    </message>
    <message>
        <source>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</source>
        <translation>印刷スプーラーの一覧に名前、ポート、またはドライバーのないプリンターがあるため、ライブラリがプリンターを検索できません。</translation>
    </message>
    <message>
        <source>The print spooler lists no label printer that can be watched. Printers: %1.</source>
        <translation>印刷スプーラーの一覧に、監視できるラベルプリンターがありません。プリンター: %1。</translation>
    </message>
    <message>
        <source>The print spooler answers. Printers: %1, label printers: %2.</source>
        <translation>印刷スプーラーは応答しています。プリンター: %1、ラベルプリンター: %2。</translation>
    </message>
    <message>
        <source>The device registry has no USB device of a label printer.</source>
        <translation>デバイスのレジストリに、ラベルプリンターの USB デバイスがありません。</translation>
    </message>
    <message>
        <source>USB devices of class %1: %2.</source>
        <translation>クラス %1 の USB デバイス: %2。</translation>
    </message>
    <message>
        <source>There is no catalogue %1.</source>
        <translation>カタログ %1 がありません。</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>カタログ %1 を読み取れません: %2。</translation>
    </message>
    <message>
        <source>The file %1 is no supply catalogue.</source>
        <translation>ファイル %1 はサプライのカタログではありません。</translation>
    </message>
    <message>
        <source>The catalogue %1 has the schema version %2; only version %3 can be read.</source>
        <translation>カタログ %1 のスキーマのバージョンは %2 です。読み取れるのはバージョン %3 だけです。</translation>
    </message>
    <message>
        <source>The catalogue %1 is damaged or empty.</source>
        <translation>カタログ %1 は壊れているか空です。</translation>
    </message>
    <message>
        <source>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</source>
        <translation>カタログ %1、スキーマのバージョン %2。サプライ: %3、リボン: %4。</translation>
    </message>
    <message>
        <source>The endpoint %1 is not running.</source>
        <translation>エンドポイント %1 は実行されていません。</translation>
    </message>
    <message>
        <source>The endpoint %1 does not answer: %2.</source>
        <translation>エンドポイント %1 が応答しません: %2。</translation>
    </message>
    <message>
        <source>The endpoint %1 answers: %2, process %3.</source>
        <translation>エンドポイント %1 は応答しています: %2、プロセス %3。</translation>
    </message>
    <message>
        <source>%1: not published; this model has one ribbon</source>
        <translation>%1: 公開されていません。このモデルのリボンは 1 本です</translation>
    </message>
    <message>
        <source>%1: not published</source>
        <translation>%1: 公開されていません</translation>
    </message>
    <message>
        <source>%1; expected the type %2</source>
        <translation>%1。正しい型: %2</translation>
    </message>
    <message>
        <source>%1; expected %2 to %3 bytes</source>
        <translation>%1。正しい長さ: %2～%3 バイト</translation>
    </message>
    <message>
        <source>%1; a number up to %2 is plausible</source>
        <translation>%1。妥当な値は %2 までです</translation>
    </message>
    <message>
        <source>The status code &quot;%1&quot; is not a number.</source>
        <translation>ステータスコード「%1」は数値ではありません。</translation>
    </message>
    <message>
        <source>Status %1: %2. %3</source>
        <translation>ステータス %1: %2。%3</translation>
    </message>
    <message>
        <source>%1: nothing is loaded.</source>
        <translation>%1: 何もセットされていません。</translation>
    </message>
    <message>
        <source>%1: the catalogue does not know %2.</source>
        <translation>%1: カタログに %2 がありません。</translation>
    </message>
    <message>
        <source>%1: %2 is %3 in the catalogue.</source>
        <translation>%1: %2 はカタログでは %3 です。</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</source>
        <translation>ドライバー「%1」は他社のものであるため、このプリンターは監視されません。</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</source>
        <translation>ドライバー「%1」は対応していないモデルのものであるため、このプリンターは監視されません。</translation>
    </message>
    <message>
        <source>Model %1, driver &quot;%2&quot;.</source>
        <translation>モデル %1、ドライバー「%2」。</translation>
    </message>
    <message>
        <source>You may manage the printer.</source>
        <translation>このプリンターを管理する権限があります。</translation>
    </message>
    <message>
        <source>You may not manage the printer, so it is not watched.</source>
        <translation>このプリンターを管理する権限がないため、監視されません。</translation>
    </message>
    <message>
        <source>The printer is reached over a network (port %1), so it is listed, but not watched.</source>
        <translation>プリンターはネットワーク経由で接続されている (ポート %1) ため、一覧に表示されますが、監視されません。</translation>
    </message>
    <message>
        <source>No USB device of a label printer is on the printer&apos;s port %1.</source>
        <translation>プリンターのポート %1 に、ラベルプリンターの USB デバイスがありません。</translation>
    </message>
    <message>
        <source>Port %1, with the device %2.</source>
        <translation>ポート %1、デバイス %2。</translation>
    </message>
    <message>
        <source>The printer is set to be used offline.</source>
        <translation>プリンターがオフラインで使用するように設定されています。</translation>
    </message>
    <message>
        <source>Windows reports the printer offline.</source>
        <translation>Windows がプリンターをオフラインと報告しています。</translation>
    </message>
    <message>
        <source>The printer is online.</source>
        <translation>プリンターはオンラインです。</translation>
    </message>
    <message>
        <source>The queue reports nothing.</source>
        <translation>キューからの報告はありません。</translation>
    </message>
    <message>
        <source>The queue reports: %1.</source>
        <translation>キューの報告: %1。</translation>
    </message>
    <message>
        <source>%1 failed: %2 (error %3).</source>
        <translation>%1 が失敗しました: %2 (エラー %3)。</translation>
    </message>
    <message>
        <source>top draws on a terminal, but its input or output is none; use status, or top --json</source>
        <translation>top は端末に表示しますが、入力または出力が端末ではありません。status または top --json を使ってください</translation>
    </message>
    <message>
        <source>the terminal cannot be used: %1</source>
        <translation>端末を使用できません: %1</translation>
    </message>
    <message>
        <source>this console does not know escape sequences; use that of Windows 10 or newer</source>
        <translation>このコンソールはエスケープシーケンスに対応していません。Windows 10 以降のコンソールを使ってください</translation>
    </message>
    <message>
        <source>Printers: %1</source>
        <translation>プリンター: %1</translation>
    </message>
    <message>
        <source>with errors: %1</source>
        <translation>エラー: %1</translation>
    </message>
    <message>
        <source>shown: %1 to %2</source>
        <translation>表示: %1～%2</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>q quit</source>
        <translation>q 終了</translation>
    </message>
    <message>
        <source>s by severity</source>
        <translation>s 重大度順</translation>
    </message>
    <message>
        <source>n by name</source>
        <translation>n 名前順</translation>
    </message>
    <message>
        <source>l by level</source>
        <translation>l 残量順</translation>
    </message>
    <message>
        <source>arrows, Page Up, Page Down: scroll</source>
        <translation>矢印、Page Up、Page Down: スクロール</translation>
    </message>
    <message>
        <source>a file to read and a file to write</source>
        <translation>読み込むファイルと書き込むファイル</translation>
    </message>
    <message>
        <source>case: expected show, explain, redact or verify, found &quot;%1&quot;</source>
        <translation>case: show、explain、redact または verify が必要ですが、&quot;%1&quot; が見つかりました</translation>
    </message>
    <message>
        <source>line %1, after %2 s</source>
        <translation>%1 行目、%2 秒後</translation>
    </message>
    <message>
        <source>Signals and log lines that are about no printer: the first difference is at number %1</source>
        <translation>プリンターに関係しないシグナルとログ行: 最初の違いは %1 番目です</translation>
    </message>
    <message>
        <source>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</source>
        <translation>&quot;%1&quot; のシグナルとログ行: 最初の違いは %2 番目です</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>replayed</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2 and more: %3</source>
        <translation>根拠 (%1 から): %2 行目、ほか %3 行</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2</source>
        <translation>根拠 (%1 から): %2 行目</translation>
    </message>
    <message>
        <source>Nothing in this case is recognised.</source>
        <translation>このケースから判別できるものはありません。</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>バイト %1: %2</translation>
    </message>
    <message>
        <source>expected an object with the list &quot;findings&quot;</source>
        <translation>リスト &quot;findings&quot; を持つオブジェクトが必要です</translation>
    </message>
    <message>
        <source>there are more than %1 findings</source>
        <translation>所見が %1 件を超えています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2</source>
        <translation>&quot;%1&quot; は%2でなければなりません</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>メンバー &quot;%1&quot; はありません</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>a condition or a list of conditions</source>
        <translation>条件または条件のリスト</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>テキストのリスト</translation>
    </message>
    <message>
        <source>a number of seconds</source>
        <translation>秒数</translation>
    </message>
    <message>
        <source>a text, or texts by their languages with &quot;en&quot; among them</source>
        <translation>テキスト、または &quot;en&quot; を含む言語別のテキスト</translation>
    </message>
    <message>
        <source>%1: the file is larger than %2 bytes</source>
        <translation>%1: ファイルが %2 バイトを超えています</translation>
    </message>
    <message>
        <source>%1: there is such a file already; name another one</source>
        <translation>%1: このファイルは既にあります。別の名前を指定してください</translation>
    </message>
    <message>
        <source>%1: lines written: %2, left out: %3</source>
        <translation>%1: 書き込んだ行: %2、省いた行: %3</translation>
    </message>
    <message>
        <source>Read it before you send it: it is plain text.</source>
        <translation>送る前に中身を読んでください。ただのテキストです。</translation>
    </message>
    <message>
        <source>a monitoring thread does not come to rest</source>
        <translation>監視スレッドが待機状態になりません</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1, for %2</source>
        <translation>%1 から %2</translation>
    </message>
    <message>
        <source>with</source>
        <translation>環境</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>steps: %1, signals: %2, log lines: %3</source>
        <translation>ステップ: %1、シグナル: %2、ログ行: %3</translation>
    </message>
    <message>
        <source>names</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>replaced by others</source>
        <translation>別の名前に置き換え済み</translation>
    </message>
    <message>
        <source>as they are; &quot;vxprintmon case redact&quot; replaces them</source>
        <translation>そのまま。&quot;vxprintmon case redact&quot; で置き換えられます</translation>
    </message>
    <message>
        <source>end</source>
        <translation>終わり</translation>
    </message>
    <message>
        <source>missing: the recording was cut short</source>
        <translation>なし: 記録が途中で切れています</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>速すぎ</translation>
    </message>
    <message>
        <source>how often values changed faster than they were read: %1</source>
        <translation>読み取りより速く値が変わった回数: %1</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告とエラー</translation>
    </message>
    <message>
        <source>What was loaded</source>
        <translation>セットされていたもの</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</source>
        <translation>このプログラムには仮想プリンターがないため、ケースを再生できません。Linux で &quot;vxprintmon case verify&quot; を実行してください</translation>
    </message>
    <message>
        <source>The recording was cut short; it is compared up to there.</source>
        <translation>記録が途中で切れているため、そこまでを比較します。</translation>
    </message>
    <message>
        <source>No signals were recorded; only the log is compared.</source>
        <translation>シグナルが記録されていないため、ログだけを比較します。</translation>
    </message>
    <message>
        <source>The same: %1 signals and %2 log lines in %3 steps.</source>
        <translation>同じです: %3 ステップで %1 個のシグナルと %2 行のログ。</translation>
    </message>
    <message>
        <source>the library does something else than was recorded</source>
        <translation>ライブラリの動作が記録と異なります</translation>
    </message>
    <message>
        <source>case explain: recognise what the table FILE describes as well</source>
        <translation>case explain: 表 FILE が記述するものも判別する</translation>
    </message>
    <message>
        <source>show, explain, redact or verify a case file</source>
        <translation>ケース ファイルを表示、説明、匿名化、検証する</translation>
    </message>
    <message>
        <source>an action and one or two files</source>
        <translation>アクションと 1 つまたは 2 つのファイル</translation>
    </message>
    <message>
        <source>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</source>
        <translation>&quot;case show FILE&quot; はケース ファイルの内容を示します。&quot;case explain FILE&quot; は判別できる不具合を、根拠となる行と対処方法とともに示します。&quot;case redact IN OUT&quot; は、人、コンピューター、プリンターの名前、シリアル番号、アドレスを除いた写しを書き出します。&quot;case verify FILE&quot; はケースを再生し、ライブラリの現在の動作を記録と比較します。</translation>
    </message>
    <message>
        <source>%1: its catalogue cannot be written to a temporary file: %2</source>
        <translation>%1: カタログを一時ファイルに書き込めません: %2</translation>
    </message>
    <message>
        <source>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</source>
        <translation>%1:%2: 行がカタログの表 &quot;%3&quot; に合いません: %4</translation>
    </message>
    <message>
        <source>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</source>
        <translation>record: ファイルを SIZE (64M など) 未満に保つ。超える場合は最初と最新の部分を残す</translation>
    </message>
    <message>
        <source>record: keep names, serial numbers and addresses as they are</source>
        <translation>record: 名前、シリアル番号、アドレスをそのまま残す</translation>
    </message>
    <message>
        <source>record what printers do, for those who help</source>
        <translation>サポート担当者のためにプリンターの動作を記録する</translation>
    </message>
    <message>
        <source>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</source>
        <translation>プリンターを使う他のプログラムと並行して、印刷スプーラーがライブラリに伝えることと、それに対するライブラリの動作を、中断されるまですべて記録します。FILE は異常終了の後も完全で、&quot;case&quot;、--virtual、サポート担当者のためのケース ファイルになります。既にあるファイルは指定できません。30 秒ごとに記録の状況を表示します。</translation>
    </message>
    <message>
        <source>%1  printers %2, changes %3, signals %4, log lines %5, %6</source>
        <translation>%1  プリンター %2、変化 %3、シグナル %4、ログ行 %5、%6</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変化</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Log lines</source>
        <translation>ログ行</translation>
    </message>
    <message>
        <source>Faster than read</source>
        <translation>読み取りより速い変化</translation>
    </message>
    <message>
        <source>Left out to keep the limit</source>
        <translation>上限のため省いた行</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>書き込めなかった行</translation>
    </message>
    <message>
        <source>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</source>
        <translation>ファイルにはプリンター、人、コンピューターの名前が含まれています。&quot;vxprintmon case redact&quot; で取り除けます。</translation>
    </message>
    <message>
        <source>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</source>
        <translation>名前、シリアル番号、アドレスは置き換えられています。&quot;vxprintmon case show&quot; でファイルの内容を確認できます。</translation>
    </message>
    <message>
        <source>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</source>
        <translation>--limit: 1M から 1G までのサイズ (64M など) が必要ですが、&quot;%1&quot; が見つかりました</translation>
    </message>
    <message>
        <source>%1 exists and is not replaced; choose another name, or delete it first</source>
        <translation>%1 は既にあり、置き換えられません。別の名前を選ぶか、先に削除してください</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>%1 を作成できません: %2</translation>
    </message>
    <message>
        <source>Recording into %1.</source>
        <translation>%1 に記録しています。</translation>
    </message>
    <message>
        <source>Recording into %1, until it is interrupted (Ctrl-C).</source>
        <translation>中断されるまで (Ctrl-C) %1 に記録しています。</translation>
    </message>
    <message>
        <source>cannot write %1: %2; it is tried again every second</source>
        <translation>%1 に書き込めません: %2。1 秒ごとに再試行します</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>watch: also record what is used, in the user&apos;s history or --file</source>
        <translation>watch: 使用量もユーザーの履歴または --file に記録する</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets (CSV)</source>
        <translation>history: 表計算ソフト用の表 (CSV) を出力する</translation>
    </message>
    <message>
        <source>print what printers have used</source>
        <translation>プリンターの使用量を表示する</translation>
    </message>
    <message>
        <source>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</source>
        <translation>ロールとリボンごとに 1 行を表示します。何がいつからいつまでセットされていたか、どれだけ使われたか、1 日平均でどれだけかを示します。プリンターは名前またはシリアル番号で指定します。記録は「vxprintmon watch --history」が行います。</translation>
    </message>
    <message>
        <source>say when rolls and ribbons will end</source>
        <translation>ロールとリボンがなくなる時期を表示</translation>
    </message>
    <message>
        <source>say whether a job fits: the right supply and ribbon, and enough</source>
        <translation>ジョブを印刷できるか調べる: サプライとリボンの種類と残量</translation>
    </message>
    <message>
        <source>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</source>
        <translation>プリンター、サプライの SKU、ラベルの枚数、リボンの SKU</translation>
    </message>
    <message>
        <source>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</source>
        <translation>終了ステータスは、セットされているもので印刷できれば 0、できなければ 3、不明なら 4 です。指定したリボンはすべてセットされている必要があります。指定しなければ、サプライに適していて足りるリボンが 1 つセットされていればかまいません。</translation>
    </message>
    <message>
        <source>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</source>
        <translation>enough には 1 から 2147483647 までのラベルの枚数が必要ですが、&quot;%1&quot; が指定されました</translation>
    </message>
    <message>
        <source>the catalogue has no %1</source>
        <translation>カタログに %1 はありません</translation>
    </message>
    <message>
        <source>the catalogue has no %1; did you mean %2?</source>
        <translation>カタログに %1 はありません。%2 のことですか?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>two durations</comment>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>スロット</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>残り</translation>
    </message>
    <message>
        <source>LASTS ABOUT</source>
        <translation>持ち (約)</translation>
    </message>
    <message>
        <source>PROBABLY</source>
        <translation>見込み</translation>
    </message>
    <message>
        <source>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</source>
        <translation>予測には使用量の履歴が必要です。&quot;vxprintmon watch --history&quot; で記録します</translation>
    </message>
    <message>
        <source>over 2 years</source>
        <translation>2 年以上</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>まだ不明</translation>
    </message>
    <message>
        <source>the history cannot be read: %1</source>
        <translation>履歴を読み取れません: %1</translation>
    </message>
    <message>
        <source>still loaded</source>
        <translation>セット中</translation>
    </message>
    <message>
        <source>LOADED</source>
        <translation>セット品</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>UNTIL</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>USED</source>
        <translation>使用量</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>ラベル数</translation>
    </message>
    <message>
        <source>A DAY</source>
        <translation>1日平均</translation>
    </message>
    <message>
        <source> (serial number %1)</source>
        <translation> (シリアル番号 %1)</translation>
    </message>
    <message>
        <source>Changes that could not be recorded: %1, from %2 to %3</source>
        <translation>記録できなかった変更: %1 件 (%2 から %3 まで)</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;</source>
        <translation>履歴にプリンター「%1」はありません</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>履歴にプリンター「%1」はありません。%2 のことですか?</translation>
    </message>
    <message>
        <source>--csv and --json are not valid together</source>
        <translation>--csv と --json は同時に使えません</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</source>
        <translation>まだ何も記録されていません。「vxprintmon watch --history」で使用量を記録します。</translation>
    </message>
    <message>
        <source>the history was damaged, is now called %1, and has been begun anew: %2</source>
        <translation>履歴が壊れていたため %1 に名前を変え、新しく作りました: %2</translation>
    </message>
    <message>
        <source>cannot write the history %1</source>
        <translation>履歴に書き込めません: %1</translation>
    </message>
    <message>
        <source>cannot write the history %1; it is tried again every second</source>
        <translation>履歴に書き込めません: %1。1 秒ごとに再試行します</translation>
    </message>
    <message>
        <source>%1 lasts</source>
        <translation>%1 の持ち</translation>
    </message>
    <message>
        <source>about %1, probably %2 to %3</source>
        <translation>約 %1、おそらく %2～%3</translation>
    </message>
    <message>
        <source>LASTS</source>
        <translation>持ち</translation>
    </message>
    <message>
        <source>--file is valid only with --history</source>
        <translation>--file は --history と一緒にだけ使えます</translation>
    </message>
    <message>
        <source>history, forecast, watch --history: FILE in place of the user&apos;s history</source>
        <translation>history、forecast、watch --history: ユーザーの履歴の代わりに FILE を使う</translation>
    </message>
    <message>
        <source>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</source>
        <translation>watch、forecast: ロールのラベルの残りが LABELS 枚より少なくなったら警告する。watch の既定値は 100、0 は警告なし</translation>
    </message>
    <message>
        <source>watch, forecast: warn of rolls that have fewer LABELS than a job needs</source>
        <translation>watch、forecast: ラベルの残りがジョブに必要な LABELS 枚より少ないロールを警告する</translation>
    </message>
    <message>
        <source>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</source>
        <translation>watch、forecast: シフトの終わりより前になくなりそうなものを警告する。TIMES の例: 14:00,22:00</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</source>
        <translation>--%1: %2 から 2147483647 までの整数が必要です。指定されたもの: 「%3」</translation>
    </message>
    <message>
        <source>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</source>
        <translation>--%1: 14:00,22:00 のような時刻が必要です。指定されたもの: 「%2」</translation>
    </message>
    <message>
        <source>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</source>
        <translation>&quot;vxprintmon watch --history&quot; が記録するユーザーの履歴から学習します。5 回のうち 4 回は、最後の列の 2 つの時間の間になくなります。--warn-below、--job または --shift-end を付けると、&quot;watch&quot; が警告する内容も表示します。</translation>
    </message>
    <message>
        <source>%1: its catalogue can only be played with a supply database of the product itself</source>
        <translation>%1: カタログを再生できるのは、製品自身の消耗品データベースだけです</translation>
    </message>
    <message>
        <source>lines left out from %1 to %2: %3</source>
        <translation>%1 から %2 までに省かれた行: %3</translation>
    </message>
    <message>
        <source>AT THE BEGINNING</source>
        <translation>最初</translation>
    </message>
    <message>
        <source>AT THE END</source>
        <translation>最後</translation>
    </message>
    <message>
        <source>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</source>
        <translation>--language: en、de、es、fr、it、ja、zh_CN のいずれかが必要ですが、「%1」が指定されました</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>画像 %1 を書き込めません</translation>
    </message>
    <message>
        <source>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>FILE に記述された仮想プリンター、または組み込みのもの (built-in) を表示する</translation>
    </message>
    <message>
        <source>speed up the virtual printers&apos; story by FACTOR</source>
        <translation>仮想プリンターの進行を FACTOR 倍速にする</translation>
    </message>
    <message>
        <source>record what is used in FILE, and show it</source>
        <translation>使用量を FILE に記録して表示する</translation>
    </message>
    <message>
        <source>keep the settings of the window in FILE</source>
        <translation>ウィンドウの設定を FILE に保存する</translation>
    </message>
    <message>
        <source>start without an open window</source>
        <translation>ウィンドウを開かずに起動する</translation>
    </message>
    <message>
        <source>speak the language TAG: en, de, es, fr, it, ja or zh_CN</source>
        <translation>言語 TAG を使う: en、de、es、fr、it、ja、zh_CN</translation>
    </message>
    <message>
        <source>use the colours SCHEME: light, dark or system</source>
        <translation>色の設定 SCHEME を使う: light、dark、system</translation>
    </message>
    <message>
        <source>open the window in this size</source>
        <translation>この大きさでウィンドウを開く</translation>
    </message>
    <message>
        <source>save a picture of the window in FILE.png and end</source>
        <translation>ウィンドウの画像を FILE.png に保存して終了する</translation>
    </message>
    <message>
        <source>with --screenshot: SECONDS after the start, 3 by default</source>
        <translation>--screenshot と共に: 起動から SECONDS 秒後、既定は 3</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer in a window.</source>
        <translation>このコンピューターのラベルプリンターをウィンドウに表示します。</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</source>
        <translation>--%1: 0 より大きく %2 以下の数が必要ですが、「%3」が指定されました</translation>
    </message>
    <message>
        <source>--size: expected such as 1200x800, found &quot;%1&quot;</source>
        <translation>--size: 1200x800 のような値が必要ですが、「%1」が指定されました</translation>
    </message>
    <message>
        <source>--%1: expected a value</source>
        <translation>--%1: 値が必要です</translation>
    </message>
    <message>
        <source>expected options only, found &quot;%1&quot;</source>
        <translation>オプションだけが指定できますが、「%1」が指定されました</translation>
    </message>
    <message>
        <source>--after goes with --screenshot</source>
        <translation>--after は --screenshot と一緒に使います</translation>
    </message>
    <message>
        <source>--colors: expected light, dark or system, found &quot;%1&quot;</source>
        <translation>--colors: light、dark、system のいずれかが必要ですが、「%1」が指定されました</translation>
    </message>
    <message>
        <source>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</source>
        <translation>このコンピューターのラベルプリンターを監視し、その状態をブローカーと監視システムに公開します。</translation>
    </message>
    <message>
        <source>watch and publish until interrupted</source>
        <translation>中断されるまで監視して公開する</translation>
    </message>
    <message>
        <source>say what is wrong with a configuration</source>
        <translation>設定の誤りを示す</translation>
    </message>
    <message>
        <source>install the agent as a Windows service that runs with the configuration</source>
        <translation>この設定で動作する Windows サービスとしてエージェントをインストールする</translation>
    </message>
    <message>
        <source>remove the Windows service</source>
        <translation>Windows サービスを削除する</translation>
    </message>
    <message>
        <source>the configuration, a JSON file</source>
        <translation>設定（JSON ファイル）</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>FILE に記述された仮想プリンターを使う</translation>
    </message>
    <message>
        <source>play the story of virtual printers FACTOR times as fast</source>
        <translation>仮想プリンターのストーリーを FACTOR 倍の速さで再生する</translation>
    </message>
    <message>
        <source>--speed takes a number above 0 and up to 1000</source>
        <translation>--speed には 0 より大きく 1000 以下の数を指定してください</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 には値が必要です</translation>
    </message>
    <message>
        <source>%1 needs --config FILE</source>
        <translation>%1 には --config FILE が必要です</translation>
    </message>
    <message>
        <source>%1 is a valid configuration</source>
        <translation>%1 は有効な設定です</translation>
    </message>
    <message>
        <source>%1 takes no further words</source>
        <translation>%1 に余分な語は指定できません</translation>
    </message>
    <message>
        <source>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</source>
        <translation>サービスのインストールは Windows だけで行えます。他のシステムでは systemd のユニット deploy/systemd/vxprintagent.service を使ってください</translation>
    </message>
    <message>
        <source>what the Windows service manager starts</source>
        <translation>Windows のサービスマネージャーが起動するもの</translation>
    </message>
    <message>
        <source>%1: Windows allows it to administrators alone; use a console that was started as administrator</source>
        <translation>%1: Windows では管理者にのみ許可されています。管理者として起動したコンソールを使用してください</translation>
    </message>
    <message>
        <source>%1: %2 (error %3)</source>
        <translation>%1: %2 (エラー %3)</translation>
    </message>
    <message>
        <source>the service %1 cannot be installed</source>
        <translation>サービス %1 をインストールできません</translation>
    </message>
    <message>
        <source>the service %1 cannot be removed</source>
        <translation>サービス %1 を削除できません</translation>
    </message>
    <message>
        <source>the rights to %1 are not known</source>
        <translation>%1 のアクセス権がわかりません</translation>
    </message>
    <message>
        <source>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</source>
        <translation>%1 は %2 が変更でき、サービスの権限を得られてしまいます。&quot;C:\Program Files&quot; の下など、管理者だけが変更できる場所に移してください</translation>
    </message>
    <message>
        <source>%1 is on a network drive, which a service does not see; copy it to this computer</source>
        <translation>%1 はネットワークドライブにあり、サービスからは見えません。このコンピューターにコピーしてください</translation>
    </message>
    <message>
        <source>%1: it does not stop; end vxprintagent.exe in the task manager and try again</source>
        <translation>%1: 停止しません。タスクマネージャーで vxprintagent.exe を終了し、もう一度試してください</translation>
    </message>
    <message>
        <source>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</source>
        <translation>コマンド &quot;service&quot; はサービスマネージャー用です。コンソールでは &quot;vxprintagent run --config FILE&quot; を使用してください</translation>
    </message>
    <message>
        <source>the service manager does not answer</source>
        <translation>サービスマネージャーが応答しません</translation>
    </message>
    <message>
        <source>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</source>
        <translation>%1: すでにインストールされています。先に &quot;vxprintagent uninstall&quot; を実行してください</translation>
    </message>
    <message>
        <source>the service %1 is installed and starts with Windows; to start it now: net start %1</source>
        <translation>サービス %1 をインストールしました。Windows とともに起動します。今すぐ起動するには: net start %1</translation>
    </message>
    <message>
        <source>the service %1 is not installed</source>
        <translation>サービス %1 はインストールされていません</translation>
    </message>
    <message>
        <source>%1 yet: another program has it open; close the list of services and the event viewer</source>
        <translation>%1: 別のプログラムが開いています。サービスの一覧とイベントビューアーを閉じてください</translation>
    </message>
    <message>
        <source>%1 does not let this user read what agents publish (%2); ask who runs the broker</source>
        <translation>%1 では、このユーザーはエージェントの公開内容 (%2) を読み取れません。ブローカーの管理者に問い合わせてください</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>a name that is empty or has more than %1 characters</source>
        <translation>名前が空か、%1 文字を超えています</translation>
    </message>
    <message>
        <source>expected online or offline</source>
        <translation>online または offline が必要です</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>JSON オブジェクトではありません</translation>
    </message>
    <message>
        <source>there are more than %1 printers</source>
        <translation>プリンターが %1 台を超えています</translation>
    </message>
    <message>
        <source>a message cannot be read: %1 (so far: %2)</source>
        <translation>メッセージを読み取れません: %1 (これまで: %2 件)</translation>
    </message>
    <message>
        <source>%1; those beyond are not shown</source>
        <translation>%1。超えた分は表示されません</translation>
    </message>
    <message>
        <source>there are more than %1 agents</source>
        <translation>エージェントが %1 件を超えています</translation>
    </message>
    <message>
        <source>--%1: expected %2</source>
        <translation>--%1: 必要な値: %2</translation>
    </message>
    <message>
        <source>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</source>
        <translation>%1 にブローカーの指定がありません。--broker または &quot;mqtt&quot; の &quot;url&quot; で指定してください</translation>
    </message>
    <message>
        <source>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</source>
        <translation>%1 の証明書は TLS なしでは効果がありません。mqtts:// で始まる URL が必要です</translation>
    </message>
    <message>
        <source>the password crosses the network readably; use mqtts://</source>
        <translation>パスワードは暗号化されずにネットワークを流れます。mqtts:// を使用してください</translation>
    </message>
    <message>
        <source>--broker: this build has no MQTT; build it with libmosquitto</source>
        <translation>--broker: このビルドには MQTT がありません。libmosquitto を使ってビルドしてください</translation>
    </message>
    <message>
        <source>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>top: mqtts://broker.example/SITE のような URL のブローカーにエージェントが公開している内容を表示。SITE がなければすべての拠点</translation>
    </message>
    <message>
        <source>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>top: ブローカー、ユーザー、証明書を、エージェントの構成と同じ形の FILE から取得</translation>
    </message>
    <message>
        <source>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</source>
        <translation>--broker または --broker-config を指定すると、拠点のエージェントが MQTT で公開している、拠点全体のプリンターになります。ユーザーとパスワードのファイルは FILE の &quot;mqtt&quot; で指定します。URL には含められません。</translation>
    </message>
    <message>
        <source>No agent since %1</source>
        <translation>%1 からエージェントなし</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>エージェントがオフライン</translation>
    </message>
    <message>
        <source>--%1 does not go with --broker</source>
        <translation>--%1 は --broker と一緒に使えません</translation>
    </message>
    <message>
        <source>no connection since %1</source>
        <translation>%1 から接続なし</translation>
    </message>
    <message>
        <source>no connection</source>
        <translation>接続なし</translation>
    </message>
    <message>
        <source>agents offline: %1</source>
        <translation>オフラインのエージェント: %1</translation>
    </message>
    <message>
        <source>unreadable messages: %1</source>
        <translation>読み取れないメッセージ: %1</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>%1 に接続しています…</translation>
    </message>
    <message>
        <source>No agent has published a printer yet.</source>
        <translation>まだどのエージェントもプリンターを公開していません。</translation>
    </message>
    <message>
        <source>No agent of the site &quot;%1&quot; has published a printer yet.</source>
        <translation>拠点 &quot;%1&quot; のエージェントはまだプリンターを公開していません。</translation>
    </message>
    <message>
        <source>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>mqtts://broker.example/SITE のような URL のブローカーにエージェントが公開している内容を表示。SITE がなければすべての拠点</translation>
    </message>
    <message>
        <source>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>ブローカー、ユーザー、証明書を、エージェントの構成と同じ形の FILE から取得</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>除外: %1</translation>
    </message>
</context>
</TS>
