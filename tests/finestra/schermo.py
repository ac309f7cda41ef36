"""A virtual screen with a window manager, and a user's hands and eyes at it.

What it needs (Xvfb, openbox, xdotool, xprop, xwininfo) has to be there: a test that cannot look has failed.
"""
import contextlib
import os
import re
import select
import subprocess
import time

PAZIENZA, RIPROVA = 30, 0.02  # seconds
PROGRAMMA = "SEZIONE UTENTE TIPO PONTE 1"
TITOLI = {PROGRAMMA: "tarvel1", "OPZIONI di DISEGNO": "FormOpt"}
SENZA_TITOLO = dict.fromkeys(("FormSez", "FormSez2"), " ")

# The user's own settings stay out. Without a binding for clicks into windows the manager holds none
# back, so that keys cannot overtake them; with one a click makes its window the active one first.
# Without animations a window is where it says it is.
GESTORE = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<theme><animateIconify>no</animateIconify></theme>
<keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
<mouse><context name="Close"><mousebind button="Left" action="Click"><action name="Close"/></mousebind>
</context>%s</mouse></openbox_config>"""
COL_CLICK = """<context name="Client"><mousebind button="Left" action="Press"><action name="Focus"/>
<action name="Raise"/></mousebind></context>"""


def attendi(condizione, cosa, adesso=lambda: ""):
    """The condition's value as soon as it is true; where it does not come, says what was waited for."""
    fine = time.monotonic() + PAZIENZA
    while not (esito := condizione()):
        assert time.monotonic() < fine, f"waited {PAZIENZA} s for {cosa}; now: {adesso()}"
        time.sleep(RIPROVA)
    return esito


@contextlib.contextmanager
def programma(*comando, **altro):
    """A program that does not outlive its block, even when the test is killed."""
    figlio = subprocess.Popen(["setpriv", "--pdeathsig", "TERM", *map(str, comando)], **altro)
    try:
        yield figlio
    finally:
        figlio.terminate()
        figlio.wait(PAZIENZA)


def finisce(figlio, atteso):
    stato = figlio.wait(PAZIENZA)
    assert stato == atteso, f"exit status {stato}, not {atteso}"


class Schermo(contextlib.ExitStack):
    """A virtual screen with a window manager, and the user's hands and eyes at it."""

    def __init__(self, misure, cartella, gestore=""):
        super().__init__()
        legge, scrive = os.pipe()
        # -noreset: a server that starts anew when its last client leaves would refuse the next one.
        self.enter_context(programma("Xvfb", "-displayfd", scrive, "-screen", "0", misure + "x24",
                                     "-nolisten", "tcp", "-noreset", pass_fds=[scrive], stderr=subprocess.DEVNULL))
        os.close(scrive)
        with os.fdopen(legge) as capo:
            numero = select.select([capo], [], [], PAZIENZA)[0] and capo.readline().strip()
        assert numero, "Xvfb does not start"
        # What the programs remember is not the user's own.
        self.ambiente = os.environ | {"DISPLAY": ":" + numero, "QT_QPA_PLATFORM": "xcb",
                                      "XDG_CONFIG_HOME": str(cartella / "config")}
        regole = cartella / "openbox.xml"
        regole.write_text(GESTORE % gestore)
        self.enter_context(programma("openbox", "--sm-disable", "--config-file", regole, env=self.ambiente))
        attendi(lambda: self.finestre("_NET_SUPPORTING_WM_CHECK"), "openbox to start")
        self.giro()

    def chiedi(self, *comando):
        """What the command writes; nothing where the window has gone."""
        return subprocess.run([*map(str, comando)], env=self.ambiente, timeout=PAZIENZA, text=True,
                              errors="replace", stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout

    def mano(self, *azione):
        subprocess.run(["xdotool", *map(str, azione)], env=self.ambiente, timeout=PAZIENZA, check=True)

    def finestre(self, quali="_NET_CLIENT_LIST"):
        return re.findall(r"0x\w+", self.chiedi("xprop", "-root", quali))

    def proprieta(self, finestra):
        testo = self.chiedi("xprop", "-id", finestra, "WM_WINDOW_ROLE", "_NET_WM_NAME", "WM_TRANSIENT_FOR")
        return dict(re.findall(r'^(\w+)\(\w+\)(?: =|:) "?(.*?)"?$', testo, re.M))

    def titolo(self, finestra):
        return self.proprieta(finestra).get("_NET_WM_NAME", "")

    def nome(self, finestra):
        """Its role (a form's name) or, where it has none of its own, its title: that of a drawing's window ends
        with its program. Windows has no roles: its forms have their titles."""
        dice = self.proprieta(finestra)
        titolo = dice.get("_NET_WM_NAME", "").split(" - ")[-1]
        ruolo = dice.get("WM_WINDOW_ROLE", "messaggio")
        if ruolo != "messaggio":
            return ruolo
        return TITOLI.get(titolo, titolo) if "WM_TRANSIENT_FOR" not in dice or titolo != PROGRAMMA else titolo

    def ha_nome(self, finestra, nome):
        return self.nome(finestra) in (nome, SENZA_TITOLO.get(nome))

    def aperte(self):
        """What is on the screen, for who waits in vain."""
        davanti = self.finestre("_NET_ACTIVE_WINDOW")
        return [self.nome(f) or "?" for f in self.finestre()], "in front", [self.nome(f) for f in davanti]

    def trova(self, nome):
        return attendi(lambda: next((f for f in self.finestre() if self.ha_nome(f, nome)), None), f"a window {nome}", self.aperte)

    def davanti(self, nome):
        """The window of this name, as soon as it has the keyboard."""
        def cerca():
            fuoco = hex(int(self.chiedi("xdotool", "getwindowfocus", "-f") or 0))
            return [fuoco] == self.finestre("_NET_ACTIVE_WINDOW") and self.ha_nome(fuoco, nome) and fuoco
        return attendi(cerca, f"{nome} in front", self.aperte)

    def posto(self, finestra):
        """Left, top and width; left and top in its frame; pixels."""
        testo = self.chiedi("xwininfo", "-id", finestra)
        return [int(re.search(rf"{voce}: +(-?\d+)", testo)[1]) for voce in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width",
            "Relative upper-left X", "Relative upper-left Y")]

    def ritrai(self, file):
        """A picture of the screen, once nothing moves on it any more."""
        prima, adesso = None, ""
        while prima != adesso:
            time.sleep(10 * RIPROVA)
            prima, adesso = adesso, self.chiedi("import", "-window", "root", "ppm:-")
        self.chiedi("import", "-window", "root", file)

    def chiudi(self, nome):
        """Clicks the close box, at the right end of the title bar."""
        sinistra, alto, larghezza, bordo, barra = self.posto(self.trova(nome))
        self.mano("mousemove", sinistra + larghezza + bordo - barra // 2, alto - barra // 2, "click", 1)
        self.giro()

    def giro(self):
        """Anything the manager does on request: once it is done, so is what was asked before."""
        def quante():
            return self.chiedi("xdotool", "get_num_desktops").strip()

        def fatto():  # at its start it may still set a number of its own
            self.mano("set_num_desktops", scrivanie)
            return quante() == scrivanie

        scrivanie = str(int(attendi(quante, "openbox to answer")) % 8 + 1)
        attendi(fatto, "openbox to act", quante)
