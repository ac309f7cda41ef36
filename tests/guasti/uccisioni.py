#!/usr/bin/env python3
"""Kills the program at random moments while it saves 500 sections, alone and beside another one that saves the
same job; a whole file or a whole copy is left.

    uccisioni.py build/bin/tarvel1-headless [TIMES [TIMES IN PAIRS]]

Takes minutes, so no part of the tests.
"""
import os
import random
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "app"))
from formati import nomi  # noqa: E402
from installazione import ESEMPIO, installa, recita  # noqa: E402

programma = sys.argv[1]
volte, coppie = (int(v) for v in (sys.argv[2:] + ["200", "60"][len(sys.argv) - 2:])[:2])
with tempfile.TemporaryDirectory(prefix="Uccisioni_") as radice:
    lavoro = installa(radice, ESEMPIO)
    file = os.path.join(lavoro, "sezio_ut")
    argomenti = [programma, "--", f"|diroot={radice}|"]
    tutte = [f"S{n}" for n in range(1, 501)]
    recita(programma, radice, "".join(f"type nome {s}\nclick Calcolo\n" for s in tutte) + "click Command2\n")
    assert nomi(file) == tutte
    salva = "type nome S7\nclick Calcolo\n" + "answer yes\nclick Command2\n" * 30
    inizio = time.monotonic()
    recita(programma, radice, salva)
    durata = time.monotonic() - inizio
    rovinati = perduti = 0
    for volta in range(volte + coppie):
        giochi = []
        for _ in range(1 if volta < volte else 2):
            giochi.append(subprocess.Popen(argomenti, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, encoding="utf-8"))
            giochi[-1].stdin.write(salva)
            giochi[-1].stdin.flush()
        time.sleep(random.uniform(0, durata * len(giochi)))
        for gioco in giochi:
            gioco.kill()
        for gioco in giochi:
            gioco.communicate()
        if nomi(file) != tutte:
            rovinati += 1
            if nomi(file + ".bak") != tutte:
                perduti += 1
                break
            os.replace(file + ".bak", file)
        for avanzo in os.listdir(lavoro):
            if ".altro" in avanzo:
                assert nomi(os.path.join(lavoro, avanzo)) == tutte, avanzo
            if ".altro" in avanzo or avanzo.endswith(".tmp"):
                os.remove(os.path.join(lavoro, avanzo))
print(f"{volte} volte, {coppie} in due, {durata:.2f} s di salvataggi: {rovinati} file rovinati, {perduti} senza una copia intera")
sys.exit(perduti > 0)
