#!/usr/bin/env python3
"""The guide says what the program does: the sessions in its pages are played, its numbers compared, its sketches
remade, its links followed.

    prova_guida.py HEADLESS LOTTO [OSTREL]

A page's comment "<!-- prova" holds a session of the scripted desktop, on a fresh installation with the worked
example in the boxes, and what it comes to. "riavvia" starts the program anew on the same installation, "ripeti N
LINE / LINE" writes lines N times; "zeri" empties the boxes, "tabella" types the page's table of values, "ordine N"
presses the buttons of the steps in the Nth column of the page's table of orders. Of a line "= ..." the last word, or after a name of CAMPI_INTERI the whole
rest, has to stand in the text under the same heading too; a line "~ ..." is compared with the program alone:
    = NAME FIELD VALUE           a section of the file: larghezza, ZG, An, O10y, P14.tauVy, punti, ...
    = calcolo EXPRESSION VALUE   of such values of the only section
    = casella N TEXT             what a box shows     = messaggio TEXT    a message box has said
    = riga TEXT                  a line of the file   = disegno TEXT      a text of a drawing
    = nomi generale|lavoro A B   a file's sections    = file A B          the drawings of the job
    = elenco TEXT                a list's entries     = lotto FIELD VALUE the beginning of the filter's figure
"""
import os
import re
import subprocess
import sys
import tempfile

QUI = os.path.dirname(os.path.realpath(__file__))
DOCS = os.path.join(QUI, "..", "..", "docs")
sys.dont_write_bytecode = True
sys.path[:0] = [os.path.join(QUI, "..", "app"), os.path.join(DOCS, "immagini")]
from installazione import ESEMPIO, installa  # noqa: E402
from finestre import LETTERE  # noqa: E402
from schizzi import SCHIZZI, TOZZA, Foglio  # noqa: E402

HEADLESS, LOTTO, OSTREL, *_ = [*(os.path.abspath(p) for p in sys.argv[1:]), None]
DOMANDA_FINALE = 'a question without an answer: "INFORMAZIONE" "Sezione non salvata. Salvare?"'
CAMPI_INTERI = ("riga", "messaggio", "disegno", "elenco")
BOTTONI = {"Anteprima": "Command4", "Calcola": "Calcolo", "Salva": "Command2"}
errori = 0


def controlla(dove, cosa, avuto, atteso):
    global errori
    if avuto != atteso:
        errori += 1
        print(f"{dove}: {cosa}\n  guida:     {atteso}\n  programma: {avuto}")


def leggi(percorso, codice="utf-8"):
    with open(percorso, encoding=codice) as file:
        return file.read()


def sezioni(percorso):
    """What a section file holds: by name, its figures as they are written."""
    righe = iter(leggi(percorso, "cp1252").splitlines())
    trovate = {}
    for _ in range(int(next(righe))):
        voci = trovate[next(righe)] = {}
        voci.update(zip(("larghezza", "altezza", "ZG", "YG"), next(righe).split()))
        for lettera in "OC"[:int(next(righe))]:
            for v in range(int(next(righe)), 0, -1):
                voci[f"{lettera}{v}z"], voci[f"{lettera}{v}y"] = next(righe).split()[:2]
        voci.update(zip(("An", "Aty", "Atz"), next(righe).split()))
        voci.update(zip(("Jt", "Jyg", "Jzg"), next(righe).split()))
        voci["punti"] = next(righe)
        for k in range(1, int(voci["punti"]) + 1):
            voci[f"P{k}.z"], voci[f"P{k}.y"] = next(righe).split()[:2]
            voci.update((f"P{k}.{tau}", next(righe).split()[0]) for tau in ("tauT", "tauVy", "tauVz"))
        next(righe), next(righe)
    return trovate


class Prova:
    """One commented session: its lines so far are played as far as each thing it comes to."""

    def __init__(self, dove, righe, visibile, pagina):
        self.dove, self.visibile, self.copione, self.detto = dove, visibile, [], ""
        with tempfile.TemporaryDirectory(prefix="Guida_") as base:
            self.base, self.passo = base, 0
            self.nuova()
            for n, riga in enumerate(righe):
                verbo, _, resto = riga.partition(" ")
                if verbo in "=~":
                    self.confronta(resto, verbo == "=")
                elif verbo == "riavvia":
                    self.gioca()
                    self.copione, self.inizio = [], self.radice
                elif verbo == "zeri":
                    os.remove(os.path.join(self.radice, "custom", "CapSezDe.txt"))
                elif verbo == "tabella":
                    for numero, valore in re.findall(r"\| (\d+) \| [^|]+ \| ([-\d.]+) (?=\|)", pagina):
                        self.copione.append(f"type Text1({numero}) {valore}")
                elif verbo == "ordine":
                    for passi in re.findall(r"^\| \d\. \*\*.*$", pagina, re.M):
                        colonna = passi.split("|")[int(resto)]
                        self.copione.append("click " + BOTTONI[re.search(r"\*\*(\w+)\*\*", colonna)[1]])
                elif verbo == "ripeti":
                    quante, _, corpo = resto.partition(" ")
                    self.copione += [(c % k if "%" in c else c) for k in range(1, int(quante) + 1)
                                     for c in corpo.split(" / ")]
                else:
                    self.copione.append(riga)
                if n + 1 == len(righe):
                    self.gioca()

    def nuova(self):
        self.inizio = self.radice = os.path.join(self.base, "inst")
        installa(self.radice)
        with open(os.path.join(self.radice, "custom", "CapSezDe.txt"), "w", newline="") as file:
            file.write(ESEMPIO)

    def gioca(self, *altre):
        """The lines so far, on a copy of what was there when they began."""
        self.passo += 1
        originale, self.radice = self.inizio, os.path.join(self.base, "copia%d" % self.passo)
        subprocess.run(["cp", "-a", originale, self.radice], check=True)
        with open(os.path.join(self.radice, "impostazioni", "dirlav"), "w", newline="") as file:
            file.write(os.path.join(self.radice, "Lavori") + "\r\n")
        for fine in ([], ["answer no", "close"]):
            testo = "\n".join([*self.copione, *altre, *fine]) + "\n"
            esito = subprocess.run([HEADLESS, f"|diroot={self.radice}|"], input=testo, capture_output=True, text=True,
                                   timeout=120)
            if DOMANDA_FINALE not in esito.stdout + esito.stderr:
                break
        self.detto = esito.stdout
        # A fatal error's message is one of those that the guide tells of.
        if esito.returncode and "Errore irreversibile" not in self.detto:
            controlla(self.dove, "la sessione", (esito.stdout + esito.stderr)[-300:], "giocata fino in fondo")

    def nel_lavoro(self, *nome):
        return os.path.join(self.radice, "Lavori", "PR0001", *nome)

    def confronta(self, atteso, nel_testo):
        campo, _, resto = atteso.partition(" ")
        valore = resto if campo in CAMPI_INTERI else resto.split(" ")[-1]
        self.gioca(*([f"print Text1({resto.split(' ')[0]})"] if campo == "casella" else ()))
        controlla(self.dove, atteso, self.trova(campo, resto, valore), valore)
        if nel_testo:
            cercato = re.sub(r"^\w+ *: +", "", valore) if campo == "disegno" else valore.strip('"')
            controlla(self.dove, atteso, cercato if re.search(
                r"(?<![\w.-])" + re.sub(r"(\\ )+", r"\\s+", re.escape(cercato)) + r"(?!\w|\.\d)", self.visibile) else "non è nel testo", cercato)

    def trova(self, campo, resto, valore):
        if campo == "casella":
            return re.findall(r'^text Text1\(%s\) "(.*)"$' % resto.split(" ")[0], self.detto, re.M)[-1]
        if campo in ("messaggio", "elenco"):
            return valore if valore in self.detto else self.detto[-300:]
        if campo == "file":
            controlla(self.dove, campo, sorted(os.listdir(self.nel_lavoro())), resto.split(" "))
            return valore
        if campo == "disegno":
            disegni = [self.nel_lavoro(n) for n in os.listdir(self.nel_lavoro()) if n.endswith(".dis")]
            ultimo = max(disegni, key=lambda d: os.stat(d).st_mtime_ns)
            return valore if f"\n{valore}\n" in leggi(ultimo, "cp1252") else "manca in " + ultimo
        if campo == "nomi":
            quale, *nomi = resto.split(" ")
            posto = os.path.join(self.radice, "custom", "sezio_ut") if quale == "generale" else self.nel_lavoro("sezio_ut")
            controlla(self.dove, resto, list(sezioni(posto)), nomi)
            return valore
        file = self.nel_lavoro("sezio_ut")
        if campo == "riga":
            return valore if valore in leggi(file, "cp1252").splitlines() else "manca"
        if campo == "lotto":
            detto = subprocess.run([LOTTO, "--punti", "--da", file], capture_output=True, text=True).stdout
            testa, riga = detto.splitlines()[:2]
            intero = dict(zip(testa.split(";"), riga.split(";")))[resto.split(" ")[0].replace(".", " ")]
            cifre, _, potenza = intero.partition("E")
            attese, _, sua = valore.partition("E")
            return cifre[:len(attese)] + ("E" + potenza if sua else "")
        lette = sezioni(file)
        if campo == "calcolo":
            voci, = lette.values()
            espressione = re.sub(r"P\d+\.\w+|[A-Z]\w+", lambda m: voci[m[0]], resto.split(" ")[0])
            return f"{eval(espressione):.{len(valore.partition('.')[2])}f}"
        return lette[campo][resto.split(" ")[0]]


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
                # What a step comes to is told in the steps after it too.
                Prova(f"{nome}, {parte.splitlines()[0]}", blocco.splitlines(),
                      testo_visibile(pagina if "tabella" in blocco else parte), pagina)
                quante += 1
    controlla("pagine", "sessioni", quante > 15, True)


def schizzi():
    # What a dimension line measures is the dimension whose number follows it.
    misure = {}
    quota, numero = Foglio.quota, Foglio.numero

    def quotata(foglio, a, b, colore):
        misure["ultima"] = abs(a[0] - b[0]) + abs(a[1] - b[1]), foglio.scala
        quota(foglio, a, b, colore)

    def numerata(foglio, p, n, colore):
        if isinstance(n, int) and n < 16 and "ultima" in misure:
            lunga, scala = misure.pop("ultima")
            misure[n] = round(lunga / scala)
        numero(foglio, p, n, colore)

    Foglio.quota, Foglio.numero = quotata, numerata
    SCHIZZI["dimensioni.svg"](HEADLESS)
    Foglio.quota, Foglio.numero = quota, numero
    controlla("dimensioni.svg", "quote", [misure.get(n) for n in range(16)], [int(v) for v in TOZZA[:16]])
    for nome, disegna in SCHIZZI.items():
        fatto = leggi(os.path.join(DOCS, "immagini", nome))
        controlla(nome, "schizzo", "da rifare con docs/immagini/fai" if disegna(HEADLESS) != fatto else "", "")


def rettangoli(disegno):
    """Of a drawing's texts, along the axes: left, bottom, right, top."""
    righe = iter(leggi(disegno, "cp1252").splitlines()[4:])
    punti = [tuple(map(float, next(righe).split()[:2])) for _ in range(int(next(righe)))]
    for _ in range(int(next(righe))):
        next(righe)
    for _ in range(int(next(righe))):
        next(righe)
    for _ in range(int(next(righe))):
        posto, _, angolo = map(int, next(righe).split())
        base, alta = map(float, next(righe).split()[:2])
        testo = next(righe)
        x, y = punti[posto]
        larga = base * len(testo)
        yield testo, (x, y, x + larga, y + alta) if angolo == 0 else (x - alta, y, x, y + larga)


def opzioni():
    """The columns of the table of options, as typed into the form: texts that do not lie one over another."""
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
            subprocess.run([HEADLESS, f"|diroot={radice}|"], input=copione, text=True, check=True,
                           stdout=subprocess.DEVNULL, timeout=60)
            testi = list(rettangoli(os.path.join(lavoro, "S.dis")))
        coppie = [(a, b) for n, (a, r) in enumerate(testi) for b, s in testi[:n]
                  if r[0] < s[2] and s[0] < r[2] and r[1] < s[3] and s[1] < r[3]]
        controlla("opzioni", f"colonna {colonna}: sovrapposti {coppie}", bool(coppie), sovrapposti)
        quote = sorted(int(t) for t, _ in testi if t.isdigit())
        controlla("opzioni", f"colonna {colonna}: quota maggiore", quote[-1], 12000 if colonna == 3 else 1200)


def comandi():
    """The viewer's command lines, as they stand there: each writes what it names, the drawing at 1:50 fits."""
    righe = leggi(os.path.join(DOCS, "guida-disegno.md")).split("<!-- comandi -->")[1].split("\n\n")[1].splitlines()
    controlla("comandi", "righe", len(righe) > 3, True)
    with tempfile.TemporaryDirectory(prefix="Guida_") as cartella:
        lavoro = installa(os.path.join(cartella, "inst"))
        copione = "".join(f"type Text1({i}) {v}\n" for i, v in enumerate(ESEMPIO.split()))
        copione += "".join(f"type nome {nome}\nclick Calcolo\nclick Command2\n" for nome in ("PONTE", "ALTRA"))
        subprocess.run([HEADLESS, f"|diroot={cartella}/inst|"], input=copione, text=True, check=True,
                       stdout=subprocess.DEVNULL, timeout=60)
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
    pagine = [n for n in os.listdir(DOCS) if n.endswith(".md")]
    ancore = {n: {re.sub(r"[^\w\- ]", "", t.lower()).replace(" ", "-")
                  for t in re.findall(r"^#+ (.*)$", leggi(os.path.join(DOCS, n)), re.M)} for n in pagine}
    for nome in pagine:
        for meta in re.findall(r"\]\(([^)]+)\)", leggi(os.path.join(DOCS, nome))):
            file, _, ancora = meta.partition("#")
            mostrate.add(os.path.basename(file))
            controlla(nome, meta, (os.path.exists(os.path.join(DOCS, file)), not ancora or ancora in ancore.get(file or nome, ())),
                      (True, True))
    immagini = {n for n in os.listdir(os.path.join(DOCS, "immagini")) if n.endswith((".png", ".svg"))}
    controlla("immagini", "mostrate", sorted(immagini - mostrate), [])
    peso = sum(os.path.getsize(os.path.join(DOCS, "immagini", n)) for n in immagini)
    controlla("immagini", "byte", peso < 1000000, True)


def lettere():
    """The letters stand at the commands that the table gives them."""
    tabella = dict(re.findall(r"\*\*([A-L])\*\* \| ([^|]+?) (?=\|)", leggi(os.path.join(DOCS, "guida.md"))))
    with tempfile.TemporaryDirectory(prefix="Guida_") as radice:
        installa(radice)
        detto = subprocess.run([HEADLESS, f"|diroot={radice}|"], text=True, stdout=subprocess.PIPE, timeout=60, check=True,
                               input="".join(f"print {nome}\n" for nome in LETTERE.values()) + "close\n").stdout
    scritte = dict(re.findall(r'^text (\w+) "(.*)"$', detto, re.M))
    for lettera, nome in LETTERE.items():
        if nome not in ("nome", "nomute"):
            controlla("guida.md", lettera, scritte[nome], tabella[lettera])
    controlla("guida.md", "lettere", sorted(tabella), sorted(LETTERE))


def messaggi():
    """The messages of the table are said by a source; the keys of the viewer's table are those of its menus."""
    sorgenti = "".join(leggi(os.path.join(radice, n)) for cartella in ("app", "base", "model", "options", "lavoro", "preview",
                                                                       "drawing", "platform", "viewer")
                       for radice, _, nomi in os.walk(os.path.join(QUI, "..", "..", cartella)) for n in nomi
                       if n.endswith((".cpp", ".h")))
    sorgenti = re.sub(r'"_t\b', '"', sorgenti)
    sorgenti = re.sub(r'"\s*\n\s*"', "", sorgenti)
    menu = leggi(os.path.join(QUI, "..", "..", "viewer", "menu.cpp"))
    tasti = re.findall(r"`(.)`", leggi(os.path.join(DOCS, "guida-disegno.md")).split("| per | si fa |")[1].split("\n\n")[0])
    controlla("tasti", "del visualizzatore", [t for t in tasti if f'"{t}"' not in menu] or len(tasti) > 8, True)
    livelli = re.search(r"`1`.*", leggi(os.path.join(DOCS, "guida-disegno.md")))[0]
    for tasto, voce in re.findall(r"`(\d)` (?:\w+ )*(\w+)", livelli):
        controlla("tasti", voce, re.search(r'"&?Mostra [^"]*?(\w+)", \{?(?:QKeySequence\()?"%s"' % tasto, menu.replace("&", ""))[1], voce)
    righe = re.findall(r"^\| ([^|]+?) \| .* \|$", leggi(os.path.join(DOCS, "guida-messaggi.md")).split("|---|---|")[1], re.M)
    controlla("messaggi", "righe", len(righe) > 10, True)
    for messaggio in righe:
        for parte in filter(None, (p.strip() for p in messaggio.split("…"))):
            controlla("messaggi", messaggio, parte if parte in sorgenti else "in nessun sorgente", parte)


for passo in (prove, schizzi, opzioni, *([comandi] if OSTREL else []), rimandi, lettere, messaggi):
    passo()
print(f"{errori} errori")
sys.exit(errori > 0)
