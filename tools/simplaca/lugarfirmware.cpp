#include "lugarfirmware.h"

#include <filesystem>
#include <iostream>
#include <system_error>

namespace eeprog {

namespace {

// The kernel's own record of the program's file, whatever name or link it was started by.
std::filesystem::path directoriopropio()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

} // namespace

std::string buscarfirmware()
{
    const std::filesystem::path directorio = directoriopropio();
    const std::filesystem::path lugares[] = {(directorio / EEPROG_FIRMWARE_CONSTRUIDO).lexically_normal(),
                                             (directorio / EEPROG_FIRMWARE_INSTALADO).lexically_normal()};
    for (const auto& lugar : lugares) {
        std::error_code error;
        if (std::filesystem::is_regular_file(lugar, error))
            return lugar.string();
    }
    std::cerr << "eeprog-simplaca: no se encuentra el firmware de la placa en " << lugares[0].string() << " ni en "
              << lugares[1].string() << "; nómbrelo con --firmware ELF\n";
    return {};
}

} // namespace eeprog
