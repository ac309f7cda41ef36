#!/usr/bin/env python3
"""10,000 variants by the filter, and by 20 scripts of the scripted desktop, each of which saves its 500.

    lotto.py PROGRAMS      PROGRAMS: build/bin
"""
import os
import random
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "tests", "app"))
from installazione import dimensioni, installa  # noqa: E402

LOTTO, DESKTOP = (os.path.join(os.path.abspath(sys.argv[1]), nome) for nome in ("tarvel1-lotto", "tarvel1-headless"))


def copione(sezioni):
    righe = [riga for n, s in enumerate(sezioni, 1) for riga in
             [*(f"type Text1({i}) {v}" for i, v in enumerate(s)), f"type nome S{n:06d}", "click Calcolo"]]
    return "\n".join([*righe, "click Command2", ""])


def migliore(lavoro, volte=7):
    tempi = []
    for _ in range(volte):
        prima = time.perf_counter()
        lavoro()
        tempi.append(time.perf_counter() - prima)
    return f"{min(tempi):.2f} s"


with tempfile.TemporaryDirectory(prefix="BenchLotto_") as base:
    caso = random.Random(5)
    varianti = [dimensioni(caso) for _ in range(10000)]
    foglio = os.path.join(base, "varianti.csv")
    with open(foglio, "w") as file:
        file.writelines(";".join(v) + "\n" for v in varianti)

    def lotto(*opzioni):
        with open(os.path.join(base, "uscita.csv"), "w") as uscita:
            subprocess.run([LOTTO, *opzioni, foglio], stdout=uscita, check=True)

    def desktop():
        comandi = []
        for k in range(20):
            radice = os.path.join(base, f"inst{k}")
            installa(radice)
            with open(os.path.join(radice, "copione"), "w") as file:
                file.write(copione(varianti[500 * k:500 * k + 500]))
            comandi.append([DESKTOP, "--script", os.path.join(radice, "copione"), "--", f"|diroot={radice}|"])
        for insieme in (1, 2):
            prima = time.perf_counter()
            for k in range(0, 20, insieme):
                processi = [subprocess.Popen(c, stdout=subprocess.DEVNULL) for c in comandi[k:k + insieme]]
                assert [p.wait() for p in processi] == [0] * insieme
            print(f"20 scripts, {insieme} at a time: {time.perf_counter() - prima:.2f} s")
            for k in range(20):  # or saving would ask whether to replace
                os.remove(os.path.join(base, f"inst{k}", "Lavori", "PR0001", "sezio_ut"))

    for opzioni in ([], ["--punti"]):
        print("filter", *opzioni, migliore(lambda: lotto(*opzioni)))
    desktop()
