<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Термины: фьюз-биты и фьюз-байты, как принято говорить; биты защиты (lock bits), калибровочный байт, скорость (bit
     clock); МК - микроконтроллер; детектор пониженного питания BOD, сторожевой таймер (watchdog), секция загрузчика
     (boot section), кварц, запуск (start-up), вкл. и выкл. -->
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>У вашей учётной записи нет доступа к программатору.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Впишите эту строку в %1 и подключите программатор заново:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>У вашей учётной записи нет доступа к порту %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>В терминале: %1. Затем выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Подключён ли программатор? Попробуйте другой кабель и другой разъём USB.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>В Windows ему нужен драйвер: какой именно, сказано в руководстве.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Ни один программатор из списка не подключён.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Возможно, подключено: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Сейчас нет ни одного последовательного порта.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Сейчас есть порты: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>Порта %1 нет.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Порт %1 занят другой программой, например монитором порта: закройте её.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>По адресу %1 никто не отвечает: запущена ли там программа и верен ли адрес?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Нажмите кнопку сброса на плате непосредственно перед операцией.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Попробуйте другой пункт списка для этой платы: у загрузчиков разная скорость.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>Верен ли порт %1 и тот ли тип программатора выбран?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Правильной ли стороной вставлен разъём и есть ли питание на МК?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>Скорость должна быть ниже четверти тактовой частоты МК: попробуйте меньшую, чем %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Возможно, фьюз-биты МК задают источник тактирования, которого нет: подайте на тактовый вход около 1 МГц.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Возможно, фьюз-биты МК дали выводу сброса другое назначение: вернуть доступ можно высоковольтным программатором.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Если это случилось после «Записать»: проверьте контакты и питание и попробуйте меньшую скорость.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>МК с установленными битами защиты не выдаёт своё содержимое.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Загрузчик не может записать фьюз-байты и байты защиты. Программатор может.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>МК защищён: «Стереть всё» снимет защиту, но удалит и содержимое.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>Для %1 нужен avrdude %2 или новее; установленная версия это устройство не поддерживает.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>Установленный avrdude не поддерживает %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>Сигнатура МК — %1, такой в списке нет.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>Судя по сигнатуре МК, это: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 программируется через %2, а этот программатор работает через %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Из списка подходят, например: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude есть в пакетах системы: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel ищет %1. Другую программу или полный путь можно указать в save.json, ключ &quot;avrdude&quot;.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Затем снова запустите Korvel.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Отключите программатор, подключите его снова и закройте другие программы, которые могут его использовать.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Поиск ведётся в папках: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>Скорость этого программатора фиксирована: тактовая частота МК должна быть выше %1, а у нового МК она обычно 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Возможно, фьюз-биты МК дали выводу UPDI другое назначение: вернуть доступ можно программатором с высоковольтным UPDI.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>Возможно, МК защищён: с этим программатором ни одна версия avrdude не снимет защиту, а с SerialUPDI или Atmel-ICE её снимет «Стереть всё».</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Не удалось записать FLASH.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Проверка FLASH завершилась с ошибкой.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Не удалось считать FLASH.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Не удалось записать EEPROM.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Проверка EEPROM завершилась с ошибкой.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Не удалось считать EEPROM.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Не удалось записать фьюз-байты.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Проверка фьюз-байтов завершилась с ошибкой.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Не удалось считать фьюз-байты.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Не удалось считать калибровочный байт.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Не удалось стереть МК.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>Содержимое МК отличается от файла по адресу %1.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>Запись была начата: в МК может быть только часть файла.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>МК стёрт, и ничего не записано: его FLASH пуста.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>Запись была начата: возможно, в МК записаны не все фьюз-байты.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>Стирание было начато: возможно, МК пуст.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>МК успешно стёрт.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>МК успешно определён. Продолжить?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Калибровочный байт успешно считан.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>В папке %1 ничего не найдено.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude ничего не прочитал: скорее всего, в микроконтроллере нет такого байта.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Определить</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Стереть всё</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Считать</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>МК</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Калибровочный байт</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude не найден: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Программатор не найден.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Всё равно использовать этот порт?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>Для %1 не найден последовательный порт: выбран по-прежнему %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude остановлен.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>Недопустимая скорость: %1. Используется %2.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>При считывании будет заменён этот файл:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Он больше считываемых данных: сначала переместите его в другое место.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude не запущен: %1 не является идентификатором МК.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude не запущен: его аргументы содержат невидимые символы: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude не запущен: %1 — файл, а не порт.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>В папке Korvel нет avrdude. Используется %1.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Обнулить</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Не удаётся записать файл учёта плат: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Не удаётся сохранить следующий номер в профиле: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>Номер %1 будет пропущен.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>В %1 нет строки об этой плате.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>ФАЙЛ JSON ДЛЯ МК НЕ НАЙДЕН</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Добавить / удалить профиль</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Имя профиля</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Описание (необязательно)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>«Добавить» — сохранить как профиль.
«Удалить» — удалить выбранный профиль.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Размер файла в байтах: %1, а памяти — только %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>МК будет стёрт впустую.
Всё равно продолжить?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude не воспримет это как путь к файлу:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>Строка %1 не в формате %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>Неверная контрольная сумма в строке %1.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>В файле есть данные по адресу 0x%1, а размер памяти в байтах — только %2.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>Файл не является программой ELF для AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude не примет этот файл с расширением .%1: дайте ему расширение %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>В файле нет данных для этой памяти.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Файл неполный: нет его конца.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Не удаётся прочитать файл.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>Файл слишком велик, чтобы быть прошивкой.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Заводская настройка</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>Эта настройка зарезервирована: МК может перестать отвечать.
Как вернуть доступ: высоковольтным программатором.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>Вывод сброса станет обычным: программатор ISP или TPI потеряет доступ к МК.
Как вернуть доступ: высоковольтным программатором.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>Вывод сброса перейдёт к отладчику: программатор ISP потеряет доступ к МК.
Как вернуть доступ: отладчиком с debugWIRE или высоковольтным программатором.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Программатор ISP потеряет доступ к МК.
Как вернуть доступ: через JTAG, если он есть в МК, или высоковольтным программатором.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Программатор JTAG потеряет доступ к МК.
Как вернуть доступ: через ISP (для ATxmega через PDI) или высоковольтным программатором.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>Вывод UPDI получит другое назначение: обычный программатор UPDI потеряет доступ к МК.
Как вернуть доступ: программатором с высоковольтным UPDI.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Без кварца МК не будет отвечать, а с кварцем ответит только на скорости ниже 8 kHz (с CKDIV8 ниже 1 kHz).
Как вернуть доступ: подключите кварц на 32,768 kHz или подайте тактовый сигнал на тактовый вход, а затем выберите меньшую скорость; либо используйте высоковольтный программатор.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Такой медленный МК будет отвечать только на скорости ниже четверти его тактовой частоты.
Как вернуть доступ: выберите меньшую скорость.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Без этого тактового сигнала на выводах МК не будет отвечать.
Как вернуть доступ: подайте тактовый сигнал на тактовый вход (кварц поможет, только если он указан в самой настройке) либо используйте высоковольтный программатор.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>Вывод UPDI получит другое назначение: обычный программатор UPDI потеряет доступ к МК.
Как вернуть доступ: программатором с высоковольтным UPDI для этого семейства, который подаёт на вывод сброса напряжение чуть выше напряжения питания. 12 V сожгут этот вывод.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Программатор больше не сможет ни считать содержимое МК, ни записать в него.
Как вернуть доступ: «Стереть всё».</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Программатор больше не сможет записывать в МК.
Как вернуть доступ: «Стереть всё».</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 Б (слов: %2)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 Б (слов: %2), с байтового адреса %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 тактов</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 тактов + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 тактов, после сброса ещё %2 тактов + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, если вывод сброса — обычный вывод или вход сброса</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Биты защиты BLB секции приложения</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Биты защиты BLB секции таблиц приложения</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Биты защиты BLB секции загрузчика</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>Boot Row при стирании МК</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Детектор пониженного питания BOD</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Детектор пониженного питания BOD в режиме Power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Детектор пониженного питания BOD в режимах сна</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Детектор пониженного питания BOD в активном режиме</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Порог детектора пониженного питания BOD</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Калибровка внутреннего генератора</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Проверка секции загрузчика (CRC) при запуске: если она не пройдена, программа не запустится</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Обнаружение сбоя тактового сигнала</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Выход тактового сигнала</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Источник тактирования</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Источник тактирования и время запуска</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Источник тактирования при запуске</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Закрытая часть окна сторожевого таймера</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Совместимость с AT90S4414 и AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Совместимость с AT90S4434 и AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Совместимость с ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Совместимость с ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Приём втекающего тока стабилизатором напряжения USB</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Отладка через вывод сброса (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Восстановление при глубоком снижении напряжения (DUVR) после сброса</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Делитель тактовой частоты при запуске</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM при стирании МК</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Конец секции кода приложения, в блоках</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Конец секции кода приложения, за ним начинается секция данных</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Конец секции загрузчика</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Конец секции загрузчика, в блоках</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Проверка FLASH (CRC) при запуске: если она не пройдена, программа не запустится</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Для заводских испытаний</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Частота внутреннего генератора</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Частота генератора со сверхнизким потреблением</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Внутренние конденсаторы на выводах кварца</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>Интерфейс JTAG</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>Пользовательский идентификатор JTAG</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Принудительное состояние выходов A модулей PSC при сбросе</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Принудительное состояние выходов B модулей PSC при сбросе</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Принудительное состояние выходов PSC при сбросе</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Биты защиты</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Метод проверки FLASH при запуске</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Монитор процессора</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Монитор сторожевого таймера</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Внутрисхемная отладка (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Режим генератора</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Выход A таймера TCD0 после сброса</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Выход A таймера TCD0 на своём выводе после сброса</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Выход B таймера TCD0 после сброса</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Выход B таймера TCD0 на своём выводе после сброса</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Выход C таймера TCD0 после сброса</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Выход C таймера TCD0 на своём выводе после сброса</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Выход D таймера TCD0 после сброса</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Выход D таймера TCD0 на своём выводе после сброса</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL от кварцевого генератора</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL от кварцевого генератора, деление на %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL от внешнего тактового сигнала</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL от внешнего тактового сигнала, деление на %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL от внутреннего генератора %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL от внутреннего генератора %1 MHz, деление на %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Выходы PSC при сбросе</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Выходы PSC0 при сбросе</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Выходы PSC1 при сбросе</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Выходы %1 и %2 модуля PSC2 при сбросе</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Выходы PSC2 при сбросе</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Выводы для кварца таймера %1 kHz</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Вывод сброса и UPDI</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Вывод сброса</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Частота периодического опроса детектора BOD</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Последовательное программирование (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Размер секции загрузчика</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Особое поведение входов PSC при сбросе</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Запуск секции загрузчика по выводу HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Начало программы после сброса</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Время запуска</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Питание выводов MVIO</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Задержка после включения питания, блокирующая запись</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>Вывод UPDI</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, вход сброса на другом выводе</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Настройки сторожевого таймера</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Тайм-аут сторожевого таймера</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Запись FLASH программой МК (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>отдельное напряжение</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>через %1 Б от начала памяти</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>всегда вкл.</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>как с завода</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>как обычные выводы</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>как задаст программа</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>с адреса %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>с начала секции загрузчика</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>в конце FLASH</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>секции загрузчика и кода приложения</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>секция загрузчика</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>BOD вкл.</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>для кварца %1 kHz и внешней RC-цепи — внутренние конденсаторы</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>керамический резонатор</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>керамический резонатор %1–%2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>керамический резонатор %1–%2 MHz (при CKOPT = %3 — также кварц, от %4 MHz)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>керамический резонатор от %1 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>керамический резонатор или внешний тактовый сигнал</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>кварц или керамический резонатор</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>кварц или керамический резонатор %1–%2 MHz (при CKOPT = %3 — от %4 MHz)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>кварц или керамический резонатор, высокая частота</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>кварц или керамический резонатор, низкая частота</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>кварц или керамический резонатор, средняя частота</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>кварцевый генератор</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>кварцевый генератор %1–%2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>кварцевый генератор от %1 MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>деление на %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>тоже стирается</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>внешняя RC-цепь</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>внешняя RC-цепь %1–%2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>внешняя RC-цепь до %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>внешний тактовый сигнал</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>быстрое нарастание питания</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>принудительно заданный уровень</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>полный размах, нужен для кварцев выше %1 MHz</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>кварцевый генератор с полным размахом %1–%2 MHz (питание выше %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>высокий уровень</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>внутренний генератор %1 kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>внутренние конденсаторы</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>внутренний высокочастотный генератор</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>внутренний генератор</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>внутренний генератор %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>внутренний генератор %1 MHz с делением на %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>внутренний генератор %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>внутренний генератор %1 kHz со сверхнизким потреблением</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>сохраняется</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>сохраняется, если МК не защищён</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>сохраняется, даже если МК защищён</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>изменить нельзя</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>запись запрещена</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>запись и чтение запрещены</translation>
    </message>
    <message>
        <source>long</source>
        <translation>долгий запуск</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>долгий запуск</translation>
    </message>
    <message>
        <source>low</source>
        <translation>низкий уровень</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>низкочастотный кварц (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>запись запрещена любой программе МК</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>запись запрещена любой программе МК, чтение — программе в секции приложения</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>запись запрещена любой программе МК, чтение — программе в секции загрузчика</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>чтение запрещено программе в секции приложения</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>чтение запрещено программе в секции загрузчика</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>без входа сброса</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>без ограничений</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>без деления</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>не допускается</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выкл.</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>выкл. при работе, %1 V при стирании МК</translation>
    </message>
    <message>
        <source>on</source>
        <translation>вкл.</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>на своём выводе</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>вкл., пробуждение ждёт готовности BOD</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>вкл., но выкл. в режимах глубокого сна</translation>
    </message>
    <message>
        <source>open</source>
        <translation>без защиты</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>программа может изменить</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>обычный вывод</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>обычный вывод, только вход</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>другие выводы</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>допускается</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>зарезервировано</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>вход сброса</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>периодический опрос</translation>
    </message>
    <message>
        <source>short</source>
        <translation>короткий запуск</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>короткий запуск</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>медленное нарастание питания</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>малый размах, экономит энергию</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>запуск %1 такт, после сброса ещё %2 тактов</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>запуск %1 тактов</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>запуск %1 тактов + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>запуск %1 тактов, после сброса ещё %2 тактов</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>запуск %1 тактов, после сброса ещё %2 тактов + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>напряжение питания МК</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>требуется для внутреннего генератора</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>вся FLASH — секция загрузчика</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>выводы основного кварца</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>генератор приёмопередатчика</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>очень короткий запуск</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>генератор сторожевого таймера %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>если в конце сброса на выводе низкий уровень</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>вся FLASH</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>с внутренними конденсаторами</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>не действует, пока BOOTEND = %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>не действует, пока BOOTSIZE = %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>без внутренних конденсаторов</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <translation>Сторожевой таймер</translation>
    </message>
</context>
<context>
    <name>FuseRequests</name>
    <message>
        <source>There is no fuse byte here: none was sent.</source>
        <translation>Здесь нет ни одного фьюз-байта: ничего не отправлено.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Не отправлено, так как фьюз-байтов с такими именами нет: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>В окне выставлены заводские значения фьюз-байтов. Сам МК не изменён.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Фьюз-байты успешно записаны.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Фьюз-байты успешно проверены.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Фьюз-байты успешно считаны.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Всё равно записать фьюз-байты?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Не считано (показаны прежние значения): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Считать</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Заводские</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>avrdude ненадёжно работает с фьюз-байтами этого микроконтроллера.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Фьюз-байты не загружены. Выберите микроконтроллер на первой вкладке.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Программатор ISP не имеет доступа к фьюз-байтам этого микроконтроллера.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>не считано из МК</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>ФАЙЛ JSON НЕ НАЙДЕН</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Не удаётся открыть файл</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ОШИБКА В ФАЙЛЕ JSON</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>не объект JSON</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Не удалось сохранить настройки в файл: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Не удалось загрузить настройки из файла: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>Файл сохранён под именем %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude ещё работает с МК. Если прервать его сейчас, МК останется как есть: возможно, стёртым, возможно, записанным наполовину.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Всё равно закрыть Korvel?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel не может записывать в папку %1: выбранное не сохранится.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM успешно записана.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM успешно проверена.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM успешно считана.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH успешно записана.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH успешно проверена.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH успешно считана.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>изменён %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>Файла нет: avrdude его не записал.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>Файл пуст: МК пуст или защищён от чтения либо на диске нет места.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Заменить его?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>При считывании будет заменён этот файл:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 Б данных</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 Б данных, %2 % памяти</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Считать</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Проверить</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Программатор не найден.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Программатор не обнаружил микроконтроллер

- Проверьте соединения и питание
- Установите меньшую скорость (Порт &amp; скор.)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Не удалось считать содержимое
МК пуст или защищён от чтения (установлены биты защиты).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Выбран не тот микроконтроллер.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Ошибка проверки.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Неверный формат файла. Выберите другой файл.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Смотрите сообщение в журнале внизу.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp не найден.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Нет такого файла или папки.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Не удаётся прочитать файл профиля.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>Значение &quot;quiet&quot; должно быть true или false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>Значение &quot;boardLog&quot; должно быть именем файла с расширением .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>Серийный номер записать нельзя.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Не удалось загрузить настройки из файла: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Профиль «%1» уже существует.
Заменить его?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Удалить этот профиль?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Выбрать профиль...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>FLASH успешно записана.
FLASH успешно проверена.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM успешно записана.
EEPROM успешно проверена.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Фьюз-биты успешно записаны.
Фьюз-биты успешно проверены.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Не удалось сохранить настройки в файл: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>В имени профиля недопустимы символы: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>После перезапуска профиль будет в списке под именем %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 фьюз-байт</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>фьюз-байты: %1</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>профиль не загружен</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows резервирует это имя для устройства. Выберите другое.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>Имя слишком длинное для файла. Выберите имя короче.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>После перезапуска профиля не будет в списке.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>профиль изменён после загрузки</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>Команда из профиля для этой памяти не записывает в неё файл. Она не будет выполнена:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>С этим профилем запись плат невозможна.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>С этим профилем окно с сообщением об успешной записи платы не появляется.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>номер %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Плата %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Плата %1: записана, %2 с</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Плата %1: сбой. %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>Годных: %1, сбоев: %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>Выбран МК: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
В окне выставлены заводские значения фьюз-байтов. Сам МК не изменён.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Внешняя кнопка</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Записать выбранные области</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Имя файла:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Тип файлов:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Недавние места</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Перейти назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Перейти вперёд</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Родительская папка</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Перейти в родительскую папку</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Создать папку</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Показать списком</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Подробно</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Показать подробности</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Места и закладки</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Переименовать</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Показать &amp;скрытые файлы</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Новая папка</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Показать: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Файл не найден.
Проверьте имя файла.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Папка не найдена.
Проверьте имя папки.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Удалить «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1»: запись запрещена.
Всё равно удалить?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Не удалось удалить папку.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Файл %1</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Ярлык</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Недопустимое имя файла</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>Имя «%1» использовать нельзя. Попробуйте имя короче или без знаков препинания.</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>От&amp;мена</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутить сюда</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>В начало</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>В конец</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На страницу вверх</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На страницу вниз</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутить вверх</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутить вниз</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>К левому краю</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>К правому краю</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На страницу влево</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На страницу вправо</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутить влево</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутить вправо</translation>
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
        <translation>Копировать адрес &amp;ссылки</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude работает</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Проверка</translation>
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
        <translation>ФЬЮЗЫ</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>Области памяти для записи:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>Память для него должна быть &quot;eeprom&quot; или &quot;flash&quot;.</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Его формат должен быть &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; или &quot;hex&quot;.</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>&quot;address&quot; и &quot;next&quot; должны быть целыми числами не меньше 0, а &quot;bytes&quot; — целым числом от 1 до %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Он выходит за пределы памяти: её размер — %1 Б.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>Аргумент -e стёр бы МК перед записью номера.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>Номер %1 занимает больше байтов, чем задано в &quot;bytes&quot;: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Перезапустите программу, чтобы сменить язык.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>В папке %1 ничего не найдено.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude получает дополнительные аргументы, которых нет в файле программатора: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Пока вы не выбрали скорость, используется скорость из настроек: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Программатор</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Порт &amp;&amp; скор. (новый МК: 185kHz)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>Профиль требует запускать другую программу.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>В профиле:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Сейчас используется:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Запущенная программа может делать всё то же, что и вы. Запускать с этого момента программу, указанную в профиле?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>В профиле есть аргументы, с которыми avrdude может читать или записывать файлы.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Использовать эти аргументы?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>В ответе сервера нет адреса загрузки.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>Доступна версия %1.

Открыть страницу загрузки?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Не удалось открыть ссылку.</translation>
    </message>
</context>
</TS>
