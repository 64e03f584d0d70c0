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

namespace eeprog {
namespace {

namespace fs = std::filesystem;

const std::string viejo = ":0300300002337A1E\r\n:00000001FF\r\n";
const std::string nuevo = ":0100000055AA\r\n:0100010066AA\r\n:00000001FF\r\n";

// Saving over files in a temporary folder any user may write to.
class Disco : public ::testing::Test {
protected:
    void SetUp() override
    {
        carpeta = testing::TempDir() + "discoXXXXXX";
        ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
        ASSERT_EQ(chmod(carpeta.c_str(), 0777), 0);
        archivo = carpeta + "/a.hex";
        std::ofstream(archivo, std::ios::binary) << viejo;
    }
    void TearDown() override { fs::remove_all(carpeta); }

    struct stat estado(const std::string& ruta) const
    {
        struct stat s {};
        EXPECT_EQ(stat(ruta.c_str(), &s), 0) << ruta;
        return s;
    }
    long archivos() const { return std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()); }

    std::string carpeta, archivo;
    const bool raiz = geteuid() == 0;
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
    EXPECT_EQ(waitpid(hijo, &salida, 0), hijo);
    EXPECT_TRUE(WIFEXITED(salida) && WEXITSTATUS(salida) < 2) << "the child failed to run as user " << usuario;
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
    if (!raiz)
        GTEST_SKIP() << "only root can give the file and the one who saves it two other users";
    ASSERT_EQ(chmod(carpeta.c_str(), 01777), 0);
    ASSERT_EQ(chown(archivo.c_str(), 65534, 65534), 0);
    ASSERT_EQ(chmod(archivo.c_str(), 0666), 0);
    EXPECT_TRUE(aparte([&] { return escribirarchivo(archivo, nuevo); }, 65533));
    EXPECT_EQ(leerarchivo(archivo), nuevo);
    EXPECT_EQ(estado(archivo).st_uid, 65534u);
    EXPECT_EQ(archivos(), 1);
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
    EXPECT_EQ(leerarchivo(archivo), viejo);
    EXPECT_EQ(archivos(), 1);
}

TEST_F(Disco, SavingKeepsHardLinksOwnerAndModeAndWritesThroughASymbolicLink)
{
    const std::string otro = carpeta + "/b.hex", enlace = carpeta + "/c.hex";
    ASSERT_EQ(link(archivo.c_str(), otro.c_str()), 0);
    ASSERT_EQ(chmod(archivo.c_str(), 0640), 0);
    if (raiz) {
        ASSERT_EQ(chown(archivo.c_str(), 65534, 65534), 0);
    }
    const struct stat antes = estado(archivo);
    EXPECT_TRUE(escribirarchivo(archivo, nuevo));
    EXPECT_EQ(leerarchivo(otro), nuevo);
    const struct stat despues = estado(archivo);
    EXPECT_EQ(despues.st_nlink, 2u);
    EXPECT_EQ(despues.st_mode & 07777, 0640u);
    EXPECT_EQ(despues.st_uid, antes.st_uid);
    EXPECT_EQ(despues.st_gid, antes.st_gid);

    ASSERT_EQ(symlink("a.hex", enlace.c_str()), 0);
    EXPECT_TRUE(escribirarchivo(enlace, viejo));
    EXPECT_TRUE(fs::is_symlink(enlace));
    EXPECT_EQ(leerarchivo(otro), viejo);
    EXPECT_EQ(archivos(), 3);
}

} // namespace
} // namespace eeprog
