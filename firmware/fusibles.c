/* The board's fuses, carried in the ELF's .fuse section for the simulated board to read and
 * for anyone flashing from the ELF; the Intel HEX holds the program alone.
 *
 * Low 0x3F: the crystal of 3 to 8 MHz with its slowest start-up (CKSEL3..0 = 1111,
 * SUT1..0 = 11), and brown-out detection on at 4.0 V. Below about 4.5 V the ATmega16 at
 * 7.37 MHz is out of its rating while the AT28C64B still takes writes down to 3.8 V, so a
 * power dip or a slow power-down could strobe a stray write: the reset holds the bus lines
 * as inputs, which the pull-ups keep high.
 * High 0xD9: JTAG off (PC2-PC5 are address lines), SPI on for the ISP header, CKOPT, EESAVE
 * and the boot fuses as they leave the factory. */
#include <avr/io.h>

FUSES = {
    .low = FUSE_BODLEVEL & FUSE_BODEN,
    .high = FUSE_SPIEN & FUSE_BOOTSZ1 & FUSE_BOOTSZ0,
};
