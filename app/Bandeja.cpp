#include "app/Bandeja.h"

#include "app/SimboloNivel.h"
#include "core/qt/HiloPrincipal.h"

namespace ovanta {

Bandeja::Bandeja(QObject *parent) : QObject(parent)
{
    m_lineaLibre = m_menu.addAction(QString());
    m_lineaLibre->setEnabled(false);
    m_menu.addSeparator();
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
    connect(m_icono.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason razon) {
                if (razon == QSystemTrayIcon::Trigger || razon == QSystemTrayIcon::DoubleClick)
                    Q_EMIT pulsada();
            });
    m_icono->show();
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
    const QString linea = m_estado.libre + QStringLiteral(" libres");
    m_lineaLibre->setText(linea);
    if (!m_icono || m_pintado == m_estado) return;
    const bool mismaImagen =
        m_pintado && m_pintado->nivel == m_estado.nivel && m_pintado->panelOscuro == m_estado.panelOscuro;
    if (!mismaImagen) m_icono->setIcon(simboloDeNivel(m_estado.nivel, m_estado.panelOscuro));
    m_icono->setToolTip(QStringLiteral("Ovanta · ") + linea);
    m_pintado = m_estado;
}

} // namespace ovanta
