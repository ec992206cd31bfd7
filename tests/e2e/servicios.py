"""What a desktop offers on the session bus, as far as the program asks for it. Everything is recorded."""

from gi.repository import GLib

from bus import Servicio, llamar, propiedades

APARIENCIA = "org.freedesktop.appearance"


class Portal(Servicio):
    """The desktop portal's settings: light or dark, contrast and motion, changed live."""

    NOMBRE = "org.freedesktop.portal.Desktop"
    RUTA = "/org/freedesktop/portal/desktop"
    INTERFAZ = "org.freedesktop.portal.Settings"
    XML = """<node><interface name="org.freedesktop.portal.Settings">
      <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
        <arg type="v" direction="out"/></method>
      <method name="ReadAll"><arg type="as" direction="in"/><arg type="a{sa{sv}}" direction="out"/></method>
      <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
      <property name="version" type="u" access="read"/>
    </interface></node>"""
    PROPIEDADES = {"version": lambda _: GLib.Variant("u", 1)}

    def __init__(self, hilo):
        super().__init__(hilo)
        self.ajustes = {
            (APARIENCIA, "color-scheme"): GLib.Variant("u", 2),
            ("org.gnome.desktop.interface", "enable-animations"): GLib.Variant("b", True),
            ("org.gnome.desktop.a11y.interface", "high-contrast"): GLib.Variant("b", False),
        }

    def Read(self, _remitente, espacio, clave):
        # The real portal wraps the value twice.
        return GLib.Variant("(v)", (GLib.Variant("v", self.ajustes[(espacio, clave)]),))

    def ReadAll(self, _remitente, _espacios):
        todos = {}
        for (espacio, clave), valor in self.ajustes.items():
            todos.setdefault(espacio, {})[clave] = valor
        return GLib.Variant("(a{sa{sv}})", (todos,))

    def fijar(self, espacio, clave, valor):
        self.ajustes[(espacio, clave)] = valor
        self.hilo.hacer(lambda: self.emitir(self.INTERFAZ, "SettingChanged",
                                            GLib.Variant("(ssv)", (espacio, clave, valor))))

    def oscuro(self, si):
        self.fijar(APARIENCIA, "color-scheme", GLib.Variant("u", 1 if si else 2))

    def animaciones(self, si):
        self.fijar("org.gnome.desktop.interface", "enable-animations", GLib.Variant("b", si))

    def alto_contraste(self, si):
        self.fijar("org.gnome.desktop.a11y.interface", "high-contrast", GLib.Variant("b", si))


class Notificaciones(Servicio):
    """The notification server; `enviadas` holds every notice with its fields."""

    NOMBRE = "org.freedesktop.Notifications"
    RUTA = "/org/freedesktop/Notifications"
    XML = """<node><interface name="org.freedesktop.Notifications">
      <method name="Notify"><arg type="s" direction="in"/><arg type="u" direction="in"/>
        <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
        <arg type="as" direction="in"/><arg type="a{sv}" direction="in"/><arg type="i" direction="in"/>
        <arg type="u" direction="out"/></method>
      <method name="CloseNotification"><arg type="u" direction="in"/></method>
      <method name="GetCapabilities"><arg type="as" direction="out"/></method>
      <method name="GetServerInformation"><arg type="s" direction="out"/><arg type="s" direction="out"/>
        <arg type="s" direction="out"/><arg type="s" direction="out"/></method>
      <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
    </interface></node>"""

    def __init__(self, hilo):
        super().__init__(hilo)
        self.enviadas = []

    def Notify(self, _remitente, programa, sustituye, icono, titulo, cuerpo, acciones, pistas, _limite):
        self.enviadas.append({"programa": programa, "sustituye": sustituye, "icono": icono,
                              "titulo": titulo, "cuerpo": cuerpo, "acciones": acciones, "pistas": pistas})
        return GLib.Variant("(u)", (sustituye or len(self.enviadas),))

    def CloseNotification(self, _remitente, numero):
        self.emitir(self.NOMBRE, "NotificationClosed", GLib.Variant("(uu)", (numero, 3)))

    def GetCapabilities(self, _remitente):
        return GLib.Variant("(as)", (["body"],))

    def GetServerInformation(self, _remitente):
        return GLib.Variant("(ssss)", ("pruebas", "belmora", "1", "1.2"))


class GestorArchivos(Servicio):
    """The file manager; `mostrados` holds (method, addresses) of every request."""

    NOMBRE = "org.freedesktop.FileManager1"
    RUTA = "/org/freedesktop/FileManager1"
    XML = """<node><interface name="org.freedesktop.FileManager1">
      <method name="ShowItems"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
      <method name="ShowFolders"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
    </interface></node>"""

    def __init__(self, hilo):
        super().__init__(hilo)
        self.mostrados = []

    def ShowItems(self, _remitente, direcciones, _inicio):
        self.mostrados.append(("ShowItems", direcciones))

    def ShowFolders(self, _remitente, direcciones, _inicio):
        self.mostrados.append(("ShowFolders", direcciones))


class GestorSesion(Servicio):
    """The session manager, which asks its user before the machine restarts. `pedidos` holds the method
    of every request; nothing comes of any."""

    NOMBRE = "org.gnome.SessionManager"
    RUTA = "/org/gnome/SessionManager"
    XML = """<node><interface name="org.gnome.SessionManager">
      <method name="Reboot"/>
      <method name="Shutdown"/>
      <method name="Logout"><arg type="u" direction="in"/></method>
    </interface></node>"""

    def __init__(self, hilo):
        super().__init__(hilo)
        self.pedidos = []

    def Reboot(self, _remitente):
        self.pedidos.append("Reboot")

    def Shutdown(self, _remitente):
        self.pedidos.append("Shutdown")

    def Logout(self, _remitente, _modo):
        self.pedidos.append("Logout")


class AnfitrionBandeja(Servicio):
    """The host of status icons; `iconos` holds those that registered and still live."""

    NOMBRE = "org.kde.StatusNotifierWatcher"
    RUTA = "/StatusNotifierWatcher"
    XML = """<node><interface name="org.kde.StatusNotifierWatcher">
      <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
      <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
      <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
      <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
      <property name="ProtocolVersion" type="i" access="read"/>
      <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
      <signal name="StatusNotifierHostRegistered"/>
    </interface></node>"""
    PROPIEDADES = {
        "RegisteredStatusNotifierItems": lambda yo: GLib.Variant("as", [i.nombre for i in yo.iconos]),
        "IsStatusNotifierHostRegistered": lambda _: GLib.Variant("b", True),
        "ProtocolVersion": lambda _: GLib.Variant("i", 0),
    }

    def __init__(self, hilo):
        super().__init__(hilo)
        self._iconos = []

    @property
    def iconos(self):
        return [icono for icono in self._iconos if icono.vivo()]

    def aparecer(self):
        self._iconos = []
        super().aparecer()

    def RegisterStatusNotifierItem(self, remitente, servicio):
        nombre, ruta = (remitente, servicio) if servicio.startswith("/") else (servicio, "/StatusNotifierItem")
        self._iconos.append(Icono(self.hilo.conexion_de_llamadas, nombre, ruta))
        self.emitir(self.NOMBRE, "StatusNotifierItemRegistered", GLib.Variant("(s)", (servicio,)))

    def RegisterStatusNotifierHost(self, _remitente, _servicio):
        self.emitir(self.NOMBRE, "StatusNotifierHostRegistered", None)


class Icono:
    """A status icon of a program, as a host sees it."""

    INTERFAZ = "org.kde.StatusNotifierItem"
    MENU = "com.canonical.dbusmenu"

    def __init__(self, conexion, nombre, ruta):
        self.conexion, self.nombre, self.ruta = conexion, nombre, ruta

    def vivo(self):
        return llamar(self.conexion, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                      "org.freedesktop.DBus", "NameHasOwner", GLib.Variant("(s)", (self.nombre,)))[0]

    def propiedades(self):
        return propiedades(self.conexion, self.nombre, self.ruta, self.INTERFAZ)

    def pulsar(self):
        llamar(self.conexion, self.nombre, self.ruta, self.INTERFAZ, "Activate", GLib.Variant("(ii)", (0, 0)))

    def pulsar_con_el_medio(self):
        llamar(self.conexion, self.nombre, self.ruta, self.INTERFAZ, "SecondaryActivate",
               GLib.Variant("(ii)", (0, 0)))

    def menu(self):
        """Text of every entry of the menu by its number, separators left out."""
        _, (_, _, hijos) = llamar(self.conexion, self.nombre, self.propiedades()["Menu"], self.MENU,
                                  "GetLayout", GLib.Variant("(iias)", (0, -1, [])))
        return {numero: campos["label"].replace("_", "") for numero, campos, _ in hijos if "label" in campos}

    def elegir(self, texto):
        """Clicks the entry of the menu with this text."""
        numero = {entrada: numero for numero, entrada in self.menu().items()}[texto]
        llamar(self.conexion, self.nombre, self.propiedades()["Menu"], self.MENU, "Event",
               GLib.Variant("(isvu)", (numero, "clicked", GLib.Variant("i", 0), 0)))
