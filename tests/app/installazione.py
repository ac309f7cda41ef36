"""A fresh installation, dimensions for it, and the names of a section file that is whole."""
import os

# The worked example as a defaults file.
ESEMPIO = "".join(p + "\r\n" for p in
                  "200 25 20 35 45 50 30 25 20 250 50 60 150 50 40 1200 2.5 2.5 -2.5 -2.5 20".split())


def installa(radice):
    for cartella in ("impostazioni", "custom", "progra", "driver", "Lavori/PR0001"):
        os.makedirs(os.path.join(radice, cartella))
    for nome, testo in (("impostazioni/dirlav", os.path.join(radice, "Lavori") + "\r\n"),
                        ("impostazioni/lavoro", " PR0001 \r\n"), ("progra/ostrel.exe", "")):
        with open(os.path.join(radice, nome), "w", newline="") as file:
            file.write(testo)
    return os.path.join(radice, "Lavori", "PR0001")


def dimensioni(caso):
    """A box girder of any proportion, in centimetres, hundredths included."""
    larga, alta = caso.uniform(600, 1800), caso.uniform(120, 400)
    alte = [alta, alta * caso.uniform(.08, .15), caso.uniform(12, 25), caso.uniform(26, 35), caso.uniform(36, 48),
            caso.uniform(36, 55), caso.uniform(22, 35), caso.uniform(20, 30), alta * caso.uniform(.05, .12)]
    basi = [larga * caso.uniform(*tra) for tra in ((.12, .22), (.01, .05), (.03, .06), (.08, .12), (.03, .06),
                                                   (.02, .05), (1, 1))]
    pendenze = [caso.uniform(-4, 4) for _ in range(4)] + [caso.uniform(2, 30)]
    return [f"{v:.2f}" for v in alte + basi + pendenze]


def nomi(percorso):
    """The names in order; nothing where the file is missing or not whole, to its last line end."""
    try:
        with open(percorso, newline="", encoding="cp1252") as file:
            righe = file.read().split("\r\n")
    except FileNotFoundError:
        return None
    posto = iter(righe)
    try:
        trovati = []
        for _ in range(int(next(posto))):
            trovati.append(next(posto))
            assert len(next(posto).split()) == 4
            for _ in range(int(next(posto))):
                for _ in range(int(next(posto))):
                    assert len(next(posto).split()) == 3
            assert len(next(posto).split()) == 3 and len(next(posto).split()) == 4
            for _ in range(int(next(posto))):
                next(posto)
                assert [len(next(posto).split()) for _ in range(3)] == [2, 2, 2]
            next(posto)
            float(next(posto))
        assert list(posto) == [""]
        return trovati
    except (StopIteration, ValueError, AssertionError):
        return None
