#include "ApoyoEjecutar.h"

#include <cstring>
#include <future>
#include <gtest/gtest.h>

using namespace ovanta;

/// Tools that keep the caller for seconds, most of them idle. They all run at once, each in a background
/// task, and every test looks at the end of its own.
class EjecutarEsperas : public testing::Test
{
protected:
    struct Fin
    {
        std::string salida;
        std::optional<ShellError> error;
    };

    struct Carreras
    {
        CarpetaTemporal carpeta;
        std::future<Fin> sorda = lanzar("sorda", "trap '' TERM; sleep 1000 & echo $! > \"$0\"; wait", 0.5);
        std::future<Fin> hijaSorda =
            lanzar("hijaSorda", "sh -c 'trap \"\" TERM; sleep 1000 & echo $! > \"$0\"; wait' \"$0\"; :", 2);
        std::future<Fin> nietaAjena =
            lanzar("nietaAjena", "setsid sleep 1000 & echo $! > \"$0\"; exec sleep 1000", 2);
        std::future<Fin> nietaConTuberia =
            lanzar("nietaConTuberia", "sleep 1000 & echo $! > \"$0\"; echo hecho", deSobra);
        std::future<Fin> gibibytes = lanzar(
            "gibibytes", "head -c 1073741824 /dev/zero & head -c 1073741824 /dev/zero >&2; wait", deSobra);

        std::future<Fin> lanzar(const std::string &nombre, const std::string &guion, double timeout)
        {
            return std::async(std::launch::async, [guion, timeout, ruta = carpeta.ruta(nombre)] {
                Fin fin;
                fin.error =
                    errorDe([&] { fin.salida = ejecutar("/bin/sh", {"-c", guion, ruta}, timeout, false); });
                return fin;
            });
        }
    };

    static void SetUpTestSuite() { carreras = new Carreras; }
    static void TearDownTestSuite() { delete carreras; }

    static void esperarAgotado(std::future<Fin> &carrera)
    {
        const Fin fin = carrera.get();
        ASSERT_TRUE(fin.error);
        EXPECT_EQ(fin.error->caso(), ShellError::Caso::agotado);
    }

    static inline Carreras *carreras = nullptr;
};

TEST_F(EjecutarEsperas, aToolThatIgnoresTheStopIsKilledWithItsGroup)
{
    esperarAgotado(carreras->sorda);
    const pid_t hija = carreras->carpeta.pidEscritoEn("sorda");
    ASSERT_GT(hija, 0);
    EXPECT_TRUE(termina(hija));
}

TEST_F(EjecutarEsperas, aChildThatIgnoresTheStopDoesNotOutliveTheToolThatObeyed)
{
    esperarAgotado(carreras->hijaSorda);
    const pid_t nieta = carreras->carpeta.pidEscritoEn("hijaSorda");
    ASSERT_GT(nieta, 0);
    EXPECT_TRUE(termina(nieta));
}

TEST_F(EjecutarEsperas, aDaemonThatLeftTheGroupCannotHoldTheCallerOfAStoppedTool)
{
    esperarAgotado(carreras->nietaAjena);
    const pid_t ajena = carreras->carpeta.pidEscritoEn("nietaAjena");
    ASSERT_GT(ajena, 0);
    EXPECT_TRUE(vive(ajena));
    ::kill(ajena, SIGKILL);
}

TEST_F(EjecutarEsperas, aGrandchildThatHoldsThePipeCannotHoldTheCallerAndIsLeftAlone)
{
    const Fin fin = carreras->nietaConTuberia.get();
    EXPECT_FALSE(fin.error);
    EXPECT_EQ(fin.salida, "hecho\n");
    const pid_t nieta = carreras->carpeta.pidEscritoEn("nietaConTuberia");
    ASSERT_GT(nieta, 0);
    EXPECT_TRUE(vive(nieta));
    ::kill(nieta, SIGKILL);
}

TEST_F(EjecutarEsperas, aGibibyteOnEachStreamAtOnceComesBackWhole)
{
    const Fin fin = carreras->gibibytes.get();
    EXPECT_FALSE(fin.error);
    ASSERT_EQ(fin.salida.size(), std::size_t{1} << 30);
    EXPECT_EQ(fin.salida.front(), '\0');
    EXPECT_EQ(std::memcmp(fin.salida.data(), fin.salida.data() + 1, fin.salida.size() - 1), 0);
}
