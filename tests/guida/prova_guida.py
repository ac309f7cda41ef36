#!/usr/bin/env python3
"""The guide says what the program does: the sessions in its pages are played, its numbers, messages and pictures
compared, its links followed.

    prova_guida.py HEADLESS LOTTO [OSTREL]
"""
import os
import re
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
from copioni import HEADLESS, OSTREL, QUI, Prova, controlla, errori, leggi  # noqa: E402
from formati import disegno, disposizioni  # noqa: E402
from immagini import LETTERE, confronta  # noqa: E402
from installazione import ESEMPIO, installa, recita  # noqa: E402

DOCS = os.path.join(QUI, "..", "..", "docs")
SESSIONI = os.path.join(QUI, "..", "app", "sessioni")


def testo_visibile(testo):
    senza = re.sub(r"<!--.*?-->", "", testo, flags=re.S)
    return re.sub(r"[*`|«»]", " ", senza.replace("−", "-"))


def prove():
    quante = 0
    for nome in sorted(os.listdir(DOCS)):
        if not re.fullmatch(r"guida.*\.md", nome):
            continue
        pagina = leggi(os.path.join(DOCS, nome))
        for parte in re.split(r"^(?=#)", pagina, flags=re.M):
            for blocco in re.findall(r"<!-- prova\n(.*?)-->", parte, re.S):
                # The text may tell the outcome of a step under the headings of later steps.
                Prova(f"{nome}, {parte.splitlines()[0]}", blocco.splitlines(),
                      testo_visibile(pagina if "tabella" in blocco else parte), pagina)
                quante += 1
    controlla("pagine", "sessioni", quante > 15, True)


def detto_da(copione, valori=None):
    """What the program answers to a script on a new installation."""
    with tempfile.TemporaryDirectory(prefix="Guida_") as radice:
        installa(radice, valori)
        return recita([HEADLESS], radice, copione).stdout


def ingombro(inizio, angolo, base, alta, testo):
    """Of a drawing's text, along the axes: left, bottom, right, top."""
    (x, y), larga = inizio, base * len(testo)
    return (x, y, x + larga, y + alta) if angolo == 0 else (x - alta, y, x, y + larga)


def opzioni():
    """With the columns of the table of options typed into the form, no text of the drawing lies over another."""
    tabella = re.findall(r"^\| ([^|]+?) \| ([\d.]+) \| ([\d.*]+) \| ([\d.*]+) \| ([\d.*]+) \|$",
                         leggi(os.path.join(DOCS, "guida-disegno.md")), re.M)
    numeri = {"Scala quote": 3, "Distanza massima quote-disegno": 4, "Lunghezza linee di estensione delle quote": 5,
              "Dimensione pallino della quota": 8, "Base testo quota": 9, "Altezza testo quota": 10,
              "Distanza testo- quota": 11, "Base testi": 14, "Altezza testi": 15}
    controlla("opzioni", "righe", [riga[0] for riga in tabella], list(numeri))
    for colonna, fattore, sovrapposti in ((1, 1, True), (2, 1, False), (3, 10, False), (4, .01, False)):
        with tempfile.TemporaryDirectory(prefix="Guida_") as radice:
            lavoro = installa(radice)
            copione = "".join(f"type Text1({i}) {float(v) * (fattore if i < 16 else 1):g}\n"
                              for i, v in enumerate(ESEMPIO.split()))
            copione += "click Command6\n" + "".join(
                f"type TextOpt({numeri[riga[0]]}) {riga[colonna].strip('*')}\n" for riga in tabella)
            copione += "click FormOpt.Applica\nclick FormOpt.Chiudi\ntype nome S\nclick Calcolo\nclick Command2\n"
            recita([HEADLESS], radice, copione)
            testi = [(testo[-1], ingombro(*testo)) for testo in disegno(os.path.join(lavoro, "S.dis"))[1]]
        coppie = [(a, b) for n, (a, r) in enumerate(testi) for b, s in testi[:n]
                  if r[0] < s[2] and s[0] < r[2] and r[1] < s[3] and s[1] < r[3]]
        controlla("opzioni", f"colonna {colonna}: sovrapposti {coppie}", bool(coppie), sovrapposti)
        quote = sorted(int(t) for t, _ in testi if t.isdigit())
        controlla("opzioni", f"colonna {colonna}: quota maggiore", quote[-1], 12000 if colonna == 3 else 1200)


def comandi():
    """Each command line of the viewer writes the file that it names."""
    righe = leggi(os.path.join(DOCS, "guida-disegno.md")).split("<!-- comandi -->")[1].split("\n\n")[1].splitlines()
    controlla("comandi", "righe", len(righe) > 3, True)
    with tempfile.TemporaryDirectory(prefix="Guida_") as cartella:
        lavoro = installa(os.path.join(cartella, "inst"), ESEMPIO)
        recita([HEADLESS], f"{cartella}/inst", "".join(
            f"type nome {nome}\nclick Calcolo\nclick Command2\n" for nome in ("PONTE", "ALTRA")))
        os.mkdir(os.path.join(lavoro, "tavole"))
        for riga in righe:
            programma, *argomenti = riga.split()
            esito = subprocess.run([OSTREL, *argomenti], cwd=lavoro, capture_output=True, text=True, timeout=60,
                                   env=os.environ | {"XDG_CONFIG_HOME": cartella, "XDG_RUNTIME_DIR": cartella})
            controlla("comandi", riga, (programma, esito.returncode, esito.stderr), ("ostrel", 0, ""))
            controlla("comandi", argomenti[1], os.path.getsize(os.path.join(lavoro, argomenti[1])) > 0, True)
        controlla("comandi", "tavole", sorted(os.listdir(os.path.join(lavoro, "tavole"))), ["ALTRA.pdf", "PONTE.pdf"])


def rimandi():
    """Every link leads to a page, a heading or a picture; every picture is shown somewhere."""
    mostrate = set()
    pagine = ["../README.md", *(n for n in os.listdir(DOCS) if n.endswith(".md"))]
    ancore = {n: {re.sub(r"[^\w\- ]", "", t.lower()).replace(" ", "-")
                  for t in re.findall(r"^#+ (.*)$", leggi(os.path.join(DOCS, n)), re.M)} for n in pagine}
    for nome in pagine:
        for meta in re.findall(r"\]\(([^)]+)\)", leggi(os.path.join(DOCS, nome))):
            file, _, ancora = meta.partition("#")
            mostrate.add(os.path.basename(file))
            posto = os.path.join(DOCS, os.path.dirname(nome), file)
            controlla(nome, meta, (os.path.exists(posto), not ancora or ancora in ancore.get(file or nome, ())),
                      (True, True))
    immagini = {n for n in os.listdir(os.path.join(DOCS, "immagini")) if n.endswith((".png", ".svg"))}
    controlla("immagini", "mostrate", sorted(immagini - mostrate), [])
    peso = sum(os.path.getsize(os.path.join(DOCS, "immagini", n)) for n in immagini)
    controlla("immagini", "byte", peso < 1000000, True)


def controlli():
    """The letters stand at the commands that the table gives them; each box calls itself by its number, group and
    name in the table of dimensions; the pictures of the forms show both."""
    guida = leggi(os.path.join(DOCS, "guida.md"))
    tabella = dict(re.findall(r"\*\*([A-L])\*\* \| ([^|]+?) (?=\|)", guida))
    gruppi, _, *righe = [[cella.strip() for cella in riga.strip("|").split("|")]
                         for riga in re.search(r"^\| n\. \|(?:.*\n\|)*.*", guida, re.M)[0].split("\n")]
    dimensioni = {int(riga[k]): f"{riga[k]}, {gruppi[k + 1]}: {riga[k + 1]}" for riga in righe for k in (0, 2, 4) if riga[k]}
    detto = detto_da("".join([*(f"print {nome}\n" for nome in LETTERE.values()), *(f"tip Text1({i})\n" for i in range(21)),
                              "layout\nclick Command6\nlayout\nclose\nclose\n"]))
    scritte = dict(re.findall(r'^text (\w+) "(.*)"$', detto, re.M))
    for lettera, nome in LETTERE.items():
        if nome not in ("nome", "nomute"):
            controlla("guida.md", lettera, scritte[nome], tabella[lettera])
    controlla("guida.md", "lettere", sorted(tabella), sorted(LETTERE))
    controlla("guida.md", "dimensioni", re.findall(r'^tip Text1\(\d+\) "(.*)"$', detto, re.M),
              [dimensioni.get(i) for i in range(21)])
    for form, immagine in (("tarvel1", "finestra.png"), ("FormOpt", "opzioni.png")):
        controlla(immagine, "da rifare con docs/immagini/fai", [*confronta(
            os.path.join(DOCS, "immagini", immagine), disposizioni(detto)[form], form == "tarvel1")], [])


def messaggi():
    """A session says each message of the table. Here a program says two more: one whose options cannot be read, and
    that saves over the file of another."""
    with tempfile.TemporaryDirectory(prefix="Guida_") as radice:
        lavoro = installa(radice, ESEMPIO)
        os.symlink("/proc/self/mem", os.path.join(radice, "custom", "CapOpSez.txt"))
        with subprocess.Popen([HEADLESS, f"|diroot={radice}|"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              text=True) as gioco:
            gioco.stdin.write("click Command6\nclick Chiudi\ntype nome A\nclick Calcolo\nclick Command2\n")
            gioco.stdin.flush()
            detto = ""
            for riga in gioco.stdout:
                detto += riga
                if "File salvato" in riga and not gioco.stdin.closed:
                    with open(os.path.join(lavoro, "sezio_ut"), "a") as file:
                        file.write("altro")
                    print("click Command2", file=gioco.stdin)
                    gioco.stdin.close()
    detto += "".join(leggi(os.path.join(SESSIONI, n)) for n in os.listdir(SESSIONI) if n.endswith(".atteso"))
    detti = re.findall(r'^message \S+ ".*?" "(.*)" -> ', detto, re.M)
    righe = re.findall(r"^\| ([^|]+?) \| .* \|$", leggi(os.path.join(DOCS, "guida-messaggi.md")).split("|---|---|")[1], re.M)
    controlla("messaggi", "righe", len(righe) > 10, True)
    for messaggio in righe:
        forma = re.compile(".*".join(map(re.escape, re.split(" ?… ?", messaggio))))
        controlla("messaggi", messaggio, any(map(forma.match, detti)), True)


for passo in (prove, opzioni, *([comandi] if OSTREL else []), rimandi, controlli, messaggi):
    passo()
print(f"{len(errori)} errori")
sys.exit(bool(errori))
