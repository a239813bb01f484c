import QtQuick 2.15
import "."
import "Texts.js" as Texts

// The bar on top of every page: where one is, the way back and, on some pages, one further thing to do.
Rectangle {
    id: root

    property string title
    property string details
    property bool canGoBack: false
    property url rightIcon
    property string rightName

    signal buttonBackClicked
    signal buttonRightClicked

    // The same on both sides, so that the texts stay in the middle.
    readonly property int sideWidth: canGoBack || rightIcon.toString().length > 0 ? Style.touchTarget + Style.spaceSmall : 0

    implicitHeight: Math.max(Style.titleBarHeight, texts.implicitHeight + 2 * Style.spaceMedium)
    color: Style.surface

    // The buttons are made where there are any: the first page has none.
    Loader {
        anchors.left: parent.left
        anchors.leftMargin: Style.spaceSmall
        anchors.verticalCenter: parent.verticalCenter
        active: root.canGoBack
        sourceComponent: Component {
            ButtonSymbol {
                objectName: "backButton"
                symbol: Style.symbolBack
                name: qsTr("Back")
                onClicked: root.buttonBackClicked()
            }
        }
    }

    Column {
        id: texts
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Style.spaceSmall + root.sideWidth
        anchors.rightMargin: Style.spaceSmall + root.sideWidth
        spacing: Style.spaceTiny

        Text {
            objectName: "titleText"
            width: parent.width
            text: Texts.inOneLine(root.title)
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            elide: Text.ElideRight
            maximumLineCount: 2
            color: Style.text
            font.family: Style.fontFamily
            font.pixelSize: Style.fontHeading
            font.letterSpacing: 1
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Text {
            objectName: "detailsText"
            width: parent.width
            visible: text.length > 0
            text: Texts.inOneLine(root.details)
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            elide: Text.ElideRight
            maximumLineCount: 2
            color: Style.textSecondary
            font.family: Style.fontFamily
            font.pixelSize: Style.fontSmall
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    Loader {
        anchors.right: parent.right
        anchors.rightMargin: Style.spaceSmall
        anchors.verticalCenter: parent.verticalCenter
        active: root.rightIcon.toString().length > 0
        sourceComponent: Component {
            ButtonSymbol {
                objectName: "rightButton"
                symbol: root.rightIcon
                name: root.rightName
                onClicked: root.buttonRightClicked()
            }
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Style.outline
    }
}
