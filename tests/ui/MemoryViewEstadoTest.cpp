#include "ui/MemoryViewEstado.h"
#include "tests/ui/BancoInterfaz.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::uint64_t gib = 1ULL << 30;

Proceso proceso(double cpu, std::uint64_t rss, std::size_t cuantos = 1)
{
    return {7, 70, "Cosa", rss, cpu, cuantos, true, ""};
}

class MemoriaEstado : public BancoInterfaz
{
protected:
    MemoriaSistema::Lectura &lectura() { return plataforma.m_memoriaSistema.actual; }
    AplicacionesEnMarchaDePrueba &enMarcha() { return plataforma.m_enMarcha; }

    void poner(std::int32_t pid, const std::string &nombre, std::uint64_t huella,
               AplicacionEnMarcha::Politica politica = AplicacionEnMarcha::Politica::regular)
    {
        const std::string ruta = "/Applications/" + nombre + ".app";
        const std::uint64_t inicio = static_cast<std::uint64_t>(pid) * 10;
        plataforma.m_procesos.muestras.push_back({pid, nombre, ruta, huella, 0, inicio});
        enMarcha().abiertas.push_back({pid, inicio, ruta, "org." + nombre, nombre, politica, ""});
    }
    void empezar()
    {
        app();
        leerMemoria();
        estado = std::make_unique<MemoryViewEstado>();
    }
    const std::vector<FilaProceso> &filas() const
    {
        return static_cast<ModeloFilas<FilaProceso> *>(estado->filas())->filas();
    }
    const std::vector<FilaRecomendacion> &recomendaciones() const
    {
        return static_cast<ModeloFilas<FilaRecomendacion> *>(estado->recomendaciones())->filas();
    }
    /// Turns the loop until nothing is being closed; the clock goes on with every turn.
    void hastaCerrar()
    {
        esperar([&] {
            plataforma.m_reloj.avanzar(500ms);
            return !estado->cerrando();
        });
    }

    std::unique_ptr<MemoryViewEstado> estado;
};

} // namespace

TEST(FilaDeProceso, tellsTheProcessorAsTheTableDoes)
{
    struct Caso
    {
        double cpu;
        const char *texto;
        Tinte tinte;
    };
    for (const Caso &caso : {Caso{0, "", Tinte::Secundario}, Caso{0.05, "", Tinte::Secundario},
                             Caso{0.1, "0.1 %", Tinte::Secundario}, Caso{9.9, "9.9 %", Tinte::Secundario},
                             Caso{10.0, "10 %", Tinte::Secundario}, Caso{19.9, "20 %", Tinte::Secundario},
                             Caso{20.0, "20 %", Tinte::Naranja}, Caso{49.9, "50 %", Tinte::Naranja},
                             Caso{50.0, "50 %", Tinte::Rojo}, Caso{100.0, "100 %", Tinte::Rojo}}) {
        const FilaProceso fila = filaDeProceso(proceso(caso.cpu, gib), 16 * gib, false);
        EXPECT_EQ(fila.cpu, QString::fromUtf8(caso.texto)) << caso.cpu;
        EXPECT_EQ(fila.tinteCpu, caso.tinte) << caso.cpu;
    }
}

TEST(FilaDeProceso, tellsTheMemoryAndItsShare)
{
    struct Caso
    {
        std::uint64_t rss;
        double fraccion;
        Tinte tinte;
    };
    for (const Caso &caso :
         {Caso{149, 0.149, Tinte::Azul}, Caso{150, 0.15, Tinte::Naranja}, Caso{249, 0.249, Tinte::Naranja},
          Caso{250, 0.25, Tinte::Rojo}, Caso{1000, 1.0, Tinte::Rojo}, Caso{1700, 1.0, Tinte::Rojo}}) {
        const FilaProceso fila = filaDeProceso(proceso(0, caso.rss), 1000, false);
        EXPECT_DOUBLE_EQ(fila.fraccion, caso.fraccion);
        EXPECT_EQ(fila.tinteMemoria, caso.tinte) << caso.rss;
    }
    EXPECT_EQ(filaDeProceso(proceso(0, 5 * gib / 2), 0, false).memoria, QStringLiteral("2,5 GB"));
}

TEST(FilaDeProceso, countsItsProcessesFromTwoOn)
{
    EXPECT_EQ(filaDeProceso(proceso(0, 1, 1), 10, false).cuantos, QString());
    EXPECT_EQ(filaDeProceso(proceso(0, 1, 2), 10, false).cuantos, QStringLiteral("2 procesos"));
}

TEST(TextosDeCierre, joinWhatClosedAndWhatStayed)
{
    EXPECT_EQ(textoDeCierre({}), QStringLiteral("Las apps seleccionadas ya no estaban abiertas."));
    EXPECT_EQ(textoDeCierre({{"Uno", "Dos"}, {}}), QStringLiteral("Cerradas: Uno, Dos."));
    const QString siguen =
        QStringLiteral("Siguen abiertas: Tres. Puede que estén esperando a que guardes algo, o "
                       "que se hayan escondido en la barra de menú en vez de salir.");
    EXPECT_EQ(textoDeCierre({{}, {{3, "Tres"}}}), siguen);
    EXPECT_EQ(textoDeCierre({{"Uno"}, {{3, "Tres"}}}), QStringLiteral("Cerradas: Uno. ") + siguen);
    EXPECT_EQ(textoDeForzar({}), QStringLiteral("No se pudo forzar la salida."));
    EXPECT_EQ(textoDeForzar({"Uno", "Dos"}), QStringLiteral("Forzada la salida de Uno, Dos."));
}

TEST_F(MemoriaEstado, theHeadingFollowsTheStateOfTheMemory)
{
    lectura().apps = 6 * gib;
    lectura().wired = 2 * gib;
    empezar();
    EXPECT_EQ(estado->enUso(), QStringLiteral("8 GB en uso de 16 GB"));
    EXPECT_DOUBLE_EQ(estado->presion(), 0.5);
    EXPECT_EQ(estado->etiqueta(), QStringLiteral("Presión normal"));
    EXPECT_EQ(estado->explicacion(), QStringLiteral("La memoria va holgada."));
    EXPECT_EQ(estado->simbolo(), QStringLiteral("memorychip"));
    EXPECT_EQ(estado->tinte(), Tinte::Verde);
    lectura().swapUsado = 2 * gib;
    leerMemoria();
    EXPECT_EQ(estado->explicacion(),
              QStringLiteral("Ahora hay RAM de sobra. El swap que ves es de un pico anterior."));
    lectura().nivel = MemoriaSistema::Nivel::tension;
    leerMemoria();
    EXPECT_EQ(estado->etiqueta(), QStringLiteral("Presión alta"));
    EXPECT_EQ(estado->explicacion(),
              QStringLiteral("macOS está comprimiendo memoria y escribiendo swap. Cerrar lo "
                             "que no uses lo alivia ya."));
    EXPECT_EQ(estado->simbolo(), QStringLiteral("exclamationmark.triangle.fill"));
    EXPECT_EQ(estado->tinte(), Tinte::Naranja);
    lectura().nivel = MemoriaSistema::Nivel::critico;
    leerMemoria();
    EXPECT_EQ(estado->etiqueta(), QStringLiteral("Presión crítica"));
    EXPECT_EQ(estado->explicacion(),
              QStringLiteral("La RAM no alcanza: el sistema escribe swap continuamente en el "
                             "SSD y todo se vuelve lento."));
    EXPECT_EQ(estado->simbolo(), QStringLiteral("exclamationmark.octagon.fill"));
    EXPECT_EQ(estado->tinte(), Tinte::Rojo);
}

TEST_F(MemoriaEstado, theSwapTellsWhetherItIsBeingWritten)
{
    struct Caso
    {
        std::uint64_t paginas;
        const char *texto;
        const char *simbolo;
        Tinte tinte;
    };
    const char *quieto = "Sin actividad de swap en este momento";
    lectura().swapTotal = 2 * gib;
    empezar();
    EXPECT_EQ(estado->swap(), QStringLiteral("0 GB usados de 2 GB"));
    EXPECT_EQ(estado->tinteSwap(), Tinte::Secundario);
    EXPECT_EQ(estado->fraccionSwap(), 0.0);
    lectura().swapUsado = gib;
    for (const Caso &caso :
         {Caso{0, quieto, "checkmark.circle", Tinte::Secundario},
          Caso{9, quieto, "checkmark.circle", Tinte::Secundario},
          Caso{10, "Escribiendo swap ahora: 1 páginas/s", "arrow.down.to.line", Tinte::Secundario},
          Caso{500, "Escribiendo swap ahora: 50 páginas/s", "arrow.down.to.line", Tinte::Secundario},
          Caso{510, "Escribiendo swap ahora: 51 páginas/s", "arrow.down.to.line", Tinte::Naranja}}) {
        lectura().swapouts += caso.paginas;
        plataforma.m_reloj.fijar(plataforma.m_reloj.ahora() + 10s);
        leerMemoria();
        EXPECT_EQ(estado->actividadSwap(), QString::fromUtf8(caso.texto));
        EXPECT_EQ(estado->simboloActividad(), QString::fromUtf8(caso.simbolo));
        EXPECT_EQ(estado->tinteActividad(), caso.tinte) << caso.paginas;
    }
    EXPECT_EQ(estado->tinteSwap(), Tinte::Naranja);
    EXPECT_EQ(estado->fraccionSwap(), 0.5);
}

TEST_F(MemoriaEstado, theFiveCategoriesStandInTheirOrder)
{
    lectura().apps = 3 * gib;
    lectura().libre = gib;
    empezar();
    QStringList renglones;
    for (const auto &fila : static_cast<ModeloFilas<FilaCategoria> *>(estado->categorias())->filas())
        renglones << QStringLiteral("%1|%2|%3|%4").arg(fila.clave, fila.cifra, fila.linea).arg(fila.fraccion);
    EXPECT_EQ(renglones.join(QLatin1Char('\n')).toStdString(),
              "Apps|3 GB|Memoria de tus programas|0.75\n"
              "Reservada|0 GB|Del sistema; no se puede liberar|0\n"
              "Comprimida|0 GB|macOS la comprime para no usar swap|0\n"
              "Caché|0 GB|Archivos recientes; se libera al instante si hace falta|0\n"
              "Libre|1 GB||0.25");
}

TEST_F(MemoriaEstado, aRowThatMayNotBeClosedCannotBeSelected)
{
    poner(10, "Uno", gib);
    poner(20, "Sistema", gib, AplicacionEnMarcha::Politica::prohibida);
    empezar();
    estado->marcar(20, true);
    EXPECT_FALSE(filas().at(1).seleccionable);
    EXPECT_FALSE(filas().at(1).seleccionada);
    EXPECT_FALSE(estado->haySeleccion());
    estado->marcar(999, true);
    EXPECT_FALSE(estado->haySeleccion());
    estado->marcar(10, true);
    EXPECT_TRUE(filas().at(0).seleccionada);
    EXPECT_EQ(estado->textoCerrar(), QStringLiteral("Cerrar 1"));
    estado->marcar(10, false);
    EXPECT_FALSE(estado->haySeleccion());
}

TEST_F(MemoriaEstado, aRowWhosePidWentToAnotherProcessDropsOutOfTheSelection)
{
    poner(10, "Uno", 2 * gib);
    poner(20, "Dos", gib);
    empezar();
    estado->marcar(10, true);
    estado->marcar(20, true);
    plataforma.m_procesos.muestras[0].inicio += 1;
    enMarcha().abiertas[0].inicio += 1;
    leerMemoria();
    EXPECT_FALSE(filas().at(0).seleccionada);
    EXPECT_TRUE(filas().at(1).seleccionada);
    EXPECT_EQ(estado->textoCerrar(), QStringLiteral("Cerrar 1"));
}

TEST_F(MemoriaEstado, aReadingTellsTheListOnlyOfTheRowsThatChanged)
{
    poner(10, "Uno", 3 * gib);
    poner(20, "Dos", 2 * gib);
    poner(30, "Tres", gib);
    empezar();
    QSignalSpy cambios{estado->filas(), &QAbstractItemModel::dataChanged};
    QSignalSpy traslados{estado->filas(), &QAbstractItemModel::rowsMoved};
    QSignalSpy reinicios{estado->filas(), &QAbstractItemModel::modelReset};
    leerMemoria();
    EXPECT_EQ(cambios.count(), 0);
    plataforma.m_procesos.muestras[1].huella += gib / 2;
    leerMemoria();
    ASSERT_EQ(cambios.count(), 1);
    EXPECT_EQ(cambios.at(0).at(0).toModelIndex().row(), 1);
    plataforma.m_procesos.muestras[2].huella = 9 * gib;
    leerMemoria();
    EXPECT_EQ(traslados.count(), 1) << "the row that grew goes to the top, the others stay what they are";
    EXPECT_EQ(filas().at(0).nombre, QStringLiteral("Tres"));
    plataforma.m_procesos.muestras.erase(plataforma.m_procesos.muestras.begin());
    leerMemoria();
    EXPECT_EQ(filas().size(), 2U);
    EXPECT_EQ(reinicios.count(), 0);
}

TEST_F(MemoriaEstado, closingWhatHadAlreadyGoneSaysSo)
{
    poner(10, "Uno", gib);
    empezar();
    estado->marcar(10, true);
    enMarcha().salir(10);
    estado->pedirCierre();
    EXPECT_TRUE(estado->confirmandoCierre());
    estado->confirmarCierre();
    EXPECT_FALSE(estado->confirmandoCierre());
    EXPECT_TRUE(estado->cerrando());
    hastaCerrar();
    EXPECT_EQ(estado->resultadoCierre(), QStringLiteral("Las apps seleccionadas ya no estaban abiertas."));
    EXPECT_EQ(estado->textoForzar(), QString());
    EXPECT_FALSE(estado->haySeleccion());
}

TEST_F(MemoriaEstado, oneClosesAnotherWaitsAndCanBeForced)
{
    poner(10, "Uno", gib);
    poner(20, "Dos", gib);
    enMarcha().sordas = {20};
    empezar();
    estado->marcar(10, true);
    estado->marcar(20, true);
    estado->pedirCierre();
    estado->confirmarCierre();
    estado->pedirCierre();
    EXPECT_FALSE(estado->confirmandoCierre()) << "nothing else is closed meanwhile";
    hastaCerrar();
    EXPECT_TRUE(
        estado->resultadoCierre().startsWith(QStringLiteral("Cerradas: Uno. Siguen abiertas: Dos. ")));
    EXPECT_EQ(estado->textoForzar(), QStringLiteral("Forzar salida de Dos"));
    estado->pedirForzar();
    EXPECT_TRUE(estado->confirmandoForzar());
    estado->confirmarForzar();
    hastaCerrar();
    EXPECT_THAT(enMarcha().forzadas, ElementsAre(20));
    EXPECT_EQ(estado->resultadoCierre(), QStringLiteral("Forzada la salida de Dos."));
    EXPECT_EQ(estado->textoForzar(), QString());
}

TEST_F(MemoriaEstado, nothingHappensWithoutAConfirmation)
{
    poner(10, "Uno", gib);
    empezar();
    estado->confirmarCierre();
    estado->confirmarForzar();
    estado->confirmarReinicio();
    estado->pedirCierre();
    EXPECT_FALSE(estado->confirmandoCierre()) << "nothing is selected";
    estado->pedirForzar();
    EXPECT_FALSE(estado->confirmandoForzar()) << "nothing refused to close";
    estado->marcar(10, true);
    estado->pedirCierre();
    estado->cancelarCierre();
    estado->confirmarCierre();
    EXPECT_FALSE(estado->cerrando());
    EXPECT_THAT(enMarcha().pedidas, IsEmpty());
    EXPECT_EQ(plataforma.m_reinicio.pedidos, 0);
}

TEST_F(MemoriaEstado, aRecommendationClosesItsApplicationAlone)
{
    poner(10, "Uno", 8 * gib);
    poner(20, "Dos", gib);
    empezar();
    estado->marcar(20, true);
    ASSERT_EQ(recomendaciones().size(), 1U);
    EXPECT_EQ(recomendaciones()[0].boton, QStringLiteral("Cerrar app"));
    estado->seguir(QStringLiteral("top-10"));
    EXPECT_TRUE(estado->confirmandoCierre());
    EXPECT_EQ(estado->textoCerrar(), QStringLiteral("Cerrar 1"));
    estado->confirmarCierre();
    hastaCerrar();
    EXPECT_THAT(enMarcha().pedidas, ElementsAre(10));
}

TEST_F(MemoriaEstado, aRecommendationAsksForTheRestart)
{
    lectura().swapUsado = 3 * gib;
    empezar();
    EXPECT_EQ(recomendaciones().at(0).boton, QStringLiteral("Reiniciar…"));
    estado->seguir(QStringLiteral("swap-viejo"));
    EXPECT_TRUE(estado->confirmandoReinicio());
    EXPECT_EQ(plataforma.m_reinicio.pedidos, 0);
    estado->confirmarReinicio();
    esperar([&] { return plataforma.m_reinicio.pedidos == 1; });
}

TEST_F(MemoriaEstado, aRecommendationLeadsToTheSimulators)
{
    plataforma.m_memoriaSistema.total = 64 * gib;
    poner(10, "Simulator", 2 * gib);
    empezar();
    EXPECT_EQ(recomendaciones().at(0).boton, QStringLiteral("Ver simuladores"));
    estado->seguir(QStringLiteral("dev-Simulator"));
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::simuladores);
    EXPECT_FALSE(estado->haySeleccion());
}

TEST_F(MemoriaEstado, aRecommendationWithNothingToDoHasNoButton)
{
    lectura().swapUsado = 3 * gib;
    lectura().nivel = MemoriaSistema::Nivel::critico;
    empezar();
    EXPECT_EQ(recomendaciones().at(0).clave, QStringLiteral("swap-activo"));
    EXPECT_EQ(recomendaciones()[0].boton, QString());
}

TEST_F(MemoriaEstado, aMonitorThatDoesNotOpenIsToldInWords)
{
    empezar();
    enMarcha().hayMonitor = false;
    estado->abrirMonitorDeActividad();
    esperar([&] { return !estado->errorMonitor().isEmpty(); });
    EXPECT_EQ(estado->errorMonitor(), QStringLiteral("No se pudo abrir el Monitor de Actividad."));
    enMarcha().hayMonitor = true;
    estado->abrirMonitorDeActividad();
    esperar([&] { return estado->errorMonitor().isEmpty(); });
    EXPECT_EQ(enMarcha().monitorAbierto, 2);
}

TEST_F(MemoriaEstado, aClosingGoesOnWithoutItsScreen)
{
    poner(10, "Uno", gib);
    empezar();
    estado->marcar(10, true);
    estado->pedirCierre();
    estado->confirmarCierre();
    estado.reset();
    esperar([&] {
        plataforma.m_reloj.avanzar(500ms);
        return !enMarcha().rutasDeRestos.empty();
    });
    EXPECT_THAT(enMarcha().pedidas, ElementsAre(10));
}
