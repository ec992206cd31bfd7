#include "platform/linux/HiloConLimite.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <utility>

namespace ovanta {

struct HiloConLimite::Estado
{
    std::mutex cerrojo;
    std::condition_variable cambio;
    std::function<void()> trabajo; ///< what the thread is to take up
    std::uint64_t empezados = 0;
    std::uint64_t acabados = 0;
    bool atascado = false; ///< whoever waited for the one that runs has given up
    bool fin = false;
    bool terminado = false;

    bool libre() const { return empezados == acabados; }
};

namespace {

template <typename Estado>
void servir(const std::shared_ptr<Estado> &estado)
{
    std::unique_lock cerrado(estado->cerrojo);
    while (true) {
        estado->cambio.wait(cerrado, [&] { return estado->fin || estado->trabajo; });
        if (!estado->trabajo) break;
        auto trabajo = std::exchange(estado->trabajo, nullptr);
        cerrado.unlock();
        trabajo();
        trabajo = nullptr; // what it owns goes before anybody is told
        cerrado.lock();
        ++estado->acabados;
        estado->atascado = false;
        estado->cambio.notify_all();
    }
    estado->terminado = true;
    estado->cambio.notify_all();
}

} // namespace

HiloConLimite::HiloConLimite() : m_estado(std::make_shared<Estado>())
{
    std::thread([estado = m_estado] { servir(estado); }).detach();
}

HiloConLimite::~HiloConLimite()
{
    constexpr std::chrono::milliseconds despedida{200};
    std::unique_lock cerrado(m_estado->cerrojo);
    m_estado->fin = true;
    m_estado->cambio.notify_all();
    m_estado->cambio.wait_for(cerrado, despedida, [&] { return m_estado->terminado; });
}

bool HiloConLimite::correr(std::function<void()> trabajo, std::chrono::milliseconds limite)
{
    const auto plazo = std::chrono::steady_clock::now() + limite;
    Estado &estado = *m_estado;
    std::unique_lock cerrado(estado.cerrojo);
    estado.cambio.wait_until(cerrado, plazo, [&] { return estado.libre() || estado.atascado; });
    if (!estado.libre()) return false;
    estado.trabajo = std::move(trabajo);
    const std::uint64_t este = ++estado.empezados;
    estado.cambio.notify_all();
    const bool hecho = estado.cambio.wait_until(cerrado, plazo, [&] { return estado.acabados >= este; });
    if (!hecho) {
        estado.atascado = true;
        estado.cambio.notify_all();
    }
    return hecho;
}

} // namespace ovanta
