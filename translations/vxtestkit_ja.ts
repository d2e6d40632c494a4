<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>vxtestkit</name>
    <message>
        <source>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</source>
        <translation>このコンピューターで VxPrinterStatus のテストを実行し、レポートを書き出します。</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Runs the tests without asking.</source>
        <translation>確認せずにテストを実行します。</translation>
    </message>
    <message>
        <source>Allows tests to stop and start the print spooler, without asking.</source>
        <translation>テストが印刷スプーラーを停止および開始することを、確認せずに許可します。</translation>
    </message>
    <message>
        <source>Leaves out the tests that stop the print spooler, without asking.</source>
        <translation>印刷スプーラーを停止するテストを、確認せずに除外します。</translation>
    </message>
    <message>
        <source>Leaves out the tests that need an administrator&apos;s rights.</source>
        <translation>管理者権限が必要なテストを除外します。</translation>
    </message>
    <message>
        <source>Runs only the tests whose names match this regular expression.</source>
        <translation>名前がこの正規表現に一致するテストだけを実行します。</translation>
    </message>
    <message>
        <source>Ends a test that prints nothing for so many seconds (180).</source>
        <translation>この秒数のあいだ何も出力しないテストを終了します (180)。</translation>
    </message>
    <message>
        <source>Writes the report into this folder.</source>
        <translation>レポートをこのフォルダーに書き込みます。</translation>
    </message>
    <message>
        <source>Speaks this language: de, en, es, fr, it, ja or zh.</source>
        <translation>使用する言語: de、en、es、fr、it、ja、zh。</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>--allow-spooler-stop and --no-spooler-stop contradict each other</source>
        <translation>--allow-spooler-stop と --no-spooler-stop は同時に指定できません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression: %2</source>
        <translation>「%1」は正規表現ではありません: %2</translation>
    </message>
    <message>
        <source>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</source>
        <translation>--silence: 1 から %1 までの秒数が必要ですが、「%2」が指定されました</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>CRASHED</source>
        <translation>クラッシュ</translation>
    </message>
    <message>
        <source>HANGS, was ended</source>
        <translation>応答なし、終了しました</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>未実行</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>何も変更されていません。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>フォルダー %1 を作成できません。</translation>
    </message>
    <message>
        <source>An earlier run did not end by itself. What it has left behind is removed now.</source>
        <translation>前回の実行は正常に終了しませんでした。残っているものを今から削除します。</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</source>
        <translation>%1 を読み取れないため、その実行の前に何があったかわかりません。追加されたプリンターが残っていなければ、このファイルを削除してください。</translation>
    </message>
    <message>
        <source>Tests of VxPrinterStatus %1</source>
        <translation>VxPrinterStatus %1 のテスト</translation>
    </message>
    <message>
        <source>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</source>
        <translation>このプログラムは、このコンピューターで VxPrinterStatus のテストを実行します。独自の名前のプリンター、ドライバー、ポートを追加しますが、お使いのプリンターには何も印刷しません。独自のキーをレジストリに書き込み、独自のサービスを追加し、ウィンドウを表示しては閉じます。これらはすべて後で削除されます。一時的に、追加したプリンターの 1 つが既定のプリンターになります。</translation>
    </message>
    <message>
        <source>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</source>
        <translation>残るのはレポートのファイル 1 つだけで、送信する前に内容を読むことができます。人、コンピューター、お使いのプリンターの名前は含まれません。自動的に送信されるものはありません。</translation>
    </message>
    <message>
        <source>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</source>
        <translation>10 分から 30 分かかります。Ctrl+C でいつでも終了でき、その場合も追加したものは削除されます。</translation>
    </message>
    <message>
        <source>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</source>
        <translation>管理者権限がないため、%2 件のうち %1 件のテストは実行できません。すべて実行するには、「いいえ」と答えてから run-tests.cmd を右クリックし、「管理者として実行」を選択してください。</translation>
    </message>
    <message>
        <source>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</source>
        <translation>この Windows は英語ではありません。英語の文字列を比較するテストは、それだけで不合格になることがあります。このことはレポートにも記載されます。</translation>
    </message>
    <message>
        <source>Run the tests?</source>
        <translation>テストを実行しますか?</translation>
    </message>
    <message>
        <source>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</source>
        <translation>一部のテストは印刷スプーラーを数秒間停止し、再び開始します。そのあいだこのコンピューターからは誰も印刷できず、ジョブは待機します。許可しない場合は、ほかのテストが実行されます。</translation>
    </message>
    <message>
        <source>May they stop the print spooler?</source>
        <translation>印刷スプーラーを停止してもよいですか?</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 skipped, %4 not run</source>
        <translation>合格 %1、不合格 %2、スキップ %3、未実行 %4</translation>
    </message>
    <message>
        <source>Not as it was before:</source>
        <translation>以前の状態と異なるもの:</translation>
    </message>
    <message>
        <source>Please send back this file:</source>
        <translation>このファイルを送り返してください:</translation>
    </message>
    <message>
        <source>The tests are already running on this computer.</source>
        <translation>このコンピューターではテストがすでに実行中です。</translation>
    </message>
    <message>
        <source>Press Enter to close.</source>
        <translation>閉じるには Enter キーを押してください。</translation>
    </message>
    <message>
        <source>[y/n]</source>
        <comment>the first letters of yes and no</comment>
        <translation>[y/n]</translation>
    </message>
    <message>
        <source>Removed: %1. Could not be removed: %2.</source>
        <translation>削除: %1。削除できなかったもの: %2。</translation>
    </message>
    <message>
        <source>%1: the test &quot;%2&quot; has no program in this folder</source>
        <translation>%1: テスト「%2」のプログラムがこのフォルダーにありません</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 lists no tests</source>
        <translation>%1 にテストがありません</translation>
    </message>
</context>
</TS>
