#pragma once

#include "core/Fecha.h"

#include <string>
#include <vector>

namespace ovanta {

/// A Mac user's home, made in a temporary folder and deleted with this object.
class CasaSintetica
{
public:
    /// Makes an empty home below the system's temporary folder. Throws `std::system_error`.
    CasaSintetica();
    ~CasaSintetica();
    CasaSintetica(const CasaSintetica &) = delete;
    CasaSintetica &operator=(const CasaSintetica &) = delete;

    /// Absolute, free of links, no trailing slash.
    const std::string &hogar() const { return m_hogar; }

    /// Fills the home as that of a developer who takes photographs, as seen at `ahora`: less than 300 MB
    /// of disk usage, the same at every call. `rutasDeReglas` are the paths of the catalogue, with
    /// "~" for the home; most of them get some contents, a few stay empty or absent.
    void amueblar(const std::vector<std::string> &rutasDeReglas, Fecha ahora) const;

private:
    std::string m_raiz;
    std::string m_hogar;
};

} // namespace ovanta
