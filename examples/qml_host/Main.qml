// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The list of printers: a row each, with its status and a bar for each slot.
import QtQuick

Rectangle {
    id: root

    /// A VxKit::PrinterListModel.
    required property var printers

    color: palette.window

    SystemPalette { id: palette }

    /// What a slot holds, and how much of it is left.
    component SlotBar: Item {
        id: bar

        required property string title
        /// The values of the slot's roles; undefined when they are not known.
        required property var slotState
        required property var name
        required property var colors
        required property var ratio
        required property var meters
        required property var labels

        function amount() {
            if (labels === 1)
                return qsTr("1 label")
            if (labels !== undefined)
                return qsTr("%1 labels").arg(Number(labels).toLocaleString(Qt.locale(), "f", 0))
            if (meters !== undefined)
                return qsTr("%1 m").arg(Number(meters).toLocaleString(Qt.locale(), "f", 1))
            return qsTr("amount not known")
        }
        function content() {
            switch (slotState) {
            case "empty":
                return qsTr("%1: empty").arg(title)
            case "loaded":
                return qsTr("%1: %2, %3").arg(title).arg(name).arg(amount())
            case "notInCatalogue":
                return qsTr("%1: not in the catalogue").arg(title)
            }
            return qsTr("%1: not known").arg(title)
        }

        objectName: "slot"
        implicitHeight: label.implicitHeight + (ratio !== undefined ? 14 : 0)

        Text {
            id: label
            objectName: "slotText"
            text: bar.content()
            textFormat: Text.PlainText
            color: palette.windowText
            width: parent.width
            elide: Text.ElideRight
        }
        Rectangle {
            // The outline is visible on any background, whatever the supply's colour is.
            objectName: "slotBar"
            visible: bar.ratio !== undefined
            anchors { top: label.bottom; topMargin: 2 }
            width: parent.width
            height: 8
            color: "transparent"
            border.color: palette.windowText
            Rectangle {
                x: 1
                y: 1
                height: parent.height - 2
                width: (parent.width - 2) * (bar.ratio !== undefined ? bar.ratio : 0)
                color: bar.colors !== undefined ? bar.colors[0] : palette.highlight
            }
        }
    }

    Text {
        anchors.centerIn: parent
        visible: root.printers.count === 0
        text: qsTr("No label printers were found.")
        color: palette.windowText
    }

    ListView {
        objectName: "list"
        anchors { fill: parent; margins: 12 }
        clip: true
        spacing: 12
        model: root.printers

        delegate: Column {
            id: row

            required property var model

            function severityMark() {
                switch (model.statusSeverity) {
                case "error":
                    return "\u2716 "
                case "warning":
                    return "\u26a0 "
                case "information":
                    return "\u2139 "
                }
                return "\u2714 "
            }

            objectName: "printer"
            width: ListView.view.width
            opacity: model.present ? 1 : 0.6
            spacing: 3

            Text {
                objectName: "name"
                width: parent.width
                elide: Text.ElideRight
                textFormat: Text.PlainText
                text: row.model.active ? qsTr("%1 (active)").arg(row.model.name) : row.model.name
                font.bold: true
                color: palette.windowText
            }
            Text {
                objectName: "status"
                width: parent.width
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                font.bold: row.model.statusSeverity === "error"
                text: row.severityMark()
                      + (row.model.present ? row.model.statusTitle : qsTr("Removed from Windows"))
                color: palette.windowText
            }
            SlotBar {
                width: parent.width
                title: qsTr("Supply")
                slotState: row.model.supplyState
                name: row.model.supplyName
                colors: row.model.supplyColors
                ratio: row.model.supplyRatio
                meters: row.model.supplyMeters
                labels: row.model.supplyLabels
            }
            SlotBar {
                width: parent.width
                title: qsTr("Ribbon 1")
                slotState: row.model.ribbon1State
                name: row.model.ribbon1Name
                colors: row.model.ribbon1Colors
                ratio: row.model.ribbon1Ratio
                meters: row.model.ribbon1Meters
                labels: row.model.ribbon1Labels
            }
            SlotBar {
                visible: row.model.hasRibbon2
                width: parent.width
                title: qsTr("Ribbon 2")
                slotState: row.model.ribbon2State
                name: row.model.ribbon2Name
                colors: row.model.ribbon2Colors
                ratio: row.model.ribbon2Ratio
                meters: row.model.ribbon2Meters
                labels: row.model.ribbon2Labels
            }
        }
    }
}
