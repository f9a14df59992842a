/* What the demo writes into the EEPROM. greeting.eep was made of it by
 *   avr-gcc -mmcu=atmega16 -c -o greeting.o greeting.c
 *   avr-objcopy -O ihex -j .eeprom --change-section-lma .eeprom=0 greeting.o greeting.eep
 */

#include <avr/eeprom.h>

const char EEMEM greeting[] = "Written by Korvel";
