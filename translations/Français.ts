<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Termes : fusibles et octets de fusibles (fuse bits), bits de verrouillage (lock bits), octet de calibration, vitesse
     (bit clock), section de boot, section d'application, brown-out, watchdog et reset tels quels; d'usine (factory);
     oui et non pour on et off, qui vont à tous les genres; point décimal comme dans les fiches techniques pour le sens
     des fusibles, virgule dans les phrases. -->
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>Votre compte n&apos;a pas le droit d&apos;utiliser le programmateur.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Écrivez cette ligne dans %1, puis rebranchez le programmateur&#xa0;:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>Votre compte n&apos;a pas le droit d&apos;utiliser le port %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>Dans un terminal&#xa0;: %1. Fermez ensuite votre session et rouvrez-la.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>Le programmateur est-il branché&#xa0;? Essayez un autre câble et une autre prise USB.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>Sous Windows, il a besoin de son pilote&#xa0;: le guide indique lequel.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Rien de ce qui est branché ne figure dans la liste.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Ce qui est branché pourrait être&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Il n&apos;y a actuellement aucun port série.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Ports présents actuellement&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>Le port %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Un autre programme utilise le port %1, par exemple un moniteur série&#xa0;: fermez-le.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>Rien n&apos;écoute à l&apos;adresse %1&#xa0;: le programme est-il lancé, et l&apos;adresse est-elle la bonne&#xa0;?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Appuyez juste avant sur le bouton de reset de la carte.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Essayez l&apos;autre entrée de la liste pour cette carte&#xa0;: la vitesse varie d&apos;un chargeur de démarrage à l&apos;autre.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>Le port %1 est-il le bon, et le programmateur est-il bien du type choisi&#xa0;?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>Le connecteur est-il dans le bon sens, et la puce est-elle alimentée&#xa0;?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>La vitesse doit être inférieure au quart de la fréquence d&apos;horloge de la puce&#xa0;: essayez une vitesse inférieure à %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Ses fusibles demandent peut-être une horloge absente&#xa0;: appliquez environ 1&#xa0;MHz à sa broche d&apos;horloge.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Ses fusibles donnent peut-être une autre fonction à la broche de reset&#xa0;: un programmateur haute tension permet de la récupérer.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Si cela se produit après «&#xa0;Écrire&#xa0;»&#xa0;: vérifiez les contacts et l&apos;alimentation, et essayez une vitesse plus basse.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>Une puce dont les bits de verrouillage sont actifs ne montre pas son contenu.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Un chargeur de démarrage ne peut pas écrire les octets de fusibles et de verrouillage. Un programmateur le peut.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>La puce est verrouillée&#xa0;: «&#xa0;Tout effacer&#xa0;» la déverrouille, mais son contenu est perdu.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 demande avrdude %2 ou plus récent&#xa0;; la version installée ne le connaît pas.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>La version installée d&apos;avrdude ne connaît pas %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>La puce a la signature %1, qui ne figure pas dans la liste.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>La puce se présente comme&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 se programme par %2, et ce programmateur utilise %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Dans la liste conviennent, entre autres&#xa0;: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude est disponible dans les paquets du système&#xa0;: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel cherche %1. Un autre programme, ou un chemin complet, peut être indiqué dans save.json, sous «&#xa0;avrdude&#xa0;».</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Redémarrez ensuite Korvel.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Débranchez le programmateur, rebranchez-le et fermez les autres programmes qui l&apos;utilisent peut-être.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Dossiers où il est cherché&#xa0;: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>La vitesse de ce programmateur est fixe&#xa0;: l&apos;horloge de la puce doit dépasser %1, et celle d&apos;une puce neuve est le plus souvent de 1&#xa0;MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Ses fusibles donnent peut-être une autre fonction à la broche UPDI&#xa0;: un programmateur avec UPDI haute tension permet de la récupérer.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>La puce est peut-être verrouillée&#xa0;: avec ce programmateur, aucune version d&apos;avrdude ne la déverrouille&#xa0;; avec SerialUPDI ou Atmel-ICE, «&#xa0;Tout effacer&#xa0;» le fait.</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Échec de l&apos;écriture de la flash.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Échec de la vérification de la flash.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Échec de la lecture de la flash.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Échec de l&apos;écriture de l&apos;EEPROM.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Échec de la vérification de l&apos;EEPROM.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Échec de la lecture de l&apos;EEPROM.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Échec de l&apos;écriture des octets de fusibles.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Échec de la vérification des octets de fusibles.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Échec de la lecture des octets de fusibles.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Échec de la lecture de l&apos;octet de calibration.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Échec de l&apos;effacement de la puce.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>La puce diffère du fichier à l&apos;adresse %1.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>L&apos;écriture avait commencé&#xa0;: la puce contient peut-être une partie du fichier.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>La puce a été effacée et rien n&apos;a été écrit&#xa0;: sa flash est vide.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>L&apos;écriture avait commencé&#xa0;: seuls certains octets de fusibles sont peut-être écrits.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>L&apos;effacement avait commencé&#xa0;: la puce est peut-être vide.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU effacé.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU détecté. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Octet de calibration lu.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Aucun fichier dans le dossier %1.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude n&apos;en a lu aucun&#xa0;: le microcontrôleur ne possède très probablement pas cet octet.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Détecter</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Octet de calibration</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude introuvable&#xa0;: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmateur introuvable.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Voulez-vous l&apos;utiliser quand même&#xa0;?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>Aucun port série trouvé pour %1&#xa0;: le port est toujours %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude a été arrêté.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 n&apos;est pas une vitesse valide&#xa0;: l&apos;option %2 est utilisée à la place.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>La lecture remplacerait ce fichier&#xa0;:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Il est plus gros que ce qui sera lu&#xa0;: déplacez-le d&apos;abord dans un autre dossier.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude n&apos;a pas été lancé&#xa0;: %1 n&apos;est pas un identifiant de microcontrôleur.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude n&apos;a pas été lancé&#xa0;: ses arguments contiennent des caractères invisibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude n&apos;a pas été lancé&#xa0;: %1 est un fichier et non un port.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>avrdude n&apos;est pas dans le dossier de Korvel&#xa0;: %1 est utilisé à la place.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Remettre à zéro</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Impossible d&apos;écrire le registre des cartes&#xa0;: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Impossible d&apos;enregistrer le numéro suivant dans le profil&#xa0;: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>Le numéro %1 sera sauté.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>La ligne de cette carte manque dans %1.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>FICHIER JSON DU MCU INTROUVABLE</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Ajouter / retirer un profil</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Nom du profil</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Description (facultative)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>«&#xa0;Ajouter&#xa0;»&#xa0;: enregistre les réglages.
«&#xa0;Retirer&#xa0;»&#xa0;: supprime le profil choisi.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>Le fichier fait %1 octets, la mémoire seulement %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>La puce serait effacée pour rien.
Voulez-vous continuer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude n&apos;interpréterait pas ceci comme le chemin d&apos;un fichier&#xa0;:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>La ligne %1 n&apos;est pas au format %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>La somme de contrôle de la ligne %1 est fausse.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>Le fichier a des données à l&apos;adresse 0x%1, la mémoire seulement %2 octets.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>Le fichier n&apos;est pas un programme ELF pour AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude n&apos;accepte pas ce fichier avec l&apos;extension .%1&#xa0;: son nom doit se terminer par %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>Le fichier ne contient pas de données pour cette mémoire.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>La fin du fichier manque.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Impossible de lire le fichier.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>Le fichier est trop gros pour être un firmware.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Réglage d&apos;usine</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>Ce réglage est réservé&#xa0;: la puce risque de ne plus répondre.
Pour la récupérer&#xa0;: un programmateur haute tension.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>La broche de reset devient une broche ordinaire&#xa0;: un programmateur ISP ou TPI ne pourra plus accéder à la puce.
Pour la récupérer&#xa0;: un programmateur haute tension.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>La broche de reset passe au débogueur&#xa0;: un programmateur ISP ne pourra plus accéder à la puce.
Pour la récupérer&#xa0;: un débogueur avec debugWIRE ou un programmateur haute tension.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Un programmateur ISP ne pourra plus accéder à la puce.
Pour la récupérer&#xa0;: JTAG, si la puce en dispose, ou un programmateur haute tension.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Un programmateur JTAG ne pourra plus accéder à la puce.
Pour la récupérer&#xa0;: ISP (PDI avec un ATxmega) ou un programmateur haute tension.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>La broche UPDI reçoit une autre fonction&#xa0;: un programmateur UPDI ordinaire ne pourra plus accéder à la puce.
Pour la récupérer&#xa0;: un programmateur avec UPDI haute tension.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Sans son quartz, la puce ne répondra pas&#xa0;; avec lui, elle ne répondra qu&apos;à une vitesse inférieure à 8&#xa0;kHz (1&#xa0;kHz avec CKDIV8).
Pour la récupérer&#xa0;: branchez un quartz de 32,768&#xa0;kHz ou appliquez un signal d&apos;horloge à sa broche d&apos;horloge, puis choisissez une vitesse plus basse&#xa0;; ou utilisez un programmateur haute tension.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Une puce aussi lente ne répondra qu&apos;à une vitesse inférieure au quart de la fréquence de son horloge.
Pour la récupérer&#xa0;: choisissez une vitesse plus basse.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Sans cette horloge sur ses broches, la puce ne répondra pas.
Pour la récupérer&#xa0;: appliquez un signal d&apos;horloge à sa broche d&apos;horloge (un quartz ne convient que si le réglage en mentionne un), ou utilisez un programmateur haute tension.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>La broche UPDI reçoit une autre fonction&#xa0;: un programmateur UPDI ordinaire ne pourra plus accéder à la puce.
Pour la récupérer&#xa0;: un programmateur avec UPDI haute tension pour cette famille, qui applique à la broche de reset une tension légèrement supérieure à celle de l&apos;alimentation. 12&#xa0;V détruisent cette broche.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Un programmateur ne pourra plus ni lire la puce ni y écrire.
Pour la récupérer&#xa0;: «&#xa0;Tout effacer&#xa0;».</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Un programmateur ne pourra plus écrire dans la puce.
Pour la récupérer&#xa0;: «&#xa0;Tout effacer&#xa0;».</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 octets (%2 mots)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 octets (%2 mots), à partir de l&apos;adresse %3 (en octets)</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 cycles</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 cycles + %2&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 cycles, après un reset encore %2 cycles + %3&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1&#xa0;ms, si la broche de reset est une broche ordinaire ou l&apos;entrée de reset</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Bits de verrouillage (boot) de la section d&apos;application</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Bits de verrouillage (boot) de la section de table d&apos;application</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Bits de verrouillage (boot) de la section de boot</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>BOOTROW lors de l&apos;effacement de la puce</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Détecteur de brown-out</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Détecteur de brown-out quand la puce est en mode power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Détecteur de brown-out quand la puce est en veille</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Détecteur de brown-out quand la puce est active</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Seuil de brown-out</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Calibration de l&apos;oscillateur interne</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Contrôle (CRC) de la section de boot au démarrage&#xa0;: s&apos;il échoue, le programme ne démarre pas</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Détection des pannes d&apos;horloge</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Sortie de l&apos;horloge</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Source d&apos;horloge</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Source d&apos;horloge et temps de démarrage</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Source d&apos;horloge au démarrage</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Partie fermée de la fenêtre du watchdog</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Compatibilité avec AT90S4414 et AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Compatibilité avec AT90S4434 et AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Compatibilité avec ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Compatibilité avec ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Puits de courant du régulateur de tension USB</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Débogage par la broche de reset (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Récupération après sous-tension profonde (DUVR), après un reset</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Division de l&apos;horloge au démarrage</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM lors de l&apos;effacement de la puce</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Fin de la section de code d&apos;application, en blocs</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Fin de la section de code d&apos;application, où commence la section de données</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Fin de la section de boot</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Fin de la section de boot, en blocs</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Contrôle (CRC) de la flash au démarrage&#xa0;: s&apos;il échoue, le programme ne démarre pas</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Pour les tests en usine</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Fréquence de l&apos;oscillateur interne</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Fréquence de l&apos;oscillateur à très basse consommation (ULP)</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Condensateurs internes aux broches du quartz</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>Interface JTAG</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>Identification utilisateur JTAG</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Niveau qu&apos;un reset impose aux sorties A des PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Niveau qu&apos;un reset impose aux sorties B des PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Niveau qu&apos;un reset impose aux sorties PSC</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Bits de verrouillage</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Méthode du contrôle de la flash au démarrage</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Surveillance du processeur</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Surveillance du watchdog</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Débogage sur la puce (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Option de l&apos;oscillateur</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Sortie A du timer TCD0 après un reset</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Sortie A du timer TCD0 sur sa broche après un reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Sortie B du timer TCD0 après un reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Sortie B du timer TCD0 sur sa broche après un reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Sortie C du timer TCD0 après un reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Sortie C du timer TCD0 sur sa broche après un reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Sortie D du timer TCD0 après un reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Sortie D du timer TCD0 sur sa broche après un reset</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL pilotée par l&apos;oscillateur à quartz</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL pilotée par l&apos;oscillateur à quartz, divisée par %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL pilotée par l&apos;horloge externe</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL pilotée par l&apos;horloge externe, divisée par %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL pilotée par l&apos;oscillateur interne %1&#xa0;MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL pilotée par l&apos;oscillateur interne %1&#xa0;MHz, divisée par %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Sorties PSC pendant un reset</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Sorties PSC0 pendant un reset</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Sorties PSC1 pendant un reset</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Sorties %1 et %2 du PSC2 pendant un reset</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Sorties PSC2 pendant un reset</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Broches du quartz %1&#xa0;kHz du timer</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Broche de reset et UPDI</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Broche de reset</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Échantillonnage du détecteur de brown-out</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Programmation série (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Taille de la section de boot</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Comportement particulier des entrées PSC pendant un reset</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Démarrage de la section de boot par la broche HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Démarrage du programme après un reset</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Temps de démarrage</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Alimentation des broches multitension (MVIO)</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Délai après la mise sous tension pendant lequel l&apos;écriture est bloquée</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>Broche UPDI</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, avec l&apos;entrée de reset sur une autre broche</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Réglages du watchdog</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Délai du watchdog</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Écriture de la flash par le programme (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>tension séparée</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>après %1 octets</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>toujours en marche</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>comme à la livraison</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>comme broches ordinaires</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>au choix du programme</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>à l&apos;adresse %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>au début de la section de boot</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>à la fin de la flash</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>section de boot et section de code d&apos;application</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>section de boot</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>avec détecteur de brown-out</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>condensateurs avec un quartz %1&#xa0;kHz ou un RC externe</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>résonateur céramique</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>résonateur céramique %1 à %2&#xa0;MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>résonateur céramique %1 à %2&#xa0;MHz (CKOPT %3&#xa0;: quartz aussi, dès %4&#xa0;MHz)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>résonateur céramique dès %1&#xa0;MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>résonateur céramique ou horloge externe</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>quartz ou résonateur céramique</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>quartz ou résonateur céramique %1 à %2&#xa0;MHz (CKOPT %3&#xa0;: dès %4&#xa0;MHz)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>quartz ou résonateur céramique, haute fréquence</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>quartz ou résonateur céramique, basse fréquence</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>quartz ou résonateur céramique, moyenne fréquence</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>oscillateur à quartz</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>oscillateur à quartz %1 à %2&#xa0;MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>oscillateur à quartz dès %1&#xa0;MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>division par %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>contenu effacé aussi</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>oscillateur RC externe</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>oscillateur RC externe %1 à %2&#xa0;MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>oscillateur RC externe jusqu&apos;à %1&#xa0;MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>horloge externe</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>alimentation à montée rapide</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>à un niveau imposé</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>pleine amplitude (full swing), nécessaire aux quartz de plus de %1&#xa0;MHz</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>oscillateur full swing %1 à %2&#xa0;MHz (alim. au-dessus de %3&#xa0;V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>état haut</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>oscillateur interne %1&#xa0;kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>condensateurs internes</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>oscillateur interne haute fréquence</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>oscillateur interne</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>oscillateur interne %1&#xa0;MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>oscillateur interne %1&#xa0;MHz, divisé par %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>oscillateur interne %1&#xa0;kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>oscillateur interne à très basse consommation (ULP) %1&#xa0;kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>contenu conservé</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>contenu conservé, sauf si la puce est verrouillée</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>contenu conservé, même si la puce est verrouillée</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>modification bloquée</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>écriture bloquée</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>écriture et lecture bloquées</translation>
    </message>
    <message>
        <source>long</source>
        <translation>démarrage long</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>démarrage long</translation>
    </message>
    <message>
        <source>low</source>
        <translation>état bas</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>quartz basse fréquence (%1&#xa0;kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>écriture bloquée pour tout programme</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>écriture bloquée pour tout programme, lecture bloquée pour ceux de la section d&apos;application</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>écriture bloquée pour tout programme, lecture bloquée pour ceux de la section de boot</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>lecture bloquée pour les programmes de la section d&apos;application</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>lecture bloquée pour les programmes de la section de boot</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>pas d&apos;entrée de reset</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>aucune restriction</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>sans division</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>impossible</translation>
    </message>
    <message>
        <source>off</source>
        <translation>non</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>aucun seuil en fonctionnement, %1&#xa0;V pendant l&apos;effacement de la puce</translation>
    </message>
    <message>
        <source>on</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>sur sa broche</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>oui, et le réveil attend que le détecteur soit prêt</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>oui, sauf dans les modes de veille profonde</translation>
    </message>
    <message>
        <source>open</source>
        <translation>sans verrouillage</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>modification possible par le programme</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>broche ordinaire</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>broche ordinaire, en entrée seulement</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>d&apos;autres broches</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>possible</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>valeur réservée</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>entrée de reset</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>par échantillonnage</translation>
    </message>
    <message>
        <source>short</source>
        <translation>démarrage court</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>démarrage court</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>alimentation à montée lente</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>petite amplitude, qui économise l&apos;énergie</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>démarrage %1 cycle, après un reset encore %2 cycles</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>démarrage %1 cycles</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>démarrage %1 cycles + %2&#xa0;ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>démarrage %1 cycles, après un reset encore %2 cycles</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>démarrage %1 cycles, après un reset encore %2 cycles + %3&#xa0;ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>celle de la puce</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>nécessaire à l&apos;oscillateur interne</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>toute la flash est section de boot</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>celles du quartz principal</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>oscillateur du transceiver</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>démarrage très court</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>oscillateur du watchdog %1&#xa0;kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>si la broche est à l&apos;état bas à la fin d&apos;un reset</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>toute la flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>avec condensateurs internes</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>sans effet tant que BOOTEND vaut %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>sans effet tant que BOOTSIZE vaut %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>sans condensateurs internes</translation>
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
        <translation>Il n&apos;y a ici aucun octet de fusibles&#xa0;: aucun n&apos;a été transmis.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Non transmis, car aucun octet de fusibles ne s&apos;appelle ainsi&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Valeurs d&apos;usine mises dans la fenêtre. La puce n&apos;a pas changé.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Octets de fusibles écrits.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Octets de fusibles vérifiés.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Octets de fusibles lus.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Voulez-vous écrire les octets de fusibles quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Non lus (les anciennes valeurs restent affichées)&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>D&apos;usine</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>avrdude n&apos;est pas fiable pour les octets de fusibles de ce microcontrôleur.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Aucun octet de fusibles n&apos;est chargé. Choisissez le microcontrôleur dans le premier onglet.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Un programmateur ISP ne peut pas accéder aux octets de fusibles de ce microcontrôleur.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>non lus sur la puce</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>FICHIER JSON INTROUVABLE</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Impossible d&apos;ouvrir le fichier</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ERREUR DANS LE FICHIER JSON</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>ce n&apos;est pas un objet JSON</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Impossible d&apos;enregistrer les réglages dans le fichier&#xa0;: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Impossible de charger les réglages du fichier&#xa0;: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>Le fichier est conservé sous le nom %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude travaille encore sur la puce. S&apos;il est interrompu maintenant, la puce reste en l&apos;état&#xa0;: peut-être effacée, peut-être écrite à moitié.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Voulez-vous fermer Korvel quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel ne peut pas écrire dans le dossier %1&#xa0;: vos choix ne seront pas conservés.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM écrite.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM vérifiée.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM lue.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH écrite.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH vérifiée.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH lue.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>modifié le %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>Le fichier est absent&#xa0;: avrdude ne l&apos;a pas écrit.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>Le fichier est vide&#xa0;: la puce est vierge ou protégée en lecture, ou le disque est plein.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>La lecture remplacerait ce fichier&#xa0;:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 octets de données</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 octets de données, %2&#xa0;% de la mémoire</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Programmateur introuvable.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>Le programmateur n&apos;a pas détecté de microcontrôleur

- Vérifiez le câblage et l&apos;alimentation
- Choisissez une vitesse plus basse (Port &amp; vitesse)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Impossible de lire le contenu
La puce est vierge ou protégée en lecture (bits de verrouillage actifs).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>Le microcontrôleur choisi n&apos;est pas le bon.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Erreur de vérification.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Format de fichier non valide. Choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Consultez le message dans le journal ci-dessous.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp introuvable.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Fichier ou dossier introuvable.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Impossible de lire le fichier du profil.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>«&#xa0;quiet&#xa0;» n&apos;est ni true ni false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>«&#xa0;boardLog&#xa0;» n&apos;est pas un nom de fichier se terminant par .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>Impossible d&apos;écrire le numéro de série.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Impossible de charger les réglages du fichier&#xa0;: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>Le profil «&#xa0;%1&#xa0;» existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Supprimer ce profil&#xa0;?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Choisir un profil...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>FLASH écrite.
FLASH vérifiée.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM écrite.
EEPROM vérifiée.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fusibles écrits.
Fusibles vérifiés.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Impossible d&apos;enregistrer les réglages dans le fichier&#xa0;: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>Le nom d&apos;un profil ne peut contenir aucun de ces caractères&#xa0;: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Après un redémarrage du programme, il s&apos;appellera %1 dans la liste.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 octet de fusibles</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 octets de fusibles</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>aucun profil chargé</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows réserve ce nom à un périphérique. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>Le nom est trop long pour un fichier. Choisissez-en un plus court.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Après un redémarrage du programme, il ne figurera pas dans la liste.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>profil modifié depuis son chargement</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>La commande que le profil contient pour cette mémoire n&apos;y écrit aucun fichier. Elle n&apos;est pas exécutée&#xa0;:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>Ce profil ne permet de programmer aucune carte.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>Avec ce profil, aucune fenêtre ne s&apos;affiche quand une carte est réussie.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>numéro %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Carte %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Carte %1&#xa0;: programmée, %2&#xa0;s</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Carte %1&#xa0;: échec&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>Bonnes&#xa0;: %1, échecs&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>MCU choisi&#xa0;: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Valeurs d&apos;usine des fusibles mises dans la fenêtre. La puce n&apos;a pas changé.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Utiliser un bouton externe</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Écrire les zones choisies</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Chercher dans&#xa0;:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom du fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Type de fichier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Emplacements récents</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Revenir en arrière</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Aller en avant</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Aller au dossier parent</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Créer un dossier</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Afficher en liste</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Emplacements et signets</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Afficher les fichiers &amp;cachés</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Afficher&#xa0;: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fichier introuvable.
Vérifiez le nom du fichier.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Dossier introuvable.
Vérifiez le nom du dossier.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Supprimer vraiment «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«&#xa0;%1&#xa0;» est protégé en écriture.
Le supprimer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Impossible de supprimer le dossier.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modifié le</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nom de fichier incorrect</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» ne peut pas être utilisé. Essayez un nom plus court ou sans ponctuation.</translation>
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
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Défiler jusqu&apos;ici</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Défiler vers le bas</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bord droit</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page vers la gauche</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page vers la droite</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Défiler vers la gauche</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Défiler vers la droite</translation>
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
        <translation>Maj</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copier l&apos;adresse du &amp;lien</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude travaille</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Vérification</translation>
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
        <translation>FUSIBLES</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>Zones de mémoire à écrire&#xa0;:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>Sa mémoire n&apos;est ni «&#xa0;eeprom&#xa0;» ni «&#xa0;flash&#xa0;».</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>Son format n&apos;est ni «&#xa0;little&#xa0;», ni «&#xa0;big&#xa0;», ni «&#xa0;decimal&#xa0;», ni «&#xa0;hex&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>«&#xa0;address&#xa0;», «&#xa0;bytes&#xa0;» et «&#xa0;next&#xa0;» doivent être des entiers positifs ou nuls, et «&#xa0;bytes&#xa0;» compris entre 1 et %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Il se trouve hors de la mémoire, qui fait %1 octets.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>L&apos;argument -e effacerait la puce avant l&apos;écriture du numéro.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>Le numéro %1 ne tient pas dans «&#xa0;bytes&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Redémarrez le programme pour changer de langue.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Aucun fichier dans le dossier %1.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude reçoit des arguments supplémentaires qui ne figurent pas dans le fichier du programmateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Tant que vous ne choisissez pas de vitesse, celle des réglages est utilisée&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Programmateur</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Port &amp;&amp; vitesse (MCU neuf&#xa0;: 185kHz)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>Le profil demande l&apos;exécution d&apos;un autre programme.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>Dans le profil&#xa0;:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Utilisé actuellement&#xa0;:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Un programme peut faire sur l&apos;ordinateur tout ce que vous pouvez y faire vous-même. Voulez-vous désormais exécuter celui du profil&#xa0;?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>Le profil contient des arguments avec lesquels avrdude pourrait lire ou écrire des fichiers.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Voulez-vous utiliser ces arguments&#xa0;?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>L&apos;adresse de téléchargement manque dans la réponse du serveur.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>La version %1 est disponible.

Ouvrir la page de téléchargement&#xa0;?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Impossible d&apos;ouvrir le lien.</translation>
    </message>
</context>
</TS>
