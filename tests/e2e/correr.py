#!/usr/bin/python3
"""Runs every test here, or those named, and ends with one line that counts them."""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))


def main():
    cargador = unittest.defaultTestLoader
    if len(sys.argv) > 1:
        pruebas = cargador.loadTestsFromNames(sys.argv[1:])
    else:
        pruebas = cargador.discover(os.path.dirname(os.path.abspath(__file__)))
    resultado = unittest.TextTestRunner(verbosity=2).run(pruebas)
    fallidas = len(resultado.failures) + len(resultado.errors)
    print(f"e2e: {resultado.testsRun} pruebas, {fallidas} fallidas, {len(resultado.skipped)} omitidas", flush=True)
    return 0 if resultado.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
