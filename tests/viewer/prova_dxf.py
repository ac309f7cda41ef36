#!/usr/bin/python3
"""The DXF export read back by an independent library: every element, texts in their cells.

Usage: prova_dxf.py OSTREL DRAWING.
"""
import collections
import os
import subprocess
import sys
import tempfile

import ezdxf
from ezdxf import recover

ATTESI = {("LINE", "CONTORNO"): 24, ("LINE", "QUOTE"): 78, ("CIRCLE", "QUOTE"): 43,
          ("TEXT", "QUOTE"): 26, ("TEXT", "TESTI"): 9}

with tempfile.TemporaryDirectory() as cartella:
    uscita = os.path.join(cartella, "sezione.dxf")
    subprocess.run([sys.argv[1], "--esporta", uscita, sys.argv[2]], check=True)
    documento, esame = recover.readfile(uscita)
    assert not esame.errors and not esame.fixes, [e.message for e in esame.errors + esame.fixes]
    documento = ezdxf.readfile(uscita)
    spazio = documento.modelspace()
    trovati = dict(collections.Counter((e.dxftype(), e.dxf.layer) for e in spazio))
    assert trovati == ATTESI, trovati
    titolo = next(t for t in spazio.query("TEXT") if t.dxf.text == "SEZIONE U_PO_001")
    _, inizio, fine = titolo.get_placement()
    assert abs(inizio.distance(fine) - 16 * 20) < 1e-9 and titolo.dxf.height == 20
