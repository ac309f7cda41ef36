"""How the filter ends and what it takes: memory, Ctrl+C, a closed pipe, a full disk, a watcher's line."""
import os
import re
import resource
import signal
import subprocess
import tempfile
import time

from banco import EMULATORE, LOTTO, RIGA, byte, controlla, lotto, tabella


def memoria(righe):
    """What these rows have taken at most."""
    with subprocess.Popen([LOTTO], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL) as processo:
        for _ in range(righe // 1000):
            processo.stdin.write(f"{RIGA}\n".encode() * 1000)
        with open(f"/proc/{processo.pid}/status") as file:
            return int(re.search(r"VmHWM:\s+(\d+)", file.read())[1])


def tubo_chiuso():
    """Whoever was reading has had enough: no message, whatever the program was told of such signals."""
    for preparazione in (None, lambda: signal.signal(signal.SIGPIPE, signal.SIG_DFL)):
        with subprocess.Popen([*EMULATORE, LOTTO, "-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              preexec_fn=preparazione) as processo:
            processo.stdout.close()
            detto = processo.communicate(f"{RIGA}\n".encode() * 20000, timeout=60)[1]
        controlla("tubo chiuso", (processo.returncode, detto), (141, b""))


def righe_di(file):
    return os.pread(file.fileno(), 1 << 24, 0).count(b"\n")


def fine():
    """Memory, Ctrl+C, a full disk, a watcher's line."""
    poche, molte = memoria(5000), memoria(100000)
    # The sanitizer keeps what is freed.
    custodita = b"__asan_init" in byte(LOTTO)
    controlla(f"memoria costante ({poche} e {molte} kB)", custodita or molte < poche + 2000, True)
    # Ctrl+C while the rows go on coming; and while the program, which reads blocks of 64 KiB, waits for the fourth.
    attese = 3 * 65536 // len(RIGA + "\n")
    for segnale, sorgente, scritte in ((signal.SIGINT, ["yes", RIGA], 1000),
                                       (signal.SIGTERM, ["sh", "-c", f"yes '{RIGA}' | head -3000; sleep 60"], attese)):
        with tempfile.TemporaryFile() as file, \
                subprocess.Popen(sorgente, stdout=subprocess.PIPE, start_new_session=True) as righe, subprocess.Popen(
                    [LOTTO, "--sezio", "interrotto"], stdin=righe.stdout, stdout=file, stderr=subprocess.PIPE) as processo:
            scadenza = time.monotonic() + 20
            while righe_di(file) <= scritte and time.monotonic() < scadenza:
                time.sleep(.01)
            processo.send_signal(segnale)
            detto = processo.communicate(timeout=10)[1].decode()
            os.killpg(righe.pid, signal.SIGKILL)
            file.seek(0)
            uscita = file.read()
        avute = uscita.splitlines()
        controlla(f"{sorgente[0]}: interrotto", (processo.returncode, detto, len(avute) > scritte),
                  (130, f"tarvel1-lotto: interrotto dopo {len(avute) - 1} righe\n", True))
        controlla(f"{sorgente[0]}: righe intere", ({r.count(b";") for r in avute}, uscita[-1:]), ({11}, b"\n"))
    controlla("interrotto: sezio_ut", os.path.exists("interrotto"), False)
    with open("/dev/full", "w") as pieno:
        esito = subprocess.run([LOTTO], input=RIGA.encode(), stdout=pieno, stderr=subprocess.PIPE)
        controlla("disco pieno", (esito.returncode, b"l'uscita non si scrive: disco pieno" in esito.stderr), (1, True))
    # A drawing that has no room is not there, and the next run writes it.
    os.mkdir("senza posto")
    senza_posto = "Errore durante la scrittura sul filesenza posto\\U_PO_001.dis: file troppo grande"
    for posto, atteso in ((1000, (3, [], senza_posto)), (-1, (0, ["U_PO_001.dis"], ""))):
        esito = lotto(["--disegni", "senza posto"], RIGA,
                      preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (posto, -1)))
        controlla("disegno senza posto", (esito.returncode, os.listdir("senza posto"), tabella(esito)[1][-1]), atteso)
    padrone, terminale = os.openpty()
    subprocess.run([LOTTO], input=f"{RIGA}\n".encode() * 100000, stdout=subprocess.DEVNULL, stderr=terminale)
    controlla("avanzamento", b" righe, 0 con errore" in os.read(padrone, 1 << 16), True)
