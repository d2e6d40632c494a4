<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
    <name>tools</name>
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
        <source>the column en is missing</source>
        <translation>列 en がありません</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language</source>
        <translation>この表の列でも既知の言語でもありません</translation>
    </message>
    <message>
        <source>not a column of this table</source>
        <translation>この表の列ではありません</translation>
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
        <source>&quot;%1&quot; is not in colours.csv</source>
        <translation>「%1」は colours.csv にありません</translation>
    </message>
    <message>
        <source>a space in a colour&apos;s key</source>
        <translation>色のキーに空白があります</translation>
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
        <source>format %1 is not in formats.csv</source>
        <translation>形式 %1 は formats.csv にありません</translation>
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
        <source>material %1 is not in materials.csv</source>
        <translation>素材 %1 は materials.csv にありません</translation>
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
        <source>&quot;%1&quot; is not in ribbons.csv</source>
        <translation>「%1」は ribbons.csv にありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in supplies.csv</source>
        <translation>「%1」は supplies.csv にありません</translation>
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
        <source>not UTF-8 text</source>
        <translation>UTF-8 テキストではありません</translation>
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
        <source>%1:1, column %2 (%3): %4</source>
        <translation>%1:1、列 %2 (%3): %4</translation>
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
        <source>English is missing%1</source>
        <translation>英語がありません%1</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row</source>
        <translation>%1 の行が、存在しない行を参照しています</translation>
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
        <source>build creates the supply database FILE from the tables in DIRECTORY.</source>
        <translation>build は DIRECTORY の表からサプライデータベース FILE を作成します。</translation>
    </message>
    <message>
        <source>check verifies FILE.</source>
        <translation>check は FILE を検証します。</translation>
    </message>
    <message>
        <source>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</source>
        <translation>show は、FILE にあるサプライまたはリボンの情報を表示します。名前は英語、または言語 TAG（「de」、「ja」など）で表示されます。</translation>
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
        <source>expected build, check or show</source>
        <translation>build、check、show のいずれかが必要です</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected build, check or show</source>
        <translation>不明なコマンド「%1」です。build、check、show のいずれかが必要です</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3</source>
        <translation>%1 の引数は %2 個です。%3 個ではありません</translation>
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
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
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
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</source>
        <translation>SERVICE は supplyd、m4、printqd、status、番号、または list が表示する名前です。テキストのパラメーターに対する引数はそのまま使われ、その他は JSON として読み取られます。</translation>
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
        <source>use the virtual printers that FILE describes</source>
        <translation>FILE に記述された仮想プリンターを使う</translation>
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
        <source>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>status は、表示するすべてのプリンターから報告があり、その後 0.1 秒間報告がなくなるまで、最長 2 秒待ちます。その後、それまでに届いた報告のために最大 0.5 秒を使います。</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</source>
        <translation>色と素材の名前は、このプログラムと同じ場所にある roll.db から取得されます。システムのプリンターが見えるのは Windows 版だけです。その他の版には仮想プリンターだけがあり、既定では 6 台です。</translation>
    </message>
    <message>
        <source>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>出力が端末でない場合、または NO_COLOR が設定されている場合、色は付きません。端末を制御し得る文字は \u001b のように表示されます。</translation>
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
        <source>print a line for each change to the label printers</source>
        <translation>ラベルプリンターの変化ごとに 1 行を出力する</translation>
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
        <source>of an unknown kind</source>
        <translation>種類不明</translation>
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
        <source>supply left</source>
        <translation>サプライ残量</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>リボン 1</translation>
    </message>
    <message>
        <source>ribbon 1 left</source>
        <translation>リボン 1 残量</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>リボン 2</translation>
    </message>
    <message>
        <source>ribbon 2 left</source>
        <translation>リボン 2 残量</translation>
    </message>
    <message>
        <source>has a ribbon 2</source>
        <translation>リボン 2 あり</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>network printer</source>
        <translation>ネットワークプリンター</translation>
    </message>
    <message>
        <source>managed</source>
        <translation>管理対象</translation>
    </message>
    <message>
        <source>has been active</source>
        <translation>使用履歴あり</translation>
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
        <source>ACTIVE</source>
        <translation>使用中</translation>
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
        <source>errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>ribbons</source>
        <translation>リボン</translation>
    </message>
    <message>
        <source>found</source>
        <translation>検出</translation>
    </message>
    <message>
        <source>records</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>a printer is in error</source>
        <translation>エラーのプリンターがあります</translation>
    </message>
    <message>
        <source>no printer is in error</source>
        <translation>エラーのプリンターはありません</translation>
    </message>
    <message>
        <source>changed or removed</source>
        <translation>交換されたか取り外されました</translation>
    </message>
    <message>
        <source>is the active printer</source>
        <translation>は使用中のプリンターです</translation>
    </message>
    <message>
        <source>is the active printer but has no record</source>
        <translation>は使用中のプリンターですが、記録がありません</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更されました</translation>
    </message>
    <message>
        <source>is now watched</source>
        <translation>監視を開始しました</translation>
    </message>
    <message>
        <source>no changes</source>
        <translation>変更なし</translation>
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
        <source>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</source>
        <translation>プリンター「%1」の記録はありません。記録のあるプリンターは「vxprintmon status」で表示されます</translation>
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
</context>
</TS>
