#pragma once

#include "core/Ejecutar.h"

#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <thread>

namespace ovanta {

/// More than any tool of these tests needs on a busy machine.
inline constexpr double deSobra = 120;

inline std::string sh(const std::string &guion, double timeout = deSobra, bool tolerarFallo = false)
{
    return ejecutar("/bin/sh", {"-c", guion}, timeout, tolerarFallo);
}

/// The `ShellError` that `accion` throws, or nothing.
inline std::optional<ShellError> errorDe(const std::function<void()> &accion)
{
    try {
        accion();
    } catch (const ShellError &error) {
        return error;
    }
    return std::nullopt;
}

/// The code of the system's error that `accion` throws, or an empty one.
inline std::error_code errorSistemaDe(const std::function<void()> &accion)
{
    try {
        accion();
    } catch (const std::system_error &error) {
        return error.code();
    }
    return {};
}

inline bool esperarHasta(const std::function<bool()> &condicion)
{
    for (int intento = 0; intento < 3000; ++intento) {
        if (condicion()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

/// Whether the process runs; one that ended and was not reaped yet does not.
inline bool vive(pid_t pid)
{
    std::ifstream archivo("/proc/" + std::to_string(pid) + "/stat");
    std::string numero;
    std::string nombre;
    std::string estado;
    return static_cast<bool>(archivo >> numero >> nombre >> estado) && estado != "Z" && estado != "X";
}

/// A killed process goes when the system gets to it.
inline bool termina(pid_t pid)
{
    return esperarHasta([pid] { return !vive(pid); });
}

class CarpetaTemporal
{
public:
    std::string ruta(const std::string &nombre) const
    {
        return m_carpeta.filePath(QString::fromStdString(nombre)).toStdString();
    }

    /// A file with permissions `modo`, its folders made as needed.
    std::string crear(const std::string &nombre, const std::string &contenido, mode_t modo) const
    {
        const std::string destino = ruta(nombre);
        std::filesystem::create_directories(std::filesystem::path(destino).parent_path());
        std::ofstream(destino) << contenido;
        ::chmod(destino.c_str(), modo);
        return destino;
    }

    /// The process id that a script writes there, waiting for it; 0 where none comes.
    pid_t pidEscritoEn(const std::string &nombre) const
    {
        pid_t pid = 0;
        esperarHasta([&] {
            // The line feed comes last: before it the number may be cut short.
            std::ifstream archivo(ruta(nombre));
            return archivo >> pid && archivo.get() == '\n';
        });
        return pid;
    }

private:
    QTemporaryDir m_carpeta;
};

} // namespace ovanta
