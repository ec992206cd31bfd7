#include "app/Arranque.h"

#include "app/MostrarEnDock.h"
#include "app/OvantaApp.h"
#include "app/Residente.h"
#include "app/SenalesDeFin.h"
#include "core/Ejecutar.h"
#include "core/SoltarConexiones.h"
#include "core/qt/SegundoPlano.h"

#include <QApplication>
#include <cstdlib>

namespace ovanta {

namespace {

/// How long the end of the program waits for background work after its tools were stopped.
constexpr int esperaFinalMs = 500;

int vivir(Plataforma &plataforma)
{
    aplicarMostrarEnDock(plataforma);
    OvantaApp app(plataforma);
    Residente residente(app);
    SenalesDeFin senales;
    QObject::connect(&residente, &Residente::salirPedido, qApp, &QApplication::quit);
    QObject::connect(&senales, &SenalesDeFin::pedida, qApp, &QApplication::quit);
    if (!residente.empezar()) return 0;
    const int codigo = QApplication::exec();
    detenerHerramientas();
    // A thread can be stuck in a call to a dead network disk that no signal ends: every file of ours
    // was written when it changed, so leave without it.
    if (!esperarSegundoPlano(esperaFinalMs)) {
        soltarConexiones();
        std::_Exit(codigo);
    }
    return codigo;
}

} // namespace

int ejecutarPrograma(int argc, char **argv, const std::function<std::unique_ptr<Plataforma>()> &crear)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setApplicationName(QStringLiteral("Ovanta"));
    QApplication::setOrganizationDomain(QStringLiteral("belmora.com"));
    QApplication::setApplicationVersion(QStringLiteral(OVANTA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.belmora.Ovanta"));
    QApplication aplicacion(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const std::unique_ptr<Plataforma> plataforma = crear();
    return vivir(*plataforma);
}

} // namespace ovanta
