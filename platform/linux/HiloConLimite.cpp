#include "platform/linux/HiloConLimite.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace ovanta {

struct HiloConLimite::Estado
{
    std::mutex cerrojo;
    std::condition_variable cambio;
    std::function<void()> trabajo; ///< empty: none waits or runs
    bool corriendo = false;
    bool fin = false;
    bool terminado = false;
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
        estado->corriendo = false;
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
    std::unique_lock cerrado(m_estado->cerrojo);
    if (m_estado->corriendo) return false;
    m_estado->trabajo = std::move(trabajo);
    m_estado->corriendo = true;
    m_estado->cambio.notify_all();
    return m_estado->cambio.wait_for(cerrado, limite, [&] { return !m_estado->corriendo; });
}

} // namespace ovanta
