#include "core/CarpetaDatos.h"

#include <sys/stat.h>

namespace ovanta {

std::string carpetaDatos(const std::string &hogar)
{
    std::string carpeta = hogar;
    for (const char *nombre : {"/Library", "/Application Support", "/Ovanta"}) {
        carpeta += nombre;
        ::mkdir(carpeta.c_str(), S_IRWXU);
    }
    return carpeta;
}

} // namespace ovanta
