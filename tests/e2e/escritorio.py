"""A private virtual desktop: display, session bus, accessibility bus and the services of a desktop.

Nothing of it is the user's, and everything ends with it.
"""

import os
import shutil
import sys
import tempfile

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import GLib  # noqa: E402
from Xlib.display import Display  # noqa: E402

import servicios  # noqa: E402
from bus import HiloDeBus, conectar, llamar  # noqa: E402
from esperar import esperar  # noqa: E402
from procesos import iniciar, terminar  # noqa: E402

LANZADOR_ACCESIBILIDAD = "/usr/libexec/at-spi-bus-launcher"

# No service folders: nothing that is installed on this machine can be started through the bus.
CONFIGURACION_BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:path={carpeta}/bus</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
<allow own="*"/><allow user="*"/></policy></busconfig>
"""

# The variables through which a program could find the real user's desktop.
AJENAS = ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR",
          "XDG_CURRENT_DESKTOP", "XDG_SESSION_ID", "WAYLAND_DISPLAY", "DISPLAY", "DBUS_SESSION_BUS_ADDRESS",
          "AT_SPI_BUS_ADDRESS", "QT_QPA_PLATFORM", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "SESSION_MANAGER")


class Escritorio:
    """Context manager. At most one in the life of a process: the accessibility library connects
    once. `registros` is the folder with what every program printed."""

    _hubo = False

    def __init__(self, pantalla="1000x700"):
        self.pantalla = pantalla
        self._procesos = []

    def __enter__(self):
        if Escritorio._hubo:
            raise RuntimeError("solo cabe un escritorio por proceso")
        Escritorio._hubo = True
        self.carpeta = tempfile.mkdtemp(prefix="ovanta-escritorio.")
        # A program may run as another user here.
        os.chmod(self.carpeta, 0o755)
        self.registros = os.path.join(self.carpeta, "registros")
        os.mkdir(self.registros)
        try:
            self._levantar()
        except BaseException:
            self._derribar()
            raise
        return self

    def __exit__(self, *_):
        self._derribar()

    def entorno(self, hogar, **otras):
        """The environment of a program on this desktop. A value of None removes the variable."""
        entorno = {clave: valor for clave, valor in os.environ.items() if clave not in AJENAS}
        entorno.update(HOME=hogar, DISPLAY=self.display, DBUS_SESSION_BUS_ADDRESS=self.direccion_bus,
                       XDG_RUNTIME_DIR=os.path.join(self.carpeta, "run"),
                       QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", QT_QUICK_BACKEND="software",
                       LANG="C.UTF-8", LC_ALL="C.UTF-8", TZ="UTC")
        entorno.update(otras)
        return {clave: valor for clave, valor in entorno.items() if valor is not None}

    def registro(self, nombre):
        return os.path.join(self.registros, nombre + ".txt")

    def contar_registros(self, salida=sys.stderr):
        """Prints the end of all that the programs of this desktop complained about."""
        for nombre in sorted(os.listdir(self.registros)):
            with open(os.path.join(self.registros, nombre), errors="replace") as archivo:
                for linea in archivo.readlines()[-30:]:
                    print(f"{nombre}: {linea.rstrip()}", file=salida)

    def _levantar(self):
        os.mkdir(os.path.join(self.carpeta, "run"), 0o700)
        self._levantar_pantalla()
        self._levantar_bus()
        self.hilo = HiloDeBus(self.direccion_bus)
        self.portal = servicios.Portal(self.hilo)
        self.notificaciones = servicios.Notificaciones(self.hilo)
        self.gestor_archivos = servicios.GestorArchivos(self.hilo)
        self.anfitrion_bandeja = servicios.AnfitrionBandeja(self.hilo)
        for servicio in (self.portal, self.notificaciones, self.gestor_archivos, self.anfitrion_bandeja):
            servicio.aparecer()
        self._levantar_accesibilidad()

    def _iniciar(self, nombre, orden, **otros):
        proceso = iniciar(orden, self.registro(nombre), **otros)
        self._procesos.append(proceso)
        return proceso

    def _levantar_pantalla(self):
        lee, escribe = os.pipe()
        self._iniciar("xvfb", ["Xvfb", "-displayfd", str(escribe), "-screen", "0", self.pantalla + "x24",
                               "-nolisten", "tcp", "-noreset"], pass_fds=[escribe])
        os.close(escribe)
        with os.fdopen(lee) as tubo:
            numero = tubo.readline().strip()
        if not numero:
            raise RuntimeError("Xvfb no arrancó")
        self.display = ":" + numero
        self._apartar_puntero()

    def _apartar_puntero(self):
        """Into the corner, where it rests on nothing that would light up."""
        pantalla = Display(self.display)
        raiz = pantalla.screen()
        raiz.root.warp_pointer(raiz.width_in_pixels - 1, raiz.height_in_pixels - 1)
        pantalla.sync()
        pantalla.close()

    def _levantar_bus(self):
        configuracion = os.path.join(self.carpeta, "bus.conf")
        with open(configuracion, "w") as archivo:
            archivo.write(CONFIGURACION_BUS.format(carpeta=self.carpeta))
        self.direccion_bus = f"unix:path={self.carpeta}/bus"
        self._iniciar("bus", ["dbus-daemon", "--nofork", "--config-file=" + configuracion])
        esperar(lambda: os.path.exists(os.path.join(self.carpeta, "bus")), "el bus de sesión")

    def _levantar_accesibilidad(self):
        entorno = {**os.environ, "DBUS_SESSION_BUS_ADDRESS": self.direccion_bus, "DISPLAY": self.display,
                   "XDG_RUNTIME_DIR": os.path.join(self.carpeta, "run")}
        self._iniciar("accesibilidad", [LANZADOR_ACCESIBILIDAD, "--launch-immediately"], entorno=entorno)
        conexion = conectar(self.direccion_bus)

        def direccion():
            try:
                return llamar(conexion, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0]
            except GLib.Error:
                return None

        self.direccion_accesibilidad = esperar(direccion, "el bus de accesibilidad")
        # This process drives the programs through it, so it has to know before its first use.
        os.environ.update(DBUS_SESSION_BUS_ADDRESS=self.direccion_bus, DISPLAY=self.display,
                          AT_SPI_BUS_ADDRESS=self.direccion_accesibilidad)

    def _derribar(self):
        if hasattr(self, "hilo"):
            self.hilo.parar()
        for proceso in reversed(self._procesos):
            terminar(proceso)
        shutil.rmtree(self.carpeta, ignore_errors=True)
