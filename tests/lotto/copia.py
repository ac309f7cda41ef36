"""A section file copied with --da and --sezio: as it stands, without a section, as far as it can be read."""
import os
import subprocess

from banco import EMULATORE, INTESTAZIONE, LOTTO, byte, cambiata, controlla, lotto, scrivi, tabella

FINO = "--fin-dove-si-legge"


def copia():
    contati = iter(range(10000))

    def copiata(testo, *opzioni):
        """Of a file with these bytes: status, names of the rows, the copy's bytes, what is said."""
        da, sezio = (f"{nome}{next(contati)}" for nome in ("da", "sezio"))
        scrivi(da, testo)
        esito = lotto(["--da", da, "--sezio", sezio, *opzioni])
        scritto = byte(sezio) if os.path.exists(sezio) else b""
        if scritto:  # the program reads it, and the same sections
            riletto = lotto(["--da", sezio])
            controlla(f"{opzioni}: riletto", (riletto.stdout, b"Errore" in riletto.stderr), (esito.stdout, False))
        return esito.returncode, [r[0] for r in tabella(esito)[1:]], scritto, esito.stderr.decode().replace(da, "DA")

    # Slopes that the outline gives back cut: rebuilt from them it would move.
    lotto(["--sezio", "primo"], f"nome;{INTESTAZIONE}\n" + "".join(
        f"{n};{cambiata(p0=str(200 + 20 * i), p16='1.9', p17='2.55')}\n" for i, n in enumerate(("A", "perché", "C"))))
    sano = byte("primo")
    righe = sano.split(b"\r\n")[:-1]
    quante = (len(righe) - 1) // 3
    sezioni = [b"".join(r + b"\r\n" for r in righe[1 + quante * k:1 + quante * (k + 1)]) for k in range(3)]
    A, P, C = sezioni

    def file(*parti):
        return b"%d\r\n" % len(parti) + b"".join(parti)

    forestiera = A.split(b"\r\n")
    forestiera[1:5] = [forestiera[1].replace(b"1200 ", b"1200.129 "), b"2", b"12"]  # a vertex less
    forestiera = b"\r\n".join(forestiera)
    nulla = b"\r\n".join([b"\"N,1\", resto", b"0 0 0 0", b"2", b" 13 ", *[b"0 0 0"] * 13, b" 11 ", *[b"0 0 0"] * 11,
                          b"1 2 3", b"4 5 6 .70", b"0", b"A", b"0", b""])
    casi = [  # file, options: status, sections of the rows and of the copy, in what is said
        (sano, [], 0, ["A", "perché", "C"], [A, P, C], ""),
        (sano, [FINO], 0, ["A", "perché", "C"], [A, P, C], ""),
        (sano.replace(b"\r\n", b"\n") + b"\n \n\x1a", [], 0, ["A", "perché", "C"], [A, P, C], ""),
        (file(A, A), [], 0, ["A", "A"], [A, A], ""),
        (b"2 " + A[:-2] + b", " + C, [], 0, ["A", "C"], [A, b" " + C], ""),
        (file(forestiera, nulla, C), [], 3, ["A", "N,1", "C"], [forestiera, nulla, C], "2 righe su 3 con errore"),
        (file(A, nulla), ["--senza", "N,1"], 0, ["A"], [A], ""),
        (sano, ["--senza", "perché", "--senza", "A"], 0, ["C"], [C], ""),
        (file(A, A), ["--senza", "A"], 0, ["A"], [A], ""),
        (sano, ["--senza", "a"], 2, [], [], '--senza: in DA non c\'è la sezione "a"'),
        (file(A), ["--senza", "A"], 1, [], [], "nessuna sezione da scrivere"),
        (b"1" + sano[1:], [], 1, [], [], "righe in più"),
        (b"1" + sano[1:], [FINO], 3, ["A", "perché", "C"], [A, P, C],
         'il conteggio è sbagliato (DA, riga 1): sezioni prese 3, la prima riga ne dice 1; l\'ultima è "C"\n'),
        (b"9" + sano[1:], [FINO, "--senza", "A"], 3, ["perché", "C"], [P, C], "sezioni prese 3, la prima riga ne dice 9"),
        (b"900" + sano[1:], [FINO], 3, ["A", "perché", "C"], [A, P, C], "al massimo 500 (DA, riga 1): sezioni prese 3;"),
        (b"boh" + sano[1:], [FINO], 3, ["A", "perché", "C"], [A, P, C], 'numero non valido "boh" (DA, riga 1)'),
        (sano + b"1\r\n2\r\n0\r\n3 4 5\r\n6 7 8\r\n0\r\nA\r\n0\r\n", [FINO], 3, ["A", "perché", "C"], [A, P, C],
         f"righe in più dopo l'ultima sezione (DA, riga {len(righe) + 1})"),
        (sano * 2, [FINO], 3, ["A", "perché", "C"], [A, P, C], f"il resto comincia alla riga {len(righe) + 1}\n"),
        (file(*[A] * 500) + A, [FINO], 3, ["A"] * 500, [A] * 500, "il resto comincia alla riga"),
        (file(A, P, C.replace(righe[-1 - quante // 2], b"")), [FINO], 3, ["A", "perché"], [A, P], "la prima riga ne dice 3"),
        (b"", [FINO], 1, [], [], "fine del file inattesa"),
    ]
    for testo, opzioni, stato, nomi, attese, detto in casi:
        avuto = copiata(testo, *opzioni)
        cosa = f"{testo[:20]} {opzioni} {detto}"
        controlla(cosa, avuto[:2], (stato, nomi))
        controlla(cosa + ": copia", avuto[2] == (file(*attese) if attese else b""), True)
        controlla(cosa, avuto[3] if detto not in avuto[3] or bool(detto) != bool(avuto[3]) else detto, detto)

    # Whichever line of the second section is lost or spoiled: the first one whole, nothing that is another one.
    for n in range(1 + quante, 1 + 2 * quante, 13 if EMULATORE else 1):
        for riga in ([], [b"1E400 guasta"])[:1 + (n % 4 == 0)]:
            stato, _, scritto, detto = copiata(b"\r\n".join([*righe[:n], *riga, *righe[n + 1:], b""]), FINO)
            # A name, or the code behind the points, is what it is.
            buono = scritto == file(A) and stato == 3 and f"il resto comincia alla riga {2 + quante}" in detto
            controlla(f"{riga} alla riga {n + 1}", buono or (bool(riga) and stato == 0 and scritto.startswith(b"3\r\n" + A)), True)

    # A file that is made while the rows wait for their reader is not replaced.
    scrivi("tante", file(*[A] * 500))
    with subprocess.Popen([*EMULATORE, LOTTO, "--punti", "--da", "tante", "--sezio", "altrui"], stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE) as processo:
        processo.stdout.readline()
        scrivi("altrui", "altrui")
        detto = processo.communicate(timeout=60)[1].decode()
    controlla("fatto intanto", (processo.returncode, byte("altrui"), "non si crea: il nome è già preso" in detto), (1, b"altrui", True))

    for argomenti, detto in ((["--senza", "A"], "--senza senza --da"), ([FINO], FINO + " senza --da"),
                             (["--da", "primo", "--sezio", "primo"], "non viene sostituito")):
        esito = lotto(argomenti)
        controlla(argomenti, (esito.returncode, detto in esito.stderr.decode(), byte("primo") == sano), (2, True, True))
