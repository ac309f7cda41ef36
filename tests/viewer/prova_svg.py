#!/usr/bin/python3
"""The SVG export read back and painted by an independent library: every element in its group, in the drawing's
own units, texts in their cells, and the same picture as the PNG export.

Usage: prova_svg.py OSTREL DRAWING.
"""
import collections
import math
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "app"))
import formati  # noqa: E402

ATTESI = {
    "sezione": {"quote": {"line": 78, "circle": 43}, "contorno": {"line": 24}, "valori": {"text": 26},
                "testi": {"text": 9}},
    # Metres; every line type, three quarters of a circle, a point, texts aslant with accents and what XML reserves.
    "misto": {"quote": {"line": 6, "circle": 1}, "contorno": {"line": 4, "path": 2}, "valori": {"text": 1},
              "testi": {"text": 3}},
}
# Strokes and gaps of each line type, in pen widths.
TRATTI = {(), (8, 5), (1.5, 3.5), (12, 4, 1.5, 4), (12, 4, 1.5, 4, 1.5, 4), (20, 6)}
# The pictures are compared cell by cell, so that other smoothing of the edges does not count.
CELLA = 20
MASSIMO_SCARTO = 9  # 6 with hinted outlines of the letters


def prova_gruppi(svg, punti, testi, attesi):
    assert svg.findtext("{*}title") == testi[0][-1]
    gruppi = {g.get("id"): g for g in svg.findall("{*}g")}
    trovati = {n: dict(collections.Counter(e.tag.split("}")[1] for e in g)) for n, g in gruppi.items()}
    assert trovati == attesi, trovati
    x0, y0, larga, alta = map(float, svg.get("viewBox").split())
    forma = float(svg.get("width")) / larga
    assert math.isclose(forma, float(svg.get("height")) / alta, rel_tol=1e-4)
    assert math.isclose(math.log10(forma), round(math.log10(forma)), abs_tol=1e-4), forma
    for linea in svg.iterfind(".//{*}line"):
        for n in "12":
            x, y = float(linea.get("x" + n)), float(linea.get("y" + n))
            assert (x, -y) in punti and x0 < x < x0 + larga and y0 < y < y0 + alta, (x, y)
    penna = float(svg.get("stroke-width"))
    tratti = {tuple(round(float(t) / penna, 3) for t in linea.get("stroke-dasharray", "").split())
              for linea in svg.iterfind(".//{*}line")}
    assert tratti == (TRATTI if len(tratti) > 1 else {()}), tratti
    scritti = {(t.text, *prova_posa(t)) for t in svg.iterfind(".//{*}text")}
    for (x, y), angolo, base, altezza, testo in testi:
        assert (testo, x, -y, -angolo, f"{base * len(testo):.4g}", f"{altezza:.4g}") in scritti, (testo, scritti)


def prova_posa(testo):
    """Start, angle, length and height of the capitals as drawn."""
    assert testo.get("{http://www.w3.org/XML/1998/namespace}space") == "preserve"
    x, y, angolo, lungo, alto = re.fullmatch(r"translate\((\S+) (\S+)\)(?: rotate\((\S+)\))? scale\((\S+) (\S+)\)",
                                       testo.get("transform")).groups()
    maiuscole = 1493 / 2048  # of the font's size, as DejaVu Sans Mono has them
    return (float(x), float(y), int(angolo or 0), f"{float(lungo) * float(testo.get('textLength')):.4g}",
            f"{float(alto) * float(testo.get('font-size')) * maiuscole:.4g}")


def celle(immagine, larga, alta):
    return subprocess.run(["convert", immagine, "-scale", f"{larga}x{alta}!", "-depth", "8", "rgb:-"],
                          stdout=subprocess.PIPE, check=True).stdout


def prova_immagine(nome):
    lati = subprocess.run(["identify", "-format", "%w %h", nome + ".png"], stdout=subprocess.PIPE, check=True)
    larga, alta = map(int, lati.stdout.split())
    assert max(larga, alta) == 2000, lati.stdout
    subprocess.run(["rsvg-convert", "-w", str(larga), "-h", str(alta), nome + ".svg", "-o", "resa.png"], check=True)
    n, m = larga // CELLA, alta // CELLA
    scarti = [abs(a - b) for a, b in zip(celle(nome + ".png", n, m), celle("resa.png", n, m), strict=True)]
    peggiore = max(range(len(scarti)), key=scarti.__getitem__)
    print(nome, scarti[peggiore], "at", divmod(peggiore // 3, n))
    assert scarti[peggiore] <= MASSIMO_SCARTO


ostrel, dati = os.path.abspath(sys.argv[1]), os.path.dirname(os.path.abspath(sys.argv[2]))
with tempfile.TemporaryDirectory() as cartella:
    os.chdir(cartella)
    for nome, attesi in ATTESI.items():
        disegno = os.path.join(dati, nome + ".dis")
        for uscita in (nome + ".svg", nome + ".png"):
            subprocess.run([ostrel, "--esporta", uscita, disegno], check=True)
        prova_gruppi(ET.parse(nome + ".svg").getroot(), *formati.disegno(disegno), attesi)
        prova_immagine(nome)
