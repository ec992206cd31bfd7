#pragma once

#include "core/Ejecutar.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace ovanta::pruebas {

/// Runs one test of this very program (its name may begin with DISABLED_) in a process of its own,
/// behind the words of `delante`, for example a tool that takes rights away and an `env` that
/// tells the test something. Throws `ShellError` where the test failed or the process was killed.
inline void correrEnOtroProceso(const std::string &prueba, std::vector<std::string> delante)
{
    delante.insert(delante.begin(), {"-u", "GTEST_TOTAL_SHARDS", "-u", "GTEST_SHARD_INDEX"});
    delante.push_back(std::filesystem::read_symlink("/proc/self/exe"));
    delante.push_back("--gtest_also_run_disabled_tests");
    delante.push_back("--gtest_filter=" + prueba);
    const auto salida = ejecutar("/usr/bin/env", delante, 60, false);
    EXPECT_NE(salida.find("[  PASSED  ] 1 test."), std::string::npos) << salida;
}

} // namespace ovanta::pruebas
