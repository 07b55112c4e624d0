#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A laboratory's script that drives the panel at 127.0.0.1:PORT through PyVISA; prints "well"."""
import sys

import pyvisa

panel = pyvisa.ResourceManager("@py").open_resource("TCPIP0::127.0.0.1::%s::SOCKET" % sys.argv[1])
panel.read_termination = panel.write_termination = "\n"
panel.timeout = 20000
assert panel.query("*IDN?").startswith("VnaWidgets,vnapanel,0,")
panel.write("SENS1:FREQ:STAR 2.35E9;STOP 2.55E9;:SENS:SWE:POIN 501")
assert panel.query("INIT:CONT 0;:INIT;*OPC?") == "1"
assert panel.query("freq:start?;stop?") == "2.350000000000E+09;2.550000000000E+09"
names = panel.query("CALC:PAR:CAT?").strip('"').split(",")
panel.write("CALC:PAR:SEL '%s'" % names[names.index("S21") - 1])
text = [float(x) for x in panel.query("FORM ASC;:CALC:DATA? SDAT").split(",")]
values = panel.query_binary_values("FORM REAL,64;FORM:BORD SWAP;:CALC:DATA? SDAT", datatype="d", is_big_endian=False)
assert len(values) == len(text) == 1002, (len(values), len(text))
assert max(abs(a - b) for a, b in zip(values, text)) < 1e-11
hertz = panel.query_binary_values("FORM:BORD NORM;:CALC:DATA:STIM?", datatype="d", is_big_endian=True)
assert hertz[0] == 2.35e9 and hertz[-1] == 2.55e9 and len(hertz) == 501
panel.write("CALC:MARK2:X 2.45 GHZ")
assert panel.query("CALC:MARK2:STAT?;X?") == "1;2.450000000000E+09"
assert -20 < float(panel.query("CALC:MARK2:Y?").split(",")[0]) < 0  # dB, in the pass band
picture = panel.query_binary_values("HCOP:DATA?", datatype="B", container=bytes)
assert picture.startswith(b"\x89PNG")
panel.write("SENS:SWE:POIN 1e9;:NONSENSE 1;SWE:POIN")
errors = [panel.query("SYST:ERR?") for _ in range(4)]
assert [e.split(",")[0] for e in errors] == ["-222", "-113", "-109", "0"], errors
assert panel.query("*ESR?;*ESR?") == "48;0"
print("well")
