<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- 用語：ヒューズビット（fuse bit）、ロックビット（lock bit）、校正バイト（calibration byte）、速度（bit clock）、書込器（programmer）、工場出荷値（default、ボタンでは「出荷値」）、低電圧検出器（brown-out detector）、ブート領域（boot section）、水晶振動子（crystal）。名詞は「書込み」「読出し」「読込み」、動詞は「書き込む」「読み出す」。 -->
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>お使いのアカウントには書込器を使う権限がありません。</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>次の行を %1 に書き込み、書込器を接続し直してください：</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>お使いのアカウントにはポート %1 を使う権限がありません。</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>ターミナルで実行：%1。その後、ログアウトしてログインし直してください。</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>書込器は接続されていますか？別のケーブルや別の USB 差し込み口を試してください。</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>Windows では専用のドライバーが必要です。どのドライバーかはガイドに記載しています。</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>一覧にある書込器は接続されていません。</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>接続されている可能性があるもの：%1。</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>現在、シリアルポートはありません。</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>現在あるポート：%1。</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>ポート %1 はありません。</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>別のプログラムがポート %1 を使用しています。シリアルモニタなど、そのプログラムを閉じてください。</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>%1 では何も待ち受けていません。起動していますか？アドレスは正しいですか？</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>操作の直前に、ボードのリセットボタンを押してください。</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>一覧にある、このボードのもう一方の項目を試してください。ブートローダによって通信速度が異なります。</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>ポートは %1 で正しいですか？書込器は選択した種類のものですか？</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>コネクタの向きは正しいですか？チップに電源が供給されていますか？</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>速度はチップのクロック周波数の 4 分の 1 より低くする必要があります。%1 より低い速度を試してください。</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>ヒューズビットが、供給されていないクロックを必要としている可能性があります。クロックピンに約 1 MHz のクロックを入力してください。</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>ヒューズビットでリセットピンが別の用途に設定されている可能性があります。高電圧書込器で元に戻せます。</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>「書込み」の後の場合：接触と電源を確認し、より低い速度を試してください。</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>ロックビットが設定されたチップの内容は正しく読み出せません。</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>ブートローダではヒューズバイトとロックバイトを書き込めません。書込器では書き込めます。</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>チップはロックされています。「全消去」でロックは解除されますが、内容も消えます。</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 には avrdude %2 以降が必要です。インストールされているバージョンは対応していません。</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>インストールされている avrdude は %1 に対応していません。</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>チップのシグネチャは %1 ですが、一覧に該当するものがありません。</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>チップが示す型番：%1。</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 への書込みには %2 を使いますが、この書込器が対応するのは %3 です。</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>一覧のうち使えるもの（一部）：%1。</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude はシステムのパッケージにあります：%1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel は %1 を探します。save.json の &quot;avrdude&quot; に、別のプログラムやフルパスを指定できます。</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>その後、Korvel を起動し直してください。</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>書込器を抜き差しし、使用している可能性のある他のプログラムを終了してください。</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>検索先のフォルダー：%1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>この書込器の速度は固定です。チップのクロック周波数は %1 より高くなければなりませんが、新品のチップは通常 1 MHz です。</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>ヒューズビットで UPDI ピンが別の用途に設定されている可能性があります。高電圧 UPDI 対応の書込器で元に戻せます。</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>チップがロックされている可能性があります。この書込器では、どのバージョンの avrdude でも解除できません。SerialUPDI か Atmel-ICE なら「全消去」で解除できます。</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Flash の書込みに失敗しました。</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Flash の照合に失敗しました。</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Flash の読出しに失敗しました。</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>EEPROM の書込みに失敗しました。</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>EEPROM の照合に失敗しました。</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>EEPROM の読出しに失敗しました。</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>ヒューズバイトの書込みに失敗しました。</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>ヒューズバイトの照合に失敗しました。</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>ヒューズバイトの読出しに失敗しました。</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>校正バイトの読出しに失敗しました。</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>チップの消去に失敗しました。</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>アドレス %1 でチップの内容がファイルと異なります。</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>書込みは始まっていました。チップにはファイルの一部だけが入っている可能性があります。</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>チップは消去され、何も書き込まれていません。Flash は空です。</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>書込みは始まっていました。ヒューズバイトの一部だけが書き込まれている可能性があります。</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>消去は始まっていました。チップは空の可能性があります。</translation>
    </message>
</context>
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
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>フォルダー %1 にファイルが見つかりません。</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude は何も読み出せませんでした。おそらくこのマイコンには校正バイトがありません。</translation>
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
        <translation>avrdude が見つかりません：</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>書込器が見つかりません。</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>それでもこのポートを使いますか？</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>%1 のシリアルポートが見つかりません。ポートは %2 のままです。</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude を停止しました。</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 は速度として無効です。%2 を使用します。</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>読み出すと次のファイルが上書きされます：</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>このファイルは読み出すデータより大きいため、先に別の場所へ移動してください。</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude を起動しませんでした。%1 はマイコンの識別子ではありません。</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude を起動しませんでした。引数に見えない文字が含まれています：%1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude を起動しませんでした。%1 はファイルで、ポートではありません。</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>Korvel と同じフォルダーに avrdude がありません。%1 を使用します。</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>0 に戻す</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>基板の記録ファイルに書き込めません：%1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>次の番号をプロファイルに保存できません：%1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>番号 %1 は欠番になります。</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>この基板の行が %1 に記録されていません。</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>MCU の JSON ファイルが見つかりません</translation>
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
        <translation>「追加」：設定をプロファイルに保存します。
「削除」：選択したプロファイルを削除します。</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>ファイルは %1 バイトですが、メモリは %2 バイトしかありません。</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>チップが消去されるだけで終わります。
それでも続行しますか？</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude は次の文字列をファイルのパスとして扱いません：</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>%1 行目が %2 形式ではありません。</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>%1 行目のチェックサムが正しくありません。</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>ファイルにはアドレス 0x%1 のデータがありますが、メモリは %2 バイトしかありません。</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>ファイルは AVR 用の ELF プログラムではありません。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude は拡張子 .%1 のままではこのファイルを受け付けません。拡張子を %2 にしてください。</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>ファイルにこのメモリのデータがありません。</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>ファイルの末尾が欠けています。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>ファイルを読み込めません。</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>ファイルが大きすぎて、ファームウェアとは考えられません。</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>工場出荷値</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>この設定は予約されています。チップが応答しなくなることがあります。
元に戻すには：高電圧書込器を使います。</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>リセットピンが通常のピンになり、ISP 書込器や TPI 書込器はチップにアクセスできなくなります。
元に戻すには：高電圧書込器を使います。</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>リセットピンがデバッガ用になり、ISP 書込器はチップにアクセスできなくなります。
元に戻すには：debugWIRE 対応のデバッガまたは高電圧書込器を使います。</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>ISP 書込器はチップにアクセスできなくなります。
元に戻すには：JTAG（チップにある場合）または高電圧書込器を使います。</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>JTAG 書込器はチップにアクセスできなくなります。
元に戻すには：ISP（ATxmega では PDI）または高電圧書込器を使います。</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>UPDI ピンの用途が変わり、通常の UPDI 書込器はチップにアクセスできなくなります。
元に戻すには：高電圧 UPDI 対応の書込器を使います。</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>水晶振動子がないとチップは応答しなくなり、つないでも 8 kHz（CKDIV8 有効時は 1 kHz）より低い速度でしか応答しません。
元に戻すには：32.768 kHz の水晶振動子をつなぐか、クロックピンにクロックを入力し、いずれの場合もより低い速度を選びます。または、高電圧書込器を使います。</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>これほど遅いクロックでは、チップはその 4 分の 1 より低い速度でしか応答しなくなります。
元に戻すには：より低い速度を選びます。</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>ピンにこのクロックがないと、チップは応答しなくなります。
元に戻すには：クロックピンにクロックを入力するか（水晶振動子が役立つのは、設定に水晶振動子と示されている場合だけです）、高電圧書込器を使います。</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>UPDI ピンの用途が変わり、通常の UPDI 書込器はチップにアクセスできなくなります。
元に戻すには：このファミリーの高電圧 UPDI に対応し、リセットピンに電源電圧より少しだけ高い電圧をかける書込器を使います。12 V をかけるとリセットピンが壊れます。</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>書込器でチップの読出しも書込みもできなくなります。
元に戻すには：「全消去」を使います。</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>書込器でチップに書き込めなくなります。
元に戻すには：「全消去」を使います。</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 バイト（%2 ワード）</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 バイト（%2 ワード）、開始バイトアドレス %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 クロック</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 クロック + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 クロック、リセット後はさらに %2 クロック + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms（リセットピンが通常のピンまたはリセット入力の場合のみ）</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>アプリケーション領域のブートロックビット（BLB）</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>アプリケーションテーブル領域のブートロックビット（BLB）</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>ブート領域のブートロックビット（BLB）</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>チップ消去時のブート行（BOOTROW）</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>低電圧検出器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>パワーダウン時の低電圧検出器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>スリープ時の低電圧検出器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>動作時の低電圧検出器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>低電圧検出レベル（BOD）</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>内蔵発振器の校正値</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>起動時のブート領域の CRC 検査：不合格ならプログラムは起動しない</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>クロック障害検出</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>クロック出力</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>クロック源</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>クロック源と起動時間</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>起動時のクロック源</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>ウォッチドッグウィンドウのクリア禁止期間</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>AT90S4414・AT90S8515 互換モード</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>AT90S4434・AT90S8535 互換モード</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>ATmega103 互換モード</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>ATmega161 互換モード</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>USB 電圧レギュレータの電流シンク</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>リセットピンによるデバッグ（debugWIRE）</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>リセット後の深い低電圧状態からの回復</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>起動時のクロック分周</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>チップ消去時の EEPROM</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>アプリケーションコード領域の終わり（ブロック単位）</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>アプリケーションコード領域の終わり（以降はデータ領域）</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>ブート領域の終わり</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>ブート領域の終わり（ブロック単位）</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>起動時の Flash の CRC 検査：不合格ならプログラムは起動しない</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>工場での試験用</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>内蔵発振器の周波数</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>超低消費電力発振器の周波数</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>水晶振動子ピンの内蔵コンデンサ</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>JTAG インターフェース</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>JTAG ユーザー ID</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>リセット時に強制する PSC 出力 A のレベル</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>リセット時に強制する PSC 出力 B のレベル</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>リセット時に強制する PSC 出力のレベル</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>ロックビット</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>起動時の Flash の検査方式</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>プロセッサの監視</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>ウォッチドッグの監視</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>オンチップデバッグ（OCD）</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>発振器オプション</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 A</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 A のピン接続</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 B</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 B のピン接続</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 C</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 C のピン接続</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 D</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>リセット後のタイマ TCD0 の出力 D のピン接続</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL（入力：水晶振動子）</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL（入力：水晶振動子）、%1 分周</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL（入力：外部クロック）</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL（入力：外部クロック）、%1 分周</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL（入力：内蔵発振器 %1 MHz）</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL（入力：内蔵発振器 %1 MHz）、%2 分周</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>リセット時の PSC 出力</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>リセット時の PSC0 出力</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>リセット時の PSC1 出力</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>リセット時の PSC2 出力 %1 と %2</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>リセット時の PSC2 出力</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>タイマの %1 kHz 水晶振動子のピン</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>リセット/UPDI ピン</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>リセットピン</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>低電圧検出器（BOD）のサンプリング周波数</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>シリアル書込み（ISP）</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>ブート領域の大きさ</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>リセット時の PSC 入力の特殊動作</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>HWB ピンによるブート領域の起動</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>リセット後のプログラム開始位置</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>起動時間</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>多電圧ピン（MVIO）の電源</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>電源投入後の書込み禁止時間</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>UPDI ピン</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI、リセット入力は別のピン</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <translation>ウォッチドッグ</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>ウォッチドッグの設定</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>ウォッチドッグのタイムアウト</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>プログラムによる Flash への書込み（SPM）</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>専用の電源</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>%1 バイトの後</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>常に有効</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>工場出荷値</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>通常のピンとして動作</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>プログラムで設定</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>アドレス %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>ブート領域の先頭</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>Flash の末尾</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>ブート領域とアプリケーションコード領域</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>ブート領域</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>低電圧検出器（BOD）有効</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>%1 kHz 水晶振動子や外部 RC では内蔵コンデンサを使用</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>セラミック振動子</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>セラミック振動子 %1～%2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>セラミック振動子 %1～%2 MHz（CKOPT が %3 なら水晶振動子も可、%4 MHz 以上）</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>セラミック振動子 %1 MHz 以上</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>セラミック振動子または外部クロック</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>水晶振動子またはセラミック振動子</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>水晶振動子またはセラミック振動子 %1～%2 MHz（CKOPT が %3 なら %4 MHz 以上）</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>水晶振動子またはセラミック振動子（高周波数）</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>水晶振動子またはセラミック振動子（低周波数）</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>水晶振動子またはセラミック振動子（中周波数）</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>水晶振動子</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>水晶振動子 %1～%2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>水晶振動子 %1 MHz 以上</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>%1 分周</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>一緒に消去</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>外部 RC 発振器</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>外部 RC 発振器 %1～%2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>外部 RC 発振器 %1 MHz 以下</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>外部クロック</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>電源の立ち上がりが速い</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>一定のレベルに強制</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>フルスイング、%1 MHz を超える水晶振動子に必要</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>フルスイング水晶振動子 %1～%2 MHz（電源電圧 %3 V 超）</translation>
    </message>
    <message>
        <source>high</source>
        <translation>High</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>内蔵 %1 kHz 発振器</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>内蔵コンデンサ使用</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>内蔵高周波発振器</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>内蔵発振器</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>内蔵発振器 %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>内蔵発振器 %1 MHz、%2 分周</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>内蔵発振器 %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>内蔵超低消費電力発振器 %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>保持、ただしチップがロックされていれば消去</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>チップがロックされていても保持</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>書込み禁止</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>書込みと読出しを禁止</translation>
    </message>
    <message>
        <source>long</source>
        <translation>長い</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>起動時間が長い</translation>
    </message>
    <message>
        <source>low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>低周波水晶振動子（%1 kHz）</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>どのプログラムもこの領域に書き込めない</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>どのプログラムもこの領域に書き込めず、アプリケーション領域のプログラムはこの領域を読み出せない</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>どのプログラムもこの領域に書き込めず、ブート領域のプログラムはこの領域を読み出せない</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>アプリケーション領域のプログラムはこの領域を読み出せない</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>ブート領域のプログラムはこの領域を読み出せない</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>リセット入力なし</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>制限なし</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>分周なし</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>不可</translation>
    </message>
    <message>
        <source>off</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>動作時は無効、チップ消去中は %1 V</translation>
    </message>
    <message>
        <source>on</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>ピンに出力</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>有効、復帰時は準備完了まで待つ</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>有効、ただし深いスリープでは無効</translation>
    </message>
    <message>
        <source>open</source>
        <translation>ロックなし</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>プログラムで変更可</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>通常のピン</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>通常のピン（入力専用）</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>別のピン</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>可</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>予約済み</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>リセット入力</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>サンプリング動作</translation>
    </message>
    <message>
        <source>short</source>
        <translation>短い</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>起動時間が短い</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>電源の立ち上がりが遅い</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>小振幅、省電力</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>起動 %1 クロック、リセット後はさらに %2 クロック</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>起動 %1 クロック</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>起動 %1 クロック + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>起動 %1 クロック、リセット後はさらに %2 クロック</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>起動 %1 クロック、リセット後はさらに %2 クロック + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>チップと共通の電源</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>内蔵発振器ではこちらが必要</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>Flash 全体がブート領域</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>主水晶振動子のピン</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>トランシーバの発振器</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>起動時間がごく短い</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>ウォッチドッグ発振器 %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>リセット終了時にピンが Low なら起動</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>Flash 全体</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>内蔵コンデンサ使用</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>BOOTEND が %1 の間は効果なし</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>BOOTSIZE が %1 の間は効果なし</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>内蔵コンデンサ不使用</translation>
    </message>
</context>
<context>
    <name>FuseRequests</name>
    <message>
        <source>There is no fuse byte here: none was sent.</source>
        <translation>ここにはヒューズバイトがありません。何も送信していません。</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>次の名前のヒューズバイトはないため、送信していません：%1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>画面に工場出荷値を設定しました。チップは変わっていません。</translation>
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
        <translation>ヒューズバイトの照合に成功しました。</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>ヒューズバイトを読み出しました。</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>それでもヒューズバイトを書き込みますか？</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>読み出していないもの（以前の値を表示しています）：%1</translation>
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
        <translation>出荷値</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>このマイコンのヒューズバイトの扱いでは、avrdude を信頼できません。</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>ヒューズバイトが読み込まれていません。最初のタブでマイコンを選択してください。</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>ISP 書込器では、このマイコンのヒューズバイトにアクセスできません。</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>チップ未読出し</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
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
        <source>not a JSON object</source>
        <translation>JSON オブジェクトではありません</translation>
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
    <message>
        <source>The file is kept as %1.</source>
        <translation>ファイルは %1 として残してあります。</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude はまだチップを操作しています。今それを終了すると、チップは消去されたまま、または途中まで書き込まれたままになるおそれがあります。</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>それでも Korvel を閉じますか？</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel はフォルダー %1 に書き込めません。選択した内容は保存されません。</translation>
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
        <translation>EEPROM の照合に成功しました。</translation>
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
        <translation>FLASH の照合に成功しました。</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH を読み出しました。</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>更新日時：%1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>ファイルがありません。avrdude が書き出していません。</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>ファイルが空です。チップが空かロックされているか、ディスクに空きがありません。</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>上書きしますか？</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>読み出すと次のファイルが上書きされます：</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>データ %1 バイト</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>データ %1 バイト、メモリの %2%</translation>
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
チップが空か、読出し保護されています（ロックビットが設定済み）。</translation>
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
        <translation>下の出力欄のメッセージを参照してください。</translation>
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
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>プロファイルのファイルを読み込めません。</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>&quot;quiet&quot; の値が true でも false でもありません。</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>&quot;boardLog&quot; の値が .csv で終わるファイル名ではありません。</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>シリアル番号を書き込めません。</translation>
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
        <translation>プロファイル「%1」はすでに存在します。
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
Flash の照合に成功しました。
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM に書き込みました。
EEPROM の照合に成功しました。
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>ヒューズビットを書き込みました。
ヒューズビットの照合に成功しました。</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>設定を保存できませんでした。ファイル：</translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>プロファイル名に次の文字は使えません：%1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>再起動後、一覧では %1 と表示されます。</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>ヒューズバイト 1 個</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>ヒューズバイト %1 個</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>プロファイル未読込み</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>この名前は Windows がデバイス用に予約しています。別の名前にしてください。</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>名前がファイル名として長すぎます。もっと短い名前にしてください。</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>再起動後、一覧には表示されません。</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>読込み後に設定変更あり</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>プロファイルにあるこのメモリ用のコマンドは、ファイルを書き込むものではありません。このコマンドは実行しません：</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>このプロファイルでは基板に書き込めません。</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>このプロファイルでは、基板への書込みが成功してもダイアログを表示しません。</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>番号 %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>基板 %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>基板 %1：書込み完了、%2 秒</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>基板 %1：失敗。%2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>成功 %1、失敗 %2</translation>
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
画面に工場出荷値を設定しました。チップは変わっていません。</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>場所：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ファイル名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ファイルの種類：</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近使った場所</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>前の場所に戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>次の場所に進む</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>親フォルダー</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>親フォルダーへ移動</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新しいフォルダーを作成</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>一覧で表示</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>場所とブックマーク</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前の変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>隠しファイルを表示(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>表示：</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
ファイルが見つかりません。
ファイル名を確認してください。</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
フォルダーが見つかりません。
フォルダー名を確認してください。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>「%1」は書込み禁止です。
それでも削除しますか？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>フォルダーを削除できませんでした。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 ファイル</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>ファイル名が正しくありません</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>名前「%1」は使えません。もっと短い名前か、記号のない名前にしてください。</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
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
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>ここまでスクロール</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>1 ページ上へ</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>1 ページ下へ</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>1 ページ左へ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>1 ページ右へ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右へスクロール</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>リンクのアドレスをコピー(&amp;L)</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude が動作中です</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>書込み中</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>読出し中</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>照合中</translation>
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
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>メモリの指定が &quot;eeprom&quot; でも &quot;flash&quot; でもありません。</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>形式の指定が &quot;little&quot;、&quot;big&quot;、&quot;decimal&quot;、&quot;hex&quot; のいずれでもありません。</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>&quot;address&quot; と &quot;next&quot; は 0 以上の整数、&quot;bytes&quot; は 1～%1 の整数でなければなりません。</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>番号の位置がメモリの範囲外です。メモリは %1 バイトです。</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>引数 -e があると、番号を書き込む前にチップが消去されてしまいます。</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>番号 %1 は &quot;bytes&quot; の値（%2 バイト）に収まりません。</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>言語の変更はプログラムの再起動後に有効になります。</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>フォルダー %1 にファイルが見つかりません。</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>書込器のファイルにない追加の引数を avrdude に渡します：%1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>速度を選択するまでは、設定の速度を使用します：%1</translation>
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
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>このプロファイルは別のプログラムを実行するよう指定しています。</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>プロファイルの指定：</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>使用中：</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>プログラムは、お使いのアカウントでできることを何でも行えます。今後、プロファイルで指定されたプログラムを実行しますか？</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>プロファイルには、avrdude がファイルを読み書きする可能性のある引数が含まれています。</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>これらの引数を使いますか？</translation>
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
