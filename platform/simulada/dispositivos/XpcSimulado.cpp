#include "platform/simulada/dispositivos/XpcSimulado.h"

#include <bit>

namespace ovanta {

namespace {

template <typename Numero>
void poner(std::string &salida, Numero numero)
{
    for (std::size_t i = 0; i < sizeof numero; ++i)
        salida.push_back(static_cast<char>((numero >> (8 * i)) & 0xff));
}

void alinear(std::string &salida)
{
    salida.resize((salida.size() + 3) / 4 * 4, '\0');
}

/// Writes one value behind what stands there already, which is aligned.
struct Codificador
{
    std::string &salida;

    void codificar(const ValorXpc &valor) const { std::visit(*this, valor.valor); }

    void operator()(ValorXpc::Nulo) const { poner<std::uint32_t>(salida, 0x1000); }
    void operator()(bool valor) const
    {
        poner<std::uint32_t>(salida, 0x2000);
        poner<std::uint32_t>(salida, valor ? 1 : 0);
    }
    void operator()(std::int64_t valor) const { ocho(0x3000, static_cast<std::uint64_t>(valor)); }
    void operator()(std::uint64_t valor) const { ocho(0x4000, valor); }
    void operator()(double valor) const { ocho(0x5000, std::bit_cast<std::uint64_t>(valor)); }
    void operator()(ValorXpc::Momento valor) const
    {
        ocho(0x7000, static_cast<std::uint64_t>(valor.nanosegundos));
    }
    void operator()(const ValorXpc::Datos &valor) const { bytes(0x8000, valor.bytes); }
    void operator()(const std::string &valor) const { bytes(0x9000, valor + '\0'); }
    void operator()(const ValorXpc::Uuid &valor) const
    {
        poner<std::uint32_t>(salida, 0xA000);
        salida.append(valor.begin(), valor.end());
    }
    void operator()(ValorXpc::PalabraSuelta valor) const { poner(salida, valor.palabra); }
    void operator()(const ValorXpc::Lista &valores) const
    {
        const std::size_t longitud = abrir(0xE000, valores.size());
        for (const ValorXpc &valor : valores)
            codificar(valor);
        cerrar(longitud);
    }
    void operator()(const ValorXpc::Diccionario &entradas) const
    {
        const std::size_t longitud = abrir(0xF000, entradas.size());
        for (const EntradaXpc &entrada : entradas) {
            salida += entrada.clave + '\0';
            alinear(salida);
            codificar(entrada.valor);
        }
        cerrar(longitud);
    }

private:
    void ocho(std::uint32_t tipo, std::uint64_t valor) const
    {
        poner(salida, tipo);
        poner(salida, valor);
    }
    void bytes(std::uint32_t tipo, const std::string &contenido) const
    {
        poner(salida, tipo);
        poner(salida, static_cast<std::uint32_t>(contenido.size()));
        salida += contenido;
        alinear(salida);
    }
    /// Returns where the length stands, which `cerrar` fills in: it counts from the field behind it.
    std::size_t abrir(std::uint32_t tipo, std::size_t cuantos) const
    {
        poner(salida, tipo);
        const std::size_t longitud = salida.size();
        poner<std::uint32_t>(salida, 0);
        poner(salida, static_cast<std::uint32_t>(cuantos));
        return longitud;
    }
    void cerrar(std::size_t longitud) const
    {
        std::string texto;
        poner(texto, static_cast<std::uint32_t>(salida.size() - longitud - 4));
        salida.replace(longitud, 4, texto);
    }
};

} // namespace

std::string objetoXpc(const ValorXpc &valor)
{
    std::string objeto;
    poner<std::uint32_t>(objeto, 0x42133742);
    poner<std::uint32_t>(objeto, 5);
    Codificador{objeto}.codificar(valor);
    return objeto;
}

std::string envolturaXpc(std::uint32_t banderas, std::uint64_t mensaje, std::string_view cuerpo)
{
    std::string envoltura;
    poner<std::uint32_t>(envoltura, 0x29B00B92);
    poner(envoltura, banderas);
    poner<std::uint64_t>(envoltura, cuerpo.size());
    poner(envoltura, mensaje);
    return envoltura.append(cuerpo);
}

} // namespace ovanta
