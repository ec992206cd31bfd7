#pragma once

#include "core/RuleStore.h"
#include "tests/PlataformaDePrueba.h"

#include <QCoroTask>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

namespace ovanta::pruebas {

namespace fs = std::filesystem;

/// One entry of a catalogue.
inline std::string entrada(const std::string &id, const std::string &ruta, const std::string &riesgo = "safe")
{
    return R"({"id":")" + id + R"(","name":"n","path":")" + ruta + R"(","category":"ml","risk":")" + riesgo +
           R"(","mode":"self","why":"w","cost":"c"})";
}

/// A store over a platform of fakes, with a home and a catalogue file of its own.
struct RuleStoreEn : testing::Test
{
    fs::path carpeta = fs::temp_directory_path() / "rule-store";
    fs::path hogar = carpeta / "casa";
    PlataformaDePrueba plataforma;
    RuleStore store{plataforma};

    RuleStoreEn()
    {
        fs::create_directories(hogar);
        plataforma.m_lugares.hogar = hogar;
        plataforma.m_lugares.catalogo = carpeta / "rules.json";
    }
    ~RuleStoreEn() override { fs::remove_all(carpeta); }

    void escribir(const std::string &bytes) const
    {
        std::ofstream(carpeta / "rules.json", std::ios::binary) << bytes;
    }
    void cargar(const std::vector<std::string> &entradas)
    {
        std::string texto;
        for (const auto &una : entradas)
            texto += (texto.empty() ? "" : ",") + una;
        escribir("[" + texto + "]");
        store.cargar();
        ASSERT_EQ(store.error(), std::nullopt);
    }
    void crear(const std::string &nombre) const { fs::create_directories(hogar / nombre); }
    void responder(const std::string &salida)
    {
        plataforma.m_herramientas.alEjecutar = [salida](const auto &, const auto &) { return salida; };
    }
    void medir() { QCoro::waitFor(store.medir()); }
    std::optional<std::uint64_t> bytes(std::size_t i) const { return store.reglas().at(i).bytes; }
};

} // namespace ovanta::pruebas
