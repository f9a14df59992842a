<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Terimler: fuse biti ve fuse baytı yerleşik oldukları için kalır; kilit biti (lock bit), kalibrasyon baytı, hız
     (bit clock), düşük gerilim algılayıcısı (brown-out detector, BOD). -->
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>Hesabınızın programlayıcıyı kullanma izni yok.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Şu satırı %1 dosyasına yazın ve programlayıcıyı yeniden takın:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>Hesabınızın %1 portunu kullanma izni yok.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>Terminalde: %1. Sonra oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Programlayıcı takılı mı? Başka bir kablo ve başka bir USB yuvası deneyin.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>Windows&apos;ta programlayıcının sürücüsü gerekir: hangisi olduğu kılavuzda yazar.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Listedeki programlayıcılardan hiçbiri takılı değil.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Takılı olan şu olabilir: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Şu anda hiç seri port yok.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Şu anda var olan portlar: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>%1 portu yok.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Başka bir program %1 portunu kullanıyor: onu kapatın; örneğin bir seri monitör olabilir.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>%1 adresinde dinleyen yok: sunucu başlatıldı mı, adres doğru mu?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>İşlemden hemen önce kartın reset düğmesine basın.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Listede bu kart için başka bir seçenek deneyin: önyükleyicilerin hızları farklıdır.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>%1 doğru port mu, programlayıcı seçilen türden mi?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Konnektör doğru yönde takılı mı, çipin beslemesi var mı?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>Hız, çipin saat frekansının dörtte birinden düşük olmalı: %1 değerinden daha düşük bir hız deneyin.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Çipin fuse bitleri var olmayan bir saat sinyali istiyor olabilir: çipin saat bacağına yaklaşık 1 MHz verin.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Çipin fuse bitleri reset bacağına başka bir işlev vermiş olabilir: yüksek gerilimli bir programlayıcı çipi kurtarır.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>“Yaz” düğmesinden sonra olduysa: kontakları ve beslemeyi denetleyin, daha düşük bir hız deneyin.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>Kilit bitleri etkin olan bir çip içeriğini göstermez.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Önyükleyici fuse ve kilit baytlarını yazamaz. Programlayıcı yazabilir.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>Çip kilitli: “Tümünü sil” kilidi kaldırır, ama içeriği de siler.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 için avrdude %2 ya da daha yenisi gerekir; kurulu sürüm onu tanımıyor.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>Kurulu avrdude şunu tanımıyor: %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>Çipin imzası %1; listedekilerin hiçbirinde bu imza yok.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>Çip kendini şöyle tanıtıyor: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 şununla programlanır: %2; bu programlayıcının desteklediği: %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Listeden uygun olanlardan bazıları: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude sistemin paketleri arasında var: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel şu programı arar: %1. Başka bir program ya da tam yol, save.json dosyasında “avrdude” olarak verilebilir.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Sonra Korvel&apos;i yeniden başlatın.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Programlayıcıyı çıkarıp yeniden takın ve onu kullanıyor olabilecek diğer programları kapatın.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Arandığı klasörler: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>Bu programlayıcının hızı sabittir: çipin saat frekansı %1 değerinin üzerinde olmalıdır; yeni bir çipinki ise çoğunlukla 1 MHz&apos;dir.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Çipin fuse bitleri UPDI bacağına başka bir işlev vermiş olabilir: yüksek gerilimli UPDI destekli bir programlayıcı çipi kurtarır.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>Çip kilitli olabilir: bu programlayıcıyla hiçbir avrdude sürümü kilidi kaldıramaz; SerialUPDI ya da Atmel-ICE ile “Tümünü sil” kilidi kaldırır.</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>FLASH yazılamadı.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>FLASH doğrulanamadı.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>FLASH okunamadı.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>EEPROM yazılamadı.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>EEPROM doğrulanamadı.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>EEPROM okunamadı.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Fuse baytları yazılamadı.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Fuse baytları doğrulanamadı.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Fuse baytları okunamadı.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Kalibrasyon baytı okunamadı.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Çip silinemedi.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>Çip, %1 adresinde dosyadan farklı.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>Yazma başlamıştı: çipte dosyanın bir bölümü olabilir.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>Çip silindi ve hiçbir şey yazılmadı: FLASH belleği boş.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>Yazma başlamıştı: çipte fuse baytlarının yalnızca bir kısmı olabilir.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>Silme başlamıştı: çip boş olabilir.</translation>
    </message>
</context>
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
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>%1 klasöründe hiçbir şey bulunamadı.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude hiçbir bayt okumadı: büyük olasılıkla mikrodenetleyicide böyle bir bayt yok.</translation>
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
        <translation>avrdude bulunamadı: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programlayıcı bulunamadı.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Yine de bu port kullanılsın mı?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>%1 için seri port bulunamadı: port hâlâ %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude durduruldu.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 geçerli bir hız değil: %2 kullanılıyor.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Okuma yapılırsa bu dosyanın üzerine yazılır:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Dosya, okunacak verilerden daha büyük: önce onu başka bir yere taşıyın.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude başlatılmadı: %1 bir mikrodenetleyici tanımlayıcısı değil.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude başlatılmadı: argümanlarında görünmeyen karakterler var: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude başlatılmadı: %1 bir dosya, port değil.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>avrdude, Korvel&apos;in klasöründe değil: %1 kullanılıyor.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Sıfırla</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Kart kayıt dosyasına yazılamıyor: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Sonraki numara profile kaydedilemiyor: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>%1 numarası atlanacak.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>%1 dosyasında bu kartın satırı yok.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>MCU&apos;NUN JSON DOSYASI BULUNAMADI</translation>
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
        <translation>“Ekle”: geçerli ayarları profil olarak kaydeder.
“Kaldır”: seçili profili kaldırır.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Dosya %1 bayt, bellek ise yalnızca %2 bayt.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>Çip boşuna silinmiş olur.
Yine de devam edilsin mi?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude bunu dosya yolu olarak kabul etmez:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>%1. satır %2 biçiminde değil.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>%1. satırın sağlama toplamı yanlış.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>Dosyada 0x%1 adresinde veri var, bellek ise yalnızca %2 bayt.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>Dosya, AVR için bir ELF programı değil.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Dosya boş.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude bu dosyayı .%1 uzantısıyla kabul etmiyor: dosya adı %2 ile bitmeli.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>Dosyada bu bellek için veri yok.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Dosyanın sonu eksik.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Dosya okunamıyor.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>Dosya, mikrodenetleyici yazılımı olamayacak kadar büyük.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Fabrika ayarı</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>Bu ayar ayrılmıştır: çip artık yanıt vermeyebilir.
Kurtarmak için: yüksek gerilimli bir programlayıcı.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>Reset bacağı sıradan bir bacak olacak: ISP veya TPI programlayıcısı artık çipe erişemeyecek.
Kurtarmak için: yüksek gerilimli bir programlayıcı.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>Reset bacağı hata ayıklayıcıya geçecek: ISP programlayıcısı artık çipe erişemeyecek.
Kurtarmak için: debugWIRE destekli bir hata ayıklayıcı ya da yüksek gerilimli bir programlayıcı.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>ISP programlayıcısı artık çipe erişemeyecek.
Kurtarmak için: çipte varsa JTAG ya da yüksek gerilimli bir programlayıcı.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>JTAG programlayıcısı artık çipe erişemeyecek.
Kurtarmak için: ISP (ATxmega&apos;da PDI) ya da yüksek gerilimli bir programlayıcı.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>UPDI bacağı başka bir işlev alacak: sıradan bir UPDI programlayıcısı artık çipe erişemeyecek.
Kurtarmak için: yüksek gerilimli UPDI destekli bir programlayıcı.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Kristali olmadan çip yanıt vermeyecek, kristaliyle de yalnızca 8 kHz&apos;den (CKDIV8 ile 1 kHz&apos;den) düşük bir hızda yanıt verecek.
Kurtarmak için: 32,768 kHz&apos;lik bir kristal bağlayın ya da çipin saat bacağına bir saat sinyali verin, ardından daha düşük bir hız seçin; veya yüksek gerilimli bir programlayıcı kullanın.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Bu kadar yavaş bir çip yalnızca saat frekansının dörtte birinden düşük bir hızda yanıt verecek.
Kurtarmak için: daha düşük bir hız seçin.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Bacaklarında bu saat sinyali olmadan çip yanıt vermeyecek.
Kurtarmak için: çipin saat bacağına bir saat sinyali verin (kristal yalnızca ayarda adı geçiyorsa işe yarar) veya yüksek gerilimli bir programlayıcı kullanın.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>UPDI bacağı başka bir işlev alacak: sıradan bir UPDI programlayıcısı artık çipe erişemeyecek.
Kurtarmak için: bu aile için yüksek gerilimli UPDI desteği olan, reset bacağına besleme geriliminden biraz fazlasını veren bir programlayıcı. 12 V bu bacağı bozar.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Programlayıcı artık çipi okuyamayacak ve çipe yazamayacak.
Kurtarmak için: “Tümünü sil”.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Programlayıcı artık çipe yazamayacak.
Kurtarmak için: “Tümünü sil”.</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 bayt (%2 sözcük)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 bayt (%2 sözcük), başlangıç bayt adresi %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 saat çevrimi</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 saat çevrimi + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 saat çevrimi, reset sonrası ayrıca %2 çevrim + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, reset bacağı sıradan bacak ya da reset girişi ise</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Uygulama bölümünün kilit bitleri (BLB)</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Uygulama tablosu bölümünün kilit bitleri (BLB)</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Boot bölümünün kilit bitleri (BLB)</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>Çip silinirken BOOTROW belleği</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Düşük gerilim algılayıcısı (BOD)</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Power-down uyku kipinde düşük gerilim algılayıcısı (BOD)</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Uyku kipinde düşük gerilim algılayıcısı (BOD)</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Çalışırken düşük gerilim algılayıcısı (BOD)</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Düşük gerilim algılama eşiği (BOD)</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Dahili osilatörün kalibrasyonu</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Başlangıçta boot bölümünün denetimi (CRC): başarısız olursa program başlamaz</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Saat arızası algılama</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Saat çıkışı</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Saat kaynağı</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Saat kaynağı ve başlatma süresi</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Başlangıçtaki saat kaynağı</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Watchdog penceresinin yasak bölümü</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>AT90S4414 ve AT90S8515 uyumluluğu</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>AT90S4434 ve AT90S8535 uyumluluğu</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>ATmega103 uyumluluğu</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>ATmega161 uyumluluğu</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>USB gerilim regülatörünün akım çekmesi (sink)</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Reset bacağı üzerinden hata ayıklama (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Reset sonrası derin gerilim düşüşünden toparlanma (DUVR)</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Başlangıçta saatin bölünmesi</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>Çip silinirken EEPROM</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Uygulama kodu bölümünün sonu, blok olarak</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Uygulama kodu bölümünün sonu, veri bölümünün başladığı yer</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Boot bölümünün sonu</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Boot bölümünün sonu, blok olarak</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Başlangıçta flash denetimi (CRC): başarısız olursa program başlamaz</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Fabrikadaki testler için</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Dahili osilatörün frekansı</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Ultra düşük güçlü osilatörün frekansı</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Kristal bacaklarındaki dahili kondansatörler</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>JTAG arayüzü</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>JTAG kullanıcı kimliği</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Resetin PSC A çıkışlarını zorladığı seviye</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Resetin PSC B çıkışlarını zorladığı seviye</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Resetin PSC çıkışlarını zorladığı seviye</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Kilit bitleri</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Başlangıçtaki flash denetiminin yöntemi</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>İşlemcinin izlenmesi</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Watchdog&apos;un izlenmesi</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Çip üzerinde hata ayıklama (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Osilatör seçeneği</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının A çıkışı</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının A çıkışının bacağa bağlanması</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının B çıkışı</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının B çıkışının bacağa bağlanması</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının C çıkışı</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının C çıkışının bacağa bağlanması</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının D çıkışı</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Reset sonrası TCD0 zamanlayıcısının D çıkışının bacağa bağlanması</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>kristal osilatörden PLL</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>kristal osilatörden PLL, %1 ile bölünmüş</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>harici saatten PLL</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>harici saatten PLL, %1 ile bölünmüş</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>%1 MHz dahili osilatörden PLL</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>%1 MHz dahili osilatörden PLL, %2 ile bölünmüş</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Reset sırasında PSC çıkışları</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Reset sırasında PSC0 çıkışları</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Reset sırasında PSC1 çıkışları</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Reset sırasında PSC2 çıkışları %1 ve %2</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Reset sırasında PSC2 çıkışları</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Zamanlayıcının %1 kHz kristalinin bacakları</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Reset ve UPDI bacağı</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Reset bacağı</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Düşük gerilim algılayıcısının (BOD) örneklemesi</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Seri programlama (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Boot bölümünün boyutu</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Reset sırasında PSC girişlerinin özel davranışı</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>HWB bacağıyla boot bölümünün başlatılması</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Reset sonrası programın başlangıcı</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Başlatma süresi</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Çok gerilimli bacakların (MVIO) beslemesi</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Besleme verildikten sonra yazmayı engelleyen bekleme süresi</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>UPDI bacağı</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, reset girişi başka bir bacakta</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Watchdog ayarları</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Watchdog zaman aşımı</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Programın flash belleğe yazması (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>kendi gerilimi</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>%1 bayttan sonra</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>her zaman açık</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>fabrika ayarında</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>sıradan bacak olarak</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>programın ayarladığı gibi</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>%1 adresinde</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>boot bölümünde</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>flash belleğin sonunda</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>boot ve uygulama kodu bölümleri</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>boot bölümü</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>düşük gerilim algılayıcısı (BOD) açık</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>%1 kHz kristallerde ve harici RC ile dahili kondansatörler</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>seramik rezonatör</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>seramik rezonatör %1–%2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>seramik rezonatör %1–%2 MHz (CKOPT %3 ise kristal de olur, %4 MHz ve üzeri)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>seramik rezonatör %1 MHz ve üzeri</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>seramik rezonatör veya harici saat</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>kristal veya seramik rezonatör</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>kristal veya seramik rezonatör %1–%2 MHz (CKOPT %3 ise %4 MHz ve üzeri)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>kristal veya seramik rezonatör, yüksek frekans</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>kristal veya seramik rezonatör, düşük frekans</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>kristal veya seramik rezonatör, orta frekans</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>kristal osilatör</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>kristal osilatör %1–%2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>kristal osilatör %1 MHz ve üzeri</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>%1 ile bölünür</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>o da silinir</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>harici RC osilatörü</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>harici RC osilatörü %1–%2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>harici RC osilatörü en çok %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>harici saat</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>hızlı yükselen besleme</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>bir seviyeye zorlanır</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>tam salınım, %1 MHz üzerindeki kristaller için gerekir</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>tam salınımlı osilatör %1–%2 MHz (besleme %3 V üzerinde)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>yüksek</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>dahili %1 kHz osilatör</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>dahili kondansatörler</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>dahili yüksek frekanslı osilatör</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>dahili osilatör</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>dahili osilatör %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>dahili osilatör %1 MHz, %2 ile bölünmüş</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>dahili osilatör %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>dahili ultra düşük güçlü osilatör %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>korunur</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>korunur, ama çip kilitliyse korunmaz</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>çip kilitli olsa bile korunur</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>kilitli</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>yazma kilitli</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>yazma ve okuma kilitli</translation>
    </message>
    <message>
        <source>long</source>
        <translation>uzun</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>uzun başlatma</translation>
    </message>
    <message>
        <source>low</source>
        <translation>düşük</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>düşük frekanslı kristal (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>hiçbir program bu bölüme yazamaz</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>hiçbir program bu bölüme yazamaz, uygulama bölümündekiler de onu okuyamaz</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>hiçbir program bu bölüme yazamaz, boot bölümündekiler de onu okuyamaz</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>uygulama bölümündeki hiçbir program bu bölümü okuyamaz</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>boot bölümündeki hiçbir program bu bölümü okuyamaz</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>reset girişi yok</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>kısıtlama yok</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>bölünmez</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>mümkün değil</translation>
    </message>
    <message>
        <source>off</source>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>çalışırken kapalı, çip silinirken %1 V</translation>
    </message>
    <message>
        <source>on</source>
        <translation>açık</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>kendi bacağında</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>açık, uyanırken hazır olması beklenir</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>açık, ama derin uyku kiplerinde kapalı</translation>
    </message>
    <message>
        <source>open</source>
        <translation>kilitsiz</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>program değiştirebilir</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>sıradan bacak</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>sıradan bacak, yalnızca giriş olarak</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>başka bacaklar</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>mümkün</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>ayrılmış</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>reset girişi</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>örneklemeli</translation>
    </message>
    <message>
        <source>short</source>
        <translation>kısa</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>kısa başlatma</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>yavaş yükselen besleme</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>küçük salınım, güç tasarrufu sağlar</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>başlatma: %1 çevrim, reset sonrası ayrıca %2 çevrim</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>başlatma: %1 çevrim</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>başlatma: %1 çevrim + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>başlatma: %1 çevrim, reset sonrası ayrıca %2 çevrim</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>başlatma: %1 çevrim, reset sonrası ayrıca %2 çevrim + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>çipin gerilimi</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>dahili osilatör bunu gerektirir</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>flash belleğin tümü boot bölümüdür</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>ana kristalin bacakları</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>alıcı-verici osilatörü</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>çok kısa başlatma</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>watchdog osilatörü %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>reset biterken bacak düşük seviyedeyse</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>flash belleğin tümü</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>dahili kondansatörlerle</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>BOOTEND %1 iken etkisizdir</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>BOOTSIZE %1 iken etkisizdir</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>dahili kondansatörsüz</translation>
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
        <translation>Burada fuse baytı yok: hiçbir bayt gönderilmedi.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Gönderilmedi, çünkü bu adda bir fuse baytı yok: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Pencereye fabrika değerleri yerleştirildi. Çip değişmedi.</translation>
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
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Fuse baytları yine de yazılsın mı?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Okunamadı (eski değerler gösterilmeye devam ediyor): %1</translation>
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
        <translation>Fabrika</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>avrdude bu mikrodenetleyicinin fuse baytları için güvenilir değil.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Yüklü fuse baytı yok. İlk sekmede mikrodenetleyiciyi seçin.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>ISP programlayıcısı bu mikrodenetleyicinin fuse baytlarına erişemez.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>çipten okunmadı</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
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
        <source>not a JSON object</source>
        <translation>JSON nesnesi değil</translation>
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
    <message>
        <source>The file is kept as %1.</source>
        <translation>Dosya şu adla saklandı: %1</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude hâlâ çip üzerinde işlem yapıyor. Şimdi sonlandırılırsa çip o anki hâliyle kalır: belki silinmiş, belki yarım yazılmış olarak.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Korvel yine de kapatılsın mı?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel %1 klasörüne yazamıyor: seçtikleriniz saklanmayacak.</translation>
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
    <message>
        <source>changed on %1</source>
        <translation>değiştirilme: %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>Dosya yok: avrdude dosyayı oluşturmadı.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>Dosya boş: ya çip boş veya okumaya karşı korumalı ya da disk dolu.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bayt</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Üzerine yazılsın mı?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>Okuma yapılırsa bu dosyanın üzerine yazılır:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 bayt veri</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 bayt veri, bellek kullanımı: %%2</translation>
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
Çip boş ya da okumaya karşı korumalı (kilit bitleri etkin).</translation>
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
        <translation>Geçersiz dosya biçimi. Başka bir dosya seçin.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Aşağıdaki günlükteki iletiye bakın.</translation>
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
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Profil dosyası okunamıyor.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>“quiet” değeri ne true ne de false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>“boardLog”, .csv ile biten bir dosya adı değil.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>Seri numarası yazılamıyor.</translation>
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
        <translation>“%1” adlı profil zaten var.
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
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>Profil adında şu karakterlerin hiçbiri bulunamaz: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Program yeniden başlatılınca profil listede %1 adıyla görünür.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 fuse baytı</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 fuse baytı</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>yüklü profil yok</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows bu adı bir aygıt için ayırmıştır. Başka bir ad seçin.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>Ad bir dosya için çok uzun. Daha kısa bir ad seçin.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Program yeniden başlatılınca profil listede görünmez.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>profil sonradan değişti</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>Profilde bu bellek için verilen komut, belleğe dosya yazmıyor. Komut çalıştırılmayacak:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>Bu profille karta yazılamıyor.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>Bu profil kullanılırken başarılı kartlar için ileti kutusu gösterilmez.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>numara %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Kart %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Kart %1: yazıldı, %2 sn</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Kart %1: başarısız: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>%1 iyi, %2 başarısız</translation>
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
Pencereye fabrika değerleri yerleştirildi. Çip değişmedi.</translation>
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
        <translation>Seçili alanlara yaz</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Konum:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Dosya &amp;adı:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dosya türü:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>A&amp;ç</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Son konumlar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Geri git</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>İleri git</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Üst klasör</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Üst klasöre git</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Yeni klasör</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Yeni klasör oluştur</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Liste olarak göster</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ayrıntılarla göster</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Kenar çubuğu</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Konumlar ve yer imleri</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Yeniden &amp;adlandır</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Gizli dosyaları göster</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Yeni klasör</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Yeni klasör</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Göster: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Dosya bulunamadı.
Dosya adını denetleyin.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Klasör bulunamadı.
Klasör adını denetleyin.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>“%1” silinsin mi?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” yazmaya karşı korumalı.
Yine de silinsin mi?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Klasör silinemedi.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 dosyası</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Kısayol</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Değiştirilme</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Bilgisayar</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Geçersiz dosya adı</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>“%1” adı kullanılamaz. Daha kısa ya da noktalama işareti içermeyen bir ad deneyin.</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Tamam</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ke&amp;s</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Buraya kaydır</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En üst</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En alt</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sayfa yukarı</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sayfa aşağı</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Yukarı kaydır</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Aşağı kaydır</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Sol kenar</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Sağ kenar</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sayfa sola</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sayfa sağa</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Sola kaydır</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Sağa kaydır</translation>
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
        <translation>&amp;Web bağlantısı adresini kopyala</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude çalışıyor</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Yazılıyor</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Okunuyor</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Doğrulanıyor</translation>
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
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>Belleği ne “eeprom” ne de “flash”.</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Biçimi “little”, “big”, “decimal” ve “hex” seçeneklerinden biri değil.</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>“address”, “bytes” ve “next” negatif olmayan tam sayılar olmalı; “bytes” ayrıca 1 ile %1 arasında olmalı.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Numara, %1 baytlık belleğin dışında kalıyor.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>-e argümanı, numara yazılmadan önce çipi siler.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>%1 numarası “bytes” değerine sığmıyor: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Dil değişikliği için programı yeniden başlatın.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>%1 klasöründe hiçbir şey bulunamadı.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude, programlayıcının dosyasında bulunmayan ek argümanlar alıyor: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Siz bir hız seçene kadar ayarlardaki kullanılır: %1</translation>
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
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>Profil başka bir programın çalıştırılmasını istiyor.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>Profildeki:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Kullanılan:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Bir program, sizin yapabildiğiniz her şeyi yapabilir. Bundan sonra profildeki program çalıştırılsın mı?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>Profilde, avrdude programının dosya okumasına ya da yazmasına yol açabilecek argümanlar var.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Bu argümanlar kullanılsın mı?</translation>
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
        <translation>%1 sürümü yayımlandı.

İndirme sayfası açılsın mı?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Güncelleme var</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Web bağlantısı açılamadı.</translation>
    </message>
</context>
</TS>
