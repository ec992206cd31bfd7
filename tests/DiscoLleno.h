#pragma once

#include <csignal>
#include <sys/resource.h>

namespace ovanta::pruebas {

/// While it lives no file of this process grows beyond `bytes`: the write that would is cut short
/// there and the next one fails, as on a disk that is full.
class DiscoLleno
{
public:
    explicit DiscoLleno(rlim_t bytes) : m_senal(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_antes);
        const rlimit corto{bytes, m_antes.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &corto);
    }
    DiscoLleno(const DiscoLleno &) = delete;
    DiscoLleno &operator=(const DiscoLleno &) = delete;
    ~DiscoLleno()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_antes);
        std::signal(SIGXFSZ, m_senal);
    }

private:
    rlimit m_antes{};
    void (*m_senal)(int);
};

} // namespace ovanta::pruebas
