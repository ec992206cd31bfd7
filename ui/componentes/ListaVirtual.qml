import QtQuick
import QtQuick.Templates as T
import Ovanta

/// A list that only builds the rows one can see. Arrows, page keys, Home and End move through it.
ListView {
    id: raiz
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    cacheBuffer: 240
    highlightMoveDuration: 0
    keyNavigationEnabled: true
    activeFocusOnTab: true
    T.ScrollBar.vertical: BarraDesplazamiento {}
    Accessible.role: Accessible.List
    Keys.onPressed: event => raiz.pagina(event)

    /// Moves one screenful, or to an end.
    function pagina(event: KeyEvent) {
        const alto = Math.max(1, Math.floor(height / Math.max(1, contentHeight / Math.max(1, count))));
        const destinos = {
            [Qt.Key_PageDown]: currentIndex + alto,
            [Qt.Key_PageUp]: currentIndex - alto,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1
        };
        if (!(event.key in destinos))
            return;
        currentIndex = Math.min(count - 1, Math.max(0, destinos[event.key]));
        event.accepted = true;
    }
}
