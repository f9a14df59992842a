<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Português do Brasil. Termos: fuse, fuse bits e lock bits ficam em inglês, como é de costume; byte de calibração;
     gravador para o aparelho; velocidade (bit clock); clock só para o do chip. -->
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Your account may not use the programmer.</source>
        <translation>A sua conta não tem permissão para usar o gravador.</translation>
    </message>
    <message>
        <source>Write this line into %1 and plug the programmer in again:</source>
        <translation>Escreva esta linha em %1 e conecte o gravador de novo:</translation>
    </message>
    <message>
        <source>Your account may not use the port %1.</source>
        <translation>A sua conta não tem permissão para usar a porta %1.</translation>
    </message>
    <message>
        <source>In a terminal: %1. Then log out and in again.</source>
        <translation>Em um terminal: %1. Depois saia da sessão e entre de novo.</translation>
    </message>
    <message>
        <source>Is the programmer plugged in? Try another cable, and another socket.</source>
        <translation>O gravador está conectado? Tente outro cabo e outra entrada USB.</translation>
    </message>
    <message>
        <source>On Windows it needs its driver: the guide tells which.</source>
        <translation>No Windows o gravador precisa de um driver: o guia diz qual.</translation>
    </message>
    <message>
        <source>Nothing is plugged in that the list has.</source>
        <translation>Nenhum gravador da lista está conectado.</translation>
    </message>
    <message>
        <source>What is plugged in may be: %1.</source>
        <translation>O que está conectado pode ser: %1.</translation>
    </message>
    <message>
        <source>There is no serial port now.</source>
        <translation>Não há nenhuma porta serial agora.</translation>
    </message>
    <message>
        <source>Ports that are there now: %1.</source>
        <translation>Portas disponíveis agora: %1.</translation>
    </message>
    <message>
        <source>There is no port %1.</source>
        <translation>A porta %1 não existe.</translation>
    </message>
    <message>
        <source>Another program uses the port %1: close it, such as a serial monitor.</source>
        <translation>Outro programa está usando a porta %1: feche-o; pode ser um monitor serial.</translation>
    </message>
    <message>
        <source>Nothing listens at %1: is it started, and is that the right address?</source>
        <translation>Nada responde em %1: o servidor foi iniciado e o endereço está certo?</translation>
    </message>
    <message>
        <source>Press the board&apos;s reset button just before.</source>
        <translation>Pressione o botão de reset da placa logo antes da operação.</translation>
    </message>
    <message>
        <source>Try the other entry for the board in the list: boot loaders differ in speed.</source>
        <translation>Tente outro item da lista para a placa: os bootloaders diferem na velocidade.</translation>
    </message>
    <message>
        <source>Is %1 the right port, and the programmer of the kind that is chosen?</source>
        <translation>%1 é a porta certa, e o gravador é do tipo escolhido?</translation>
    </message>
    <message>
        <source>Is the plug the right way round, and does the chip have power?</source>
        <translation>O conector está no sentido certo, e o chip tem alimentação?</translation>
    </message>
    <message>
        <source>The speed has to be below a quarter of the chip&apos;s clock: try one below %1.</source>
        <translation>A velocidade deve ficar abaixo de um quarto da frequência do clock do chip: tente uma menor que %1.</translation>
    </message>
    <message>
        <source>Its fuses may ask for a clock that is not there: feed about 1 MHz into its clock pin.</source>
        <translation>Os fuses do chip talvez exijam um clock ausente: aplique cerca de 1 MHz ao pino de clock do chip.</translation>
    </message>
    <message>
        <source>Its fuses may use the reset pin for something else: a high-voltage programmer brings it back.</source>
        <translation>Os fuses do chip talvez deem ao pino de reset outra função: um gravador de alta tensão recupera o chip.</translation>
    </message>
    <message>
        <source>After Write: check contacts and supply, and try a lower speed.</source>
        <translation>Se foi depois de “Gravar”: verifique os contatos e a alimentação, e tente uma velocidade menor.</translation>
    </message>
    <message>
        <source>A chip whose lock bits are set does not show what it holds.</source>
        <translation>Um chip com lock bits ativos não mostra o seu conteúdo.</translation>
    </message>
    <message>
        <source>A boot loader cannot write fuse and lock bytes. A programmer can.</source>
        <translation>Um bootloader não consegue gravar os bytes de fuse nem os de lock. Um gravador consegue.</translation>
    </message>
    <message>
        <source>The chip is locked: Erase all frees it, and takes what it holds.</source>
        <translation>O chip está bloqueado: “Apagar tudo” o libera, mas elimina o seu conteúdo.</translation>
    </message>
    <message>
        <source>%1 needs avrdude %2 or newer; the one that is installed does not know it.</source>
        <translation>%1 precisa do avrdude %2 ou mais recente; a versão instalada não o conhece.</translation>
    </message>
    <message>
        <source>The avrdude that is installed does not know %1.</source>
        <translation>O avrdude instalado não conhece %1.</translation>
    </message>
    <message>
        <source>The chip has the signature %1, which nothing in the list has.</source>
        <translation>O chip tem a assinatura %1, que nenhum microcontrolador da lista tem.</translation>
    </message>
    <message>
        <source>The chip says that it is: %1.</source>
        <translation>O chip diz que é: %1.</translation>
    </message>
    <message>
        <source>%1 is programmed by %2, and this programmer speaks %3.</source>
        <translation>%1 é gravado via %2, e este gravador usa %3.</translation>
    </message>
    <message>
        <source>Of the list there fit, among others: %1.</source>
        <translation>Da lista servem, entre outros: %1.</translation>
    </message>
    <message>
        <source>avrdude is in the system&apos;s packages: %1</source>
        <translation>O avrdude está nos pacotes do sistema: %1</translation>
    </message>
    <message>
        <source>Korvel looks for %1. Another program, or a whole path, may stand in save.json, as &quot;avrdude&quot;.</source>
        <translation>O Korvel procura %1. Outro programa, ou um caminho completo, pode ser indicado no save.json, como “avrdude”.</translation>
    </message>
    <message>
        <source>Then start Korvel again.</source>
        <translation>Depois inicie o Korvel de novo.</translation>
    </message>
    <message>
        <source>Unplug the programmer and plug it in again, and close other programs that may use it.</source>
        <translation>Desconecte o gravador, conecte-o de novo e feche outros programas que possam usá-lo.</translation>
    </message>
    <message>
        <source>Folders that are searched for it: %1</source>
        <translation>Pastas em que é procurado: %1</translation>
    </message>
    <message>
        <source>The speed of this programmer is fixed: the chip&apos;s clock has to be above %1, and a new chip&apos;s is mostly 1 MHz.</source>
        <translation>A velocidade deste gravador é fixa: o clock do chip deve ficar acima de %1, e o de um chip novo costuma ser de 1 MHz.</translation>
    </message>
    <message>
        <source>Its fuses may use the UPDI pin for something else: a programmer with high-voltage UPDI brings it back.</source>
        <translation>Os fuses do chip talvez deem ao pino UPDI outra função: um gravador com UPDI de alta tensão recupera o chip.</translation>
    </message>
    <message>
        <source>It may be locked: with this programmer no avrdude frees it, with SerialUPDI or Atmel-ICE Erase all does.</source>
        <translation>O chip pode estar bloqueado: com este gravador, nenhuma versão do avrdude o libera; com SerialUPDI ou Atmel-ICE, “Apagar tudo” o libera.</translation>
    </message>
</context>
<context>
    <name>Aftermath</name>
    <message>
        <source>Writing the flash failed.</source>
        <translation>A gravação da FLASH falhou.</translation>
    </message>
    <message>
        <source>Verifying the flash failed.</source>
        <translation>A verificação da FLASH falhou.</translation>
    </message>
    <message>
        <source>Reading the flash failed.</source>
        <translation>A leitura da FLASH falhou.</translation>
    </message>
    <message>
        <source>Writing the EEPROM failed.</source>
        <translation>A gravação da EEPROM falhou.</translation>
    </message>
    <message>
        <source>Verifying the EEPROM failed.</source>
        <translation>A verificação da EEPROM falhou.</translation>
    </message>
    <message>
        <source>Reading the EEPROM failed.</source>
        <translation>A leitura da EEPROM falhou.</translation>
    </message>
    <message>
        <source>Writing the fuse bytes failed.</source>
        <translation>A gravação dos bytes de fuse falhou.</translation>
    </message>
    <message>
        <source>Verifying the fuse bytes failed.</source>
        <translation>A verificação dos bytes de fuse falhou.</translation>
    </message>
    <message>
        <source>Reading the fuse bytes failed.</source>
        <translation>A leitura dos bytes de fuse falhou.</translation>
    </message>
    <message>
        <source>Reading the calibration byte failed.</source>
        <translation>A leitura do byte de calibração falhou.</translation>
    </message>
    <message>
        <source>Erasing the chip failed.</source>
        <translation>O apagamento do chip falhou.</translation>
    </message>
    <message>
        <source>The chip differs from the file at address %1.</source>
        <translation>No endereço %1, o chip difere do arquivo.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may hold a part of the file.</source>
        <translation>A gravação já tinha começado: o chip pode conter uma parte do arquivo.</translation>
    </message>
    <message>
        <source>The chip was erased, and nothing was written: its flash is empty.</source>
        <translation>O chip foi apagado e nada foi gravado: a sua FLASH está vazia.</translation>
    </message>
    <message>
        <source>Writing had begun: the chip may have some of the fuse bytes.</source>
        <translation>A gravação já tinha começado: talvez só alguns dos bytes de fuse tenham sido gravados.</translation>
    </message>
    <message>
        <source>Erasing had begun: the chip may be empty.</source>
        <translation>O apagamento já tinha começado: o chip pode estar vazio.</translation>
    </message>
</context>
<context>
    <name>Attributes</name>
    <message>
        <source>MCU erased successfully.</source>
        <translation>MCU apagado com sucesso.</translation>
    </message>
    <message>
        <source>MCU auto-detected successfully. Do you want to continue?</source>
        <translation>MCU detectado com sucesso. Deseja continuar?</translation>
    </message>
    <message>
        <source>Calibration byte read successfully.</source>
        <translation>Byte de calibração lido com sucesso.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Nada encontrado na pasta %1.</translation>
    </message>
    <message>
        <source>avrdude has read none: most likely the microcontroller has no such byte.</source>
        <translation>O avrdude não leu nenhum: muito provavelmente o microcontrolador não tem esse byte.</translation>
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
        <translation>Apagar tudo</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Ler</translation>
    </message>
    <message>
        <source>MCU</source>
        <translation>MCU</translation>
    </message>
    <message>
        <source>Calibration Byte</source>
        <translation>Byte de calibração</translation>
    </message>
</context>
<context>
    <name>Avrdude</name>
    <message>
        <source>avrdude not found</source>
        <translation>avrdude não encontrado: </translation>
    </message>
    <message>
        <source>Programmer not found.</source>
        <translation>Gravador não encontrado.</translation>
    </message>
    <message>
        <source>Do you want to use it all the same?</source>
        <translation>Deseja usá-la mesmo assim?</translation>
    </message>
    <message>
        <source>No serial port was found for %1: the port is still %2.</source>
        <translation>Nenhuma porta serial encontrada para %1: a porta ainda é %2.</translation>
    </message>
    <message>
        <source>avrdude was stopped.</source>
        <translation>O avrdude foi interrompido.</translation>
    </message>
    <message>
        <source>%1 is no speed: %2 is used.</source>
        <translation>%1 não é uma velocidade válida: usando %2.</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>A leitura substituiria este arquivo:</translation>
    </message>
    <message>
        <source>It is larger than what is read: move it away first.</source>
        <translation>Ele é maior do que os dados a serem lidos: mova-o antes para outro lugar.</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is no identifier of a part.</source>
        <translation>O avrdude não foi iniciado: %1 não é um identificador de microcontrolador.</translation>
    </message>
    <message>
        <source>avrdude was not started: its arguments hold characters that cannot be seen: %1</source>
        <translation>O avrdude não foi iniciado: seus argumentos contêm caracteres invisíveis: %1</translation>
    </message>
    <message>
        <source>avrdude was not started: %1 is a file and no port.</source>
        <translation>O avrdude não foi iniciado: %1 é um arquivo e não uma porta.</translation>
    </message>
    <message>
        <source>avrdude is not beside Korvel: %1 is used.</source>
        <translation>O avrdude não está na pasta do Korvel: usando %1.</translation>
    </message>
</context>
<context>
    <name>BoardView</name>
    <message>
        <source>Set to zero</source>
        <translation>Zerar</translation>
    </message>
</context>
<context>
    <name>BoardWriting</name>
    <message>
        <source>The record of the boards cannot be written: %1</source>
        <translation>Não foi possível gravar o registro das placas: %1</translation>
    </message>
    <message>
        <source>The next number cannot be saved in the profile: %1</source>
        <translation>Não foi possível salvar o próximo número no perfil: %1</translation>
    </message>
    <message>
        <source>The number %1 will be left out.</source>
        <translation>O número %1 será pulado.</translation>
    </message>
    <message>
        <source>The line of this board is missing in %1.</source>
        <translation>Falta a linha desta placa em %1.</translation>
    </message>
</context>
<context>
    <name>BytesModel</name>
    <message>
        <source>MCU JSON FILE NOT FOUND</source>
        <translation>ARQUIVO JSON DO MCU NÃO ENCONTRADO</translation>
    </message>
</context>
<context>
    <name>ConfigurationView</name>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Add / Remove profile</source>
        <translation>Adicionar / remover perfil</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Nome do perfil</translation>
    </message>
    <message>
        <source>Description (optional)</source>
        <translation>Descrição (opcional)</translation>
    </message>
    <message>
        <source>&quot;Add&quot; - save current settings as a profile.
&quot;Remove&quot; - remove selected profile.</source>
        <translation>“Adicionar”: salva tudo como perfil.
“Remover”: remove o perfil escolhido.</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>The file has %1 bytes, the memory only %2.</source>
        <translation>O arquivo tem %1 bytes; a memória, só %2.</translation>
    </message>
    <message>
        <source>The chip would be erased for nothing.
Do you want to go on all the same?</source>
        <translation>O chip seria apagado em vão.
Deseja continuar mesmo assim?</translation>
    </message>
    <message>
        <source>avrdude would not take this for the path of a file:</source>
        <translation>O avrdude não aceitaria isto como caminho de arquivo:</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Line %1 is not %2.</source>
        <translation>A linha %1 não está no formato %2.</translation>
    </message>
    <message>
        <source>The checksum of line %1 is wrong.</source>
        <translation>A soma de verificação da linha %1 está incorreta.</translation>
    </message>
    <message>
        <source>The file has data at address 0x%1, the memory only %2 bytes.</source>
        <translation>O arquivo tem dados no endereço 0x%1; a memória, só %2 bytes.</translation>
    </message>
    <message>
        <source>The file is not an ELF program for AVR.</source>
        <translation>O arquivo não é um programa ELF para AVR.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>avrdude does not take this file with the ending .%1: let its name end in %2.</source>
        <translation>O avrdude não aceita este arquivo com a extensão .%1: mude-a para %2.</translation>
    </message>
    <message>
        <source>The file holds no data for this memory.</source>
        <translation>O arquivo não contém dados para esta memória.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Falta o final do arquivo.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Não foi possível ler o arquivo.</translation>
    </message>
    <message>
        <source>The file is too large to be firmware.</source>
        <translation>O arquivo é grande demais para ser um firmware.</translation>
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
        <translation>Este ajuste é reservado: o chip poderá não responder mais.
Para recuperá-lo: um gravador de alta tensão.</translation>
    </message>
    <message>
        <source>The reset pin becomes an ordinary pin: an ISP or TPI programmer will no longer be able to reach the chip.
The way back: a high-voltage programmer.</source>
        <translation>O pino de reset passará a ser um pino comum: um gravador ISP ou TPI não conseguirá mais acessar o chip.
Para recuperá-lo: um gravador de alta tensão.</translation>
    </message>
    <message>
        <source>The reset pin becomes the debugger&apos;s: an ISP programmer will no longer be able to reach the chip.
The way back: a debugger with debugWIRE, or a high-voltage programmer.</source>
        <translation>O pino de reset passará para o depurador: um gravador ISP não conseguirá mais acessar o chip.
Para recuperá-lo: um depurador com debugWIRE ou um gravador de alta tensão.</translation>
    </message>
    <message>
        <source>An ISP programmer will no longer be able to reach the chip.
The way back: JTAG, if the chip has it, or a high-voltage programmer.</source>
        <translation>Um gravador ISP não conseguirá mais acessar o chip.
Para recuperá-lo: JTAG, se o chip tiver, ou um gravador de alta tensão.</translation>
    </message>
    <message>
        <source>A JTAG programmer will no longer be able to reach the chip.
The way back: ISP, PDI with an ATxmega, or a high-voltage programmer.</source>
        <translation>Um gravador JTAG não conseguirá mais acessar o chip.
Para recuperá-lo: ISP (PDI com um ATxmega) ou um gravador de alta tensão.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI.</source>
        <translation>O pino UPDI passará a ter outra função: um gravador UPDI comum não conseguirá mais acessar o chip.
Para recuperá-lo: um gravador com UPDI de alta tensão.</translation>
    </message>
    <message>
        <source>Without its crystal the chip will not answer, and with it only at a speed below 8 kHz (1 kHz with CKDIV8).
The way back: connect a crystal of 32.768 kHz, or feed a clock into its clock pin, and choose a lower speed; or use a high-voltage programmer.</source>
        <translation>Sem o seu cristal o chip não responderá e, com ele, só a uma velocidade abaixo de 8 kHz (1 kHz com CKDIV8).
Para recuperá-lo: conecte um cristal de 32,768 kHz, ou aplique um clock ao pino de clock do chip, e escolha uma velocidade menor; ou use um gravador de alta tensão.</translation>
    </message>
    <message>
        <source>So slow a chip will answer only at a speed below a quarter of its clock.
The way back: choose a lower speed.</source>
        <translation>Um chip tão lento só responderá a uma velocidade abaixo de um quarto da frequência do seu clock.
Para recuperá-lo: escolha uma velocidade menor.</translation>
    </message>
    <message>
        <source>Without this clock on its pins the chip will not answer.
The way back: feed a clock into its clock pin (a crystal helps only where the setting names one), or use a high-voltage programmer.</source>
        <translation>Sem este clock nos seus pinos o chip não responderá.
Para recuperá-lo: aplique um clock ao pino de clock do chip (um cristal só ajuda se o ajuste mencionar um) ou use um gravador de alta tensão.</translation>
    </message>
    <message>
        <source>The UPDI pin gets another purpose: an ordinary UPDI programmer will no longer be able to reach the chip.
The way back: a programmer with high-voltage UPDI for this family, which gives the reset pin a little more than the supply. 12 V destroy it.</source>
        <translation>O pino UPDI passará a ter outra função: um gravador UPDI comum não conseguirá mais acessar o chip.
Para recuperá-lo: um gravador com UPDI de alta tensão para esta família, que aplica ao pino de reset uma tensão um pouco acima da alimentação. 12 V destroem esse pino.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to read the chip or write to it.
The way back: Erase all.</source>
        <translation>Um gravador não conseguirá mais ler nem gravar o chip.
Para recuperá-lo: “Apagar tudo”.</translation>
    </message>
    <message>
        <source>A programmer will no longer be able to write to the chip.
The way back: Erase all.</source>
        <translation>Um gravador não conseguirá mais gravar o chip.
Para recuperá-lo: “Apagar tudo”.</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words)</source>
        <translation>%1 bytes (%2 palavras)</translation>
    </message>
    <message>
        <source>%1 bytes (%2 words), from byte address %3</source>
        <translation>%1 bytes (%2 palavras), a partir do endereço de byte %3</translation>
    </message>
    <message>
        <source>%1 clocks</source>
        <translation>%1 ciclos de clock</translation>
    </message>
    <message>
        <source>%1 clocks + %2 ms</source>
        <translation>%1 ciclos de clock + %2 ms</translation>
    </message>
    <message>
        <source>%1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>%1 ciclos de clock, após um reset %2 ciclos + %3 ms</translation>
    </message>
    <message>
        <source>%1 ms, if the reset pin is an ordinary pin or the reset input</source>
        <translation>%1 ms, se o pino de reset for um pino comum ou a entrada de reset</translation>
    </message>
    <message>
        <source>Boot lock bits of the application section</source>
        <translation>Lock bits (BLB) da seção de aplicação</translation>
    </message>
    <message>
        <source>Boot lock bits of the application table section</source>
        <translation>Lock bits (BLB) da seção de tabela da aplicação</translation>
    </message>
    <message>
        <source>Boot lock bits of the boot section</source>
        <translation>Lock bits (BLB) da seção de boot</translation>
    </message>
    <message>
        <source>Boot row at a chip erase</source>
        <translation>Memória BOOTROW ao apagar o chip</translation>
    </message>
    <message>
        <source>Brown-out detector</source>
        <translation>Detector de brown-out</translation>
    </message>
    <message>
        <source>Brown-out detector in power-down</source>
        <translation>Detector de brown-out no modo power-down</translation>
    </message>
    <message>
        <source>Brown-out detector in sleep</source>
        <translation>Detector de brown-out com o chip em repouso</translation>
    </message>
    <message>
        <source>Brown-out detector while active</source>
        <translation>Detector de brown-out com o chip em operação</translation>
    </message>
    <message>
        <source>Brown-out level</source>
        <translation>Nível de brown-out</translation>
    </message>
    <message>
        <source>Calibration of the internal oscillator</source>
        <translation>Calibração do oscilador interno</translation>
    </message>
    <message>
        <source>Check (CRC) of the boot section at the start: a failing one keeps the program from starting</source>
        <translation>Verificação (CRC) da seção de boot na partida: se falhar, o programa não inicia</translation>
    </message>
    <message>
        <source>Clock failure detection</source>
        <translation>Detecção de falha do clock</translation>
    </message>
    <message>
        <source>Clock output</source>
        <translation>Saída de clock</translation>
    </message>
    <message>
        <source>Clock source</source>
        <translation>Fonte de clock</translation>
    </message>
    <message>
        <source>Clock source and start-up time</source>
        <translation>Fonte de clock e tempo de partida</translation>
    </message>
    <message>
        <source>Clock source at the start</source>
        <translation>Fonte de clock na partida</translation>
    </message>
    <message>
        <source>Closed part of the watchdog window</source>
        <translation>Parte fechada da janela do watchdog</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4414 and AT90S8515</source>
        <translation>Compatibilidade com AT90S4414 e AT90S8515</translation>
    </message>
    <message>
        <source>Compatibility with AT90S4434 and AT90S8535</source>
        <translation>Compatibilidade com AT90S4434 e AT90S8535</translation>
    </message>
    <message>
        <source>Compatibility with ATmega103</source>
        <translation>Compatibilidade com ATmega103</translation>
    </message>
    <message>
        <source>Compatibility with ATmega161</source>
        <translation>Compatibilidade com ATmega161</translation>
    </message>
    <message>
        <source>Current sink of the USB voltage regulator</source>
        <translation>Absorção de corrente (sink) do regulador de tensão USB</translation>
    </message>
    <message>
        <source>Debugging over the reset pin (debugWIRE)</source>
        <translation>Depuração pelo pino de reset (debugWIRE)</translation>
    </message>
    <message>
        <source>Deep under-voltage recovery after a reset</source>
        <translation>Recuperação de subtensão profunda (DUVR) após um reset</translation>
    </message>
    <message>
        <source>Division of the clock at the start</source>
        <translation>Divisão do clock na partida</translation>
    </message>
    <message>
        <source>EEPROM at a chip erase</source>
        <translation>EEPROM ao apagar o chip</translation>
    </message>
    <message>
        <source>End of the application code section, in blocks</source>
        <translation>Fim da seção de código da aplicação, em blocos</translation>
    </message>
    <message>
        <source>End of the application code section, where the data section begins</source>
        <translation>Fim da seção de código da aplicação, onde começa a seção de dados</translation>
    </message>
    <message>
        <source>End of the boot section</source>
        <translation>Fim da seção de boot</translation>
    </message>
    <message>
        <source>End of the boot section, in blocks</source>
        <translation>Fim da seção de boot, em blocos</translation>
    </message>
    <message>
        <source>Flash check (CRC) at the start: a failing one keeps the program from starting</source>
        <translation>Verificação (CRC) da flash na partida: se falhar, o programa não inicia</translation>
    </message>
    <message>
        <source>For tests in the factory</source>
        <translation>Para testes na fábrica</translation>
    </message>
    <message>
        <source>Frequency of the internal oscillator</source>
        <translation>Frequência do oscilador interno</translation>
    </message>
    <message>
        <source>Frequency of the ultra-low-power oscillator</source>
        <translation>Frequência do oscilador de ultrabaixo consumo</translation>
    </message>
    <message>
        <source>Internal capacitors at the crystal pins</source>
        <translation>Capacitores internos nos pinos do cristal</translation>
    </message>
    <message>
        <source>JTAG interface</source>
        <translation>Interface JTAG</translation>
    </message>
    <message>
        <source>JTAG user identification</source>
        <translation>Identificação de usuário JTAG</translation>
    </message>
    <message>
        <source>Level of PSC outputs A that a reset forces</source>
        <translation>Nível que um reset força nas saídas A do PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs B that a reset forces</source>
        <translation>Nível que um reset força nas saídas B do PSC</translation>
    </message>
    <message>
        <source>Level of PSC outputs that a reset forces</source>
        <translation>Nível que um reset força nas saídas do PSC</translation>
    </message>
    <message>
        <source>Lock bits</source>
        <translation>Lock bits</translation>
    </message>
    <message>
        <source>Method of the flash check at the start</source>
        <translation>Método de verificação da flash na partida</translation>
    </message>
    <message>
        <source>Monitor of the processor</source>
        <translation>Monitoramento do processador</translation>
    </message>
    <message>
        <source>Monitor of the watchdog</source>
        <translation>Monitoramento do watchdog</translation>
    </message>
    <message>
        <source>On-chip debugging</source>
        <translation>Depuração no chip (OCD)</translation>
    </message>
    <message>
        <source>Oscillator option</source>
        <translation>Opção do oscilador</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 after a reset</source>
        <translation>Saída A do timer TCD0 após um reset</translation>
    </message>
    <message>
        <source>Output A of the timer TCD0 on its pin after a reset</source>
        <translation>Saída A do timer TCD0 no seu pino após um reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 after a reset</source>
        <translation>Saída B do timer TCD0 após um reset</translation>
    </message>
    <message>
        <source>Output B of the timer TCD0 on its pin after a reset</source>
        <translation>Saída B do timer TCD0 no seu pino após um reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 after a reset</source>
        <translation>Saída C do timer TCD0 após um reset</translation>
    </message>
    <message>
        <source>Output C of the timer TCD0 on its pin after a reset</source>
        <translation>Saída C do timer TCD0 no seu pino após um reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 after a reset</source>
        <translation>Saída D do timer TCD0 após um reset</translation>
    </message>
    <message>
        <source>Output D of the timer TCD0 on its pin after a reset</source>
        <translation>Saída D do timer TCD0 no seu pino após um reset</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator</source>
        <translation>PLL a partir do oscilador a cristal</translation>
    </message>
    <message>
        <source>PLL from the crystal oscillator, divided by %1</source>
        <translation>PLL a partir do oscilador a cristal, dividido por %1</translation>
    </message>
    <message>
        <source>PLL from the external clock</source>
        <translation>PLL a partir do clock externo</translation>
    </message>
    <message>
        <source>PLL from the external clock, divided by %1</source>
        <translation>PLL a partir do clock externo, dividido por %1</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz</source>
        <translation>PLL a partir do oscilador interno de %1 MHz</translation>
    </message>
    <message>
        <source>PLL from the internal oscillator %1 MHz, divided by %2</source>
        <translation>PLL a partir do oscilador interno de %1 MHz, dividido por %2</translation>
    </message>
    <message>
        <source>PSC outputs in a reset</source>
        <translation>Saídas do PSC durante um reset</translation>
    </message>
    <message>
        <source>PSC0 outputs in a reset</source>
        <translation>Saídas do PSC0 durante um reset</translation>
    </message>
    <message>
        <source>PSC1 outputs in a reset</source>
        <translation>Saídas do PSC1 durante um reset</translation>
    </message>
    <message>
        <source>PSC2 outputs %1 and %2 in a reset</source>
        <translation>Saídas %1 e %2 do PSC2 durante um reset</translation>
    </message>
    <message>
        <source>PSC2 outputs in a reset</source>
        <translation>Saídas do PSC2 durante um reset</translation>
    </message>
    <message>
        <source>Pins of the timer&apos;s %1 kHz crystal</source>
        <translation>Pinos do cristal de %1 kHz do timer</translation>
    </message>
    <message>
        <source>Reset and UPDI pin</source>
        <translation>Pino de reset e UPDI</translation>
    </message>
    <message>
        <source>Reset pin</source>
        <translation>Pino de reset</translation>
    </message>
    <message>
        <source>Sampling of the brown-out detector</source>
        <translation>Amostragem do detector de brown-out</translation>
    </message>
    <message>
        <source>Serial programming (ISP)</source>
        <translation>Gravação serial (ISP)</translation>
    </message>
    <message>
        <source>Size of the boot section</source>
        <translation>Tamanho da seção de boot</translation>
    </message>
    <message>
        <source>Special behaviour of the PSC inputs in a reset</source>
        <translation>Comportamento especial das entradas do PSC durante um reset</translation>
    </message>
    <message>
        <source>Start of the boot section by the pin HWB</source>
        <translation>Início da seção de boot pelo pino HWB</translation>
    </message>
    <message>
        <source>Start of the program after a reset</source>
        <translation>Início do programa após um reset</translation>
    </message>
    <message>
        <source>Start-up time</source>
        <translation>Tempo de partida</translation>
    </message>
    <message>
        <source>Supply of the multi-voltage pins</source>
        <translation>Alimentação dos pinos multitensão (MVIO)</translation>
    </message>
    <message>
        <source>Time-out after power-on that blocks writing</source>
        <translation>Espera após a energização que impede gravar</translation>
    </message>
    <message>
        <source>UPDI pin</source>
        <translation>Pino UPDI</translation>
    </message>
    <message>
        <source>UPDI, and the reset input on another pin</source>
        <translation>UPDI, e a entrada de reset em outro pino</translation>
    </message>
    <message>
        <source>Watchdog settings</source>
        <translation>Ajustes do watchdog</translation>
    </message>
    <message>
        <source>Watchdog timeout</source>
        <translation>Tempo limite do watchdog</translation>
    </message>
    <message>
        <source>Writing of the flash by the program (SPM)</source>
        <translation>Gravação da flash pelo programa (SPM)</translation>
    </message>
    <message>
        <source>a voltage of their own</source>
        <translation>uma tensão própria</translation>
    </message>
    <message>
        <source>after %1 bytes</source>
        <translation>após %1 bytes</translation>
    </message>
    <message>
        <source>always on</source>
        <translation>sim, sempre</translation>
    </message>
    <message>
        <source>as delivered</source>
        <translation>de fábrica</translation>
    </message>
    <message>
        <source>as ordinary pins</source>
        <translation>como pinos comuns</translation>
    </message>
    <message>
        <source>as the program sets it</source>
        <translation>conforme o programa definir</translation>
    </message>
    <message>
        <source>at address %1</source>
        <translation>no endereço %1</translation>
    </message>
    <message>
        <source>at the boot section</source>
        <translation>na seção de boot</translation>
    </message>
    <message>
        <source>at the end of the flash</source>
        <translation>no fim da flash</translation>
    </message>
    <message>
        <source>boot and application code sections</source>
        <translation>seções de boot e de código da aplicação</translation>
    </message>
    <message>
        <source>boot section</source>
        <translation>seção de boot</translation>
    </message>
    <message>
        <source>brown-out detector on</source>
        <translation>com detector de brown-out</translation>
    </message>
    <message>
        <source>capacitors with %1 kHz crystals and external RC</source>
        <translation>capacitores internos com cristais de %1 kHz e com RC externo</translation>
    </message>
    <message>
        <source>ceramic resonator</source>
        <translation>ressonador cerâmico</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz</source>
        <translation>ressonador cerâmico de %1 a %2 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator %1 to %2 MHz (CKOPT %3: crystal too, %4 MHz and more)</source>
        <translation>ressonador cerâmico de %1 a %2 MHz (com CKOPT %3: cristal também, %4 MHz ou mais)</translation>
    </message>
    <message>
        <source>ceramic resonator from %1 MHz</source>
        <translation>ressonador cerâmico a partir de %1 MHz</translation>
    </message>
    <message>
        <source>ceramic resonator or external clock</source>
        <translation>ressonador cerâmico ou clock externo</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator</source>
        <translation>cristal ou ressonador cerâmico</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator %1 to %2 MHz (CKOPT %3: %4 MHz and more)</source>
        <translation>cristal ou ressonador cerâmico de %1 a %2 MHz (com CKOPT %3: %4 MHz ou mais)</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, high frequency</source>
        <translation>cristal ou ressonador cerâmico, alta frequência</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, low frequency</source>
        <translation>cristal ou ressonador cerâmico, baixa frequência</translation>
    </message>
    <message>
        <source>crystal or ceramic resonator, medium frequency</source>
        <translation>cristal ou ressonador cerâmico, média frequência</translation>
    </message>
    <message>
        <source>crystal oscillator</source>
        <translation>oscilador a cristal</translation>
    </message>
    <message>
        <source>crystal oscillator %1 to %2 MHz</source>
        <translation>oscilador a cristal de %1 a %2 MHz</translation>
    </message>
    <message>
        <source>crystal oscillator from %1 MHz</source>
        <translation>oscilador a cristal a partir de %1 MHz</translation>
    </message>
    <message>
        <source>divided by %1</source>
        <translation>por %1</translation>
    </message>
    <message>
        <source>erased too</source>
        <translation>também é apagada</translation>
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
        <translation>oscilador RC externo até %1 MHz</translation>
    </message>
    <message>
        <source>external clock</source>
        <translation>clock externo</translation>
    </message>
    <message>
        <source>fast rising power</source>
        <translation>alimentação de subida rápida</translation>
    </message>
    <message>
        <source>forced to a level</source>
        <translation>com nível forçado</translation>
    </message>
    <message>
        <source>full swing, which crystals above %1 MHz need</source>
        <translation>amplitude total, necessária para cristais acima de %1 MHz</translation>
    </message>
    <message>
        <source>full-swing oscillator %1 to %2 MHz (supply above %3 V)</source>
        <translation>oscilador de amplitude total de %1 a %2 MHz (alimentação acima de %3 V)</translation>
    </message>
    <message>
        <source>high</source>
        <translation>nível alto</translation>
    </message>
    <message>
        <source>internal %1 kHz oscillator</source>
        <translation>oscilador interno de %1 kHz</translation>
    </message>
    <message>
        <source>internal capacitors</source>
        <translation>capacitores internos</translation>
    </message>
    <message>
        <source>internal high-frequency oscillator</source>
        <translation>oscilador interno de alta frequência</translation>
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
        <translation>oscilador interno de %1 MHz dividido por %2</translation>
    </message>
    <message>
        <source>internal oscillator %1 kHz</source>
        <translation>oscilador interno de %1 kHz</translation>
    </message>
    <message>
        <source>internal ultra-low-power oscillator %1 kHz</source>
        <translation>oscilador interno de ultrabaixo consumo de %1 kHz</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>permanece</translation>
    </message>
    <message>
        <source>kept, but not if the chip is locked</source>
        <translation>permanece, mas não se o chip estiver bloqueado</translation>
    </message>
    <message>
        <source>kept, even if the chip is locked</source>
        <translation>permanece, mesmo se o chip estiver bloqueado</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>com bloqueio</translation>
    </message>
    <message>
        <source>locked for writing</source>
        <translation>gravação bloqueada</translation>
    </message>
    <message>
        <source>locked for writing and reading</source>
        <translation>gravação e leitura bloqueadas</translation>
    </message>
    <message>
        <source>long</source>
        <translation>tempo longo</translation>
    </message>
    <message>
        <source>long start-up</source>
        <translation>partida longa</translation>
    </message>
    <message>
        <source>low</source>
        <translation>nível baixo</translation>
    </message>
    <message>
        <source>low-frequency crystal (%1 kHz)</source>
        <translation>cristal de baixa frequência (%1 kHz)</translation>
    </message>
    <message>
        <source>no program can write it</source>
        <translation>nenhum programa pode gravar esta seção</translation>
    </message>
    <message>
        <source>no program can write it, and none in the application section can read it</source>
        <translation>nenhum programa pode gravar esta seção, e nenhum da seção de aplicação pode lê-la</translation>
    </message>
    <message>
        <source>no program can write it, and none in the boot section can read it</source>
        <translation>nenhum programa pode gravar esta seção, e nenhum da seção de boot pode lê-la</translation>
    </message>
    <message>
        <source>no program in the application section can read it</source>
        <translation>nenhum programa da seção de aplicação pode ler esta seção</translation>
    </message>
    <message>
        <source>no program in the boot section can read it</source>
        <translation>nenhum programa da seção de boot pode ler esta seção</translation>
    </message>
    <message>
        <source>no reset input</source>
        <translation>sem entrada de reset</translation>
    </message>
    <message>
        <source>no restriction</source>
        <translation>sem restrições</translation>
    </message>
    <message>
        <source>not divided</source>
        <translation>sem divisão</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>impossível</translation>
    </message>
    <message>
        <source>off</source>
        <translation>não</translation>
    </message>
    <message>
        <source>off in operation, %1 V while the chip is erased</source>
        <translation>sem efeito em operação, %1 V enquanto o chip é apagado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>on its pin</source>
        <translation>no seu pino</translation>
    </message>
    <message>
        <source>on, and waking up waits until it is ready</source>
        <translation>sim, e o despertar aguarda o detector ficar pronto</translation>
    </message>
    <message>
        <source>on, but off in the deep sleep modes</source>
        <translation>sim, exceto nos modos de repouso profundo</translation>
    </message>
    <message>
        <source>open</source>
        <translation>sem bloqueio</translation>
    </message>
    <message>
        <source>open to the program</source>
        <translation>o programa pode fazer alterações</translation>
    </message>
    <message>
        <source>ordinary pin</source>
        <translation>pino comum</translation>
    </message>
    <message>
        <source>ordinary pin, as an input only</source>
        <translation>pino comum, só como entrada</translation>
    </message>
    <message>
        <source>other ones</source>
        <translation>outros</translation>
    </message>
    <message>
        <source>possible</source>
        <translation>possível</translation>
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
        <translation>por amostragem</translation>
    </message>
    <message>
        <source>short</source>
        <translation>tempo curto</translation>
    </message>
    <message>
        <source>short start-up</source>
        <translation>partida curta</translation>
    </message>
    <message>
        <source>slowly rising power</source>
        <translation>alimentação de subida lenta</translation>
    </message>
    <message>
        <source>small swing, which saves power</source>
        <translation>amplitude reduzida, que poupa energia</translation>
    </message>
    <message>
        <source>start-up %1 clock, after a reset %2 clocks</source>
        <translation>partida: %1 ciclo, após um reset %2 ciclos</translation>
    </message>
    <message>
        <source>start-up %1 clocks</source>
        <translation>partida: %1 ciclos</translation>
    </message>
    <message>
        <source>start-up %1 clocks + %2 ms</source>
        <translation>partida: %1 ciclos + %2 ms</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks</source>
        <translation>partida: %1 ciclos, após um reset %2 ciclos</translation>
    </message>
    <message>
        <source>start-up %1 clocks, after a reset %2 clocks + %3 ms</source>
        <translation>partida: %1 ciclos, após um reset %2 ciclos + %3 ms</translation>
    </message>
    <message>
        <source>that of the chip</source>
        <translation>a tensão do chip</translation>
    </message>
    <message>
        <source>the internal oscillator needs it</source>
        <translation>o oscilador interno exige isso</translation>
    </message>
    <message>
        <source>the whole flash is boot section</source>
        <translation>toda a flash é seção de boot</translation>
    </message>
    <message>
        <source>those of the main crystal</source>
        <translation>os do cristal principal</translation>
    </message>
    <message>
        <source>transceiver oscillator</source>
        <translation>oscilador do transceptor</translation>
    </message>
    <message>
        <source>very short start-up</source>
        <translation>partida muito curta</translation>
    </message>
    <message>
        <source>watchdog oscillator %1 kHz</source>
        <translation>oscilador do watchdog de %1 kHz</translation>
    </message>
    <message>
        <source>when the pin is low at the end of a reset</source>
        <translation>se o pino estiver em nível baixo no fim de um reset</translation>
    </message>
    <message>
        <source>whole flash</source>
        <translation>toda a flash</translation>
    </message>
    <message>
        <source>with internal capacitors</source>
        <translation>com capacitores internos</translation>
    </message>
    <message>
        <source>without effect while BOOTEND is %1</source>
        <translation>sem efeito enquanto BOOTEND for %1</translation>
    </message>
    <message>
        <source>without effect while BOOTSIZE is %1</source>
        <translation>sem efeito enquanto BOOTSIZE for %1</translation>
    </message>
    <message>
        <source>without internal capacitors</source>
        <translation>sem capacitores internos</translation>
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
        <translation>Não há byte de fuse aqui: nenhum foi enviado.</translation>
    </message>
    <message>
        <source>Not sent, as no fuse byte is called so: %1</source>
        <translation>Não enviado, pois nenhum byte de fuse se chama assim: %1</translation>
    </message>
</context>
<context>
    <name>Fuses</name>
    <message>
        <source>Fuse bytes set to default values successfully.</source>
        <translation>Valores de fábrica colocados na janela. O chip não mudou.</translation>
    </message>
</context>
<context>
    <name>FusesButtons</name>
    <message>
        <source>Fuse bytes written successfully.</source>
        <translation>Bytes de fuse gravados com sucesso.</translation>
    </message>
    <message>
        <source>Fuse bytes verified successfully.</source>
        <translation>Bytes de fuse verificados com sucesso.</translation>
    </message>
    <message>
        <source>Fuse bytes read successfully.</source>
        <translation>Bytes de fuse lidos com sucesso.</translation>
    </message>
    <message>
        <source>Do you want to write the fuse bytes all the same?</source>
        <translation>Deseja gravar os bytes de fuse mesmo assim?</translation>
    </message>
    <message>
        <source>Not read (the old values are still shown): %1</source>
        <translation>Não lidos (os valores anteriores continuam exibidos): %1</translation>
    </message>
</context>
<context>
    <name>FusesButtonsView</name>
    <message>
        <source>Write</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Ler</translation>
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
        <translation>O avrdude não é confiável para os bytes de fuse deste microcontrolador.</translation>
    </message>
    <message>
        <source>No fuse bytes are loaded. Choose the microcontroller in the first tab.</source>
        <translation>Nenhum byte de fuse carregado. Escolha o microcontrolador na primeira aba.</translation>
    </message>
    <message>
        <source>An ISP programmer does not reach the fuse bytes of this microcontroller.</source>
        <translation>Um gravador ISP não consegue acessar os bytes de fuse deste microcontrolador.</translation>
    </message>
</context>
<context>
    <name>FusesTextView</name>
    <message>
        <source>not read from the chip</source>
        <translation>chip não lido</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>JSON FILE NOT FOUND</source>
        <translation>ARQUIVO JSON NÃO ENCONTRADO</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Não foi possível abrir o arquivo</translation>
    </message>
    <message>
        <source>JSON FILE ERROR</source>
        <translation>ERRO NO ARQUIVO JSON</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>não é um objeto JSON</translation>
    </message>
</context>
<context>
    <name>KorvelApp</name>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Não foi possível salvar as configurações no arquivo: </translation>
    </message>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Não foi possível carregar as configurações do arquivo: </translation>
    </message>
    <message>
        <source>The file is kept as %1.</source>
        <translation>O arquivo foi mantido como %1.</translation>
    </message>
    <message>
        <source>avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps erased, perhaps half written.</source>
        <translation>O avrdude ainda está trabalhando no chip. Se ele for encerrado agora, o chip ficará como está: talvez apagado, talvez gravado pela metade.</translation>
    </message>
    <message>
        <source>Do you want to close Korvel all the same?</source>
        <translation>Deseja fechar o Korvel mesmo assim?</translation>
    </message>
    <message>
        <source>Korvel cannot write to the folder %1: what you choose is not kept.</source>
        <translation>O Korvel não consegue gravar na pasta %1: o que você escolher não será mantido.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>EEPROM written successfully.</source>
        <translation>EEPROM gravada com sucesso.</translation>
    </message>
    <message>
        <source>EEPROM verified successfully.</source>
        <translation>EEPROM verificada com sucesso.</translation>
    </message>
    <message>
        <source>EEPROM read successfully.</source>
        <translation>EEPROM lida com sucesso.</translation>
    </message>
    <message>
        <source>FLASH written successfully.</source>
        <translation>FLASH gravada com sucesso.</translation>
    </message>
    <message>
        <source>FLASH verified successfully.</source>
        <translation>FLASH verificada com sucesso.</translation>
    </message>
    <message>
        <source>FLASH read successfully.</source>
        <translation>FLASH lida com sucesso.</translation>
    </message>
    <message>
        <source>changed on %1</source>
        <translation>modificado em %1</translation>
    </message>
    <message>
        <source>The file is not there: avrdude has not written it.</source>
        <translation>O arquivo não existe: o avrdude não o criou.</translation>
    </message>
    <message>
        <source>The file is empty: the chip is blank or locked, or the disk is full.</source>
        <translation>O arquivo está vazio: o chip está vazio ou protegido contra leitura, ou o disco está cheio.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>Reading would replace this file:</source>
        <translation>A leitura substituiria este arquivo:</translation>
    </message>
    <message>
        <source>%1 bytes of data</source>
        <translation>%1 bytes de dados</translation>
    </message>
    <message>
        <source>%1 bytes of data, %2 % of the memory</source>
        <translation>%1 bytes de dados, %2% da memória</translation>
    </message>
</context>
<context>
    <name>MemoryView</name>
    <message>
        <source>Write</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Ler</translation>
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
        <translation>Gravador não encontrado.</translation>
    </message>
    <message>
        <source>Programmer did not detect the microcontroller

- Check connections and power supply
- Set a lower speed (Port &amp; Speed)</source>
        <translation>O gravador não detectou o microcontrolador

- Verifique as conexões e a alimentação
- Escolha uma velocidade menor (Porta &amp; velocidade)</translation>
    </message>
    <message>
        <source>Could not read contents
Device is either blank or read-protected (Lock Bits are set).</source>
        <translation>Não foi possível ler o conteúdo
O chip está vazio ou protegido contra leitura (lock bits ativos).</translation>
    </message>
    <message>
        <source>Wrong microcontroller selected.</source>
        <translation>O microcontrolador escolhido não é o correto.</translation>
    </message>
    <message>
        <source>Verification error.</source>
        <translation>Erro de verificação.</translation>
    </message>
    <message>
        <source>Invalid file format. Please choose another file.</source>
        <translation>Formato de arquivo inválido. Escolha outro arquivo.</translation>
    </message>
    <message>
        <source>See the message in the dialog box.</source>
        <translation>Veja a mensagem no registro abaixo.</translation>
    </message>
    <message>
        <source>UsbAsp not found.</source>
        <translation>UsbAsp não encontrado.</translation>
    </message>
    <message>
        <source>No such file or directory.</source>
        <translation>Arquivo ou pasta inexistente.</translation>
    </message>
</context>
<context>
    <name>Production</name>
    <message>
        <source>The profile&apos;s file cannot be read.</source>
        <translation>Não foi possível ler o arquivo do perfil.</translation>
    </message>
    <message>
        <source>&quot;quiet&quot; is neither true nor false.</source>
        <translation>“quiet” não é true nem false.</translation>
    </message>
    <message>
        <source>&quot;boardLog&quot; is not the name of a file that ends in .csv.</source>
        <translation>“boardLog” não é um nome de arquivo terminado em .csv.</translation>
    </message>
    <message>
        <source>The serial number cannot be written.</source>
        <translation>O número de série não pode ser gravado.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Failed to load settings from file: </source>
        <translation>Não foi possível carregar as configurações do arquivo: </translation>
    </message>
</context>
<context>
    <name>ProfilesPresenter</name>
    <message>
        <source>Configuration named «%1» already exists.
Do you want to overwrite it?</source>
        <translation>O perfil “%1” já existe.
Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Excluir este perfil?</translation>
    </message>
    <message>
        <source>Select profile...</source>
        <translation>Escolher perfil...</translation>
    </message>
    <message>
        <source>Flash write successfully.
Flash verify successfully.
</source>
        <translation>FLASH gravada com sucesso.
FLASH verificada com sucesso.
</translation>
    </message>
    <message>
        <source>Eeprom write successfully.
Eeprom verify successfully.
</source>
        <translation>EEPROM gravada com sucesso.
EEPROM verificada com sucesso.
</translation>
    </message>
    <message>
        <source>Fuse bits write successfully.
Fuse bits verify successfully.</source>
        <translation>Fuse bits gravados com sucesso.
Fuse bits verificados com sucesso.</translation>
    </message>
    <message>
        <source>Failed to save settings to file: </source>
        <translation>Não foi possível salvar as configurações no arquivo: </translation>
    </message>
    <message>
        <source>The name of a profile cannot hold any of these characters: %1</source>
        <translation>O nome de um perfil não pode conter nenhum destes caracteres: %1</translation>
    </message>
    <message>
        <source>After a restart the list calls it %1.</source>
        <translation>Depois de reiniciar o programa, o perfil aparecerá na lista como %1.</translation>
    </message>
    <message>
        <source>1 fuse byte</source>
        <translation>1 byte de fuse</translation>
    </message>
    <message>
        <source>%1 fuse bytes</source>
        <translation>%1 bytes de fuse</translation>
    </message>
    <message>
        <source>no profile loaded</source>
        <translation>nenhum perfil carregado</translation>
    </message>
    <message>
        <source>Windows keeps this name for a device. Choose another one.</source>
        <translation>O Windows reserva este nome para um dispositivo. Escolha outro.</translation>
    </message>
    <message>
        <source>The name is too long for a file. Choose a shorter one.</source>
        <translation>O nome é longo demais para um arquivo. Escolha um mais curto.</translation>
    </message>
    <message>
        <source>After a restart the list does not show it.</source>
        <translation>Depois de reiniciar o programa, o perfil não aparecerá na lista.</translation>
    </message>
    <message>
        <source>profile changed since it was loaded</source>
        <translation>perfil alterado após carregar</translation>
    </message>
    <message>
        <source>The command that the profile has for this memory does not write a file. It is not run:</source>
        <translation>O comando do perfil para esta memória não grava um arquivo nela; por isso, não será executado:</translation>
    </message>
    <message>
        <source>No board is written with this profile.</source>
        <translation>Não é possível gravar placas com este perfil.</translation>
    </message>
    <message>
        <source>With this profile no box tells of a board that is good.</source>
        <translation>Com este perfil, nenhuma janela avisa quando uma placa é gravada com sucesso.</translation>
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
        <translation>Placa %1: gravada, %2 s</translation>
    </message>
    <message>
        <source>Board %1: failed: %2</source>
        <translation>Placa %1: falhou: %2</translation>
    </message>
    <message>
        <source>%1 good, %2 failed</source>
        <translation>boas: %1, falhas: %2</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>MCU selected: </source>
        <translation>MCU escolhido: </translation>
    </message>
    <message>
        <source>.
Fuse bytes set to datasheet default values.</source>
        <translation>.
Valores de fábrica colocados na janela. O chip não mudou.</translation>
    </message>
</context>
<context>
    <name>ProgrammingView</name>
    <message>
        <source>Write</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Use external button</source>
        <translation>Usar botão externo</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Write Selected Areas</source>
        <translation>Gravar as áreas escolhidas</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do arquivo:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Tipo de arquivo:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Locais recentes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir para trás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir para a frente</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta superior</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir para a pasta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nova pasta</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Criar uma pasta</translation>
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
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ver com detalhes</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Locais e favoritos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar arquivos &amp;ocultos</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nova pasta</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nova pasta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
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
Arquivo não encontrado.
Verifique o nome do arquivo.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Pasta não encontrada.
Verifique o nome da pasta.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Deseja realmente excluir “%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” está protegido contra gravação.
Excluir mesmo assim?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Não foi possível excluir a pasta.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Arquivo %1</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
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
        <translation>Computador</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nome de arquivo inválido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>O nome “%1” não pode ser usado. Tente um nome mais curto ou sem pontuação.</translation>
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
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rolar até aqui</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página acima</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abaixo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rolar para cima</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rolar para baixo</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borda esquerda</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borda direita</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página à esquerda</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página à direita</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rolar para a esquerda</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rolar para a direita</translation>
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
        <translation>Copiar &amp;endereço do link</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>avrdude is working</source>
        <translation>avrdude está trabalhando</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Gravando</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lendo</translation>
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
        <translation>FUSES</translation>
    </message>
    <message>
        <source>Select memory areas to write:</source>
        <translation>Áreas de memória a gravar:</translation>
    </message>
</context>
<context>
    <name>SerialNumber</name>
    <message>
        <source>Its memory is neither &quot;eeprom&quot; nor &quot;flash&quot;.</source>
        <translation>A memória dele não é “eeprom” nem “flash”.</translation>
    </message>
    <message>
        <source>Its format is none of &quot;little&quot;, &quot;big&quot;, &quot;decimal&quot; and &quot;hex&quot;.</source>
        <translation>O formato dele não é “little”, “big”, “decimal” nem “hex”.</translation>
    </message>
    <message>
        <source>&quot;address&quot;, &quot;bytes&quot; and &quot;next&quot; have to be whole numbers, and &quot;bytes&quot; 1 to %1.</source>
        <translation>“address”, “bytes” e “next” devem ser números inteiros não negativos, e “bytes”, de 1 a %1.</translation>
    </message>
    <message>
        <source>It lies outside the memory, which has %1 bytes.</source>
        <translation>Ele fica fora da memória, que tem %1 bytes.</translation>
    </message>
    <message>
        <source>The argument -e would erase the chip before the number is written.</source>
        <translation>O argumento -e apagaria o chip antes da gravação do número.</translation>
    </message>
    <message>
        <source>The number %1 takes more than &quot;bytes&quot;: %2.</source>
        <translation>O número %1 não cabe em “bytes”: %2.</translation>
    </message>
</context>
<context>
    <name>SettingsPresenter</name>
    <message>
        <source>Please restart the application to apply language changes.</source>
        <translation>Reinicie o programa para mudar o idioma.</translation>
    </message>
    <message>
        <source>Nothing found in the folder %1.</source>
        <translation>Nada encontrado na pasta %1.</translation>
    </message>
    <message>
        <source>avrdude gets further arguments that the programmer&apos;s file does not have: %1</source>
        <translation>O avrdude recebe argumentos adicionais que não estão no arquivo do gravador: %1</translation>
    </message>
    <message>
        <source>Until you choose a speed, that of the settings is used: %1</source>
        <translation>Até você escolher uma velocidade, é usada a das configurações: %1</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Programmer</source>
        <translation>Gravador</translation>
    </message>
    <message>
        <source>Port &amp;&amp; Speed ( New MCU -&gt; 185kHz )</source>
        <translation>Porta &amp;&amp; velocidade (MCU novo: 185kHz)</translation>
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
        <translation>O perfil indica outro programa a ser executado.</translation>
    </message>
    <message>
        <source>In the profile:</source>
        <translation>No perfil:</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Em uso:</translation>
    </message>
    <message>
        <source>A program can do whatever you can. Do you want the one of the profile to be run from now on?</source>
        <translation>Um programa pode fazer tudo o que você pode. Deseja que o programa do perfil seja executado de agora em diante?</translation>
    </message>
    <message>
        <source>The profile has arguments with which avrdude may read or write files.</source>
        <translation>O perfil tem argumentos com os quais o avrdude pode ler ou gravar arquivos.</translation>
    </message>
    <message>
        <source>Do you want to use them?</source>
        <translation>Deseja usá-los?</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Download URL is missing in server response.</source>
        <translation>Falta o endereço de download na resposta do servidor.</translation>
    </message>
    <message>
        <source>New version %1 available.

Open download page?</source>
        <translation>A versão %1 está disponível.

Abrir a página de download?</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>Could not open the link.</source>
        <translation>Não foi possível abrir o link.</translation>
    </message>
</context>
</TS>
