#include "core/Utf8.h"
#include "devices/MensajeUsbmux.h"

#include <cstdint>
#include <cstdlib>

using namespace ovanta;

/// Any reply is refused, or gives devices and a pair record that can be used.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t tamano)
{
    const std::string_view bytes(reinterpret_cast<const char *>(datos), tamano);
    if (tamano < Usbmux::bytesDeCabecera) return 0;
    const auto siguen = Usbmux::bytesQueSiguen(bytes.substr(0, Usbmux::bytesDeCabecera));
    if (siguen && *siguen > Usbmux::maximoRespuesta - Usbmux::bytesDeCabecera) std::abort();
    const auto respuesta = Usbmux::interpretarRespuesta(bytes.substr(Usbmux::bytesDeCabecera));
    if (!respuesta) return 0;
    for (const Usbmux::Dispositivo &uno : Usbmux::dispositivosDe(*respuesta)) {
        // What is asked about a device must be fit to be sent.
        if (!Usbmux::mensaje({{"MessageType", "Connect"}, {"DeviceID", uno.id}})) std::abort();
        if (!esUtf8(uno.udid)) std::abort();
    }
    const auto pareja = Usbmux::emparejamientoDe(*respuesta);
    if (pareja ? !esUtf8(pareja->hostID) || !esUtf8(pareja->systemBUID)
               : pareja.error().errorDescription().empty())
        std::abort();
    return 0;
}
