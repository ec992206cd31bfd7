#pragma once

#include <QObject>
#include <QRect>
#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace ovanta {

class Apariencia;

/// The window of the tray's panel. It exists only while the panel is open: it goes with Esc, with the
/// focus, and when it is told to.
class PanelQml : public QObject
{
    Q_OBJECT
public:
    /// `apariencia` must outlive this object.
    explicit PanelQml(const Apariencia &apariencia);
    ~PanelQml() override;

    /// Builds and shows the panel; does nothing where it is open. `icono` as in `Interfaz::abrirPanel`.
    void abrir(QQmlEngine &motor, const QRect &icono);
    void cerrar() { cerrarPor(false); }
    bool abierto() const { return m_ventana != nullptr; }

Q_SIGNALS:
    /// The window will be gone when control returns to the event loop.
    void cerrado(bool porFoco);

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private Q_SLOTS:
    void acomodar();

private:
    void cerrarPor(bool foco);
    void seguirFoco();

    const Apariencia &m_apariencia;
    std::unique_ptr<QQuickWindow> m_ventana;
    QRect m_icono;
    QPoint m_puntero;
    bool m_tuvoFoco = false;
};

} // namespace ovanta
