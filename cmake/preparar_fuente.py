#!/usr/bin/env python3
"""Makes the program's text font out of an Inter face: only the scripts that the texts need, figures
of one width, a family name of its own.

Qt 6.4 cannot ask a font for its tabular figures, so they become the ordinary ones here. What the
subset lacks (a file name in another script) comes from the system's fonts.

    preparar_fuente.py SOURCE.otf OUTPUT.otf "Style name"
"""
import sys

from fontTools import subset
from fontTools.ttLib import TTFont

FAMILIA = "Ovanta Texto"
ALCANCE = [*range(0x20, 0x250), *range(0x2000, 0x2070), *range(0x20A0, 0x20C0), 0x2122,
           *range(0x2190, 0x219A), 0x2212, 0x2260, 0x2264, 0x2265, 0x221E, 0x2022]


def cifras_tabulares(fuente):
    """Which glyph the feature tnum puts in place of which."""
    gsub = fuente["GSUB"].table
    indices = {i for r in gsub.FeatureList.FeatureRecord if r.FeatureTag == "tnum"
               for i in r.Feature.LookupListIndex}
    cambios = {}
    for i in indices:
        for tabla in gsub.LookupList.Lookup[i].SubTable:
            tabla = getattr(tabla, "ExtSubTable", tabla)
            cambios.update(getattr(tabla, "mapping", {}))
    return cambios


def main(origen, destino, estilo):
    fuente = TTFont(origen)
    cambios = cifras_tabulares(fuente)
    cifras = {c: cambios[glifo] for c, glifo in fuente.getBestCmap().items() if ord("0") <= c <= ord("9")}
    for tabla in fuente["cmap"].tables:
        tabla.cmap.update(cifras)
    ancho = max(fuente["hmtx"][glifo][0] for glifo in cifras.values())
    for glifo in cifras.values():
        fuente["hmtx"][glifo] = (ancho, fuente["hmtx"][glifo][1])
    opciones = subset.Options(layout_features=["kern", "mark", "ccmp", "locl"], name_IDs=["*"],
                              desubroutinize=True, notdef_outline=True)
    recorte = subset.Subsetter(opciones)
    recorte.populate(unicodes=ALCANCE)
    recorte.subset(fuente)
    nombres = {1: FAMILIA, 2: estilo, 3: f"{FAMILIA} {estilo}", 4: f"{FAMILIA} {estilo}",
               6: f"{FAMILIA} {estilo}".replace(" ", ""), 16: FAMILIA, 17: estilo}
    fuente["name"].names = [n for n in fuente["name"].names if n.nameID in (0, 13, 14)]
    for numero, texto in nombres.items():
        fuente["name"].setName(texto, numero, 3, 1, 0x409)
    cff = fuente["CFF "].cff
    cff.fontNames = [nombres[6]]
    fuente.save(destino)


if __name__ == "__main__":
    main(*sys.argv[1:])
