<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- 用語：ヒューズビット（fuse bit）、ロックビット（lock bit）、校正バイト（calibration byte）、速度（bit clock）、書込器（programmer）。 -->
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU を消去しました。</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU を検出しました。続行しますか？</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>校正バイトを読み出しました。</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>全消去</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読出し</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>校正バイト</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude が見つかりません</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>書込器が見つかりません。</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>MCU の JSON ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON ファイルエラー</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>プロファイルの追加 / 削除</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>プロファイル名</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>説明（任意）</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>「追加」 - 現在の設定を保存します。
「削除」 - 選択したものを削除します。</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>ヒューズバイトを既定値に設定しました。</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>ヒューズバイトを書き込みました。</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>ヒューズバイトを照合しました。</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>ヒューズバイトを読み出しました。</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>読み出せなかったもの：%1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>書込み</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>照合</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読出し</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定値</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>設定を保存できませんでした。ファイル：</translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>設定を読み込めませんでした。ファイル：</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM に書き込みました。</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM を照合しました。</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM を読み出しました。</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH に書き込みました。</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH を照合しました。</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH を読み出しました。</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>書込み</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読出し</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>照合</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>書込器が見つかりません。</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>書込器がマイコンを検出できませんでした

- 接続と電源を確認してください
- 速度を下げてください（ポート &amp; 速度）</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>内容を読み出せませんでした
デバイスが空か、読み出し保護されています（ロックビットが設定済み）。</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>選択したマイコンが違います。</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>照合エラーです。</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>ファイル形式が無効です。別のファイルを選択してください。</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>出力欄のメッセージを参照してください。</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp が見つかりません。</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>ファイルまたはフォルダーがありません。</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>設定を読み込めませんでした。ファイル：</translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>構成「%1」はすでに存在します。
上書きしますか？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>このプロファイルを削除しますか？</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>プロファイルを選択...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>Flash に書き込みました。
Flash を照合しました。
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM に書き込みました。
EEPROM を照合しました。
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>ヒューズビットを書き込みました。
ヒューズビットを照合しました。</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>設定を保存できませんでした。ファイル：</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>選択した MCU：</translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>。
ヒューズバイトをデータシートの既定値に設定しました。</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>書込み</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>外部ボタンを使用</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>選択した領域に書き込む</translation>
    </message>
</context>
<context>
    <name>RawFile</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>ファイルは %1 バイトですが、メモリは %2 バイトしかありません。</translation>
    </message>
</context>
<context>
    <name>SelectView</name>
    <message>
        <source>FLASH</source>
        <translation>FLASH</translation>
    </message>
    <message>
        <source>EEPROM</source>
        <translation>EEPROM</translation>
    </message>
    <message>
        <source>FUSES</source>
        <translation>ヒューズ</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>書き込むメモリ領域：</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>JSON ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON ファイルエラー</translation>
    </message>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>言語の変更はプログラムの再起動後に有効になります。</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>書込器</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>ポート &amp;&amp; 速度（新品 MCU -&gt; 185kHz）</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>サーバーの応答にダウンロード先がありません。</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>新しいバージョン %1 があります。

ダウンロードページを開きますか？</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>更新があります</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>リンクを開けませんでした。</translation>
    </message>
</context>
</TS>
