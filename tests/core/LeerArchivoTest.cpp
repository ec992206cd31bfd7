#include "core/LeerArchivo.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace ovanta;
namespace fs = std::filesystem;

namespace {

struct LeerArchivoEn : testing::Test
{
    fs::path carpeta = fs::temp_directory_path() / "leer-archivo";

    LeerArchivoEn() { fs::create_directories(carpeta); }
    ~LeerArchivoEn() override { fs::remove_all(carpeta); }

    std::string escribir(const std::string &nombre, const std::string &bytes) const
    {
        std::ofstream(carpeta / nombre, std::ios::binary) << bytes;
        return carpeta / nombre;
    }
};

/// The code of the refusal; 0 where the file was read.
int codigo(const std::string &ruta, std::uint64_t limite = 100, EnlaceFinal enlace = EnlaceFinal::seguir)
{
    try {
        leerArchivo(ruta, limite, enlace);
        return 0;
    } catch (const ErrorDeLectura &error) {
        EXPECT_STRNE(error.what(), "");
        return error.codigo();
    }
}

} // namespace

TEST_F(LeerArchivoEn, theBytesComeBackUnchanged)
{
    const std::string bytes("a\0\xff\n", 4);
    EXPECT_EQ(leerArchivo(escribir("a", bytes), 4, EnlaceFinal::seguir), bytes);
    EXPECT_EQ(leerArchivo(escribir("vacío", ""), 0, EnlaceFinal::seguir), "");
    const std::string largo(300'000, 'x');
    EXPECT_EQ(leerArchivo(escribir("largo", largo), 300'000, EnlaceFinal::rechazar), largo);
}

TEST_F(LeerArchivoEn, aFileAboveTheLimitIsRefused)
{
    EXPECT_EQ(codigo(escribir("a", "12345"), 4), EFBIG);
    EXPECT_EQ(codigo(escribir("b", "1234"), 4), 0);
}

TEST_F(LeerArchivoEn, aSparseFileOfAHundredMegabytesIsRefusedByItsSize)
{
    const std::string ruta = escribir("grande", "");
    fs::resize_file(ruta, 100'000'000);
    EXPECT_EQ(codigo(ruta), EFBIG);
}

TEST_F(LeerArchivoEn, aFileThatClaimsNoSizeIsStillHeldToTheLimit)
{
    EXPECT_EQ(codigo("/proc/self/maps", 10), EFBIG);
}

TEST_F(LeerArchivoEn, whatIsNoRegularFileIsRefusedWithoutWaiting)
{
    const std::string fifo = carpeta / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_EQ(codigo(fifo), EINVAL);
    EXPECT_EQ(codigo(carpeta), EINVAL);
    EXPECT_EQ(codigo("/dev/zero"), EINVAL);
}

TEST_F(LeerArchivoEn, aMissingFileSaysSo)
{
    EXPECT_EQ(codigo(carpeta / "nada"), ENOENT);
    EXPECT_EQ(codigo(""), ENOENT);
    const std::string ruta = escribir("a", "1");
    EXPECT_EQ(codigo(ruta + std::string("\0", 1)), ENOENT);
}

TEST_F(LeerArchivoEn, aFinalLinkIsFollowedOnlyWhereAsked)
{
    fs::create_symlink(escribir("a", "1"), carpeta / "enlace");
    EXPECT_EQ(codigo(carpeta / "enlace"), 0);
    EXPECT_EQ(codigo(carpeta / "enlace", 100, EnlaceFinal::rechazar), ELOOP);
}
