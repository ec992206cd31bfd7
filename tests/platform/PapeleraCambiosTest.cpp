#include "tests/platform/ApoyoPapelera.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

/// Somebody changes the disk between the measuring and the end of the move.
class PapeleraConCambios : public ConPapelera
{
protected:
    PapeleraConCambios()
    {
        escribir(hogar + "/a/x", "medido");
        escribir(base + "/fuera/x", "ajeno");
    }

    /// Measures a/x, lets `cambio` happen and moves; the refusal.
    std::string tras(const std::function<void()> &cambio)
    {
        PapeleraLinux papelera = hacer();
        const auto medida = papelera.medir(hogar + "/a/x");
        cambio();
        const auto resultado = papelera.reciclar(*medida);
        return resultado ? "" : resultado.error();
    }

    /// Lets `cambio` happen right after one step of moving a/x; the refusal.
    std::string enElPaso(PasoPapelera cual, const std::function<void()> &cambio)
    {
        return reciclar(hogar + "/a/x", [&](PasoPapelera paso) {
            if (paso == cual) cambio();
        });
    }

    void esperarPapeleraVacia() const
    {
        EXPECT_TRUE(nombresEn(suya + "/files").empty());
        EXPECT_TRUE(nombresEn(suya + "/info").empty());
    }
};

constexpr const char *carpetaCambiada = "la carpeta que lo contiene cambió desde que se midió";
constexpr const char *cambiado = "cambió desde que se midió";

} // namespace

TEST_F(PapeleraConCambios, aFolderOnTheWayThatBecameALinkIsNotFollowed)
{
    EXPECT_EQ(tras([&] {
                  fs::rename(hogar + "/a", hogar + "/b");
                  fs::create_directory_symlink(base + "/fuera", hogar + "/a");
              }),
              carpetaCambiada);
    EXPECT_EQ(leer(base + "/fuera/x"), "ajeno");
    EXPECT_EQ(leer(hogar + "/b/x"), "medido");
    esperarPapeleraVacia();
}

TEST_F(PapeleraConCambios, anotherFolderInItsPlaceIsRefusedEvenWithTheSameItem)
{
    EXPECT_EQ(tras([&] {
                  fs::rename(hogar + "/a", hogar + "/b");
                  fs::create_directory(hogar + "/a");
                  fs::rename(hogar + "/b/x", hogar + "/a/x");
              }),
              carpetaCambiada);
    EXPECT_EQ(leer(hogar + "/a/x"), "medido");
    esperarPapeleraVacia();
}

TEST_F(PapeleraConCambios, anotherItemOfTheSameNameStays)
{
    EXPECT_EQ(tras([&] {
                  escribir(hogar + "/nuevo", "nuevo");
                  fs::rename(hogar + "/nuevo", hogar + "/a/x");
              }),
              cambiado);
    EXPECT_EQ(leer(hogar + "/a/x"), "nuevo");
    EXPECT_EQ(tras([&] {
                  fs::rename(hogar + "/a/x", hogar + "/a/y");
                  fs::create_symlink(hogar + "/a/y", hogar + "/a/x");
              }),
              cambiado);
    EXPECT_TRUE(fs::is_symlink(hogar + "/a/x"));
    esperarPapeleraVacia();
}

TEST_F(PapeleraConCambios, anItemThatWentAwayIsARefusal)
{
    EXPECT_NE(tras([&] { fs::remove(hogar + "/a/x"); }), "");
    EXPECT_EQ(enHijo([&] {
                  escribir(hogar + "/a/x");
                  return tras([&] { fs::remove_all(hogar + "/a"); });
              }).queja,
              carpetaCambiada);
    esperarPapeleraVacia();
}

TEST_F(PapeleraConCambios, whatTakesItsPlaceAtTheLastMomentIsPutBack)
{
    for (const PasoPapelera paso :
         {PasoPapelera::comprobado, PasoPapelera::infoCreada, PasoPapelera::infoEscrita}) {
        EXPECT_EQ(enElPaso(paso,
                           [&] {
                               escribir(hogar + "/nuevo", "nuevo");
                               fs::rename(hogar + "/nuevo", hogar + "/a/x");
                           }),
                  "cambió mientras se movía, así que se dejó en su sitio");
        EXPECT_EQ(leer(hogar + "/a/x"), "nuevo");
        esperarPapeleraVacia();
    }
}

TEST_F(PapeleraConCambios, aWrongItemWhosePlaceIsTakenAgainStaysInTheTrashWithItsOrigin)
{
    const std::string motivo = reciclar(hogar + "/a/x", [&](PasoPapelera paso) {
        if (paso == PasoPapelera::infoEscrita) {
            fs::rename(hogar + "/a/x", hogar + "/a/medido");
            escribir(hogar + "/a/x", "segundo");
        }
        if (paso == PasoPapelera::movido) escribir(hogar + "/a/x", "tercero");
    });
    EXPECT_EQ(motivo, "cambió mientras se movía, y lo que había en su lugar está en la Papelera");
    EXPECT_EQ(leer(hogar + "/a/medido"), "medido");
    EXPECT_EQ(leer(hogar + "/a/x"), "tercero");
    EXPECT_EQ(leer(suya + "/files/x"), "segundo");
    EXPECT_EQ(contenidoDe(suya).objetos.at("x").ruta, hogar + "/a/x");
}

TEST_F(PapeleraConCambios, anItemWhoseInfoFileSomebodyClearedAwayIsPutBack)
{
    EXPECT_NE(enElPaso(PasoPapelera::infoEscrita, [&] { fs::remove(suya + "/info/x.trashinfo"); }), "");
    EXPECT_EQ(leer(hogar + "/a/x"), "medido");
    esperarPapeleraVacia();
}

TEST_F(PapeleraConCambios, aTrashThatIsEmptiedDuringTheMoveLeavesAMovedItem)
{
    EXPECT_EQ(enElPaso(PasoPapelera::movido,
                       [&] {
                           fs::remove(suya + "/files/x");
                           fs::remove(suya + "/info/x.trashinfo");
                       }),
              "");
    EXPECT_FALSE(hay(hogar + "/a/x"));
}

TEST_F(PapeleraConCambios, aNameTakenInTheTrashAtTheLastMomentIsNotOverwritten)
{
    EXPECT_EQ(enElPaso(PasoPapelera::infoEscrita,
                       [&] {
                           if (!hay(suya + "/files/x")) escribir(suya + "/files/x", "ajeno");
                       }),
              "");
    EXPECT_EQ(leer(suya + "/files/x"), "ajeno");
    EXPECT_EQ(leer(suya + "/files/x.2"), "medido");
    EXPECT_EQ(nombresEn(suya + "/info"), std::vector<std::string>{"x.2.trashinfo"});
}

TEST_F(PapeleraConCambios, aTrashWithALinkOrAFileForAFolderIsRefused)
{
    fs::create_directories(base + "/trampa/files");
    fs::create_directories(base + "/trampa/info");
    const auto conEnlace = [&](const std::string &donde, const std::string &adonde) {
        fs::remove_all(suya);
        fs::create_directories(fs::path(donde).parent_path());
        fs::create_directory_symlink(adonde, donde);
        return reciclar(hogar + "/a/x");
    };
    const std::string motivo = "la Papelera no es de fiar: «";
    EXPECT_EQ(conEnlace(suya, base + "/trampa"), motivo + "Trash» no es una carpeta tuya");
    EXPECT_EQ(conEnlace(suya + "/files", base + "/trampa/files"), motivo + "files» no es una carpeta tuya");
    EXPECT_EQ(conEnlace(suya + "/info", base + "/trampa/info"), motivo + "info» no es una carpeta tuya");
    fs::remove_all(suya);
    escribir(suya, "un archivo");
    EXPECT_EQ(reciclar(hogar + "/a/x"), motivo + "Trash» no es una carpeta tuya");

    EXPECT_EQ(leer(hogar + "/a/x"), "medido");
    EXPECT_TRUE(nombresEn(base + "/trampa/files").empty());
    EXPECT_TRUE(nombresEn(base + "/trampa/info").empty());
}
