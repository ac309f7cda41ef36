#!/usr/bin/env python3
"""Kills the program at random moments while it saves 500 sections; a whole file or a whole copy is left.

    uccisioni.py build/bin/tarvel1-headless [TIMES]

Takes minutes, so no part of the tests.
"""
import os
import random
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "app"))
from installazione import ESEMPIO, installa, nomi  # noqa: E402

programma, volte = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 200
with tempfile.TemporaryDirectory(prefix="Uccisioni_") as radice:
    file = os.path.join(installa(radice), "sezio_ut")
    argomenti = [programma, "--", f"|diroot={radice}|"]
    with open(os.path.join(radice, "custom", "CapSezDe.txt"), "w", newline="") as d:
        d.write(ESEMPIO)
    tutte = [f"S{n}" for n in range(1, 501)]
    subprocess.run(argomenti, input="".join(f"type nome {s}\nclick Calcolo\n" for s in tutte) + "click Command2\n",
                   encoding="utf-8", stdout=subprocess.DEVNULL, check=True)
    assert nomi(file) == tutte
    salva = "type nome S7\nclick Calcolo\n" + "answer yes\nclick Command2\n" * 30
    inizio = time.monotonic()
    subprocess.run(argomenti, input=salva, encoding="utf-8", stdout=subprocess.DEVNULL, check=True)
    durata = time.monotonic() - inizio
    rovinati = perduti = 0
    for _ in range(volte):
        gioco = subprocess.Popen(argomenti, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, encoding="utf-8")
        gioco.stdin.write(salva)
        gioco.stdin.flush()
        time.sleep(random.uniform(0, durata))
        gioco.kill()
        gioco.communicate()
        if nomi(file) != tutte:
            rovinati += 1
            if nomi(file + ".bak") != tutte:
                perduti += 1
                break
            os.replace(file + ".bak", file)
print(f"{volte} volte in {durata:.2f} s di salvataggi: {rovinati} file rovinati, {perduti} senza una copia intera")
sys.exit(perduti > 0)
