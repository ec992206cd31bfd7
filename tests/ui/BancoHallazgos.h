#pragma once

#include "tests/ui/BancoInterfaz.h"

#include <QCoroTask>
#include <QQuickItem>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

namespace ovanta::pruebas {

/// A home whose "Downloads" an analysis walks, small files included.
class BancoHallazgos : public BancoVentana
{
protected:
    BancoHallazgos()
    {
        plataforma.m_reloj.fijar(hoy);
        plataforma.m_apariencia.fijar({.movimientoReducido = true});
        plataforma.m_herramientas.alEjecutar = [this](const std::string &binario, const auto &) {
            std::string salida;
            for (const auto &[ruta, kibibytes] : pesadas)
                salida += (binario == "/usr/bin/find" ? "" : std::to_string(kibibytes) + "\t") + ruta + "\n";
            return salida;
        };
        app().scanner().fijarMinimoMB(0);
    }

    /// A path in "Downloads".
    std::string en(const std::string &nombre) const { return casa.en("Downloads/" + nombre); }

    void archivo(const std::string &nombre, const std::string &contenido, int dias = 1) const
    {
        std::filesystem::create_directories(std::filesystem::path(en(nombre)).parent_path());
        std::ofstream(en(nombre), std::ios::binary) << contenido;
        const auto segundos = std::chrono::floor<std::chrono::seconds>(hoy - std::chrono::days(dias));
        const timespec momento{segundos.time_since_epoch().count(), 0};
        const timespec momentos[]{momento, momento};
        ASSERT_EQ(::utimensat(AT_FDCWD, en(nombre).c_str(), momentos, 0), 0);
    }
    void enlaceFisico(const std::string &nombre, const std::string &otro) const
    {
        std::filesystem::create_directories(std::filesystem::path(en(otro)).parent_path());
        std::filesystem::create_hard_link(en(nombre), en(otro));
    }
    /// A group of so many copies of `bytes` bytes, the first the oldest.
    void grupo(const std::string &nombre, int copias, std::size_t bytes) const
    {
        std::string contenido = nombre;
        contenido.resize(bytes, '.');
        for (int i = 1; i <= copias; ++i)
            archivo(nombre + " " + std::to_string(i), contenido, 100 - i);
    }
    void analizar() { QCoro::waitFor(app().scanner().analizar()); }
    void esperarReposo()
    {
        esperar([&] { return !app().limpiador().trabajando() && !app().scanner().trabajando(); });
    }
    QQuickItem *pieza(QAccessible::Role rol, const QString &nombre) const
    {
        QAccessibleInterface *una = objeto(rol, nombre);
        return una ? qobject_cast<QQuickItem *>(una->object()) : nullptr;
    }
    bool marcado(const QString &nombre) const
    {
        QAccessibleInterface *una = objeto(QAccessible::CheckBox, nombre);
        return una && una->state().checked;
    }

    static constexpr Fecha hoy = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21};
    std::vector<std::pair<std::string, long>> pesadas; ///< heavy folders and their KiB
};

} // namespace ovanta::pruebas
