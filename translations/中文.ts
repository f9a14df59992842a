<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- 术语：熔丝位（fuse bit）、锁定位（lock bit）、校准字节（calibration byte）、编程速度（bit clock，标签中简作“速度”）、出厂值（default）、欠压检测器（brown-out detector）、引导区（boot section）、应用区（application section）、晶振（crystal），均为国内通用说法。 -->
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>您的账户无权使用编程器。</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>请将下面这一行写入 %1，然后重新插入编程器：</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>您的账户无权使用端口 %1。</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>在终端中运行：%1。然后注销并重新登录。</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>编程器插好了吗？请换一根数据线，并换一个 USB 插口试试。</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>在 Windows 上它需要驱动程序：使用指南中说明了是哪一个。</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>没有插入列表中的任何编程器。</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>已插入的可能是：%1。</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>当前没有串口。</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>当前存在的端口：%1。</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>没有端口 %1。</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>其他程序正在使用端口 %1：请关闭该程序，例如串口监视器。</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>地址 %1 上没有程序在监听：程序启动了吗？地址正确吗？</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>请在操作前一刻按下开发板上的复位按钮。</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>请试试列表中该开发板的另一项：不同引导程序的通信速度不同。</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>%1 是正确的端口吗？编程器与所选的类型一致吗？</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>插头方向正确吗？芯片有供电吗？</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>编程速度必须低于芯片时钟频率的四分之一：请尝试低于 %1 的编程速度。</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>芯片的熔丝位可能设定了并不存在的时钟源：请向时钟引脚输入约 1 MHz 的时钟信号。</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>芯片的熔丝位可能将复位引脚改作他用：可用高压编程器恢复。</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>如果这发生在“写入”之后：请检查接触是否良好、供电是否正常，并尝试更低的编程速度。</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>已设置锁定位的芯片，其内容无法正确读出。</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>引导程序无法写入熔丝字节和锁定字节。编程器可以。</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>芯片已锁定：“全部擦除”可解除锁定，但会清除其内容。</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 需要 avrdude %2 或更新的版本；已安装的版本不支持它。</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>已安装的 avrdude 不支持 %1。</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>芯片的签名字节为 %1，列表中没有与之对应的型号。</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>芯片报告的型号为：%1。</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 通过 %2 编程，而此编程器使用 %3。</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>列表中适用的有（仅举部分）：%1。</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>系统的软件包中有 avrdude：%1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel 查找的是 %1。可在 save.json 的 &quot;avrdude&quot; 项中指定其他程序或完整路径。</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>然后重新启动 Korvel。</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>请拔下编程器后重新插入，并关闭可能占用它的其他程序。</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>在以下文件夹中查找：%1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>此编程器的编程速度是固定的：芯片的时钟频率必须高于 %1，而新芯片通常为 1 MHz。</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>芯片的熔丝位可能将 UPDI 引脚改作他用：可用支持高压 UPDI 的编程器恢复。</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>芯片可能已锁定：使用此编程器时，任何版本的 avrdude 都无法解除锁定；改用 SerialUPDI 或 Atmel-ICE，“全部擦除”即可解除锁定。</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Flash 写入失败。</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Flash 校验失败。</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Flash 读取失败。</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>EEPROM 写入失败。</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>EEPROM 校验失败。</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>EEPROM 读取失败。</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>熔丝字节写入失败。</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>熔丝字节校验失败。</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>熔丝字节读取失败。</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>校准字节读取失败。</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>芯片擦除失败。</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>芯片内容与文件在地址 %1 处不一致。</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>此前写入已开始：芯片中可能只有文件的一部分。</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>芯片已擦除，且未写入任何内容：其 Flash 为空。</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>此前写入已开始：芯片可能只写入了部分熔丝字节。</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>此前擦除已开始：芯片可能是空的。</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU 擦除成功。</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>已检测到 MCU。要继续吗？</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>校准字节读取成功。</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>文件夹 %1 中没有找到文件。</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude 未读到任何内容：该单片机很可能没有此字节。</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>全部擦除</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>校准字节</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>找不到 avrdude：</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>找不到编程器。</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>仍要使用该端口吗？</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>未找到 %1 的串口：端口仍为 %2。</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude 已停止。</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 不是有效的编程速度：将使用 %2。</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>读取将覆盖此文件：</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>此文件比要读取的数据大：请先将它移到别处。</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude 未启动：%1 不是单片机的标识符。</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude 未启动：其参数包含不可见的字符：%1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude 未启动：%1 是文件，不是端口。</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>Korvel 所在的文件夹中没有 avrdude：将使用 %1。</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>清零</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>无法写入电路板记录文件：%1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>无法将下一个序列号保存到配置文件：%1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>序列号 %1 将被跳过。</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>%1 中缺少这块板的记录。</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>找不到 MCU 的 JSON 文件</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>添加 / 移除配置文件</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>配置文件名称</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>说明（可选）</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>“添加”：将当前设置保存为配置文件。
“移除”：移除所选的配置文件。</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>文件有 %1 字节，存储器只有 %2 字节。</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>芯片会被白白擦除。
仍要继续吗？</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude 不会将以下内容视为文件路径：</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>第 %1 行不是 %2 格式。</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>第 %1 行的校验和错误。</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>文件中有地址 0x%1 的数据，存储器只有 %2 字节。</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>文件不是 AVR 的 ELF 程序。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude 不接受扩展名为 .%1 的此文件：请将扩展名改为 %2。</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>文件中没有此存储器的数据。</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>文件缺少末尾部分。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>无法读取文件。</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>文件太大，不可能是固件。</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>出厂值</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>此设置为保留值：芯片可能不再应答。
恢复方法：使用高压编程器。</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>复位引脚变为普通引脚：ISP 或 TPI 编程器将无法再访问芯片。
恢复方法：使用高压编程器。</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>复位引脚归调试器使用：ISP 编程器将无法再访问芯片。
恢复方法：使用支持 debugWIRE 的调试器或高压编程器。</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>ISP 编程器将无法再访问芯片。
恢复方法：使用 JTAG（如果芯片有）或高压编程器。</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>JTAG 编程器将无法再访问芯片。
恢复方法：使用 ISP（ATxmega 使用 PDI）或高压编程器。</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>UPDI 引脚改作他用：普通 UPDI 编程器将无法再访问芯片。
恢复方法：使用支持高压 UPDI 的编程器。</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>不接晶振，芯片将不会应答；接上晶振，也只有在编程速度低于 8 kHz（启用 CKDIV8 时为 1 kHz）时才会应答。
恢复方法：接上 32.768 kHz 晶振或向时钟引脚输入时钟信号，并选择更低的编程速度；或使用高压编程器。</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>时钟这么慢，芯片将只有在编程速度低于其时钟频率的四分之一时才会应答。
恢复方法：选择更低的编程速度。</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>引脚上没有此时钟时，芯片将不会应答。
恢复方法：向时钟引脚输入时钟信号（仅当该设置注明晶振时，接晶振才有用），或使用高压编程器。</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>UPDI 引脚改作他用：普通 UPDI 编程器将无法再访问芯片。
恢复方法：使用适用于该系列、支持高压 UPDI 的编程器，它向复位引脚施加的电压仅略高于电源电压。12 V 会烧毁该引脚。</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>编程器将无法再读取或写入芯片。
恢复方法：“全部擦除”。</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>编程器将无法再写入芯片。
恢复方法：“全部擦除”。</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 字节（%2 字）</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 字节（%2 字），起始字节地址 %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 个时钟周期</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 个时钟周期 + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 个时钟周期，复位后另加 %2 个时钟周期 + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms（仅当复位引脚为普通引脚或复位输入时）</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>应用区的引导锁定位（BLB）</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>应用表区的引导锁定位（BLB）</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>引导区的引导锁定位（BLB）</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>芯片擦除时的引导行（BOOTROW）</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>欠压检测器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>掉电模式下的欠压检测器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>休眠模式下的欠压检测器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>工作模式下的欠压检测器（BOD）</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>欠压检测阈值（BOD）</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>内部振荡器的校准值</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>启动时的引导区 CRC 校验：校验不通过则程序不会启动</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>时钟故障检测</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>时钟输出</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>时钟源</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>时钟源和启动时间</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>启动时的时钟源</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>看门狗窗口的禁止清零时段</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>AT90S4414 和 AT90S8515 兼容模式</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>AT90S4434 和 AT90S8535 兼容模式</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>ATmega103 兼容模式</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>ATmega161 兼容模式</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>USB 稳压器的灌电流功能</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>通过复位引脚调试（debugWIRE）</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>复位后的深度欠压恢复</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>启动时的时钟分频</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>芯片擦除时的 EEPROM</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>应用代码区的结束位置（以块为单位）</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>应用代码区的结束位置，其后为数据区</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>引导区的结束位置</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>引导区的结束位置（以块为单位）</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>启动时的 Flash CRC 校验：校验不通过则程序不会启动</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>供工厂测试用</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>内部振荡器的频率</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>超低功耗振荡器的频率</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>晶振引脚的内部电容</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>JTAG 接口</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>JTAG 用户 ID</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>PSC 输出 A 在复位时的强制电平</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>PSC 输出 B 在复位时的强制电平</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>PSC 输出在复位时的强制电平</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>锁定位</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>启动时 Flash 校验的方法</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>对处理器的监控</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>对看门狗的监控</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>片上调试（OCD）</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>振荡器选项</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>复位后定时器 TCD0 的输出 A</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>复位后定时器 TCD0 的输出 A 接到引脚</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>复位后定时器 TCD0 的输出 B</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>复位后定时器 TCD0 的输出 B 接到引脚</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>复位后定时器 TCD0 的输出 C</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>复位后定时器 TCD0 的输出 C 接到引脚</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>复位后定时器 TCD0 的输出 D</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>复位后定时器 TCD0 的输出 D 接到引脚</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL（输入：晶振）</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL（输入：晶振），%1 分频</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL（输入：外部时钟）</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL（输入：外部时钟），%1 分频</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL（输入：内部振荡器 %1 MHz）</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL（输入：内部振荡器 %1 MHz），%2 分频</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>复位时的 PSC 输出</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>复位时的 PSC0 输出</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>复位时的 PSC1 输出</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>复位时的 PSC2 输出 %1 和 %2</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>复位时的 PSC2 输出</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>定时器 %1 kHz 晶振的引脚</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>复位/UPDI 引脚</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>复位引脚</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>欠压检测器（BOD）的采样频率</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>串行编程（ISP）</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>引导区大小</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>复位时 PSC 输入的特殊行为</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>通过 HWB 引脚启动引导区</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>复位后程序的起始位置</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>启动时间</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>多电压引脚（MVIO）的供电</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>上电后禁止写入的等待时间</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>UPDI 引脚</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI，复位输入在另一引脚上</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <translation>看门狗</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>看门狗设置</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>看门狗超时时间</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>程序写入 Flash（SPM）</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>单独供电</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>%1 字节之后</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>始终开启</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>出厂值</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>作为普通引脚</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>由程序设定</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>地址 %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>引导区起始处</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>Flash 末尾</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>引导区和应用代码区</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>引导区</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>欠压检测器（BOD）开启</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>使用 %1 kHz 晶振或外部 RC 时接入内部电容</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>陶瓷谐振器</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>陶瓷谐振器 %1～%2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>陶瓷谐振器 %1～%2 MHz（CKOPT 为 %3 时：也可用晶振，%4 MHz 及以上）</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>陶瓷谐振器 %1 MHz 及以上</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>陶瓷谐振器或外部时钟</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>晶振或陶瓷谐振器</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>晶振或陶瓷谐振器 %1～%2 MHz（CKOPT 为 %3 时：%4 MHz 及以上）</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>晶振或陶瓷谐振器（高频）</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>晶振或陶瓷谐振器（低频）</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>晶振或陶瓷谐振器（中频）</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>晶振</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>晶振 %1～%2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>晶振 %1 MHz 及以上</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>%1 分频</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>一并擦除</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>外部 RC 振荡器</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>外部 RC 振荡器 %1～%2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>外部 RC 振荡器 %1 MHz 及以下</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>外部时钟</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>电源快速上升</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>强制为固定电平</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>全幅振荡，%1 MHz 以上的晶振需要</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>全幅晶振 %1～%2 MHz（电源电压高于 %3 V）</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高电平</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>内部 %1 kHz 振荡器</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>使用内部电容</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>内部高频振荡器</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>内部振荡器</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>内部振荡器 %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>内部振荡器 %1 MHz，%2 分频</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>内部振荡器 %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>内部超低功耗振荡器 %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>不擦除</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>不擦除，芯片已锁定时除外</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>不擦除，即使芯片已锁定</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>禁止写入</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>禁止写入和读取</translation>
    </message>
    <message>
        <source>long</source>
        <translation>长</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>启动时间长</translation>
    </message>
    <message>
        <source>low</source>
        <translation>低电平</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>低频晶振（%1 kHz）</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>任何程序都不能写入本区</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>任何程序都不能写入本区，应用区的程序也不能读取本区</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>任何程序都不能写入本区，引导区的程序也不能读取本区</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>应用区的程序不能读取本区</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>引导区的程序不能读取本区</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>无复位输入</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>无限制</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>不分频</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>不允许</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>工作时关闭，芯片擦除期间为 %1 V</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>输出到引脚</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>开启，唤醒时等待其就绪</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>开启，但在深度休眠模式下关闭</translation>
    </message>
    <message>
        <source>open</source>
        <translation>未锁定</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>程序可更改</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>普通引脚</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>普通引脚，仅可作输入</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>其他引脚</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>保留值</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>复位输入</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>定期采样</translation>
    </message>
    <message>
        <source>short</source>
        <translation>短</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>启动时间短</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>电源缓慢上升</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>小幅振荡，省电</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>启动 %1 个时钟周期，复位后另加 %2 个时钟周期</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>启动 %1 个时钟周期</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>启动 %1 个时钟周期 + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>启动 %1 个时钟周期，复位后另加 %2 个时钟周期</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>启动 %1 个时钟周期，复位后另加 %2 个时钟周期 + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>与芯片共用</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>使用内部振荡器时须选此项</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>整个 Flash 均为引导区</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>主晶振的引脚</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>收发器振荡器</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>启动时间极短</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>看门狗振荡器 %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>复位结束时引脚为低电平则启动</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>整个 Flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>使用内部电容</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>BOOTEND 为 %1 时不起作用</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>BOOTSIZE 为 %1 时不起作用</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>不使用内部电容</translation>
    </message>
</context>
<context>
    <name>FuseRequests</name>
    <message>
        <source>There is no fuse byte here: none was sent.</source>
        <translation>这里没有熔丝字节：未发送任何内容。</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>未发送，因为没有名称如下的熔丝字节：%1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>窗口中已填入出厂值，芯片未改动。</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>熔丝字节写入成功。</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>熔丝字节校验成功。</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>熔丝字节读取成功。</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>仍要写入熔丝字节吗？</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>未读取（仍显示旧值）：%1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>校验</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>出厂值</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>对于此单片机的熔丝字节，avrdude 并不可靠。</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>尚未加载熔丝字节。请在第一个选项卡中选择单片机。</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>ISP 编程器无法访问此单片机的熔丝字节。</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>未从芯片读取</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>找不到 JSON 文件</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON 文件错误</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>不是 JSON 对象</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>无法将设置保存到文件：</translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>无法从文件加载设置：</translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>原文件已保留，名为 %1。</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude 仍在操作芯片。如果现在终止它，芯片将停留在当时的状态：可能已被擦除，也可能只写入了一半。</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>仍要关闭 Korvel 吗？</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel 无法写入文件夹 %1：您的选择不会被保存。</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM 写入成功。</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM 校验成功。</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM 读取成功。</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH 写入成功。</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH 校验成功。</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH 读取成功。</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>修改于 %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>文件不存在：avrdude 未写出该文件。</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>文件为空：芯片为空或已锁定，或者磁盘已满。</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>要覆盖它吗？</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>读取将覆盖此文件：</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 字节数据</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 字节数据，占存储器的 %2%</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>校验</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>找不到编程器。</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>编程器未检测到单片机

- 请检查连接和供电
- 请降低速度（端口 &amp; 速度）</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>无法读取内容
芯片为空或已加读保护（锁定位已设置）。</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>所选的单片机不正确。</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>校验错误。</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>文件格式无效，请选择其他文件。</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>请查看下方日志中的消息。</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>找不到 UsbAsp。</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>没有此文件或文件夹。</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>无法读取该配置文件。</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>&quot;quiet&quot; 的值既不是 true 也不是 false。</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>&quot;boardLog&quot; 的值不是以 .csv 结尾的文件名。</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>无法写入序列号。</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>无法从文件加载设置：</translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>配置文件“%1”已存在。
要覆盖它吗？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>要删除此配置文件吗？</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>选择配置文件...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>Flash 写入成功。
Flash 校验成功。
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM 写入成功。
EEPROM 校验成功。
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>熔丝位写入成功。
熔丝位校验成功。</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>无法将设置保存到文件：</translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>配置文件名称不能包含以下任何字符：%1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>重新启动后，它在列表中的名称为 %1。</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 个熔丝字节</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 个熔丝字节</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>未加载配置文件</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows 将此名称保留给设备使用。请换一个名称。</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>此名称作为文件名太长。请换一个较短的名称。</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>重新启动后，它不会显示在列表中。</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>加载后设置已更改</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>配置文件为此存储器指定的命令不会将文件写入该存储器。不执行此命令：</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>使用此配置文件无法写入电路板。</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>使用此配置文件时，电路板写入成功后不弹出提示框。</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>序列号 %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>第 %1 块板</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>第 %1 块板：已写入，%2 秒</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>第 %1 块板失败：%2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>成功 %1，失败 %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>已选择 MCU：</translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>。
窗口中已填入出厂值，芯片未改动。</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>使用外部按钮</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>写入所选区域</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>查找范围：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近位置</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>向前</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>创建新文件夹</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细视图</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细视图</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示 </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到文件。
请检查文件名。</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到文件夹。
请检查文件夹名称。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1”有写保护。
仍要删除吗？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>无法删除文件夹。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 文件</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>快捷方式</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>文件名无效</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>不能使用名称“%1”。请换一个较短或不含标点符号的名称。</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>滚动到此处</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左边缘</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右边缘</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左翻页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右翻页</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
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
        <translation>复制链接地址(&amp;L)</translation>
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
        <translation>avrdude 正在运行</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>正在写入</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>正在读取</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>正在校验</translation>
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
        <translation>熔丝</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>要写入的存储区：</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>为其指定的存储器既不是 &quot;eeprom&quot; 也不是 &quot;flash&quot;。</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>其格式不是 &quot;little&quot;、&quot;big&quot;、&quot;decimal&quot;、&quot;hex&quot; 中的任何一种。</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>&quot;address&quot; 和 &quot;next&quot; 必须是非负整数，&quot;bytes&quot; 必须是 1 到 %1 的整数。</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>其位置超出存储器的范围（存储器大小为 %1 字节）。</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>参数 -e 会在写入序列号之前擦除芯片。</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>序列号 %1 所需的字节数超过 &quot;bytes&quot; 的值（%2）。</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>请重新启动程序以更改语言。</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>文件夹 %1 中没有找到文件。</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude 将收到编程器文件中没有的附加参数：%1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>在您选择编程速度之前，将使用设置中的编程速度：%1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>编程器</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>端口 &amp;&amp; 速度（新 MCU -&gt; 185kHz）</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>该配置文件要求运行另一个程序。</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>配置文件中：</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>当前使用：</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>程序一旦运行，就能执行您能执行的任何操作。从现在起要运行配置文件中指定的程序吗？</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>配置文件中含有可能让 avrdude 读取或写入文件的参数。</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>要使用这些参数吗？</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>服务器的响应中缺少下载地址。</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>新版本 %1 已发布。

要打开下载页面吗？</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>无法打开链接。</translation>
    </message>
</context>
</TS>
