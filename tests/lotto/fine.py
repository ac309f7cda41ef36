"""How the filter ends and what it takes: order, memory, Ctrl+C, a closed pipe, a full disk, a watcher's line."""
import os
import re
import resource
import signal
import subprocess
import tempfile
import time

from banco import EMULATORE, LOTTO, RIGA, cambiata, controlla, lotto


def memoria(righe):
    """Rows of a pipe, and what they have taken at most."""
    blocco = f"{RIGA}\n".encode() * 1000
    with subprocess.Popen([LOTTO, "--processi", "2"], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as processo:
        if os.fork() == 0:
            processo.stdout.close()
            for _ in range(righe // 1000):
                processo.stdin.write(blocco)
            os._exit(0)
        processo.stdin.close()
        time.sleep(.5)  # a reader that is slow
        scritte = massima = 0
        for pezzo in iter(lambda: processo.stdout.read(1 << 16), b""):
            scritte += pezzo.count(b"\n")
            with open(f"/proc/{processo.pid}/status") as file:
                massima = max([massima, *map(int, re.findall(r"VmHWM:\s+(\d+)", file.read()))])
        stato = processo.wait()
        os.wait()
    controlla(f"{righe} righe", (stato, scritte), (0, righe + 1))
    return massima


def tubo_chiuso():
    """Whoever was reading has had enough: no message, whatever the program was told of such signals."""
    for preparazione in (None, lambda: signal.signal(signal.SIGPIPE, signal.SIG_DFL)):
        with subprocess.Popen([*EMULATORE, LOTTO, "-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              preexec_fn=preparazione) as processo:
            processo.stdout.close()
            try:
                processo.stdin.write(f"{RIGA}\n".encode() * 20000)
                processo.stdin.flush()
            except BrokenPipeError:
                pass
            controlla("tubo chiuso", (processo.wait(60), processo.stderr.read()), (141, b""))
            try:
                processo.stdin.close()
            except BrokenPipeError:
                pass


def righe_di(file):
    return os.pread(file.fileno(), 1 << 24, 0).count(b"\n")


def fine(base):
    """Order, memory, Ctrl+C, a full disk, a watcher's line."""
    tante = "".join(cambiata(p0=str(150 + n % 200)) + "\n" for n in range(5000))
    poche, molte = memoria(5000), memoria(100000)
    # The sanitizer keeps what is freed.
    with open(LOTTO, "rb") as programma:
        custodita = b"__asan_init" in programma.read()
    controlla(f"memoria costante ({poche} e {molte} kB)", custodita or molte < poche + 2000, True)
    for segnale in (signal.SIGINT, signal.SIGTERM):
        with tempfile.TemporaryFile() as file, subprocess.Popen(
                [LOTTO, "--sezio", os.path.join(base, "interrotto")], stdin=subprocess.PIPE, stdout=file,
                stderr=subprocess.PIPE) as processo:
            processo.stdin.write(f"{RIGA}\n".encode() * 3000)
            processo.stdin.flush()
            scadenza = time.monotonic() + 60  # the rows that have come are written, the others never come
            while righe_di(file) <= 1001 and time.monotonic() < scadenza:
                time.sleep(.01)
            processo.send_signal(segnale)
            controlla("interrotto", (processo.wait(10), b"interrotto dopo" in processo.stderr.read()), (130, True))
            file.seek(0)
            uscita = file.read()
        larghe = {riga.count(b";") for riga in uscita.splitlines()}
        controlla("interrotto: righe intere", (larghe, uscita[-1:], len(uscita.splitlines()) > 1000), ({11}, b"\n", True))
    controlla("interrotto: sezio_ut", os.path.exists(os.path.join(base, "interrotto")), False)
    with open("/dev/full", "w") as pieno:
        esito = subprocess.run([LOTTO], input=RIGA.encode(), stdout=pieno, stderr=subprocess.PIPE)
        controlla("disco pieno", (esito.returncode, b"non si scrive" in esito.stderr), (1, True))
    # A drawing that has no room is not there, and the next run writes it.
    disegni = os.path.join(base, "disegni senza posto")
    os.mkdir(disegni)
    for posto, atteso in ((1000, (3, [])), (-1, (0, ["U_PO_001.dis"]))):
        esito = lotto(["--disegni", disegni], RIGA,
                      preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (posto, -1)))
        controlla("disegno senza posto", (esito.returncode, os.listdir(disegni)), atteso)
    padrone, terminale = os.openpty()
    subprocess.run([LOTTO], input=tante.encode() * 40, stdout=subprocess.DEVNULL, stderr=terminale)
    controlla("avanzamento", b" righe, 0 con errore" in os.read(padrone, 1 << 16), True)
