"""Installations for a program at a window: as the host calls their folders, or as Windows does."""
import os
import shlex
import shutil
from pathlib import Path

# What programs for Windows are run with.
EMULATORE = shlex.split(os.environ.get("TARVEL_EMULATORE", ""))


class Impianto:
    """An installation with one job. `nomi`: what the program calls its root and the folder of its jobs."""

    def __init__(self, radice, lavori=None, nomi=None):
        self.radice, self.lavori = radice, lavori or radice / "lavori"
        self.nomi = nomi or (str(self.radice), str(self.lavori))

    def installa(self, programmi, visore="normale"):
        """Its viewer is our own, the stand-in, or no program with these rights."""
        for cartella in (self.radice / "impostazioni", self.lavori / "PR0042", self.radice / "progra",
                         self.radice / "custom"):
            cartella.mkdir(parents=True)
        (self.radice / "impostazioni/dirlav").write_text(self.nomi[1], encoding="cp1252")
        (self.radice / "impostazioni/lavoro").write_text("PR0042")
        (self.radice / "progra/modo").write_text(str(visore))
        ostrel = self.radice / "progra/ostrel.exe"
        if visore == "vero":
            shutil.copy(eseguibile(programmi, "ostrel"), ostrel)
        elif isinstance(visore, str):
            ostrel.symlink_to(eseguibile(programmi, "visore-finto"))
        else:
            ostrel.write_text("no program\n")
            ostrel.chmod(visore)

    def scritti(self):
        return {(cartella.name.lower(), file.relative_to(cartella)): file.read_bytes()
                for cartella in (self.lavori, self.radice / "custom")
                for file in cartella.rglob("*") if file.is_file()}


def impianto(cartella, gruppo):
    """The folder's own, as the host or Windows calls it; or one on two drives of Windows."""
    if gruppo != "unita":
        radice = cartella / "impianto"
        return Impianto(radice, nomi=EMULATORE and ["Z:" + f"{radice}{sotto}".replace("/", "\\")
                                                    for sotto in ("", "/lavori")])
    prefisso = Path(os.environ["WINEPREFIX"])
    radice, dati = prefisso / "drive_c/Inst perché", prefisso / "dosdevices/d:"
    shutil.rmtree(radice, ignore_errors=True)
    dati.unlink(missing_ok=True)
    dati.symlink_to(cartella)
    return Impianto(radice, cartella / "Dati è/Lavori", ("C:\\Inst perché\\", "D:\\Dati è\\Lavori"))


def eseguibile(programmi, nome):
    return programmi / (nome + ".exe" if EMULATORE else nome)
