<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Begriffe: Fuse-Bit, Fuse-Byte und Lock-Bit bleiben, wie es unter Elektronikern üblich ist; Kalibrierbyte; Takt für
     die Geschwindigkeit des Programmers; der Programmer bleibt ebenfalls. -->
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
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
        <translation>avrdude nicht gefunden</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmer nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>JSON-DATEI DER MCU NICHT GEFUNDEN</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>FEHLER IN DER JSON-DATEI</translation>
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
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Fuse-Bytes auf die Vorgabewerte gesetzt.</translation>
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
        <source>Not read: %1</source>
        <translation>Nicht gelesen: %1</translation>
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
        <translation>Vorgabe</translation>
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

- Verbindungen und Versorgung prüfen
- Niedrigeren Takt einstellen (Port &amp; Takt)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Der Inhalt ließ sich nicht lesen.
Der Baustein ist leer oder lesegeschützt (Lock-Bits gesetzt).</translation>
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
        <translation>Die Konfiguration „%1“ gibt es schon.
Soll sie überschrieben werden?</translation>
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
        <translation>Flash erfolgreich geschrieben.
Flash erfolgreich geprüft.
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
Fuse-Bytes auf die Vorgabewerte des Datenblatts gesetzt.</translation>
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
    <name>RawFile</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Die Datei hat %1 Bytes, der Speicher nur %2.</translation>
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
    <name>SettingsPresenter</name>
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
        <source>Please restart the application to apply language changes.</source>
        <translation>Die neue Sprache gilt nach einem Neustart des Programms.</translation>
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
        <translation>Port &amp;&amp; Takt ( neue MCU -&gt; 185kHz )</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
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
