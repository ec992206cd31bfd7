#include "tests/ui/BancoInterfaz.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class SpaceView : public BancoVentana
{
protected:
    SpaceView()
    {
        plataforma.m_apariencia.fijar({.movimientoReducido = true});
        poner({{"npm", "Caché de npm", "npm", "developer", "safe", "contents", 2000},
               {"docker", "Docker", "docker", "developer", "manual", "self", 9000}});
        app();
        medir();
    }
    bool marcado(const QString &nombre) { return objeto(QAccessible::CheckBox, nombre)->state().checked; }
};

} // namespace

TEST_F(SpaceView, showsItsHeadItsRowsAndItsFoot)
{
    abrir(Seccion::espacio);
    for (const char *texto :
         {"Revisa archivos regenerables antes de moverlos", "2 MB seguros", "2 objetivos encontrados",
          "Ocultar los vacíos", "Marcar los seguros", "Desmarcar todo", "Volver a medir", "Desarrollo",
          "Caché de npm", "~/npm", "Se vacía el contenido, la carpeta se conserva.", "Detalles", "Finder",
          "Seguro", "Manual", "Nada se elimina: todo va a la Papelera", "Puedes recuperarlo desde Finder",
          "Simular", "Mover a la Papelera"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Simular")));
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Mover a la Papelera")));
}

TEST_F(SpaceView, theSwitchOfAManualRuleCannotBeTurned)
{
    abrir(Seccion::espacio);
    EXPECT_FALSE(disponible(QAccessible::CheckBox, QStringLiteral("Docker")));
    pulsar(QAccessible::CheckBox, QStringLiteral("Docker"));
    EXPECT_FALSE(marcado(QStringLiteral("Docker")));
    EXPECT_TRUE(seVe(QStringLiteral("Nada se elimina: todo va a la Papelera")));
}

TEST_F(SpaceView, aPersonTicksSimulatesConfirmsAndFindsTheResult)
{
    abrir(Seccion::espacio);
    pulsar(QAccessible::CheckBox, QStringLiteral("Caché de npm"));
    EXPECT_TRUE(marcado(QStringLiteral("Caché de npm")));
    EXPECT_TRUE(seVe(QStringLiteral("1 seleccionado · 2 MB")));
    EXPECT_TRUE(seVe(QStringLiteral("Podrás recuperarlo desde Finder")));

    pulsarBoton(QStringLiteral("Simular"));
    esperar([&] { return seVe(QStringLiteral("No se moverá ningún archivo en esta vista previa.")); });
    EXPECT_TRUE(seVe(QStringLiteral("2 elementos se moverían a la Papelera · 2 MB")));
    EXPECT_TRUE(seVe(QStringLiteral("Todo seguirá siendo recuperable desde Finder.")));
    EXPECT_TRUE(plataforma.m_papelera.recicladas.empty());
    tecla(Qt::Key_Return);
    esperar([&] { return !seVe(QStringLiteral("Simulación")); });

    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("Mover 1 objetivos · 2 MB")); });
    EXPECT_TRUE(plataforma.m_papelera.recicladas.empty());
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Return);
    esperar([&] { return seVe(QStringLiteral("Movidos 2 elementos · 0 MB a la Papelera")); });
    EXPECT_FALSE(marcado(QStringLiteral("Caché de npm")));
    pulsarBoton(QStringLiteral("Ver la Papelera"));
    EXPECT_EQ(plataforma.m_gestor.papelera, 1);
    EXPECT_EQ(app().limpiador().historial().size(), 2U);
}

TEST_F(SpaceView, theConfirmationStartsOnCancelAndEnterMovesNothing)
{
    abrir(Seccion::espacio);
    pulsarBoton(QStringLiteral("Marcar los seguros"));
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("Cancelar")); });
    tecla(Qt::Key_Return);
    esperar([&] { return !seVe(QStringLiteral("Cancelar")); });
    EXPECT_FALSE(app().limpiador().trabajando());
    EXPECT_TRUE(plataforma.m_papelera.recicladas.empty());
}

TEST_F(SpaceView, aSheetKeepsTheFocusInsideAndEscapeClosesItAgainAndAgain)
{
    abrir(Seccion::espacio);
    for (int vez = 0; vez < 2; ++vez) {
        pulsarBoton(QStringLiteral("Detalles"));
        esperar([&] { return seVe(QStringLiteral("Marcada como manual: Ovanta no la toca.")); });
        for (int i = 0; i < 6; ++i)
            tecla(Qt::Key_Tab);
        tecla(Qt::Key_Space);
        EXPECT_EQ(app().navegacion().seleccion(), Seccion::espacio);
        tecla(Qt::Key_Escape);
        esperar([&] { return !seVe(QStringLiteral("Cerrar")); });
    }
}

TEST_F(SpaceView, failuresAreShownWithTheirReasons)
{
    plataforma.m_papelera.alReciclar = [](const std::string &) { return std::string{"el disco está lleno"}; };
    abrir(Seccion::espacio);
    pulsarBoton(QStringLiteral("Marcar los seguros"));
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("Cancelar")); });
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Return);
    esperar([&] {
        return seVe(QStringLiteral("Movidos 0. 2 fallos: Caché de npm: el disco está lleno\n"
                                   "Caché de npm: el disco está lleno"));
    });
    capturar(QStringLiteral("caches-fallos"));
}

TEST_F(SpaceView, hidingTheEmptyOnesWithAllAtZeroShowsTheEmptyState)
{
    poner({{"a", "A", "a", "cache", "safe", "contents", 0}});
    medir();
    abrir(Seccion::espacio);
    EXPECT_FALSE(seVe(QStringLiteral("Sin cachés medidos")));
    pulsar(QAccessible::CheckBox, QStringLiteral("Ocultar los vacíos"));
    EXPECT_TRUE(seVe(QStringLiteral("Sin cachés medidos")));
    EXPECT_TRUE(seVe(QStringLiteral("Pulsa Volver a medir para analizar los objetivos.")));
}
