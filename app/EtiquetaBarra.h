#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// What the bar shows beside its symbol. The caller decides what is present.
struct EtiquetaBarra
{
    std::string simbolo;              ///< name of a system symbol
    std::optional<std::string> libre; ///< free space as text
    std::optional<double> cpu;        ///< share of the whole, as `ram`
    std::optional<double> ram;
    std::optional<double> red;                  ///< bytes per second, both directions
    std::optional<std::vector<double>> grafica; ///< shares, the oldest first

    struct Metrica
    {
        std::string etiqueta;
        std::string valor;

        bool operator==(const Metrica &) const = default;
    };

    /// The figures as they are written: processor, memory, network.
    std::vector<Metrica> metricas() const;

    /// The free space and the figures in one line; empty where there is neither.
    std::string texto() const;

    /// Whether both look the same: figures that differ only in what is rounded away do.
    bool seVeIgual(const EtiquetaBarra &otra) const;
};

} // namespace ovanta
