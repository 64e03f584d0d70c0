#!/usr/bin/env python3
"""Hace at28c64b.hex: un archivo Intel HEX que ocupa el lugar del programa del
microcontrolador de la placa. Sus datos son solo un texto ASCII que lo explica.

Uso: python3 hacerhex.py   (escribe at28c64b.hex junto a este archivo)
"""
from pathlib import Path

TEXTO = (
    "Este archivo ocupa el lugar del programa del microcontrolador de la placa "
    "del programador de memorias EEPROM AT28C64B (microcontrolador ATmega8515, "
    "cristal de 7,3728 MHz). No es un programa: sus datos son solo este texto. "
    "Guarde aqui el programa de su placa, en formato Intel HEX, y grabelo en el "
    "microcontrolador por el conector ISP J3. La placa habla con el PC por el "
    "puerto serie a 9600 baudios, 8 bits de datos, sin paridad y 1 bit de "
    "parada. Vea el circuito en Eeprog.bmp y las conexiones en LEEME.md."
)
POR_REGISTRO = 16  # bytes de datos en cada registro


def registro(direccion, tipo, datos):
    """Un registro ':LLAAAATT<datos>CC' con su suma de control."""
    cuerpo = bytes([len(datos), direccion >> 8, direccion & 0xFF, tipo]) + datos
    suma = (-sum(cuerpo)) & 0xFF
    return ":" + (cuerpo + bytes([suma])).hex().upper()


def main():
    datos = TEXTO.encode("ascii")  # solo ASCII: sin acentos
    resto = len(datos) % POR_REGISTRO
    if resto:
        datos += b" " * (POR_REGISTRO - resto)  # el ultimo registro, con blancos
    lineas = [registro(i, 0x00, datos[i:i + POR_REGISTRO]) for i in range(0, len(datos), POR_REGISTRO)]
    lineas.append(registro(0, 0x01, b""))  # fin de archivo: :00000001FF
    destino = Path(__file__).resolve().with_name("at28c64b.hex")
    destino.write_bytes(("\r\n".join(lineas) + "\r\n").encode("ascii"))


if __name__ == "__main__":
    main()
