"""The guide's sketches, drawn from sections that the program has built: outline and points are those of its
section file, never coordinates written here."""
import os
import subprocess
import sys
import tempfile

QUI = os.path.dirname(os.path.realpath(__file__))
sys.path.insert(0, os.path.join(QUI, "..", "..", "tests", "app"))
from installazione import ESEMPIO, installa  # noqa: E402

# Proportions of a section on which every dimension can be seen.
TOZZA = "380 45 45 80 120 145 65 50 60 230 80 95 95 100 75 1300 6 3 -3 -6 14".split()
NERO, BLU, VERDE, ROSSO, GRIGIO = "#000000", "#0000ff", "#008000", "#c00000", "#666666"


class Sezione:
    """A section's vertices and points, as the file has them: O[1] to O[13], C[1] to C[11], P[1] to P[14]."""

    def __init__(self, headless, dimensioni):
        with tempfile.TemporaryDirectory(prefix="Schizzi_") as radice:
            lavoro = installa(radice)
            copione = "".join(f"type Text1({i}) {v}\n" for i, v in enumerate(dimensioni))
            subprocess.run([headless, f"|diroot={radice}|"], input=copione + "type nome S\nclick Calcolo\nclick Command2\n",
                           stdout=subprocess.DEVNULL, text=True, check=True, timeout=60)
            with open(os.path.join(lavoro, "sezio_ut"), encoding="cp1252") as file:
                righe = file.read().splitlines()
        coppia = [tuple(map(float, r.split()[:2])) if len(r.split()) > 1 else None for r in righe]
        self.p = [float(v) for v in dimensioni]
        self.ZG, self.YG = map(float, righe[2].split()[2:])
        self.O = [None] + coppia[5:18][::-1]
        self.C = [None] + coppia[19:30][::-1]
        self.P = [None] + [coppia[33 + 4 * k] for k in range(int(righe[32]))]

    def tetto(self, z):
        """Of the top surface's left slope."""
        return z * self.O[13][1] / self.O[13][0]


class Foglio:
    """SVG; lengths in units of a section, whose origin lies at (margine, alto) pixels."""

    def __init__(self, scala, margine, alto, larghezza, altezza):
        self.scala, self.margine, self.alto = scala, margine, alto
        self.misure, self.righe = (larghezza, altezza), []

    def px(self, punto):
        return self.margine + punto[0] * self.scala, self.alto - punto[1] * self.scala

    def aggiungi(self, elemento):
        self.righe.append(elemento)

    def poligono(self, *contorni):
        d = " ".join("M" + " L".join("%.1f,%.1f" % self.px(p) for p in c) + " Z" for c in contorni)
        self.aggiungi(f'<path d="{d}" fill="#e2e2e2" fill-rule="evenodd" stroke="#000" stroke-width="1.6"/>')

    def tratto(self, a, b, colore=NERO, tratteggio="", spessore=1.0):
        """Between two points in pixels."""
        altro = f' stroke-dasharray="{tratteggio}"' if tratteggio else ""
        self.aggiungi(f'<line x1="{a[0]:.1f}" y1="{a[1]:.1f}" x2="{b[0]:.1f}" y2="{b[1]:.1f}" '
                      f'stroke="{colore}" stroke-width="{spessore}"{altro}/>')

    def freccia(self, a, b, colore=NERO, spessore=1.2):
        """Its head at b."""
        lungo = ((b[0] - a[0]) ** 2 + (b[1] - a[1]) ** 2) ** .5
        u, v = (b[0] - a[0]) / lungo, (b[1] - a[1]) / lungo
        self.tratto(a, b, colore, spessore=spessore)
        punta = [b, (b[0] - 8 * u - 3 * v, b[1] - 8 * v + 3 * u), (b[0] - 8 * u + 3 * v, b[1] - 8 * v - 3 * u)]
        self.aggiungi('<polygon points="%s" fill="%s"/>' % (" ".join("%.1f,%.1f" % p for p in punta), colore))

    def quota(self, a, b, colore):
        """A dimension line with its end marks."""
        self.tratto(a, b, colore, spessore=1.3)
        lato = (0, 4) if abs(a[1] - b[1]) < abs(a[0] - b[0]) else (4, 0)
        for p in (a, b):
            self.tratto((p[0] - lato[0], p[1] - lato[1]), (p[0] + lato[0], p[1] + lato[1]), colore, spessore=1.3)

    def testo(self, p, testo, colore=NERO, ancora="start", corpo=12, grassetto=False):
        peso = ' font-weight="bold"' if grassetto else ""
        self.aggiungi(f'<text x="{p[0]:.1f}" y="{p[1]:.1f}" fill="{colore}" text-anchor="{ancora}" '
                      f'font-size="{corpo}"{peso}>{testo}</text>')

    def numero(self, p, numero, colore):
        self.aggiungi(f'<circle cx="{p[0]:.1f}" cy="{p[1]:.1f}" r="10" fill="{colore}"/>')
        self.testo((p[0], p[1] + 4), numero, "#ffffff", "middle", 11, True)

    def voce(self, p, numero, testo, colore, ancora="start"):
        """A numbered disc and its name, beside it or (middle) below it, a line for each part."""
        self.numero(p, numero, colore)
        passo, x = 13, p[0] + {"start": 15, "end": -15, "middle": 0}[ancora]
        parti = testo.split("/")
        y = p[1] + 23 if ancora == "middle" else p[1] + 4 - passo * (len(parti) - 1) / 2
        for k, parte in enumerate(parti):
            self.testo((x, y + passo * k), parte, colore, ancora)

    def svg(self):
        larga, alta = self.misure
        return "\n".join([f'<svg xmlns="http://www.w3.org/2000/svg" width="{larga}" height="{alta}" '
                          f'viewBox="0 0 {larga} {alta}" font-family="DejaVu Sans, Verdana, sans-serif">',
                          f'<rect width="{larga}" height="{alta}" fill="#ffffff"/>', *self.righe, "</svg>", ""])


def dimensioni(headless):
    """Every dimension on the section, by its number and name."""
    s = Sezione(headless, TOZZA)
    f = Foglio(.84, 110, 240, 1310, 590)
    f.poligono(s.O[1:], s.C[1:])
    larga, alto = s.p[15], 35

    def su(z, riga):
        return f.px((z, 0))[0], riga

    # What is measured across: total width, slopes, bases of the left half.
    f.quota(su(0, alto), su(larga, alto), BLU)
    f.voce((su(larga / 2, alto)[0] - 60, alto - 16), 15, "larghezza totale", BLU)
    colmi = [0, s.O[13][0], s.O[12][0], s.O[11][0], larga]
    nomi = ["dall'estremo sinistro al primo colmo", "dal primo colmo/alla mezzeria", "dalla mezzeria/al secondo colmo",
            "dal secondo colmo all'estremo destro"]
    for k, nome in enumerate(nomi):
        f.quota(su(colmi[k], alto + 80), su(colmi[k + 1], alto + 80), VERDE)
        x = (su(colmi[k], 0)[0] + su(colmi[k + 1], 0)[0]) / 2
        if k in (0, 3):
            f.voce((x - (130, 90)[k == 3], alto + 62), 16 + k, nome, VERDE)
        else:
            # Beside the narrow crown, each to its side.
            f.voce((x - 12, alto + 57), 16 + k, nome, VERDE, ("end", "start")[k == 2])
    basi = [0, s.O[3][0], s.O[4][0], s.C[2][0], s.C[3][0], s.C[4][0], s.O[12][0]]
    voci = [(9, "sbalzo"), (10, "dall'attacco/all'anima"), None, (11, "raccordo/superiore"), (12, "dal raccordo/al colmo"),
            (13, "dal colmo/alla mezzeria")]
    riga = alto + 150
    for k, voce in enumerate(voci):
        f.quota(su(basi[k], riga), su(basi[k + 1], riga), BLU if voce else GRIGIO)
        x = (su(basi[k], 0)[0] + su(basi[k + 1], 0)[0]) / 2
        if voce:
            f.numero((x, riga - 46), voce[0], BLU)
            for n, parte in enumerate(voce[1].split("/")):
                f.testo((x, riga - 24 + 12 * n), parte, BLU, "middle", 9.5 if k else 12)
        else:
            f.testo((x, riga - 12), "anima", GRIGIO, "middle", 9.5)
    for z in basi[1:]:
        f.tratto(su(z, riga + 6), f.px((z, s.tetto(z))), "#aaaaaa", "2 3", .8)

    # Depths under the top surface.
    for numero, v, nome, dove, ancora in (
            (3, s.O[3], "attacco/degli sbalzi", (-66, 62), "end"),
            (4, s.O[4], "sommità esterna/delle anime", (-88, 92), "end"),
            (5, s.C[2], "sommità interna/delle anime", (34, 34), "start"),
            (6, s.C[3], "soletta alla fine/del raccordo", (8, 74), "start"),
            (7, s.C[4], "soletta/in mezzeria", (-6, 48), "start")):
        sotto, sopra = f.px(v), f.px((v[0], s.tetto(v[0])))
        f.quota(sopra, sotto, NERO)
        voce = (sotto[0] + dove[0], sotto[1] + dove[1])
        f.tratto(sotto, (voce[0], voce[1]), NERO, "2 2", .7)
        f.voce(voce, numero, nome, NERO, ancora)
    a, b = f.px(s.O[1]), f.px(s.O[2])
    f.quota((a[0] - 14, a[1]), (b[0] - 14, b[1]), NERO)
    f.voce((b[0] - 30, b[1] + 20), 2, "", NERO)
    f.testo((b[0] - 44, b[1] + 45), "estremità", NERO)
    f.testo((b[0] - 44, b[1] + 58), "degli sbalzi", NERO)

    # Crown, bottom slab, lower fillet, slope of the web.
    mezzo, fondo = s.O[12][0], s.O[5][1]
    a, b = f.px((mezzo + 60, fondo)), f.px((mezzo + 60, s.O[12][1] + s.p[18] * 60 / 100))
    f.quota(f.px((mezzo, fondo)), f.px(s.O[12]), NERO)
    f.voce((f.px((mezzo, 0))[0] + 18, f.px((0, (s.C[5][1] + s.C[11][1]) / 2))[1]), 0, "altezza totale,/in mezzeria", NERO)
    z = mezzo + 105
    f.quota(f.px((z, fondo)), f.px((z, s.C[11][1])), NERO)
    f.voce((f.px((z, 0))[0] + 20, f.px((0, fondo))[1] + 22), 1, "soletta inferiore", NERO)
    c1, c11 = s.C[1], s.C[11]
    z = c11[0] + 14
    f.quota(f.px((z, c11[1])), f.px((z, c1[1])), NERO)
    f.voce((f.px((z, 0))[0] + 18, f.px((0, c1[1] - 30))[1]), 8, "raccordo/inferiore/(altezza)", NERO)
    y = c1[1] + 16
    f.quota(f.px((c1[0], y)), f.px((c11[0], y)), BLU)
    f.voce((f.px((c11[0], 0))[0] + 22, f.px((0, y))[1] - 4), 14, "raccordo/inferiore/(base)", BLU)
    o4, o5 = s.O[4], s.O[5]
    a, b = f.px((o5[0], o5[1])), f.px((o5[0], o5[1] + 150))
    c = f.px((o5[0] - (o5[0] - o4[0]) * 150 / (o4[1] - o5[1]), o5[1] + 150))
    scosto = -26
    for da, al in ((a, b), (b, c), (c, a)):
        f.tratto((da[0] + scosto, da[1]), (al[0] + scosto, al[1]), VERDE, spessore=1.3)
    f.voce((c[0] + scosto - 20, (a[1] + b[1]) / 2), 20, "inclinazione/delle anime", VERDE, "end")

    # What is left is the web.
    a, b = f.px(s.C[8]), f.px((s.O[7][0], s.C[8][1]))
    y = a[1] + 50
    f.quota((a[0] - 8, y), (b[0] - 9, y), GRIGIO)
    f.testo((b[0] + 4, y - 2), "anima: non si imposta,", GRIGIO)
    f.testo((b[0] + 4, y + 12), "è quello che resta", GRIGIO)
    return f.svg()


def pendenze(headless):
    """Which way the top surface falls, by the signs of the slopes."""
    f = Foglio(.27, 30, 0, 1180, 215)
    for k, (segni, titolo) in enumerate(((("+", "+", "−", "−"), "a schiena d'asino"),
                                         (("+", "+", "+", "+"), "tutta verso sinistra"),
                                         (("−", "−", "−", "−"), "tutta verso destra"))):
        valori = list(TOZZA)
        valori[16:20] = [str(v if segno == "+" else -v) for v, segno in zip((7, 7, 7, 7), segni)]
        s = Sezione(headless, valori)
        f.margine = 20 + 392 * k
        f.alto = 100 + s.O[10][1] * f.scala / 2
        f.poligono(s.O[1:], s.C[1:])
        f.testo((f.margine + 180, 20), titolo, NERO, "middle", 13, True)
        tetto = [s.O[1], s.O[13], s.O[12], s.O[11], s.O[10]]
        for n, (da, al) in enumerate(zip(tetto, tetto[1:])):
            x = (f.px(da)[0] + f.px(al)[0]) / 2 + (0, -14, 14, 0)[n]
            y = (f.px(da)[1] + f.px(al)[1]) / 2 - 42
            f.numero((x, y), 16 + n, VERDE)
            f.testo((x, y + 24), segni[n], VERDE, "middle", 15, True)
        # Where the water goes: down the line from its higher to its lower end.
        for da, al in ((s.O[1], s.O[12]), (s.O[10], s.O[12])) if segni[1] != segni[2] else ((s.O[1], s.O[10]),):
            alto, basso = sorted((da, al), key=lambda p: -p[1])
            pa, pb = f.px(alto), f.px(basso)
            f.freccia((pa[0] + .55 * (pb[0] - pa[0]), pa[1] + .55 * (pb[1] - pa[1]) - 8),
                      (pa[0] + .9 * (pb[0] - pa[0]), pa[1] + .9 * (pb[1] - pa[1]) - 8), "#2060c0", 2)
    return f.svg()


def punti(headless):
    """Axes, centroid and characteristic points of the worked example."""
    s = Sezione(headless, ESEMPIO.split())
    f = Foglio(.86, 80, 110, 1180, 330)
    f.poligono(s.O[1:], s.C[1:])
    o = f.px((0, 0))
    f.freccia(o, (o[0] + 130, o[1]), BLU, 1.6)
    f.freccia(o, (o[0], o[1] - 75), BLU, 1.6)
    f.testo((o[0] + 122, o[1] - 8), "z", BLU, corpo=15, grassetto=True)
    f.testo((o[0] - 5, o[1] - 80), "y", BLU, corpo=15, grassetto=True)
    g = f.px((s.ZG, s.YG))
    fine = f.px((s.O[10][0], s.YG))
    f.tratto((f.px((0, 0))[0] - 20, g[1]), (fine[0] + 20, g[1]), ROSSO, "10 3 2 3")
    f.tratto((g[0], 40), (g[0], f.px(s.O[5])[1] + 60), ROSSO, "10 3 2 3")
    f.testo((fine[0] + 24, g[1] - 4), "Jzg", ROSSO, "end", 13, True)
    f.testo((g[0] + 6, 50), "Jyg", ROSSO, corpo=13, grassetto=True)
    f.aggiungi(f'<circle cx="{g[0]:.1f}" cy="{g[1]:.1f}" r="4" fill="{ROSSO}"/>')
    f.testo((g[0] + 7, g[1] + 16), "G", ROSSO, corpo=14, grassetto=True)
    # ZG from the left end, YG from the upper left end.
    y = f.px(s.O[5])[1] + 50
    f.quota((o[0], y), (g[0], y), ROSSO)
    f.testo(((o[0] + g[0]) / 2 - 130, y - 6), "ZG", ROSSO, corpo=13, grassetto=True)
    f.quota((o[0] - 30, o[1]), (o[0] - 30, g[1]), ROSSO)
    f.tratto((o[0] - 36, o[1]), o, ROSSO, "2 3", .8)
    f.tratto((o[0] - 36, g[1]), (o[0] - 20, g[1]), ROSSO, "2 3", .8)
    f.testo((o[0] - 36, (o[1] + g[1]) / 2 + 5), "YG", ROSSO, "end", 13, True)
    for k, scosto in enumerate(((12, -12), (-14, -14), (-14, -16), (14, -14), (8, -14), (-14, 14), (14, 14), (15, 0), (-17, 2),
                                (0, 18), (0, -15), (14, 16), (0, -15), (-18, 0)), 1):
        p = f.px(s.P[k])
        f.aggiungi(f'<circle cx="{p[0]:.1f}" cy="{p[1]:.1f}" r="3" fill="#000"/>')
        f.numero((p[0] + scosto[0], p[1] + scosto[1]), k, "#333333")
    return f.svg()


SCHIZZI = {"dimensioni.svg": dimensioni, "pendenze.svg": pendenze, "punti.svg": punti}
