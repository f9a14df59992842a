<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Begriffe: Fuse-Bit, Fuse-Byte und Lock-Bit bleiben, wie es unter Elektronikern üblich ist; Kalibrierbyte; Tempo für
     die Geschwindigkeit des Programmers, Takt nur für den des Chips; der Programmer bleibt ebenfalls; Boot-Bereich,
     Applikationsbereich; Anlauf; ab Werk, Werkswert, Werkseinstellung; Dezimalpunkte in Fuse-Bedeutungen wie im
     Datenblatt, Dezimalkommas in Sätzen. -->
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>Das Benutzerkonto darf den Programmer nicht benutzen.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Diese Zeile in %1 eintragen und den Programmer neu einstecken:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>Das Benutzerkonto darf den Port %1 nicht benutzen.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>In einem Terminal: %1. Danach ab- und wieder anmelden.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Ist der Programmer eingesteckt? Ein anderes Kabel und einen anderen USB-Anschluss versuchen.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>Unter Windows braucht er seinen Treiber: Welchen, steht in der Anleitung.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Es ist nichts eingesteckt, was in der Liste steht.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Eingesteckt ist vielleicht: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Zurzeit gibt es keinen seriellen Port.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Zurzeit vorhandene Ports: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>Den Port %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Ein anderes Programm, etwa ein serieller Monitor, benutzt den Port %1: Bitte dieses Programm schließen.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>An %1 nimmt nichts die Verbindung an: Läuft die Gegenstelle, und stimmt die Adresse?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Unmittelbar vorher den Reset-Taster des Boards drücken.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Den anderen Eintrag für das Board in der Liste versuchen: Bootloader unterscheiden sich im Tempo.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>Ist %1 der richtige Port, und ist der Programmer von der gewählten Art?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Sitzt der Stecker richtig herum, und hat der Chip Strom?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>Das Tempo muss unter einem Viertel der Taktfrequenz des Chips liegen: ein niedrigeres als %1 versuchen.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Seine Fuses verlangen vielleicht einen Takt, der fehlt: Legen Sie etwa 1 MHz an seinen Takteingang an.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Seine Fuses geben dem Reset-Pin vielleicht eine andere Aufgabe: Ein Hochvolt-Programmer holt ihn zurück.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Wenn das nach „Schreiben“ auftritt: Kontakte und Versorgung prüfen und ein niedrigeres Tempo versuchen.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>Ein Chip mit gesetzten Lock-Bits gibt seinen Inhalt nicht preis.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Ein Bootloader kann Fuse- und Lock-Bytes nicht schreiben. Ein Programmer kann es.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>Der Chip ist gesperrt: „Alles löschen“ gibt ihn frei, sein Inhalt geht dabei verloren.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 braucht avrdude %2 oder neuer; die installierte Version kennt ihn nicht.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>Das installierte avrdude kennt %1 nicht.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>Der Chip hat die Signatur %1, die in der Liste nicht vorkommt.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>Der Chip meldet sich als: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 wird über %2 programmiert, dieser Programmer beherrscht %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Aus der Liste passen unter anderem: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude gibt es als Paket des Systems: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel sucht %1. In save.json kann unter „avrdude“ ein anderes Programm oder ein ganzer Pfad stehen.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Dann Korvel neu starten.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Den Programmer abziehen und wieder einstecken und andere Programme schließen, die ihn vielleicht benutzen.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Ordner, in denen danach gesucht wird: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>Das Tempo dieses Programmers steht fest: Der Takt des Chips muss über %1 liegen, und ein neuer Chip läuft meist mit 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Seine Fuses geben dem UPDI-Pin vielleicht eine andere Aufgabe: Ein Programmer mit Hochvolt-UPDI holt ihn zurück.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>Der Chip ist vielleicht gesperrt: Mit diesem Programmer gibt ihn keine Version von avrdude frei, mit SerialUPDI oder Atmel-ICE tut es „Alles löschen“.</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Schreiben des Flash fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Prüfen des Flash fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Lesen des Flash fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Schreiben des EEPROM fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Prüfen des EEPROM fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Lesen des EEPROM fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Schreiben der Fuse-Bytes fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Prüfen der Fuse-Bytes fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Lesen der Fuse-Bytes fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Lesen des Kalibrierbytes fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Löschen des Chips fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>Der Chip weicht an Adresse %1 von der Datei ab.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>Das Schreiben hatte begonnen: Der Chip enthält vielleicht einen Teil der Datei.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>Der Chip wurde gelöscht und nichts geschrieben: Sein Flash ist leer.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>Das Schreiben hatte begonnen: Vielleicht sind nur einige der Fuse-Bytes geschrieben.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>Das Löschen hatte begonnen: Der Chip ist vielleicht leer.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU erfolgreich gelöscht.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU erfolgreich erkannt. Fortfahren?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Kalibrierbyte erfolgreich gelesen.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Im Ordner %1 wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude hat keines gelesen: Der Mikrocontroller hat sehr wahrscheinlich kein solches Byte.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Erkennen</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Kalibrierbyte</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude nicht gefunden: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmer nicht gefunden.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Soll er trotzdem benutzt werden?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>Für %1 wurde kein serieller Port gefunden: Der Port ist noch %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude wurde gestoppt.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 ist kein gültiges Tempo: Stattdessen wird %2 benutzt.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Beim Lesen würde diese Datei ersetzt:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Sie ist größer als das, was gelesen wird: Bitte vorher in einen anderen Ordner verschieben.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude wurde nicht gestartet: %1 ist keine Kennung eines Mikrocontrollers.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude wurde nicht gestartet: Seine Argumente enthalten unsichtbare Zeichen: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude wurde nicht gestartet: %1 ist eine Datei und kein Port.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>avrdude liegt nicht in Korvels Ordner: Stattdessen wird %1 benutzt.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Auf null setzen</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Das Protokoll der Platinen lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Die nächste Nummer lässt sich nicht im Profil speichern: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>Die Nummer %1 wird ausgelassen.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>In %1 fehlt die Zeile dieser Platine.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>JSON-DATEI DER MCU NICHT GEFUNDEN</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Profil anlegen / entfernen</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Profilname</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Beschreibung (optional)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>„Anlegen“ – Einstellungen als Profil sichern.
„Entfernen“ – gewähltes Profil entfernen.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Die Datei hat %1 Bytes, der Speicher nur %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>Der Chip würde umsonst gelöscht.
Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude würde dies nicht als Pfad einer Datei verstehen:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>Zeile %1 ist kein %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>Die Prüfsumme von Zeile %1 ist falsch.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>Die Datei hat Daten an Adresse 0x%1, der Speicher nur %2 Bytes.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>Die Datei ist kein ELF-Programm für AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude nimmt diese Datei mit der Endung .%1 nicht an: Ihr Name muss auf %2 enden.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>Die Datei enthält keine Daten für diesen Speicher.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Das Ende der Datei fehlt.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>Die Datei ist zu groß für eine Firmware.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Werkseinstellung</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>Diese Einstellung ist reserviert: Der Chip antwortet danach vielleicht nicht mehr.
Der Weg zurück: ein Hochvolt-Programmer.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>Der Reset-Pin wird zu einem gewöhnlichen Pin: Ein ISP- oder TPI-Programmer erreicht den Chip danach nicht mehr.
Der Weg zurück: ein Hochvolt-Programmer.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>Den Reset-Pin übernimmt der Debugger: Ein ISP-Programmer erreicht den Chip danach nicht mehr.
Der Weg zurück: ein Debugger mit debugWIRE oder ein Hochvolt-Programmer.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Ein ISP-Programmer erreicht den Chip danach nicht mehr.
Der Weg zurück: JTAG, wenn der Chip es hat, oder ein Hochvolt-Programmer.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Ein JTAG-Programmer erreicht den Chip danach nicht mehr.
Der Weg zurück: ISP, beim ATxmega PDI, oder ein Hochvolt-Programmer.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>Der UPDI-Pin bekommt eine andere Aufgabe: Ein gewöhnlicher UPDI-Programmer erreicht den Chip danach nicht mehr.
Der Weg zurück: ein Programmer mit Hochvolt-UPDI.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Ohne seinen Quarz antwortet der Chip danach nicht mehr, mit ihm nur noch bei einem Tempo unter 8 kHz (mit CKDIV8 unter 1 kHz).
Der Weg zurück: einen Quarz mit 32,768 kHz anschließen oder einen Takt an den Takteingang anlegen, dann ein niedrigeres Tempo wählen; oder einen Hochvolt-Programmer benutzen.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Ein so langsamer Chip antwortet danach nur noch bei einem Tempo unter einem Viertel seiner Taktfrequenz.
Der Weg zurück: ein niedrigeres Tempo wählen.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Ohne diesen Takt an seinen Pins antwortet der Chip danach nicht mehr.
Der Weg zurück: einen Takt an den Takteingang anlegen (ein Quarz hilft nur, wenn die Einstellung einen nennt) oder einen Hochvolt-Programmer benutzen.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>Der UPDI-Pin bekommt eine andere Aufgabe: Ein gewöhnlicher UPDI-Programmer erreicht den Chip danach nicht mehr.
Der Weg zurück: ein Programmer mit Hochvolt-UPDI für diese Familie, der an den Reset-Pin etwas mehr als die Versorgungsspannung anlegt. 12 V zerstören diesen Pin.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Ein Programmer kann den Chip danach weder lesen noch beschreiben.
Der Weg zurück: „Alles löschen“.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Ein Programmer kann den Chip danach nicht mehr beschreiben.
Der Weg zurück: „Alles löschen“.</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 Bytes (%2 Wörter)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 Bytes (%2 Wörter), ab Byte-Adresse %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 Takte</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 Takte + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 Takte, nach einem Reset zusätzlich %2 Takte + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, wenn der Reset-Pin ein gewöhnlicher Pin oder der Reset-Eingang ist</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Boot-Lock-Bits des Applikationsbereichs</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Boot-Lock-Bits des Applikationstabellen-Bereichs</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Boot-Lock-Bits des Boot-Bereichs</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>BOOTROW beim Löschen des Chips</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Brown-out-Detektor</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Brown-out-Detektor im Power-down-Modus</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Brown-out-Detektor im Schlafmodus</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Brown-out-Detektor im Betrieb</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Brown-out-Schwelle</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Kalibrierung des internen Oszillators</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Prüfung (CRC) des Boot-Bereichs beim Start: Schlägt sie fehl, startet das Programm nicht</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Erkennung von Taktausfällen</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Taktausgabe</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Taktquelle</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Taktquelle und Anlaufzeit</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Taktquelle beim Start</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Geschlossener Teil des Watchdog-Fensters</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Kompatibilität mit AT90S4414 und AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Kompatibilität mit AT90S4434 und AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Kompatibilität mit ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Kompatibilität mit ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Stromsenke des USB-Spannungsreglers</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Debuggen über den Reset-Pin (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Erholung aus tiefer Unterspannung (DUVR) nach einem Reset</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Teilung des Takts beim Start</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM beim Löschen des Chips</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Ende des Applikationscode-Bereichs, in Blöcken</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Ende des Applikationscode-Bereichs, wo der Datenbereich beginnt</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Ende des Boot-Bereichs</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Ende des Boot-Bereichs, in Blöcken</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Prüfung (CRC) des Flash beim Start: Schlägt sie fehl, startet das Programm nicht</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Für Tests im Werk</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Frequenz des internen Oszillators</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Frequenz des Ultra-Low-Power-Oszillators (ULP)</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Interne Kondensatoren an den Quarz-Pins</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>JTAG-Schnittstelle</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>JTAG-Benutzerkennung</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Pegel, auf den ein Reset die PSC-Ausgänge A zwingt</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Pegel, auf den ein Reset die PSC-Ausgänge B zwingt</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Pegel, auf den ein Reset die PSC-Ausgänge zwingt</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Lock-Bits</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Verfahren der Flash-Prüfung beim Start</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Überwachung des Prozessors</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Überwachung des Watchdogs</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Debuggen auf dem Chip (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Oszillatoroption</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Ausgang A des Timers TCD0 nach einem Reset</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Ausgang A des Timers TCD0 an seinem Pin nach einem Reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Ausgang B des Timers TCD0 nach einem Reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Ausgang B des Timers TCD0 an seinem Pin nach einem Reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Ausgang C des Timers TCD0 nach einem Reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Ausgang C des Timers TCD0 an seinem Pin nach einem Reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Ausgang D des Timers TCD0 nach einem Reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Ausgang D des Timers TCD0 an seinem Pin nach einem Reset</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL vom Quarzoszillator</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL vom Quarzoszillator, geteilt durch %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL vom externen Takt</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL vom externen Takt, geteilt durch %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL vom internen Oszillator %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL vom internen Oszillator %1 MHz, geteilt durch %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>PSC-Ausgänge bei einem Reset</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>PSC0-Ausgänge bei einem Reset</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>PSC1-Ausgänge bei einem Reset</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>PSC2-Ausgänge %1 und %2 bei einem Reset</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>PSC2-Ausgänge bei einem Reset</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Pins des Timer-Quarzes mit %1 kHz</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Reset- und UPDI-Pin</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Reset-Pin</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Abtastung des Brown-out-Detektors</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Serielle Programmierung (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Größe des Boot-Bereichs</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Besonderes Verhalten der PSC-Eingänge bei einem Reset</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Start des Boot-Bereichs durch den Pin HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Start des Programms nach einem Reset</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Anlaufzeit</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Versorgung der Multi-Voltage-Pins (MVIO)</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Wartezeit nach dem Einschalten, in der das Schreiben gesperrt ist</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>UPDI-Pin</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, mit dem Reset-Eingang an einem anderen Pin</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Einstellungen des Watchdogs</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Ablaufzeit des Watchdogs</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Schreiben des Flash durch das Programm (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>eigene Spannung</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>nach %1 Bytes</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>immer an</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>wie ausgeliefert</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>wie gewöhnliche Pins</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>wie vom Programm eingestellt</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>an Adresse %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>am Anfang des Boot-Bereichs</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>am Ende des Flash</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>Boot- und Applikationscode-Bereich</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>Boot-Bereich</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>mit Brown-out-Detektor</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>Kondensatoren bei Quarzen mit %1 kHz und externem RC-Glied</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>Keramikresonator</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>Keramikresonator %1 bis %2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>Keramikresonator %1 bis %2 MHz (CKOPT %3: auch Quarz, ab %4 MHz)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>Keramikresonator ab %1 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>Keramikresonator oder externer Takt</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>Quarz oder Keramikresonator</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>Quarz oder Keramikresonator %1 bis %2 MHz (CKOPT %3: ab %4 MHz)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>Quarz oder Keramikresonator, hohe Frequenz</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>Quarz oder Keramikresonator, niedrige Frequenz</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>Quarz oder Keramikresonator, mittlere Frequenz</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>Quarzoszillator</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>Quarzoszillator %1 bis %2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>Quarzoszillator ab %1 MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>geteilt durch %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>wird mit gelöscht</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>externer RC-Oszillator</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>externer RC-Oszillator %1 bis %2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>externer RC-Oszillator bis %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>externer Takt</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>schnell steigende Versorgung</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>auf einen Pegel gezwungen</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>voller Hub (Full Swing), den Quarze über %1 MHz brauchen</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>Full-Swing-Oszillator %1 bis %2 MHz (Versorgung über %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>High-Pegel</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>interner Oszillator %1 kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>interne Kondensatoren</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>interner Hochfrequenzoszillator</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>interner Oszillator</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>interner Oszillator %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>interner Oszillator %1 MHz, geteilt durch %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>interner Oszillator %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>interner Ultra-Low-Power-Oszillator (ULP) %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>bleibt erhalten</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>bleibt erhalten, außer wenn der Chip gesperrt ist</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>bleibt erhalten, auch wenn der Chip gesperrt ist</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>Änderung gesperrt</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>Schreiben gesperrt</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>Schreiben und Lesen gesperrt</translation>
    </message>
    <message>
        <source>long</source>
        <translation>lang</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>langer Anlauf</translation>
    </message>
    <message>
        <source>low</source>
        <translation>Low-Pegel</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>Niederfrequenzquarz (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>Schreiben durch Programme gesperrt</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>Schreiben durch Programme gesperrt, ebenso Lesen durch Programme im Applikationsbereich</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>Schreiben durch Programme gesperrt, ebenso Lesen durch Programme im Boot-Bereich</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>Lesen durch Programme im Applikationsbereich gesperrt</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>Lesen durch Programme im Boot-Bereich gesperrt</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>kein Reset-Eingang</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>keine Einschränkung</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>nicht geteilt</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>nicht möglich</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>im Betrieb aus, beim Löschen des Chips %1 V</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>am zugehörigen Pin</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>an, und das Aufwachen wartet, bis der Detektor bereit ist</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>an, aber in den tiefen Schlafmodi aus</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>Änderung durch das Programm möglich</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>gewöhnlicher Pin</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>gewöhnlicher Pin, nur als Eingang</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>möglich</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>reserviert</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>Reset-Eingang</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>im Abtastbetrieb</translation>
    </message>
    <message>
        <source>short</source>
        <translation>kurz</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>kurzer Anlauf</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>langsam steigende Versorgung</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>kleiner Hub, der Strom spart</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>Anlauf %1 Takt, nach einem Reset zusätzlich %2 Takte</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>Anlauf %1 Takte</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>Anlauf %1 Takte + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>Anlauf %1 Takte, nach einem Reset zusätzlich %2 Takte</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>Anlauf %1 Takte, nach einem Reset zusätzlich %2 Takte + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>wie der Chip</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>nötig für den internen Oszillator</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>der ganze Flash ist Boot-Bereich</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>die des Hauptquarzes</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>Transceiver-Oszillator</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>sehr kurzer Anlauf</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>Watchdog-Oszillator %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>wenn der Pin am Ende eines Resets auf Low liegt</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>ganzer Flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>mit internen Kondensatoren</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>ohne Wirkung, solange BOOTEND %1 ist</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>ohne Wirkung, solange BOOTSIZE %1 ist</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>ohne interne Kondensatoren</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <translation>Watchdog</translation>
    </message>
</context>
<context>
    <name>FuseRequests</name>
    <message>
        <source>There is no fuse byte here: none was sent.</source>
        <translation>Hier gibt es kein Fuse-Byte: Es wurde keines übertragen.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Nicht übertragen, weil kein Fuse-Byte so heißt: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Werkswerte im Fenster eingesetzt. Der Chip ist unverändert.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Fuse-Bytes erfolgreich geschrieben.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Fuse-Bytes erfolgreich geprüft.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Fuse-Bytes erfolgreich gelesen.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Die Fuse-Bytes trotzdem schreiben?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Nicht gelesen (angezeigt sind noch die alten Werte): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Ab Werk</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>Bei den Fuse-Bytes dieses Mikrocontrollers ist auf avrdude kein Verlass.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Keine Fuse-Bytes geladen. Bitte den Mikrocontroller im ersten Reiter wählen.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Ein ISP-Programmer erreicht die Fuse-Bytes dieses Mikrocontrollers nicht.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>nicht ausgelesen</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>JSON-DATEI NICHT GEFUNDEN</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>FEHLER IN DER JSON-DATEI</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>kein JSON-Objekt</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Einstellungen ließen sich nicht in dieser Datei speichern: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Einstellungen ließen sich nicht aus dieser Datei laden: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>Die Datei bleibt als %1 erhalten.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude arbeitet noch am Chip. Wird es jetzt beendet, bleibt der Chip, wie er ist: vielleicht gelöscht, vielleicht halb beschrieben.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Korvel trotzdem schließen?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel kann im Ordner %1 nicht schreiben: Was Sie wählen, wird nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM erfolgreich geschrieben.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM erfolgreich geprüft.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM erfolgreich gelesen.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH erfolgreich geschrieben.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH erfolgreich geprüft.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH erfolgreich gelesen.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>geändert am %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>Die Datei fehlt: avrdude hat sie nicht geschrieben.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>Die Datei ist leer: Der Chip ist leer oder lesegeschützt, oder der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Beim Lesen würde diese Datei ersetzt:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 Bytes Daten</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 Bytes Daten, %2 % des Speichers</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmer nicht gefunden.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Der Programmer hat keinen Mikrocontroller erkannt

- Verkabelung und Versorgung prüfen
- Niedrigeres Tempo einstellen (Port &amp; Tempo)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Der Inhalt ließ sich nicht lesen.
Der Chip ist leer oder lesegeschützt (Lock-Bits gesetzt).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Falscher Mikrocontroller ausgewählt.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Prüfung fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Ungültiges Dateiformat. Bitte eine andere Datei wählen.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Näheres steht in der Ausgabe unten.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp nicht gefunden.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Datei oder Ordner nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Die Datei des Profils lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>„quiet“ ist weder true noch false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>„boardLog“ ist kein Dateiname, der auf .csv endet.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>Die Seriennummer lässt sich nicht schreiben.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Einstellungen ließen sich nicht aus dieser Datei laden: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Das Profil „%1“ gibt es schon.
Soll es überschrieben werden?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Dieses Profil löschen?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Profil wählen...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>FLASH erfolgreich geschrieben.
FLASH erfolgreich geprüft.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM erfolgreich geschrieben.
EEPROM erfolgreich geprüft.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fuse-Bits erfolgreich geschrieben.
Fuse-Bits erfolgreich geprüft.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Einstellungen ließen sich nicht in dieser Datei speichern: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>Ein Profilname darf keines dieser Zeichen enthalten: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Nach einem Neustart des Programms heißt es in der Liste %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 Fuse-Byte</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 Fuse-Bytes</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>kein Profil geladen</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows reserviert diesen Namen für ein Gerät. Bitte einen anderen wählen.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>Der Name ist zu lang für eine Datei. Bitte einen kürzeren wählen.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Nach einem Neustart des Programms steht es nicht in der Liste.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>Profil seit dem Laden geändert</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>Der Befehl, der im Profil für diesen Speicher steht, schreibt keine Datei hinein. Er wird nicht ausgeführt:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>Mit diesem Profil lässt sich keine Platine programmieren.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>Mit diesem Profil erscheint kein Fenster, wenn eine Platine gut ist.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>Nummer %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Platine %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Platine %1: programmiert, %2 s</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Platine %1: Fehler: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>%1 gut, %2 Fehler</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>MCU gewählt: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Werkswerte der Fuse-Bytes im Fenster eingesetzt. Der Chip ist unverändert.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Externen Taster verwenden</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Gewählte Bereiche schreiben</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Zuletzt besucht</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Zurückgehen</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vorwärtsgehen</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Zum übergeordneten Ordner</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Als Liste anzeigen</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mit Details anzeigen</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Orte und Lesezeichen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Versteckte Dateien anzeigen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Anzeigen: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Datei nicht gefunden.
Bitte den Dateinamen prüfen.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ordner nicht gefunden.
Bitte den Ordnernamen prüfen.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>„%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1“ ist schreibgeschützt.
Trotzdem löschen?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Der Ordner konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
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
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>„%1“ ist als Name nicht möglich. Bitte einen kürzeren Namen oder einen ohne Sonderzeichen versuchen.</translation>
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
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierhin blättern</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Seite nach oben</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Zum linken Rand</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Zum rechten Rand</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Seite nach links</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Seite nach rechts</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadresse kopieren</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude arbeitet</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Prüfen</translation>
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
        <translation>Zu schreibende Speicherbereiche:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>Der Speicher dafür ist weder „eeprom“ noch „flash“.</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Das Format ist keines von „little“, „big“, „decimal“ und „hex“.</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>„address“, „bytes“ und „next“ müssen ganze Zahlen ab 0 sein, „bytes“ von 1 bis %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Sie liegt außerhalb des Speichers, der %1 Bytes hat.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>Das Argument -e würde den Chip löschen, bevor die Nummer geschrieben wird.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>Die Nummer %1 passt nicht in „bytes“: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Die neue Sprache gilt nach einem Neustart des Programms.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Im Ordner %1 wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude erhält zusätzliche Argumente, die nicht in der Datei des Programmers stehen: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Bis Sie ein Tempo wählen, wird das der Einstellungen benutzt: %1</translation>
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
        <translation>Port &amp;&amp; Tempo ( neue MCU -&gt; 185kHz )</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>Das Profil verlangt, dass ein anderes Programm ausgeführt wird.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>Im Profil:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Derzeit benutzt:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Ein Programm kann am Computer alles tun, was man selbst tun kann. Soll ab jetzt das Programm aus dem Profil ausgeführt werden?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>Das Profil enthält Argumente, mit denen avrdude Dateien lesen oder schreiben könnte.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Sollen diese Argumente benutzt werden?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>In der Antwort des Servers fehlt die Download-Adresse.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>Version %1 ist erschienen.

Download-Seite öffnen?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Neue Version</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Der Link ließ sich nicht öffnen.</translation>
    </message>
</context>
</TS>
