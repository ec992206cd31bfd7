#!/usr/bin/env python3
"""Checks which folder includes what, where Qt and OS headers may stand, and nothing else.

Usage: comprobar_capas.py SOURCE_TREE. Prints one line per breach and ends with 1 if there is any.
"""
import re
import sys
from pathlib import Path

ANALISIS = ("analysis", "monitors", "devices", "developer")

# Folder -> folders it may include, besides itself. A store among them may also include core/qt.
PISOS = {
    "core": {"platform"},  # the stores of core only; see CORE_PURO
    "core/plist": {"core"},
    "core/qt": {"core"},
    "platform": {"core"},
    "platform/linux": {"core", "core/plist", "core/qt", "platform"},
    "platform/simulada": {"core", "core/plist", "core/qt", "platform"},
    **{carpeta: {"core", "core/plist", "core/qt", "platform"} for carpeta in ANALISIS},
    "automation": {"core", "core/plist", "core/qt", "platform", "monitors"},
    "app": {"core", "core/plist", "core/qt", "platform", *ANALISIS, "automation"},
    "ui": {"core", "core/qt", "platform", *ANALISIS, "automation", "app", "ui/componentes"},
    "ui/componentes": {"core", "core/qt", "platform", "app"},
}

# A shared record of one subsystem that another one's domain is about.
REGISTROS_COMPARTIDOS = {("monitors", "monitors"), ("developer", "monitors"), ("analysis", "monitors")}

# The composition roots: the only sources of app/ that name a back end.
RAICES = re.compile(r"^app/main\w*\.cpp$")

CABECERA_QT = re.compile(r"^(Q[A-Z]\w*|Qt\w*/.*|QCoro.*)$")
CABECERA_SISTEMA = re.compile(r"^(sys/(syscall|inotify|signalfd|eventfd|timerfd|epoll|sysinfo|vfs|prctl|xattr)\.h|"
                              r"linux/.*|mach/.*|libproc\.h|CoreFoundation/.*|IOKit/.*)$")
MACRO_SISTEMA = re.compile(r"\b(__linux__|__APPLE__|Q_OS_\w+)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)')


def carpeta_de(ruta: str) -> str:
    partes = ruta.split("/")
    dos = "/".join(partes[:2])
    return dos if dos in PISOS and len(partes) > 2 else partes[0]


def es_tienda(texto: str) -> bool:
    return "Q_OBJECT" in texto or "Q_GADGET" in texto


def puede_usar_qt(ruta: str, arbol: Path) -> bool:
    carpeta = carpeta_de(ruta)
    if carpeta in ("core/qt", "platform/linux", "platform/simulada", "app", "ui", "ui/componentes"):
        return True
    if carpeta == "platform":
        return False
    # A store and its split files: the header of the same class, or of a name that begins this one.
    nombre = Path(ruta).stem
    for cabecera in (arbol / ruta).parent.glob("*.h"):
        if nombre.startswith(cabecera.stem) and es_tienda(cabecera.read_text(errors="replace")):
            return True
    return False


def comprobar_include(ruta: str, destino: str, tienda: bool) -> str | None:
    origen, meta = carpeta_de(ruta), carpeta_de(destino)
    if meta not in PISOS or origen == meta:
        return None
    if RAICES.match(ruta) and meta.startswith("platform/"):
        return None
    if meta == "platform" and origen == "core" and not tienda:
        return "pure core includes the platform"
    if meta == "core/qt" and origen in ("core", *ANALISIS, "automation") and not tienda:
        return "pure code includes core/qt"
    if meta == "core/qt" and origen == "core":
        return None
    if meta not in PISOS[origen] and (origen, meta) not in REGISTROS_COMPARTIDOS:
        return f"{origen} may not include {meta}"
    return None


def comprobar_archivo(arbol: Path, ruta: str) -> list[str]:
    texto = (arbol / ruta).read_text(errors="replace")
    carpeta = carpeta_de(ruta)
    tienda = puede_usar_qt(ruta, arbol)
    faltas = []
    for numero, linea in enumerate(texto.splitlines(), 1):
        hallado = INCLUDE.match(linea)
        if hallado:
            propio, ajeno = hallado.groups()
            if propio and (motivo := comprobar_include(ruta, propio, tienda)):
                faltas.append(f"{ruta}:{numero}: {motivo}: {propio}")
            if ajeno and CABECERA_QT.match(ajeno) and not tienda:
                faltas.append(f"{ruta}:{numero}: Qt header in pure code: {ajeno}")
            if ajeno and CABECERA_SISTEMA.match(ajeno) and not carpeta.startswith("platform/"):
                faltas.append(f"{ruta}:{numero}: OS header outside platform/: {ajeno}")
        if MACRO_SISTEMA.search(linea) and not carpeta.startswith("platform/"):
            faltas.append(f"{ruta}:{numero}: OS macro outside platform/")
    return faltas


def main() -> int:
    arbol = Path(sys.argv[1])
    rutas = sorted(str(p.relative_to(arbol)) for carpeta in {c.split("/")[0] for c in PISOS}
                   for extension in ("*.h", "*.cpp") for p in (arbol / carpeta).rglob(extension))
    faltas = [falta for ruta in rutas for falta in comprobar_archivo(arbol, ruta)]
    print("\n".join(faltas) if faltas else f"{len(rutas)} files stand on their floors")
    return 1 if faltas or not rutas else 0


if __name__ == "__main__":
    sys.exit(main())
