#include "platform/simulada/dispositivos/PuertosRsdSimulados.h"
#include "tests/devices/DispositivosDePrueba.h"

#include <gmock/gmock.h>
#include <map>

namespace ovanta {
namespace {

using namespace pruebas;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;

const std::string diagnostico = "com.apple.mobile.diagnostics_relay.shim.remote";

struct Marco
{
    int tipo = -1; ///< -1 at the end
    int banderas = 0;
    int flujo = 0;
    std::string carga;
};

std::size_t grande(const std::string &bytes)
{
    std::size_t numero = 0;
    for (const char byte : bytes)
        numero = numero << 8 | static_cast<unsigned char>(byte);
    return numero;
}

std::size_t pequeno(std::string bytes)
{
    std::ranges::reverse(bytes);
    return grande(bytes);
}

Marco leerMarco(const ClienteCrudo &cliente)
{
    const std::string cabecera = cliente.leer(9);
    if (cabecera.size() < 9) return {};
    return {cabecera[3], cabecera[4], static_cast<int>(grande(cabecera.substr(5))),
            cliente.leer(grande(cabecera.substr(0, 3)))};
}

/// What a client says to a discovery service, written by hand.
const std::string saludo =
    "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n"
    "\0\0\x0c\x04\0\0\0\0\0\0\x03\0\0\0\x64\0\x04\0\x10\0\0"
    "\0\0\x04\x08\0\0\0\0\0\0\x0f\0\x01"
    "\0\0\0\x01\x04\0\0\0\x01"
    "\0\0\x2c\0\0\0\0\0\x01\x92\x0b\xb0\x29\x01\0\0\0\x14\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    "\x42\x37\x13\x42\x05\0\0\0\0\xf0\0\0\x04\0\0\0\0\0\0\0"
    "\0\0\x18\0\0\0\0\0\x01\x92\x0b\xb0\x29\x01\x02\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    "\0\0\0\x01\x04\0\0\0\x03"
    "\0\0\x18\0\0\0\0\0\x03\x92\x0b\xb0\x29\x01\0\x40\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s;

/// All that one port says until its streams have that many whole wrappers in all, or it has no more to say.
struct Conversacion
{
    std::vector<Marco> marcos;
    std::map<int, std::string> flujos;

    Conversacion(std::uint16_t puerto, std::size_t envolturas)
    {
        const auto cliente = ClienteCrudo::dePuerto(puerto);
        cliente.escribir(saludo);
        while (completas().size() < envolturas) {
            marcos.push_back(leerMarco(cliente));
            if (marcos.back().tipo == -1) return;
            if (marcos.back().tipo == 0) flujos[marcos.back().flujo] += marcos.back().carga;
        }
    }

    /// Stream and body of each whole wrapper, stream by stream.
    std::vector<std::pair<int, std::string>> completas() const
    {
        std::vector<std::pair<int, std::string>> halladas;
        for (const auto &[flujo, bytes] : flujos)
            for (std::size_t i = 0; i + 24 <= bytes.size();) {
                EXPECT_EQ(bytes.substr(i, 4), "\x92\x0b\xb0\x29");
                const std::size_t longitud = pequeno(bytes.substr(i + 8, 8));
                if (longitud > bytes.size() - i - 24) break;
                halladas.emplace_back(flujo, bytes.substr(i + 24, longitud));
                i += 24 + longitud;
            }
        return halladas;
    }
};

PuertosRsdSimulados tunel(const OpcionesRsd &opciones)
{
    return {dispositivo(), {opciones}};
}

TEST(SimuladorXpc, encodesEachTypeAsItsBytesWrittenByHand)
{
    const std::string objeto = "\x42\x37\x13\x42\x05\0\0\0"s;
    const std::vector<std::pair<ValorXpc, std::string>> casos{
        {{ValorXpc::Nulo{}}, "\0\x10\0\0"s},
        {{true}, "\0\x20\0\0\x01\0\0\0"s},
        {{std::int64_t{-2}}, "\0\x30\0\0\xfe\xff\xff\xff\xff\xff\xff\xff"s},
        {{std::uint64_t{258}}, "\0\x40\0\0\x02\x01\0\0\0\0\0\0"s},
        {{1.0}, "\0\x50\0\0\0\0\0\0\0\0\xf0\x3f"s},
        {{ValorXpc::Momento{7}}, "\0\x70\0\0\x07\0\0\0\0\0\0\0"s},
        {{ValorXpc::Datos{"abcde"}}, "\0\x80\0\0\x05\0\0\0abcde\0\0\0"s},
        {{"abc"s}, "\0\x90\0\0\x04\0\0\0abc\0"s},
        {{"abcd"s}, "\0\x90\0\0\x05\0\0\0abcd\0\0\0\0"s},
        {{ValorXpc::Uuid{1, 2}}, "\0\xa0\0\0\x01\x02"s + std::string(14, '\0')},
        {{ValorXpc::Lista{{true}, {ValorXpc::Nulo{}}}},
         "\0\xe0\0\0\x10\0\0\0\x02\0\0\0\0\x20\0\0\x01\0\0\0\0\x10\0\0"s},
        {{ValorXpc::Diccionario{}}, "\0\xf0\0\0\x04\0\0\0\0\0\0\0"s},
        {{ValorXpc::Diccionario{{"abc", {true}}, {"abcd", {false}}}},
         "\0\xf0\0\0\x20\0\0\0\x02\0\0\0abc\0\0\x20\0\0\x01\0\0\0abcd\0\0\0\0\0\x20\0\0\0\0\0\0"s},
    };
    for (const auto &[valor, bytes] : casos)
        EXPECT_EQ(objetoXpc(valor), objeto + bytes);
}

TEST(SimuladorRsd, tellsItsServicesToAClientThatGreetsItByHand)
{
    const PuertosRsdSimulados puertos = tunel({});
    const Conversacion conversacion(puertos.puertos().at(0), 4);
    ASSERT_GE(conversacion.marcos.size(), 2U);
    EXPECT_EQ(conversacion.marcos[0].tipo, 4);
    EXPECT_EQ(conversacion.marcos[0].carga, "\0\x03\0\0\0\x64\0\x04\0\x10\0\0"s);
    EXPECT_EQ(conversacion.marcos[1].tipo, 4) << "the client's SETTINGS are acknowledged";
    EXPECT_EQ(conversacion.marcos[1].banderas, 1);
    const auto envolturas = conversacion.completas();
    ASSERT_EQ(envolturas.size(), 4U);
    EXPECT_EQ(envolturas[2].first, 1);
    EXPECT_THAT(envolturas[2].second, HasSubstr(diagnostico));
    EXPECT_THAT(envolturas[2].second, HasSubstr(std::to_string(puertos.puertoRele())));
    EXPECT_THAT(puertos.diario().lineas(),
                ElementsAre("4 0 0 000300000064000400100000", "8 0 0 000F0001", "1 4 1 ",
                            "0 0 1 920BB02901000000140000000000000000000000000000004237134205000000"
                            "00F000000400000000000000",
                            "0 0 1 920BB0290102000000000000000000000000000000000000", "1 4 3 ",
                            "0 0 3 920BB0290100400000000000000000000000000000000000"));
}

TEST(SimuladorRsd, liesInTheRangeAndTakesTheNextPortWhereOneIsTaken)
{
    const PuertosRsdSimulados uno = tunel({});
    const PuertosRsdSimulados otro = tunel({});
    EXPECT_GE(uno.puertos().at(0), 58'783);
    EXPECT_GT(otro.puertos().at(0), uno.puertos().at(0));
    EXPECT_LE(otro.puertos().at(0), 59'283);
    OpcionesRsd fija;
    fija.puerto = uno.puertos().at(0);
    EXPECT_THROW(tunel(fija), std::system_error);
}

TEST(SimuladorRsd, cutsItsWrappersIntoFramesAndTellsThemOnEitherStream)
{
    for (const std::uint32_t flujo : {1U, 3U}) {
        OpcionesRsd opciones;
        opciones.flujoDeServicios = flujo;
        opciones.fragmento = 7;
        opciones.entrelazado = true;
        const PuertosRsdSimulados puertos = tunel(opciones);
        const Conversacion conversacion(puertos.puertos().at(0), 5);
        const auto envolturas = conversacion.completas();
        ASSERT_EQ(envolturas.size(), 5U);
        int con = 0;
        for (const auto &[suyo, cuerpo] : envolturas)
            if (cuerpo.find(diagnostico) != std::string::npos) con = suyo;
        EXPECT_EQ(con, static_cast<int>(flujo));
        int cambios = 0;
        for (std::size_t i = 1; i < conversacion.marcos.size(); ++i)
            cambios += conversacion.marcos[i].tipo == 0 && conversacion.marcos[i].carga.size() <= 7 &&
                       conversacion.marcos[i].flujo != conversacion.marcos[i - 1].flujo;
        EXPECT_GT(cambios, 8) << "the streams take turns";
    }
}

TEST(SimuladorRsd, addsWhatAClientHasToPassOver)
{
    OpcionesRsd opciones;
    opciones.conAcuse = true;
    opciones.conVacias = true;
    opciones.conPalabraDesconocida = true;
    opciones.otrosServicios = {{"malo", {ValorXpc::Diccionario{{"Port", {"70000"s}}}}}};
    const PuertosRsdSimulados puertos = tunel(opciones);
    const Conversacion conversacion(puertos.puertos().at(0), 7);
    EXPECT_EQ(conversacion.marcos.at(1).tipo, 4);
    EXPECT_EQ(conversacion.marcos.at(1).banderas, 1);
    EXPECT_FALSE(conversacion.marcos.at(1).carga.empty());
    const auto envolturas = conversacion.completas();
    ASSERT_EQ(envolturas.size(), 7U);
    EXPECT_EQ(envolturas[2].second, "");
    EXPECT_EQ(envolturas[3].second.size(), 8U);
    EXPECT_THAT(envolturas[4].second, HasSubstr("Raro\0\0\0\0\0\x60\0\0"s));
    EXPECT_THAT(envolturas[5].second, HasSubstr("malo"));
    EXPECT_THAT(envolturas[5].second, HasSubstr("70000"));
}

TEST(SimuladorRsd, liesAsItsKindSays)
{
    using enum OpcionesRsd::Clase;
    const auto ultimoDe = [&](OpcionesRsd::Clase clase, std::size_t cual) {
        OpcionesRsd opciones;
        opciones.clase = clase;
        const PuertosRsdSimulados puertos = tunel(opciones);
        const auto cliente = ClienteCrudo::dePuerto(puertos.puertos().at(0));
        cliente.escribir(saludo);
        Marco ultimo;
        for (std::size_t i = 0; i < cual; ++i)
            ultimo = leerMarco(cliente);
        return ultimo;
    };
    EXPECT_EQ(ultimoDe(cierra, 1).tipo, -1);
    EXPECT_EQ(ultimoDe(despedida, 8).tipo, 7);
    EXPECT_EQ(ultimoDe(sinFin, 300).tipo, 6);
    EXPECT_EQ(ultimoDe(longitudImposible, 8).carga.substr(8, 8), std::string(8, '\xff'));
    OpcionesRsd opciones;
    opciones.clase = basura;
    const PuertosRsdSimulados puertos = tunel(opciones);
    EXPECT_EQ(ClienteCrudo::dePuerto(puertos.puertos().at(0)).leer(400), std::string(400, '\xd4'));
}

TEST(SimuladorRsd, theRelayBehindTheTunnelAnswersTwiceToACheckIn)
{
    const PuertosRsdSimulados puertos = tunel({});
    const auto cliente = ClienteCrudo::dePuerto(puertos.puertoRele());
    EXPECT_EQ(
        valorEnXml(preguntar(cliente, peticion("RSDCheckin", texto("ProtocolVersion", "2"))), "Request"),
        "RSDCheckin");
    EXPECT_EQ(valorEnXml(cliente.leerMarco(), "Request"), "StartService");
    EXPECT_EQ(valorEnXml(preguntar(cliente, peticion("IORegistry", texto("EntryName", "AppleSmartBattery"))),
                         "CycleCount"),
              "412");
    const auto sinPresentarse = ClienteCrudo::dePuerto(puertos.puertoRele());
    sinPresentarse.escribirMarco(peticion("IORegistry", texto("EntryName", "AppleSmartBattery")));
    EXPECT_EQ(sinPresentarse.leerTodo(), "");
}

TEST(SimuladorRsd, endsWhileItsClientsHang)
{
    std::vector<ClienteCrudo> clientes;
    {
        OpcionesRsd silencioso;
        silencioso.clase = OpcionesRsd::Clase::silencioso;
        const PuertosRsdSimulados puertos(dispositivo(), {silencioso, OpcionesRsd{}});
        for (const std::uint16_t puerto :
             {puertos.puertos().at(0), puertos.puertos().at(1), puertos.puertoRele()})
            clientes.push_back(ClienteCrudo::dePuerto(puerto));
        clientes.at(1).escribir(saludo);
        EXPECT_EQ(leerMarco(clientes.at(1)).tipo, 4);
    }
    EXPECT_EQ(clientes.at(0).leerTodo(), "");
}

} // namespace
} // namespace ovanta
