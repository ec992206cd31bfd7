#include "ui/MainViewEstado.h"

#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/AspectoNivel.h"
#include "ui/Ovanta.h"

#include <algorithm>

namespace ovanta {

namespace {

std::vector<FilaSeccion> filasLaterales()
{
    std::vector<FilaSeccion> filas;
    for (const Seccion seccion : ordenLateral) {
        const FichaSeccion &f = ficha(seccion);
        filas.push_back({mostrar(f.clave), mostrar(f.titulo), mostrar(f.icono), mostrar(f.grupo)});
    }
    return filas;
}

QString vistaDe(Seccion seccion)
{
    switch (seccion) {
    case Seccion::resumen:
        return QStringLiteral("ResumenView");
    case Seccion::espacio:
        return QStringLiteral("SpaceView");
    case Seccion::duplicados:
        return QStringLiteral("DuplicatesView");
    case Seccion::pesados:
        return QStringLiteral("BigFilesView");
    case Seccion::memoria:
        return QStringLiteral("MemoryView");
    case Seccion::historial:
        return QStringLiteral("HistorialView");
    case Seccion::ajustes:
        return QStringLiteral("PrefsView");
    default:
        return QStringLiteral("SeccionEnConstruccion");
    }
}

} // namespace

MainViewEstado::MainViewEstado(QObject *parent) : QObject(parent), m_app(Ovanta::app())
{
    m_secciones.publicar(filasLaterales());
    connect(&m_app.navegacion(), &NavegacionAplicacion::seleccionChanged, this,
            &MainViewEstado::seleccionChanged);
    connect(&m_app.disco(), &DiskMonitor::lecturaChanged, this, &MainViewEstado::discoChanged);
    connect(&m_app.disco(), &DiskMonitor::nivelChanged, this, &MainViewEstado::discoChanged);
}

int MainViewEstado::fila() const
{
    const auto seleccion = m_app.navegacion().seleccion();
    if (!seleccion) return -1;
    return static_cast<int>(std::ranges::find(ordenLateral, *seleccion) - ordenLateral.begin());
}

QString MainViewEstado::vista() const
{
    const auto seleccion = m_app.navegacion().seleccion();
    return seleccion ? vistaDe(*seleccion) : QString();
}

QString MainViewEstado::tituloSeccion() const
{
    const auto seleccion = m_app.navegacion().seleccion();
    return seleccion ? mostrar(ficha(*seleccion).titulo) : QString();
}

QString MainViewEstado::iconoSeccion() const
{
    const auto seleccion = m_app.navegacion().seleccion();
    return seleccion ? mostrar(ficha(*seleccion).icono) : QString();
}

QString MainViewEstado::libres() const
{
    return Formato::delUsuario().bytes(m_app.disco().libre()) + QStringLiteral(" libres");
}

QString MainViewEstado::simboloNivel() const
{
    return aspectoDe(m_app.disco().nivel()).simbolo;
}

Tinte MainViewEstado::tinteNivel() const
{
    return aspectoDe(m_app.disco().nivel()).tinte;
}

qreal MainViewEstado::fraccionUsada() const
{
    return m_app.disco().fraccionUsada();
}

void MainViewEstado::seleccionar(int fila)
{
    if (fila < 0 || fila >= static_cast<int>(ordenLateral.size())) return;
    m_app.navegacion().seleccionar(ordenLateral[static_cast<std::size_t>(fila)]);
}

void MainViewEstado::analizarDeNuevo()
{
    m_app.disco().medir();
    m_app.sims().cargar();
    m_app.reglas().medir();
}

} // namespace ovanta
