#include "tests/ui/BancoInterfaz.h"
#include "ui/ResumenViewEstado.h"

#include <QCoroTask>
#include <QSignalSpy>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class ResumenView : public BancoVentana
{
protected:
    ResumenView() { poner({{"a", "A", "cache-a", "developer", "safe", "contents", 1'000'000}}); }
};

} // namespace

TEST_F(ResumenView, showsTheDiskTheEstimateAndTheCards)
{
    abrir();
    esperar([&] { return !app().reglas().midiendo(); });
    reposar();
    for (const char *texto : {"Ovanta",
                              "Analiza tu Mac de forma segura",
                              "86,02 GB libres",
                              "Queda poco espacio",
                              "/System/Volumes/Data",
                              "Aviso a 100 GB · crítico a 50 GB",
                              "Ahorro potencial (estimación)",
                              "1,02 GB",
                              "estimado; varía según lo seleccionado",
                              "Seguro",
                              "Revisar",
                              "Manual",
                              "Nada se elimina: todo va a la Papelera y puedes recuperarlo.",
                              "Analizar todo",
                              "Ver la Papelera",
                              "Cachés regenerables",
                              "Duplicados · tamaño lógico",
                              "Dependencias",
                              "Simuladores nuevos",
                              "Memoria",
                              "Descargas viejas",
                              "Sin analizar todavía",
                              "83 % usado"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(seVe(QStringLiteral("Detener")));
}

TEST_F(ResumenView, firstShowingLoadsAndMeasuresTheCatalogueOnce)
{
    app();
    frenar();
    ResumenViewEstado estado;
    EXPECT_EQ(estado.ahorro(), QStringLiteral("0 GB"));
    estado.alMostrar();
    EXPECT_TRUE(estado.midiendo());
    EXPECT_EQ(estado.ahorro(), QStringLiteral("0 GB"));
    soltar();
    esperar([&] { return !estado.midiendo(); });
    EXPECT_EQ(estado.ahorro(), QStringLiteral("1,02 GB"));
    estado.alMostrar();
    EXPECT_FALSE(app().reglas().midiendo());
}

TEST_F(ResumenView, whileMeasuringItSaysSoAndHasNothingToStopYet)
{
    plataforma.m_apariencia.fijar({.movimientoReducido = true});
    frenar();
    abrir();
    EXPECT_TRUE(seVe(QStringLiteral("Midiendo carpetas… los totales aún están incompletos.")));
    EXPECT_TRUE(seVe(QStringLiteral("Analizando")));
    EXPECT_TRUE(seVe(QStringLiteral("Detener")));
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Detener")));
    capturar(QStringLiteral("resumen-midiendo"));
    soltar();
    esperar([&] { return !app().reglas().midiendo(); });
}

TEST_F(ResumenView, analysingEverythingReadsTheDiskAndMeasures)
{
    abrir();
    esperar([&] { return !app().reglas().midiendo(); });
    const int lecturas = plataforma.m_volumen.lecturas;
    frenar();
    pulsarBoton(QStringLiteral("Analizar todo"));
    EXPECT_EQ(plataforma.m_volumen.lecturas, lecturas + 1);
    EXPECT_TRUE(app().reglas().midiendo());
    soltar();
    esperar([&] { return !app().reglas().midiendo(); });
}

TEST_F(ResumenView, analysingEverythingAlsoLooksThroughTheFilesAndStopEndsThat)
{
    abrir();
    esperar([&] { return !app().reglas().midiendo(); });
    Freno freno;
    plataforma.m_accesoArchivos.alMirarCarpeta = freno.aqui();
    casa.carpeta(casa.en("Downloads"));
    pulsarBoton(QStringLiteral("Analizar todo"));
    EXPECT_TRUE(app().scanner().trabajando());
    EXPECT_TRUE(seVe(QStringLiteral("Analizando")));
    EXPECT_TRUE(disponible(QAccessible::Button, QStringLiteral("Detener")));
    esperar([&] { return freno.llegado(); });
    pulsarBoton(QStringLiteral("Detener"));
    EXPECT_EQ(app().scanner().progreso(), QStringLiteral("Deteniendo…"));
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Deteniendo")));
    freno.soltar();
    esperar([&] { return seVe(QStringLiteral("Analizar todo")); });
    EXPECT_FALSE(seVe(QStringLiteral("Deteniendo")));
}

TEST_F(ResumenView, theCardsTellWhatAnAnalysisFound)
{
    abrir();
    esperar([&] { return !app().reglas().midiendo(); });
    for (const char *nombre : {"uno.bin", "dos.bin"}) {
        casa.archivo(casa.en("Downloads/") + nombre);
        std::filesystem::resize_file(casa.en("Downloads/") + nombre, 2'000'000);
    }
    const auto guion = plataforma.m_herramientas.alEjecutar;
    plataforma.m_herramientas.alEjecutar = [&, guion](const auto &binario, const auto &args) {
        const std::string carpeta = casa.en("p/target");
        if (binario == "/usr/bin/find") return carpeta + "\n";
        return args.back() == carpeta ? "1000\t" + carpeta + "\n" : guion(binario, args);
    };
    plataforma.m_reloj.fijar(std::chrono::floor<Fecha::duration>(Fecha::clock::now()) +
                             std::chrono::days(91));
    QCoro::waitFor(app().scanner().analizar());
    reposar();
    for (const char *texto : {"1 grupos · clones APFS pueden compartir bloques", "2 MB",
                              "1 carpetas reinstalables", "1 MB", "2 sin tocar en 90 días", "4 MB"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_TRUE(seVe(QStringLiteral("1,03 GB"))) << "the estimate";
}

TEST_F(ResumenView, theTrashOpensAndACardLeadsToItsSection)
{
    abrir();
    esperar([&] { return !app().reglas().midiendo(); });
    pulsarBoton(QStringLiteral("Ver la Papelera"));
    EXPECT_EQ(plataforma.m_gestor.papelera, 1);
    pulsarBoton(QStringLiteral("Cachés regenerables"));
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::espacio);
}

TEST_F(ResumenView, theThresholdsAreWholeGigabytes)
{
    app().disco().fijarUmbralAviso(80.4);
    app().disco().fijarUmbralCritico(20.6);
    const ResumenViewEstado estado;
    EXPECT_EQ(estado.umbrales(), QStringLiteral("Aviso a 80 GB · crítico a 21 GB"));
}
