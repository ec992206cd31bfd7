#include "ui/HistorialViewEstado.h"

#include "core/Tamano.h"
#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/Ovanta.h"

#include <string_view>

namespace ovanta {

namespace {

std::string_view ultimoComponente(std::string_view ruta)
{
    while (ruta.size() > 1 && ruta.ends_with('/'))
        ruta.remove_suffix(1);
    const auto barra = ruta.rfind('/');
    return barra == std::string_view::npos || ruta.size() == 1 ? ruta : ruta.substr(barra + 1);
}

FilaMovimiento filaDe(const Movimiento &movimiento)
{
    const Formato &formato = Formato::delUsuario();
    return {.clave = mostrar(movimiento.id),
            .nombre = mostrar(ultimoComponente(movimiento.ruta)),
            .ruta = mostrar(movimiento.ruta),
            .fecha = formato.fechaYHora(movimiento.fecha),
            .tamano = formato.bytes(movimiento.bytes),
            .regla = mostrar(movimiento.regla)};
}

} // namespace

HistorialViewEstado::HistorialViewEstado(QObject *parent) : QObject(parent), m_app(Ovanta::app())
{
    connect(&m_app.limpiador(), &Cleaner::historialChanged, this, &HistorialViewEstado::actualizar);
    actualizar();
}

void HistorialViewEstado::actualizar()
{
    std::vector<FilaMovimiento> filas;
    for (const Movimiento &movimiento : m_app.limpiador().historial())
        filas.push_back(filaDe(movimiento));
    m_filas.publicar(std::move(filas));
    Q_EMIT historialChanged();
}

QString HistorialViewEstado::elementos() const
{
    return Formato::delUsuario().entero(m_filas.filas().size()) + QStringLiteral(" elementos");
}

QString HistorialViewEstado::total() const
{
    std::uint64_t bytes = 0;
    for (const Movimiento &movimiento : m_app.limpiador().historial())
        bytes = sumar(bytes, movimiento.bytes);
    return Formato::delUsuario().bytes(bytes) + QStringLiteral(" en total");
}

void HistorialViewEstado::abrirPapelera()
{
    m_app.plataforma().gestorArchivos().abrirPapelera();
}

} // namespace ovanta
