"""The guide's pictures of windows, taken of the programs at a virtual screen."""
import base64
import contextlib
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

QUI = Path(__file__).resolve().parent
sys.path[:0] = [str(QUI / ".." / ".." / "tests" / cartella) for cartella in ("app", "finestra")]
from installazione import ESEMPIO, installa  # noqa: E402
from schermo import COL_CLICK, Schermo, finisce, programma  # noqa: E402

# The buttons and other parts by letter, as the guide names them.
LETTERE = {"A": "Calcolo", "B": "nome", "C": "Command2", "D": "Command1", "E": "Command4", "F": "Command6",
           "G": "Command7", "H": "Command3", "I": "nomute", "L": "Command5"}


def misure_png(file):
    testa = Path(file).read_bytes()[16:24]
    return int.from_bytes(testa[:4], "big"), int.from_bytes(testa[4:], "big")


def riduci(file):
    """Nothing but the pixels, all as they are."""
    subprocess.run(["convert", file, "-strip", "-define", "png:compression-level=9", "-define",
                    "png:exclude-chunks=all", f"png24:{file}"], check=True)


class Scena(contextlib.ExitStack):
    """The program at a screen of its own, on a fresh installation with the worked example. Where its paths are
    seen its root is a relative one, so that the pictures are the same wherever they are taken; the viewer finds
    its drawing by a whole path only."""

    def __init__(self, programmi, relativa=False):
        super().__init__()
        self.programmi = Path(programmi).resolve()
        self.cartella = Path(self.enter_context(tempfile.TemporaryDirectory(prefix="Finestre_")))
        self.radice = "ponti" if relativa else str(self.cartella / "ponti")
        installa(str(self.cartella / "ponti"))
        (self.cartella / "ponti/impostazioni/dirlav").write_text(f"{self.radice}/Lavori\r\n", newline="")
        (self.cartella / "ponti/custom/CapSezDe.txt").write_text(ESEMPIO, newline="")
        visore = self.cartella / "ponti/progra/ostrel.exe"
        visore.unlink()
        visore.symlink_to(self.programmi / "ostrel")
        self.schermo = self.enter_context(Schermo("1280x1024", self.cartella, COL_CLICK))
        self.schermo.ambiente |= {"LC_ALL": "C.UTF-8", "XDG_CONFIG_HOME": str(self.cartella / "config"),
                                  "XDG_RUNTIME_DIR": str(self.cartella), "QT_SCALE_FACTOR": "1",
                                  "CUPS_SERVER": "/nessuno"}
        self.luoghi = {}
        form = None
        for riga in self.recita("layout\nclick Command6\nlayout\n").splitlines():
            match riga.split():
                case ["layout", form, larghezza, _]:
                    self.luoghi[form] = int(larghezza), {}
                case ["place", nome, _, *posto]:
                    self.luoghi[form][1][nome] = [int(v) for v in posto]

    def recita(self, copione):
        """What the scripted desktop says of the same installation."""
        return subprocess.run([self.programmi / "tarvel1-headless", f"|diroot={self.radice}|"], input=copione, text=True,
                              stdout=subprocess.PIPE, cwd=self.cartella, check=True).stdout

    def avvia(self):
        self.figlio = self.enter_context(programma(self.programmi / "tarvel1", f"|diroot={self.radice}|", cwd=self.cartella,
                                                   env=self.schermo.ambiente, stderr=subprocess.DEVNULL))
        return self.schermo.davanti("tarvel1")

    def clic(self, form, controllo):
        """In the middle of a control."""
        finestra = self.schermo.trova(form)
        x, y, larga, *_ = self.schermo.posto(finestra)
        passo = larga / self.luoghi[form][0]
        sinistra, alto, larghezza, altezza = self.luoghi[form][1][controllo]
        self.schermo.mano("mousemove", x + round((sinistra + larghezza / 2) * passo),
                          y + round((alto + altezza / 2) * passo), "click", 1)
        self.schermo.giro()

    def ritrai(self, finestra, file):
        """The window in front without its frame, once nothing moves in it: from the first box, whose cursor would
        blink, the focus goes back to the last button."""
        self.schermo.mano("mousemove", 1279, 1023, "key", "shift+Tab")
        self.schermo.ritrai(self.cartella / "intero.png")
        x, y, larga, *_ = self.schermo.posto(finestra)
        alta = int(re.search(r"Height: (\d+)", self.schermo.chiedi("xwininfo", "-id", finestra))[1])
        subprocess.run(["convert", self.cartella / "intero.png", "-crop", f"{larga}x{alta}+{x}+{y}", "+repage", file],
                       check=True)


def numerata(scena, ritratto, file):
    """The main form's picture with its boxes' numbers and its commands' letters, each at the control's place."""
    larga, alta = misure_png(ritratto)
    ampiezza, luoghi = scena.luoghi["tarvel1"]
    passo = larga / ampiezza
    dati = base64.b64encode(Path(ritratto).read_bytes()).decode()
    righe = [f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{larga}" '
             f'height="{alta}" font-family="DejaVu Sans" font-weight="bold" text-anchor="middle" font-size="11">',
             f'<image width="{larga}" height="{alta}" xlink:href="data:image/png;base64,{dati}"/>']
    voci = [(str(i), luoghi[f"Text1({i})"], "#c00000") for i in range(21)]
    voci += [(lettera, luoghi[nome], "#1050a0") for lettera, nome in LETTERE.items()]
    for testo, (sinistra, alto, larghezza, altezza), colore in voci:
        # A box's number stands at its upper right corner, a command's letter at its upper left one.
        x = (sinistra + (larghezza + 20 if testo.isdigit() else 30)) * passo
        y = max((alto - (10 if testo.isdigit() else 40)) * passo, 10)
        righe += [f'<circle cx="{x:.1f}" cy="{y:.1f}" r="9" fill="{colore}" stroke="#ffffff"/>',
                  f'<text x="{x:.1f}" y="{y + 4:.1f}" fill="#ffffff">{testo}</text>']
    subprocess.run(["rsvg-convert", "-o", file], input="\n".join([*righe, "</svg>"]), text=True, check=True)


def del_programma(programmi, cartella):
    """The main form, numbered, and the form of options."""
    with Scena(programmi, relativa=True) as scena:
        finestra = scena.avvia()
        scena.ritrai(finestra, cartella / "nuda.png")
        numerata(scena, cartella / "nuda.png", cartella / "finestra.png")
        (cartella / "nuda.png").unlink()
        scena.clic("tarvel1", "Command6")
        scena.ritrai(scena.schermo.davanti("FormOpt"), cartella / "opzioni.png")
        scena.clic("tarvel1", "Command5")
        finisce(scena.figlio, 0)
    return "finestra.png", "opzioni.png"


# Options for centimetres, as the guide recommends them.
OPZIONI_CM = {9: 7, 10: 10, 11: 4, 14: 12, 15: 18}


def del_visore(programmi, cartella):
    """The worked section followed by hand as far as its preview."""
    with Scena(programmi) as scena:
        schermo = scena.schermo
        scena.avvia()
        scena.clic("tarvel1", "nome")
        schermo.mano("key", "--delay", 0, "ctrl+a")
        schermo.mano("type", "--delay", 20, "PONTE")
        for bottone in ("Calcolo", "Command2"):
            scena.clic("tarvel1", bottone)
            schermo.davanti("INFORMAZIONE")
            schermo.mano("key", "Return")
            schermo.davanti("tarvel1")
        scena.clic("tarvel1", "Command4")
        visore = schermo.davanti("ostrel")
        schermo.mano("windowsize", "--sync", visore, 1000, 600)
        scena.ritrai(visore, cartella / "visore.png")
        schermo.mano("key", "ctrl+p")
        stampa = schermo.davanti("Stampa")
        # Unit by its first letter, then the scale; the focus ends on the sheet, which does not blink.
        schermo.mano("key", "c")
        schermo.mano("key", "alt+c", "ctrl+a")
        schermo.mano("type", "--delay", 20, "1:50")
        schermo.mano("key", "Tab", "Tab", "Tab", "Tab")
        scena.ritrai(stampa, cartella / "stampa.png")
        schermo.mano("key", "Escape")
        schermo.davanti("ostrel")
        schermo.chiudi("ostrel")
        schermo.davanti("tarvel1")
        scena.clic("tarvel1", "Command5")
        finisce(scena.figlio, 0)
    return "visore.png", "stampa.png"


def del_disegno(programmi, cartella):
    """The worked section's drawing, with the options that the guide recommends."""
    with Scena(programmi) as scena:
        scena.recita("type nome PONTE\nclick Command6\n" + "".join(
            f"type TextOpt({k}) {v}\n" for k, v in OPZIONI_CM.items()) +
            "click FormOpt.Applica\nclick FormOpt.Chiudi\nclick Calcolo\nclick Command2\n")
        subprocess.run([scena.programmi / "ostrel", "--esporta", cartella / "grande.png",
                        scena.cartella / "ponti/Lavori/PR0001/PONTE.dis"], check=True, env=scena.schermo.ambiente)
        subprocess.run(["convert", cartella / "grande.png", "-resize", "1100x", cartella / "disegno.png"], check=True)
        (cartella / "grande.png").unlink()
    return "disegno.png",


# Where a picture has the day it was taken on.
DATE = {"stampa.png": "rectangle 705,421 747,434"}

RITRATTI = del_programma, del_visore, del_disegno
