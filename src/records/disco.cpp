#include "records/disco.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace eeprog {

namespace fs = std::filesystem;

namespace {

// Writes the text over the start of an open file and cuts the file where the text ends. A plain
// file that must grow is given the room first, so a full disk shows before any old byte is lost.
bool volcar(int fd, std::string_view texto)
{
    struct stat estado {};
    if (fstat(fd, &estado) != 0 || fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) & ~O_NONBLOCK) != 0)
        return false;
    const bool plano = S_ISREG(estado.st_mode);
    const auto tamano = static_cast<off_t>(texto.size());
    // Only the growth is asked for: where the file system cannot reserve, the C library does it by
    // writing past the old end, which a file opened for writing alone allows.
    if (plano && tamano > estado.st_size && posix_fallocate(fd, estado.st_size, tamano - estado.st_size) != 0) {
        // A reservation cut short may have grown the file.
        [[maybe_unused]] const int devuelto = ftruncate(fd, estado.st_size);
        return false;
    }
    for (std::size_t hecho = 0; hecho < texto.size();) {
        const ssize_t escrito = write(fd, texto.data() + hecho, texto.size() - hecho);
        if (escrito > 0)
            hecho += static_cast<std::size_t>(escrito);
        else if (escrito == 0 || errno != EINTR)
            return false;
    }
    return !plano || ftruncate(fd, tamano) == 0;
}

} // namespace

std::optional<std::string> leerarchivo(const std::string& nombre)
{
    std::error_code error;
    if (!fs::is_regular_file(nombre, error))
        return std::nullopt;
    try {
        std::ifstream entrada(nombre, std::ios::binary);
        if (!entrada)
            return std::nullopt;
        std::string texto{std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>()};
        if (entrada.bad())
            return std::nullopt;
        return texto;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

bool escribirarchivo(const std::string& nombre, std::string_view texto)
{
    // The file is first made new, so that a failed save knows it may remove it. An existing one is
    // opened without O_CREAT, which the system may refuse on someone else's file in a shared folder
    // such as /tmp even when the user may write it. Non-blocking, so a pipe that nobody reads fails
    // the save at once instead of hanging it.
    constexpr int modo = O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    int fd = open(nombre.c_str(), modo | O_CREAT | O_EXCL, 0666);
    const bool creado = fd >= 0;
    if (!creado)
        fd = open(nombre.c_str(), modo);
    if (fd < 0)
        return false;
    const bool escrito = volcar(fd, texto);
    const bool hecho = close(fd) == 0 && escrito;
    if (creado && !hecho)
        unlink(nombre.c_str());
    return hecho;
}

// Opening without truncating changes nothing in an existing file; a new one is not made.
bool sepuedeescribir(const std::string& nombre)
{
    const int fd = open(nombre.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd >= 0)
        return close(fd) == 0;
    if (errno != ENOENT)
        return false;
    const fs::path carpeta = fs::path(nombre).parent_path();
    return access(carpeta.empty() ? "." : carpeta.c_str(), W_OK | X_OK) == 0;
}

} // namespace eeprog
