#!/usr/bin/env python3
"""Random sections calculated, saved and drawn by two builds of the program: files equal byte for byte.

    due_sistemi.py PROGRAM OTHER SECTIONS      OTHER is run by TARVEL_EMULATORE

One section of 25 is saved by itself, which draws it; a table holds 500.
"""
import os
import random
import shlex
import sys
import tempfile
from pathlib import Path

from installazione import dimensioni, installa, recita

TABELLA = 500


def copione(caso, quante):
    righe = []
    for n in range(quante):
        righe += [f"type Text1({i}) {v}" for i, v in enumerate(dimensioni(caso))]
        righe += [f"type nome S{n:06d}", "click Calcolo"]
        if n % 25 == 0 or n == quante - 1:
            righe.append("click Command2")
    return "\n".join(righe) + "\n"


def file_scritti(comando, testo):
    with tempfile.TemporaryDirectory(prefix="DueSistemi_") as radice:
        lavoro = Path(installa(radice))
        esito = recita(comando, radice, testo)
        if esito.returncode != 0 or not (lavoro / "sezio_ut").exists():
            sys.exit(f"{comando[-1]}: {esito.stdout[-500:]}{esito.stderr}")
        return {file.name: file.read_bytes() for file in lavoro.iterdir()}


def main():
    programma, altro, quante = *map(os.path.abspath, sys.argv[1:3]), int(sys.argv[3])
    emulatore = shlex.split(os.environ.get("TARVEL_EMULATORE", ""))
    caso = random.Random(21)
    file = disegni = diversi = 0
    for da in range(0, quante, TABELLA):
        testo = copione(caso, min(TABELLA, quante - da))
        uno, due = file_scritti([programma], testo), file_scritti([*emulatore, altro], testo)
        assert uno.keys() == due.keys(), sorted(uno.keys() ^ due.keys())
        file += len(uno)
        disegni += sum(nome.endswith(".dis") for nome in uno)
        for nome in uno:
            if uno[nome] != due[nome]:
                diversi += 1
                coppie = zip(uno[nome].split(b"\n"), due[nome].split(b"\n"))
                print(nome, *next(((x, y) for x, y in coppie if x != y), ("lunghezze diverse",)))
    print(f"{quante} sezioni, {disegni} disegni, {file} file: {diversi} diversi")
    sys.exit(diversi > 0 or disegni == 0)


main()
