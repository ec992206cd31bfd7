#pragma once

#include "platform/InstanciaUnica.h"
#include "platform/linux/CandadoDeInstancia.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <memory>
#include <string>

namespace ovanta {

/// The bus name com.belmora.Ovanta; where there is no bus, or it does not answer, a lock file.
class InstanciaUnicaLinux final : public QObject, public InstanciaUnica
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    struct Entorno
    {
        QDBusConnection sesion;
        std::string carpetaPrivada; ///< for the lock file; only the user may write there
        bool iniciadaPorLaSesion = false;
    };

    explicit InstanciaUnicaLinux(Entorno entorno);

    bool adquirir(std::function<void()> alActivar) override;
    bool iniciadaPorLaSesion() const override { return m_entorno.iniciadaPorLaSesion; }

public Q_SLOTS:
    /// org.freedesktop.Application.Activate: another copy was started.
    Q_SCRIPTABLE void Activate(const QVariantMap &datos);

private:
    enum class Nombre { obtenido, ocupado, sinBus };

    Nombre pedirNombre();
    void activarLaOtra();

    Entorno m_entorno;
    std::unique_ptr<CandadoDeInstancia> m_candado;
    std::function<void()> m_alActivar;
};

} // namespace ovanta
