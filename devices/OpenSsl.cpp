#include "devices/OpenSsl.h"

#include <openssl/err.h>

namespace ovanta {

ColaDeErrores::ColaDeErrores()
{
    ERR_clear_error();
}

ColaDeErrores::~ColaDeErrores()
{
    ERR_clear_error();
}

std::int32_t ColaDeErrores::motivo() const
{
    // Above the number itself stand flags.
    return ERR_GET_REASON(ERR_peek_error()) & ((1 << ERR_RFLAGS_OFFSET) - 1);
}

} // namespace ovanta
