"""What is to be seen on the guide's pictures of the forms: each control where the program has it."""
import subprocess

# The buttons and other parts by letter, as the guide names them.
LETTERE = {"A": "Calcolo", "B": "nome", "C": "Command2", "D": "Command1", "E": "Command4", "F": "Command6",
           "G": "Command7", "H": "Command3", "I": "nomute", "L": "Command5"}
ROSSO, BLU, BIANCO = (0xc0, 0, 0), (0x10, 0x50, 0xa0), (0xff, 0xff, 0xff)


def targhette(controlli, passo):
    """The badges of the main form: text, centre in pixels, colour. A box's number stands at its upper right corner, a
    command's letter at its upper left one; `passo` is a twip in pixels."""
    for testo, nome, colore in [*((str(i), f"Text1({i})", ROSSO) for i in range(21)),
                                *((lettera, nome, BLU) for lettera, nome in LETTERE.items())]:
        sinistra, alto, larga, _ = controlli[nome][1]
        x = sinistra + (larga + 20 if testo.isdigit() else 30)
        yield testo, x * passo, max((alto - (10 if testo.isdigit() else 40)) * passo, 10), colore


def confronta(immagine, disposizione, con_targhette):
    """What of the picture of a form is not as the program lays it out."""
    larga, alta, controlli = disposizione
    detto = subprocess.run(["convert", immagine, "-depth", "8", "ppm:-"], stdout=subprocess.PIPE, check=True).stdout
    _, misure, _, punti = detto.split(b"\n", 3)
    pixel, righe = map(int, misure.split())
    passo = pixel / larga
    if abs(righe - alta * passo) > 1:
        yield f"misura {pixel} x {righe}"

    def colore(x, y):
        inizio = 3 * (int(y) * pixel + int(x))
        return tuple(punti[inizio:inizio + 3])

    for testo, x, y, suo in targhette(controlli, passo) if con_targhette else ():
        if {colore(x, y - 7), colore(x, y + 7)} != {suo}:
            yield f"la targhetta {testo} non è al suo posto"
    for nome, (tipo, (sinistra, alto, larghezza, altezza)) in controlli.items():
        # Inside a box, beside its lower right corner.
        x, y = (sinistra + larghezza) * passo, (alto + altezza) * passo
        if tipo == "box" and (colore(x - 4, y - 4) != BIANCO or colore(x + 4, y - 4) == BIANCO):
            yield f"{nome} non è al suo posto"
