#include "tests/ui/BancoHallazgos.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class CapturasHallazgos : public BancoHallazgos
{
protected:
    void llenar() const
    {
        const auto sparso = [this](const std::string &nombre, const std::string &semilla,
                                   std::uintmax_t megas, int dias) {
            archivo(nombre, semilla);
            std::filesystem::resize_file(en(nombre), megas * 1'000'000);
            archivoFechado(nombre, dias);
        };
        sparso("Vídeos/Cumpleaños de la abuela 2024.mov", "a", 84, 400);
        sparso("Cumpleaños de la abuela 2024 (1).mov", "a", 84, 120);
        sparso("WhatsApp/VID-20240612-WA0007 con un nombre francamente largo que no cabe.mov", "a", 84, 30);
        sparso("conjunto-de-datos.zip", "b", 60, 200);
        sparso("conjunto-de-datos (1).zip", "b", 60, 199);
        enlaceFisico("conjunto-de-datos (1).zip", "Trabajo/datos del proyecto.zip");
        for (int i = 0; i < 12; ++i) {
            const std::string n = std::to_string(i);
            sparso("Facturas/Factura 2026-" + n + ".pdf", "f" + n, 3, 100 + i);
            sparso("Copias/2026/Facturas/Factura 2026-" + n + " copia.pdf", "f" + n, 3, 50 + i);
        }
        sparso("Captura de pantalla 2026-08-02 a las 10.15.00.png", "c", 2, 111);
        sparso("debian-12.8.0-amd64-netinst.iso", "i", 70, 140);
        sparso("EditorDeMapas-4.2.dmg", "d", 42, 7);
    }
    void archivoFechado(const std::string &nombre, int dias) const
    {
        std::filesystem::last_write_time(en(nombre),
                                         std::chrono::file_clock::from_sys(hoy - std::chrono::days(dias)));
    }
    /// One state of a screen in every look and size.
    void retratar(const QString &nombre)
    {
        const std::vector<std::pair<QString, QSize>> tamanos{{QStringLiteral("minima"), {900, 660}},
                                                             {QStringLiteral("media"), {1000, 700}},
                                                             {QStringLiteral("grande"), {1400, 900}}};
        for (const auto &[tamano, medida] : tamanos)
            for (const bool oscuro : {false, true}) {
                plataforma.m_apariencia.fijar({.oscuro = oscuro, .movimientoReducido = true});
                ventana()->resize(medida);
                reposar();
                capturar(
                    QStringLiteral("%1-%2-%3")
                        .arg(nombre, tamano, oscuro ? QStringLiteral("oscura") : QStringLiteral("clara")));
                EXPECT_EQ(ventana()->size(), medida);
            }
    }
    void retratarTrabajando(const QString &nombre)
    {
        Freno freno;
        plataforma.m_accesoArchivos.alMirarCarpeta = freno.aqui();
        pulsarBoton(QStringLiteral("Analizar ahora"));
        EXPECT_TRUE(seVe(QStringLiteral("Detener")));
        retratar(nombre);
        freno.soltar();
        esperarReposo();
        plataforma.m_accesoArchivos.alMirarCarpeta = [] {};
    }
    void retratarMovimiento(const QString &pantalla, const QString &hecho)
    {
        plataforma.m_papelera.alReciclar = [](const std::string &ruta) {
            return ruta.contains("Facturas") || ruta.contains(".iso") ? std::string{"no tienes permiso"}
                                                                      : std::string{};
        };
        pulsarBoton(QStringLiteral("Mover a la Papelera"));
        esperar([&] { return seVe(QStringLiteral("Cancelar")); });
        retratar(pantalla + QStringLiteral("-confirmacion"));
        tecla(Qt::Key_Tab);
        tecla(Qt::Key_Return);
        esperar([&] { return objeto(QAccessible::List, QStringLiteral("Lo que no se movió")) != nullptr; });
        esperarReposo();
        retratar(pantalla + hecho);
    }
};

} // namespace

TEST_F(CapturasHallazgos, theDuplicatesStandInEveryState)
{
    llenar();
    abrir(Seccion::duplicados);
    retratar(QStringLiteral("duplicados-vacio"));
    retratarTrabajando(QStringLiteral("duplicados-trabajando"));
    analizar();
    retratar(QStringLiteral("duplicados-lleno"));
    auto *lista = pieza(QAccessible::List, QStringLiteral("Duplicados"));
    lista->forceActiveFocus(Qt::TabFocusReason);
    pulsarBoton(QStringLiteral("Marcar todas menos la original"));
    for (int i = 0; i < 7; ++i)
        tecla(Qt::Key_Down);
    tecla(Qt::Key_Space);
    lista->setProperty("contentY", 0);
    retratar(QStringLiteral("duplicados-marcado"));
    retratarMovimiento(QStringLiteral("duplicados"), QStringLiteral("-fallos"));
    plataforma.m_papelera.alReciclar = {};
    pulsarBoton(QStringLiteral("Marcar todas menos la original"));
    pulsarBoton(QStringLiteral("Mover a la Papelera"));
    esperar([&] { return seVe(QStringLiteral("Cancelar")); });
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Return);
    esperar([&] { return objeto(QAccessible::List, QStringLiteral("Lo que no se movió")) == nullptr; });
    esperarReposo();
    retratar(QStringLiteral("duplicados-hecho"));
    EXPECT_FALSE(seVe(QStringLiteral("Desmarcar")));
}

TEST_F(CapturasHallazgos, whatWeighsMostStandsInEveryState)
{
    llenar();
    pesadas = {{casa.en("Proyectos/tienda-web/node_modules"), 812'000},
               {casa.en("Proyectos/motor/target"), 2'400'000},
               {casa.en("Proyectos/analisis/.venv"), 340'000}};
    abrir(Seccion::pesados);
    retratar(QStringLiteral("pesados-vacio"));
    retratarTrabajando(QStringLiteral("pesados-trabajando"));
    analizar();
    retratar(QStringLiteral("pesados-lleno"));
    for (const char *nombre : {"debian-12.8.0-amd64-netinst.iso", "EditorDeMapas-4.2.dmg"})
        pulsar(QAccessible::CheckBox, QString::fromUtf8(nombre));
    auto *pestana = pieza(QAccessible::PageTab, QStringLiteral("Archivos grandes (33)"));
    ASSERT_NE(pestana, nullptr);
    pestana->forceActiveFocus(Qt::TabFocusReason);
    retratar(QStringLiteral("pesados-marcado"));
    pulsar(QAccessible::PageTab, QStringLiteral("Dependencias (3)"));
    retratar(QStringLiteral("pesados-carpetas"));
    retratarMovimiento(QStringLiteral("pesados"), QStringLiteral("-fallos"));
    EXPECT_FALSE(disponible(QAccessible::Button, QStringLiteral("Mover a la Papelera")));
}
