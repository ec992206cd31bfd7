#include "tests/platform/ApoyoPapelera.h"

#include "core/Descriptor.h"
#include "core/ErrorSistema.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

constexpr uid_t nadie = 65534;

/// What an ordinary user has no right to move.
class PapeleraSinPermiso : public ConPapelera
{
protected:
    PapeleraSinPermiso()
    {
        escribir(hogar + "/a/x", "intacto");
        darHogar();
    }
    ~PapeleraSinPermiso() override
    {
        std::error_code ignorado;
        fs::permissions(hogar + "/a", fs::perms::owner_all, ignorado);
    }

    /// Gives the home to the user that `comoCualquiera` becomes.
    void darHogar() const
    {
        if (::geteuid() != 0) return;
        ASSERT_EQ(::lchown(hogar.c_str(), nadie, nadie), 0);
        for (const auto &entrada : fs::recursive_directory_iterator(hogar))
            ASSERT_EQ(::lchown(entrada.path().c_str(), nadie, nadie), 0);
    }

    std::string reciclarComoCualquiera(const std::string &ruta) const
    {
        return comoCualquiera([&] { return reciclar(ruta); }).queja;
    }

    void esperarIntacto(const std::string &ruta) const
    {
        EXPECT_EQ(leer(ruta), "intacto");
        EXPECT_TRUE(nombresEn(suya + "/files").empty());
        EXPECT_TRUE(nombresEn(suya + "/info").empty()) << "no stray info file";
    }
};

/// Sets or clears the immutable flag; false where the file system has none or we may not.
bool hacerInmutable(const std::string &ruta, bool si)
{
    const Descriptor archivo(::open(ruta.c_str(), O_RDONLY | O_CLOEXEC));
    int marcas = 0;
    if (::ioctl(archivo.numero(), FS_IOC_GETFLAGS, &marcas) != 0) return false;
    marcas = si ? marcas | FS_IMMUTABLE_FL : marcas & ~FS_IMMUTABLE_FL;
    return ::ioctl(archivo.numero(), FS_IOC_SETFLAGS, &marcas) == 0;
}

} // namespace

TEST_F(PapeleraSinPermiso, theOwnerOfAllCanMoveIt)
{
    EXPECT_EQ(reciclarComoCualquiera(hogar + "/a/x"), "");
    EXPECT_EQ(leer(suya + "/files/x"), "intacto");
}

TEST_F(PapeleraSinPermiso, anItemInAReadOnlyFolderStays)
{
    fs::permissions(hogar + "/a", fs::perms(0555));
    EXPECT_EQ(reciclarComoCualquiera(hogar + "/a/x"), textoErrno(EACCES));
    esperarIntacto(hogar + "/a/x");
}

TEST_F(PapeleraSinPermiso, aReadOnlyFolderItselfStays)
{
    fs::permissions(hogar + "/a", fs::perms(0555));
    EXPECT_EQ(reciclarComoCualquiera(hogar + "/a"), textoErrno(EACCES));
    esperarIntacto(hogar + "/a/x");
}

TEST_F(PapeleraSinPermiso, aTrashThatCannotBeMadeKeepsTheItem)
{
    fs::permissions(hogar, fs::perms(0555));
    EXPECT_NE(reciclarComoCualquiera(hogar + "/a/x"), "");
    esperarIntacto(hogar + "/a/x");
    fs::permissions(hogar, fs::perms(0755));
}

TEST_F(PapeleraSinPermiso, anotherUsersFileInAStickyFolderStays)
{
    if (::geteuid() != 0) GTEST_SKIP() << "needs root to make another user's file";
    ASSERT_EQ(::lchown((hogar + "/a").c_str(), 0, 0), 0);
    ASSERT_EQ(::lchown((hogar + "/a/x").c_str(), 0, 0), 0);
    ASSERT_EQ(::chmod((hogar + "/a").c_str(), 01777), 0);
    EXPECT_EQ(reciclarComoCualquiera(hogar + "/a/x"), textoErrno(EPERM));
    esperarIntacto(hogar + "/a/x");
}

TEST_F(PapeleraSinPermiso, anImmutableFileStays)
{
    if (!hacerInmutable(hogar + "/a/x", true)) GTEST_SKIP() << "no immutable files here";
    EXPECT_EQ(reciclarComoCualquiera(hogar + "/a/x"), textoErrno(EPERM));
    esperarIntacto(hogar + "/a/x");
    EXPECT_TRUE(hacerInmutable(hogar + "/a/x", false));
}

TEST_F(PapeleraSinPermiso, aTrashOfAnotherUserIsRefused)
{
    if (::geteuid() != 0) GTEST_SKIP() << "needs root to make another user's Trash";
    fs::create_directories(suya + "/files");
    fs::create_directories(suya + "/info");
    darHogar();
    ASSERT_EQ(::lchown((suya + "/files").c_str(), 0, 0), 0);
    ASSERT_EQ(::chmod((suya + "/files").c_str(), 0777), 0);
    EXPECT_EQ(reciclarComoCualquiera(hogar + "/a/x"),
              "la Papelera no es de fiar: «files» no es una carpeta tuya");
    EXPECT_NE(reciclar(hogar + "/a/x"), "") << "root leaves nothing of its own in a user's Trash";
    esperarIntacto(hogar + "/a/x");
}

TEST_F(PapeleraSinPermiso, aFolderThatCannotBeReadMovesWithoutANotedSize)
{
    fs::create_directory(hogar + "/a/cerrada");
    darHogar();
    ASSERT_EQ(::chmod((hogar + "/a/cerrada").c_str(), 0), 0);
    EXPECT_EQ(reciclarComoCualquiera(hogar + "/a"), "");
    EXPECT_EQ(leer(suya + "/files/a/x"), "intacto");
    EXPECT_FALSE(hay(suya + "/directorysizes"));
}
