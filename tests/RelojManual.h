#pragma once

#include "platform/simulada/RelojManual.h"

namespace ovanta::pruebas {
using ovanta::RelojManual;
}
