#pragma once

#include "platform/Reloj.h"

#include <algorithm>
#include <atomic>
#include <map>

namespace ovanta {

/// A clock that stands still until it is moved; timers fire while it moves, in their order.
class RelojManual final : public Reloj
{
public:
    Fecha ahora() const override { return m_ahora; }
    void fijar(Fecha fecha) { m_ahora = fecha; }

    std::unique_ptr<Temporizador> cada(std::chrono::milliseconds periodo,
                                       std::chrono::milliseconds tolerancia,
                                       std::function<void()> accion) override
    {
        return programar(periodo, tolerancia, true, std::move(accion));
    }

    std::unique_ptr<Temporizador> unaVez(std::chrono::milliseconds espera,
                                         std::function<void()> accion) override
    {
        return programar(espera, {}, false, std::move(accion));
    }

    /// Moves the clock forward and fires every timer that falls due on the way.
    void avanzar(std::chrono::microseconds cuanto)
    {
        const Fecha fin = m_ahora.load() + cuanto;
        while (true) {
            auto proximo =
                std::min_element(m_tareas.begin(), m_tareas.end(), [](const auto &a, const auto &b) {
                    return a.second.vence < b.second.vence;
                });
            if (proximo == m_tareas.end() || proximo->second.vence > fin) break;
            m_ahora = std::max(m_ahora.load(), proximo->second.vence);
            const auto accion = proximo->second.accion;
            if (proximo->second.repite)
                proximo->second.vence += proximo->second.periodo;
            else
                m_tareas.erase(proximo);
            accion();
        }
        m_ahora = fin;
    }

    struct Tarea
    {
        std::chrono::milliseconds periodo;
        std::chrono::milliseconds tolerancia;
        bool repite;
        Fecha vence;
        std::function<void()> accion;
    };
    const std::map<int, Tarea> &tareas() const { return m_tareas; }

private:
    struct Manejo final : Temporizador
    {
        RelojManual *reloj;
        int numero;
        Manejo(RelojManual *r, int n) : reloj(r), numero(n) {}
        ~Manejo() override { reloj->m_tareas.erase(numero); }
    };

    std::unique_ptr<Temporizador> programar(std::chrono::milliseconds periodo,
                                            std::chrono::milliseconds tolerancia, bool repite,
                                            std::function<void()> accion)
    {
        const int numero = m_siguiente++;
        m_tareas.emplace(numero,
                         Tarea{periodo, tolerancia, repite, m_ahora.load() + periodo, std::move(accion)});
        return std::make_unique<Manejo>(this, numero);
    }

    std::atomic<Fecha> m_ahora{Fecha{std::chrono::seconds{1'795'238'316}}};
    std::map<int, Tarea> m_tareas;
    int m_siguiente = 1;
};

} // namespace ovanta
