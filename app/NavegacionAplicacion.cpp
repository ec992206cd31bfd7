#include "app/NavegacionAplicacion.h"

#include "core/qt/HiloPrincipal.h"
#include "core/qt/Texto.h"

namespace ovanta {

NavegacionAplicacion::NavegacionAplicacion(QObject *parent) : QObject(parent) {}

void NavegacionAplicacion::seleccionar(std::optional<Seccion> seccion)
{
    OVANTA_HILO_PRINCIPAL();
    if (m_seleccion == seccion) return;
    m_seleccion = seccion;
    Q_EMIT seleccionChanged();
}

QString NavegacionAplicacion::claveSeleccionada() const
{
    return m_seleccion ? mostrar(ficha(*m_seleccion).clave) : QString();
}

void NavegacionAplicacion::seleccionarClave(const QString &clave)
{
    seleccionar(seccionDeClave(bytesDe(clave)));
}

} // namespace ovanta
