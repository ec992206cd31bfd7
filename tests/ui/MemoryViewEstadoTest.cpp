#include "tests/ui/ApoyoMemoriaVista.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

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
