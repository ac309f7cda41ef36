#!/usr/bin/python3
"""The program as a user meets it: started on a virtual screen, typed into, clicked, its windows
watched. What it writes is what the scripted desktop writes for the same session.

Usage: prova_finestra.py FOLDER [GROUP...], the folder that of the programs.
A failure at the screen leaves its picture, guasto-GROUP.png, in the working folder.
"""
import contextlib
import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from schermo import COL_CLICK, PAZIENZA, Schermo, attendi, finisce, programma

QUI = Path(__file__).resolve().parent
SESSIONE = QUI / "sessione.txt"

PRIMA_VOCE = 100  # twips from the upper edge of a list to its first entry


def forme(programmi, cartella):
    """The program's own word for its forms: each one's width and, in tab order, the controls that can have
    the focus, with their kind and where the mouse meets them; twips."""
    copione = "layout,click Command6,layout,click Chiudi,click Command7,layout,close,type nome ?,click Command1,layout"
    trovate = {}
    for riga in recita_senza_schermo(programmi, cartella / "forme", copione.replace(",", "\n")).splitlines():
        match riga.split():
            case ["layout", nome, larghezza, _]:
                controlli = {}
                trovate[nome] = int(larghezza), controlli
            case ["place", nome, tipo, *posto] if tipo != "label":
                sinistra, alto, larga, alta = map(int, posto)
                controlli[nome] = tipo, (sinistra + larga // 2,
                                         alto + (PRIMA_VOCE if tipo == "list" else alta // 2))
    return trovate


def recita_senza_schermo(programmi, radice, copione, decimale="."):
    """The script on the scripted desktop, in an installation of its own: the transcript."""
    return subprocess.run([programmi / "tarvel1-headless", "--decimal", decimale, installa(radice, programmi)],
                          input=copione, stdout=subprocess.PIPE, text=True, check=True, timeout=PAZIENZA).stdout


def installa(radice, programmi, visore="normale"):
    """An installation with one job; its viewer is the stand-in, or no program with these rights."""
    for cartella in ("impostazioni", "lavori/PR0042", "progra", "custom"):
        (radice / cartella).mkdir(parents=True)
    (radice / "impostazioni/dirlav").write_text(f"{radice}/lavori")
    (radice / "impostazioni/lavoro").write_text("PR0042")
    (radice / "progra/modo").write_text(str(visore))
    os.mkfifo(radice / "progra/mostra")
    ostrel = radice / "progra/ostrel.exe"
    if isinstance(visore, str):
        ostrel.symlink_to(programmi / "visore-finto")
    else:
        ostrel.write_text("no program\n")
        ostrel.chmod(visore)
    return f"|diroot={radice}|"


class Seduta:
    """The program at a screen, played by lines of a script."""

    def __init__(self, schermo, radice, figlio, forme):
        self.schermo, self.radice, self.figlio, self.forme = schermo, radice, figlio, forme
        self.form = "tarvel1"
        self.ultimo = self.form, next(iter(forme[self.form][1]))  # the control that has the focus

    def diario(self):
        """What the viewer saw."""
        file = self.radice / "progra/visore.log"
        return file.read_text() if file.exists() else ""

    def recita(self, righe):
        for riga in righe:
            try:
                self.esegui(riga.removeprefix("#: ").split())
            except Exception as guasto:
                raise AssertionError(f"cannot play '{riga}': {guasto}") from guasto

    def esegui(self, parole):
        match parole:
            case ["#" | "answer" | "tick", *_]:
                pass
            case ["form" | "activate" as verbo, nome]:
                if verbo == "activate":  # as the task bar does
                    self.schermo.mano("windowactivate", self.schermo.trova(nome))
                self.schermo.davanti(nome)
                self.form = nome if nome in self.forme else self.form
            case ["viewer", riga]:
                attendi(lambda: self.diario().endswith(riga + "\n"), f"the viewer's {riga}", self.diario)
            case ["log", *atteso]:
                attendi(lambda: self.diario().split() == atteso, f"the viewer's {atteso}", self.diario)
            case ["show"]:
                self.schermo.chiedi("cp", "/dev/null", self.radice / "progra/mostra")
            case ["minimize" | "restore" as verbo, nome]:
                azione = {"minimize": "windowminimize", "restore": "windowactivate"}[verbo]
                self.schermo.mano(azione, self.schermo.trova(nome))
                self.schermo.giro()
            case ["across", nome, controllo]:
                self.clicca(self.schermo.trova(nome), nome, controllo)
            case ["close", nome]:
                self.schermo.chiudi(nome)
            case ["alt+F4" as tasti, nome]:
                self.schermo.davanti(nome)
                self.schermo.mano("key", tasti)
            case ["message", titolo, *risposta]:
                riquadro = self.schermo.davanti(titolo)
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


def confronta(radice, programmi, copione, decimale):
    """With what the scripted desktop writes."""
    atteso = radice.with_name("atteso")
    recita_senza_schermo(programmi, atteso, copione, decimale)

    def scritti(da):
        return {file.relative_to(da): file.read_bytes()
                for cartella in ("lavori", "custom") for file in (da / cartella).rglob("*") if file.is_file()}

    previsti, avuti = scritti(atteso), scritti(radice)
    diversi = [str(nome) for nome in previsti.keys() | avuti.keys() if previsti.get(nome) != avuti.get(nome)]
    assert previsti and not diversi, f"not the scripted desktop's: {sorted(diversi)}"


def tabulazione(forme):
    """Round the main form and the options by Tab alone; every box gets a number of its own."""
    def giro(form, numero):
        controlli = forme[form][1]
        primo = next(iter(controlli))
        return [f"type {nome} {numero + i}" if tipo == "box" else f"focus {nome}"
                for i, (nome, (tipo, _)) in enumerate(controlli.items())] + [f"type {primo} {numero + len(controlli)}"]

    return [*giro("tarvel1", 101), "click Command6", "#: form FormOpt", *giro("FormOpt", 201), "click Salva",
            "click Chiudi", "#: form tarvel1", "click Command5", "answer no", "tick 50",
            "#: message INFORMAZIONE no", "#: end 0"]


# The groups whose files are compared: screen, locale, its decimal separator.
SESSIONI = {"sessione-piccola": ("640x480", "C", "."), "sessione-media": ("1440x900", "xx_YY.bogus", "."),
            "sessione-grande": ("1920x1080", "de_DE.UTF-8", ","), "tabulazione": ("1024x600", "C", ".")}
RIGHE_SESSIONE = [*SESSIONE.read_text().splitlines(), "#: end 0", "#: log avviato normale Alt+f Alt+g chiusura"]
INSERVIBILE = ["click Command4", "message ERRORE", "click Command5", "end 0"]
# The viewer, the lines to play or what makes them of the forms.
GRUPPI = dict.fromkeys(SESSIONI, ("normale", RIGHE_SESSIONE)) | {
    "tabulazione": ("normale", tabulazione),
    "visore-muore": ("muore", ["click Command4", "log avviato muore", "click Command4",
                               "log avviato muore avviato muore", "click Command5", "end 0"]),
    # The second click waits for the window.
    "visore-lento": ("lento", ["click Command4", "log avviato lento", "click Command4", "show",
                               "log avviato lento Alt+f Alt+g", "activate tarvel1", "click Command5", "end 0",
                               "log avviato lento Alt+f Alt+g chiusura"]),
    # It outlives the program.
    "visore-sordo": ("sordo", ["click Command4", "form ostrel", "activate tarvel1", "click Command5", "end 0",
                               "log avviato sordo chiusura", "form ostrel"]),
    # Keys are for its main window or for none.
    "visore-dialogo": ("dialogo", ["click Command4", "activate dialogo", "activate tarvel1", "click Command4",
                                   "form dialogo", "activate tarvel1", "click Command5", "end 0",
                                   "log avviato dialogo"]),
    "visore-non-programma": (0o700, INSERVIBILE),
    "visore-non-eseguibile": (0o400, INSERVIBILE),
    "chiusura": ("normale", ["type Text1(15) 7", "click Command1", "form ATTENZIONE", "close tarvel1",
                             "message ATTENZIONE", "form FormSez", "close tarvel1", "click Command1",
                             "form tarvel1", "alt+F4 tarvel1", "message INFORMAZIONE no", "end 0",
                             "absent lavori/PR0042/sezio_ut", "absent custom/CapSezDe.txt"]),
    "ridotte": ("normale", ["click Command6", "form FormOpt", "minimize FormOpt", "form tarvel1",
                            "click Command6", "form FormOpt", "activate tarvel1", "click Command7",
                            "form FormSez2", "minimize FormSez2", "form FormOpt", "restore tarvel1",
                            "form FormSez2", "click Command1", "form tarvel1", "click Command5", "end 0"]),
    # The box left has something to say first.
    "altra-form": ("normale", ["click Command6", "form FormOpt", "click TextOpt(1)", "type TextOpt(2) x",
                               "across tarvel1 Command7", "message ATTENZIONE", "form FormSez2",
                               "click Command1", "form tarvel1", "click Command5", "end 0"]),
    "argomento": ("normale", ["message ERRORE", "end 1"]),
}


def congeda(cartella):
    """Viewers outlive the program: ends those left that work in the folder."""
    for processo in Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            if Path(os.readlink(processo / "cwd")).is_relative_to(cartella):
                os.kill(int(processo.name), signal.SIGKILL)


def senza_schermo(programmi):
    presente = {nome: valore for nome, valore in os.environ.items() if nome not in (
        "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    for altro in ({}, {"DISPLAY": ":9999"}, {"WAYLAND_DISPLAY": "nessuno"}):
        for nome in ("tarvel1", "ostrel"):
            fine = subprocess.run([programmi / nome], env=presente | altro, timeout=PAZIENZA, text=True,
                                  stderr=subprocess.PIPE)
            assert fine.returncode == 1 and fine.stderr.count("\n") == 1 and "DISPLAY" in fine.stderr, (
                nome, altro, fine)


def prova(gruppo, programmi, cartella):
    if gruppo == "senza-schermo":
        return senza_schermo(programmi)
    visore, righe = GRUPPI[gruppo]
    trovate = forme(programmi, cartella)
    righe = righe(trovate) if callable(righe) else righe
    misure, regione, decimale = SESSIONI.get(gruppo, ("1024x600", "C", "."))
    radice = cartella / "impianto"
    argomento = installa(radice, programmi, visore)
    with (Schermo(misure, cartella, COL_CLICK if gruppo == "altra-form" else "") as schermo,
          programma(programmi / "tarvel1", "lavoro" if gruppo == "argomento" else argomento,
                    env=schermo.ambiente | {"LC_ALL": regione}) as figlio):
        try:
            Seduta(schermo, radice, figlio, trovate).recita(righe)
        except AssertionError:
            with contextlib.suppress(OSError):
                schermo.chiedi("import", "-window", "root", f"guasto-{gruppo}.png")
            raise
    if gruppo in SESSIONI:
        confronta(radice, programmi, "\n".join(righe), decimale)


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    programmi, gruppi, falliti = Path(sys.argv[1]).resolve(), sys.argv[2:] or [*GRUPPI, "senza-schermo"], 0
    for gruppo in gruppi:
        esito, inizio = "ok", time.monotonic()
        with tempfile.TemporaryDirectory(prefix="finestra") as cartella:
            try:
                prova(gruppo, programmi, Path(cartella))
            except Exception as guasto:
                esito, falliti = f"FAILED: {guasto!r}", falliti + 1
            finally:
                congeda(cartella)
        print(f"{gruppo}: {esito} ({time.monotonic() - inizio:.1f} s)", flush=True)
    print(f"{len(gruppi) - falliti} passed, {falliti} failed")
    return 1 if falliti else 0


if __name__ == "__main__":
    sys.exit(main())
