"""The program at a screen, played by lines of a script: keys, clicks and what then is to be seen."""
import os
import shlex
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "app"))
from formati import disposizioni  # noqa: E402
from impianto import EMULATORE, Impianto  # noqa: E402
from schermo import PAZIENZA, attendi, finisce  # noqa: E402

IMMAGINI = os.environ.get("TARVEL_IMMAGINI")
PRIMA_VOCE = 100  # twips from the upper edge of a list to its first entry


def forme(programmi, cartella):
    """The program's own word for its forms: each one's width and, in tab order, the controls that can have
    the focus, with their kind and where the mouse meets them; twips."""
    copione = "layout,click Command6,layout,click Chiudi,click Command7,layout,close,type nome ?,click Command1,layout"
    detto = recita_senza_schermo(programmi, cartella / "forme", copione.replace(",", "\n"))
    return {nome: (larghezza, {controllo: (tipo, (sinistra + larga // 2,
                                                  alto + (PRIMA_VOCE if tipo == "list" else alta // 2)))
                               for controllo, (tipo, (sinistra, alto, larga, alta)) in controlli.items()
                               if tipo != "label"})
            for nome, (larghezza, _, controlli) in disposizioni(detto).items()}


def recita_senza_schermo(programmi, radice, copione, decimale="."):
    """The script on the scripted desktop, in an installation of its own: the transcript."""
    programma_scritto = Path(os.environ.get("TARVEL_PARAGONE", programmi)) / "tarvel1-headless"
    Impianto(radice).installa(programmi)
    esito = subprocess.run([programma_scritto, "--decimal", decimale, f"|diroot={radice}|"], input=copione,
                           stdout=subprocess.PIPE, text=True, timeout=PAZIENZA)
    assert esito.returncode != 2, esito.stdout  # a mistake in the script
    return esito.stdout


class Seduta:
    """The program at a screen, played by lines of a script."""

    def __init__(self, gruppo, schermo, radice, figlio, forme):
        self.gruppo, self.schermo, self.radice, self.figlio, self.forme = gruppo, schermo, radice, figlio, forme
        self.viste = set()
        self.form = "tarvel1"
        self.ultimo = self.form, next(iter(forme[self.form][1]))  # the control that has the focus

    def diario(self):
        """What the viewer saw."""
        file = self.radice / "progra/visore.log"
        return file.read_text() if file.exists() else ""

    def vede(self, nome):
        """The window of this name in front, with a picture for who wants to look at it."""
        finestra = self.schermo.davanti(nome)
        if IMMAGINI and nome not in self.viste:
            self.viste.add(nome)
            self.schermo.ritrai(Path(IMMAGINI) / f"{self.gruppo}-{nome}.png")
        return finestra

    def recita(self, righe):
        for riga in righe:
            try:
                self.esegui(shlex.split(riga.removeprefix("#: ")))
            except Exception as guasto:
                raise AssertionError(f"cannot play '{riga}': {guasto}") from guasto

    def esegui(self, parole):
        match parole:
            case ["#" | "answer" | "tick", *_]:
                pass
            case ["form" | "activate" as verbo, nome]:
                if verbo == "activate":  # as the task bar does
                    self.schermo.mano("windowactivate", self.schermo.trova(nome))
                self.vede(nome)
                self.form = nome if nome in self.forme else self.form
            case ["raised", nome]:  # of what one program does to another's window the emulated screen is not told
                if not EMULATORE:
                    self.vede(nome)
            case ["viewer", riga]:
                attendi(lambda: self.diario().endswith(riga + "\n"), f"the viewer's {riga}", self.diario)
            case ["log", *atteso]:
                attendi(lambda: self.diario().split() == atteso, f"the viewer's {atteso}", self.diario)
            case ["show"]:
                (self.radice / "progra/mostra").touch()
            case ["title", nome, testo]:
                attendi(lambda: testo in self.schermo.titolo(self.schermo.trova(nome)), f"the title {testo}",
                        self.schermo.aperte)
            case ["gone", nome]:
                attendi(lambda: nome not in map(self.schermo.nome, self.schermo.finestre()), f"{nome} to go")
            case ["minimize" | "restore" as verbo, nome]:
                azione = {"minimize": "windowminimize", "restore": "windowactivate"}[verbo]
                self.schermo.mano(azione, self.schermo.trova(nome))
                self.schermo.giro()
            case ["aside", nome]:  # below the main form
                self.schermo.mano("windowmove", self.schermo.trova(nome), 0, 380)
                self.schermo.giro()
            case ["across", nome, controllo]:
                self.clicca(self.schermo.trova(nome), nome, controllo)
            case ["close", nome]:
                self.schermo.chiudi(nome)
            case ["alt+F4" as tasti, nome]:
                self.schermo.davanti(nome)
                self.schermo.mano("key", tasti)
            case ["message", titolo, *risposta]:
                riquadro = self.vede(titolo)
                if risposta:  # nothing else answers a question
                    self.schermo.mano("key", "Escape", "alt+F4")
                    self.schermo.chiudi(titolo)
                    self.schermo.davanti(titolo)
                self.schermo.mano("key", {"si": "alt+s", "no": "n"}.get("".join(risposta), "Return"))
                attendi(lambda: riquadro not in self.schermo.finestre(), "the message to go")
            case ["end", stato]:
                finisce(self.figlio, int(stato))
            case ["absent", nome]:
                assert not (self.radice / nome).exists()
            case [verbo, nome, *resto]:
                self.agisci(verbo, nome, resto)

    def clicca(self, finestra, form, controllo, volte=1):
        larghezza_form, controlli = self.forme[form]
        sinistra, alto, larghezza, *_ = self.schermo.posto(finestra)
        x, y = (int(twip * larghezza / larghezza_form) for twip in controlli[controllo][1])
        self.schermo.mano("mousemove", sinistra + x, alto + y, *["click", 1] * volte)

    def raggiungi(self, finestra, nome):
        """By Tab where that is the next control; what is already reached is typed over as it is."""
        controlli = [*self.forme[self.form][1]]
        form, prima = self.ultimo
        passi = (controlli.index(nome) - controlli.index(prima)) % len(controlli) if form == self.form else None
        if passi == 1:
            self.schermo.mano("key", "Tab")
        elif passi != 0:
            self.clicca(finestra, self.form, nome)
            self.schermo.mano("key", "ctrl+a")

    def agisci(self, verbo, nome, resto):
        finestra = self.schermo.davanti(self.form)
        match verbo:
            case "click" | "dblclick":
                self.clicca(finestra, self.form, nome, ["click", "dblclick"].index(verbo) + 1)
            case "enter":
                self.schermo.mano("key", "Return")
            case "focus" | "type":
                self.raggiungi(finestra, nome)
                if resto:
                    self.schermo.mano("type", "--", *resto)
            case "select":
                self.clicca(finestra, self.form, nome)
                for da, a in zip(map(int, resto), map(int, resto[1:])):
                    self.schermo.mano("key", *["ctrl+Down"] * (a - da), "ctrl+space")
            case _:
                raise ValueError("no such verb")
        self.ultimo = (self.form, nome)
