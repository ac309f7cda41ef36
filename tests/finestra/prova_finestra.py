#!/usr/bin/python3
"""The program as a user meets it: started on a virtual screen, typed into, clicked, its windows
watched. What it writes is what the scripted desktop writes for the same session.

Usage: prova_finestra.py FOLDER [GROUP...], the folder that of the programs.
A failure at the screen leaves its picture, guasto-GROUP.png, in the working folder. In the environment:
TARVEL_EMULATORE, what programs for Windows are run with; TARVEL_PARAGONE, the folder of the scripted desktop
where that is another; TARVEL_IMMAGINI, a folder for pictures of whatever form or message is first seen.
"""
import contextlib
import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from impianto import EMULATORE, Impianto, eseguibile, impianto
from schermo import COL_CLICK, PAZIENZA, Schermo, attendi, programma
from seduta import Seduta, forme, recita_senza_schermo

QUI = Path(__file__).resolve().parent
SESSIONE = QUI / "sessione.txt"


def confronta(installato, programmi, cartella, copione, decimale):
    """With what the scripted desktop writes."""
    atteso = cartella / "atteso"
    recita_senza_schermo(programmi, atteso, copione, decimale)
    previsti, avuti = Impianto(atteso).scritti(), installato.scritti()
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
            "sessione-grande": ("1920x1080", "de_DE.UTF-8", ","), "tabulazione": ("1024x600", "C", "."),
            "unita": ("1024x600", "C", "."), "fatale": ("1024x600", "C", "."), "visore-vero": ("1024x600", "C", ".")}
RIGHE_SESSIONE = [*SESSIONE.read_text().splitlines(), "#: end 0", "#: log avviato normale Alt+f Alt+g chiusura"]
ANTEPRIMA = RIGHE_SESSIONE[:RIGHE_SESSIONE.index("#: form ostrel") + 2]
INSERVIBILE = ["click Command4", "message ERRORE", "click Command5", "end 0"]
# The viewer, the lines to play or what makes them of the forms.
GRUPPI = dict.fromkeys(SESSIONI, ("normale", RIGHE_SESSIONE)) | {
    "tabulazione": ("normale", tabulazione),
    # Ours: started, sent the keys to reload, closed.
    "visore-vero": ("vero", [*ANTEPRIMA, "type nome SECONDA", "click Calcolo", "#: message INFORMAZIONE",
                             "click Command2", "#: message INFORMAZIONE", "click Command4", "#: raised ostrel",
                             "#: title ostrel SECONDA", "#: activate tarvel1", "click Command5", "tick 50",
                             "#: end 0", "#: gone ostrel"]),
    # The section file of the table so far is written before the end.
    "fatale": ("normale", [*ANTEPRIMA, "type Text1(16) 1e300", "click Calcolo",
                           "#: message 'SEZIONE UTENTE TIPO PONTE 1'", "#: end 1"]),
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
                                   "raised dialogo", "activate tarvel1", "click Command5", "end 0",
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
    "altra-form": ("normale", ["click Command6", "form FormOpt", "aside FormOpt", "click TextOpt(1)",
                               "type TextOpt(2) x", "across tarvel1 Command7", "message ATTENZIONE", "form FormSez2",
                               "click Command1", "form tarvel1", "click Command5", "end 0"]),
    "argomento": ("normale", ["message ERRORE", "end 1"]),
}


# For X only: Windows always has a screen, and a form of these cannot be minimized there.
DI_X = ["ridotte", "senza-schermo"]


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


def imposta_regione(schermo, decimale):
    """The region of the user of Windows."""
    for nome, segno in (("sDecimal", decimale), ("sThousand", ",."[decimale == ","])):
        subprocess.run([*EMULATORE, "reg", "add", r"HKCU\Control Panel\International", "/v", nome, "/d", segno, "/f"],
                       env=schermo.ambiente, check=True, stdout=subprocess.DEVNULL)


def contratto(programmi, schermo):
    """The contract of the seam, which shows the window of another program for a moment."""
    imposta_regione(schermo, ",")
    esito = subprocess.run([*EMULATORE, programmi / "contratto-qt.exe"], env=schermo.ambiente, timeout=PAZIENZA * 4,
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace")
    if esito.returncode != 0:
        print(esito.stdout)
    assert esito.returncode == 0, "the contract"
    attendi(lambda: not schermo.finestre(), "the other program to close", schermo.aperte)


def prova(gruppo, programmi, cartella, schermo=None):
    """Seconds until the main form was shown."""
    if gruppo == "senza-schermo":
        return senza_schermo(programmi)
    if gruppo == "contratto":
        return contratto(programmi, schermo)
    visore, righe = GRUPPI[gruppo]
    trovate = forme(programmi, cartella)
    righe = righe(trovate) if callable(righe) else righe
    misure, regione, decimale = SESSIONI.get(gruppo, ("1024x600", "C", "."))
    installato = impianto(cartella, gruppo)
    installato.installa(programmi, visore)
    # Windows hands on what stands on the command line as it stands there, a blank in a name included.
    argomenti = ["lavoro"] if gruppo == "argomento" else f"|diroot={installato.nomi[0]}|".split(" ")
    with contextlib.ExitStack() as pila:
        schermo = schermo or pila.enter_context(
            Schermo(misure, cartella, COL_CLICK if gruppo == "altra-form" else ""))
        if EMULATORE:
            imposta_regione(schermo, decimale)
        inizio = time.monotonic()
        figlio = pila.enter_context(programma(
            *EMULATORE, eseguibile(programmi, "tarvel1"), *argomenti,
            env=schermo.ambiente | {"LC_ALL": "C.UTF-8" if EMULATORE else regione}))
        try:
            mostrata = gruppo != "argomento" and schermo.davanti("tarvel1") and time.monotonic() - inizio
            Seduta(gruppo, schermo, installato.radice, figlio, trovate).recita(righe)
        except AssertionError:
            with contextlib.suppress(OSError):
                schermo.ritrai(f"guasto-{gruppo}.png")
            raise
    if gruppo in SESSIONI:
        confronta(installato, programmi, cartella, "\n".join(righe), decimale)
    return mostrata


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    programmi, falliti = Path(sys.argv[1]).resolve(), 0
    # The emulated Windows is started at one screen and shows all its windows there.
    solo_qui = [*DI_X, "sessione-media", "sessione-grande"] if EMULATORE else ["contratto", "unita"]
    gruppi = sys.argv[2:] or [g for g in (*GRUPPI, "senza-schermo", "contratto") if g not in solo_qui]
    with contextlib.ExitStack() as pila:
        schermo = None
        if EMULATORE:
            regole = Path(pila.enter_context(tempfile.TemporaryDirectory()))
            schermo = pila.enter_context(Schermo("1024x768", regole, COL_CLICK))
            subprocess.run([*EMULATORE, "--avvia"], env=schermo.ambiente, check=True)
            pila.callback(subprocess.run, [*EMULATORE, "--ferma"], env=schermo.ambiente)
        for gruppo in gruppi:
            esito, inizio, mostrata = "ok", time.monotonic(), None
            with tempfile.TemporaryDirectory(prefix="finestra") as cartella:
                try:
                    mostrata = prova(gruppo, programmi, Path(cartella), schermo)
                except Exception as guasto:
                    esito, falliti = f"FAILED: {guasto!r}", falliti + 1
                finally:
                    congeda(cartella)
            dopo = f", shown after {mostrata:.2f} s" if mostrata else ""
            print(f"{gruppo}: {esito} ({time.monotonic() - inizio:.1f} s{dopo})", flush=True)
    print(f"{len(gruppi) - falliti} passed, {falliti} failed")
    return 1 if falliti else 0


if __name__ == "__main__":
    sys.exit(main())
