#include "plataforma/reloj.h"

#include <ctime>

namespace eeprog {

namespace {

std::string ahora(const char* formato)
{
    std::time_t segundos = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &segundos);
#else
    localtime_r(&segundos, &local);
#endif
    char texto[32];
    std::size_t largo = std::strftime(texto, sizeof texto, formato, &local);
    return std::string(texto, largo);
}

} // namespace

std::string RelojSistema::fecha() const
{
    return ahora("%d/%m/%Y");
}

std::string RelojSistema::hora() const
{
    return ahora("%H:%M:%S");
}

} // namespace eeprog
