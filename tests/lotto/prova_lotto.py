#!/usr/bin/env python3
"""The filter against the scripted desktop, what it makes of bad rows, and how it stops.

    prova_lotto.py LOTTO HEADLESS
"""
import os
import random
import re
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
import copia  # noqa: E402
import fine  # noqa: E402
from banco import (EMULATORE, INTESTAZIONE, LOTTO, QUI, RIGA, VALORI, byte, cambiata, controlla, desktop,  # noqa: E402
                   errori, lotto, scrivi, tabella)
import formati  # noqa: E402
from installazione import dimensioni, installa  # noqa: E402


def come_il_desktop():
    """20 sections: the section file and every drawing byte for byte; the rows are what the file has cut."""
    caso = random.Random(7)
    # Of the second the axis crosses no web: it has 13 points.
    sezioni = [VALORI, "130 8 60 75 80 85 75 70".split() + VALORI[8:]] + [dimensioni(caso) for _ in range(18)]
    radice = os.path.realpath("inst")
    lavoro = installa(radice)
    for cartella in ("disegni", "disegni,", "disegni rilette"):
        os.mkdir(cartella)
    opzioni = os.path.join(radice, "custom", "CapOpSez.txt")
    salva = "".join("".join(f"type Text1({i}) {v}\n" for i, v in enumerate(s)) +
                    f"type nome U_PO_{n:03}\nclick Calcolo\nclick Command2\n" for n, s in enumerate(sezioni, 1))

    def uguali(cosa, cartella, sezio=None):
        controlla(cosa + ": sezio_ut", sezio is None or byte(sezio) == byte(os.path.join(lavoro, "sezio_ut")), True)
        controlla(cosa + ": disegni", sorted(os.listdir(cartella)), [f"U_PO_{n:03}.dis" for n in range(1, 21)])
        for nome in os.listdir(cartella):
            controlla(f"{cosa}: {nome}", byte(os.path.join(cartella, nome)), byte(os.path.join(lavoro, nome)))

    desktop(radice, salva)
    testo = "\n".join(";".join(s) for s in sezioni)
    esito = lotto(["--punti", "--sezio", "sezio_ut", "--disegni", "disegni"], testo)
    controlla("stato", (esito.returncode, esito.stderr), (0, b""))
    uguali("punto", "disegni", "sezio_ut")

    # Row by row: cut to the file's decimals, the numbers are the file's, which has stresses without their sign.
    testa, *righe = tabella(esito)
    for riga, (nome, voci) in zip(righe, formati.sezioni("sezio_ut")):
        avuti = {colonna.replace(" ", "."): cella for colonna, cella in zip(testa, riga) if cella}
        controlla("nome", avuti.pop("nome"), nome)
        controlla(f"{nome}: colonne", sorted(avuti), sorted(v for v in voci if v[0] not in "OC" and v != "punti"))
        for colonna, cella in avuti.items():
            numero = abs(float(cella)) if "tau" in colonna else float(cella)
            controlla(f"{nome}: {colonna} {cella}", 0 <= numero - float(voci[colonna]) < .01 + abs(numero) * 1e-14, True)
            controlla("cifre", len(re.sub(r"\D", "", cella.split("E")[0]).lstrip("0")) <= 15, True)

    # The desktop of a region with the comma, with options of its own.
    scrivi(opzioni, "".join(f"{v}          \r\n" for v in "4 1 2 100 6 3 2 4 8 12 5 -1 5 15 18".split()))
    os.remove(os.path.join(lavoro, "sezio_ut"))
    desktop(radice, salva, "--decimal", ",")
    esito = lotto(["--virgola", "--opzioni", opzioni, "--sezio", "sezio,", "--disegni", "disegni,"], testo.replace(".", ","))
    controlla("stato", (esito.returncode, esito.stderr), (0, b""))
    uguali("virgola", "disegni,", "sezio,")
    controlla("righe con la virgola", tabella(esito), [[c.replace(".", ",") for c in r[:12]] for r in [testa, *righe]])

    # Each section read back, recalculated and saved.
    desktop(radice, "".join(f"type nome U_PO_{n:03}\nclick Command1\nclick Calcolo\nanswer yes\nclick Command2\n"
                            for n in range(1, 21)))
    esito = lotto(["--da", "sezio,", "--opzioni", opzioni, "--disegni", "disegni rilette"])
    controlla("--da", (esito.returncode, esito.stderr), (0, b""))
    uguali("--da", "disegni rilette")
    guaste = byte("sezio,").split(b"\r\n")
    guaste[4:6] = [b"12"]  # a vertex less in the first outline
    scrivi("guasto", b"\r\n".join(guaste))
    guasta = lotto(["--da", "guasto"])
    controlla("--da: un'altra forma", (guasta.returncode, [bool(r[1]) for r in tabella(guasta)[1:4]], tabella(guasta)[1][-1]),
              (3, [False, True, True], "Sezione non valida"))
    controlla("--da: nomi", [r[0] for r in tabella(esito)[1:]], [f"U_PO_{n:03}" for n in range(1, 21)])


def forme():
    """The same section in whatever way a spreadsheet writes it."""
    atteso = tabella(lotto([], RIGA))[1][1:]
    docs = os.path.join(QUI, "..", "..", "docs")
    nomi = [""] * 21
    for n, nome in re.findall(r"\| (\d+) \| ([^|]+?) (?=\|)", byte(os.path.join(docs, "guida.md")).decode()):
        nomi[int(n)] = {8: "altezza ", 14: "base "}.get(int(n), "") + nome if "raccordo inferiore" == nome else nome
    controlla("nomi della guida", all(nomi), True)
    brevi = dict(re.findall(r"\| (p\d+) \| ([^|]+?) (?=\|)", byte(os.path.join(docs, "lotto.md")).decode()))
    giro = random.Random(3).sample(range(21), 21)
    misto = ";".join(f"P{i}" if i % 2 else nomi[i].upper() for i in giro) + ";Nome;note\n" + ";".join(VALORI[i] for i in giro)
    virgola = RIGA.replace(".", ",")
    percento = cambiata(p16="2.5%", p18="-2.5 %", p20="20%")
    righe = [  # arguments, input, name, separator, encoding of the output, line end
        ([], RIGA + "\r\n", "U_PO_001", ";", "utf-8", "\r\n"),
        ([], "\n# nota\n;;;\n \n" + RIGA.replace(";", "\t"), "U_PO_001", "\t", "utf-8", "\n"),
        ([], ",".join(f'"{n}"' for n in nomi) + "\n" + ",".join(VALORI), "U_PO_001", ",", "utf-8", "\n"),
        ([], "\ufeff" + misto + ';"è ""A"""; a;\n', 'è "A"', ";", "utf-8-sig", "\n"),
        ([], (misto + ";perché;\n").encode("cp1252"), "perché", ";", "cp1252", "\n"),
        ([], misto + ';perché;"due\nrighe"\n', "perché", ";", "utf-8", "\n"),
        ([], ";".join(nomi).translate(str.maketrans("àèéìòù", "aeeiou")) + "\n" + RIGA, "U_PO_001", ";", "utf-8", "\n"),
        ([], ";".join(nomi).replace(" ", "_") + ";;\n" + RIGA + ";;", "U_PO_001", ";", "utf-8", "\n"),
        ([], ";".join(brevi[f"p{i}"] for i in range(21)) + "\n" + RIGA, "U_PO_001", ";", "utf-8", "\n"),
        ([], misto, "U_PO_001", ";", "utf-8", "\n"),
        ([], misto + ';  "a;b"c;', "a;bc", ";", "utf-8", "\n"),
        ([], misto + ";# 1", "# 1", ";", "utf-8", "\n"),
        ([], "sep=;\r\n" + misto.replace("\n", "\r\n"), "U_PO_001", ";", "utf-8", "\r\n"),
        (["--virgola"], '\ufeff"SEP=;"\n' + virgola, "U_PO_001", ";", "utf-8-sig", "\n"),
        ([], 'sep=,\n' + INTESTAZIONE.replace(";", ",") + ",una;nota\n" + RIGA.replace(";", ","), "U_PO_001", ",", "utf-8", "\n"),
        ([], percento, "U_PO_001", ";", "utf-8", "\n"),
        (["--virgola"], percento.replace(".", ","), "U_PO_001", ";", "utf-8", "\n"),
        (["--virgola"], ",".join(f'"{v}"' for v in virgola.split(";")), "U_PO_001", ",", "utf-8", "\n"),
        (["--virgola", "--processi=7"], virgola, "U_PO_001", ";", "utf-8", "\n"),
        (["-", "-"], RIGA, "U_PO_001", ";", "utf-8", "\n"),
    ]
    for argomenti, testo, nome, separatore, codice, fine in righe:
        esito = lotto(argomenti, testo)
        uscita = esito.stdout.decode(codice)
        controlla(f"{testo!r}: stato", esito.returncode, 0)
        controlla(f"{testo!r}: fine riga", uscita.count(fine), uscita.count("\n"))
        controlla(f"{testo!r}: segno", esito.stdout.startswith(b"\xef\xbb\xbf"), codice == "utf-8-sig")
        scritto = nome if not re.search('^#|[";]', nome) else '"' + nome.replace('"', '""') + '"'
        numeri = [v.replace(".", ",") for v in atteso] if "--virgola" in argomenti else atteso
        if "--virgola" in argomenti and separatore == ",":
            numeri = [f'"{v}"' if v else "" for v in numeri]
        controlla(f"{testo!r}", uscita.splitlines()[1:], [separatore.join([scritto, *numeri])])
    # A letter of two bytes where one block ends and the next begins.
    for nome in ("è" * 3000, "a" + "è" * 3000):
        esito = lotto([], f"nome;{INTESTAZIONE}\n" + f"{nome};{RIGA}\n" * 20)
        controlla("codifica", [r[0] for r in tabella(esito)[1:]] == [nome] * 20, True)
    # Names that a spreadsheet would run: the cell read, the section's name, the cell written; and this one read.
    for letta, nome, scritta in (("=1+1", "=1+1", "'=1+1"), ("'=1+1", "=1+1", "'=1+1"), ("+a", "+a", "'+a"), ("'-a", "-a", "'-a"),
                                 ("@a", "@a", "'@a"), ("''=a", "'=a", "''=a"), ("a=1", "a=1", "a=1"), ("'a", "'a", "'a"),
                                 ("'", "'", "'"), ("'@", "@", "'@")):
        for giro, cella in enumerate((letta, scritta)):
            sezio = f"formula {letta} {giro}"
            esito = lotto(["--sezio", sezio], f"nome;{INTESTAZIONE}\n{cella};{RIGA}\n")
            controlla(f"nome {cella}", (tabella(esito)[1][0], byte(sezio).split(b"\r\n")[1]), (scritta, nome.encode()))
    controlla("nome riletto", lotto(["--da", sezio]).stdout, esito.stdout)
    # The first file's separator, line end and code, also where a block of rows is of several.
    scrivi("seconda.csv", RIGA.replace(";", ",") + "\n")
    esito = lotto(["-", "seconda.csv"], "\ufeff" + RIGA.replace(";", "\t") + "\r\n")
    controlla("due file", esito.stdout.decode("utf-8-sig").split("\r\n")[1:],
              ["\t".join([nome, *atteso]) for nome in ("U_PO_001", "U_PO_002")] + [""])
    esito = lotto(["-", "seconda.csv"], RIGA.replace(";", ",").replace("2.5", "2,5"))
    controlla("due file: virgole", tabella(esito, ",")[1][-1], "colonne: 25 invece di 21. Con la virgola decimale le colonne "
              "si separano con ; o tabulazione (standard input, riga 1)")
    controlla("non usate", b'colonne non usate: "note"' in lotto([], misto).stderr, True)


def sbagliate():
    """What is wrong is said; of a row in its place, of the whole before anything is written."""
    altro = os.path.join(QUI, "banco.py")
    os.mkdir("piena")
    righe = [  # a bad row between two good ones: its reason
        ("200;25;20", "colonne: 3 invece di 21 (riga 2)"),
        (RIGA + ";1", "colonne: 22 invece di 21 (riga 2)"),
        (cambiata(p1=""), "manca il valore (riga 2, soletta inferiore)"),
        (cambiata(p1="25cm"), '"25cm" non è un numero (riga 2, soletta inferiore)'),
        (cambiata(p1="25,5"), '"25,5" non è un numero: la virgola decimale vuole --virgola (riga 2, soletta inferiore)'),
        (cambiata(p1="25%"), '"25%" non è una lunghezza: in percento sono soltanto le pendenze (riga 2, soletta inferiore)'),
        (cambiata(p16="2,5%"), '"2,5%" non è un numero: la virgola decimale vuole --virgola (riga 2, pendenza sinistra)'),
        (cambiata(p16="%"), '"%" non è un numero (riga 2, pendenza sinistra)'),
        (cambiata(p20="1e999"), '"1e999" non è un numero (riga 2, inclinazione anime)'),
        (cambiata(p20="nan"), '"nan" non è un numero (riga 2, inclinazione anime)'),
        (cambiata(p1="2\0005"), "un carattere nullo (riga 2)"),
        (cambiata(p0='"200'), "virgolette aperte e mai chiuse (riga 2)"),
        (";".join(["0"] * 21), "calcolo della sezione U_PO_002, costante di torsione: divisione per zero. "
                               "Le dimensioni non formano una sezione a cassone."),
        (cambiata(p15="1e200"), "calcolo della sezione U_PO_002, area e baricentro: numero troppo grande. "
                                "Le dimensioni non formano una sezione a cassone."),
        ("x" * 2000000, "riga troppo lunga (riga 2)"),
    ]
    for riga, motivo in righe:
        esito = lotto([], f"{RIGA}\n{riga}\n{RIGA}\n")
        avute = tabella(esito)
        controlla(f"{riga[:60]}: stato", (esito.returncode, len(avute)), (3, 4))
        controlla(f"{riga[:60]}: le altre", avute[1][1:], avute[-1][1:])
        controlla(f"{riga[:60]}: motivo", avute[2][1:], [""] * 10 + [motivo])
    intere = [  # arguments, input: status, message
        ([], RIGA.replace(".", ","), 1, '"2,5": la virgola decimale vuole --virgola (riga 1; standard input)'),
        (["--virgola"], RIGA, 1, 'con --virgola i decimali hanno la virgola, non "2.5"'),
        ([], INTESTAZIONE.replace("p7;", "p8;") + "\n", 1, '"p8" ripete una colonna'),
        ([], INTESTAZIONE.replace("p7", "spessore") + "\n", 1,
         'manca soletta mezzeria (p7); nomi non riconosciuti: "spessore"'),
        ([], INTESTAZIONE.replace("p8", "raccordo inferiore") + "\n", 1, "ambiguo"),
        ([], "sep=|\n" + RIGA, 1, 'nomi non riconosciuti: "sep=|"'),
        ([], "", 1, "nessuna riga da calcolare"),
        ([], "sep=;\n# nota\n" + INTESTAZIONE, 1, "nessuna riga da calcolare"),
        ([], "PK\x03\x04", 1, "cartella di lavoro"),
        ([], b"\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1" + bytes(500), 1, "cartella di lavoro"),
        ([], RIGA.encode("utf-16"), 1, "UTF-16"),
        ([], RIGA.encode("utf-16-le"), 1, "UTF-16"),
        ([], (RIGA + ";perché\r\n").encode("utf-16-be"), 1, "UTF-16"),
        ([], "\0" * 400, 1, "un carattere nullo (riga 1; standard input)"),
        (["--", "-manca.csv"], "", 1, "il file non si legge: file o cartella inesistente (-manca.csv)"),
        (["manca.csv"], "", 1, "il file non si legge: file o cartella inesistente (manca.csv)"),
        (["--da", "manca"], "", 1, "File manca non trovato: file o cartella inesistente"),
        (["--da", altro], "", 1, "riga 1"),
        (["--da", "x", "y"], "", 2, "l'uno o l'altro"),
        (["--boh"], "", 2, "opzione sconosciuta: --boh"),
        (["--sezio"], "", 2, "dopo --sezio manca il valore"),
        (["--punti=1"], "", 2, "--punti non vuole un valore"),
        (["--da=manca", "--senza=x"], "", 1, "File manca non trovato"),
        (["--sezio="], "", 2, "--sezio: un nome"),
        (["--sezio", altro], "", 2, "non viene sostituito"),
        (["--sezio", "manca/x"], "", 2, "la cartella"),
        (["--disegni", "manca"], "", 2, "non esiste"),
        (["--opzioni", altro], "", 2, "--opzioni senza --disegni"),
        (["--opzioni", altro, "--disegni", "piena"], "", 1, "riga 1"),
        (["--sezio", "niente"], "", 1, "nessuna sezione da scrivere"),
    ]
    for argomenti, testo, stato, detto in intere:
        esito = lotto(argomenti, testo)
        messaggio = esito.stderr.decode()
        controlla(f"{argomenti} {testo[:40]!r}", (esito.returncode, detto in messaggio, messaggio), (stato, True, messaggio))
        controlla(f"{argomenti}: righe", len(tabella(esito)) <= 1, True)

    # One cell with the other decimal sign among proper ones is that row's mistake.
    controlla("una virgola", lotto([], cambiata(p1="25,5") + "\n" + RIGA).returncode, 3)

    # Rows added to what is being read would never end. (Of files that wine has from its host it does not know which.)
    scrivi("stesso", RIGA)
    for argomenti in (["stesso"], ["manca", "stesso"], [], ["--da", "stesso"]) if not EMULATORE else ():
        with open("stesso") as entra, open("stesso", "a") as esce:
            esito = subprocess.run([LOTTO, *argomenti], stdin=entra, stdout=esce, stderr=subprocess.PIPE, timeout=60)
        controlla(f"{argomenti}: stesso file", (esito.returncode, b"lo stesso file" in esito.stderr, byte("stesso")),
                  (2, True, RIGA.encode()))

    # Names that stand twice, or that a section file or a folder cannot hold apart.
    esito = lotto(["--sezio", "nomi", "--disegni", "piena"], f"nome;{INTESTAZIONE}\n" + "".join(
        f"{n};{RIGA}\n" for n in ("variante_1", "variante_1", "variante_2", '"a,b"', "", '"""q"', '"x\ny"')) + "1;2\n")
    controlla("nomi", [(r[0], bool(r[1]), r[-1].split(" ")[:2]) for r in tabella(esito)[1:]],
              [("variante_1", True, [""]), ("variante_1", True, ["il", "nome"]), ("variante_2", True, ["il", "disegno"]),
               ("a,b", True, ["un", "file"]), ("U_PO_005", True, [""]), ('"q', True, ["un", "file"]),
               ("x y", False, ["il", "nome"]), ("1", False, ["colonne:", "2"])])
    controlla("nomi: righe", re.findall(r"\(riga \d+\)", esito.stdout.decode()), ["(riga 8)", "(riga 10)"])
    controlla("nomi: sezio_ut", byte("nomi")[:1], b"3")
    controlla("nomi: disegni", sorted(os.listdir("piena")), ["U_PO_005.dis", "variante.dis"])
    for quante, stato in ((500, 0), (501, 1)):
        esito = lotto(["--sezio", str(quante)], f"{RIGA}\n" * quante)
        controlla(quante, (esito.returncode, len(tabella(esito)), os.path.exists(str(quante))), (stato, quante + 1, stato == 0))


with tempfile.TemporaryDirectory(prefix="Lotto_") as temporanea:
    os.chdir(temporanea)
    for prova in (come_il_desktop, forme, copia.copia, sbagliate, fine.tubo_chiuso, *([] if EMULATORE else [fine.fine])):
        prova()
print(f"{len(errori)} errori")
sys.exit(bool(errori))
