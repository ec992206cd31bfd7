#include "ui/FilasMemoria.h"

#include "core/qt/Formato.h"
#include "core/qt/Texto.h"

#include <algorithm>

namespace ovanta {

namespace {

FilaCategoria categoria(const QString &nombre, std::uint64_t cuantos, Tinte tinte, const QString &linea)
{
    return {nombre, textoDeMemoria(cuantos), linea, tinte, static_cast<double>(cuantos)};
}

QString botonDe(const Recomendacion::Accion &accion)
{
    using Clase = Recomendacion::Accion::Clase;
    switch (accion.clase) {
    case Clase::cerrar:
        return QStringLiteral("Cerrar app");
    case Clase::reiniciar:
        return QStringLiteral("Reiniciar…");
    case Clase::simuladores:
        return QStringLiteral("Ver simuladores");
    case Clase::ninguna:
        break;
    }
    return {};
}

Tinte tinteDeCpu(double cpu)
{
    if (cpu >= 50.0) return Tinte::Rojo;
    return cpu >= 20.0 ? Tinte::Naranja : Tinte::Secundario;
}

Tinte tinteDeMemoria(double fraccion)
{
    if (fraccion >= 0.25) return Tinte::Rojo;
    return fraccion >= 0.15 ? Tinte::Naranja : Tinte::Azul;
}

} // namespace

QString textoDeMemoria(std::uint64_t bytes)
{
    return Formato::delUsuario().bytes(bytes, EstiloBytes::memoria);
}

std::vector<FilaCategoria> filasDeCategorias(const MemoryMonitor &mem)
{
    std::vector<FilaCategoria> filas{
        categoria(QStringLiteral("Apps"), mem.apps(), Tinte::Azul,
                  QStringLiteral("Memoria de tus programas")),
        categoria(QStringLiteral("Reservada"), mem.wired(), Tinte::Morado,
                  QStringLiteral("Del sistema; no se puede liberar")),
        categoria(QStringLiteral("Comprimida"), mem.comprimida(), Tinte::Naranja,
                  QStringLiteral("macOS la comprime para no usar swap")),
        categoria(QStringLiteral("Caché"), mem.cache(), Tinte::Gris,
                  QStringLiteral("Archivos recientes; se libera al instante si hace falta")),
        categoria(QStringLiteral("Libre"), mem.libre(), Tinte::Verde, {}),
    };
    double todas = 0;
    for (const FilaCategoria &fila : filas)
        todas += fila.fraccion;
    for (FilaCategoria &fila : filas)
        fila.fraccion = todas > 0 ? fila.fraccion / todas : 0;
    return filas;
}

std::vector<FilaRecomendacion> filasDeRecomendaciones(const std::vector<Recomendacion> &recomendaciones)
{
    std::vector<FilaRecomendacion> filas;
    for (const Recomendacion &una : recomendaciones)
        filas.push_back({mostrar(una.id), mostrar(una.icono), mostrar(una.texto), botonDe(una.accion)});
    return filas;
}

QString textoCpu(double cpu)
{
    if (!(cpu >= 0.1)) return {};
    return cpu < 10.0 ? QString::asprintf("%.1f %%", cpu) : QString::asprintf("%.0f %%", cpu);
}

FilaProceso filaDeProceso(const Proceso &proceso, std::uint64_t total, bool seleccionada)
{
    FilaProceso fila;
    fila.clave = QStringLiteral("%1:%2").arg(proceso.id).arg(proceso.inicio);
    fila.pid = proceso.id;
    fila.icono = mostrar(proceso.icono);
    fila.nombre = mostrar(proceso.nombre);
    if (proceso.procesos >= 2)
        fila.cuantos = Formato::delUsuario().entero(proceso.procesos) + QStringLiteral(" procesos");
    fila.cpu = textoCpu(proceso.cpu);
    fila.tinteCpu = tinteDeCpu(proceso.cpu);
    fila.memoria = textoDeMemoria(proceso.rss);
    const double fraccion = fraccionMemoria(proceso.rss, total);
    fila.fraccion = std::min(fraccion, 1.0);
    fila.tinteMemoria = tinteDeMemoria(fraccion);
    QStringList figuras{fila.cuantos, fila.cpu, fila.memoria};
    figuras.removeAll(QString());
    fila.resumen = figuras.join(QStringLiteral(", "));
    fila.seleccionable = proceso.sePuedeCerrar;
    fila.seleccionada = seleccionada;
    return fila;
}

bool sigueSiendo(const SeleccionProcesos::value_type &tique, const std::vector<Proceso> &procesos)
{
    const auto fila = std::ranges::find(procesos, tique.first, &Proceso::id);
    return fila == procesos.end() || (fila->inicio == tique.second && fila->sePuedeCerrar);
}

} // namespace ovanta
