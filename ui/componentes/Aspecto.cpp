#include "ui/componentes/Aspecto.h"

#include "ui/componentes/Fuentes.h"
#include "ui/componentes/Muelle.h"

#include <QPointer>

namespace ovanta {

namespace {

const Muelle &ovantaDatos()
{
    static const Muelle valor = muelle(0.45, 0.85);
    return valor;
}

const Muelle &ovantaPanel()
{
    static const Muelle valor = muelle(0.35, 0.85);
    return valor;
}

} // namespace

Aspecto::Aspecto(Apariencia &apariencia, QObject *parent)
    : QObject(parent), m_apariencia(apariencia), m_estado(apariencia.actual()),
      m_colores(paleta(m_estado.oscuro, m_estado.altoContraste))
{
    cargarFuentes();
    m_apariencia.alCambiar([vivo = QPointer(this)] {
        if (vivo) vivo->leer();
    });
}

void Aspecto::leer()
{
    m_estado = m_apariencia.actual();
    m_colores = paleta(m_estado.oscuro, m_estado.altoContraste);
    Q_EMIT aspectoChanged();
}

QString Aspecto::familia() const
{
    return familiaDeTexto();
}

QString Aspecto::familiaSimbolos() const
{
    return familiaDeSimbolos();
}

int Aspecto::duracionDatos() const
{
    return ovantaDatos().milisegundos;
}

QVariantList Aspecto::curvaDatos() const
{
    return QVariantList(ovantaDatos().curva.begin(), ovantaDatos().curva.end());
}

int Aspecto::duracionPanel() const
{
    return ovantaPanel().milisegundos;
}

QVariantList Aspecto::curvaPanel() const
{
    return QVariantList(ovantaPanel().curva.begin(), ovantaPanel().curva.end());
}

} // namespace ovanta
