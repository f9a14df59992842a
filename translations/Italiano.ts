<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Termini: fuse, fuse bit e lock bit restano in inglese, come d'uso; byte di calibrazione; clock per la velocità del
     programmatore. -->
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
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
        <translation>avrdude non trovato</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmatore non trovato.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>FILE JSON DELL&apos;MCU NON TROVATO</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ERRORE NEL FILE JSON</translation>
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
        <translation>«Aggiungi» - salva le impostazioni attuali.
«Rimuovi» - rimuove il profilo scelto.</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Byte dei fuse riportati ai valori predefiniti.</translation>
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
        <source>Not read: %1</source>
        <translation>Non letti: %1</translation>
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
        <translation>Predefiniti</translation>
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

- Controllare i collegamenti e l&apos;alimentazione
- Scegliere un clock più lento (Porta &amp; clock)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Impossibile leggere il contenuto
Il dispositivo è vuoto o protetto contro la lettura (lock bit attivi).</translation>
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
        <translation>Vedere il messaggio nella finestra di output.</translation>
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
        <translation>La configurazione «%1» esiste già.
Sovrascriverla?</translation>
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
        <translation>Flash scritta correttamente.
Flash verificata correttamente.
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
Byte dei fuse impostati sui valori predefiniti del datasheet.</translation>
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
    <name>RawFile</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Il file ha %1 byte, la memoria solo %2.</translation>
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
    <name>SettingsPresenter</name>
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
        <source>Please restart the application to apply language changes.</source>
        <translation>Riavviare il programma per cambiare la lingua.</translation>
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
        <translation>Porta &amp;&amp; clock ( nuovo -&gt; 185kHz )</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
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
        <translation>Impossibile aprire il collegamento.</translation>
    </message>
</context>
</TS>
