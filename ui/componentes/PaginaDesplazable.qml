pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Ovanta

/// A screen that may be taller than the window. What gets the focus comes into view.
Flickable {
    id: raiz
    default property alias contenido: columna.data
    readonly property Item enfocado: Window.activeFocusItem

    contentHeight: columna.implicitHeight + 2 * Tema.espacio6
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    T.ScrollBar.vertical: BarraDesplazamiento {}
    onEnfocadoChanged: mostrar(enfocado)

    ColumnLayout {
        id: columna
        x: Tema.margen
        y: Tema.espacio6
        width: parent.width - 2 * Tema.margen
        spacing: Tema.espacio4
    }

    function contiene(pieza: Item): bool {
        for (let una = pieza; una; una = una.parent) {
            if (una === columna)
                return true;
        }
        return false;
    }
    function mostrar(pieza: Item) {
        if (!contiene(pieza))
            return;
        const arriba = pieza.mapToItem(contentItem, 0, 0).y - Tema.espacio6;
        const abajo = arriba + pieza.height + 2 * Tema.espacio6;
        const posible = Math.max(0, contentHeight - height);
        if (arriba < contentY)
            contentY = Math.max(0, arriba);
        else if (abajo > contentY + height)
            contentY = Math.min(posible, abajo - height);
    }
}
