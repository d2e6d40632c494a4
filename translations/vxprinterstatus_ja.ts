<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>プリンター情報を取得できません。（コード 255）</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>プリンターはリモート接続されています。
プリンター情報を取得できません。</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>プリンターは管理されていません。
プリンター情報を取得できません。</translation>
    </message>
</context>
<context>
    <name>VXError</name>
    <message>
        <source>The printer is disconnected</source>
        <translation>プリンターが接続されていません</translation>
    </message>
    <message>
        <source>The printer is ready</source>
        <translation>プリンターは準備完了です</translation>
    </message>
    <message>
        <source>The printer is out of labels</source>
        <translation>ラベルがなくなりました</translation>
    </message>
    <message>
        <source>The ribbon has run out</source>
        <translation>リボンがなくなりました</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>The labels are jammed</source>
        <translation>ラベルが詰まっています</translation>
    </message>
    <message>
        <source>The cutter is jammed</source>
        <translation>カッターが詰まっています</translation>
    </message>
    <message>
        <source>The cutter cover is open</source>
        <translation>カッターカバーが開いています</translation>
    </message>
    <message>
        <source>The print head is too hot</source>
        <translation>印字ヘッドの温度が高すぎます</translation>
    </message>
    <message>
        <source>The print head is not connected</source>
        <translation>印字ヘッドが接続されていません</translation>
    </message>
    <message>
        <source>The motor is too hot</source>
        <translation>モーターの温度が高すぎます</translation>
    </message>
    <message>
        <source>No labels are loaded</source>
        <translation>ラベルがセットされていません</translation>
    </message>
    <message>
        <source>No ribbon is loaded</source>
        <translation>リボンがセットされていません</translation>
    </message>
    <message>
        <source>The labels are not recognized</source>
        <translation>ラベルを認識できません</translation>
    </message>
    <message>
        <source>The ribbon is not recognized</source>
        <translation>リボンを認識できません</translation>
    </message>
    <message>
        <source>The ribbon does not suit the labels</source>
        <translation>リボンがラベルに適合していません</translation>
    </message>
    <message>
        <source>The start of the label was not found</source>
        <translation>ラベルの先端を検出できません</translation>
    </message>
    <message>
        <source>The ribbon is torn or slack</source>
        <translation>リボンが切れているか、たるんでいます</translation>
    </message>
    <message>
        <source>The label sensor must be calibrated</source>
        <translation>ラベルセンサーの調整が必要です</translation>
    </message>
    <message>
        <source>The printer is paused</source>
        <translation>プリンターは一時停止中です</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>プリンターのメモリがいっぱいです</translation>
    </message>
    <message>
        <source>The firmware is being updated</source>
        <translation>ファームウェアを更新中です</translation>
    </message>
    <message>
        <source>The firmware update has failed</source>
        <translation>ファームウェアの更新に失敗しました</translation>
    </message>
    <message>
        <source>The battery is low</source>
        <translation>バッテリー残量が少なくなっています</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>印刷スプーラーが実行されていません</translation>
    </message>
    <message>
        <source>The printer&apos;s status is not known</source>
        <translation>プリンターの状態が不明です</translation>
    </message>
    <message>
        <source>The printer is reached over a network</source>
        <translation>プリンターはネットワーク経由で接続されています</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>プリンターはオフラインです</translation>
    </message>
    <message>
        <source>The printer is not managed</source>
        <translation>プリンターは管理されていません</translation>
    </message>
    <message>
        <source>Printer error %1</source>
        <translation>プリンターエラー %1</translation>
    </message>
</context>
</TS>
