import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Ovanta

/// A screen that is taller than the window: a column that scrolls, and follows the keyboard's focus.
Flickable {
    id: raiz
    default property alias contenido: columna.data
    readonly property Item enfocado: Window.activeFocusItem

    contentHeight: columna.implicitHeight + 2 * Tema.espacio6
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    T.ScrollBar.vertical: BarraDesplazamiento {}
    onEnfocadoChanged: raiz.seguirFoco()

    /// Scrolls so far that the item with the focus can be seen, with some room around it.
    function seguirFoco() {
        let dentro = enfocado;
        while (dentro && dentro !== columna)
            dentro = dentro.parent;
        if (!dentro)
            return;
        const arriba = enfocado.mapToItem(columna, 0, 0).y + columna.y;
        const abajo = arriba + enfocado.height;
        if (arriba - Tema.espacio6 < contentY)
            contentY = Math.max(0, arriba - Tema.espacio6);
        else if (abajo + Tema.espacio6 > contentY + height)
            contentY = Math.min(Math.max(0, contentHeight - height), abajo + Tema.espacio6 - height);
    }

    ColumnLayout {
        id: columna
        x: Tema.margen
        y: Tema.espacio6
        width: raiz.width - 2 * Tema.margen
        spacing: Tema.espacio4
    }
}
