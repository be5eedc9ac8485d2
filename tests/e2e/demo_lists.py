"""The expected lists of the demo, computed independently of the program from the same data and rules."""
import datetime
import zoneinfo
from typing import NamedTuple, Optional

ZONE = zoneinfo.ZoneInfo("Europe/Paris")
STATUSES = ["Backlog", "À faire", "En cours", "En revue", "Terminé", "Annulé"]
CLOSED = (4, 5)
# The orders of status groups: issues in progress come first in a list, closed issues in a recap.
LIST_ORDER = [3, 2, 1, 0, 4, 5]
RECAP_ORDER = [4, 3, 2, 1, 0, 5]
USERS = {"me": "Noam Talvère", "nora": "Nora Valmy", "basile": "Basile Rochat", "maud": "Maud Ferrand",
         "yann": "Yann Kervel", "elsa": "Elsa Karoubi"}
RECENT = ["MOB-101", "SUP-41", "WEB-202", "WEB-205", "DS-32", "MOB-104"]


class Row(NamedTuple):
    key: str
    title: str
    status: int
    priority: Optional[int]     # 0 is the highest
    assignee: str
    labels: str
    in_sprint: bool
    days: float                 # since the last update

    @property
    def project(self):
        return self.key.split("-")[0]

    @property
    def is_closed(self):
        return self.status in CLOSED

    @property
    def is_mine(self):
        return self.assignee == "me"

    @property
    def level(self):
        """Low and lowest are the same level; issues without priority come last."""
        return 4 if self.priority is None else min(self.priority, 3)


ROWS = [
    Row("MOB-101", "Connexion avec Apple : le jeton expire après 24 h", 2, 0, "me", "auth ios", True, 0.05),
    Row("MOB-102", "Onboarding : nouvelle illustration et animation d'entrée", 3, 2, "nora", "design", True, 0.3),
    Row("MOB-103", "Notifications push : regrouper par conversation", 1, 1, "me", "notifications", True, 1.2),
    Row("MOB-104", "Crash au démarrage sur Android 15 (Pixel 8)", 1, 0, "basile", "android crash", True, 0.6),
    Row("MOB-105", "Mode hors ligne : file d'attente des actions", 0, 1, "", "offline", False, 6),
    Row("MOB-106", "Mettre à jour React Native vers 0.81", 2, 2, "yann", "tech-debt", True, 0.9),
    Row("MOB-107", "Retour haptique sur les actions de swipe", 4, 3, "nora", "ios", True, 2),
    Row("MOB-108", "L'envoi de fichiers de plus de 50 Mo échoue en 4G", 0, 2, "", "upload", False, 9),
    Row("MOB-109", "Widget écran d'accueil : prochaines échéances", 0, 3, "", "ios widget", False, 12),
    Row("MOB-110", "Accessibilité : libellés VoiceOver manquants sur la timeline", 1, 2, "maud", "a11y", True, 1.5),
    Row("MOB-111", "Supprimer l'ancien écran de paramètres", 5, 4, "maud", "", False, 4),
    Row("MOB-112", "Lien magique : ouvrir l'app au lieu du navigateur", 2, 1, "me", "auth", True, 0.2),
    Row("WEB-201", "Refonte de la page de facturation", 2, 1, "elsa", "billing", True, 0.4),
    Row("WEB-202", "Export CSV des factures avec filtres", 3, 2, "me", "billing export", True, 0.1),
    Row("WEB-203", "La recherche globale ignore les accents", 1, 1, "me", "search", True, 0.8),
    Row("WEB-204", "SSO SAML pour les comptes Entreprise", 1, 0, "basile", "auth enterprise", True, 1.1),
    Row("WEB-205", "Tableau de bord : chargement initial supérieur à 3 s", 2, 1, "yann", "perf", True, 0.25),
    Row("WEB-206", "Raccourcis clavier dans l'éditeur de documents", 0, 2, "", "editor", False, 15),
    Row("WEB-207", "Migrer les e-mails transactionnels vers Resend", 4, 2, "elsa", "infra", True, 3),
    Row("WEB-208", "Mode sombre : contraste insuffisant sur les badges", 4, 3, "maud", "design a11y", True, 5),
    Row("WEB-209", "Webhooks : signature HMAC et rejeu des évènements", 0, 1, "", "api", False, 7),
    Row("WEB-210", "Journal d'audit pour les administrateurs", 0, 2, "", "enterprise", False, 20),
    Row("WEB-211", "API publique : pagination cassée au-delà de 10 000 résultats", 1, 2, "yann", "api", True, 2.5),
    Row("WEB-212", "Maquette de la facture PDF", 4, 2, "nora", "billing design", True, 2.2),
    Row("WEB-213", "Calcul de la TVA intracommunautaire", 2, 1, "elsa", "billing", True, 0.5),
    Row("DS-31", "Combobox avec recherche asynchrone", 2, 2, "maud", "components", True, 0.7),
    Row("DS-32", "Tokens de couleur : palette sémantique v2", 3, 1, "nora", "tokens", True, 0.35),
    Row("DS-33", "Documenter les patterns de formulaire", 1, 3, "me", "docs", True, 3.5),
    Row("DS-34", "Bouton : l'état de chargement décale la mise en page", 1, 2, "", "components", True, 1.8),
    Row("DS-35", "Icônes : passer à un sprite SVG", 0, None, "", "icons", False, 18),
    Row("DS-36", "Migration vers Storybook 9", 4, 2, "yann", "tooling", True, 6),
    Row("DS-37", "DatePicker localisé (fr, de, es)", 0, 2, "", "components i18n", False, 11),
    Row("MOB-113", "Timeline : le défilement saute sur iPad", 4, 1, "me", "ios", True, 3.2),
    Row("WEB-214", "Page 404 personnalisée avec recherche", 4, 3, "me", "design", True, 4.6),
    Row("WEB-215", "Limiter les tentatives de connexion par IP", 4, 1, "me", "auth security", True, 8.3),
    Row("DS-38", "Tokens d'espacement et de rayon", 4, 2, "me", "tokens", True, 9.4),
    Row("MOB-114", "Analytics : évènements d'onboarding", 5, 3, "me", "analytics", False, 5.5),
    Row("SUP-41", "Impossible de télécharger la facture de septembre", 2, 1, "me", "facturation", False, 0.15),
    Row("SUP-42", "Demande d'export RGPD des données du compte", 3, 2, "elsa", "rgpd", False, 1.4),
    Row("SUP-43", "Notifications e-mail reçues en double", 4, 2, "me", "notifications", False, 2.8),
    Row("SUP-44", "Changer le propriétaire de l'espace de travail", 1, 3, "", "compte", False, 0.6),
]
INDEX = {row.key: index for index, row in enumerate(ROWS)}


def reporter(row):
    index = INDEX[row.key]
    return "me" if index % 3 == 0 else list(USERS)[(index + 1) % 6]


def groups(rows, order, rank):
    """[(title, [keys])] of the status groups, each sorted by rank."""
    found = [(STATUSES[status], [row.key for row in sorted(rows, key=rank) if row.status == status]) for status in order]
    return [(title, keys) for title, keys in found if keys]


def by_priority(row):
    return row.level, row.days


def as_list(rows):
    return groups(rows, LIST_ORDER, by_priority)


def mine():
    return as_list([row for row in ROWS if row.is_mine and (not row.is_closed or row.days < 14)])


def recent():
    return as_list([row for row in ROWS if row.key in RECENT])


def reported():
    return as_list([row for row in ROWS if reporter(row) == "me"])


def project(key):
    return as_list([row for row in ROWS if row.project == key and (not row.is_closed or row.days < 30)])


def sprint(key):
    return as_list([row for row in ROWS if row.project == key and row.in_sprint])


def backlog(key):
    return as_list([row for row in ROWS if row.project == key and not row.in_sprint and not row.is_closed])


def events(row, now):
    """[(date, author, is a change of status)] of an issue's log."""
    updated = now - datetime.timedelta(days=row.days)
    span = datetime.timedelta(days=INDEX[row.key] % 9 + 3)
    created, actor = updated - span, row.assignee or reporter(row)
    steps = {0: [], 1: [], 2: [1], 3: [0.3, 1], 4: [0.4, 1], 5: [1]}[row.status]
    return [(created, reporter(row), False)] + [(created + step * span, actor, True) for step in steps]


def week(now, offset):
    """The start of a week's Monday, and that of the next one."""
    monday = now.astimezone(ZONE).date() - datetime.timedelta(days=now.astimezone(ZONE).weekday()) \
        + datetime.timedelta(weeks=offset)
    start, end = (datetime.datetime.combine(day, datetime.time(), ZONE) for day in (monday, monday + datetime.timedelta(7)))
    return start, end


def recap(now, offset):
    """The groups of the user's recap of this week (offset 0) or of an earlier one; equal dates are sorted by key."""
    dates = last_dates(now, offset)
    return groups([row for row in ROWS if row.key in dates], RECAP_ORDER,
                  lambda row: (-dates[row.key].timestamp(), row.key))


def last_dates(now, offset):
    """{key: date of its last event in the week} for the issues of the user's recap."""
    start, end = week(now, offset)
    logs = {row.key: [event for event in events(row, now) if start <= event[0] < end] for row in ROWS}
    return {row.key: max(logs[row.key])[0] for row in ROWS
            if any(author == "me" or (is_status and row.is_mine) for _, author, is_status in logs[row.key])}


def with_equals_by_key(listed, now, offset):
    """The same recap with issues of equal dates sorted by key, since their order is not defined."""
    dates = last_dates(now, offset)
    return [(title, sorted(keys, key=lambda key: (keys.index(first_of_date(keys, dates, key)), key)))
            for title, keys in listed]


def first_of_date(keys, dates, key):
    return next(other for other in keys if dates.get(other) == dates.get(key))


def matching(found, text):
    """The groups without the issues that do not contain the text, which is given folded."""
    def holds(key):
        row = ROWS[INDEX[key]]
        return text in fold(" ".join([row.key, row.title, row.labels, USERS.get(row.assignee, "")]))
    kept = [(title, [key for key in keys if holds(key)]) for title, keys in found]
    return [(title, keys) for title, keys in kept if keys]


def fold(text):
    return text.lower().translate(str.maketrans("àâçéèêëîïôûùüœ", "aaceeeeiiouuuo"))
