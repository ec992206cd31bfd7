#pragma once

#include "platform/Contadores.h"
#include "platform/linux/LectorMeminfo.h"
#include "platform/linux/LecturaRepetida.h"

namespace ovanta {

/// The counters of /proc. Network cards are the interfaces that have a device behind them.
class ContadoresLinux final : public Contadores
{
public:
    /// `raiz` is the folder that holds "proc" and "sys". Devices of compressed memory are looked for
    /// once.
    explicit ContadoresLinux(std::string raiz = "/");

    std::optional<Ticks> procesador() override;
    Red red() override;
    std::optional<Memoria> memoria() override;

private:
    bool tieneDispositivo(std::string_view interfaz) const;

    std::string m_raiz;
    LecturaRepetida m_stat;
    LecturaRepetida m_netDev;
    LectorMeminfo m_meminfo;
    std::string m_lugar; ///< kept from reading to reading
};

} // namespace ovanta
