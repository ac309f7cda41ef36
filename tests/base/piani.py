#!/usr/bin/env python3
"""Includes point downward only, never in a ring, and only app/ talks to the user: docs/piani.md and every
#include of the sources are read.

    piani.py SOURCES
"""
import os
import re
import sys

os.chdir(sys.argv[1])
with open("docs/piani.md") as tavola:
    PIANI = {stanza: float(piano) for piano, stanze in re.findall(r"^\| ([\d.]+) \|([^|]*)\|", tavola.read(), re.M)
             for stanza in re.findall(r"`(.*?/)`", stanze)}
errori, grafo, visti = [], {}, set()


def piano(file):
    """The floor of the innermost room that the file lies in."""
    return PIANI[max((s for s in PIANI if file.startswith(s)), key=len)]


def visita(file, percorso):
    if file in percorso:
        errori.append(f"anello: {' -> '.join([*percorso[percorso.index(file):], file])}")
    elif file not in visti:
        for incluso in grafo.get(file, []):
            visita(incluso, [*percorso, file])
        visti.add(file)


PIANI[""] = -1
for cartella in sorted({s.split("/")[0] for s in PIANI if s}):
    for dove, _, nomi in os.walk(cartella):
        for file in (os.path.join(dove, n) for n in nomi if n.endswith((".h", ".cpp"))):
            if piano(file) < 0:
                errori.append(f"{file}: senza piano")
            grafo[file] = []
            with open(file, encoding="utf-8") as righe:
                for n, riga in enumerate(righe, 1):
                    if piano(file) < 8 and re.match(r"#\s*include <Q", riga):
                        errori.append(f"{file}:{n}: il nucleo include Qt")
                    trovato = re.match(r'#\s*include "(.*)"', riga)
                    if trovato and os.path.exists(trovato[1]):
                        grafo[file].append(trovato[1])
                        if not 0 <= piano(trovato[1]) <= piano(file):
                            errori.append(f"{file}:{n}: include {trovato[1]}, di nessun piano o di uno superiore")
                        if trovato[1] == "platform/desktop.h" and not file.startswith(("app/", "platform/")):
                            errori.append(f"{file}:{n}: soltanto app/ parla con l'utente")
if len(grafo) < 40:
    errori.append(f"soltanto {len(grafo)} sorgenti")
for file in sorted(grafo):
    visita(file, [])
print(*errori, sep="\n")
print(f"{len(grafo)} sorgenti, {len(errori)} errori")
sys.exit(bool(errori))
