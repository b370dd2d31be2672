#!/usr/bin/env python3
"""Checks that every function called by the host or the component is guarded: HostFunctionsTest.py SOURCES

The host takes functions as `method`. Only max_method() converts a function to one, and only the wrapper's file may
use it. The component calls what the listener overrides."""

import pathlib
import re
import sys

sources = pathlib.Path(sys.argv[1])
faults = []
handed = []

for file in sorted(sources.rglob("*.[hc]*")):
    text = re.sub(r"/\*.*?\*/|//[^\n]*", "", file.read_text(encoding="utf-8"), flags=re.S)
    name = file.relative_to(sources).as_posix()
    handed += [f"{name}: {function}" for function in re.findall(r"host(?:Function|Destructor)<(.+?)>\(\)", text)]
    if name != "max/HostFunction.h":
        faults += [f"{name}: {line.strip()}" for line in text.splitlines()
                   if re.search(r"\bmax_method\b|_cast<(orvanemax::)?method>", line)]

listener = (sources / "external/MaxHalcyraListener.cpp").read_text(encoding="utf-8")
overridden = re.findall(r"void (\w+) ?\([^)]*\) override", (sources / "external/MaxHalcyraListener.h").read_text())
for operation in overridden:
    body = re.search(r"void MaxHalcyraListener::%s ?\(.*?\n\}" % operation, listener, re.S)
    if body is None or not re.search(r"\b(tell|guarded) \(", body.group()):
        faults.append(f"external/MaxHalcyraListener.cpp: {operation}")
    handed.append(f"external/MaxHalcyraListener.cpp: {operation}")

entry = (sources / "external/Registration.cpp").read_text(encoding="utf-8")
if not re.search(r"t_clong ext_main \(void\*\)\n\{[^}]*guarded \(", entry):
    faults.append("external/Registration.cpp: ext_main")

print("\n".join(handed))
print(f"{len(handed)} functions")
if len(overridden) < 6 or len(handed) < 40:
    faults.append("the list is too short: the patterns of this test no longer fit")
if faults:
    sys.exit("without a guard:\n" + "\n".join(faults))
