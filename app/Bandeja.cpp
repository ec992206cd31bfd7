#include "app/Bandeja.h"

#include "app/ImagenBarra.h"
#include "app/SimboloNivel.h"
#include "core/qt/HiloPrincipal.h"

#include <QPixmap>

namespace ovanta {

Bandeja::Bandeja(QObject *parent) : QObject(parent)
{
    m_linea = m_menu.addAction(QString());
    m_linea->setEnabled(false);
    m_menu.addSeparator();
    connect(m_menu.addAction(QStringLiteral("Mostrar panel")), &QAction::triggered, this,
            &Bandeja::panelPedido);
    connect(m_menu.addAction(QStringLiteral("Abrir Ovanta")), &QAction::triggered, this,
            &Bandeja::abrirPedido);
    connect(m_menu.addAction(QStringLiteral("Actualizar ahora")), &QAction::triggered, this,
            &Bandeja::actualizarPedido);
    m_menu.addSeparator();
    connect(m_menu.addAction(QStringLiteral("Salir de Ovanta")), &QAction::triggered, this,
            &Bandeja::salirPedido);
}

void Bandeja::aparecer()
{
    OVANTA_HILO_PRINCIPAL();
    m_icono = std::make_unique<QSystemTrayIcon>();
    m_icono->setContextMenu(&m_menu);
    m_pintado.reset();
    pintar();
    connect(m_icono.get(), &QSystemTrayIcon::activated, this, &Bandeja::activar);
    m_icono->show();
}

void Bandeja::activar(QSystemTrayIcon::ActivationReason razon)
{
    if (razon == QSystemTrayIcon::Trigger) Q_EMIT pulsada();
    if (razon == QSystemTrayIcon::MiddleClick || razon == QSystemTrayIcon::DoubleClick) Q_EMIT abrirPedido();
}

void Bandeja::desaparecer()
{
    OVANTA_HILO_PRINCIPAL();
    m_icono.reset();
}

void Bandeja::actualizar(const Estado &estado)
{
    OVANTA_HILO_PRINCIPAL();
    m_estado = estado;
    pintar();
}

void Bandeja::pintar()
{
    m_linea->setText(m_estado.linea);
    if (!m_icono) return;
    if (!mismaImagen()) pintarImagen();
    const QString ayuda =
        m_estado.texto.isEmpty() ? QStringLiteral("Ovanta") : QStringLiteral("Ovanta · ") + m_estado.texto;
    if (ayuda != m_icono->toolTip()) m_icono->setToolTip(ayuda);
}

bool Bandeja::mismaImagen() const
{
    if (!m_pintado || m_pintado->panelOscuro != m_estado.panelOscuro) return false;
    if (m_pintado->etiqueta && m_estado.etiqueta) return m_pintado->etiqueta->seVeIgual(*m_estado.etiqueta);
    return !m_pintado->etiqueta && !m_estado.etiqueta && m_pintado->nivel == m_estado.nivel;
}

void Bandeja::pintarImagen()
{
    m_pintado = m_estado;
    const std::optional<QImage> ancha =
        m_estado.etiqueta ? imagenBarra(*m_estado.etiqueta) : std::optional<QImage>{};
    if (ancha)
        m_icono->setIcon(QPixmap::fromImage(tenir(*ancha, m_estado.panelOscuro ? Qt::white : Qt::black)));
    else
        m_icono->setIcon(simboloDeNivel(m_estado.nivel, m_estado.panelOscuro));
}

} // namespace ovanta
