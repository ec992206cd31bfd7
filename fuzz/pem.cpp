#include "devices/DerPem.h"
#include "devices/IdentidadTemporal.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <openssl/err.h>

using namespace ovanta;

/// The bytes are taken as DER, as PEM, and as the two PEMs of a pairing record with a NUL between them. A key
/// that is found lies inside the input, and no error stays in OpenSSL's queue.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    const std::string_view bytes{reinterpret_cast<const char *>(datos), cuantos};
    const auto clave = pkcs1DesdePkcs8(bytes);
    if (clave && !bytes.contains(*clave)) std::abort();
    const auto der = derDesdePem(bytes);
    if (der && der->size() > bytes.size()) std::abort();
    const auto corte = std::min(bytes.find('\0'), cuantos);
    const auto segunda = bytes.substr(std::min(corte + 1, cuantos));
    const auto identidad = IdentidadTemporal::crear(bytes.substr(0, corte), segunda);
    if (!identidad && identidad.error().texto.empty()) std::abort();
    if (ERR_peek_error() != 0) std::abort();
    return 0;
}
