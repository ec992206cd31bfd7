#pragma once

#include "core/qt/SegundoPlano.h"
#include "monitors/MemoryMonitor.h"
#include "tests/PlataformaDePrueba.h"

#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>
#include <memory>

namespace ovanta::pruebas {

/// A monitor over a platform of fakes.
struct MemoriaEn : testing::Test
{
    PlataformaDePrueba plataforma;
    std::unique_ptr<MemoryMonitor> monitor;

    MemoriaDePrueba &memoria() { return plataforma.m_memoriaSistema; }
    AplicacionesEnMarchaDePrueba &enMarcha() { return plataforma.m_enMarcha; }

    /// One application of one process, running and measured.
    void abrir(std::int32_t pid, const std::string &nombre, std::uint64_t huella = 1 << 20)
    {
        const std::string ruta = "/Applications/" + nombre + ".app";
        plataforma.m_procesos.muestras.push_back({pid, nombre, ruta, huella, 0, inicioDe(pid)});
        const auto politica = AplicacionEnMarcha::Politica::regular;
        enMarcha().abiertas.push_back(
            {pid, inicioDe(pid), ruta, "org.prueba." + nombre, nombre, politica, ""});
    }
    static std::uint64_t inicioDe(std::int32_t pid) { return 5000 + static_cast<std::uint64_t>(pid); }

    void empezar()
    {
        monitor = std::make_unique<MemoryMonitor>(plataforma);
        leido(1);
    }
    /// Lets the timer fire, and the reading end.
    void tick()
    {
        const int antes = memoria().lecturas;
        QSignalSpy fin{monitor.get(), &MemoryMonitor::rankingChanged};
        plataforma.m_reloj.avanzar(std::chrono::seconds{10});
        ASSERT_TRUE(QTest::qWaitFor([&] { return fin.count() == 1; }));
        ASSERT_EQ(memoria().lecturas, antes + 1);
    }
    /// Waits until so many readings were begun and the last of them is over.
    void leido(int lecturas)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return memoria().lecturas >= lecturas && !monitor->leyendo(); }));
    }
};

} // namespace ovanta::pruebas
