import QtQuick
import Ovanta

/// A virtual list in groups with their heads. (Not in a file with bound components: heads cannot be.)
ListaVirtual {
    section.delegate: TituloGrupo {}
}
