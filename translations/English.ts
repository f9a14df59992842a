<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Every text stands for itself. Terms: fuse byte, fuse bit, lock bit and calibration byte, as in the datasheets. -->
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU erased successfully.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU auto-detected successfully. Do you want to continue?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Calibration byte read successfully.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Auto-Detect</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Erase all</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Calibration Byte</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude not found</translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmer not found.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>MCU JSON FILE NOT FOUND</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Cannot open file</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON FILE ERROR</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Add / Remove profile</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Profile name</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Description (optional)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Fuse bytes set to default values successfully.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Fuse bytes written successfully.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Fuse bytes verified successfully.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Fuse bytes read successfully.</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>Not read: %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verify</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Failed to save settings to file: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Failed to load settings from file: </translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM written successfully.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM verified successfully.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM read successfully.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH written successfully.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH verified successfully.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH read successfully.</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verify</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmer not found.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Wrong microcontroller selected.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Verification error.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Invalid file format. Please choose another file.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>See the message in the dialog box.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp not found.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>No such file or directory.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Failed to load settings from file: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Configuration named «%1» already exists.
Do you want to overwrite it?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Delete this profile?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Select profile...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>Flash write successfully.
Flash verify successfully.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>Eeprom write successfully.
Eeprom verify successfully.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fuse bits write successfully.
Fuse bits verify successfully.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Failed to save settings to file: </translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>MCU selected: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Fuse bytes set to datasheet default values.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Use external button</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Write Selected Areas</translation>
    </message>
</context>
<context>
    <name>RawFile</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>The file has %1 bytes, the memory only %2.</translation>
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
        <translation>Select memory areas to write:</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>JSON FILE NOT FOUND</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Cannot open file</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>JSON FILE ERROR</translation>
    </message>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Please restart the application to apply language changes.</translation>
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
        <translation>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>Download URL is missing in server response.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>New version %1 available.

Open download page?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update available</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Could not open the link.</translation>
    </message>
</context>
</TS>
