#include "platform/linux/VolumenLinux.h"

#include "core/qt/SegundoPlano.h"
#include "platform/linux/Montajes.h"
#include "tests/platform/BusDePrueba.h"

#include <QThread>
#include <gtest/gtest.h>
#include <sys/statvfs.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

constexpr std::string_view mountinfo =
    "22 27 0:20 / /proc rw,nosuid shared:5 - proc proc rw\n"
    "27 1 254:1 / / rw,relatime shared:1 - ext4 /dev/vda1 rw,errors=remount-ro\n"
    "garbage\n"
    "31 27 254:3 / /home rw,relatime - xfs /dev/vda3 rw\n"
    "35 31 0:51 / /home/ana/nube rw master:2 shared:3 - fuse.sshfs ana@host:/ rw\n"
    "36 31 0:52 / /home/con\\040blanco\\134y\\012salto rw - nfs4 servidor:/x rw\n"
    "40 27 254:4 / /mnt rw - ext4 /dev/vda4 rw\n"
    "41 40 0:60 / /mnt rw - tmpfs tmpfs rw\n";

std::string mountinfoDe(const std::string &punto, const char *tipo)
{
    return "31 27 254:3 / " + punto + " rw,relatime - " + tipo + " origen rw\n";
}

const std::string hogar = std::filesystem::temp_directory_path();

} // namespace

TEST(Montajes, thePathLiesOnTheNearestMountAboveIt)
{
    const std::vector<std::pair<std::string, Montaje>> casos = {
        {"/root", {"/", "ext4"}},
        {"/", {"/", "ext4"}},
        {"/home", {"/home", "xfs"}},
        {"/home/ana", {"/home", "xfs"}},
        {"/homes/ana", {"/", "ext4"}},
        {"/home/ana/nube/a", {"/home/ana/nube", "fuse.sshfs"}},
        {"/home/con blanco\\y\nsalto/x", {"/home/con blanco\\y\nsalto", "nfs4"}},
        {"/mnt/x", {"/mnt", "tmpfs"}},
    };
    for (const auto &[ruta, montaje] : casos)
        EXPECT_EQ(montajeDe(mountinfo, ruta), montaje) << ruta;
}

TEST(Montajes, brokenTextGivesNothing)
{
    for (const char *texto : {"", "\n\n", "a b c d e f", "1 2 3 4 /home - ext4", "1 2 3:4 / / rw -",
                              "1 2 3:4 / / rw - ", "- - - - - - -", "1 2 3 / \\04 rw - ext4 x y"})
        EXPECT_EQ(montajeDe(texto, "/home"), std::nullopt) << texto;
}

TEST(Montajes, whatLiesOnTheNetworkOrInAnotherProcessCanHang)
{
    for (const char *tipo :
         {"nfs", "nfs4", "cifs", "smb3", "9p", "afs", "ceph", "fuse", "fuse.sshfs", "autofs"})
        EXPECT_TRUE(puedeBloquear(tipo)) << tipo;
    for (const char *tipo : {"ext4", "xfs", "btrfs", "zfs", "overlay", "tmpfs", "fuseblk", "nfsd", ""})
        EXPECT_FALSE(puedeBloquear(tipo)) << tipo;
}

TEST(VolumenLinux, aLocalVolumeIsReadAtOnce)
{
    VolumenLinux volumen{hogar, mountinfoDe("/", "ext4")};
    struct statvfs datos{};
    ASSERT_EQ(::statvfs(hogar.c_str(), &datos), 0);
    std::optional<Volumen::Espacio> espacio;
    volumen.leer([&](auto leido) { espacio = leido; });
    ASSERT_TRUE(espacio);
    EXPECT_EQ(espacio->bloque, datos.f_frsize);
    EXPECT_EQ(espacio->bloques, datos.f_blocks);
    EXPECT_LE(espacio->disponibles, datos.f_blocks);
}

TEST(VolumenLinux, aHomeThatIsNotThereGivesNothing)
{
    VolumenLinux volumen{hogar + "/no existe", mountinfoDe("/", "ext4")};
    int respuestas = 0;
    volumen.leer([&](auto leido) {
        ++respuestas;
        EXPECT_FALSE(leido);
    });
    EXPECT_EQ(respuestas, 1);
}

TEST(VolumenLinux, isCalledByTheMountPointOfHome)
{
    EXPECT_EQ((VolumenLinux{"/home/ana", mountinfo}.nombre()), "/home");
    EXPECT_EQ((VolumenLinux{"/home/ana", ""}.nombre()), "/");
}

TEST(VolumenLinux, aNetworkVolumeAnswersLaterOnTheMainThread)
{
    VolumenLinux volumen{hogar, mountinfoDe("/", "nfs4")};
    bool respondido = false;
    volumen.leer([&](auto leido) {
        EXPECT_TRUE(leido);
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
        respondido = true;
    });
    EXPECT_FALSE(respondido);
    EXPECT_TRUE(esperarA([&] { return respondido; }));
}

TEST(VolumenLinux, aSecondQuestionWhileTheFirstIsOnItsWayGivesNothing)
{
    VolumenLinux volumen{hogar, mountinfoDe("/", "cifs")};
    int conDatos = 0;
    int sinDatos = 0;
    const auto contar = [&](auto leido) { ++(leido ? conDatos : sinDatos); };
    volumen.leer(contar);
    volumen.leer(contar);
    EXPECT_EQ(sinDatos, 1);
    ASSERT_TRUE(esperarA([&] { return conDatos == 1; }));
    volumen.leer(contar);
    EXPECT_TRUE(esperarA([&] { return conDatos == 2; }));
    EXPECT_EQ(sinDatos, 1);
}

TEST(VolumenLinux, anAnswerAfterItsEndIsDropped)
{
    auto volumen = std::make_unique<VolumenLinux>(hogar, mountinfoDe("/", "9p"));
    volumen->leer([](auto) { ADD_FAILURE(); });
    volumen.reset();
    esperarSegundoPlano(10'000);
    dejarPasar();
}
