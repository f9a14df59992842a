<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Terimler: fuse biti ve fuse baytı yerleşik oldukları için kalır; kilit biti (lock bit), kalibrasyon baytı, hız
     (bit clock). -->
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU başarıyla silindi.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU başarıyla algılandı. Devam edilsin mi?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Kalibrasyon baytı başarıyla okundu.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Algıla</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Tümünü sil</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Oku</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Kalibrasyon baytı</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude bulunamadı</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programlayıcı bulunamadı.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>MCU&apos;NUN JSON DOSYASI BULUNAMADI</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Dosya açılamıyor</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON DOSYASI HATALI</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Profil ekle / kaldır</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Profil adı</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Açıklama (isteğe bağlı)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>“Ekle” - geçerli ayarları profil olarak kaydeder.
“Kaldır” - seçili profili kaldırır.</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Fuse baytları varsayılan değerlere ayarlandı.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Fuse baytları başarıyla yazıldı.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Fuse baytları başarıyla doğrulandı.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Fuse baytları başarıyla okundu.</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>Okunamayan: %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Yaz</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Doğrula</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Oku</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Varsayılan</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Ayarlar şu dosyaya kaydedilemedi: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Ayarlar şu dosyadan yüklenemedi: </translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM başarıyla yazıldı.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM başarıyla doğrulandı.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM başarıyla okundu.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH başarıyla yazıldı.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH başarıyla doğrulandı.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH başarıyla okundu.</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Yaz</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Oku</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Doğrula</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Programlayıcı bulunamadı.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Programlayıcı mikrodenetleyiciyi algılamadı

- Bağlantıları ve beslemeyi denetleyin
- Daha düşük bir hız seçin (Port &amp; hız)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>İçerik okunamadı
Aygıt boş ya da okumaya karşı korumalı (kilit bitleri ayarlı).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Yanlış mikrodenetleyici seçildi.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Doğrulama hatası.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Geçersiz dosya biçimi. Lütfen başka bir dosya seçin.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Çıktı penceresindeki iletiye bakın.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp bulunamadı.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Böyle bir dosya ya da klasör yok.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Ayarlar şu dosyadan yüklenemedi: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>“%1” adlı yapılandırma zaten var.
Üzerine yazılsın mı?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Bu profil silinsin mi?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Profil seçin...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>Flash başarıyla yazıldı.
Flash başarıyla doğrulandı.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM başarıyla yazıldı.
EEPROM başarıyla doğrulandı.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fuse bitleri başarıyla yazıldı.
Fuse bitleri başarıyla doğrulandı.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Ayarlar şu dosyaya kaydedilemedi: </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>Seçilen MCU: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Fuse baytları veri sayfasındaki varsayılan değerlere ayarlandı.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Yaz</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Harici düğme kullan</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Seçili alanları yaz</translation>
    </message>
</context>
<context>
    <name>RawFile</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Dosya %1 bayt, bellek ise yalnızca %2 bayt.</translation>
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
        <translation>Yazılacak bellek alanları:</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>JSON DOSYASI BULUNAMADI</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Dosya açılamıyor</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON DOSYASI HATALI</translation>
    </message>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Dil değişikliği için programı yeniden başlatın.</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Programlayıcı</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Port &amp;&amp; hız ( yeni MCU -&gt; 185kHz )</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>Sunucu yanıtında indirme adresi yok.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>%1 sürümü çıktı.

İndirme sayfası açılsın mı?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Güncelleme var</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Bağlantı açılamadı.</translation>
    </message>
</context>
</TS>
