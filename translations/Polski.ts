<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Terminy: fusebity, bajty fuse i lockbity, jak przyjęło się mówić; bajt kalibracyjny; szybkość programatora (bit
     clock); „programować” układ, „zapisywać” ustawienia. -->
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>Twoje konto nie ma uprawnień do używania tego programatora.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Wpisz ten wiersz do pliku %1 i podłącz programator ponownie:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>Twoje konto nie ma uprawnień do używania portu %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>W terminalu: %1. Potem wyloguj się i zaloguj ponownie.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Czy programator jest podłączony? Spróbuj innego kabla i innego gniazda.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>W systemie Windows programator wymaga sterownika: instrukcja podaje jakiego.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Żaden programator z listy nie jest podłączony.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Być może podłączono: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Nie ma teraz żadnego portu szeregowego.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Dostępne teraz porty: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>Nie ma portu %1.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Inny program używa portu %1: zamknij go; może to być monitor portu szeregowego.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>Nic nie nasłuchuje pod adresem %1: czy serwer jest uruchomiony i czy adres jest właściwy?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Tuż przed operacją naciśnij przycisk reset na płytce.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Spróbuj innej pozycji listy dla tej płytki: bootloadery różnią się szybkością.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>Czy %1 to właściwy port i czy wybrano właściwy rodzaj programatora?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Czy wtyczka jest włożona właściwą stroną i czy układ ma zasilanie?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>Szybkość musi być mniejsza niż jedna czwarta częstotliwości zegara układu: spróbuj mniejszej niż %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Fusebity układu mogą wymagać zegara, którego nie ma: podaj około 1 MHz na jego wejście zegarowe.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Fusebity układu mogą przypisywać pinowi RESET inną funkcję: układ można odzyskać programatorem wysokonapięciowym.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Jeśli stało się to po użyciu „Programuj”: sprawdź styki i zasilanie oraz spróbuj mniejszej szybkości.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>Układ z ustawionymi lockbitami nie pokazuje swojej zawartości.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Bootloader nie może programować bajtów fuse ani lockbitów. Programator może.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>Układ jest zablokowany: „Skasuj układ” go odblokuje, ale usunie jego zawartość.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 wymaga avrdude w wersji %2 lub nowszej; zainstalowana wersja go nie zna.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>Zainstalowana wersja avrdude nie zna %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>Układ ma sygnaturę %1, której nie ma żaden mikrokontroler z listy.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>Układ zgłasza się jako: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 programuje się przez %2, a ten programator obsługuje %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Z listy pasują między innymi: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude jest w pakietach systemu: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel szuka programu %1. Inny program albo pełną ścieżkę można podać w save.json jako „avrdude”.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Potem uruchom Korvel ponownie.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Odłącz programator, podłącz go ponownie i zamknij inne programy, które mogą go używać.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Przeszukiwane katalogi: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>Szybkość tego programatora jest stała: częstotliwość zegara układu musi przekraczać %1, a w nowym układzie wynosi zwykle 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Fusebity układu mogą przypisywać pinowi UPDI inną funkcję: układ można odzyskać programatorem z wysokonapięciowym UPDI.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>Układ może być zablokowany: z tym programatorem nie odblokuje go żadna wersja avrdude; z SerialUPDI lub Atmel-ICE odblokuje go „Skasuj układ”.</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Programowanie pamięci FLASH nie powiodło się.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Weryfikacja pamięci FLASH nie powiodła się.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Odczyt pamięci FLASH nie powiódł się.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Programowanie pamięci EEPROM nie powiodło się.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Weryfikacja pamięci EEPROM nie powiodła się.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Odczyt pamięci EEPROM nie powiódł się.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Programowanie bajtów fuse nie powiodło się.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Weryfikacja bajtów fuse nie powiodła się.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Odczyt bajtów fuse nie powiódł się.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Odczyt bajtu kalibracyjnego nie powiódł się.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Kasowanie układu nie powiodło się.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>Pod adresem %1 zawartość układu różni się od pliku.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>Programowanie już się zaczęło: układ może zawierać część pliku.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>Układ skasowano i nic nie zaprogramowano: jego pamięć FLASH jest pusta.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>Programowanie już się zaczęło: być może zaprogramowano tylko część bajtów fuse.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>Kasowanie już się zaczęło: układ może być pusty.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>Skasowano MCU.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>Wykryto MCU. Czy kontynuować?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Odczytano bajt kalibracyjny.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>W katalogu %1 nic nie znaleziono.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude nie odczytał żadnego: mikrokontroler najprawdopodobniej nie ma takiego bajtu.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Wykryj</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Skasuj układ</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczytaj</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Bajt kalibracyjny</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>Nie znaleziono avrdude: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Nie znaleziono programatora.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Czy mimo to użyć tego portu?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>Nie znaleziono portu szeregowego dla %1: wybrany port to nadal %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>Zatrzymano avrdude.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>Nieprawidłowa szybkość: %1. Zamiast niej użyto %2.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Odczyt zastąpiłby ten plik:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Plik jest większy niż odczytywane dane: najpierw przenieś go w inne miejsce.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>Nie uruchomiono avrdude: %1 nie jest identyfikatorem mikrokontrolera.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>Nie uruchomiono avrdude: argumenty zawierają niewidoczne znaki: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>Nie uruchomiono avrdude: %1 to plik, a nie port.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>W folderze programu Korvel nie ma avrdude. Zamiast niego użyto %1.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Wyzeruj</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Nie można zapisać rejestru płytek: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Nie można zapisać następnego numeru w profilu: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>Numer %1 zostanie pominięty.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>W pliku %1 brakuje wiersza tej płytki.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>NIE ZNALEZIONO PLIKU JSON DLA MCU</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Dodaj / usuń profil</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Nazwa profilu</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Opis (opcjonalny)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>„Dodaj” – zapisuje ustawienia jako profil.
„Usuń” – usuwa wybrany profil.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Plik ma %1 B, a pamięć tylko %2 B.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>Układ zostałby skasowany na darmo.
Czy mimo to kontynuować?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude nie przyjmie tego jako ścieżki pliku:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>Wiersz %1 nie jest w formacie %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>Suma kontrolna wiersza %1 jest błędna.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>Plik zawiera dane pod adresem 0x%1, a pamięć ma tylko %2 B.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>Plik nie jest programem ELF dla AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude nie przyjmuje tego pliku z rozszerzeniem .%1: zmień je na %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>Plik nie zawiera danych dla tej pamięci.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Brakuje końca pliku.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Nie można odczytać pliku.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>Plik jest za duży jak na firmware.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Ustawienie fabryczne</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>To ustawienie jest zarezerwowane: układ może przestać odpowiadać.
Jak odzyskać układ: programatorem wysokonapięciowym.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>Pin RESET stanie się zwykłym pinem: programator ISP lub TPI straci dostęp do układu.
Jak odzyskać układ: programatorem wysokonapięciowym.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>Pin RESET przejmie debugger: programator ISP straci dostęp do układu.
Jak odzyskać układ: debuggerem z debugWIRE albo programatorem wysokonapięciowym.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Programator ISP straci dostęp do układu.
Jak odzyskać układ: przez JTAG, jeśli układ go ma, albo programatorem wysokonapięciowym.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Programator JTAG straci dostęp do układu.
Jak odzyskać układ: przez ISP (w przypadku ATxmega przez PDI) albo programatorem wysokonapięciowym.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>Pin UPDI otrzyma inną funkcję: zwykły programator UPDI straci dostęp do układu.
Jak odzyskać układ: programatorem z wysokonapięciowym UPDI.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Bez swojego kwarcu układ nie będzie odpowiadał, a z nim tylko przy szybkości poniżej 8 kHz (1 kHz z CKDIV8).
Jak odzyskać układ: podłącz kwarc 32,768 kHz albo podaj sygnał zegarowy na wejście zegarowe układu, a potem wybierz mniejszą szybkość; możesz też użyć programatora wysokonapięciowego.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Tak wolny układ będzie odpowiadał tylko przy szybkości poniżej jednej czwartej częstotliwości swojego zegara.
Jak odzyskać układ: wybierz mniejszą szybkość.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Bez tego sygnału zegarowego na pinach układ nie będzie odpowiadał.
Jak odzyskać układ: podaj sygnał zegarowy na jego wejście zegarowe (kwarc pomoże tylko wtedy, gdy ustawienie go wymienia) albo użyj programatora wysokonapięciowego.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>Pin UPDI otrzyma inną funkcję: zwykły programator UPDI straci dostęp do układu.
Jak odzyskać układ: programatorem z wysokonapięciowym UPDI dla tej rodziny, który podaje na pin RESET napięcie nieco wyższe od zasilania. 12 V zniszczy ten pin.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Programator nie będzie już mógł odczytywać ani programować układu.
Jak odzyskać układ: „Skasuj układ”.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Programator nie będzie już mógł programować układu.
Jak odzyskać układ: „Skasuj układ”.</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 B (słowa: %2)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 B (słowa: %2), od adresu bajtowego %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 cykli zegara</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 cykli zegara + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 cykli zegara, po resecie %2 cykli + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, jeśli pin RESET jest zwykłym pinem lub wejściem RESET</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Lockbity (BLB) sekcji aplikacji</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Lockbity (BLB) sekcji tabeli aplikacji</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Lockbity (BLB) sekcji boot</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>Pamięć BOOTROW przy kasowaniu układu</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Detektor brown-out</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Detektor brown-out w trybie power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Detektor brown-out w uśpieniu</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Detektor brown-out podczas pracy</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Próg brown-out</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Kalibracja oscylatora wewnętrznego</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Kontrola (CRC) sekcji boot przy starcie: jeśli wykryje błąd, program nie ruszy</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Wykrywanie awarii zegara</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Wyjście zegara</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Źródło zegara</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Źródło zegara i czas rozruchu</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Źródło zegara przy starcie</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Zamknięta część okna watchdoga</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Zgodność z AT90S4414 i AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Zgodność z AT90S4434 i AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Zgodność z ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Zgodność z ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Odbieranie prądu (sink) przez regulator napięcia USB</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Debugowanie przez pin RESET (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Wychodzenie z głębokiego spadku napięcia (DUVR) po resecie</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Podział zegara przy starcie</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>Pamięć EEPROM przy kasowaniu układu</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Koniec sekcji kodu aplikacji, w blokach</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Koniec sekcji kodu aplikacji, gdzie zaczyna się sekcja danych</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Koniec sekcji boot</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Koniec sekcji boot, w blokach</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Kontrola (CRC) pamięci flash przy starcie: jeśli wykryje błąd, program nie ruszy</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Do testów w fabryce</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Częstotliwość oscylatora wewnętrznego</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Częstotliwość oscylatora o ultraniskim poborze mocy</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Wewnętrzne kondensatory na pinach kwarcu</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>Interfejs JTAG</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>Identyfikator użytkownika JTAG</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Stan wyjść PSC A wymuszany przez reset</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Stan wyjść PSC B wymuszany przez reset</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Stan wyjść PSC wymuszany przez reset</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Lockbity</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Metoda kontroli pamięci flash przy starcie</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Nadzór nad procesorem</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Nadzór nad watchdogiem</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Debugowanie w układzie (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Opcja oscylatora</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Wyjście A timera TCD0 po resecie</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Wyjście A timera TCD0 na jego pinie po resecie</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Wyjście B timera TCD0 po resecie</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Wyjście B timera TCD0 na jego pinie po resecie</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Wyjście C timera TCD0 po resecie</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Wyjście C timera TCD0 na jego pinie po resecie</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Wyjście D timera TCD0 po resecie</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Wyjście D timera TCD0 na jego pinie po resecie</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL z oscylatora kwarcowego</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL z oscylatora kwarcowego, podział przez %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL z zegara zewnętrznego</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL z zegara zewnętrznego, podział przez %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL z oscylatora wewnętrznego %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL z oscylatora wewnętrznego %1 MHz, podział przez %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Wyjścia PSC podczas resetu</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Wyjścia PSC0 podczas resetu</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Wyjścia PSC1 podczas resetu</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Wyjścia %1 i %2 PSC2 podczas resetu</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Wyjścia PSC2 podczas resetu</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Piny kwarcu %1 kHz timera</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Pin RESET i UPDI</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Pin RESET</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Próbkowanie detektora brown-out</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Programowanie szeregowe (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Rozmiar sekcji boot</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Specjalne zachowanie wejść PSC podczas resetu</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Start sekcji boot pinem HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Start programu po resecie</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Czas rozruchu</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Zasilanie pinów wielonapięciowych (MVIO)</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Czas po włączeniu zasilania, w którym zapis jest zablokowany</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>Pin UPDI</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, a wejście RESET na innym pinie</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Ustawienia watchdoga</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Limit czasu watchdoga</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Zapis pamięci flash przez program (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>własne napięcie</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>po %1 B</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>zawsze wł.</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>fabrycznie</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>jak zwykłe piny</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>zależnie od programu</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>pod adresem %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>w sekcji boot</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>na końcu pamięci flash</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>sekcje boot i kodu aplikacji</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>sekcja boot</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>z detektorem brown-out</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>wewnętrzne kondensatory przy kwarcach %1 kHz i zewnętrznym RC</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>rezonator ceramiczny</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>rezonator ceramiczny %1–%2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>rezonator ceramiczny %1–%2 MHz (CKOPT %3: także kwarc, od %4 MHz)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>rezonator ceramiczny od %1 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>rezonator ceramiczny lub zegar zewnętrzny</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>kwarc lub rezonator ceramiczny</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>kwarc lub rezonator ceramiczny %1–%2 MHz (CKOPT %3: od %4 MHz)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>kwarc lub rezonator ceramiczny, wysoka częstotliwość</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>kwarc lub rezonator ceramiczny, niska częstotliwość</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>kwarc lub rezonator ceramiczny, średnia częstotliwość</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>oscylator kwarcowy</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>oscylator kwarcowy %1–%2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>oscylator kwarcowy od %1 MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>przez %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>także ulega skasowaniu</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>zewnętrzny oscylator RC</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>zewnętrzny oscylator RC %1–%2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>zewnętrzny oscylator RC do %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>zegar zewnętrzny</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>szybko narastające zasilanie</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>z wymuszonym stanem</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>pełna amplituda, potrzebna dla kwarców powyżej %1 MHz</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>oscylator o pełnej amplitudzie %1–%2 MHz (zasilanie powyżej %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>stan wysoki</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>oscylator wewnętrzny %1 kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>wewnętrzne kondensatory</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>oscylator wewnętrzny wysokiej częstotliwości</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>oscylator wewnętrzny</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>oscylator wewnętrzny %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>oscylator wewnętrzny %1 MHz, podział przez %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>oscylator wewnętrzny %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>oscylator wewnętrzny o ultraniskim poborze mocy %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>nie ulega skasowaniu</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>nie ulega skasowaniu, chyba że układ jest zablokowany</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>nie ulega skasowaniu, nawet gdy układ jest zablokowany</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>blokada</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>blokada programowania</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>blokada programowania i odczytu</translation>
    </message>
    <message>
        <source>long</source>
        <translation>czas długi</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>długi rozruch</translation>
    </message>
    <message>
        <source>low</source>
        <translation>stan niski</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>kwarc niskiej częstotliwości (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>żaden program nie może zapisywać tej sekcji</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>żaden program nie może zapisywać tej sekcji, a żaden z sekcji aplikacji nie może jej odczytywać</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>żaden program nie może zapisywać tej sekcji, a żaden z sekcji boot nie może jej odczytywać</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>żaden program z sekcji aplikacji nie może odczytywać tej sekcji</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>żaden program z sekcji boot nie może odczytywać tej sekcji</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>bez wejścia RESET</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>bez ograniczeń</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>bez podziału</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>niemożliwe</translation>
    </message>
    <message>
        <source>off</source>
        <translation>wył.</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>wył. podczas pracy, %1 V podczas kasowania układu</translation>
    </message>
    <message>
        <source>on</source>
        <translation>wł.</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>na swoim pinie</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>wł., wybudzanie czeka na gotowość detektora</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>wł., ale wył. w trybach głębokiego uśpienia</translation>
    </message>
    <message>
        <source>open</source>
        <translation>bez blokady</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>program może zmieniać</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>zwykły pin</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>zwykły pin, tylko jako wejście</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>inne</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>możliwe</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>zarezerwowane</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>wejście RESET</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>próbkowanie</translation>
    </message>
    <message>
        <source>short</source>
        <translation>czas krótki</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>krótki rozruch</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>wolno narastające zasilanie</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>mała amplituda, która oszczędza energię</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>rozruch: %1 cykl, po resecie %2 cykli</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>rozruch: %1 cykli</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>rozruch: %1 cykli + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>rozruch: %1 cykli, po resecie %2 cykli</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>rozruch: %1 cykli, po resecie %2 cykli + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>napięcie układu</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>wymaga tego oscylator wewnętrzny</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>cała pamięć flash to sekcja boot</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>te same co kwarcu głównego</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>oscylator transceivera</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>bardzo krótki rozruch</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>oscylator watchdoga %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>gdy pin jest w stanie niskim na końcu resetu</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>cała pamięć flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>z wewnętrznymi kondensatorami</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>bez znaczenia, dopóki BOOTEND wynosi %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>bez znaczenia, dopóki BOOTSIZE wynosi %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>bez wewnętrznych kondensatorów</translation>
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
        <translation>Nie ma tu bajtów fuse: żadnego nie wysłano.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Nie wysłano, bo żaden bajt fuse tak się nie nazywa: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>W oknie ustawiono wartości fabryczne. Układ pozostał bez zmian.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Zaprogramowano bajty fuse.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Zweryfikowano bajty fuse.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Odczytano bajty fuse.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Czy mimo to zaprogramować bajty fuse?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Nie odczytano (nadal pokazane są stare wartości): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Programuj</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Weryfikuj</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczytaj</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Fabryczne</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>W przypadku bajtów fuse tego mikrokontrolera na avrdude nie można polegać.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Nie wczytano bajtów fuse. Wybierz mikrokontroler na pierwszej karcie.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Programator ISP nie ma dostępu do bajtów fuse tego mikrokontrolera.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>nie odczytano</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>NIE ZNALEZIONO PLIKU JSON</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Nie można otworzyć pliku</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>BŁĄD W PLIKU JSON</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>to nie jest obiekt JSON</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Nie udało się zapisać ustawień w pliku: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Nie udało się wczytać ustawień z pliku: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>Plik zachowano jako %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude nadal pracuje z układem. Jeśli teraz to przerwiesz, układ pozostanie w obecnym stanie: może skasowany, może zaprogramowany tylko częściowo.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Czy mimo to zamknąć Korvel?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel nie może zapisywać w katalogu %1: wybrane ustawienia nie zostaną zachowane.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>Zaprogramowano pamięć EEPROM.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>Zweryfikowano pamięć EEPROM.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>Odczytano pamięć EEPROM.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>Zaprogramowano pamięć FLASH.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>Zweryfikowano pamięć FLASH.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>Odczytano pamięć FLASH.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>zmieniono %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>Pliku nie ma: avrdude go nie zapisał.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>Plik jest pusty: układ jest pusty lub chroniony przed odczytem albo dysk jest pełny.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Czy go zastąpić?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Odczyt zastąpiłby ten plik:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 B danych</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 B danych, %2% pamięci</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Programuj</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczytaj</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Weryfikuj</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Nie znaleziono programatora.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Programator nie wykrył mikrokontrolera

- Sprawdź połączenia i zasilanie
- Ustaw mniejszą szybkość (Port &amp; szybkość)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Nie udało się odczytać zawartości
Układ jest pusty albo chroniony przed odczytem (ustawione lockbity).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Wybrano niewłaściwy mikrokontroler.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Błąd weryfikacji.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Nieprawidłowy format pliku. Wybierz inny plik.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Zobacz komunikat w dzienniku poniżej.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>Nie znaleziono UsbAsp.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Nie ma takiego pliku ani katalogu.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Nie można odczytać pliku profilu.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>„quiet” ma wartość inną niż true lub false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>„boardLog” nie jest nazwą pliku z rozszerzeniem .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>Nie można zaprogramować numeru seryjnego.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Nie udało się wczytać ustawień z pliku: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Profil „%1” już istnieje.
Czy go zastąpić?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Usunąć ten profil?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Wybierz profil...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>Zaprogramowano pamięć FLASH.
Zweryfikowano pamięć FLASH.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>Zaprogramowano pamięć EEPROM.
Zweryfikowano pamięć EEPROM.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Zaprogramowano fusebity.
Zweryfikowano fusebity.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Nie udało się zapisać ustawień w pliku: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>Nazwa profilu nie może zawierać żadnego z tych znaków: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Po ponownym uruchomieniu programu profil będzie na liście pod nazwą %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 bajt fuse</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>bajty fuse: %1</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>nie wczytano profilu</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows rezerwuje tę nazwę dla urządzenia. Wybierz inną.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>Nazwa jest za długa dla pliku. Wybierz krótszą.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Po ponownym uruchomieniu programu tego profilu nie będzie na liście.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>zmiany od wczytania profilu</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>Polecenie z profilu dla tej pamięci nie programuje jej z pliku, więc nie zostanie wykonane:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>Z tym profilem nie można programować płytek.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>Przy tym profilu po udanym zaprogramowaniu płytki nie pojawia się okno komunikatu.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>numer %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Płytka %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Płytka %1: gotowa, %2 s</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Płytka %1: nieudana: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>dobre: %1, złe: %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>Wybrano MCU: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
W oknie ustawiono wartości fabryczne. Układ pozostał bez zmian.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Programuj</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Użyj zewnętrznego przycisku</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Programuj wybrane obszary</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Szukaj w:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nazwa pliku:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Typ pliku:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Ostatnie miejsca</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Przejdź wstecz</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Przejdź dalej</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Katalog nadrzędny</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Przejdź do katalogu nadrzędnego</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nowy katalog</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Utwórz nowy katalog</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Pokaż jako listę</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Pokaż szczegóły</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Miejsca i zakładki</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Zmień nazwę</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Pokaż u&amp;kryte pliki</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nowy katalog</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nowy katalog</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Pokaż: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Nie znaleziono pliku.
Sprawdź nazwę pliku.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Nie znaleziono katalogu.
Sprawdź nazwę katalogu.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Czy na pewno usunąć „%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1” jest chroniony przed zapisem.
Usunąć mimo to?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Nie można usunąć katalogu.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Plik %1</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Skrót</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznany</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Zmodyfikowano</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Niepoprawna nazwa pliku</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>Nazwy „%1” nie można użyć. Spróbuj nazwy krótszej albo bez znaków interpunkcyjnych.</translation>
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
        <translation>&amp;Anuluj</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Wytnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Wk&amp;lej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Przewiń tutaj</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Na początek</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Na koniec</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Strona w górę</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Strona w dół</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Przewiń w górę</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Przewiń w dół</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Do lewej krawędzi</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Do prawej krawędzi</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Strona w lewo</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Strona w prawo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Przewiń w lewo</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Przewiń w prawo</translation>
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
        <translation>Kopiuj adres &amp;odnośnika</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude pracuje</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Programowanie</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Weryfikacja</translation>
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
        <translation>FUSEBITY</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>Obszary pamięci do zaprogramowania:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>Jego pamięć to ani „eeprom”, ani „flash”.</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Jego format to ani „little”, ani „big”, ani „decimal”, ani „hex”.</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>„address”, „bytes” i „next” muszą być nieujemnymi liczbami całkowitymi, a „bytes” – od 1 do %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Wykracza poza pamięć, która ma %1 B.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>Argument -e skasowałby układ przed zaprogramowaniem numeru.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>Numer %1 nie mieści się w „bytes”: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Uruchom program ponownie, aby zmienić język.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>W katalogu %1 nic nie znaleziono.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude otrzymuje dodatkowe argumenty, których nie ma w pliku programatora: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Dopóki nie wybierzesz szybkości, używana jest ta z ustawień: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Programator</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Port &amp;&amp; szybkość (nowy MCU: 185kHz)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>Profil wskazuje inny program do uruchamiania.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>W profilu:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Obecnie używany:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Program może zrobić wszystko, co możesz zrobić Ty. Czy od teraz uruchamiać program z profilu?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>Profil zawiera argumenty, przez które avrdude może odczytywać lub zapisywać pliki.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Czy ich użyć?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>W odpowiedzi serwera brakuje adresu pobierania.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>Dostępna jest wersja %1.

Otworzyć stronę pobierania?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Dostępna aktualizacja</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Nie udało się otworzyć odnośnika.</translation>
    </message>
</context>
</TS>
