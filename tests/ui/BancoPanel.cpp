#include "tests/ui/BancoPanel.h"

#include <QTest>

namespace ovanta::pruebas {

BancoPanel::BancoPanel()
{
    plataforma.m_herramientas.instaladas = {"xcrun"};
    ponerSimuladores({});
}

InterfazQml &BancoPanel::ventanas()
{
    if (!interfaz) interfaz = std::make_unique<InterfazQml>(app());
    return *interfaz;
}

void BancoPanel::abrirPanel(const QRect &icono)
{
    ventanas().abrirPanel(icono);
    ASSERT_NE(panel(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel()));
    reposar();
}

QQuickWindow *BancoPanel::panel() const
{
    for (QWindow *una : QGuiApplication::topLevelWindows())
        if (una->title() == QStringLiteral("Panel de Ovanta") && una->isVisible())
            return qobject_cast<QQuickWindow *>(una);
    return nullptr;
}

void BancoPanel::ponerSimuladores(const std::vector<int> &edades)
{
    const std::string raiz = casa.en("Library/Developer/CoreSimulator/Devices/");
    std::string fichas;
    std::string medidas;
    for (std::size_t i = 0; i < edades.size(); ++i) {
        const std::string id = "SIM-" + std::to_string(i);
        fichas += (i == 0 ? "" : ",") + (R"({"udid":")" + id + R"(","name":"iPhone","state":"Shutdown"})");
        if (edades[i] < 0) continue;
        plataforma.m_archivos.creados[raiz + id] =
            plataforma.m_reloj.ahora() - std::chrono::hours(24 * edades[i]);
        medidas += "1000000\t" + raiz + id + "\n";
    }
    const std::string lista =
        R"({"devices":{"com.apple.CoreSimulator.SimRuntime.iOS-18-2":[)" + fichas + "]}}";
    plataforma.m_herramientas.alEjecutar = [lista, medidas](const std::string &binario, const auto &) {
        return binario == "/usr/bin/xcrun" ? lista : medidas;
    };
}

void BancoPanel::ponerFiguras(double cpu)
{
    app();
    Contadores::Ticks ticks;
    for (int i = 0; i < 30; ++i) {
        const double carga = i == 29 ? cpu : cpu * (0.55 + 0.4 * ((i * 7) % 11) / 11.0);
        ticks.user += static_cast<std::uint64_t>(1000 * carga);
        ticks.idle += 1000 - static_cast<std::uint64_t>(1000 * carga);
        plataforma.m_contadores.ticks = ticks;
        plataforma.m_contadores.bytes.entrada +=
            3'000'000ULL + 1'100'000ULL * static_cast<unsigned>((i * 5) % 7);
        plataforma.m_contadores.bytes.salida += 91'000;
        plataforma.m_reloj.avanzar(std::chrono::seconds{5});
    }
}

int BancoPanel::simctls() const
{
    int cuantos = 0;
    for (const auto &llamada : plataforma.m_herramientas.llamadas)
        cuantos += llamada.front() == "/usr/bin/xcrun";
    return cuantos;
}

} // namespace ovanta::pruebas
