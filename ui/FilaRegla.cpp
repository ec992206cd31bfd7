#include "ui/FilaRegla.h"

#include "core/Tamano.h"
#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/Riesgo.h"

namespace ovanta {

namespace {

QString tamanoDe(const Regla &regla)
{
    return regla.existe ? Formato::delUsuario().bytes(regla.bytes.value_or(0)) : QStringLiteral("no existe");
}

QString modoDe(const Regla &regla)
{
    return regla.mode == "self" ? QStringLiteral("Se mueve la carpeta entera.")
                                : QStringLiteral("Se vacía el contenido, la carpeta se conserva.");
}

FilaRegla filaDe(const Regla &regla, const std::string &categoria, bool marcada)
{
    const Riesgo riesgo = riesgoVisible(regla.risk);
    return {.clave = mostrar(regla.id),
            .categoria = mostrar(categoria),
            .nombre = mostrar(regla.name),
            .ruta = mostrar(regla.path),
            .modo = modoDe(regla),
            .tamano = tamanoDe(regla),
            .insignia = riesgo.texto,
            .tinteInsignia = riesgo.tinte,
            .existe = regla.existe,
            .marcable = marcable(regla),
            .marcada = marcada && marcable(regla)};
}

} // namespace

bool marcable(const Regla &regla)
{
    return regla.risk != "manual";
}

std::vector<FilaRegla> filasDeReglas(const std::vector<GrupoDeReglas> &grupos,
                                     const SeleccionReglas &seleccion, bool soloConTamano)
{
    std::vector<FilaRegla> filas;
    for (const GrupoDeReglas &grupo : grupos)
        for (const Regla &regla : grupo.reglas)
            if (!soloConTamano || regla.bytes.value_or(0) > 0)
                filas.push_back(filaDe(regla, grupo.titulo, seleccion.contains(regla.id)));
    return filas;
}

SeleccionReglas reglasSeguras(const std::vector<Regla> &reglas)
{
    SeleccionReglas seguras;
    for (const Regla &regla : reglas)
        if (regla.risk == "safe" && regla.existe && regla.bytes.value_or(0) > 0) seguras.insert(regla.id);
    return seguras;
}

std::vector<Regla> reglasElegidas(const std::vector<Regla> &reglas, const SeleccionReglas &seleccion)
{
    std::vector<Regla> elegidas;
    for (const Regla &regla : reglas)
        if (marcable(regla) && seleccion.contains(regla.id)) elegidas.push_back(regla);
    return elegidas;
}

std::uint64_t bytesDe(const std::vector<Regla> &reglas)
{
    std::uint64_t total = 0;
    for (const Regla &regla : reglas)
        total = sumar(total, regla.bytes.value_or(0));
    return total;
}

DetalleDeRegla detalleDe(const Regla &regla)
{
    return {.nombre = mostrar(regla.name),
            .porque = mostrar(regla.why),
            .coste = mostrar(regla.cost),
            .ruta = mostrar(regla.path),
            .manual = !marcable(regla)};
}

} // namespace ovanta
