"""Plays the sessions in the guide's pages.

A page's comment "<!-- prova" holds a session of the scripted desktop and what comes of it. It is played on a fresh
installation with the worked example in the boxes. Beside the desktop's lines a session has:
    riavvia              starts the program again on the same installation
    ripeti N LINE / LINE writes the lines N times; %d in a line is the number of the time
    zeri                 empties the boxes
    tabella              types the page's table of values
    ordine N             presses the buttons of the Nth column of the page's table of orders
    $ COMMAND            ends the program and runs a command in the job's folder; the command has to stand in the text
    guasta COMMAND       the same with a command that the text does not give
    = ...                compares the program with the last word of the line, or with all that follows one of CAMPI_INTERI;
                         this has to stand in the text under the same heading too
    ~ ...                compares the program alone
What is compared:
    = NAME FIELD VALUE           a section of the file: larghezza, ZG, An, O10y, P14.tauVy, punti, ...
    = calcolo EXPRESSION VALUE   of such values of the only section
    = casella N TEXT             what a box shows     = messaggio TEXT    a message box has said
    = riga TEXT                  a line of the file   = disegno TEXT      a text of a drawing
    = nomi generale|lavoro A B   a file's sections    = file A B          the drawings of the job
    = elenco TEXT                a list's entries     = lotto FIELD VALUE the beginning of the filter's figure
    = uscita TEXT                the last command has said
"""
import os
import re
import subprocess
import sys
import tempfile

QUI = os.path.dirname(os.path.realpath(__file__))
sys.path.insert(0, os.path.join(QUI, "..", "app"))
from formati import sezioni  # noqa: E402
from installazione import ESEMPIO, installa, recita  # noqa: E402

HEADLESS, LOTTO, OSTREL, *_ = [*(os.path.abspath(p) for p in sys.argv[1:]), None]
DOMANDA_FINALE = 'a question without an answer: "INFORMAZIONE" "Sezione non salvata. Salvare?"'
CAMPI_INTERI = ("riga", "messaggio", "disegno", "elenco", "uscita")
BOTTONI = {"Anteprima": "Command4", "Calcola": "Calcolo", "Salva": "Command2"}
errori = []


def controlla(dove, cosa, avuto, atteso):
    if avuto != atteso:
        errori.append(cosa)
        print(f"{dove}: {cosa}\n  guida:     {atteso}\n  programma: {avuto}")


def leggi(percorso, codice="utf-8"):
    with open(percorso, encoding=codice) as file:
        return file.read()


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
                    self.fine()
                elif verbo in ("$", "guasta"):
                    self.comanda(resto, verbo == "$")
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
        installa(self.radice, ESEMPIO)

    def fine(self):
        self.gioca()
        self.copione, self.inizio = [], self.radice

    def comanda(self, comando, nel_testo):
        if self.copione:
            self.fine()
        self.radice = self.inizio
        if nel_testo:
            controlla(self.dove, comando, comando if comando in self.visibile else "non è nel testo", comando)
        esito = subprocess.run(comando, shell=True, cwd=self.nel_lavoro(), capture_output=True, text=True, timeout=60,
                               env=os.environ | {"PATH": os.path.dirname(LOTTO) + os.pathsep + os.environ["PATH"]})
        self.uscita = esito.stdout + esito.stderr
        controlla(self.dove, comando, esito.returncode in (0, 3) or self.uscita, True)

    def gioca(self, *altre):
        """The lines so far, on a copy of what was there when they began."""
        self.passo += 1
        originale, self.radice = self.inizio, os.path.join(self.base, "copia%d" % self.passo)
        subprocess.run(["cp", "-a", originale, self.radice], check=True)
        with open(os.path.join(self.radice, "impostazioni", "dirlav"), "w", newline="") as file:
            file.write(os.path.join(self.radice, "Lavori") + "\r\n")
        for fine in ([], ["answer no", "close"]):
            testo = "\n".join([*self.copione, *altre, *fine]) + "\n"
            esito = recita([HEADLESS], self.radice, testo)
            if DOMANDA_FINALE not in esito.stdout + esito.stderr:
                break
        self.detto = esito.stdout
        # The guide tells of fatal errors, so a session may end with one.
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
        if campo == "uscita":
            return valore if valore in self.uscita else self.uscita[-300:]
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
            controlla(self.dove, resto, [nome for nome, _ in sezioni(posto)], nomi)
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
        lette = dict(sezioni(file))
        if campo == "calcolo":
            voci, = lette.values()
            espressione = re.sub(r"P\d+\.\w+|[A-Z]\w+", lambda m: voci[m[0]], resto.split(" ")[0])
            return f"{eval(espressione):.{len(valore.partition('.')[2])}f}"
        return lette[campo][resto.split(" ")[0]]
