#include "core/EscrituraAtomica.h"
#include "core/CarpetaDatos.h"
#include "core/LeerArchivo.h"
#include "tests/DiscoLleno.h"
#include "tests/HogarTemporal.h"

#include <atomic>
#include <cerrno>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <thread>

using namespace ovanta;
using testing::IsEmpty;

namespace {

struct EscrituraAtomica : testing::Test
{
    pruebas::HogarTemporal casa;
    std::string archivo = casa.en("datos.json");

    static std::string leer(const std::string &ruta)
    {
        return leerArchivo(ruta, 1'000'000, EnlaceFinal::rechazar);
    }
    static mode_t permisos(const std::string &ruta)
    {
        struct stat estado = {};
        EXPECT_EQ(::lstat(ruta.c_str(), &estado), 0);
        return estado.st_mode & 07777;
    }
    std::vector<std::string> nombres() const
    {
        std::vector<std::string> lista;
        for (const auto &entrada : std::filesystem::directory_iterator(casa.ruta()))
            lista.push_back(entrada.path().filename());
        return lista;
    }
};

} // namespace

TEST_F(EscrituraAtomica, theNewContentsReplaceTheOldAndNothingElseIsLeft)
{
    EXPECT_EQ(escribirAtomico(archivo, "uno"), 0);
    EXPECT_EQ(escribirAtomico(archivo, ""), 0);
    EXPECT_EQ(escribirAtomico(archivo, std::string("dos\0tres", 8)), 0);
    EXPECT_EQ(leer(archivo), std::string("dos\0tres", 8));
    EXPECT_THAT(nombres(), testing::ElementsAre("datos.json"));
}

TEST_F(EscrituraAtomica, theFileIsTheUsersAloneWhateverItWasAndWhateverTheUmask)
{
    casa.archivo(archivo);
    std::filesystem::permissions(archivo, std::filesystem::perms::all);
    for (const mode_t mascara : {mode_t{0}, mode_t{0777}}) {
        const mode_t antes = ::umask(mascara);
        EXPECT_EQ(escribirAtomico(archivo, "x"), 0);
        ::umask(antes);
        EXPECT_EQ(permisos(archivo), 0600u);
    }
}

TEST_F(EscrituraAtomica, aLinkInItsPlaceIsReplacedAndItsTargetLeftAlone)
{
    const auto destino = casa.archivo(casa.en("destino"));
    casa.enlace(archivo, destino);
    EXPECT_EQ(escribirAtomico(archivo, "x"), 0);
    EXPECT_FALSE(std::filesystem::is_symlink(archivo));
    EXPECT_EQ(leer(destino), "contenido");
}

TEST_F(EscrituraAtomica, aFifoInItsPlaceIsReplacedWithoutWaiting)
{
    ASSERT_EQ(::mkfifo(archivo.c_str(), 0600), 0);
    EXPECT_EQ(escribirAtomico(archivo, "x"), 0);
    EXPECT_EQ(leer(archivo), "x");
}

TEST_F(EscrituraAtomica, aFolderInItsPlaceStaysAndNothingIsLeftBeside)
{
    casa.carpeta(archivo);
    EXPECT_EQ(escribirAtomico(archivo, "x"), EISDIR);
    EXPECT_THAT(nombres(), testing::ElementsAre("datos.json"));
}

TEST_F(EscrituraAtomica, aMissingFolderIsToldAndNothingIsMade)
{
    EXPECT_EQ(escribirAtomico(casa.en("no/hay"), "x"), ENOENT);
    EXPECT_THAT(nombres(), IsEmpty());
}

TEST_F(EscrituraAtomica, aFullDiskKeepsTheOldContents)
{
    ASSERT_EQ(escribirAtomico(archivo, "viejo"), 0);
    {
        const pruebas::DiscoLleno lleno{1000};
        EXPECT_EQ(escribirAtomico(archivo, std::string(5000, 'x')), EFBIG);
    }
    EXPECT_EQ(leer(archivo), "viejo");
    EXPECT_THAT(nombres(), testing::ElementsAre("datos.json"));
}

TEST_F(EscrituraAtomica, aReaderNeverSeesAPartOfAFile)
{
    const std::string unos(300'000, '1'), doses(300'000, '2');
    ASSERT_EQ(escribirAtomico(archivo, unos), 0);
    std::atomic<bool> fin = false;
    std::thread lector([&] {
        while (!fin) {
            const auto visto = leer(archivo);
            EXPECT_TRUE(visto == unos || visto == doses) << visto.size();
        }
    });
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(escribirAtomico(archivo, i % 2 ? unos : doses), 0);
    fin = true;
    lector.join();
}

TEST_F(EscrituraAtomica, theDataFolderIsMadeWithThoseAboveItAndForTheUserAlone)
{
    const auto carpeta = carpetaDatos(casa.ruta());
    EXPECT_EQ(carpeta, casa.en("Library/Application Support/Ovanta"));
    for (const char *parte : {"Library", "Library/Application Support", "Library/Application Support/Ovanta"})
        EXPECT_EQ(permisos(casa.en(parte)), 0700u);
    EXPECT_EQ(carpetaDatos(casa.ruta()), carpeta) << "once more over what is there";
}

TEST_F(EscrituraAtomica, aDataFolderThatCannotBeMadeIsStillNamed)
{
    casa.archivo(casa.en("Library"));
    EXPECT_EQ(carpetaDatos(casa.ruta()), casa.en("Library/Application Support/Ovanta"));
}
