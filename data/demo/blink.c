/* The firmware that the demo writes: toggles PB0 twice a second on an ATmega16 at its factory clock of 1 MHz.
 * blink.hex was made of it by
 *   avr-gcc -mmcu=atmega16 -DF_CPU=1000000UL -Os -Wall -o blink.elf blink.c
 *   avr-objcopy -O ihex -R .eeprom blink.elf blink.hex
 */

#include <avr/io.h>
#include <util/delay.h>

int main(void)
{
    DDRB |= _BV(PB0);
    for (;;) {
        PORTB ^= _BV(PB0);
        _delay_ms(500);
    }
}
