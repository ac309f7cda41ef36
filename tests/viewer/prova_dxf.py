#!/usr/bin/python3
"""The DXF export read back by an independent library: every element, texts in their cells.

Usage: prova_dxf.py OSTREL DRAWING, the worked example; mixed elements lie beside it, in misto.dis.
"""
import collections
import os
import subprocess
import sys
import tempfile

import ezdxf
from ezdxf import recover

ATTESI = {("POLYLINE", "CONTORNO"): 2, ("LINE", "QUOTE"): 78, ("CIRCLE", "QUOTE"): 43,
          ("TEXT", "QUOTE"): 26, ("TEXT", "TESTI"): 9}
LIVELLI = {"CONTORNO": (1, "CONTINUOUS"), "QUOTE": (7, "CONTINUOUS"), "TESTI": (6, "CONTINUOUS")}
# The lines below the ring of the mixed drawing, one of each type.
TIPI = ["BYLAYER", "DASHED", "DOT", "DASHDOT", "DIVIDE", "DASHEDX2"]


def area(anello):
    punti = [v.dxf.location for v in anello.vertices]
    return abs(sum(a.x * b.y - b.x * a.y for a, b in zip(punti, punti[1:] + punti[:1]))) / 2


def contiene(documento):
    """The first view shows all of the drawing, and not much more."""
    vista, testata = documento.viewports.get("*Active")[0].dxf, documento.header
    alta, larga = vista.height / 2, vista.height * vista.aspect_ratio / 2
    mezzo = vista.center + vista.target
    da, a = testata["$EXTMIN"], testata["$EXTMAX"]
    assert mezzo.x - larga <= da[0] and a[0] <= mezzo.x + larga, (mezzo, larga)
    assert mezzo.y - alta <= da[1] and a[1] <= mezzo.y + alta, (mezzo, alta)
    assert min(alta / (a[1] - da[1]), larga / (a[0] - da[0])) < 0.6, vista.height
    diagonale = ((a[0] - da[0]) ** 2 + (a[1] - da[1]) ** 2) ** 0.5
    tratti = [t.value for t in documento.linetypes.get("DASHED").pattern_tags.tags if t.code == 49]
    tratto = tratti[0] * testata["$LTSCALE"]
    assert diagonale / 150 < tratto < diagonale / 50, tratto


with tempfile.TemporaryDirectory() as cartella:
    def letto(disegno, unita="cm"):
        uscita = os.path.join(cartella, "sezione.dxf")
        subprocess.run([sys.argv[1], "--esporta", uscita, "--unita", unita, disegno], check=True)
        documento, esame = recover.readfile(uscita)
        assert not esame.errors and not esame.fixes, [e.message for e in esame.errors + esame.fixes]
        assert documento.header["$INSUNITS"] == {"mm": ezdxf.units.MM, "cm": ezdxf.units.CM, "m": ezdxf.units.M}[unita]
        contiene(documento)
        return documento, ezdxf.readfile(uscita).modelspace()

    documento, spazio = letto(sys.argv[2])
    trovati = dict(collections.Counter((e.dxftype(), e.dxf.layer) for e in spazio))
    assert trovati == ATTESI, trovati
    livelli = {nome: (l.dxf.color, l.dxf.linetype) for nome in LIVELLI for l in [documento.layers.get(nome)]}
    assert livelli == LIVELLI, livelli
    propri = collections.Counter((e.dxftype(), e.dxf.color, e.dxf.linetype) for e in spazio
                                 if e.dxf.color != ezdxf.const.BYLAYER or e.dxf.linetype != "BYLAYER")
    assert propri == {("TEXT", 2, "BYLAYER"): 26}, propri
    # The area that the drawing itself states.
    contorno, cella = spazio.query("POLYLINE")
    assert contorno.is_closed and cella.is_closed
    assert "An:   %.0f" % (area(contorno) - area(cella)) in [t.dxf.text for t in spazio.query("TEXT")]
    titolo = next(t for t in spazio.query("TEXT") if t.dxf.text == "SEZIONE U_PO_001")
    _, inizio, fine = titolo.get_placement()
    assert abs(inizio.distance(fine) - 16 * 20) < 1e-9 and titolo.dxf.height == 20

    documento, spazio = letto(os.path.join(os.path.dirname(sys.argv[2]), "misto.dis"), "m")
    anello, = spazio.query("POLYLINE")
    vertici = [(v.dxf.location.x, v.dxf.location.y) for v in anello.vertices]
    assert vertici == [(0, 0), (12, 0), (12, 1), (0, 1)], vertici
    assert [l.dxf.linetype for l in spazio.query("LINE")] == TIPI
    colori = [l.dxf.get("color", documento.layers.get(l.dxf.layer).dxf.color) for l in spazio.query("LINE")]
    assert colori == [7, 172, 1, 3, 2, 94], colori

    # A text longer than a string may be goes on where it was cut.
    with open(sys.argv[2], "rb") as file:
        lungo = file.read().replace(b"SEZIONE U_PO_001", b"titolo " * 60)
    disegno = os.path.join(cartella, "lungo.dis")
    with open(disegno, "wb") as file:
        file.write(lungo)
    _, spazio = letto(disegno, "mm")
    parti = [t for t in spazio.query("TEXT") if "titolo" in t.dxf.text]
    assert "".join(t.dxf.text for t in parti) == "titolo " * 60 and len(parti) == 2, parti
    assert parti[0].get_placement()[2].isclose(parti[1].get_placement()[1])
    assert abs(parti[0].get_placement()[1].distance(parti[1].get_placement()[2]) - 420 * 20) < 1e-9
