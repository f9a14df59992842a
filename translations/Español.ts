<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Términos: fusibles y bytes de fusibles (fuse bits), bits de bloqueo (lock bits), byte de calibración, velocidad (bit
     clock); «grabar» para escribir en el chip; punto decimal como en las hojas de datos en los significados de los
     fusibles, coma en las frases. -->
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>Su cuenta no tiene permiso para usar el programador.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Escriba esta línea en %1 y vuelva a enchufar el programador:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>Su cuenta no tiene permiso para usar el puerto %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>En un terminal: %1. Después cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>¿Está enchufado el programador? Pruebe otro cable y otro puerto USB.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>En Windows necesita su controlador: la guía indica cuál.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>No hay nada enchufado que figure en la lista.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>Lo que está enchufado puede ser: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Ahora no hay ningún puerto serie.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Puertos que hay ahora: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>No existe el puerto %1.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Otro programa usa el puerto %1, por ejemplo un monitor serie: ciérrelo.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>En %1 no hay nada a la escucha: ¿está iniciado el programa y es correcta la dirección?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Pulse el botón de reset de la placa justo antes.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Pruebe la otra entrada de la placa en la lista: los gestores de arranque tienen velocidades distintas.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>¿Es %1 el puerto correcto, y es el programador del tipo elegido?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>¿Está el conector en la posición correcta y tiene alimentación el chip?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>La velocidad debe ser menor que un cuarto de la frecuencia de reloj del chip: pruebe una menor que %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Puede que los fusibles del chip requieran un reloj que no está presente: aplique alrededor de 1 MHz a su pin de reloj.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Puede que los fusibles del chip den otra función al pin de reset: un programador de alta tensión lo recupera.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Si ocurre después de «Grabar»: compruebe los contactos y la alimentación, y pruebe una velocidad menor.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>Un chip con los bits de bloqueo activos no muestra su contenido.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Un gestor de arranque no puede grabar los bytes de fusibles y de bloqueo. Un programador sí.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>El chip está bloqueado: «Borrar todo» lo desbloquea, pero su contenido se pierde.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 necesita avrdude %2 o posterior; la versión instalada no lo conoce.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>La versión instalada de avrdude no conoce %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>El chip tiene la firma %1, que no figura en la lista.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>El chip dice que es: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 se programa por %2, y este programador usa %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>De la lista sirven, entre otros: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>avrdude está disponible en los paquetes del sistema: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>Korvel busca %1. En save.json, en «avrdude», se puede indicar otro programa o una ruta completa.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Después reinicie Korvel.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Desenchufe el programador, vuelva a enchufarlo y cierre otros programas que puedan usarlo.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Carpetas en las que se busca: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>La velocidad de este programador es fija: el reloj del chip debe superar %1, y el de un chip nuevo suele ser de 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Puede que los fusibles del chip den otra función al pin UPDI: un programador con UPDI de alta tensión lo recupera.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>Puede que el chip esté bloqueado: con este programador ninguna versión de avrdude lo desbloquea; con SerialUPDI o Atmel-ICE lo desbloquea «Borrar todo».</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>Error al grabar la flash.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>Error al verificar la flash.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>Error al leer la flash.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>Error al grabar la EEPROM.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>Error al verificar la EEPROM.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>Error al leer la EEPROM.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>Error al grabar los bytes de fusibles.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>Error al verificar los bytes de fusibles.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>Error al leer los bytes de fusibles.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>Error al leer el byte de calibración.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>Error al borrar el chip.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>El chip difiere del archivo en la dirección %1.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>La grabación había empezado: puede que el chip contenga una parte del archivo.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>El chip se borró y no se grabó nada: su flash está vacía.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>La grabación había empezado: puede que solo se hayan grabado algunos de los bytes de fusibles.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>El borrado había empezado: puede que el chip esté vacío.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU borrado correctamente.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU detectado correctamente. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Byte de calibración leído correctamente.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>No se encontró nada en la carpeta %1.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>avrdude no ha leído ninguno: lo más probable es que el microcontrolador no tenga ese byte.</translation>
    </message>
</context>
<context>
    <name>AttributesView</name>
    <message>
        <source>Auto-Detect</source>
        <translation>Detectar</translation>
    </message>
    <message>
        <source>Erase all</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Byte de calibración</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>No se encuentra avrdude: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Programador no encontrado.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>¿Desea usarlo de todos modos?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>No se encontró ningún puerto serie para %1: el puerto sigue siendo %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>avrdude ha sido detenido.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 no es una velocidad válida: en su lugar se usa la opción %2.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>La lectura reemplazaría este archivo:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Es más grande que lo que se va a leer: muévalo antes a otra carpeta.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>avrdude no se ha iniciado: %1 no es el identificador de un microcontrolador.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>avrdude no se ha iniciado: sus argumentos contienen caracteres invisibles: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>avrdude no se ha iniciado: %1 es un archivo y no un puerto.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>avrdude no está en la carpeta de Korvel: en su lugar se usa %1.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Poner a cero</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>No se puede escribir el registro de las placas: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>No se puede guardar el número siguiente en el perfil: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>Se omitirá el número %1.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>Falta la línea de esta placa en %1.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>ARCHIVO JSON DEL MCU NO ENCONTRADO</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Añadir / quitar perfil</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Nombre del perfil</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Descripción (opcional)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>«Añadir»: guarda los ajustes como perfil.
«Quitar»: borra el perfil elegido.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>El archivo tiene %1 bytes; la memoria, solo %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>El chip se borraría para nada.
¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>avrdude no interpretaría esto como la ruta de un archivo:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>La línea %1 no está en formato %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>La suma de comprobación de la línea %1 es incorrecta.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>El archivo tiene datos en la dirección 0x%1; la memoria, solo %2 bytes.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>El archivo no es un programa ELF para AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>avrdude no acepta este archivo con la extensión .%1: su nombre debe terminar en %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>El archivo no contiene datos para esta memoria.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Falta el final del archivo.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>El archivo es demasiado grande para ser un firmware.</translation>
    </message>
</context>
<context>
    <name>FuseMeanings</name>
    <message>
        <source>Factory setting</source>
        <translation>Ajuste de fábrica</translation>
    </message>
    <message>
        <source>This setting is reserved: the chip may no longer answer.
The way back: a high-voltage programmer.</source>
        <translation>Este ajuste está reservado: puede que el chip deje de responder.
Para recuperarlo: un programador de alta tensión.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>El pin de reset pasará a ser un pin normal: un programador ISP o TPI ya no podrá acceder al chip.
Para recuperarlo: un programador de alta tensión.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>El pin de reset pasará a ser del depurador: un programador ISP ya no podrá acceder al chip.
Para recuperarlo: un depurador con debugWIRE o un programador de alta tensión.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Un programador ISP ya no podrá acceder al chip.
Para recuperarlo: JTAG, si el chip lo tiene, o un programador de alta tensión.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Un programador JTAG ya no podrá acceder al chip.
Para recuperarlo: ISP (PDI en un ATxmega) o un programador de alta tensión.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>El pin UPDI pasará a tener otra función: un programador UPDI normal ya no podrá acceder al chip.
Para recuperarlo: un programador con UPDI de alta tensión.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Sin su cristal el chip no responderá, y con él solo a una velocidad menor que 8 kHz (1 kHz con CKDIV8).
Para recuperarlo: conecte un cristal de 32,768 kHz o aplique una señal de reloj a su pin de reloj, y luego elija una velocidad menor; o use un programador de alta tensión.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Un chip tan lento solo responderá a una velocidad menor que un cuarto de la frecuencia de su reloj.
Para recuperarlo: elija una velocidad menor.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Sin este reloj en sus pines el chip no responderá.
Para recuperarlo: aplique una señal de reloj a su pin de reloj (un cristal solo sirve si el ajuste menciona uno), o use un programador de alta tensión.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>El pin UPDI pasará a tener otra función: un programador UPDI normal ya no podrá acceder al chip.
Para recuperarlo: un programador con UPDI de alta tensión para esta familia, que aplica al pin de reset una tensión algo mayor que la de alimentación. 12 V destruyen ese pin.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Un programador ya no podrá leer el chip ni grabarlo.
Para recuperarlo: «Borrar todo».</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Un programador ya no podrá grabar el chip.
Para recuperarlo: «Borrar todo».</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 bytes (%2 palabras)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 bytes (%2 palabras), desde la dirección de byte %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 ciclos de reloj</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 ciclos de reloj + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 ciclos de reloj, y tras un reset otros %2 ciclos + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, si el pin de reset es un pin normal o la entrada de reset</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Bits de bloqueo (BLB) de la sección de aplicación</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Bits de bloqueo (BLB) de la sección de tabla de la aplicación</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Bits de bloqueo (BLB) de la sección boot</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>Memoria BOOTROW al borrar el chip</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Detector de brown-out</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Detector de brown-out con el chip en el modo power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Detector de brown-out con el chip en reposo</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Detector de brown-out con el chip activo</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Nivel de brown-out</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Calibración del oscilador interno</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Comprobación (CRC) de la sección boot al arrancar: si falla, el programa no arranca</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Detección de fallo del reloj</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Salida de reloj</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Fuente de reloj</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Fuente de reloj y tiempo de arranque</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Fuente de reloj al arrancar</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Parte cerrada de la ventana del watchdog</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Compatibilidad con AT90S4414 y AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Compatibilidad con AT90S4434 y AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Compatibilidad con ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Compatibilidad con ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Absorción de corriente (sink) del regulador de tensión USB</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Depuración por el pin de reset (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Recuperación de subtensión profunda (DUVR) tras un reset</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>División del reloj al arrancar</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM al borrar el chip</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Final de la sección de código de aplicación, en bloques</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Final de la sección de código de aplicación, donde empieza la sección de datos</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Final de la sección boot</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Final de la sección boot, en bloques</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Comprobación (CRC) de la flash al arrancar: si falla, el programa no arranca</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Para pruebas en fábrica</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Frecuencia del oscilador interno</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Frecuencia del oscilador de ultrabajo consumo</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Condensadores internos en los pines del cristal</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>Interfaz JTAG</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>Identificación de usuario JTAG</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Nivel que un reset fuerza en las salidas A del PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Nivel que un reset fuerza en las salidas B del PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Nivel que un reset fuerza en las salidas del PSC</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Bits de bloqueo</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Método de comprobación de la flash al arrancar</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Supervisión del procesador</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Supervisión del watchdog</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Depuración en el chip (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Opción del oscilador</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Salida A del temporizador TCD0 tras un reset</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Salida A del temporizador TCD0 en su pin tras un reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Salida B del temporizador TCD0 tras un reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Salida B del temporizador TCD0 en su pin tras un reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Salida C del temporizador TCD0 tras un reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Salida C del temporizador TCD0 en su pin tras un reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Salida D del temporizador TCD0 tras un reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Salida D del temporizador TCD0 en su pin tras un reset</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL a partir del oscilador de cristal</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL a partir del oscilador de cristal, dividido entre %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL a partir del reloj externo</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL a partir del reloj externo, dividido entre %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL a partir del oscilador interno de %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL a partir del oscilador interno de %1 MHz, dividido entre %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Salidas del PSC durante un reset</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Salidas del PSC0 durante un reset</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Salidas del PSC1 durante un reset</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Salidas %1 y %2 del PSC2 durante un reset</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Salidas del PSC2 durante un reset</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Pines del cristal de %1 kHz del temporizador</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Pin de reset y UPDI</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Pin de reset</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Muestreo del detector de brown-out</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Programación en serie (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Tamaño de la sección boot</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Comportamiento especial de las entradas del PSC durante un reset</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Inicio de la sección boot con el pin HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Inicio del programa tras un reset</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Tiempo de arranque</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Alimentación de los pines multitensión (MVIO)</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Espera tras el encendido que impide grabar</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>Pin UPDI</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, y la entrada de reset en otro pin</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Ajustes del watchdog</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Tiempo límite del watchdog</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Grabación de la flash por el programa (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>una tensión propia</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>tras %1 bytes</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>sí, siempre</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>de fábrica</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>como pines normales</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>según lo configure el programa</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>en la dirección %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>en la sección boot</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>al final de la flash</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>secciones boot y de código de aplicación</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>sección boot</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>con detector de brown-out</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>condensadores internos con cristales de %1 kHz y con RC externo</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>resonador cerámico</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>resonador cerámico de %1 a %2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>resonador cerámico de %1 a %2 MHz (con CKOPT %3: también cristal, %4 MHz o más)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>resonador cerámico desde %1 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>resonador cerámico o reloj externo</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>cristal o resonador cerámico</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>cristal o resonador cerámico de %1 a %2 MHz (con CKOPT %3: %4 MHz o más)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>cristal o resonador cerámico, alta frecuencia</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>cristal o resonador cerámico, baja frecuencia</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>cristal o resonador cerámico, frecuencia media</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>oscilador de cristal</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>oscilador de cristal de %1 a %2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>oscilador de cristal desde %1 MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>entre %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>se borra también</translation>
    </message>
    <message>
        <source>external RC oscillator</source>
        <translation>oscilador RC externo</translation>
    </message>
    <message>
        <source>external RC oscillator %1 to %2 MHz</source>
        <translation>oscilador RC externo de %1 a %2 MHz</translation>
    </message>
    <message>
        <source>external RC oscillator up to %1 MHz</source>
        <translation>oscilador RC externo hasta %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>reloj externo</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>alimentación de subida rápida</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>con nivel forzado</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>amplitud completa, necesaria para cristales de más de %1 MHz</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>oscilador de amplitud completa de %1 a %2 MHz (alimentación superior a %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>nivel alto</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>oscilador interno de %1 kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>condensadores internos</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>oscilador interno de alta frecuencia</translation>
    </message>
    <message>
        <source>internal oscillator</source>
        <translation>oscilador interno</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz</source>
        <translation>oscilador interno de %1 MHz</translation>
    </message>
    <message>
        <source>internal oscillator %1 MHz divided by %2</source>
        <translation>oscilador interno de %1 MHz dividido entre %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>oscilador interno de %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>oscilador interno de ultrabajo consumo de %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>se conserva</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>se conserva, pero no si el chip está bloqueado</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>se conserva, aunque el chip esté bloqueado</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>cambios bloqueados</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>grabación bloqueada</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>grabación y lectura bloqueadas</translation>
    </message>
    <message>
        <source>long</source>
        <translation>tiempo largo</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>arranque largo</translation>
    </message>
    <message>
        <source>low</source>
        <translation>nivel bajo</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>cristal de baja frecuencia (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>ningún programa puede grabar esta sección</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>ningún programa puede grabar esta sección, y ninguno de la sección de aplicación puede leerla</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>ningún programa puede grabar esta sección, y ninguno de la sección boot puede leerla</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>ningún programa de la sección de aplicación puede leer esta sección</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>ningún programa de la sección boot puede leer esta sección</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>sin entrada de reset</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>sin restricciones</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>sin división</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>imposible</translation>
    </message>
    <message>
        <source>off</source>
        <translation>no</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>desactivado en funcionamiento, %1 V mientras se borra el chip</translation>
    </message>
    <message>
        <source>on</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>en su pin</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>sí, y al despertar se espera a que el detector esté listo</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>sí, salvo en los modos de reposo profundo</translation>
    </message>
    <message>
        <source>open</source>
        <translation>sin bloqueo</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>el programa puede hacer cambios</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>pin normal</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>pin normal, solo como entrada</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>otros</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>posible</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>valor reservado</translation>
    </message>
    <message>
        <source>reset input</source>
        <translation>entrada de reset</translation>
    </message>
    <message>
        <source>sampled</source>
        <translation>por muestreo</translation>
    </message>
    <message>
        <source>short</source>
        <translation>tiempo corto</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>arranque corto</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>alimentación de subida lenta</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>amplitud reducida, que ahorra energía</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>arranque: %1 ciclo, y tras un reset otros %2 ciclos</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>arranque: %1 ciclos</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>arranque: %1 ciclos + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>arranque: %1 ciclos, y tras un reset otros %2 ciclos</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>arranque: %1 ciclos, y tras un reset otros %2 ciclos + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>la tensión del chip</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>el oscilador interno lo requiere</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>toda la flash es sección boot</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>los del cristal principal</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>oscilador del transceptor</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>arranque muy corto</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>oscilador del watchdog de %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>si el pin está a nivel bajo al final de un reset</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>toda la flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>con condensadores internos</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>sin efecto mientras BOOTEND sea %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>sin efecto mientras BOOTSIZE sea %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>sin condensadores internos</translation>
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
        <translation>Aquí no hay ningún byte de fusibles: no se ha transmitido ninguno.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>No transmitidos, porque ningún byte de fusibles se llama así: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Valores de fábrica puestos en la ventana. El chip no ha cambiado.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Bytes de fusibles grabados correctamente.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Bytes de fusibles verificados correctamente.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Bytes de fusibles leídos correctamente.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>¿Desea grabar los bytes de fusibles de todos modos?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>No leídos (se siguen mostrando los valores anteriores): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>De fábrica</translation>
    </message>
</context>
<context>
    <name>FusesBytes</name>
    <message>
        <source>avrdude cannot be relied on for the fuse bytes of this microcontroller.</source>
        <translation>avrdude no es fiable para los bytes de fusibles de este microcontrolador.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>No hay bytes de fusibles cargados. Elija el microcontrolador en la primera pestaña.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Un programador ISP no puede acceder a los bytes de fusibles de este microcontrolador.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>chip no leído</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>ARCHIVO JSON NO ENCONTRADO</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>No se puede abrir el archivo</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ERROR EN EL ARCHIVO JSON</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>no es un objeto JSON</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>No se pudieron guardar los ajustes en el archivo: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>No se pudieron cargar los ajustes del archivo: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>El archivo se conserva como %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>avrdude todavía está trabajando con el chip. Si se interrumpe ahora, el chip queda como está: quizá borrado, quizá grabado a medias.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>¿Desea cerrar Korvel de todos modos?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>Korvel no puede escribir en la carpeta %1: lo que elija no se guardará.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM grabada correctamente.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM verificada correctamente.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM leída correctamente.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH grabada correctamente.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH verificada correctamente.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH leída correctamente.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>modificado el %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>El archivo no está: avrdude no lo ha escrito.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>El archivo está vacío: el chip está vacío o protegido contra lectura, o el disco está lleno.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>La lectura reemplazaría este archivo:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 bytes de datos</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 bytes de datos, %2 % de la memoria</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Programmer not found.</source>
        <translation>Programador no encontrado.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>El programador no detectó el microcontrolador

- Compruebe las conexiones y la alimentación
- Elija una velocidad menor (Puerto &amp; vel.)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>No se pudo leer el contenido
El chip está vacío o protegido contra lectura (bits de bloqueo activos).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>El microcontrolador elegido no es el correcto.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Error de verificación.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Formato de archivo no válido. Elija otro archivo.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Vea el mensaje en el registro de abajo.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp no encontrado.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>No existe el archivo o la carpeta.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>No se puede leer el archivo del perfil.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>«quiet» no es ni true ni false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>«boardLog» no es un nombre de archivo que termine en .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>No se puede grabar el número de serie.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>No se pudieron cargar los ajustes del archivo: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>El perfil «%1» ya existe.
¿Desea sobrescribirlo?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>¿Borrar este perfil?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Elegir perfil...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>FLASH grabada correctamente.
FLASH verificada correctamente.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM grabada correctamente.
EEPROM verificada correctamente.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fusibles grabados correctamente.
Fusibles verificados correctamente.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>No se pudieron guardar los ajustes en el archivo: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>El nombre de un perfil no puede contener ninguno de estos caracteres: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Tras reiniciar el programa, en la lista se llamará %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 byte de fusibles</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 bytes de fusibles</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>ningún perfil cargado</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>Windows reserva este nombre para un dispositivo. Elija otro.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>El nombre es demasiado largo para un archivo. Elija uno más corto.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Tras reiniciar el programa, no aparecerá en la lista.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>perfil modificado desde que se cargó</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>El comando que el perfil contiene para esta memoria no graba ningún archivo en ella. No se ejecuta:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>Con este perfil no se puede grabar ninguna placa.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>Con este perfil no aparece ninguna ventana cuando una placa se graba correctamente.</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>número %1</translation>
    </message>
    <message>
        <source>Board %1</source>
        <translation>Placa %1</translation>
    </message>
    <message>
        <source>Board %1: written, %2 s</source>
        <translation>Placa %1: grabada, %2 s</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Placa %1: fallo: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>Buenas: %1, fallidas: %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>MCU elegido: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Valores de fábrica puestos en la ventana. El chip no ha cambiado.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Usar pulsador externo</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Grabar las áreas elegidas</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Tipo de archivo:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Lugares recientes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir adelante</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir a la carpeta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crear una carpeta</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Ver como lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ver con detalles</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lugares y marcadores</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar archivos &amp;ocultos</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nueva carpeta</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar: </translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Archivo no encontrado.
Compruebe el nombre del archivo.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Carpeta no encontrada.
Compruebe el nombre de la carpeta.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>¿Seguro que desea borrar «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escritura.
¿Borrarlo de todos modos?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>No se pudo borrar la carpeta.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Acceso directo</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nombre de archivo no válido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>El nombre «%1» no se puede usar. Pruebe otro más corto o sin signos de puntuación.</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Desplazar hasta aquí</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Principio</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página arriba</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abajo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página a la izquierda</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página a la derecha</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Desplazar a la izquierda</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Desplazar a la derecha</translation>
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
        <translation>Mayús</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar dirección del en&amp;lace</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude está trabajando</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Grabando</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Leyendo</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Verificando</translation>
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
        <translation>Áreas de memoria para grabar:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>La memoria no es ni «eeprom» ni «flash».</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>El formato no es ni «little», ni «big», ni «decimal», ni «hex».</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>«address», «bytes» y «next» deben ser números enteros no negativos, y «bytes» de 1 a %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Queda fuera de la memoria, que tiene %1 bytes.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>El argumento -e borraría el chip antes de grabar el número.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>El número %1 no cabe en «bytes»: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Reinicie el programa para aplicar el cambio de idioma.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>No se encontró nada en la carpeta %1.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>avrdude recibe argumentos adicionales que no figuran en el archivo del programador: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Hasta que elija una velocidad, se usa la de los ajustes: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Programador</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Puerto &amp;&amp; vel. (MCU nuevo: 185kHz)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>Trust</name>
    <message>
        <source>The profile wants another program to be run.</source>
        <translation>El perfil pide que se ejecute otro programa.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>En el perfil:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>En uso:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Un programa puede hacer en el equipo todo lo que puede hacer usted. ¿Desea que a partir de ahora se ejecute el del perfil?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>El perfil contiene argumentos con los que avrdude podría leer o escribir archivos.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>¿Desea usar estos argumentos?</translation>
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
        <translation>Falta la dirección de descarga en la respuesta del servidor.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>La versión %1 está disponible.

¿Abrir la página de descarga?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>No se pudo abrir el enlace.</translation>
    </message>
</context>
</TS>
