#pragma once

#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"
#include "tests/devices/BytesXPC.h"
#include "tests/devices/CanalDePrueba.h"
#include "tests/devices/ParejaDePrueba.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ovanta::pruebas {

/// usbmuxd with one attached device in memory, without TLS. It answers by a table that tests change.
class TelefonoDePrueba
{
public:
    TelefonoDePrueba()
    {
        emparejamiento = {{"HostCertificate", DatosPlist{parejaDePrueba().certificado}},
                          {"HostPrivateKey", DatosPlist{parejaDePrueba().clave}},
                          {"DeviceCertificate", DatosPlist{parejaDePrueba().certificado}},
                          {"HostID", "ANFITRION"},
                          {"SystemBUID", "BUID"}};
        respuestas = {
            {"Connect", DiccionarioPlist{{"MessageType", "Result"}, {"Number", 0}}},
            {"StartSession", DiccionarioPlist{{"SessionID", "SESION"}, {"EnableSessionSSL", false}}},
            {"GetValue", DiccionarioPlist{{"Value", DiccionarioPlist{{"DeviceName", "iPhone de Ana"},
                                                                     {"ProductType", "iPhone14,2"},
                                                                     {"DeviceClass", "iPhone"},
                                                                     {"ProductVersion", "17.5.1"}}}}},
            {"GetValue com.apple.mobile.battery",
             DiccionarioPlist{
                 {"Value", DiccionarioPlist{{"BatteryCurrentCapacity", 81}, {"BatteryIsCharging", true}}}}},
            {"StartService", DiccionarioPlist{{"Port", 0x1234}, {"EnableServiceSSL", false}}},
            {"IORegistry", DiccionarioPlist{{"Status", "Success"},
                                            {"Diagnostics", DiccionarioPlist{{"IORegistry", registro}}}}},
            {"StopSession", DiccionarioPlist{{"Request", "StopSession"}}},
            {"RSDCheckin", DiccionarioPlist{{"Request", "RSDCheckin"}}},
        };
    }

    DiccionarioPlist registro{{"CycleCount", 321}, {"DesignCapacity", 3095}};
    DiccionarioPlist emparejamiento; ///< inside the reply to ReadPairRecord, unless the table has one
    /// By message or request, and the domain behind a space where there is one. What stands for nothing
    /// closes the connection instead of answering.
    std::map<std::string, std::optional<ValorPlist>> respuestas;
    /// What a relay behind a tunnel says after its answer to the check-in.
    ValorPlist aviso = DiccionarioPlist{{"Request", "StartService"}};
    std::vector<std::string> pedidos;       ///< keys of that table, in the order of arrival
    std::vector<DiccionarioPlist> mensajes; ///< what came with them
    std::vector<std::int64_t> puertos;      ///< asked for, as they were sent
    std::vector<std::string> cabeceras;     ///< the 16 bytes of each message to usbmuxd

    /// The end of a fresh connection.
    Extremo extremo()
    {
        Extremo nuevo;
        nuevo.alLlegar = [this](Extremo &este) { atenderUsbmuxd(este); };
        return nuevo;
    }
    /// That of one which leads to a service without usbmuxd.
    Extremo relevo()
    {
        Extremo nuevo;
        nuevo.alLlegar = [this](Extremo &este) { atenderServicio(este); };
        return nuevo;
    }

private:
    static DiccionarioPlist diccionario(std::string_view plist)
    {
        const auto leido = leerPlist(plist);
        return leido && leido->si<DiccionarioPlist>() ? *leido->si<DiccionarioPlist>() : DiccionarioPlist{};
    }

    static std::uint32_t numero(std::string_view bytes, bool alReves)
    {
        std::uint32_t suma = 0;
        for (std::size_t i = 0; i < 4; ++i)
            suma = suma * 256 + static_cast<unsigned char>(bytes[alReves ? 3 - i : i]);
        return suma;
    }

    std::optional<std::string> contestar(const DiccionarioPlist &mensaje)
    {
        const auto *tipo = mensaje.valor<std::string>("MessageType");
        const auto *pedido = mensaje.valor<std::string>("Request");
        const auto *dominio = mensaje.valor<std::string>("Domain");
        std::string clave = tipo ? *tipo : pedido ? *pedido : "?";
        if (dominio) clave += " " + *dominio;
        pedidos.push_back(clave);
        mensajes.push_back(mensaje);
        if (const auto hallada = respuestas.find(clave); hallada != respuestas.end())
            return hallada->second ? std::optional(escribirPlistXml(*hallada->second).value()) : std::nullopt;
        if (clave != "ReadPairRecord") return "";
        const std::string ficha = escribirPlistXml(emparejamiento).value();
        return escribirPlistXml(DiccionarioPlist{{"PairRecordData", DatosPlist{ficha}}}).value();
    }

    void atenderUsbmuxd(Extremo &este)
    {
        if (este.llegado.size() < 16) return;
        const std::uint32_t largo = numero(este.llegado, true);
        if (este.llegado.size() < largo) return;
        cabeceras.push_back(este.llegado.substr(0, 16));
        const DiccionarioPlist mensaje = diccionario(std::string_view(este.llegado).substr(16, largo - 16));
        este.llegado.erase(0, largo);
        const auto respuesta = contestar(mensaje);
        este.cerrado = !respuesta;
        if (!respuesta) return;
        este.salida += le(16 + respuesta->size(), 4) + le(1, 4) + le(8, 4) + le(1, 4) + *respuesta;
        if (pedidos.back() != "Connect") return;
        if (const auto *puerto = mensaje.valor<std::int64_t>("PortNumber")) puertos.push_back(*puerto);
        este.alLlegar = [this](Extremo &tunel) { atenderServicio(tunel); };
    }

    void atenderServicio(Extremo &este)
    {
        while (este.llegado.size() >= 4) {
            const std::uint32_t largo = numero(este.llegado, false);
            if (este.llegado.size() < 4 + std::size_t{largo}) return;
            const DiccionarioPlist mensaje = diccionario(std::string_view(este.llegado).substr(4, largo));
            este.llegado.erase(0, 4 + std::size_t{largo});
            const auto respuesta = contestar(mensaje);
            este.cerrado = este.cerrado || !respuesta;
            if (!respuesta || respuesta->empty()) continue;
            este.salida += be(respuesta->size(), 4) + *respuesta;
            if (pedidos.back() != "RSDCheckin") continue;
            const std::string segundo = escribirPlistXml(aviso).value();
            este.salida += be(segundo.size(), 4) + segundo;
        }
    }
};

} // namespace ovanta::pruebas
