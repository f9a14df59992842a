<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Every text stands for itself. Terms: fuse byte, fuse bit, lock bit and calibration byte, as in the datasheets. -->
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>Your account may not use the programmer.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Write this line into %1 and plug the programmer in again:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>Your account may not use the port %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>In a terminal: %1. Then log out and in again.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Is the programmer plugged in? Try another cable, and another socket.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>On Windows it needs its driver: the guide tells which.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Nothing is plugged in that the list has.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>What is plugged in may be: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>There is no serial port now.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Ports that are there now: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>There is no port %1.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Another program uses the port %1: close it, such as a serial monitor.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>Nothing listens at %1: is it started, and is that the right address?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Press the board&apos;s reset button just before.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Try the other entry for the board in the list: boot loaders differ in speed.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>Is %1 the right port, and the programmer of the kind that is chosen?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Is the plug the right way round, and does the chip have power?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>After Write: check contacts and supply, and try a lower speed.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>A chip whose lock bits are set does not show what it holds.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>A boot loader cannot write fuse and lock bytes. A programmer can.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>The chip is locked: Erase all frees it, and takes what it holds.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 needs avrdude %2 or newer; the one that is installed does not know it.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>The avrdude that is installed does not know %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>The chip has the signature %1, which nothing in the list has.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>The chip says that it is: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 is programmed by %2, and this programmer speaks %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Of the list there fit, among others: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude is in the system&apos;s packages: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Then start Korvel again.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Unplug the programmer and plug it in again, and close other programs that may use it.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Folders that are searched for it: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Writing the flash failed.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Verifying the flash failed.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Reading the flash failed.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Writing the EEPROM failed.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Verifying the EEPROM failed.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Reading the EEPROM failed.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Writing the fuse bytes failed.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Verifying the fuse bytes failed.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Reading the fuse bytes failed.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Reading the calibration byte failed.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Erasing the chip failed.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>The chip differs from the file at address %1.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>Writing had begun: the chip may hold a part of the file.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>The chip was erased, and nothing was written: its flash is empty.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>Writing had begun: the chip may have some of the fuse bytes.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>Erasing had begun: the chip may be empty.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU erased successfully.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU auto-detected successfully. Do you want to continue?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Calibration byte read successfully.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Nothing found in the folder %1.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude has read none: most likely the microcontroller has no such byte.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Auto-Detect</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Erase all</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Calibration Byte</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude not found</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmer not found.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Do you want to use it all the same?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>No serial port was found for %1: the port is still %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude was stopped.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 is no speed: %2 is used.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Reading would replace this file:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>It is larger than what is read: move it away first.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude was not started: %1 is no identifier of a part.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude was not started: its arguments hold characters that cannot be seen: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude was not started: %1 is a file and no port.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>avrdude is not beside Korvel: %1 is used.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Set to zero</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>The record of the boards cannot be written: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>The next number cannot be saved in the profile: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>The number %1 will be left out.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>The line of this board is missing in %1.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>MCU JSON FILE NOT FOUND</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Add / Remove profile</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Profile name</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Description (optional)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>The file has %1 bytes, the memory only %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>The chip would be erased for nothing.
Do you want to go on all the same?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude would not take this for the path of a file:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>Line %1 is not %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>The checksum of line %1 is wrong.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>The file has data at address 0x%1, the memory only %2 bytes.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>The file is not an ELF program for AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude does not take this file with the ending .%1: let its name end in %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>The file holds no data for this memory.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>The end of the file is missing.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>The file cannot be read.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>The file is too large to be firmware.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Factory setting</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>A programmer will no longer be able to write to the chip.
The way back: Erase all.</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 bytes (%2 words)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 bytes (%2 words), from byte address %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 clocks</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 clocks + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 clocks, after a reset %2 clocks + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, if the reset pin is an ordinary pin or the reset input</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Boot lock bits of the application section</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Boot lock bits of the application table section</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Boot lock bits of the boot section</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>Boot row at a chip erase</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Brown-out detector</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Brown-out detector in power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Brown-out detector in sleep</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Brown-out detector while active</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Brown-out level</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Calibration of the internal oscillator</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Clock failure detection</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Clock output</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Clock source</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Clock source and start-up time</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Clock source at the start</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Closed part of the watchdog window</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Compatibility with AT90S4414 and AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Compatibility with AT90S4434 and AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Compatibility with ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Compatibility with ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Current sink of the USB voltage regulator</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Debugging over the reset pin (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Deep under-voltage recovery after a reset</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Division of the clock at the start</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM at a chip erase</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>End of the application code section, in blocks</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>End of the application code section, where the data section begins</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>End of the boot section</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>End of the boot section, in blocks</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Flash check (CRC) at the start: a failing one keeps the program from starting</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>For tests in the factory</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Frequency of the internal oscillator</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Frequency of the ultra-low-power oscillator</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Internal capacitors at the crystal pins</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>JTAG interface</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>JTAG user identification</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Level of PSC outputs A that a reset forces</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Level of PSC outputs B that a reset forces</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Level of PSC outputs that a reset forces</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Lock bits</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Method of the flash check at the start</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Monitor of the processor</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Monitor of the watchdog</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>On-chip debugging</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Oscillator option</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Output A of the timer TCD0 after a reset</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Output A of the timer TCD0 on its pin after a reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Output B of the timer TCD0 after a reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Output B of the timer TCD0 on its pin after a reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Output C of the timer TCD0 after a reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Output C of the timer TCD0 on its pin after a reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Output D of the timer TCD0 after a reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Output D of the timer TCD0 on its pin after a reset</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL from the crystal oscillator</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL from the crystal oscillator, divided by %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL from the external clock</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL from the external clock, divided by %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL from the internal oscillator %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL from the internal oscillator %1 MHz, divided by %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>PSC outputs in a reset</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>PSC0 outputs in a reset</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>PSC1 outputs in a reset</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>PSC2 outputs %1 and %2 in a reset</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>PSC2 outputs in a reset</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Pins of the timer&apos;s %1 kHz crystal</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Reset and UPDI pin</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Reset pin</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Sampling of the brown-out detector</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Serial programming (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Size of the boot section</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Special behaviour of the PSC inputs in a reset</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Start of the boot section by the pin HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Start of the program after a reset</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Start-up time</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Supply of the multi-voltage pins</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Time-out after power-on that blocks writing</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>UPDI pin</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, and the reset input on another pin</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <translation>Watchdog</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Watchdog settings</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Watchdog timeout</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Writing of the flash by the program (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>a voltage of their own</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>after %1 bytes</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>always on</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>as delivered</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>as ordinary pins</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>as the program sets it</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>at address %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>at the boot section</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>at the end of the flash</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>boot and application code sections</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>boot section</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>brown-out detector on</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>capacitors with %1 kHz crystals and external RC</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>ceramic resonator</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>ceramic resonator %1 to %2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>ceramic resonator from %1 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>ceramic resonator or external clock</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>crystal or ceramic resonator</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>crystal or ceramic resonator, high frequency</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>crystal or ceramic resonator, low frequency</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>crystal or ceramic resonator, medium frequency</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>crystal oscillator</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>crystal oscillator %1 to %2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>crystal oscillator from %1 MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>divided by %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>erased too</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>external RC oscillator</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>external RC oscillator %1 to %2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>external RC oscillator up to %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>external clock</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>fast rising power</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>forced to a level</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>full swing, which crystals above %1 MHz need</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>full-swing oscillator %1 to %2 MHz (supply above %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>high</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>internal %1 kHz oscillator</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>internal capacitors</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>internal high-frequency oscillator</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>internal oscillator</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>internal oscillator %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>internal oscillator %1 MHz divided by %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>internal oscillator %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>internal ultra-low-power oscillator %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>kept</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>kept, but not if the chip is locked</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>kept, even if the chip is locked</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>locked</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>locked for writing</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>locked for writing and reading</translation>
    </message>
    <message>
        <source>long</source>
        <translation>long</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>long start-up</translation>
    </message>
    <message>
        <source>low</source>
        <translation>low</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>low-frequency crystal (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>no program can write it</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>no program can write it, and none in the application section can read it</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>no program can write it, and none in the boot section can read it</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>no program in the application section can read it</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>no program in the boot section can read it</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>no reset input</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>no restriction</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>not divided</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>not possible</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>off in operation, %1 V while the chip is erased</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>on its pin</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>on, and waking up waits until it is ready</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>on, but off in the deep sleep modes</translation>
    </message>
    <message>
        <source>open</source>
        <translation>open</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>open to the program</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>ordinary pin</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>ordinary pin, as an input only</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>other ones</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>possible</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>reserved</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>reset input</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>sampled</translation>
    </message>
    <message>
        <source>short</source>
        <translation>short</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>short start-up</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>slowly rising power</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>small swing, which saves power</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>start-up %1 clock, after a reset %2 clocks</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>start-up %1 clocks</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>start-up %1 clocks + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>start-up %1 clocks, after a reset %2 clocks</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>start-up %1 clocks, after a reset %2 clocks + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>that of the chip</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>the internal oscillator needs it</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>the whole flash is boot section</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>those of the main crystal</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>transceiver oscillator</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>very short start-up</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>watchdog oscillator %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>when the pin is low at the end of a reset</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>whole flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>with internal capacitors</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>without effect while BOOTEND is %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>without effect while BOOTSIZE is %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>without internal capacitors</translation>
    </message>
</context>
<context>
    <name>FuseRequests</name>
    <message>
        <source>There is no fuse byte here: none was sent.</source>
        <translation>There is no fuse byte here: none was sent.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Not sent, as no fuse byte is called so: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Fuse bytes set to default values successfully.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Fuse bytes written successfully.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Fuse bytes verified successfully.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Fuse bytes read successfully.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Do you want to write the fuse bytes all the same?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Not read (the old values are still shown): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verify</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>avrdude cannot be relied on for the fuse bytes of this microcontroller.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>No fuse bytes are loaded. Choose the microcontroller in the first tab.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>An ISP programmer does not reach the fuse bytes of this microcontroller.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>not read from the chip</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>JSON FILE NOT FOUND</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Cannot open file</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON FILE ERROR</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>not a JSON object</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Failed to save settings to file: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Failed to load settings from file: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>The file is kept as %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Do you want to close Korvel all the same?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel cannot write to the folder %1: what you choose is not kept.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM written successfully.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM verified successfully.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM read successfully.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH written successfully.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH verified successfully.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH read successfully.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>changed on %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>The file is not there: avrdude has not written it.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>The file is empty: the chip is blank or locked, or the disk is full.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Do you want to replace it?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Reading would replace this file:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 bytes of data</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 bytes of data, %2 % of the memory</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verify</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmer not found.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Wrong microcontroller selected.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Verification error.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Invalid file format. Please choose another file.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>See the message in the dialog box.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp not found.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>No such file or directory.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>The profile&apos;s file cannot be read.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>&quot;quiet&quot; is neither true nor false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>&quot;boardLog&quot; is not the name of a file that ends in .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>The serial number cannot be written.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Failed to load settings from file: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Configuration named «%1» already exists.
Do you want to overwrite it?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Delete this profile?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Select profile...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>Flash write successfully.
Flash verify successfully.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>Eeprom write successfully.
Eeprom verify successfully.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fuse bits write successfully.
Fuse bits verify successfully.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Failed to save settings to file: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>The name of a profile cannot hold any of these characters: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>After a restart the list calls it %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 fuse byte</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 fuse bytes</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>no profile loaded</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows keeps this name for a device. Choose another one.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>The name is too long for a file. Choose a shorter one.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>After a restart the list does not show it.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>profile changed since it was loaded</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>The command that the profile has for this memory does not write a file. It is not run:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>No board is written with this profile.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>With this profile no box tells of a board that is good.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>number %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Board %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Board %1: written, %2 s</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Board %1: failed: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>%1 good, %2 failed</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>MCU selected: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Fuse bytes set to datasheet default values.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Use external button</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Write Selected Areas</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Look in:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Files of type:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Recent Places</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Go forward</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Parent Directory</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Go to the parent directory</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Create New Folder</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Create a New Folder</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>List View</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Change to list view mode</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detail View</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Change to detail view mode</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidebar</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>List of places and bookmarks</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Show &amp;hidden files</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;New Folder</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>New Folder</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Show </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File not found.
Please verify the correct file name was given.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Directory not found.
Please verify the correct directory name was given.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Are you sure you want to delete &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Could not delete directory.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 File</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date Modified</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Invalid filename</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>The name &quot;%1&quot; cannot be used. Try using another name, with fewer characters or no punctuation marks.</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scroll here</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Right edge</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page left</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page right</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
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
        <translation>Copy &amp;Link Location</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude is working</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Writing</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Reading</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Verifying</translation>
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
        <translation>FUSES</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>Select memory areas to write:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>It lies outside the memory, which has %1 bytes.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>The argument -e would erase the chip before the number is written.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>The number %1 takes more than &quot;bytes&quot;: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Please restart the application to apply language changes.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Nothing found in the folder %1.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude gets further arguments that the programmer&apos;s file does not have: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Until you choose a speed, that of the settings is used: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Programmer</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>The profile wants another program to be run.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>In the profile:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>In use:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>A program can do whatever you can. Do you want the one of the profile to be run from now on?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>The profile has arguments with which avrdude may read or write files.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Do you want to use them?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>Download URL is missing in server response.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>New version %1 available.

Open download page?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update available</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Could not open the link.</translation>
    </message>
</context>
</TS>
