#include "core/Cleaner.h"
#include "platform/linux/PapeleraLinux.h"
#include "tests/HogarTemporal.h"
#include "tests/PlataformaDePrueba.h"

#include <QCoroTask>
#include <filesystem>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The fakes, but for the Trash, which is the real one.
class PlataformaConPapelera final : public PlataformaDePrueba
{
public:
    explicit PlataformaConPapelera(const std::string &hogar)
        : m_real({{hogar, hogar + "/.local/share"}, [this] { return reloj().ahora(); }})
    {
        m_lugares.hogar = hogar;
    }
    Papelera &papelera() override { return m_real; }

private:
    PapeleraLinux m_real;
};

struct CleanerEnlaces : testing::Test
{
    HogarTemporal hogar;
    PlataformaConPapelera plataforma{hogar.ruta()};
    Cleaner limpiador{plataforma};

    ResultadoLimpieza limpiar(const std::string &ruta)
    {
        return QCoro::waitFor(limpiador.limpiarRutas({ruta}, "prueba"));
    }
};

} // namespace

TEST_F(CleanerEnlaces, aLinkOnTheWayToAProtectedNameMovesNothing)
{
    const std::string llave = HogarTemporal::archivo(hogar.en(".ssh/id_ed25519"));
    HogarTemporal::enlace(hogar.en("atajo"), hogar.en(".ssh"));
    const std::string ruta = hogar.en("atajo/id_ed25519");

    const auto resultado = limpiar(ruta);

    EXPECT_EQ(resultado.movidos, 0);
    EXPECT_THAT(resultado.errores, ElementsAre("Ruta rechazada: " + ruta));
    EXPECT_TRUE(std::filesystem::exists(llave));
}

TEST_F(CleanerEnlaces, aLinkOnTheWayToHomeDoesNotOpenItsProtectedFolders)
{
    HogarTemporal::archivo(hogar.en("Documents/tesis.odt"));
    HogarTemporal::enlace(hogar.en("casa"), hogar.ruta());

    const auto resultado = limpiar(hogar.en("casa/Documents"));

    EXPECT_EQ(resultado.movidos, 0);
    EXPECT_TRUE(std::filesystem::exists(hogar.en("Documents/tesis.odt")));
}

TEST_F(CleanerEnlaces, aCacheFolderThatIsALinkInsideHomeIsCleanedAllTheSame)
{
    HogarTemporal::archivo(hogar.en("disco/cache/pip/rueda"));
    HogarTemporal::enlace(hogar.en(".cache"), hogar.en("disco/cache"));

    const auto resultado = limpiar(hogar.en(".cache/pip"));

    EXPECT_EQ(resultado.movidos, 1);
    EXPECT_THAT(resultado.errores, IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(hogar.en("disco/cache/pip")));
}
