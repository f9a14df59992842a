<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Termini: fuse, fuse bit e lock bit restano in inglese, come d'uso; byte di calibrazione; velocità (bit clock); clock
     solo per quello del chip; sezione di boot, sezione applicazione; di fabbrica; scheda è il circuito, linguetta quella
     della finestra, link quello del web; sì e no per on e off, per ogni genere; punto decimale come nei datasheet
     per i significati dei fuse, virgola nelle frasi. -->
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>L&apos;account non ha il permesso di usare il programmatore.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Scrivere questa riga in %1 e ricollegare il programmatore:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>L&apos;account non ha il permesso di usare la porta %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>In un terminale: %1. Poi uscire dalla sessione e rientrare.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Il programmatore è collegato? Provare un altro cavo e un&apos;altra presa USB.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>In Windows ha bisogno del suo driver: la guida indica quale.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Non è collegato nulla di ciò che è nell&apos;elenco.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Ciò che è collegato potrebbe essere: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Al momento non c&apos;è nessuna porta seriale.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Porte presenti al momento: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>La porta %1 non esiste.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Un altro programma usa la porta %1, per esempio un monitor seriale: chiuderlo.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>Su %1 non c&apos;è nulla in ascolto: il programma è avviato, e l&apos;indirizzo è giusto?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Premere il pulsante di reset della scheda subito prima.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Provare l&apos;altra voce dell&apos;elenco per questa scheda: i bootloader hanno velocità diverse.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>La porta %1 è quella giusta, e il programmatore è del tipo scelto?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Il connettore è nel verso giusto, e il chip è alimentato?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>La velocità deve essere inferiore a un quarto della frequenza di clock del chip: provarne una minore di %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Forse i suoi fuse richiedono un clock che manca: applicare circa 1 MHz al suo pin di clock.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Forse i suoi fuse danno al pin di reset un&apos;altra funzione: un programmatore ad alta tensione lo recupera.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Se succede dopo «Scrivi»: controllare i contatti e l&apos;alimentazione, e provare una velocità minore.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>Un chip con i lock bit attivi non mostra il suo contenuto.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Un bootloader non può scrivere i byte dei fuse e dei lock bit. Un programmatore sì.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>Il chip è bloccato: «Cancella tutto» lo sblocca, ma il contenuto va perso.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 richiede avrdude %2 o più recente; la versione installata non lo conosce.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>La versione installata di avrdude non conosce %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>Il chip ha la firma %1, che non figura nell&apos;elenco.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>Il chip si presenta come: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 si programma tramite %2, e questo programmatore usa %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Dell&apos;elenco sono adatti, tra gli altri: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude è disponibile nei pacchetti del sistema: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel cerca %1. In save.json, alla voce «avrdude», si può indicare un altro programma o un percorso completo.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Poi riavviare Korvel.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Scollegare e ricollegare il programmatore e chiudere gli altri programmi che potrebbero usarlo.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Cartelle in cui viene cercato: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>La velocità di questo programmatore è fissa: il clock del chip deve superare %1, e quello di un chip nuovo è di solito 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Forse i suoi fuse danno al pin UPDI un&apos;altra funzione: un programmatore con UPDI ad alta tensione lo recupera.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>Forse il chip è bloccato: con questo programmatore nessuna versione di avrdude lo sblocca, con SerialUPDI o Atmel-ICE lo sblocca «Cancella tutto».</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Scrittura della flash non riuscita.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Verifica della flash non riuscita.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Lettura della flash non riuscita.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Scrittura dell&apos;EEPROM non riuscita.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Verifica dell&apos;EEPROM non riuscita.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Lettura dell&apos;EEPROM non riuscita.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Scrittura dei byte dei fuse non riuscita.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Verifica dei byte dei fuse non riuscita.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Lettura dei byte dei fuse non riuscita.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Lettura del byte di calibrazione non riuscita.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Cancellazione del chip non riuscita.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>Il contenuto del chip è diverso dal file all&apos;indirizzo %1.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>La scrittura era iniziata: il chip potrebbe contenere una parte del file.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>Il chip è stato cancellato e non è stato scritto nulla: la sua flash è vuota.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>La scrittura era iniziata: forse sono stati scritti solo alcuni dei byte dei fuse.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>La cancellazione era iniziata: il chip potrebbe essere vuoto.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU cancellato correttamente.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU rilevato correttamente. Continuare?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Byte di calibrazione letto correttamente.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Non è stato trovato nulla nella cartella %1.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude non ne ha letto nessuno: molto probabilmente il microcontrollore non ha questo byte.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Rileva</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Cancella tutto</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leggi</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Byte di calibrazione</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude non trovato: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmatore non trovato.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Usarla comunque?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>Nessuna porta seriale trovata per %1: la porta è ancora %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude è stato fermato.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 non è una velocità valida: viene usata l&apos;opzione %2.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>La lettura sostituirebbe questo file:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>È più grande di ciò che viene letto: prima spostarlo in un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude non è stato avviato: %1 non è l&apos;identificativo di un microcontrollore.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude non è stato avviato: i suoi argomenti contengono caratteri invisibili: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude non è stato avviato: %1 è un file e non una porta.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>avrdude non è nella cartella di Korvel: viene usato %1.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Azzera</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Impossibile scrivere il registro delle schede: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Impossibile salvare il numero successivo nel profilo: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>Il numero %1 sarà saltato.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>In %1 manca la riga di questa scheda.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>FILE JSON DELL&apos;MCU NON TROVATO</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Aggiungi / rimuovi profilo</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Nome del profilo</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Descrizione facoltativa</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>«Aggiungi»: salva le impostazioni.
«Rimuovi»: rimuove il profilo scelto.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Il file ha %1 byte, la memoria solo %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>Il chip verrebbe cancellato inutilmente.
Continuare comunque?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude non interpreterebbe questo testo come percorso di un file:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>La riga %1 non è in formato %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>Il checksum della riga %1 è errato.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>Il file ha dati all&apos;indirizzo 0x%1, la memoria solo %2 byte.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>Il file non è un programma ELF per AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude non accetta questo file con l&apos;estensione .%1: il suo nome deve terminare con %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>Il file non contiene dati per questa memoria.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Manca la fine del file.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Impossibile leggere il file.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>Il file è troppo grande per essere un firmware.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Impostazione di fabbrica</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>Questa impostazione è riservata: il chip potrebbe non rispondere più.
Per recuperarlo: un programmatore ad alta tensione.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>Il pin di reset diventa un pin comune: un programmatore ISP o TPI non potrà più accedere al chip.
Per recuperarlo: un programmatore ad alta tensione.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>Il pin di reset passa al debugger: un programmatore ISP non potrà più accedere al chip.
Per recuperarlo: un debugger con debugWIRE o un programmatore ad alta tensione.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Un programmatore ISP non potrà più accedere al chip.
Per recuperarlo: JTAG, se il chip ce l&apos;ha, o un programmatore ad alta tensione.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Un programmatore JTAG non potrà più accedere al chip.
Per recuperarlo: ISP (PDI con un ATxmega) o un programmatore ad alta tensione.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>Il pin UPDI assume un&apos;altra funzione: un comune programmatore UPDI non potrà più accedere al chip.
Per recuperarlo: un programmatore con UPDI ad alta tensione.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Senza il suo quarzo il chip non risponderà; con il quarzo risponderà solo a una velocità inferiore a 8 kHz (1 kHz con CKDIV8).
Per recuperarlo: collegare un quarzo da 32,768 kHz o applicare un clock al suo pin di clock, poi scegliere una velocità minore; oppure usare un programmatore ad alta tensione.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Un chip così lento risponderà solo a una velocità inferiore a un quarto della frequenza del suo clock.
Per recuperarlo: scegliere una velocità minore.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Senza questo clock sui suoi pin il chip non risponderà.
Per recuperarlo: applicare un clock al suo pin di clock (un quarzo serve solo se l&apos;impostazione ne indica uno), o usare un programmatore ad alta tensione.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>Il pin UPDI assume un&apos;altra funzione: un comune programmatore UPDI non potrà più accedere al chip.
Per recuperarlo: un programmatore con UPDI ad alta tensione per questa famiglia, che applica al pin di reset una tensione poco superiore a quella di alimentazione. 12 V distruggono questo pin.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Un programmatore non potrà più né leggere il chip né scriverlo.
Per recuperarlo: «Cancella tutto».</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Un programmatore non potrà più scrivere il chip.
Per recuperarlo: «Cancella tutto».</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 byte (%2 parole)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 byte (%2 parole), dall&apos;indirizzo %3 (in byte)</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 cicli</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 cicli + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 cicli, dopo un reset altri %2 cicli + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, se il pin di reset è un pin comune o l&apos;ingresso di reset</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Boot lock bit della sezione applicazione</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Boot lock bit della sezione tabella dell&apos;applicazione</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Boot lock bit della sezione di boot</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>BOOTROW alla cancellazione del chip</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Rilevatore di brown-out</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Rilevatore di brown-out con il chip in modalità power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Rilevatore di brown-out con il chip in modalità sleep</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Rilevatore di brown-out con il chip attivo</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Soglia di brown-out</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Calibrazione dell&apos;oscillatore interno</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Controllo (CRC) della sezione di boot all&apos;avvio: se fallisce, il programma non parte</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Rilevamento dei guasti del clock</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Uscita del clock</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Sorgente di clock</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Sorgente di clock e tempo di avvio</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Sorgente di clock all&apos;avvio</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Parte chiusa della finestra del watchdog</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Compatibilità con AT90S4414 e AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Compatibilità con AT90S4434 e AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Compatibilità con ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Compatibilità con ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Pozzo di corrente (sink) del regolatore di tensione USB</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Debug tramite il pin di reset (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Recupero da sottotensione profonda (DUVR) dopo un reset</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Divisione del clock all&apos;avvio</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM alla cancellazione del chip</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Fine della sezione codice dell&apos;applicazione, in blocchi</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Fine della sezione codice dell&apos;applicazione, dove inizia la sezione dati</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Fine della sezione di boot</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Fine della sezione di boot, in blocchi</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Controllo (CRC) della flash all&apos;avvio: se fallisce, il programma non parte</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Per i test in fabbrica</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Frequenza dell&apos;oscillatore interno</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Frequenza dell&apos;oscillatore a bassissimo consumo (ULP)</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Condensatori interni ai pin del quarzo</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>Interfaccia JTAG</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>Identificativo utente JTAG</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Livello che un reset impone alle uscite A dei PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Livello che un reset impone alle uscite B dei PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Livello che un reset impone alle uscite PSC</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Lock bit</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Metodo del controllo della flash all&apos;avvio</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Sorveglianza del processore</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Sorveglianza del watchdog</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Debug sul chip (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Opzione dell&apos;oscillatore</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Uscita A del timer TCD0 dopo un reset</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Uscita A del timer TCD0 sul suo pin dopo un reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Uscita B del timer TCD0 dopo un reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Uscita B del timer TCD0 sul suo pin dopo un reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Uscita C del timer TCD0 dopo un reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Uscita C del timer TCD0 sul suo pin dopo un reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Uscita D del timer TCD0 dopo un reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Uscita D del timer TCD0 sul suo pin dopo un reset</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL dall&apos;oscillatore a quarzo</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL dall&apos;oscillatore a quarzo, divisione per %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL dal clock esterno</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL dal clock esterno, divisione per %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL dall&apos;oscillatore interno %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL dall&apos;oscillatore interno %1 MHz, divisione per %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Uscite PSC durante un reset</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Uscite PSC0 durante un reset</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Uscite PSC1 durante un reset</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Uscite %1 e %2 del PSC2 durante un reset</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Uscite PSC2 durante un reset</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Pin del quarzo da %1 kHz del timer</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Pin di reset e UPDI</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Pin di reset</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Campionamento del rilevatore di brown-out</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Programmazione seriale (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Dimensione della sezione di boot</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Comportamento particolare degli ingressi PSC durante un reset</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Avvio della sezione di boot tramite il pin HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Avvio del programma dopo un reset</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Tempo di avvio</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Alimentazione dei pin multitensione (MVIO)</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Attesa dopo l&apos;accensione durante la quale la scrittura è bloccata</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>Pin UPDI</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, con l&apos;ingresso di reset su un altro pin</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Impostazioni del watchdog</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Timeout del watchdog</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Scrittura della flash da parte del programma (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>tensione separata</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>dopo %1 byte</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>sempre in funzione</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>come alla consegna</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>come pin comuni</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>a scelta del programma</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>all&apos;indirizzo %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>all&apos;inizio della sezione di boot</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>alla fine della flash</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>sezione di boot e sezione codice dell&apos;applicazione</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>sezione di boot</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>con rilevatore di brown-out</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>condensatori con un quarzo da %1 kHz o un RC esterno</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>risonatore ceramico</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>risonatore ceramico da %1 a %2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>risonatore ceramico da %1 a %2 MHz (CKOPT %3: anche quarzo, da %4 MHz in su)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>risonatore ceramico da %1 MHz in su</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>risonatore ceramico o clock esterno</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>quarzo o risonatore ceramico</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>quarzo o risonatore ceramico da %1 a %2 MHz (CKOPT %3: da %4 MHz in su)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>quarzo o risonatore ceramico, alta frequenza</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>quarzo o risonatore ceramico, bassa frequenza</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>quarzo o risonatore ceramico, media frequenza</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>oscillatore a quarzo</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>oscillatore a quarzo da %1 a %2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>oscillatore a quarzo da %1 MHz in su</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>divisione per %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>contenuto cancellato</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>oscillatore RC esterno</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>oscillatore RC esterno da %1 a %2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>oscillatore RC esterno fino a %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>clock esterno</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>alimentazione a salita rapida</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>a un livello imposto</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>piena ampiezza (full swing), necessaria ai quarzi oltre %1 MHz</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>oscillatore full swing da %1 a %2 MHz (alimentazione oltre %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>stato alto</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>oscillatore interno %1 kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>condensatori interni</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>oscillatore interno ad alta frequenza</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>oscillatore interno</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>oscillatore interno %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>oscillatore interno %1 MHz, diviso per %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>oscillatore interno %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>oscillatore interno a bassissimo consumo (ULP) %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>contenuto conservato</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>contenuto conservato, salvo se il chip è bloccato</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>contenuto conservato, anche se il chip è bloccato</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>modifica bloccata</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>scrittura bloccata</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>scrittura e lettura bloccate</translation>
    </message>
    <message>
        <source>long</source>
        <translation>avvio lungo</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>avvio lungo</translation>
    </message>
    <message>
        <source>low</source>
        <translation>stato basso</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>quarzo a bassa frequenza (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>scrittura bloccata per ogni programma</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>scrittura bloccata per ogni programma, lettura bloccata per quelli nella sezione applicazione</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>scrittura bloccata per ogni programma, lettura bloccata per quelli nella sezione di boot</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>lettura bloccata per i programmi nella sezione applicazione</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>lettura bloccata per i programmi nella sezione di boot</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>nessun ingresso di reset</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>nessuna restrizione</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>nessuna divisione</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>non possibile</translation>
    </message>
    <message>
        <source>off</source>
        <translation>no</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>nessuna soglia in funzionamento, %1 V durante la cancellazione del chip</translation>
    </message>
    <message>
        <source>on</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>sul suo pin</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>sì, e il risveglio attende che il rilevatore sia pronto</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>sì, tranne nelle modalità di sleep profondo</translation>
    </message>
    <message>
        <source>open</source>
        <translation>nessun blocco</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>modifica possibile dal programma</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>pin comune</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>pin comune, solo come ingresso</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>altri pin</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>possibile</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>valore riservato</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>ingresso di reset</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>a campionamento</translation>
    </message>
    <message>
        <source>short</source>
        <translation>avvio breve</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>avvio breve</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>alimentazione a salita lenta</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>piccola ampiezza, che risparmia energia</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>avvio %1 ciclo, dopo un reset altri %2 cicli</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>avvio %1 cicli</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>avvio %1 cicli + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>avvio %1 cicli, dopo un reset altri %2 cicli</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>avvio %1 cicli, dopo un reset altri %2 cicli + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>quella del chip</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>indispensabile per l&apos;oscillatore interno</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>tutta la flash è sezione di boot</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>quelli del quarzo principale</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>oscillatore del transceiver</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>avvio molto breve</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>oscillatore del watchdog %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>se il pin è a livello basso alla fine di un reset</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>tutta la flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>con condensatori interni</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>senza effetto finché BOOTEND è %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>senza effetto finché BOOTSIZE è %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>senza condensatori interni</translation>
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
        <translation>Qui non c&apos;è nessun byte dei fuse: non ne è stato trasmesso nessuno.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Non trasmessi, perché nessun byte dei fuse si chiama così: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Valori di fabbrica inseriti nella finestra. Il chip non è cambiato.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Byte dei fuse scritti correttamente.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Byte dei fuse verificati correttamente.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Byte dei fuse letti correttamente.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Scrivere comunque i byte dei fuse?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Non letti (sono ancora mostrati i vecchi valori): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Scrivi</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leggi</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Di fabbrica</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>avrdude non è affidabile per i byte dei fuse di questo microcontrollore.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Nessun byte dei fuse caricato. Scegliere il microcontrollore nella prima linguetta.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Un programmatore ISP non può accedere ai byte dei fuse di questo microcontrollore.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>non letti dal chip</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>FILE JSON NON TROVATO</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ERRORE NEL FILE JSON</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>non è un oggetto JSON</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Impossibile salvare le impostazioni nel file: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Impossibile caricare le impostazioni dal file: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>Il file è conservato come %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude sta ancora lavorando sul chip. Se viene interrotto adesso, il chip resta com&apos;è: forse cancellato, forse scritto a metà.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Chiudere comunque Korvel?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel non può scrivere nella cartella %1: le scelte non verranno conservate.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM scritta correttamente.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM verificata correttamente.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM letta correttamente.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH scritta correttamente.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH verificata correttamente.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH letta correttamente.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>ultima modifica: %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>Il file non c&apos;è: avrdude non l&apos;ha scritto.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>Il file è vuoto: il chip è vuoto o protetto in lettura, oppure il disco è pieno.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Sostituirlo?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>La lettura sostituirebbe questo file:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 byte di dati</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 byte di dati, %2 % della memoria</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Scrivi</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leggi</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifica</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmatore non trovato.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Il programmatore non ha rilevato il microcontrollore

- Controllare il cablaggio e l&apos;alimentazione
- Scegliere una velocità minore (Porta &amp; vel.)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Impossibile leggere il contenuto
Il chip è vuoto o protetto in lettura (lock bit attivi).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Il microcontrollore scelto non è quello giusto.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Errore di verifica.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Formato di file non valido. Scegliere un altro file.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Vedere il messaggio nel log in basso.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp non trovato.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>File o cartella inesistente.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Impossibile leggere il file del profilo.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>«quiet» non è né true né false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>«boardLog» non è un nome di file che termina con .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>Impossibile scrivere il numero di serie.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Impossibile caricare le impostazioni dal file: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Il profilo «%1» esiste già.
Sovrascriverlo?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Eliminare questo profilo?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Scegli profilo...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>FLASH scritta correttamente.
FLASH verificata correttamente.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM scritta correttamente.
EEPROM verificata correttamente.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fuse bit scritti correttamente.
Fuse bit verificati correttamente.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Impossibile salvare le impostazioni nel file: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>Il nome di un profilo non può contenere nessuno di questi caratteri: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Dopo un riavvio del programma, nell&apos;elenco si chiamerà %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 byte dei fuse</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 byte dei fuse</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>nessun profilo caricato</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows riserva questo nome a un dispositivo. Sceglierne un altro.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>Il nome è troppo lungo per un file. Sceglierne uno più corto.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Dopo un riavvio del programma, non comparirà nell&apos;elenco.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>profilo modificato dopo il caricamento</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>Il comando che il profilo contiene per questa memoria non vi scrive nessun file. Non viene eseguito:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>Con questo profilo non si può programmare nessuna scheda.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>Con questo profilo non compare nessuna finestra quando una scheda è riuscita.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>numero %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Scheda %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Scheda %1: programmata, %2 s</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Scheda %1: fallita: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>Buone: %1, fallite: %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>MCU scelto: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Valori di fabbrica dei fuse inseriti nella finestra. Il chip non è cambiato.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Scrivi</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Usa pulsante esterno</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Scrivi le aree scelte</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Cerca in:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome file:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Tipo di file:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>A&amp;pri</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Posizioni recenti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Torna indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vai avanti</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Vai alla cartella superiore</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crea una cartella</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mostra come elenco</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mostra i dettagli</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Posizioni e segnalibri</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Mostra file nascosti</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nuova cartella</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostra: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File non trovato.
Controllare il nome del file.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Cartella non trovata.
Controllare il nome della cartella.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Eliminare davvero «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» è protetto da scrittura.
Eliminarlo comunque?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Impossibile eliminare la cartella.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>File %1</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Collegamento</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nome di file non valido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>Il nome «%1» non può essere usato. Provare un nome più corto o senza punteggiatura.</translation>
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
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
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
        <translation>Scorri fin qui</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina giù</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri in su</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri in giù</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina a sinistra</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina a destra</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scorri a sinistra</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scorri a destra</translation>
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
        <translation>Maiusc</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia indirizzo del &amp;link</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude sta lavorando</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Verifica</translation>
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
        <translation>FUSE</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>Aree di memoria da scrivere:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>La sua memoria non è né «eeprom» né «flash».</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Il suo formato non è né «little», né «big», né «decimal», né «hex».</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>«address», «bytes» e «next» devono essere numeri interi non negativi, e «bytes» da 1 a %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Si trova fuori dalla memoria, che ha %1 byte.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>L&apos;argomento -e cancellerebbe il chip prima della scrittura del numero.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>Il numero %1 non entra in «bytes»: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Riavviare il programma per cambiare la lingua.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Non è stato trovato nulla nella cartella %1.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude riceve argomenti aggiuntivi che non figurano nel file del programmatore: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Finché non si sceglie una velocità, viene usata quella delle impostazioni: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Programmatore</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Porta &amp;&amp; vel. (MCU nuovo: 185kHz)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>Il profilo richiede l&apos;esecuzione di un altro programma.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>Nel profilo:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>In uso:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Un programma può fare sul computer tutto ciò che può fare l&apos;utente. Eseguire d&apos;ora in poi quello del profilo?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>Il profilo contiene argomenti con cui avrdude potrebbe leggere o scrivere file.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Usare questi argomenti?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>Nella risposta del server manca l&apos;indirizzo di download.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>È disponibile la versione %1.

Aprire la pagina di download?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Impossibile aprire il link.</translation>
    </message>
</context>
</TS>
