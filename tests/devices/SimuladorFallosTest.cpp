#include "tests/devices/DispositivosDePrueba.h"

#include <gmock/gmock.h>

namespace ovanta {
namespace {

using namespace pruebas;
using testing::HasSubstr;

const std::string pregunta = peticion("IORegistry", texto("EntryName", "AppleSmartBattery"));

/// The relay of a device with those faults, without TLS.
std::shared_ptr<DispositivoSimulado> con(const std::function<void(FallosSimulados &)> &fallar)
{
    return dispositivo([&](OpcionesDispositivo &opciones) {
        opciones.servicioCifrado = false;
        fallar(opciones.fallosRele);
    });
}

constexpr std::uint16_t rele = 49'731;

TEST(SimuladorFallos, closesInsteadOfTheAnswerOfThatStep)
{
    const Puerto puerto(con([](FallosSimulados &fallos) { fallos.cerrarEnElPaso = 1; }), rele);
    EXPECT_THAT(preguntar(puerto.cliente, pregunta), HasSubstr("DesignCapacity"));
    puerto.cliente.escribirMarco(pregunta);
    EXPECT_EQ(puerto.cliente.leerTodo(), "");
}

TEST(SimuladorFallos, cutsTheBytesThatLeaveWhereItIsTold)
{
    const Puerto entero(con([](FallosSimulados &) {}), rele);
    entero.cliente.escribirMarco(pregunta);
    const std::string todo = entero.cliente.leer(40);
    for (const std::size_t cuantos : {0U, 1U, 3U, 4U, 40U}) {
        const Puerto puerto(con([&](FallosSimulados &fallos) { fallos.cortarEnElByte = cuantos; }), rele);
        puerto.cliente.escribirMarco(pregunta);
        EXPECT_EQ(puerto.cliente.leerTodo(), todo.substr(0, cuantos));
    }
}

TEST(SimuladorFallos, dripsTheSameBytes)
{
    const Puerto puerto(con([](FallosSimulados &fallos) {
                            fallos.trozo = 400;
                            fallos.pausa = std::chrono::milliseconds{1};
                        }),
                        rele);
    EXPECT_EQ(valorEnXml(preguntar(puerto.cliente, pregunta), "DesignCapacity"), "3279");
}

TEST(SimuladorFallos, liesAboutTheLengthOfAnAnswer)
{
    const Puerto puerto(con([](FallosSimulados &fallos) {
                            fallos.mentirEnElPaso = 0;
                            fallos.longitudMentida = 0x02000000;
                        }),
                        rele);
    puerto.cliente.escribirMarco(pregunta);
    EXPECT_EQ(puerto.cliente.leer(9), std::string("\x02\0\0\0<?xml", 9));
}

TEST(SimuladorFallos, answersGarbageInAFrameOfItsLength)
{
    const Puerto puerto(con([](FallosSimulados &fallos) { fallos.basuraEnElPaso = 0; }), rele);
    const std::string respuesta = preguntar(puerto.cliente, pregunta);
    EXPECT_GT(respuesta.size(), 100U);
    EXPECT_EQ(respuesta, std::string(respuesta.size(), '\xa7'));
}

TEST(SimuladorFallos, answersWithAnErrorWhereItIsTold)
{
    const Puerto puerto(con([](FallosSimulados &fallos) { fallos.errores["IORegistry"] = "Prohibido"; }),
                        rele);
    EXPECT_EQ(valorEnXml(preguntar(puerto.cliente, pregunta), "Error"), "Prohibido");
}

TEST(SimuladorFallos, endsWhileItKeepsSilentDripsOrIsNotRead)
{
    const auto mudo = con([](FallosSimulados &fallos) { fallos.callarEnElPaso = 0; });
    const auto lento = con([](FallosSimulados &fallos) {
        fallos.trozo = 1;
        fallos.pausa = std::chrono::hours{1};
    });
    const auto lleno = dispositivo([](OpcionesDispositivo &opciones) {
        opciones.servicioCifrado = false;
        opciones.registro = DiccionarioPlist{{"Largo", std::string(8'000'000, 'x')}};
    });
    for (const auto &quien : {mudo, lento, lleno}) {
        const Puerto puerto(quien, rele);
        puerto.cliente.escribirMarco(pregunta);
        while (quien->diario().lineas().empty())
            std::this_thread::yield();
    }
    EXPECT_EQ(mudo->diario().lineas().size(), 1U);
}

} // namespace
} // namespace ovanta
