pragma Singleton
import Velmora.Documents
import Velmora.Theme

// The style of all documents, in the colours of the theme.
DocumentStyle {
    id: root

    primary: Theme.text1
    secondary: Theme.text2
    accent: Theme.accent
    accentText: Theme.accentText
    blue: Theme.blue
    orange: Theme.orange
    red: Theme.red
    green: Theme.green
    purple: Theme.purple
    divider: Theme.divider
    selection: Theme.textSelection
    focusRing: Theme.focusRing
    scrollThumb: Theme.scrollThumb
}
