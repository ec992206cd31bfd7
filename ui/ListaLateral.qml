import QtQuick

/// The list of the sidebar without its rows. The head of a group stands in its first row: heads that
/// a list makes itself can keep the text of another group when it uses them again.
ListView {
    clip: true
    interactive: contentHeight > height
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    section.property: "grupo"
}
