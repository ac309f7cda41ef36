"""What the program writes and says, read for the tests: section files, drawings, the layout of its forms."""


def _righe(percorso):
    with open(percorso, newline="", encoding="cp1252") as file:
        return iter(file.read().split("\r\n"))


def sezioni(percorso):
    """Each section's name and its figures as they are written, in the file's order; ValueError where the file is not
    whole, to its last line end."""
    righe = _righe(percorso)

    def campi(quanti):
        trovati = next(righe).split()
        if len(trovati) != quanti:
            raise ValueError(f"{len(trovati)} campi invece di {quanti}: {trovati}")
        return trovati

    trovate = []
    try:
        for _ in range(int(next(righe))):
            nome, voci = next(righe), {}
            trovate.append((nome, voci))
            voci.update(zip(("larghezza", "altezza", "ZG", "YG"), campi(4)))
            for lettera in "OCDEF"[:int(next(righe))]:
                for v in range(int(next(righe)), 0, -1):
                    voci[f"{lettera}{v}z"], voci[f"{lettera}{v}y"], _ = campi(3)
            voci.update(zip(("An", "Aty", "Atz"), campi(3)))
            voci.update(zip(("Jt", "Jyg", "Jzg"), campi(4)))
            voci["punti"] = next(righe)
            for k in range(1, int(voci["punti"]) + 1):
                voci[f"P{k}.z"], voci[f"P{k}.y"] = next(righe).split()[:2]
                voci.update((f"P{k}.{tau}", campi(2)[0]) for tau in ("tauT", "tauVy", "tauVz"))
            next(righe)
            float(next(righe))
        if list(righe) != [""]:
            raise ValueError("righe in più, o una a metà")
    except StopIteration:
        raise ValueError("fine del file inattesa") from None
    return trovate


def nomi(percorso):
    """The names of a section file in order; nothing where it is missing or not whole."""
    try:
        return [nome for nome, _ in sezioni(percorso)]
    except (FileNotFoundError, ValueError):
        return None


def disegno(percorso):
    """The points of a drawing, and of each text its start, angle, base, height and characters."""
    righe = _righe(percorso)
    for _ in range(4):
        next(righe)

    def tabella(quante):
        return [[next(righe) for _ in range(quante)] for _ in range(int(next(righe)))]

    punti = [tuple(map(float, riga.split()[:2])) for riga, in tabella(1)]
    tabella(1), tabella(1)  # lines, arcs
    return punti, [(punti[int(a.split()[0])], int(a.split()[2]), *map(float, b.split()[:2]), testo)
                   for a, b, testo in tabella(3)]


def disposizioni(detto):
    """Of each form whose "layout" is told: width, height and, in tab order, the kind and the place (left, top, width,
    height) of its controls; twips."""
    forme = {}
    for riga in detto.splitlines():
        match riga.split():
            case ["layout", nome, larga, alta]:
                controlli = {}
                forme[nome] = int(larga), int(alta), controlli
            case ["place", nome, tipo, *posto]:
                controlli[nome] = tipo, tuple(map(int, posto))
    return forme
