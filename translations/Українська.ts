<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Терміни: фʼюз-біти та фʼюз-байти, як заведено казати; біти захисту (lock bits), калібрувальний байт, швидкість
     (bit clock); МК - мікроконтролер; детектор зниженого живлення BOD, сторожовий таймер (watchdog), секція
     завантажувача (boot section), кварц, запуск (start-up), увімкнено та вимкнено. -->
<TS version="2.1" language="uk_UA" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>Ваш обліковий запис не має дозволу на доступ до програматора.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Впишіть цей рядок у файл %1 і підключіть програматор знову:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>Ваш обліковий запис не має дозволу на доступ до порту %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>У терміналі: %1. Потім вийдіть із системи та увійдіть знову.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Програматор підключено? Спробуйте інший кабель та інше гніздо.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>У Windows програматору потрібен драйвер: який саме, сказано в посібнику.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Жодного програматора зі списку не підключено.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Можливо, підключено: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Зараз немає жодного послідовного порту.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Доступні зараз порти: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>Порту %1 немає.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Порт %1 зайнято іншою програмою, наприклад монітором порту: закрийте її.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>За адресою %1 ніхто не відповідає: чи запущено сервер і чи правильна адреса?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Безпосередньо перед операцією натисніть кнопку скидання на платі.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Спробуйте інший пункт списку для цієї плати: завантажувачі різняться швидкістю.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>Чи %1 — потрібний порт і чи вибрано правильний тип програматора?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Чи правильною стороною вставлено розʼєм і чи є на МК живлення?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>Швидкість має бути нижчою за чверть тактової частоти МК: спробуйте меншу за %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Можливо, фʼюз-біти МК вимагають тактового сигналу, якого немає: подайте на тактовий вхід МК близько 1 МГц.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Можливо, фʼюз-біти МК надають виводу скидання іншу функцію: повернути доступ можна високовольтним програматором.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Якщо це сталося після «Записати»: перевірте контакти й живлення та спробуйте меншу швидкість.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>МК зі встановленими бітами захисту не показує свого вмісту.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Завантажувач не може записати фʼюз-байти та байти захисту. Програматор може.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>МК захищено: «Стерти все» зніме захист, але знищить увесь вміст.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>Для %1 потрібен avrdude %2 або новіший; установлена версія його не знає.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>Установлена версія avrdude не знає %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>МК має сигнатуру %1, якої не має жоден МК зі списку.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>МК визначає себе як: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 програмується через %2, а цей програматор підтримує %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Зі списку підходять, зокрема: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude є в пакетах системи: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel шукає програму %1. Іншу програму або повний шлях можна вказати в save.json як «avrdude».</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Потім запустіть Korvel знову.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Відключіть програматор, підключіть його знову і закрийте інші програми, які можуть ним користуватися.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Теки, у яких його шукають: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>Швидкість цього програматора незмінна: тактова частота МК має бути вищою за %1, а в нового МК вона зазвичай 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Можливо, фʼюз-біти МК надають виводу UPDI іншу функцію: повернути доступ можна програматором із високовольтним UPDI.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>Можливо, МК захищено: з цим програматором захист не зніме жодна версія avrdude, а з SerialUPDI чи Atmel-ICE його зніме «Стерти все».</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Помилка запису FLASH.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Помилка перевірки FLASH.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Помилка зчитування FLASH.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Помилка запису EEPROM.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Помилка перевірки EEPROM.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Помилка зчитування EEPROM.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Помилка запису фʼюз-байтів.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Помилка перевірки фʼюз-байтів.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Помилка зчитування фʼюз-байтів.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Помилка зчитування калібрувального байта.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Помилка стирання МК.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>За адресою %1 вміст МК відрізняється від файлу.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>Запис уже почався: МК може містити лише частину файлу.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>МК стерто, і нічого не записано: його FLASH порожня.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>Запис уже почався: можливо, записано лише деякі фʼюз-байти.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>Стирання вже почалося: можливо, МК порожній.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>МК успішно стерто.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>МК успішно визначено. Продовжити?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Калібрувальний байт успішно зчитано.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>У теці %1 нічого не знайдено.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude не зчитав жодного: найімовірніше, такого байта в МК немає.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Визначити</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Стерти все</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Зчитати</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>МК</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Калібрувальний байт</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude не знайдено: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Програматор не знайдено.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Усе одно використати цей порт?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>Для %1 не знайдено послідовного порту: досі вибрано %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude зупинено.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>Неправильна швидкість: %1. Натомість використано %2.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Зчитування замінить цей файл:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Файл більший за дані, які буде зчитано: спершу перемістіть його в інше місце.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude не запущено: %1 не є ідентифікатором МК.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude не запущено: його аргументи містять невидимі символи: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude не запущено: %1 — файл, а не порт.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>У теці Korvel немає avrdude. Натомість використано %1.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Обнулити</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Не вдається записати у файл обліку плат: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Не вдається зберегти наступний номер у профілі: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>Номер %1 буде пропущено.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>У файлі %1 бракує рядка цієї плати.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>ФАЙЛ JSON ДЛЯ МК НЕ ЗНАЙДЕНО</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Додати</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Додати / видалити профіль</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Назва профілю</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Опис (необовʼязково)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>«Додати» — зберегти як профіль.
«Видалити» — видалити вибраний профіль.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Розмір файлу в байтах: %1, а памʼяті — лише %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>МК було б стерто даремно.
Усе одно продовжити?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude не прийме цього як шлях до файлу:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>Рядок %1 не відповідає формату %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>Контрольна сума рядка %1 неправильна.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>У файлі є дані за адресою 0x%1, а обсяг памʼяті — лише %2 Б.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>Файл не є програмою ELF для AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл порожній.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude не приймає цей файл із розширенням .%1: змініть його на %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>У файлі немає даних для цієї памʼяті.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Бракує кінця файлу.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Не вдається прочитати файл.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>Файл завеликий як для прошивки.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Заводське налаштування</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>Це налаштування зарезервоване: МК може більше не відповідати.
Як повернути доступ: високовольтним програматором.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>Вивід скидання стане звичайним: програматор ISP або TPI втратить доступ до МК.
Як повернути доступ: високовольтним програматором.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>Вивід скидання перейде до налагоджувача: програматор ISP втратить доступ до МК.
Як повернути доступ: налагоджувачем із debugWIRE або високовольтним програматором.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Програматор ISP втратить доступ до МК.
Як повернути доступ: через JTAG, якщо він є в МК, або високовольтним програматором.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Програматор JTAG втратить доступ до МК.
Як повернути доступ: через ISP (для ATxmega через PDI) або високовольтним програматором.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>Вивід UPDI отримає інше призначення: звичайний програматор UPDI втратить доступ до МК.
Як повернути доступ: програматором із високовольтним UPDI.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Без свого кварцу МК не відповідатиме, а з ним відповідатиме лише на швидкості, нижчій за 8 kHz (1 kHz із CKDIV8).
Як повернути доступ: підключіть кварц на 32,768 kHz або подайте тактовий сигнал на тактовий вхід МК, а тоді виберіть меншу швидкість; або скористайтеся високовольтним програматором.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Такий повільний МК відповідатиме лише на швидкості, нижчій за чверть його тактової частоти.
Як повернути доступ: виберіть меншу швидкість.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Без цього тактового сигналу на виводах МК не відповідатиме.
Як повернути доступ: подайте тактовий сигнал на тактовий вхід МК (кварц допоможе, лише якщо його названо в налаштуванні) або скористайтеся високовольтним програматором.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>Вивід UPDI отримає інше призначення: звичайний програматор UPDI втратить доступ до МК.
Як повернути доступ: програматором із високовольтним UPDI для цього сімейства, який подає на вивід скидання напругу, трохи вищу за напругу живлення. 12 V спалять цей вивід.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Програматор більше не зможе ні зчитати вміст МК, ні записати в нього.
Як повернути доступ: «Стерти все».</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Програматор більше не зможе записувати в МК.
Як повернути доступ: «Стерти все».</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 Б (слів: %2)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 Б (слів: %2), з байтової адреси %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 тактів</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 тактів + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 тактів, після скидання ще %2 тактів + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, якщо вивід скидання — звичайний вивід або вхід скидання</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Біти захисту BLB секції застосунку</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Біти захисту BLB секції таблиць застосунку</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Біти захисту BLB секції завантажувача</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>Boot Row під час стирання МК</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Детектор зниженого живлення BOD</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Детектор зниженого живлення BOD у режимі Power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Детектор зниженого живлення BOD у режимах сну</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Детектор зниженого живлення BOD в активному режимі</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Поріг детектора зниженого живлення BOD</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Калібрування внутрішнього генератора</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Перевірка секції завантажувача (CRC) під час запуску: якщо її не пройдено, програма не запуститься</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Виявлення збою тактового сигналу</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Вихід тактового сигналу</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Джерело тактування</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Джерело тактування та час запуску</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Джерело тактування під час запуску</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Закрита частина вікна сторожового таймера</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Сумісність з AT90S4414 і AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Сумісність з AT90S4434 і AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Сумісність з ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Сумісність з ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Приймання втічного струму стабілізатором напруги USB</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Налагодження через вивід скидання (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Відновлення за глибокого зниження напруги (DUVR) після скидання</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Дільник тактової частоти під час запуску</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM під час стирання МК</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Кінець секції коду застосунку, у блоках</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Кінець секції коду застосунку, за ним починається секція даних</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Кінець секції завантажувача</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Кінець секції завантажувача, у блоках</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Перевірка FLASH (CRC) під час запуску: якщо її не пройдено, програма не запуститься</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Для заводських випробувань</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Частота внутрішнього генератора</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Частота генератора з наднизьким споживанням</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Внутрішні конденсатори на виводах кварцу</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>Інтерфейс JTAG</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>Ідентифікатор користувача JTAG</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Примусовий стан виходів A модулів PSC під час скидання</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Примусовий стан виходів B модулів PSC під час скидання</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Примусовий стан виходів PSC під час скидання</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Біти захисту</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Метод перевірки FLASH під час запуску</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Монітор процесора</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Монітор сторожового таймера</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Внутрішньосхемне налагодження (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Режим генератора</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Вихід A таймера TCD0 після скидання</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Вихід A таймера TCD0 на своєму виводі після скидання</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Вихід B таймера TCD0 після скидання</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Вихід B таймера TCD0 на своєму виводі після скидання</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Вихід C таймера TCD0 після скидання</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Вихід C таймера TCD0 на своєму виводі після скидання</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Вихід D таймера TCD0 після скидання</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Вихід D таймера TCD0 на своєму виводі після скидання</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL від кварцового генератора</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL від кварцового генератора, поділ на %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL від зовнішнього тактового сигналу</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL від зовнішнього тактового сигналу, поділ на %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL від внутрішнього генератора %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL від внутрішнього генератора %1 MHz, поділ на %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Виходи PSC під час скидання</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Виходи PSC0 під час скидання</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Виходи PSC1 під час скидання</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Виходи %1 і %2 модуля PSC2 під час скидання</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Виходи PSC2 під час скидання</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Виводи для кварцу таймера %1 kHz</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Вивід скидання та UPDI</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Вивід скидання</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Частота періодичного опитування детектора BOD</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Послідовне програмування (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Розмір секції завантажувача</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Особлива поведінка входів PSC під час скидання</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Запуск секції завантажувача за виводом HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Початок програми після скидання</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Час запуску</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Живлення виводів MVIO</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Затримка після ввімкнення живлення, що блокує запис</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>Вивід UPDI</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, вхід скидання на іншому виводі</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Налаштування сторожового таймера</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Тайм-аут сторожового таймера</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Запис FLASH програмою МК (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>окрема напруга</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>через %1 Б від початку памʼяті</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>завжди ввімкнено</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>як із заводу</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>як звичайні виводи</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>як задасть програма</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>з адреси %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>з початку секції завантажувача</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>у кінці FLASH</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>секції завантажувача та коду застосунку</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>секція завантажувача</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>BOD увімкнено</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>для кварцу %1 kHz і зовнішнього RC-кола — внутрішні конденсатори</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>керамічний резонатор</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>керамічний резонатор %1–%2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>керамічний резонатор %1–%2 MHz (якщо CKOPT = %3, то й кварц, від %4 MHz)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>керамічний резонатор від %1 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>керамічний резонатор або зовнішній тактовий сигнал</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>кварц або керамічний резонатор</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>кварц або керамічний резонатор %1–%2 MHz (якщо CKOPT = %3, то від %4 MHz)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>кварц або керамічний резонатор, висока частота</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>кварц або керамічний резонатор, низька частота</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>кварц або керамічний резонатор, середня частота</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>кварцовий генератор</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>кварцовий генератор %1–%2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>кварцовий генератор від %1 MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>поділ на %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>теж стирається</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>зовнішнє RC-коло</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>зовнішнє RC-коло %1–%2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>зовнішнє RC-коло до %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>зовнішній тактовий сигнал</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>швидке наростання живлення</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>примусово заданий рівень</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>повний розмах, потрібен для кварців понад %1 MHz</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>кварцовий генератор із повним розмахом %1–%2 MHz (живлення понад %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>високий рівень</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>внутрішній генератор %1 kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>внутрішні конденсатори</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>внутрішній високочастотний генератор</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>внутрішній генератор</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>внутрішній генератор %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>внутрішній генератор %1 MHz із поділом на %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>внутрішній генератор %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>внутрішній генератор %1 kHz із наднизьким споживанням</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>зберігається</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>зберігається, якщо МК не захищено</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>зберігається, навіть якщо МК захищено</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>змінити не можна</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>запис заборонено</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>запис і зчитування заборонено</translation>
    </message>
    <message>
        <source>long</source>
        <translation>тривалий запуск</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>тривалий запуск</translation>
    </message>
    <message>
        <source>low</source>
        <translation>низький рівень</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>низькочастотний кварц (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>запис заборонено будь-якій програмі МК</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>запис заборонено будь-якій програмі МК, зчитування — програмі в секції застосунку</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>запис заборонено будь-якій програмі МК, зчитування — програмі в секції завантажувача</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>зчитування заборонено програмі в секції застосунку</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>зчитування заборонено програмі в секції завантажувача</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>без входу скидання</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>без обмежень</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>без поділу</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>заборонено</translation>
    </message>
    <message>
        <source>off</source>
        <translation>вимкнено</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>вимкнено під час роботи, %1 V під час стирання МК</translation>
    </message>
    <message>
        <source>on</source>
        <translation>увімкнено</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>на своєму виводі</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>увімкнено, пробудження чекає готовності BOD</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>увімкнено, але вимкнено в режимах глибокого сну</translation>
    </message>
    <message>
        <source>open</source>
        <translation>без захисту</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>програма може змінити</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>звичайний вивід</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>звичайний вивід, лише вхід</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>інші виводи</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>дозволено</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>зарезервовано</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>вхід скидання</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>періодичне опитування</translation>
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
        <translation>повільне наростання живлення</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>малий розмах, заощаджує енергію</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>запуск %1 такт, після скидання ще %2 тактів</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>запуск %1 тактів</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>запуск %1 тактів + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>запуск %1 тактів, після скидання ще %2 тактів</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>запуск %1 тактів, після скидання ще %2 тактів + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>напруга живлення МК</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>потрібно для внутрішнього генератора</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>уся FLASH — секція завантажувача</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>виводи основного кварцу</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>генератор приймача-передавача</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>дуже короткий запуск</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>генератор сторожового таймера %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>якщо наприкінці скидання на виводі низький рівень</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>уся FLASH</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>із внутрішніми конденсаторами</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>не діє, поки BOOTEND = %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>не діє, поки BOOTSIZE = %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>без внутрішніх конденсаторів</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <translation>Сторожовий таймер</translation>
    </message>
</context>
<context>
    <name>FuseRequests</name>
    <message>
        <source>There is no fuse byte here: none was sent.</source>
        <translation>Тут немає фʼюз-байтів: жодного не надіслано.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Не надіслано, бо жоден фʼюз-байт так не називається: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>У вікні виставлено заводські значення фʼюз-байтів. Сам МК не змінено.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Фʼюз-байти успішно записано.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Фʼюз-байти успішно перевірено.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Фʼюз-байти успішно зчитано.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Усе одно записати фʼюз-байти?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Не зчитано (показано попередні значення): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Записати</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Перевірити</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Зчитати</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Заводські</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>Щодо фʼюз-байтів цього мікроконтролера на avrdude не можна покластися.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Фʼюз-байти не завантажено. Виберіть мікроконтролер на першій вкладці.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Програматор ISP не має доступу до фʼюз-байтів цього мікроконтролера.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>не зчитано з МК</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>ФАЙЛ JSON НЕ ЗНАЙДЕНО</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Не вдається відкрити файл</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ПОМИЛКА У ФАЙЛІ JSON</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>не обʼєкт JSON</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Не вдалося зберегти налаштування у файл: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Не вдалося завантажити налаштування з файлу: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>Файл збережено під назвою %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude досі працює з МК. Якщо перервати роботу зараз, МК залишиться як є: можливо, стертим, можливо, записаним наполовину.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Усе одно закрити Korvel?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel не може записувати в теку %1: вибране не збережеться.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM успішно записано.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM успішно перевірено.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM успішно зчитано.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH успішно записано.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH успішно перевірено.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH успішно зчитано.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>змінено %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>Файлу немає: avrdude його не записав.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>Файл порожній: або МК порожній чи захищений від зчитування, або диск заповнено.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Замінити його?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Зчитування замінить цей файл:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 Б даних</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 Б даних, %2 % памʼяті</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Записати</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Зчитати</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Перевірити</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Програматор не знайдено.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Програматор не виявив мікроконтролера

- Перевірте зʼєднання та живлення
- Встановіть меншу швидкість (Порт &amp; швидк.)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Не вдалося зчитати вміст
МК порожній або захищений від зчитування (встановлено біти захисту).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Вибрано не той мікроконтролер.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Помилка перевірки.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Неправильний формат файлу. Виберіть інший файл.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Дивіться повідомлення в журналі внизу.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp не знайдено.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Немає такого файлу або теки.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Не вдається прочитати файл профілю.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>Значення «quiet» — не true і не false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>«boardLog» не є назвою файлу, що закінчується на .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>Серійний номер неможливо записати.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Не вдалося завантажити налаштування з файлу: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Профіль «%1» уже існує.
Замінити його?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Видалити цей профіль?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Вибрати профіль...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>FLASH успішно записано.
FLASH успішно перевірено.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM успішно записано.
EEPROM успішно перевірено.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Фʼюз-біти успішно записано.
Фʼюз-біти успішно перевірено.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Не вдалося зберегти налаштування у файл: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>Назва профілю не може містити жодного з цих символів: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Після перезапуску програми профіль буде в списку під назвою %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 фʼюз-байт</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>фʼюз-байти: %1</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>профіль не завантажено</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Цю назву Windows резервує для пристрою. Виберіть іншу.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>Назва задовга для файлу. Виберіть коротшу.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Після перезапуску програми цього профілю в списку не буде.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>завантажений профіль змінено</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>Команда з профілю для цієї памʼяті не записує в неї файлу, тож її не буде виконано:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>З цим профілем записати плату неможливо.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>З цим профілем після успішного запису плати вікно не зʼявляється.</translation>
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
        <translation>Плата %1: записано, %2 с</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Плата %1: збій: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>успішно: %1, збоїв: %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>Вибрано МК: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
У вікні виставлено заводські значення фʼюз-байтів. Сам МК не змінено.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Записати</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Зовнішня кнопка</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профілі</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Записати вибрані ділянки</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Тека:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Назва файлу:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Тип файлів:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Відкрити</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Недавні місця</translation>
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
        <translation>Вперед</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Перейти вперед</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Батьківська тека</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Перейти до батьківської теки</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Нова тека</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Створити теку</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Показати списком</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Докладно</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Показати подробиці</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Бічна панель</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Місця та закладки</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файли</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Перейменувати</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Видалити</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Показати при&amp;ховані файли</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Нова тека</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Нова тека</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Показати: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Файл не знайдено.
Перевірте назву файлу.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Теку не знайдено.
Перевірте назву теки.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Видалити «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1»: запис заборонено.
Усе одно видалити?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Не вдалося видалити теку.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Тека</translation>
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
        <translation>Ярлик</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Невідомо</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Змінено</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Компʼютер</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Неприпустима назва файлу</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>Назву «%1» використати не можна. Спробуйте коротшу або без розділових знаків.</translation>
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
        <translation>&amp;Скасувати</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Скасувати</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторити</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Вирі&amp;зати</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Вставити</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Виділити все</translation>
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
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Так</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ні</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутити сюди</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>На початок</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>У кінець</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На сторінку вгору</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На сторінку вниз</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутити вгору</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутити вниз</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>До лівого краю</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>До правого краю</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На сторінку вліво</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На сторінку вправо</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутити вліво</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутити вправо</translation>
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
        <translation>Копіювати &amp;адресу посилання</translation>
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
        <translation>avrdude працює</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Зчитування</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Перевірка</translation>
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
        <translation>ФʼЮЗИ</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>Ділянки памʼяті для запису:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>Його памʼять — не «eeprom» і не «flash».</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Його формат — не «little», не «big», не «decimal» і не «hex».</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>«address», «bytes» і «next» мають бути невідʼємними цілими числами, а «bytes» — від 1 до %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Він виходить за межі памʼяті, обсяг якої — %1 Б.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>Аргумент -e стер би МК перед записом номера.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>Номер %1 не вміщується в «bytes»: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Перезапустіть програму, щоб змінити мову.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>У теці %1 нічого не знайдено.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude отримує додаткові аргументи, яких немає у файлі програматора: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Поки ви не вибрали швидкість, використовується швидкість із налаштувань: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Програматор</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Порт &amp;&amp; швидк. (новий МК: 185kHz)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Мова</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>У профілі вказано іншу програму для запуску.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>У профілі:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Зараз використовується:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Програма може зробити все, що можете зробити ви. Відтепер запускати програму з профілю?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>Профіль містить аргументи, через які avrdude може читати або записувати файли.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Використати їх?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Помилка</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>У відповіді сервера немає адреси завантаження.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>Доступна версія %1.

Відкрити сторінку завантаження?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Доступне оновлення</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Не вдалося відкрити посилання.</translation>
    </message>
</context>
</TS>
