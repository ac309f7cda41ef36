#!/usr/bin/python3
"""The PDF export measured on paper: the operators of its pages are followed from the drawing's numbers to
millimetres, with nothing but their inflating.

Usage: prova_pdf.py OSTREL DRAWING
"""
import os
import re
import subprocess
import sys
import tempfile
import zlib

MM = 25.4 / 72
ROSSO = "1 0 0"  # the outline of the example; nothing else has its colour


def per(a, b):
    """The matrix that applies a, then b."""
    return (a[0] * b[0] + a[1] * b[2], a[0] * b[1] + a[1] * b[3], a[2] * b[0] + a[3] * b[2],
            a[2] * b[1] + a[3] * b[3], a[4] * b[0] + a[5] * b[2] + b[4], a[4] * b[1] + a[5] * b[3] + b[5])


def pagina_di(percorso):
    """The bytes of a document of one page, and the operators of the page."""
    with open(percorso, "rb") as file:
        byte = file.read()
    assert byte.startswith(b"%PDF-") and byte.endswith(b"%%EOF\n")
    correnti = (zlib.decompress(s) for s in re.findall(rb"/FlateDecode\s*>>\s*stream\r?\n(.*?)\nendstream", byte, re.S))
    pagina, = (c.decode("latin-1") for c in correnti if re.search(rb"\d cm\n", c))
    return byte, pagina


def leggi(percorso):
    """The page's sides and its segments as (stroke colour, start, end), in millimetres.

    Of a sheet from the example also the title, the file's name at the end of the title block, and the pen.
    """
    byte, pagina = pagina_di(percorso)
    lati = [float(v) * MM for v in re.search(rb"/MediaBox \[0 0 (\S+) (\S+)\]", byte).groups()]
    assert b"/Title (\xfe\xff" + "SEZIONE U_PO_001".encode("utf-16-be") in byte
    assert len("".join(re.findall(r"<(\w*)> Tj", pagina[pagina.rindex("BT"):]))) == 4 * len(os.path.basename(disegno))
    stato, pila, penna, segmenti, operandi = (1, 0, 0, 1, 0, 0), [], "", [], []
    for parola in re.sub(r"<[0-9A-Fa-f]*>|\[[^\]]*\]", "0", pagina).split():
        if re.fullmatch(r"-?[\d.]+", parola):
            operandi.append(float(parola))
            continue
        if parola == "q":
            pila.append((stato, penna))
        elif parola == "Q":
            stato, penna = pila.pop()
        elif parola == "cm":
            stato = per(operandi[-6:], stato)
        elif parola == "w" and penna == ROSSO:
            assert abs(operandi[-1] * abs(stato[0]) * MM - 0.25) < 1e-3, operandi
        elif parola == "SCN":
            penna = " ".join(f"{v:g}" for v in operandi[-3:])
        elif parola in "ml" and len(parola) == 1:
            x, y = operandi[-2:]
            punto = ((stato[0] * x + stato[2] * y + stato[4]) * MM, (stato[1] * x + stato[3] * y + stato[5]) * MM)
            if parola == "l":
                segmenti.append((penna, prima, punto))
            prima = punto
        operandi.clear()
    assert not pila
    return lati, segmenti


def ingombro(segmenti, colore=None):
    punti = [p for c, *estremi in segmenti if colore in (None, c) for p in estremi]
    return [f(p[i] for p in punti) for f in (min, max) for i in (0, 1)]


def esporta(*opzioni):
    subprocess.run([ostrel, "--esporta", "s.pdf", *opzioni, disegno], check=True)
    return leggi("s.pdf")


ostrel, disegno = map(os.path.abspath, sys.argv[1:])
with tempfile.TemporaryDirectory() as cartella:
    os.chdir(cartella)
    # The section is 1200 units wide and 200 high. Options, sides of the sheet, width on it.
    for opzioni, lati, atteso in (
            ("--unita cm --scala 1:50", (297, 210), 240),
            ("--unita cm --scala 1:100 --orientamento verticale", (210, 297), 120),
            ("--unita mm --scala 1:12,5 --carta A3", (420, 297), 96),
            ("--unita m --scala 5000 --carta A3 --orientamento verticale", (297, 420), 240),
            ("--unita cm --scala 1:20 --comunque", (297, 210), 600),
            ("--unita cm", (297, 210), None),
            ("--orientamento verticale --carta A2", (420, 594), None)):
        trovati, segmenti = esporta(*opzioni.split())
        assert all(abs(a - b) < 0.4 for a, b in zip(trovati, lati)), (opzioni, trovati)
        x0, y0, x1, y1 = ingombro(segmenti, ROSSO)
        print(opzioni, x1 - x0, y1 - y0)
        if "--comunque" in opzioni:  # the lines end where the room for them does
            assert atteso > x1 - x0 > 280, opzioni
            continue
        if atteso:
            assert abs(x1 - x0 - atteso) < 1e-4 and abs(y1 - y0 - atteso / 6) < 1e-4, (opzioni, x1 - x0, y1 - y0)
        x0, y0, x1, y1 = ingombro(segmenti)
        assert 5 - 0.4 < x0 and x1 < lati[0] - 5 + 0.4 and y1 < lati[1] - 5 + 0.4, (opzioni, x0, y0, x1, y1)

    # A title somewhat too long for its cell is condensed, all others of the block are as broad as they are.
    with open(disegno, "rb") as file:
        lungo = file.read().replace(b"U_PO_001", b"DI UN PONTE MOLTO LARGO")
    with open("lungo.dis", "wb") as file:
        file.write(lungo)
    subprocess.run([ostrel, "--esporta", "lungo.pdf", "lungo.dis"], check=True)
    _, pagina = pagina_di("lungo.pdf")
    forme = [float(a) / float(d) for a, d in re.findall(r"(\S+) 0 0 (\S+) \S+ \S+ cm", pagina)][-10:]
    assert 0.75 < forme[1] < 0.99 and all(abs(f - 1) < 1e-6 for f in forme[:1] + forme[2:]), forme
