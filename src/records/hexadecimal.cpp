#include "records/hexadecimal.h"

#include <cstdint>

namespace eeprog {

namespace {

int valordigito(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return 0;
}

std::string concero(std::string texto, std::size_t cifras)
{
    if (texto.size() < cifras)
        texto.insert(0, cifras - texto.size(), '0');
    return texto;
}

} // namespace

// The total is 32-bit as no caller gives more than four characters; past seven digits
// it simply wraps.
std::string hexadecimal(std::string_view texto)
{
    std::uint32_t total = 0;
    for (char c : texto)
        total = total * 16 + static_cast<std::uint32_t>(valordigito(c));
    return std::to_string(static_cast<std::int32_t>(total));
}

std::string hexa(long valor)
{
    static constexpr char digitos[] = "0123456789ABCDEF";
    auto resto = static_cast<unsigned long>(valor < 0 ? valor & 0xFFFF : valor);
    std::string texto;
    do {
        texto.insert(texto.begin(), digitos[resto % 16]);
        resto /= 16;
    } while (resto != 0);
    return texto;
}

std::string doscifras(long valor)
{
    return concero(hexa(valor), 2);
}

std::string cuatrocifras(long valor)
{
    return concero(hexa(valor), 4);
}

} // namespace eeprog
