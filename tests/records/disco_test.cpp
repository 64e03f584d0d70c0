#include "records/disco.h"

#include <gtest/gtest.h>

#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <tuple>

namespace eeprog {

namespace fs = std::filesystem;

const std::string viejo = ":0300300002337A1E\r\n:00000001FF\r\n",
                  nuevo = ":0100000055AA\r\n:0100010066AA\r\n:00000001FF\r\n";

// Saving over files in a temporary folder any user may write to.
struct Disco : ::testing::Test {
    void SetUp() override
    {
        ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
        ASSERT_EQ(chmod(carpeta.c_str(), 0777), 0);
        archivo = carpeta + "/a.hex";
        std::ofstream(archivo, std::ios::binary) << viejo;
    }
    void TearDown() override { fs::remove_all(carpeta); }

    // clang-format off
    struct stat estado() const { struct stat s {}; return stat(archivo.c_str(), &s), s; }
    // clang-format on
    long archivos() const { return std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()); }

    std::string carpeta = testing::TempDir() + "discoXXXXXX", archivo;
};

// Runs paso in a child process and gives back its answer; as root, the child first becomes the
// given user and group (an unprivileged test already runs as such a user).
template <class Paso> bool aparte(Paso paso, uid_t usuario = 0)
{
    const pid_t hijo = fork();
    if (hijo == 0) {
        if (usuario != 0 && geteuid() == 0 &&
            (setgroups(0, nullptr) != 0 || setresgid(usuario, usuario, usuario) != 0 ||
             setresuid(usuario, usuario, usuario) != 0))
            _exit(2);
        _exit(paso() ? 0 : 1);
    }
    int salida = 0;
    EXPECT_TRUE(waitpid(hijo, &salida, 0) == hijo && WIFEXITED(salida) && WEXITSTATUS(salida) < 2)
        << "the child failed to run as user " << usuario;
    return WIFEXITED(salida) && WEXITSTATUS(salida) == 0;
}

TEST_F(Disco, AFileTheUserMayNotWriteIsNotReplaced)
{
    ASSERT_EQ(chmod(archivo.c_str(), 0444), 0);
    EXPECT_FALSE(aparte([&] { return escribirarchivo(archivo, nuevo); }, 65534));
    EXPECT_EQ(leerarchivo(archivo), viejo);
}

// In a shared sticky folder only the owner may replace a file, but whoever may write it may save it.
TEST_F(Disco, AWritableFileOfAnotherUserInAStickyFolderIsSaved)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give the file and the one who saves it two other users";
    ASSERT_EQ(chmod(carpeta.c_str(), 01777) | chown(archivo.c_str(), 65534, 65534) | chmod(archivo.c_str(), 0666), 0);
    EXPECT_TRUE(aparte([&] { return escribirarchivo(archivo, nuevo); }, 65533));
    EXPECT_EQ(std::tuple(leerarchivo(archivo).value_or(""), estado().st_uid, archivos()),
              std::tuple(nuevo, 65534u, 1L));
}

// The disk takes no more than the old file's size: neither that file nor a new one may be left spoiled.
TEST_F(Disco, AFailedSaveLeavesTheOldFileWholeAndNoNewOne)
{
    EXPECT_FALSE(aparte([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit lleno{viejo.size(), viejo.size()};
        const bool sobreviejo = setrlimit(RLIMIT_FSIZE, &lleno) == 0 && escribirarchivo(archivo, nuevo);
        return escribirarchivo(carpeta + "/b.hex", nuevo) || sobreviejo;
    }));
    EXPECT_EQ(std::pair(leerarchivo(archivo).value_or(""), archivos()), std::pair(viejo, 1L));
    EXPECT_FALSE(escribirarchivo("/dev/full", nuevo)) << "a device with no room";
}

TEST_F(Disco, SavingKeepsHardLinksOwnerAndModeAndWritesThroughASymbolicLink)
{
    const std::string otro = carpeta + "/b.hex", enlace = carpeta + "/c.hex";
    ASSERT_EQ(link(archivo.c_str(), otro.c_str()), 0);
    // As root the file is given to another user as well.
    ASSERT_EQ(chmod(archivo.c_str(), 0640) | (geteuid() == 0 ? chown(archivo.c_str(), 65534, 65534) : 0), 0);
    const struct stat antes = estado();
    EXPECT_TRUE(escribirarchivo(archivo, nuevo) && leerarchivo(otro) == nuevo);
    const struct stat despues = estado();
    EXPECT_EQ(std::tuple(despues.st_nlink, despues.st_mode & 07777, despues.st_uid, despues.st_gid),
              std::tuple(nlink_t{2}, 0640u, antes.st_uid, antes.st_gid));

    ASSERT_EQ(symlink("a.hex", enlace.c_str()), 0);
    EXPECT_TRUE(escribirarchivo(enlace, viejo) && fs::is_symlink(enlace));
    EXPECT_EQ(std::pair(leerarchivo(otro).value_or(""), archivos()), std::pair(viejo, 3L));
}

} // namespace eeprog
