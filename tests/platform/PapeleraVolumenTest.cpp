#include "tests/platform/ApoyoPapelera.h"

#include "core/ErrorSistema.h"

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

/// Items on a volume that is not home's; each test runs in a mount namespace of its own.
class PapeleraDeVolumen : public ConPapelera
{
protected:
    void SetUp() override
    {
        if (!sePuedeMontar()) GTEST_SKIP() << "mount namespaces are not allowed here";
        volumen = hogar + "/disco";
        compartida = volumen + "/.Trash";
        propia = volumen + "/.Trash-" + std::to_string(::geteuid());
    }

    /// Runs `tarea` with a fresh volume that holds a/x; its complaint.
    std::string conVolumen(const std::function<std::string()> &tarea) const
    {
        return conMontajesPropios([&] {
                   montarTmpfs(volumen, "size=4m,mode=755");
                   escribir(volumen + "/a/x", "x");
                   return tarea();
               })
            .queja;
    }

    /// Moves a/x; empty if it went to `papelera` with its path relative to the volume.
    std::string moverA(const std::string &papelera) const
    {
        const std::string motivo = reciclar(volumen + "/a/x");
        if (!motivo.empty()) return motivo;
        const auto contenido = contenidoDe(papelera);
        if (!contenido.objetos.contains("x")) return "not in " + papelera;
        const std::string ruta = contenido.objetos.at("x").ruta;
        if (ruta != "a/x") return "wrong origin " + ruta;
        return hacer().contiene(volumen + "/a/x", ahora) ? "" : "not found again";
    }

    std::string volumen, compartida, propia;
};

std::string modo(const std::string &ruta)
{
    struct stat estado{};
    if (::lstat(ruta.c_str(), &estado) != 0) return "missing";
    return (estado.st_mode & 07777) == 0700 ? "" : "wrong mode of " + ruta;
}

} // namespace

TEST_F(PapeleraDeVolumen, anItemGoesToTheTrashAtTheTopOfItsVolume)
{
    EXPECT_EQ(conVolumen([&] {
                  const std::string queja = moverA(propia);
                  if (hay(suya)) return std::string("home's Trash was made too");
                  return queja + modo(propia) + modo(propia + "/files") + modo(propia + "/info");
              }),
              "");
}

TEST_F(PapeleraDeVolumen, aRealStickySharedTrashIsUsed)
{
    EXPECT_EQ(conVolumen([&] {
                  fs::create_directory(compartida);
                  ::chmod(compartida.c_str(), 01777);
                  return moverA(compartida + "/" + std::to_string(::geteuid()));
              }),
              "");
}

TEST_F(PapeleraDeVolumen, aSharedTrashThatIsALinkOrNotStickyIsPassedOver)
{
    EXPECT_EQ(conVolumen([&] {
                  fs::create_directory(volumen + "/trampa");
                  ::chmod((volumen + "/trampa").c_str(), 01777);
                  fs::create_directory_symlink("trampa", compartida);
                  return moverA(propia) + (fs::is_empty(volumen + "/trampa") ? "" : "went through the link");
              }),
              "");
    EXPECT_EQ(conVolumen([&] {
                  fs::create_directory(compartida);
                  ::chmod(compartida.c_str(), 0777);
                  return moverA(propia) + (fs::is_empty(compartida) ? "" : "used though not sticky");
              }),
              "");
}

TEST_F(PapeleraDeVolumen, aSharedTrashWithALinkForOurFolderIsPassedOver)
{
    EXPECT_EQ(conVolumen([&] {
                  fs::create_directories(volumen + "/trampa");
                  fs::create_directory(compartida);
                  ::chmod(compartida.c_str(), 01777);
                  fs::create_directory_symlink("../trampa", compartida + "/" + std::to_string(::geteuid()));
                  return moverA(propia) + (fs::is_empty(volumen + "/trampa") ? "" : "went through the link");
              }),
              "");
}

TEST_F(PapeleraDeVolumen, anOwnTrashThatIsALinkIsRefused)
{
    EXPECT_EQ(conVolumen([&] {
                  fs::create_directories(volumen + "/trampa");
                  fs::create_directory_symlink("trampa", propia);
                  const std::string queja = reciclar(volumen + "/a/x");
                  return hay(volumen + "/a/x") && fs::is_empty(volumen + "/trampa") ? queja : "moved";
              }),
              "la Papelera no es de fiar: «" + fs::path(propia).filename().string() +
                  "» no es una carpeta tuya");
}

TEST_F(PapeleraDeVolumen, anOwnTrashOfAnotherUserIsRefused)
{
    if (::geteuid() != 0) GTEST_SKIP() << "needs root to make another user's folder";
    EXPECT_EQ(conVolumen([&] {
                  fs::create_directories(propia);
                  if (::chown(propia.c_str(), 65534, 65534) != 0) return std::string("no chown");
                  const std::string queja = reciclar(volumen + "/a/x");
                  return hay(volumen + "/a/x") ? queja : "moved";
              }),
              "la Papelera no es de fiar: «.Trash-0» no es una carpeta tuya");
}

TEST_F(PapeleraDeVolumen, theTrashesOfAVolumeAndItsTopStay)
{
    EXPECT_EQ(conVolumen([&] {
                  std::string queja = moverA(propia);
                  fs::create_directories(volumen + "/.Trash-4711/files/suyo");
                  for (const std::string &ruta : {propia, propia + "/files/x", volumen + "/.Trash-4711",
                                                  volumen + "/.Trash-4711/files/suyo"}) {
                      if (reciclar(ruta) != "la Papelera no se puede mover a la Papelera") queja += ruta;
                  }
                  return reciclar(volumen) == textoErrno(EBUSY) ? queja : "the top of the volume moved";
              }),
              "");
}

TEST_F(PapeleraDeVolumen, aFolderThatHoldsTheHomeTrashOnAnotherVolumeStays)
{
    EXPECT_EQ(conMontajesPropios([&] {
                  montarTmpfs(hogar + "/.local/share", "size=1m,mode=755");
                  const std::string queja = reciclar(hogar + "/.local");
                  return hay(hogar + "/.local") ? queja : "moved";
              }).queja,
              "la Papelera no se puede mover a la Papelera");
}

TEST_F(PapeleraDeVolumen, aBindMountOfTheSameVolumeIsRefused)
{
    EXPECT_EQ(
        conMontajesPropios([&] {
            escribir(base + "/otra/x", "x");
            fs::create_directories(hogar + "/otra");
            if (::mount((base + "/otra").c_str(), (hogar + "/otra").c_str(), nullptr, MS_BIND, nullptr) != 0)
                return std::string("no bind mount");
            const std::string queja = reciclar(hogar + "/otra/x");
            if (!hay(hogar + "/otra/x")) return std::string("moved");
            return contenidoDe(suya).infosSueltas.empty() ? queja : "stray info file";
        }).queja,
        textoErrno(EXDEV));
}

TEST_F(PapeleraDeVolumen, aReadOnlyVolumeIsRefused)
{
    EXPECT_EQ(conVolumen([&] {
                  if (::mount(nullptr, volumen.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0)
                      return std::string("no remount");
                  const std::string queja = reciclar(volumen + "/a/x");
                  return hay(volumen + "/a/x") ? queja : "moved";
              }),
              textoErrno(EROFS));
}

TEST_F(PapeleraDeVolumen, onAFullDiskTheItemStaysAndNoInfoFileIsLeft)
{
    EXPECT_EQ(conVolumen([&] {
                  std::string queja = moverA(propia);
                  escribir(volumen + "/a/y", "intacto");
                  try {
                      escribir(volumen + "/relleno", std::string(8 << 20, 'r'));
                  } catch (const std::system_error &) {
                      queja += reciclar(volumen + "/a/y");
                  }
                  const auto contenido = contenidoDe(propia);
                  if (leer(volumen + "/a/y") != "intacto" || contenido.objetos.size() != 1)
                      return std::string("moved");
                  return contenido.infosSueltas.empty() ? queja : "stray info file";
              }),
              textoErrno(ENOSPC));
}
