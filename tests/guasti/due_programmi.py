#!/usr/bin/env python3
"""Two programs on one job: nobody's sections are dropped without a word, and one waits while another saves.

    due_programmi.py PROGRAM       PROGRAM: tarvel1-headless
"""
import fcntl
import os
import re
import subprocess
import sys
import tempfile
import threading
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "app"))
from formati import nomi  # noqa: E402
from installazione import ESEMPIO, installa  # noqa: E402

ALTRO = r"^message exclamation \"ATTENZIONE\" \"Un altro programma ha cambiato il file \S+ dopo che era stato letto o " \
        r"salvato qui\.\\nCom'era è conservato in \S+\\(sezio_ut\.altro\d*)\.\\n(.*)\" -> ok$"
SEZIONI = "Sue sezioni che qui non ci sono: {}; con lo stesso nome, ma diverse: {}."


class Programma:
    def __init__(self, radice):
        self.gioco = subprocess.Popen([sys.argv[1], "--", f"|diroot={radice}|"], stdin=subprocess.PIPE,
                                      stdout=subprocess.PIPE, encoding="utf-8")
        self.fino("text nomute")

    def fino(self, segno):
        """What it says, up to a line with this text."""
        detto = ""
        while segno not in detto:
            riga = self.gioco.stdout.readline()
            assert riga, f"{segno}: non detto\n{detto}"
            detto += riga
        return detto

    def fai(self, comandi, segno="File salvato"):
        self.gioco.stdin.write(comandi)
        self.gioco.stdin.flush()
        return self.fino(segno)

    def salva(self, nome):
        return self.fai(f"type nome {nome}\nclick Calcolo\nclick Command2\n")

    def ancora(self):
        return self.fai("click Command2\n")

    def fine(self):
        self.gioco.stdin.close()
        self.gioco.wait(60)


def altro(detto):
    """Which file a message has named for the other's sections, and what it says of them."""
    trovato = re.search(ALTRO, detto, re.M)
    return trovato and (trovato[1], trovato[2])


with tempfile.TemporaryDirectory(prefix="Due_") as radice:
    lavoro = installa(radice, ESEMPIO)
    file = os.path.join(lavoro, "sezio_ut")
    uno, due = Programma(radice), Programma(radice)
    assert altro(uno.salva("A")) is None and altro(uno.ancora()) is None
    assert altro(due.salva("B")) == ("sezio_ut.altro", SEZIONI.format(1, 0)), "B"
    assert altro(due.ancora()) is None, "il file è quello che il programma stesso ha scritto"
    # A section of both, in which a dimension differs, and one of the other alone.
    due.fai("type Text1(0) 210\ntype nome A\nclick Calcolo\nclick Command2\n")
    assert altro(uno.salva("C")) == ("sezio_ut.altro2", SEZIONI.format(1, 1)), "C"
    assert [nomi(file + coda) for coda in (".altro", ".altro2", "")] == [["A"], ["B", "A"], ["A", "C"]]
    # What was kept once is not kept again; a file that is no section file is kept as it is.
    os.replace(file + ".altro2", file)
    with open(file, "rb") as f:
        prima = f.read()
    with open(file + ".altro2", "wb") as f:
        f.write(prima)
    assert altro(uno.ancora())[0] == "sezio_ut.altro2"
    os.symlink("assente", file + ".altro3")
    with open(file, "w") as f:
        f.write("altra cosa\n")
    trovato = altro(uno.ancora())
    assert trovato[0] == "sezio_ut.altro4" and re.fullmatch(
        r"Non si legge come file di sezioni\.\\nLa copia che ne restava è conservata in \S+\\sezio_ut\.altro5\.", trovato[1])
    with open(file + ".altro4") as f:
        assert f.read() == "altra cosa\n"
    assert nomi(file + ".bak") == ["B"], "una copia che non era più un file di sezioni"
    assert altro(uno.ancora()) is None
    assert nomi(file + ".altro5") == ["B"], "ciò che l'altro aveva salvato per ultimo"

    # Another one saves for a while, then for ever.
    with open(file, "r+") as mano:
        fcntl.flock(mano, fcntl.LOCK_EX)
        prima = os.stat(file + ".bak").st_mtime_ns
        uno.gioco.stdin.write("click Command2\n")
        uno.gioco.stdin.flush()
        time.sleep(.5)
        assert os.stat(file + ".bak").st_mtime_ns == prima, "non ha aspettato"
        fcntl.flock(mano, fcntl.LOCK_UN)
        assert "Problemi" not in uno.fino("File salvato") and os.stat(file + ".bak").st_mtime_ns != prima
        fcntl.flock(mano, fcntl.LOCK_EX)
        inizio = time.monotonic()
        detto = uno.salva("D")
        assert re.search(r'"Problemi nella scrittura del file \S+\\sezio_ut\\nLe sezioni .* nel file \S+\\'
                         r'sezio_ut\.salvataggio"', detto), detto
        assert 3 < time.monotonic() - inizio < 10
    assert nomi(file) == ["A", "C"] and nomi(file + ".salvataggio") == ["A", "C", "D"]
    # A start while another one has written half the file.
    with open(file, "r+b") as mano:
        fcntl.flock(mano, fcntl.LOCK_EX)
        intero = mano.read()
        mano.truncate(len(intero) // 2)

        def finisci():
            mano.seek(0)
            mano.write(intero)
            mano.flush()
            fcntl.flock(mano, fcntl.LOCK_UN)

        threading.Timer(.5, finisci).start()
        tre = Programma(radice)
    assert altro(tre.salva("E")) is None and nomi(file) == ["A", "C", "E"]
    uno.fine(), due.fine(), tre.fine()
    assert not [f for f in os.listdir(lavoro) if f.endswith(".tmp")]
print("1 passed, 0 failed")
