// What no search for equal files can do without: every file of the groups in FILE read once, wholly and in
// order, and the first of each group digested (SHA-256), on one thread. FILE as `ovanta-banco dups --out`
// writes it.
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <openssl/evp.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

unsigned long long leer(const char *ruta, EVP_MD_CTX *digesto, std::vector<char> &lugar)
{
    unsigned long long bytes = 0;
    const int archivo = open(ruta, O_RDONLY | O_CLOEXEC | O_NOATIME);
    if (archivo < 0) return 0;
    posix_fadvise(archivo, 0, 0, POSIX_FADV_SEQUENTIAL);
    ssize_t leidos = 0;
    while ((leidos = read(archivo, lugar.data(), lugar.size())) > 0) {
        bytes += static_cast<unsigned long long>(leidos);
        if (digesto) EVP_DigestUpdate(digesto, lugar.data(), static_cast<std::size_t>(leidos));
    }
    close(archivo);
    return bytes;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) return 2;
    std::ifstream entrada(argv[1], std::ios::binary);
    const std::string grupos{std::istreambuf_iterator<char>(entrada), {}};
    std::vector<char> lugar(256 << 10);
    EVP_MD *const sha256 = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    EVP_MD_CTX *const contexto = EVP_MD_CTX_new();
    unsigned char digesto[EVP_MAX_MD_SIZE];
    unsigned long long leidos = 0, digeridos = 0;
    bool primero = true;
    for (const char *ruta = grupos.data(); ruta < grupos.data() + grupos.size();
         ruta += std::strlen(ruta) + 1) {
        if (*ruta == '\0') {
            primero = true;
            continue;
        }
        if (primero) EVP_DigestInit_ex2(contexto, sha256, nullptr);
        const unsigned long long bytes = leer(ruta, primero ? contexto : nullptr, lugar);
        if (primero) EVP_DigestFinal_ex(contexto, digesto, nullptr);
        leidos += bytes;
        digeridos += primero ? bytes : 0;
        primero = false;
    }
    std::printf("{\"read_bytes\":%llu,\"digested_bytes\":%llu}\n", leidos, digeridos);
    EVP_MD_CTX_free(contexto);
    EVP_MD_free(sha256);
    return 0;
}
