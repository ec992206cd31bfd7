// The bare reading that a sweep is compared with: the two files of every process that takes memory, opened,
// read and closed, with nothing made of them. Prints the median microseconds of a process over the rounds.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

struct Archivos
{
    std::string stat, statm;
};

ssize_t leer(int proc, const std::string &ruta, char *lugar, std::size_t tamano)
{
    const int descriptor = openat(proc, ruta.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) return -1;
    const ssize_t leidos = read(descriptor, lugar, tamano);
    close(descriptor);
    return leidos;
}

std::vector<Archivos> procesosConMemoria(DIR *proc)
{
    std::vector<Archivos> procesos;
    while (const dirent *entrada = readdir(proc)) {
        const std::string pid = entrada->d_name;
        Archivos archivos{.stat = pid + "/stat", .statm = pid + "/statm"};
        char lugar[256];
        if (pid.find_first_not_of("0123456789") != std::string::npos) continue;
        if (leer(dirfd(proc), archivos.statm, lugar, sizeof lugar) > 1 && lugar[0] != '0')
            procesos.push_back(std::move(archivos));
    }
    return procesos;
}

double microsegundos(clockid_t reloj)
{
    timespec tiempo;
    clock_gettime(reloj, &tiempo);
    return static_cast<double>(tiempo.tv_sec) * 1e6 + static_cast<double>(tiempo.tv_nsec) / 1e3;
}

double mediana(std::vector<double> &valores)
{
    const auto medio = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
    std::ranges::nth_element(valores, medio);
    return *medio;
}

} // namespace

int main(int argc, char **argv)
{
    DIR *proc = opendir("/proc");
    if (proc == nullptr) return 1;
    const std::vector<Archivos> procesos = procesosConMemoria(proc);
    if (procesos.empty()) return 1;
    std::vector<double> tiempos, procesador;
    for (int rondas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 99); rondas > 0; --rondas) {
        const double antes = microsegundos(CLOCK_THREAD_CPUTIME_ID);
        const double desde = microsegundos(CLOCK_MONOTONIC);
        for (const Archivos &archivos : procesos) {
            char lugar[1024];
            leer(dirfd(proc), archivos.stat, lugar, sizeof lugar);
            leer(dirfd(proc), archivos.statm, lugar, sizeof lugar);
        }
        tiempos.push_back(microsegundos(CLOCK_MONOTONIC) - desde);
        procesador.push_back(microsegundos(CLOCK_THREAD_CPUTIME_ID) - antes);
    }
    const auto cuantos = static_cast<double>(procesos.size());
    std::printf("{\"processes\":%zu,\"us_per_process\":%.3f,\"cpu_us_per_process\":%.3f}\n", procesos.size(),
                mediana(tiempos) / cuantos, mediana(procesador) / cuantos);
    closedir(proc);
    return 0;
}
