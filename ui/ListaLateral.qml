import QtQuick

/// The list of the sidebar without its rows. (Not in a file with bound components: heads cannot be.)
ListView {
    clip: true
    interactive: contentHeight > height
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    section.property: "grupo"
    section.delegate: GrupoLateral {}
}
