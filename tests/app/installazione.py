"""A fresh installation, dimensions for it, and a user who follows a script there."""
import os
import subprocess

# The worked example as a defaults file.
ESEMPIO = "".join(p + "\r\n" for p in
                  "200 25 20 35 45 50 30 25 20 250 50 60 150 50 40 1200 2.5 2.5 -2.5 -2.5 20".split())


def installa(radice, valori=None):
    """The job's folder of a new installation, with these defaults in the boxes."""
    for cartella in ("impostazioni", "custom", "progra", "driver", "Lavori/PR0001"):
        os.makedirs(os.path.join(radice, cartella))
    for nome, testo in (("impostazioni/dirlav", os.path.join(radice, "Lavori") + "\r\n"),
                        ("impostazioni/lavoro", " PR0001 \r\n"), ("progra/ostrel.exe", ""), ("custom/CapSezDe.txt", valori)):
        if testo is not None:
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


def recita(comando, radice, copione, **altro):
    """The scripted desktop, started by these words, on this installation: what has become of it."""
    return subprocess.run([*comando, f"|diroot={radice}|"], input=copione, capture_output=True, encoding="utf-8",
                          errors="replace", timeout=120, **altro)
