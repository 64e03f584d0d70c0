#include "records/par.h"

#include "records/hexadecimal.h"

#include <string>

namespace eeprog {

int valorpar(std::string_view texto, std::size_t posicion)
{
    if (posicion >= texto.size())
        return 0;
    return std::stoi(hexadecimal(texto.substr(posicion, 2)));
}

} // namespace eeprog
