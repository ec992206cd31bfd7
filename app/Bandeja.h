#pragma once

#include "app/EtiquetaBarra.h"
#include "monitors/NivelDisco.h"

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <memory>
#include <optional>

namespace ovanta {

/// The status icon. Its picture is the level's symbol, or the whole label where the host shows it; the
/// tooltip says what the label says. The picture is drawn again only when it changes. Main thread.
class Bandeja : public QObject
{
    Q_OBJECT
public:
    struct Estado
    {
        NivelDisco nivel = NivelDisco::ok;
        QString linea;           ///< first line of the menu
        QString texto;           ///< what the bar says beside the symbol; may be empty
        bool panelOscuro = true; ///< colour of the host's panel
        std::optional<EtiquetaBarra> etiqueta = std::nullopt; ///< where it is to be the picture
    };

    explicit Bandeja(QObject *parent = nullptr);

    /// Makes the icon anew: Qt looks for a host only when an icon is shown for the first time.
    void aparecer();
    void desaparecer();
    bool visible() const { return m_icono != nullptr; }

    void actualizar(const Estado &estado);

    QMenu &menu() { return m_menu; }
    /// Where the icon stands on the screen; empty where the host does not tell.
    QRect lugar() const { return m_icono ? m_icono->geometry() : QRect(); }
    QString ayuda() const { return m_icono ? m_icono->toolTip() : QString(); }
    QIcon imagen() const { return m_icono ? m_icono->icon() : QIcon(); }

Q_SIGNALS:
    /// The icon was clicked.
    void pulsada();
    /// The menu's own way to the panel: some hosts answer every click with the menu.
    void panelPedido();
    void abrirPedido();
    void actualizarPedido();
    void salirPedido();

private:
    void activar(QSystemTrayIcon::ActivationReason razon);
    void pintar();
    void pintarImagen();
    bool mismaImagen() const;

    QMenu m_menu;
    QAction *m_linea = nullptr;
    std::unique_ptr<QSystemTrayIcon> m_icono;
    Estado m_estado;
    std::optional<Estado> m_pintado; ///< whose picture stands in the icon
};

} // namespace ovanta
