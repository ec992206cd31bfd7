#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "bench/VueltasDesnudas.h"
#include "devices/Usbmux.h"
#include "platform/ConexionesPosix.h"
#include "platform/simulada/dispositivos/UsbmuxdSimulado.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace ovanta {
namespace {

/// A simulated device behind a simulated usbmuxd, in the clear or encrypted.
struct Mesa
{
    explicit Mesa(bool cifrada) : usbmuxd({telefono(cifrada)}), conexiones(usbmuxd.ruta()) {}

    static std::shared_ptr<DispositivoSimulado> telefono(bool cifrado)
    {
        OpcionesDispositivo opciones;
        opciones.sesionCifrada = opciones.servicioCifrado = cifrado;
        auto nuevo = std::make_shared<DispositivoSimulado>(opciones);
        nuevo->emparejamiento(); // making its keys is no part of a reading
        return nuevo;
    }

    void leer(Conexiones &por) const
    {
        const Plazo plazo{Usbmux::limiteDeLectura};
        const auto leida = Usbmux::leer(por, {.id = 1, .udid = udid, .porRed = false}, plazo);
        if (!leida) throw std::runtime_error(leida.error().errorDescription());
    }

    const std::string udid = OpcionesDispositivo{}.udid;
    UsbmuxdSimulado usbmuxd;
    ConexionesPosix conexiones;
};

} // namespace

/// `lectura [rounds]`: one complete reading of a simulated device in the clear, against the same bytes sent
/// to and fro by a peer that looks at nothing; and what the same reading takes encrypted.
int bancoLectura(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 15);
    constexpr int porTanda = 20;
    Mesa clara(false), cifrada(true);
    ConexionesGrabadas grabadas(clara.conexiones);
    clara.leer(grabadas);
    const VueltasDesnudas desnudas(grabadas.conversacion());
    const auto [nuestra, ajena] = compararPorTandas(
        tandas, porTanda, [&] { clara.leer(clara.conexiones); }, [&] { desnudas.recorrer(); });
    const double conTls = microsegundosPorVez(porTanda, [&] { cifrada.leer(cifrada.conexiones); });
    std::printf(
        "{\"bytes\":%zu,\"lectura_us\":%.1f,\"vueltas_us\":%.1f,\"ratio\":%.3f,\"cifrada_us\":%.1f}\n",
        desnudas.bytes(), nuestra, ajena, nuestra / ajena, conTls);
    return 0;
}

} // namespace ovanta
