#include "devices/BioDeCanal.h"

#include <memory>

namespace ovanta {

namespace {

EnlaceDeCanal &enlaceDe(BIO *bio)
{
    return *static_cast<EnlaceDeCanal *>(BIO_get_data(bio));
}

int escribir(BIO *bio, const char *bytes, int cuantos)
{
    BIO_clear_retry_flags(bio);
    if (cuantos <= 0) return 0;
    EnlaceDeCanal &enlace = enlaceDe(bio);
    const auto enviados = enlace.canal->enviar({bytes, static_cast<std::size_t>(cuantos)});
    if (enviados) return static_cast<int>(*enviados);
    enlace.recordar(estadoAbortado, enviados.error() == Canal::Fallo::vencido);
    return -1;
}

int leer(BIO *bio, char *lugar, int cuantos)
{
    BIO_clear_retry_flags(bio);
    if (cuantos <= 0) return 0;
    EnlaceDeCanal &enlace = enlaceDe(bio);
    const auto recibidos = enlace.canal->recibir({lugar, static_cast<std::size_t>(cuantos)});
    if (recibidos) return static_cast<int>(*recibidos);
    switch (recibidos.error()) {
    case Canal::Fallo::cerrado:
        enlace.recordar(estadoCerrado, false);
        return 0;
    case Canal::Fallo::silencio:
        enlace.recordar(estadoSilencio, false);
        BIO_set_retry_read(bio);
        return -1;
    case Canal::Fallo::vencido:
    case Canal::Fallo::sistema:
        break;
    }
    enlace.recordar(estadoAbortado, recibidos.error() == Canal::Fallo::vencido);
    return -1;
}

long controlar(BIO *bio, int orden, long, void *)
{
    switch (orden) {
    case BIO_CTRL_FLUSH:
        return 1;
    case BIO_CTRL_EOF:
        return enlaceDe(bio).estado == estadoCerrado ? 1 : 0;
    default:
        return 0;
    }
}

int crear(BIO *bio)
{
    BIO_set_init(bio, 1);
    return 1;
}

/// Made once for the process.
const BIO_METHOD *metodo()
{
    struct Soltar
    {
        void operator()(BIO_METHOD *hecho) const { BIO_meth_free(hecho); }
    };
    static const std::unique_ptr<BIO_METHOD, Soltar> hecho = [] {
        std::unique_ptr<BIO_METHOD, Soltar> nuevo{
            BIO_meth_new(BIO_get_new_index() | BIO_TYPE_SOURCE_SINK, "canal")};
        if (!nuevo) return nuevo;
        BIO_meth_set_write(nuevo.get(), escribir);
        BIO_meth_set_read(nuevo.get(), leer);
        BIO_meth_set_ctrl(nuevo.get(), controlar);
        BIO_meth_set_create(nuevo.get(), crear);
        return nuevo;
    }();
    return hecho.get();
}

} // namespace

BIO *nuevoBioDeCanal(EnlaceDeCanal *enlace)
{
    BIO *bio = metodo() ? BIO_new(metodo()) : nullptr;
    if (bio) BIO_set_data(bio, enlace);
    return bio;
}

} // namespace ovanta
