#pragma once

#include "devices/DescubrimientoRSD.h"

#include <string>
#include <vector>

namespace ovanta::pruebas {

/// A pipe whose far end has said everything already. It remembers what the client wrote.
struct TuboDePrueba
{
    std::string entrada;
    std::size_t leidos = 0;
    std::vector<std::string> escritos;

    std::expected<ServiciosRSD, ErrorIOS> descubrir()
    {
        return descubrirServicios(
            {.leer = [this](std::size_t cuantos) -> std::expected<std::string, ErrorIOS> {
                 if (entrada.size() - leidos < cuantos)
                     return std::unexpected(ErrorIOS::socket("el dispositivo cerró la conexión"));
                 leidos += cuantos;
                 return entrada.substr(leidos - cuantos, cuantos);
             },
             .escribir = [this](std::string_view bytes) -> std::expected<void, ErrorIOS> {
                 escritos.emplace_back(bytes);
                 return {};
             }});
    }
};

} // namespace ovanta::pruebas
