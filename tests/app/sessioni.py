#!/usr/bin/env python3
"""Plays the sessions of sessioni/ and compares their transcripts, line by line, with the expected ones.

    sessioni.py PROGRAM [NAME...]       PROGRAM: tarvel1-headless

Each session has a fresh installation. Comment lines of a script that begin with "#:" prepare it:
    #: scrivi PATH TEXT     a file (\\n: CR LF, \\t)    #: togli PATH        removes a file or folder
    #: cartella PATH        a folder                  #: pieno PATH        a file on a disk that is full
    #: esempio [N=VALUE]... the worked example, with other values for some boxes, as the defaults file
    #: argomento TEXT       in place of |diroot={radice}|; the program is started in driver/
    #: opzioni ARGS         of the program          #: senza_argomento      nothing follows them
    #: solo_posix           not played for another system: it has names that differ by case alone
or add to the end of the transcript:
    #: mostra PATH          a file, or the names of a folder
    #: righe PATH TEXT      the lines of a file with this text, or of these numbers ("2-5")
    #: come PATH FILE       how a file compares, byte for byte, with one below tests/
A line "#=== NAME" begins another session of the same file. {radice} stands for the installation's folder,
also in the transcripts. There an opening of the main form or of the options is one line, with what differs
from the one of principale.atteso (the worked example in the boxes) or from the same with zeros, or from the
one of opzioni.atteso; so is a characteristic point of a section file, and so are equal lines; the status of
the process stands only where it is not the one the desktop has told.

With TARVEL_ACCETTA=1 in the environment what was played becomes what is expected.
"""
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

from installazione import ESEMPIO, installa

QUI = os.path.dirname(os.path.realpath(__file__))
# The command that runs a program for another system.
EMULATORE = shlex.split(os.environ.get("TARVEL_EMULATORE", ""))
CODICE = {"encoding": "utf-8", "errors": "surrogateescape", "newline": ""}


def leggi(percorso):
    with open(percorso, **CODICE) as file:
        return file.read()


def scrivi(percorso, testo):
    os.makedirs(os.path.dirname(percorso), exist_ok=True)
    with open(percorso, "w", **CODICE) as file:
        file.write(testo)


# Most transcripts open with one of these; the sessions named here keep it whole.
APERTURE = {"main form": ("principale", r"show tarvel1\n(?:text Text1.*\n){21}text nome .*\ntext nomute .*\n"),
            "options form": ("opzioni", r"show FormOpt\n(?:text TextOpt.*\n){15}")}


def in_breve(testo, nome):
    """The transcript with each opening in one line, which says what differs from the whole one, and the status once."""
    for titolo, (intera, forma) in APERTURE.items():
        if nome == intera:
            continue
        esempio = re.search(forma, leggi(os.path.join(QUI, "sessioni", intera + ".atteso")))[0].splitlines()
        zeri = [re.sub(r'^(text Text1\(\d+\)) ".*"$', r'\1 "0"', riga) for riga in esempio]

        def breve(trovata):
            righe = trovata[0].splitlines()
            modello = esempio if sum(map(str.__ne__, righe, esempio)) <= sum(map(str.__ne__, righe, zeri)) else zeri
            altre = [riga.replace("text ", "") for riga, sua in zip(righe, modello) if riga != sua]
            return f"({titolo}{', zeros' if modello != esempio else ''}{': ' if altre else ''}{', '.join(altre)})\n"

        testo = re.sub(forma, breve, testo)
    for lungo, corto in ((r"^end (\d+)\nstato \1\n", r"end \1\n"),
                         (r"( NODO .*)\n(.*)\n(.*)\n(.*)\n", r"\1 | \2 | \3 | \4\n"),
                         (r"^(.*\n)\1{2,}", lambda t: f"{t[1]}({len(t[0]) // len(t[1])} times)\n")):
        testo = re.sub(lungo, corto, testo, flags=re.M)
    return testo


class Sessione:
    def __init__(self, testo, radice):
        self.radice = radice
        self.argomento = "|diroot={radice}|"
        self.opzioni = ""
        self.in_coda = []
        installa(radice)
        self.copione = os.path.join(radice, "copione")
        scrivi(self.copione, testo)
        for riga in re.findall(r"^#: (.*)$", testo, re.M):
            verbo, _, resto = riga.partition(" ")
            getattr(self, "fa_" + verbo)(*([resto] if verbo in ("argomento", "opzioni", "esempio") else resto.split(" ", 1)))

    def posto(self, percorso):
        return os.path.join(self.radice, percorso)

    def fa_scrivi(self, percorso, testo=""):
        self.fa_togli(percorso, True)
        for segno, valore in (("{radice}", self.radice), ("\\n", "\r\n"), ("\\t", "\t")):
            testo = testo.replace(segno, valore)
        scrivi(self.posto(percorso), testo)

    def fa_togli(self, percorso, anche_assente=False):
        posto = self.posto(percorso)
        if os.path.isdir(posto):
            shutil.rmtree(posto)
        elif os.path.exists(posto) or not anche_assente:
            os.remove(posto)

    def fa_cartella(self, percorso):
        os.makedirs(self.posto(percorso))

    def fa_pieno(self, percorso):
        os.symlink("/dev/full", self.posto(percorso))

    def fa_esempio(self, cambi):
        valori = ESEMPIO.split("\r\n")
        for cambio in cambi.split():
            casella, _, valore = cambio.partition("=")
            valori[int(casella)] = valore
        scrivi(self.posto("custom/CapSezDe.txt"), "\r\n".join(valori))

    def fa_argomento(self, testo):
        self.argomento = testo

    def fa_senza_argomento(self, _=""):
        self.argomento = None

    def fa_opzioni(self, testo):
        self.opzioni = testo

    def fa_solo_posix(self, _=""):
        pass

    def fa_mostra(self, percorso):
        self.in_coda.append((percorso, percorso, self.contenuto))

    def fa_righe(self, percorso, cercato):
        numeri = re.fullmatch(r"(\d+)-(\d+)", cercato)
        scelte = range(int(numeri[1]), int(numeri[2]) + 1) if numeri else ()
        self.in_coda.append((percorso + ": " + cercato, percorso, lambda posto: "".join(
            riga + "\n" for n, riga in enumerate(leggi(posto).split("\r\n"), 1)
            if (n in scelte if numeri else cercato in riga))))

    def fa_come(self, percorso, altro):
        self.in_coda.append((percorso, percorso, lambda posto: self.confronto(posto, altro)))

    @staticmethod
    def contenuto(posto):
        if os.path.isdir(posto):
            return "".join(nome + "\n" for nome in sorted(os.listdir(posto)))
        testo = leggi(posto)
        sole = len(re.findall(r"(?<!\r)\n", testo))
        return testo.replace("\r\n", "\n") + (f"({sole} lines end with LF alone)\n" if sole else "")

    @staticmethod
    def confronto(posto, altro):
        avuto, atteso = leggi(posto), leggi(os.path.join(QUI, "..", altro))
        if avuto == atteso:
            return f"(like {altro})\n"
        coppie = enumerate(zip(avuto.split("\n") + ["(end)"], atteso.split("\n") + ["(end)"]), 1)
        n, (x, y) = next(c for c in coppie if c[1][0] != c[1][1])
        return f"(line {n}: {x!r}, in {altro} {y!r})\n"

    def recita(self, programma):
        comando = [*EMULATORE, os.path.abspath(programma), "--script", self.copione, *shlex.split(self.opzioni)]
        if self.argomento is not None:
            comando += ["--", self.argomento.replace("{radice}", self.radice)]
        esito = subprocess.run(comando, cwd=self.posto("driver"), stdin=subprocess.DEVNULL, timeout=120,
                               capture_output=True)
        testo = (esito.stdout + esito.stderr).decode("utf-8", "surrogateescape") + f"stato {esito.returncode}\n"
        for nome, percorso, mostra in self.in_coda:
            posto = self.posto(percorso)
            testo += f"--- {nome}\n" + mostra(posto) if os.path.exists(posto) else f"--- {nome} manca\n"
        return testo.replace(self.radice, "{radice}").replace(self.radice.lower(), "{radice}")


def blocco(testo, titolo):
    """What a transcript says of one of its sessions."""
    return testo[testo.index(titolo):].split("\n#===")[0].rstrip("\n") + "\n"


def recitata(programma, nome, previsto):
    """The transcript of all sessions of a file."""
    parti = re.split(r"^(?==== )", leggi(os.path.join(QUI, "sessioni", nome + ".copione")).replace("\n#===", "\n==="),
                     flags=re.M)
    testo = ""
    for parte in parti[1:] or parti:
        # The emulated host has no full device.
        if EMULATORE and re.search(r"\n#: (pieno |solo_posix)", parte):
            testo += blocco(previsto, "#" + parte.split("\n")[0])
            continue
        with tempfile.TemporaryDirectory(prefix="TarvelProva_") as radice:
            if parte.startswith("==="):
                testo += "#" + parte.split("\n")[0] + "\n"
                parte = "#" + parte
            testo += Sessione(parte, radice).recita(programma)
    return in_breve(testo, nome)


def main():
    cartella = os.path.join(QUI, "sessioni")
    nomi = sys.argv[2:] or sorted(n[:-8] for n in os.listdir(cartella) if n.endswith(".copione"))
    fallite = 0
    for nome in nomi:
        atteso = os.path.join(cartella, nome + ".atteso")
        previsto = leggi(atteso) if os.path.exists(atteso) else ""
        avuto = recitata(sys.argv[1], nome, previsto)
        if os.environ.get("TARVEL_ACCETTA"):
            scrivi(atteso, previsto := avuto)
        if avuto != previsto:
            fallite += 1
            scrivi(os.path.join(cartella, nome + ".nuovo"), avuto)
            righe = enumerate(zip(previsto.split("\n") + ["(end)"] * 9999, avuto.split("\n") + ["(end)"]), 1)
            n, (x, y) = next(r for r in righe if r[1][0] != r[1][1])
            print(f"{nome}.atteso:{n}\n  atteso: {x}\n  avuto:  {y}\n(intero in {nome}.nuovo)".encode(
                "utf-8", "surrogateescape").decode("utf-8", "replace"))
    print(f"{len(nomi) - fallite} passed, {fallite} failed")
    sys.exit(fallite > 0)


main()
