#include "app/Arranque.h"
#include "platform/linux/PlataformaLinux.h"

int main(int argc, char **argv)
{
    return ovanta::ejecutarPrograma(argc, argv, [] { return std::make_unique<ovanta::PlataformaLinux>(); });
}
