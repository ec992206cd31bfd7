import QtQuick
import Ovanta

/// A list that keeps its place, its current row and the keyboard's focus where its model is replaced.
ListaVirtual {
    id: raiz
    property ModeloConClaves filas
    property string claveAlta
    property real corrimiento
    property string claveActual
    property int filaActual

    model: filas
    Connections {
        target: raiz.filas
        function onModelAboutToBeReset() { raiz.recordar(); }
        function onRepuesto() { raiz.volver(); }
    }

    function recordar() {
        const alta = indexAt(0, contentY);
        claveAlta = filas.claveDe(alta);
        corrimiento = alta < 0 ? 0 : contentY - itemAtIndex(alta).y;
        claveActual = filas.claveDe(currentIndex);
        filaActual = currentIndex;
    }
    function volver() {
        const actual = filas.filaDe(claveActual);
        currentIndex = actual >= 0 ? actual : Math.min(Math.max(0, filaActual), count - 1);
        const alta = filas.filaDe(claveAlta);
        if (alta < 0)
            return positionViewAtBeginning();
        forceLayout();
        positionViewAtIndex(alta, ListView.Beginning);
        contentY = itemAtIndex(alta).y + corrimiento;
        returnToBounds();
    }
}
