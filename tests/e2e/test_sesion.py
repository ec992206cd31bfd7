"""The program in its session: one instance, the tray, the window, and a prompt end."""

import os
import unittest

from accesible import FILA
from caches import PantallaCaches
from esperar import esperar
from instalacion import instalar, regla
from procesos import hay_espacios_de_montaje
from programa import Casa
from prueba import PruebaDeEscritorio
from ventanas import abiertas, esperar_abierta, esperar_ninguna, pedir_cierre

# A tool that never ends, nor does its child, and that writes down who they are.
LENTO = """#!/bin/sh
trap '' TERM
sleep 1000 &
echo $$ $! > "{lista}"
wait
sleep 1000
"""


def leer_numeros(archivo):
    try:
        with open(archivo) as texto:
            return texto.read().split()
    except FileNotFoundError:
        return []


class UnaSolaInstancia(PruebaDeEscritorio):
    def test_el_segundo_arranque_termina_y_deja_la_ventana_del_primero(self):
        primero = self.iniciar()
        primero.ventana()
        segundo = self.iniciar()
        self.assertEqual(segundo.codigo_de_salida(), 0)
        self.assertEqual(len(abiertas(self.escritorio)), 1)
        self.salir_sin_quejas(primero)

    def test_el_segundo_arranque_abre_la_ventana_que_estaba_cerrada(self):
        primero = self.iniciar()
        primero.icono()
        pedir_cierre(self.escritorio, esperar_abierta(self.escritorio))
        esperar_ninguna(self.escritorio)
        self.assertIsNone(primero.proceso.poll(), "cerrar la ventana no termina el programa")
        segundo = self.iniciar()
        self.assertEqual(segundo.codigo_de_salida(), 0)
        primero.ventana()
        self.salir_sin_quejas(primero)

    def test_sin_bus_de_sesion_el_segundo_arranque_tambien_termina(self):
        primero = self.iniciar(DBUS_SESSION_BUS_ADDRESS="disabled:")
        esperar_abierta(self.escritorio)
        segundo = self.iniciar(DBUS_SESSION_BUS_ADDRESS="disabled:")
        self.assertEqual(segundo.codigo_de_salida(), 0)
        self.salir_sin_quejas(primero)


class LaBandeja(PruebaDeEscritorio):
    def setUp(self):
        super().setUp()
        self.anfitrion = self.escritorio.anfitrion_bandeja

    def sin_anfitrion(self):
        self.anfitrion.desaparecer()
        self.addCleanup(lambda: self.anfitrion.conexion or self.anfitrion.aparecer())

    def test_el_icono_cuadrado_dice_lo_libre_y_su_menu_abre_y_sale(self):
        programa = self.iniciar()
        icono = programa.icono()
        campos = icono.propiedades()
        self.assertIn(" libres", campos["ToolTip"][2])
        self.assertTrue(campos["IconPixmap"])
        for ancho, alto, bytes_ in campos["IconPixmap"]:
            self.assertEqual(ancho, alto)
            self.assertEqual(len(bytes_), ancho * alto * 4)
        textos = list(icono.menu().values())
        self.assertIn(" libres", textos[0])
        self.assertEqual(textos[1:], ["Mostrar panel", "Abrir Ovanta", "Actualizar ahora", "Salir de Ovanta"])
        self.salir_sin_quejas(programa, por_menu=True)

    def test_el_boton_del_medio_y_el_menu_vuelven_a_abrir_la_ventana(self):
        programa = self.iniciar()
        icono = programa.icono()
        for abrir in (icono.pulsar_con_el_medio, lambda: icono.elegir("Abrir Ovanta")):
            pedir_cierre(self.escritorio, esperar_abierta(self.escritorio))
            esperar_ninguna(self.escritorio)
            abrir()
            programa.ventana()
        self.salir_sin_quejas(programa)

    def test_un_anfitrion_que_llega_tarde_recibe_el_icono(self):
        self.sin_anfitrion()
        programa = self.iniciar()
        programa.ventana()
        self.anfitrion.aparecer()
        self.assertIn("Salir de Ovanta", programa.icono().menu().values())
        self.salir_sin_quejas(programa)

    def test_sin_anfitrion_cerrar_la_ventana_no_la_pierde(self):
        self.sin_anfitrion()
        programa = self.iniciar()
        programa.ventana()
        pedir_cierre(self.escritorio, esperar_abierta(self.escritorio))
        segundo = self.iniciar()
        self.assertEqual(segundo.codigo_de_salida(), 0)
        esperar_abierta(self.escritorio)
        self.salir_sin_quejas(programa)


class ElFinal(PruebaDeEscritorio):
    @unittest.skipUnless(hay_espacios_de_montaje(), "aquí no se puede poner otro du delante del de verdad")
    def test_salir_con_un_du_colgado_es_inmediato_y_no_deja_huerfanos(self):
        prefijo = self.enterContext(Casa())
        binario = instalar(prefijo.ruta, [regla("lenta", "~/.cache/lenta")])
        self.casa.escribir(".cache/lenta/a.bin", "x")
        lista = prefijo.en("lista")
        du = prefijo.escribir("du-lento", LENTO.format(lista=lista), 0o755)
        programa = self.iniciar("/usr/bin/unshare", argumentos=[
            "--mount", "sh", "-c", f'mount --bind "{du}" /usr/bin/du && exec "{binario}"'])
        programa.ventana().esperar("Cachés", FILA).pulsar()
        colgados = esperar(lambda: leer_numeros(lista), "que corra du")
        self.assertLess(self.salir_sin_quejas(programa), 5.0, "no espera a la herramienta")
        esperar(lambda: not any(os.path.exists(f"/proc/{numero}") for numero in colgados),
                "que mueran la herramienta y su hijo")

    def test_la_senal_de_la_sesion_termina_bien_el_programa(self):
        programa = self.iniciar()
        programa.ventana()
        self.salir_sin_quejas(programa)


class HogaresRaros(PruebaDeEscritorio):
    """The home is named oddly, or something is wrong with it."""

    def comprobar_que_mide(self, hogar):
        self.casa.escribir(".cache/pip/http/a.bin", os.urandom(2_000_000))
        programa = self.iniciar(hogar=hogar)
        PantallaCaches(programa.ventana()).esperar_medida()
        self.salir_sin_quejas(programa)

    def test_con_una_barra_al_final(self):
        self.comprobar_que_mide(self.casa.ruta + "/")

    def test_que_es_un_enlace(self):
        enlace = self.enterContext(Casa()).en("enlace")
        os.symlink(self.casa.ruta, enlace)
        self.comprobar_que_mide(enlace)

    def test_que_no_existe_deja_abrir_y_salir(self):
        hogar = self.casa.en("no/existe")
        programa = self.iniciar(hogar=hogar)
        programa.ventana().esperar("Cachés", FILA)
        self.salir_sin_quejas(programa)

    @unittest.skipUnless(os.getuid() == 0, "hace falta ser root para correr como un usuario sin carpeta")
    def test_sin_definir_y_sin_carpeta_en_el_sistema_deja_abrir_y_salir(self):
        carpeta = self.enterContext(Casa())
        os.chown(carpeta.ruta, 65534, 65534)
        programa = self.iniciar(instalar(carpeta.en("programa"), []), usuario=65534, HOME=None,
                                XDG_RUNTIME_DIR=carpeta.ruta, DBUS_SESSION_BUS_ADDRESS="disabled:")
        esperar_abierta(self.escritorio)
        self.salir_sin_quejas(programa)

    def test_donde_no_se_puede_guardar_la_limpieza_sigue_siendo_la_misma(self):
        # Not even root can make a folder below a file.
        self.casa.escribir("Library", "")
        self.casa.escribir(".cache/pip/http/a.bin", os.urandom(2_000_000))
        programa = self.iniciar()
        pantalla = PantallaCaches(programa.ventana())
        pantalla.esperar_medida()
        pantalla.marcar_seguros(1)
        self.assertIn("Movidos 1 elementos", pantalla.mover(1))
        self.salir_sin_quejas(programa)


if __name__ == "__main__":
    unittest.main()
