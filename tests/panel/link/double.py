#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Stands in for an instrument: the text shell on a pseudo terminal, the open analyser program's
SCPI server, or a bench analyser of dialect A to C or a handheld (F) on a socket.

Prints "ready PLACE" and serves until it is ended. S11 is 0.5 exp(-j f / 100 MHz), S21 0.8 times
the same; a fault strikes the data answers from the given one on, or each with a probability."""
import argparse, cmath, os, random, re, socket, stat, struct, sys, termios, threading, time, tty

parser = argparse.ArgumentParser()
parser.add_argument("kind", choices=["shell", "textshell", "oldshell", "program", "oldprogram", "A", "B", "C", "F"])
parser.add_argument("--fault", default="", help="silence trickle cut huge fewer nan identity error noise mute")
parser.add_argument("--after", type=int, default=0, help="data answers that are still well")
parser.add_argument("--random", type=float, default=0.0, help="probability of a random fault")
parser.add_argument("--late", type=float, default=0.0, help="seconds before each answer")
parser.add_argument("--port", type=int, default=0)
parser.add_argument("--points", type=int, default=201)
parser.add_argument("--text", action="store_true", help="knows no numbers as bytes")
args = parser.parse_args()
random.seed(1)
FAULTS = ["cut", "huge", "fewer", "nan", "error"]


def end_with_starter():
    """A test that crashes leaves its end of our input, which else says nothing."""
    sys.stdin.buffer.read()
    os._exit(0)


if stat.S_ISFIFO(os.fstat(0).st_mode):
    threading.Thread(target=end_with_starter, daemon=True).start()


class Gone(Exception):
    """The other end is, or shall be."""


class State:
    start, stop, points = 1e6, 3e9, args.points
    bandwidth, power, averages, average_on = 1000.0, -10.0, 1, 0
    data_answers = 0


def s(index, f):
    return (0.5, 0.8, 0.8, 0.5)[index] * cmath.exp(-1j * f / 1e8)


def grid():
    step = (State.stop - State.start) / max(1, State.points - 1)
    return [State.start + i * step for i in range(State.points)]


cache = {}


def values(index):
    key = (index, State.start, State.stop, State.points)
    if key not in cache:
        cache[key] = [s(index, f) for f in grid()]
    return cache[key]


def fault():
    State.data_answers += 1
    if args.random and random.random() < args.random:
        return random.choice(FAULTS)
    return args.fault if State.data_answers > args.after else ""


def number(text):
    return float(text.strip().split()[0].rstrip("Hz"))


class Peer:
    """Bytes to and from the client."""

    def __init__(self, read, write):
        self.read, self.write, self.pending = read, write, b""

    def line(self, end):
        while end not in self.pending:
            more = self.read(65536)
            if not more:
                raise Gone()
            self.pending += more
        line, self.pending = self.pending.split(end, 1)
        return line.decode("latin1")

    def send(self, data, name=""):
        """Sends an answer, as a fault of this name spoils it."""
        time.sleep(args.late)
        if name == "trickle":
            for i in range(len(data)):
                self.write(data[i:i + 1])
                time.sleep(0.05)
        elif name in ("silence", "mute"):
            pass
        elif name == "cut":
            self.write(data[:len(data) // 2])
            raise Gone()
        elif name == "noise":
            self.write(bytes(random.randrange(256) for _ in range(len(data) // 2)) + data[len(data) // 2:])
        elif data:
            self.write(data)


# --- the shell ---

def shell_answer(peer, text):
    words = text.split()
    name, rest = (words[0], words[1:]) if words else ("", [])
    lists = "scan frequencies data sweep pause resume cal info version help bandwidth"
    most = 101 if args.kind == "textshell" else 401
    if name == "":
        return b""
    if name == "version":
        return b"0.8.0\r\n" if args.kind == "textshell" else b"1.2.52\r\n"
    if name == "info":
        board = "" if args.kind == "textshell" else " [p:401, IF:12k, ADC:192k, Lcd:480x320]"
        return ("Board: NanoVNA-H4%s\r\n" % board).encode() if args.fault != "identity" else b"Board: Other\r\n"
    if name == "help":
        return ("Commands: " + ("scan_bin " if args.kind == "shell" else "") + lists + "\r\n").encode()
    if name == "cal":
        return b"load open short thru Es Er Et cal'ed \r\n"
    if name == "bandwidth":
        if args.kind == "textshell":
            return b"" if rest else b"usage: bandwidth {1000|300|100|30|10}\r\n"
        if rest:
            State.bandwidth = 4000 / (int(rest[0]) + 1)
        return b"bandwidth 3 (%dHz)\r\n" % State.bandwidth
    if name in ("pause", "resume"):
        return b""
    if name == "sweep":
        if rest:
            State.start, State.stop = float(rest[0]), float(rest[1])
            State.points = int((rest + [State.points])[2])
            return b""
        stop = int(State.stop)
        return b"%d %d %d\r\n" % (State.start, stop - 2**32 if args.kind == "textshell" and stop >= 2**31 else stop, State.points)
    if name == "frequencies":
        return b"".join(b"%d\r\n" % f for f in grid())
    if name == "data":
        return b"".join(b"%.9f %.9f\r\n" % (v.real, v.imag) for v in values(int(rest[0])))
    if name not in ("scan", "scan_bin") or (name == "scan_bin" and args.kind != "shell"):
        return (name + "?\r\n").encode()
    a, b, n = (int(word) for word in rest[:3])
    if n > most or n < 2:
        return b"sweep points exceeds range %d\r\n" % most
    State.start, State.stop, State.points = float(a), float(b), n
    mask = int(rest[3]) if len(rest) > 3 and args.kind != "oldshell" else 0
    how = fault()
    rows = [(round(f), s(0, f), s(1, f)) for f in grid()]
    if how == "nan":
        rows[n // 2] = (rows[n // 2][0], complex("nan"), rows[n // 2][2])
    if how == "fewer":
        rows = rows[:-3]
    if how == "error":
        return b"frequency range is invalid\r\n"
    if name == "scan_bin":
        data = struct.pack("<HH", mask | 128, 65535 if how == "huge" else len(rows))
        for f, x, y in rows:
            data += struct.pack("<Iffff", f, x.real, x.imag, y.real, y.imag)
    elif mask == 7:
        data = b"".join(b"%d %.9f %.9f %.9f %.9f \r\n" % (f, x.real, x.imag, y.real, y.imag) for f, x, y in rows)
        if how == "huge":
            data *= 1000
    else:
        data = b""
    if how in ("trickle", "silence", "mute", "cut", "noise"):
        peer.send(data, how)
        return None
    return data


def serve_shell(peer):
    while True:
        text = peer.line(b"\r").strip("\n")
        if args.fault == "mute":
            continue
        peer.write(text.encode() + b"\r\n")
        answer = shell_answer(peer, text)
        if answer is not None:
            peer.send(answer + b"ch> ")


# --- SCPI ---

ERRORS = []


def setting(text, names):
    """Answers or takes NAME? and NAME value; None if it is none of them."""
    for pattern, attribute, low, high in names:
        match = re.fullmatch(pattern + r"(\?)?\s*(.*)", text, re.I)
        if not match:
            continue
        value = match.group(2)
        if match.group(1):
            value = {"MIN": low, "MAX": high}.get(value.upper(), getattr(State, attribute))
            return "%+.11E" % value if attribute not in ("points", "averages", "average_on") else "%d" % value
        kind = type(getattr(State, attribute))
        setattr(State, attribute, kind(min(high, max(low, number(value)))))
        return ""
    return None


def block(doubles, order):
    data = struct.pack("%s%dd" % (order, len(doubles)), *doubles)
    length = b"%d" % len(data)
    return b"#%d" % len(length) + length + data + b"\n"


packed = {}


def numbers(key, make, order):
    key += (State.start, State.stop, State.points, order)
    if key not in packed:
        flat = make()
        packed[key] = b",".join(b"%.9E" % x for x in flat) + b"\n" if order == "text" else block(flat, order)
    return packed[key]


def spoilt(data, how, order):
    if how == "error":
        ERRORS.append('-230,"Data corrupt or stale"')
        return b""
    if how == "huge":
        return b"#91000000000" + data[:4096]
    if how == "fewer":
        flat = [0.25] * (2 * State.points - 6)
        return numbers(("fewer",), lambda: flat, order)
    if how == "nan":
        flat = [float("nan") if order != "text" else 9.91e37] * (2 * State.points)
        return numbers(("nan",), lambda: flat, order)
    return data


class Bench:
    order, selected = "<", 0
    names = {"Trc1": 0, "Trc2": 1}
    numbers = [0]

    def answer(self, peer, text):
        kind = args.kind
        text = text.lstrip(":")
        common = [("SENS1?:FREQ:STAR", "start", 9e3, 20e9), ("SENS1?:FREQ:STOP", "stop", 9e3, 20e9),
                  ("SENS1?:SWE:POIN", "points", 2, 1000001), ("SENS1?:BWID", "bandwidth", 1.0, 1e6),
                  ("SOUR1?:POW", "power", -60.0, 10.0), ("SENS1?:AVER:STAT", "average_on", 0, 1),
                  ("SENS1?:AVER:COUN", "averages", 1, 1024)]
        identity = {"A": "Keysight Technologies,N5222A,MY1,A.09", "B": "Rohde-Schwarz,ZVA8-2Port,1,3.0",
                    "C": "CMT, C1209, 123, 1.0", "F": "Keysight Technologies,N9952A,SG1,A.08"}[kind]
        up = text.upper()
        found = setting(text, common)
        if found is not None:
            return found
        if up == "*IDN?":
            return "ACME,Toaster,1,1" if args.fault == "identity" else identity
        if up == "*CLS":
            ERRORS.clear()
            return ""
        if up == "SYST:ERR?":
            return ERRORS.pop(0) if ERRORS else '+0,"No error"'
        if up == "*OPC?":
            return "+1"
        if re.fullmatch(r"SENS1?:SWE:TIME\?", up):
            return "0.01"
        if re.fullmatch(r"FORM(:DATA)?( REAL(,64)?|\?)", up):
            if args.text and not up.endswith("?"):
                ERRORS.append('-113,"Undefined header"')
            return "ASC,0" if up.endswith("?") else ""
        if up in ("FORM:BORD NORM", "FORM:BORD SWAP") and kind != "F":
            self.order = ">" if up.endswith("NORM") else "<"
            return ""
        if up == "FORM:BORD?" and kind != "F":
            return "NORM" if self.order == ">" else "SWAP"
        if up in {"A": ("TRIG:SOUR IMM", "SENS1:SWE:MODE SING", "SENS1:SWE:MODE GRO", "SENS1:SWE:MODE CONT", "SENS1:AVER:CLE"),
                  "B": ("INIT1:CONT 0", "INIT1:CONT 1", "INIT1:IMM", "INIT1:CONT ON", "SENS1:AVER:CLE"),
                  "C": ("TRIG:SOUR BUS", "TRIG:SING", "TRIG:AVER ON", "TRIG:SOUR INT", "INIT1:CONT ON", "SENS1:AVER:CLE"),
                  "F": ('INST:SEL "NA"', "INIT:CONT 0", "INIT:IMM", "INIT:CONT 1")}[kind]:
            return ""
        if kind == "A" and up.startswith(("SENS1:SWE:GRO:COUN ", "DISP:WIND1:TRAC")):
            return ""
        return self.traces(peer, text, up)

    def traces(self, peer, text, up):
        kind = args.kind
        named = kind in "AB"
        listing = {"A": "CALC1:PAR:CAT:EXT?", "B": "CALC1:PAR:CAT?", "C": "CALC1:PAR:COUN?", "F": "CALC:PAR:COUN?"}[kind]
        if up == listing:
            pairs = ",".join("%s,S%s" % (n, ("11", "21", "12", "22")[i]) for n, i in self.names.items())
            return '"%s"' % pairs if named else "%d" % len(self.numbers)
        if kind == "A" and up == "DISP:WIND1:CAT?":
            return '"1,2"'
        define = re.fullmatch({"A": r"CALC1:PAR:EXT '(\w+)',(S\d\d)", "B": r"CALC1:PAR:SDEF '(\w+)','(S\d\d)'",
                               "C": r"CALC1:PAR(\d):DEF (S\d\d)", "F": r"CALC:PAR(\d):DEF (S\d\d)"}[kind], text)
        if define:
            index = ("S11", "S21", "S12", "S22").index(define.group(2))
            if named:
                self.names[define.group(1)] = index
            else:
                self.numbers[int(define.group(1)) - 1] = index
            return ""
        count = re.fullmatch(r"CALC1?:PAR:COUN (\d+)", up)
        if count and not named:
            self.numbers = (self.numbers + [0] * 16)[:int(count.group(1))]
            return ""
        asked = re.fullmatch(r"CALC1?:PAR(\d):DEF\?", up)
        if asked and not named:
            return "S" + ("11", "21", "12", "22")[self.numbers[int(asked.group(1)) - 1]]
        select = re.fullmatch(r"CALC1:PAR:(SEL|DEL) '(\w+)'" if named else r"CALC1?:PAR(\d):(SEL)", text)
        if select:
            key = select.group(2) if named else int(select.group(1)) - 1
            if named and select.group(1) == "DEL":
                self.names.pop(key, None)
            else:
                self.selected = self.names[key] if named else self.numbers[key]
            return ""
        order = "text" if args.text else "<" if kind == "F" else self.order
        data = {"A": ["CALC1:DATA? SDATA"], "B": ["CALC1:DATA? SDAT"], "C": ["CALC1:SEL:DATA:SDAT?"],
                "F": ["CALC:DATA:SDATA?"]}[kind]
        if up in data:
            index = self.selected
            flat = numbers(("data", index), lambda: [x for v in values(index) for x in (v.real, v.imag)], order)
            how = fault()
            peer.send(spoilt(flat, how, order), how)
            return ""
        if up == {"A": "SENS1:X?", "B": "CALC1:DATA:STIM?", "C": "SENS1:FREQ:DATA?", "F": "FREQ:DATA?"}[kind]:
            peer.send(numbers(("frequencies",), grid, order))
            return ""
        ERRORS.append('-113,"Undefined header;%s"' % text[:20].replace('"', ""))
        return ""


class Program:
    """The open analyser program; the old one answers every command."""
    single, fresh = False, 0.0

    def answer(self, peer, text):
        old = args.kind == "oldprogram"
        up = text.upper()
        names = [(":VNA:FREQ:START", "start", 1e5, 6e9), (":VNA:FREQ:STOP", "stop", 1e5, 6e9),
                 (":VNA:ACQ:POINTS", "points", 1, 1000001), (":VNA:ACQ:IFBW", "bandwidth", 10.0, 5e4),
                 (":VNA:ACQ:AVG", "averages", 1, 99), (":VNA:STIM:LVL", "power", -40.0, 0.0)]
        found = setting(text, names)
        if found is not None:
            return found if found or not old else "\n"
        fixed = {"*IDN?": ("ACME,Toaster,1,1" if args.fault == "identity" else "LibreVNA,LibreVNA-GUI,206830535532," +
                           ("1.5.1" if old else "1.6.1")),
                 ":DEV:CONN?": "206830535532", ":DEV:INF:LIM:MAXF?": "6e+09", ":DEV:INF:LIM:MINF?": "100000",
                 ":DEV:INF:LIM:MAXP?": "1000001", ":DEV:INF:LIM:MINIFBW?": "10", ":DEV:INF:LIM:MAXIFBW?": "50000",
                 ":VNA:TRAC:LIST?": "S11,S12,S21,mine", "*ESR?": "0", "*OPC?": "1"}
        if up in fixed:
            return fixed[up]
        if up == ":VNA:ACQ:FIN?":
            return "TRUE"
        if up.startswith(":VNA:TRAC:PARAM? "):
            return {"MINE": "S22"}.get(up.split()[1], up.split()[1])
        if up.startswith(":VNA:TRAC:DATA? "):
            index = {"S11": 0, "S21": 1, "S12": 2}.get(up.split()[1], 3)
            key = ("program", index, State.start, State.stop, State.points)
            if key not in packed:
                packed[key] = b",".join(b"[%d,%.6g,%.6g]" % (f, v.real, v.imag) for f, v in zip(grid(), values(index)))
            data, how = packed[key], fault()
            if how == "fewer":
                data = data[:data.rindex(b",[")]
            elif how == "nan":
                data = data.replace(b"[%d,0" % State.start, b"[%d,nan" % State.start, 1).replace(b",-0.", b",nan.", 0)
                data = re.sub(rb"^\[(\d+),[^,]*", rb"[\1,nan", data)
            elif how == "error":
                data = b"ERROR" if old else b"EMPTY"
            elif how == "huge":
                data = data * 100
            peer.send(data + b"\n", how)
            return ""
        known = (":DEV:MODE VNA", ":VNA:SWEEP FREQUENCY", ":VNA:SWEEPTYPE LIN", ":VNA:ACQ:STOP", ":VNA:ACQ:RUN",
                 ":VNA:ACQ:SINGLE TRUE", ":VNA:ACQ:SINGLE FALSE", ":DEV:CONN")
        return ("\n" if up in known else "ERROR") if old else ""


def serve_scpi(peer, instrument):
    while True:
        text = peer.line(b"\n").strip()
        if args.fault == "mute":
            continue
        if text:
            answer = instrument.answer(peer, text)
            if answer:
                peer.send(answer.strip("\n").encode() + b"\n")


if "shell" in args.kind:
    while True:
        master, slave = os.openpty()
        tty.setraw(slave)
        print("ready " + os.ttyname(slave), flush=True)
        try:
            serve_shell(Peer(lambda n: os.read(master, n), lambda data: os.write(master, data)))
        except (Gone, OSError):
            os.close(master)
            os.close(slave)
            sys.exit()
else:
    listener = socket.socket()
    listener.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
    listener.bind(("127.0.0.1", args.port))
    listener.listen()
    print("ready 127.0.0.1:%d" % listener.getsockname()[1], flush=True)
    instrument = Program() if "program" in args.kind else Bench()
    while True:
        client, _ = listener.accept()
        client.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        try:
            serve_scpi(Peer(client.recv, client.sendall), instrument)
        except (Gone, OSError):
            client.close()
