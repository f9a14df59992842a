<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Терміни: фʼюз-біти та фʼюз-байти, як заведено казати; біти захисту (lock bits), калібрувальний байт, частота
     (bit clock); МК - мікроконтролер. -->
<TS version="2.1" language="uk_UA" sourcelanguage="en_US">
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
        <translation>Калібрувальний байт успішно прочитано.</translation>
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
        <translation>Читати</translation>
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
        <translation>avrdude не знайдено</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Програматор не знайдено.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>ФАЙЛ JSON ДЛЯ МК НЕ ЗНАЙДЕНО</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Не вдається відкрити файл</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ПОМИЛКА У ФАЙЛІ JSON</translation>
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
        <translation>Прибрати</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Додати / прибрати профіль</translation>
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
        <translation>«Додати» — зберегти налаштування.
«Прибрати» — прибрати вибраний профіль.</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Фʼюз-байтам надано типові значення.</translation>
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
        <translation>Фʼюз-байти успішно прочитано.</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>Не прочитано: %1</translation>
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
        <translation>Читати</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Типові</translation>
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
        <translation>EEPROM успішно прочитано.</translation>
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
        <translation>FLASH успішно прочитано.</translation>
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
        <translation>Читати</translation>
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
- Встановіть меншу частоту (Порт &amp; частота)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Не вдалося прочитати вміст
Мікросхема порожня або захищена від читання (встановлено біти захисту).</translation>
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
        <translation>Дивіться повідомлення у вікні виводу.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp не знайдено.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Немає такого файлу або каталогу.</translation>
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
        <translation>Конфігурація «%1» уже існує.
Замінити її?</translation>
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
        <translation>Flash успішно записано.
Flash успішно перевірено.
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
Фʼюз-байтам надано типові значення з даташиту.</translation>
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
    <name>RawFile</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Розмір файлу в байтах: %1, а памʼяті — лише %2.</translation>
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
    <name>SettingsPresenter</name>
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
        <source>Please restart the application to apply language changes.</source>
        <translation>Перезапустіть програму, щоб змінити мову.</translation>
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
        <translation>Порт &amp;&amp; частота (новий: 185kHz)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Мова</translation>
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
