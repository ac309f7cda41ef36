#!/usr/bin/python3
"""The viewer as the preview drives it: started in its own folder with ostrel.inp, reloaded by Alt+F G in
either way of holding Alt, closed by Alt+F4.

Usage: prova_x.py OSTREL DRAWING
"""
import os
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "finestra"))
from schermo import Schermo, attendi, finisce, programma  # noqa: E402


def prova(ostrel, disegno, cartella):
    progra, mostrato = cartella / "progra", cartella / "Lavori/SezTmpPO.dis"
    for nuova in (progra, mostrato.parent):
        nuova.mkdir()
    testo = disegno.read_bytes()
    mostrato.write_bytes(testo)
    # The path as the program writes it: backslashes, the folder's case not the host's.
    percorso = str(cartella).replace("/", "\\") + "\\lavori\\SezTmpPO.dis"
    (progra / "ostrel.inp").write_text("\r\n".join(["inutilizzato", percorso, "1350", "5250", "9500", "3900", ""]))
    # Under the sanitizers: what the message bus's own library keeps is not the viewer's.
    (cartella / "perdite").write_text("leak:libdbus-1\n")
    sanificato = {"LSAN_OPTIONS": f"suppressions={cartella}/perdite:print_suppressions=0"}
    with (Schermo("1280x1024", cartella) as schermo,
          programma(ostrel, "--senza-sorveglianza", cwd=progra, env=schermo.ambiente | sanificato) as figlio):
        def titolo(parola):
            def cerca():
                return [f for f in schermo.finestre() if parola in schermo.titolo(f) and "ostrel" in schermo.titolo(f)]
            return attendi(cerca, f"the title {parola}", schermo.aperte)

        finestra, = titolo("U_PO_001")
        # The program's own scale: a twip is a fifteenth of a pixel at least, and the window is on the screen.
        x, y, larghezza, *_ = schermo.posto(finestra)
        assert larghezza >= 633 and 0 < x <= 1280 - larghezza and y >= 350, (x, y, larghezza)
        schermo.mano("windowactivate", "--sync", finestra)
        for nome, tasti in (("PRIMA", "keydown alt key f key g keyup alt"), ("SECONDA", "key alt+f key g")):
            mostrato.write_bytes(testo.replace(b"U_PO_001", nome.encode()))
            schermo.mano(*tasti.split())
            assert titolo("SEZIONE " + nome) == [finestra]
        schermo.mano("key", "alt+F4")
        finisce(figlio, 0)


with tempfile.TemporaryDirectory(prefix="visore") as temporanea:
    prova(os.path.abspath(sys.argv[1]), Path(sys.argv[2]).resolve(), Path(temporanea))
