#!/usr/bin/env python3
"""Every file call of a session fails in turn: start, calculate, save, preview, calculate, close.

    guasti.py PROGRAM          linked with ospite_guasto.cpp

Each call fails once alone, then together with all that follow. Whatever happens, the answer is one of
those that are foreseen, no section is lost without a whole copy, and no file is emptied or takes another's
name before the one that stands for it is whole and on the disk.
"""
import os
import re
import shutil
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "app"))
from formati import nomi  # noqa: E402
from installazione import ESEMPIO, installa, recita  # noqa: E402

PROGRAMMA = sys.argv[1]
PRIME = "type nome A\nclick Calcolo\nclick Command2\ntype nome B\nclick Calcolo\nclick Command2\n" \
        "click Command6\nclick Salva\nclick Chiudi\nclick Command5\n"
SCENA = "type nome C\nclick Calcolo\nclick Command2\nclick Command4\n" \
        "type nome D\nclick Calcolo\nclick Command5\nanswer yes\ntick 10\n"
PREVISTI = re.compile("|".join((
    "Calcolo eseguito", "File salvato", r"Sezione non salvata\. Salvare\?",
    r"Errore: file \S+impostazioni\\(dirlav|lavoro) errato o mancante",
    r"Problemi nella scrittura del file \S+\\sezio_ut(\\nNon si può fare né .*: guasto del disco\.)?(\\nLe sezioni non ancora salvate .*)?",
    r"Lettura del file \S+CapOpSez\.txt non riuscita: guasto del disco", r"Problemi con la scrittura del file \S+ostrel\.inp",
    r"Problemi con l'apertura dell'applicazione \S+ostrel\.exe", r"File \S+CapOpSez\.txt non valido.*",
    "Errore irreversibile: (calcolo della sezione .*|.*: guasto del disco .*)")))
guasti = 0


def in_ordine(diario):
    """What a program did to its files: of each, what stands wrong."""
    stati, intere, in_posto = {}, set(), set()
    for chiamata, riuscita, nome in diario:
        file = nome.split(".tmp")[0].rsplit(".", 1)[0] if nome.endswith(".tmp") else nome
        if chiamata in "nrD" and not riuscita:
            in_posto.add(file)
        if chiamata == "n":
            stati[nome] = "n" if riuscita else "?"
        elif nome.endswith(".tmp") and chiamata in ">dc":
            stati[nome] = stati[nome] + chiamata if riuscita else "?"
        elif chiamata in "rR":
            su_disco = not file.lower().endswith((".dis", ".inp"))
            if stati[nome] != ("n>dc" if su_disco else "n>c"):
                yield f"{nome} prende il posto di {file} dopo {stati[nome]}"
        elif chiamata == "D" and riuscita:
            intere.add(nome.lower())
        elif chiamata == "v" and nome.lower() == "sezio_ut":
            if "sezio_ut.bak" not in intere:
                yield "sezio_ut vuotato senza una copia"
            intere.discard("sezio_ut.bak")
        elif chiamata == "v" and nome not in in_posto:
            yield f"{nome} vuotato, e accanto c'era posto per un altro file"


def cartella():
    """In memory, where the host has such a folder: the calls show what the program asks of the disk."""
    return tempfile.TemporaryDirectory(prefix="Guasti_", dir="/dev/shm" if os.access("/dev/shm", os.W_OK) else None)


def gioca(radice, copione, guasto):
    return recita([PROGRAMMA], radice, copione, env={**os.environ, "TARVEL_GUASTO": guasto})


def diario_di(esito):
    return [(c, r == "si", n) for c, r, n in re.findall(r"^(\S) (si|no) (.*)$", esito.stderr, re.M)]


def iniziali(guasto):
    """Whether the defaults were not read, and what the file holds once the program is closed."""
    with cartella() as radice:
        installa(radice, ESEMPIO)
        file = os.path.join(radice, "custom", "CapSezDe.txt")
        diario = diario_di(gioca(radice, "type Text1(0) 7\nclick Command5\ntick 10\n", guasto))
        with open(file, newline="") as valori:
            return any(c in "l<" and not r and n == "CapSezDe.txt" for c, r, n in diario), valori.read()


def esamina(guasto, solo):
    """Plays the scene with these calls failing; says what is wrong and returns the number of calls."""
    with cartella() as radice:
        lavoro = installa(radice, ESEMPIO)
        for parte in ("custom", "Lavori"):
            shutil.copytree(os.path.join(PARTENZA, parte), os.path.join(radice, parte), dirs_exist_ok=True)
        esito = gioca(radice, SCENA, guasto)
        messaggi = re.findall(r'^message \S+ ".*?" "(.*)" -> ', esito.stdout, re.M)
        file = {"": "SEZIO_UT", ".bak": "sezio_ut.bak", ".salvataggio": "sezio_ut.salvataggio"}
        stato = {nome: nomi(os.path.join(lavoro, f)) for nome, f in file.items()}
        intere = [set(n) for n in stato.values() if n is not None]
        fatale = next((m for m in messaggi if m.startswith("Errore irreversibile")), "")

        def esige(vero, cosa):
            global guasti
            if not vero:
                guasti += 1
                print(f"guasto {guasto}: {cosa}\n  {stato}\n{esito.stdout[-1500:]}{esito.stderr}")

        esige(esito.returncode in (0, 1), f"stato {esito.returncode}")
        esige(all(PREVISTI.fullmatch(m) for m in messaggi), "un messaggio imprevisto")
        esige(any({"A", "B"} <= n for n in intere), "sezioni perdute")
        esige("sezio_ut" not in os.listdir(lavoro), "un secondo file delle sezioni")
        for nome in (".bak", ".salvataggio"):
            esige(stato[nome] is not None or file[nome] not in os.listdir(lavoro), nome + " non intero")
        esige(stato[""] is not None or "sezio_ut.bak" in fatale, "un file rovinato senza dire della copia")
        # The program says "File salvato" also after the message of a file that it could not write.
        salvato = ["File salvato" == m and not messaggi[i - 1].startswith("Problemi nella")
                   for i, m in enumerate(messaggi)]
        esige(salvato.count(True) < 1 or any({"A", "B", "C"} <= n for n in intere), "salvato, e non lo era")
        esige(salvato.count(True) < 2 or any("D" in n for n in intere), "salvato alla chiusura, e non lo era")
        # Calculated and not saved: the first unsaved section is C, the second D.
        calcolate = messaggi.count("Calcolo eseguito")
        if fatale and solo and calcolate > len([m for m in messaggi if m == "File salvato"]):
            nominato = re.search(r"nel file \S+\\(sezio_ut\.salvataggio\d*)", fatale)
            esige(nominato and "CD"[calcolate - 1] in (nomi(os.path.join(lavoro, nominato[1])) or []),
                  "sezioni non salvate che l'errore ha perduto")
        avanzi = [f for c in ("Lavori/PR0001", "custom", "progra") for f in os.listdir(os.path.join(radice, c))
                  if f.endswith(".tmp")]
        esige(not solo or not avanzi, "un avanzo")
        diario = diario_di(esito)
        if ("<", False, "CapOpSez.txt") in diario:
            esige(any(m.startswith("Lettura del file") for m in messaggi), "opzioni lette male in silenzio")
        storti = list(in_ordine(diario))
        esige(not storti, f"{storti}")
        return int(re.search(r"chiamate (\d+)", esito.stderr).group(1)), diario


partenza = cartella()
PARTENZA = partenza.name
lavoro = installa(PARTENZA, ESEMPIO)
assert gioca(PARTENZA, PRIME, "").returncode == 0
# Found by a listing of its folder, which may fail too.
os.rename(os.path.join(lavoro, "sezio_ut"), os.path.join(lavoro, "SEZIO_UT"))
# Defaults that the host did not let read stay as they are.
non_letti = [testo for male, testo in (iniziali(str(n)) for n in range(1, 60)) if male]
assert non_letti and set(non_letti) == {ESEMPIO}, non_letti
chiamate, diario = esamina("", True)
assert chiamate > 100
# What the disk sees of the section file: the start opens it and waits for another program that is writing. Salva holds
# the file, reads it, writes its copy to the disk, and only then empties it.
sezioni = [c for c, _, n in diario if n.lower().startswith("sezio_ut")]
assert "".join(sezioni).startswith("al<<cca<<n>dcrDv>dc"), "".join(sezioni)
with ThreadPoolExecutor(os.cpu_count()) as mani:
    list(mani.map(lambda n: (esamina(str(n), True), esamina(f"{n}-999999", False)), range(1, chiamate + 1)))
print(f"{2 * chiamate - guasti} passed, {guasti} failed")
sys.exit(guasti > 0)
