"""What the tests of the filter share: the programs under trial, the worked example as a row, what went wrong."""
import csv
import os
import shlex
import subprocess
import sys

QUI = os.path.dirname(os.path.realpath(__file__))
sys.path.insert(0, os.path.join(QUI, "..", "app"))
from installazione import ESEMPIO  # noqa: E402

EMULATORE = shlex.split(os.environ.get("TARVEL_EMULATORE", ""))
LOTTO, HEADLESS = (os.path.abspath(p) for p in sys.argv[1:3])
VALORI = ESEMPIO.split()
RIGA = ";".join(VALORI)
INTESTAZIONE = ";".join(f"p{i}" for i in range(21))
errori = []


def controlla(cosa, avuto, atteso):
    if avuto != atteso:
        errori.append(cosa)
        print(f"{cosa}\n  atteso: {atteso!r}\n  avuto:  {avuto!r}")


def cambiata(**celle):
    valori = list(VALORI)
    for chiave, valore in celle.items():
        valori[int(chiave[1:])] = valore
    return ";".join(valori)


def lotto(argomenti, ingresso=b"", **altro):
    if isinstance(ingresso, str):
        ingresso = ingresso.encode()
    return subprocess.run([*EMULATORE, LOTTO, *argomenti], input=ingresso, capture_output=True, timeout=120, **altro)


def tabella(esito, separatore=";"):
    """The cells of each row that was written."""
    return [*csv.reader(esito.stdout.decode().splitlines(), delimiter=separatore)]


def byte(percorso):
    with open(percorso, "rb") as file:
        return file.read()


def scrivi(percorso, testo):
    with open(percorso, "wb") as file:
        file.write(testo if isinstance(testo, bytes) else testo.encode())


def desktop(radice, copione, *opzioni):
    scrivi(os.path.join(radice, "copione"), copione)
    esito = subprocess.run([*EMULATORE, HEADLESS, "--script", os.path.join(radice, "copione"), *opzioni, "--",
                            f"|diroot={radice}|"], stdin=subprocess.DEVNULL, capture_output=True, timeout=300)
    controlla("desktop", (esito.returncode, esito.stderr), (0, b""))
