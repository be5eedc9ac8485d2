import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The form that takes a Jira site, an e-mail and a token.
FocusScope {
    id: root

    required property AppStore store
    readonly property ConnectForm form: connectForm

    implicitHeight: content.height
    Component.onCompleted: (connectForm.site === "" ? siteField : tokenField).focus = true

    ConnectForm {
        id: connectForm
        store: root.store
    }

    Column {
        id: content
        width: parent.width
        spacing: Metrics.gapMedium

        Item {
            width: parent.width
            height: notice.height + 4
            visible: root.store.hasCredentialsIssue

            NoticeBanner {
                id: notice
                width: parent.width
                symbol: "key.slash"
                title: "Session enregistrée inaccessible"
                reason: root.store.credentialsIssue
                action: "Réessayer"
                actionSymbol: "arrow.clockwise"
                onTriggered: root.store.retrySavedSession()
            }
        }

        GlassField {
            id: siteField
            width: parent.width
            symbol: "globe"
            name: "Site Jira"
            placeholder: "mon-equipe.atlassian.net"
            typed: connectForm.site
            onEdited: text => connectForm.site = text
        }

        GlassField {
            width: parent.width
            symbol: "at"
            name: "E-mail du compte Atlassian"
            typed: connectForm.email
            onEdited: text => connectForm.email = text
        }

        GlassField {
            id: tokenField
            width: parent.width
            symbol: "key.fill"
            name: "Token API"
            secure: true
            typed: connectForm.token
            onEdited: text => connectForm.token = text
        }

        InlineError {
            width: parent.width
            visible: connectForm.error !== ""
            text: connectForm.error
        }

        Item {
            width: parent.width
            height: 4 + submit.height

            PushButton {
                id: submit
                y: 4
                width: parent.width
                enabled: connectForm.canConnect
                large: true
                look: PushButton.Prominent
                text: connectForm.connecting ? "" : "Se connecter"
                accessibleName: "Se connecter"
                onClicked: connectForm.connect()

                Spinner {
                    anchors.centerIn: parent
                    visible: connectForm.connecting
                    size: 16
                }
            }
        }

        TokenLine {
            width: parent.width
            hint: connectForm.keychainHint
            onRequested: connectForm.openTokenPage()
        }
    }
}
