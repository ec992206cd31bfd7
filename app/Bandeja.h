#pragma once

#include "monitors/NivelDisco.h"

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <memory>
#include <optional>

namespace ovanta {

/// The status icon: the level as a picture, the free space in its tooltip and in the first line of
/// its menu. The picture is drawn again only when it changes. Main thread.
class Bandeja : public QObject
{
    Q_OBJECT
public:
    struct Estado
    {
        NivelDisco nivel = NivelDisco::ok;
        QString libre;           ///< free space as text
        bool panelOscuro = true; ///< colour of the host's panel

        bool operator==(const Estado &) const = default;
    };

    explicit Bandeja(QObject *parent = nullptr);

    /// Makes the icon anew: Qt looks for a host only when an icon is shown for the first time.
    void aparecer();
    void desaparecer();
    bool visible() const { return m_icono != nullptr; }

    void actualizar(const Estado &estado);

    QMenu &menu() { return m_menu; }
    QString ayuda() const { return m_icono ? m_icono->toolTip() : QString(); }

Q_SIGNALS:
    void pulsada();
    void abrirPedido();
    void actualizarPedido();
    void salirPedido();

private:
    void pintar();

    QMenu m_menu;
    QAction *m_lineaLibre = nullptr;
    std::unique_ptr<QSystemTrayIcon> m_icono;
    Estado m_estado;
    std::optional<Estado> m_pintado;
};

} // namespace ovanta
